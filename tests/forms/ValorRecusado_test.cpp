#include "forms/TelasDeTeste.h"
#include "support/CaixasDeVerdade.h"

#include <QTabBar>

namespace ficha::testes
{

/** One way in which a user may try to leave an input whose value is refused. */
struct TSaida {
    const char *nome;
    void (*sair)(TGruposF &tela);
    /** A confirm tries to store; whatever else is tried leaves the edit as it is. */
    bool confirma = false;
    /** Dead while an edit is open: there is nothing to tell. */
    bool morta = false;
};

void PrintTo(const TSaida &saida, std::ostream *em)
{
    *em << saida.nome;
}

void Apertar(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
{
    QTest::keyClick(QApplication::focusWidget(), Qt::Key(tecla), com);
}

void Clicar(QWidget *onde)
{
    QTest::mouseClick(onde, Qt::LeftButton);
}

const TSaida Saidas[] = {
    {"Tab", [](TGruposF &) { Apertar(Qt::Key_Tab); }},
    {"ShiftTab", [](TGruposF &) { Apertar(Qt::Key_Tab, Qt::ShiftModifier); }},
    {"ClickOnAnotherInput", [](TGruposF &tela) { Clicar(tela.CodFr->NumEditBR1); }},
    {"ClickOnACombo", [](TGruposF &tela) { Clicar(tela.TipoFr->ComboBox1); }},
    {"ClickOnAButtonBesideAnInput", [](TGruposF &tela) { Clicar(tela.TipoFr->EditBitBtn); }},
    {"ClickOnConfirm", [](TGruposF &tela) { Clicar(tela.ConfirmBitBtn); }},
    {"CtrlEnter", [](TGruposF &) { Apertar(Qt::Key_Return, Qt::ControlModifier); }, true},
    {"CtrlEnterOfTheKeypad",
     [](TGruposF &) { Apertar(Qt::Key_Enter, Qt::ControlModifier | Qt::KeypadModifier); }, true},
    {"CtrlPgDn", [](TGruposF &) { Apertar(Qt::Key_PageDown, Qt::ControlModifier); }, false, true},
    {"CtrlUp", [](TGruposF &) { Apertar(Qt::Key_Up, Qt::ControlModifier); }, false, true},
    {"CtrlL", [](TGruposF &) { Apertar(Qt::Key_L, Qt::ControlModifier); }, false, true},
    {"CtrlDelete", [](TGruposF &) { Apertar(Qt::Key_Delete, Qt::ControlModifier); }, false, true},
    {"CtrlAltI",
     [](TGruposF &) {
         QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(), Qt::Key_I, QString(),
                             Qt::ControlModifier | Qt::AltModifier);
     },
     false, true},
};

/** An input that refuses its value, left in every way; with the library's own message boxes. */
class TValorRecusadoTest : public TTelasTest, public testing::WithParamInterface<TSaida>
{
protected:
    void SetUp() override
    {
        TresGrupos();
        tela = Abrir();
    }
    /** "verde" belongs to another record. */
    void DigitarRepetido()
    {
        ASSERT_EQ(Foco(), tela->Descr());
        tela->Descr()->selectAll();
        Digitar(QStringLiteral("verde"));
        ASSERT_TRUE(caixas.textos.isEmpty());
    }
    void Sair()
    {
        GetParam().sair(*tela);
        QTest::qWait(20);
        Ocioso();
    }
    void ConfereUmaCaixaEOFoco()
    {
        if (GetParam().morta) {
            EXPECT_EQ(caixas.textos, QStringList());
        } else {
            ASSERT_EQ(caixas.textos.size(), 1);
            EXPECT_TRUE(caixas.textos[0].startsWith(
                QStringLiteral("Repetição\nDescrição 'verde' já existe no sistema.")))
                << caixas.textos[0].toStdString();
        }
        EXPECT_EQ(Foco(), tela->Descr());
        EXPECT_EQ(QApplication::activeWindow(), &janela);
    }

    TGruposF *tela = nullptr;
    TCaixasDeVerdade caixas;
};

TEST_P(TValorRecusadoTest, WhileInsertingOneBoxTheFocusStaysAndWhatWasTypedToo)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    DigitarRepetido();
    Sair();
    ConfereUmaCaixaEOFoco();
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    EXPECT_EQ(tela->Codigo(), QStringLiteral("4"));
    EXPECT_EQ(Quantos(), 3);
    // Put right, the same way out is open.
    caixas.textos.clear();
    tela->Descr()->selectAll();
    Digitar(QStringLiteral("roxo"));
    Sair();
    EXPECT_EQ(caixas.textos, QStringList());
    if (tela->Tab->Status == TStatus::Inserindo)
        Tecla(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("roxo"));
}

TEST_P(TValorRecusadoTest, WhileAlteringOneBoxAndTheFocusStays)
{
    Tecla(Qt::Key_A, Qt::ControlModifier);
    DigitarRepetido();
    Sair();
    ConfereUmaCaixaEOFoco();
    // Only a confirm abandons the alteration, on purpose.
    EXPECT_EQ(tela->Tab->Status, GetParam().confirma ? TStatus::Ocioso : TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(),
              GetParam().confirma ? QStringLiteral("azul") : QStringLiteral("verde"));
    EXPECT_EQ(DescrNoBanco(1), QStringLiteral("azul"));
}

INSTANTIATE_TEST_SUITE_P(Saidas, TValorRecusadoTest, testing::ValuesIn(Saidas),
                         [](const auto &saida) { return std::string(saida.param.nome); });

/** The same with other windows around. */
class TValorRecusadoEntreJanelasTest : public TTelasTest
{
protected:
    void SetUp() override
    {
        TresGrupos();
        tela = Abrir();
        Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
        Digitar(QStringLiteral("verde"));
    }
    void Ativar(QWidget &w)
    {
        w.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&w));
        Ocioso();
    }
    void SairComUmAviso()
    {
        EXPECT_EQ(avisos, QStringList());
        QTest::mouseClick(tela->TipoFr->ComboBox1, Qt::LeftButton);
        Ocioso();
        EXPECT_EQ(avisos.size(), 1);
        avisos.clear();
        EXPECT_EQ(Foco(), tela->Descr());
        EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
        EXPECT_EQ(tela->Tab->Status, TStatus::Inserindo);
    }
    TGruposF *tela = nullptr;
};

TEST_F(TValorRecusadoEntreJanelasTest, AnotherWindowOnTopTellsNothingAndComingBackIsWhereOneWas)
{
    QWidget outra(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    QLineEdit edit(&outra);
    outra.show();
    Ativar(outra);
    edit.setFocus();
    EXPECT_EQ(Foco(), &edit);
    EXPECT_EQ(avisos, QStringList());
    Ativar(janela);
    EXPECT_EQ(Foco(), tela->Descr());
    SairComUmAviso();
    // The click that brings the screen back is on another input of it.
    Ativar(outra);
    tela->TipoFr->ComboBox1->setFocus(Qt::MouseFocusReason);
    EXPECT_EQ(avisos, QStringList());
    Ativar(janela);
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    EXPECT_EQ(Foco(), tela->Descr());
}

TEST_F(TValorRecusadoEntreJanelasTest, AnotherScreenInFrontTellsNothingAndComingBackNeither)
{
    auto *outra = Abrir<TTiposF>();
    const std::function<void()> voltas[] = {
        [&] { tela->Show(); },
        [&] { QTest::mouseClick(tela->SubJanela(), Qt::LeftButton, {}, QPoint(80, 8)); },
        [&] { janela.activatePreviousSubWindow(); },
    };
    for (const auto &voltar : voltas) {
        outra->Show();
        Ocioso();
        EXPECT_TRUE(outra->isAncestorOf(Foco()));
        voltar();
        Ocioso();
        EXPECT_EQ(avisos, QStringList());
        EXPECT_EQ(Foco(), tela->Descr());
        SairComUmAviso();
    }
    // The click that brings the screen back is on another input of it.
    outra->Show();
    Ocioso();
    SairComUmAviso();
}

TEST_F(TValorRecusadoEntreJanelasTest, ASecondWindowThatComesUpInsideTheMessage)
{
    QWidget outra(nullptr, Qt::Tool | Qt::WindowStaysOnTopHint);
    aoAvisar = [&] {
        outra.show();
        outra.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&outra));
    };
    QTest::mouseClick(tela->TipoFr->ComboBox1, Qt::LeftButton);
    Ocioso();
    aoAvisar = {};
    EXPECT_EQ(avisos.size(), 1);
    avisos.clear();
    Ativar(janela);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_EQ(Foco(), tela->Descr());
    SairComUmAviso();
}

TEST_F(TValorRecusadoEntreJanelasTest, ClosingAsksOnceAndSaysNothingElse)
{
    responde = false;
    EXPECT_FALSE(tela->Close());
    EXPECT_EQ(perguntas.size(), 1);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_EQ(Foco(), tela->Descr());
    responde = true;
    QPointer<TGruposF> viva = tela;
    EXPECT_TRUE(tela->Close());
    Assentar();
    EXPECT_FALSE(viva);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TValorRecusadoEntreJanelasTest, EscCancelsWithoutAWord)
{
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
}

} // namespace ficha::testes
