#include "input/UApoioInput.h"
#include "input/ULabeledEditBasFr.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/Teclas.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QAbstractButton>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Counts what the base calls. */
class TContadoFr : public TLabeledEditBasFr
{
    Q_OBJECT
public:
    using TLabeledEditBasFr::TLabeledEditBasFr;
    bool TestarMascara() override
    {
        ++mascaras;
        return false;
    }
    void Atualizar() override
    {
        TLabeledEditBasFr::Atualizar();
        ++atualizacoes;
    }
    int mascaras = 0;
    int atualizacoes = 0;
    int mudancas = 0;
    int entradasFrame = 0;
    int entradasEdit = 0;
    int saidas = 0;

protected:
    void LabeledEdit1Change(QObject *sender) override
    {
        EXPECT_EQ(sender, LabeledEdit1);
        ++mudancas;
        TLabeledEditBasFr::LabeledEdit1Change(sender);
    }
    void FrameEnter(QObject *sender) override
    {
        ++entradasFrame;
        TLabeledEditBasFr::FrameEnter(sender);
    }
    void FrameExit(QObject *sender) override
    {
        ++saidas;
        TLabeledEditBasFr::FrameExit(sender);
    }
    void LabeledEdit1Enter(QObject *sender) override
    {
        ++entradasEdit;
        TLabeledEditBasFr::LabeledEdit1Enter(sender);
    }
};

class TLabeledEditBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->LabeledEdit1;
    }

    TContadoFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

const QString ObrigatorioSemCampo =
    QStringLiteral("Campo incompleto\r\nEste é um campo obrigatório\r\n (não pode ser deixado em "
                   "branco).\r\nDigite um valor ou clique em Cancelar.");

TEST_F(TLabeledEditBasFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Mostrado<TLabeledEditBasFr>();
    puro->LabeledEdit1->setText(QStringLiteral("Ângela Çgjpqy"));
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TLabeledEditBasFr")));
    EXPECT_EQ(puro->LabeledEdit1->GetColor(), TColor(16777215));
    EXPECT_EQ(puro->LabeledEdit1->GetLabelSpacing(), 1);
}

TEST_F(TLabeledEditBasFrTest, AFreshFrameAcceptsBlankAndHasTwoPhrasesOff)
{
    Montar();
    EXPECT_TRUE(fr->AceitaVazio);
    EXPECT_FALSE(fr->NaoRepetir);
    ASSERT_EQ(fr->Frases.Count(), 2);
    EXPECT_EQ(fr->Frases.Texto(0), QStringLiteral("Já existe"));
    EXPECT_EQ(fr->Frases.Texto(1), QStringLiteral("Obrigatório"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TLabeledEditBasFrTest, RequiredEditHoldingOnlyBlanksIsRefusedAndIsEmptyAfterTheCheck)
{
    Montar();
    fr->AceitaVazio = false;
    edit->setText(QStringLiteral("   "));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(avisos, QStringList{ObrigatorioSemCampo});
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 1);
}

TEST_F(TLabeledEditBasFrTest, TheRefusalNamesTheBoundColumn)
{
    AbrirTabela();
    Montar();
    fr->AceitaVazio = false;
    Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->clear();
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Campo incompleto\r\nDescrição é um campo obrigatório\r\n (não pode ser "
                          "deixado em branco).\r\nDigite um valor ou clique em Cancelar.")});
}

TEST_F(TLabeledEditBasFrTest, TheTrimIsWrittenBackAndAnnouncedOnEveryCheck)
{
    Montar();
    edit->setText(QStringLiteral("  ab  "));
    fr->mudancas = 0;
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->mudancas, 2) << "nothing to trim is announced too";
}

TEST_F(TLabeledEditBasFrTest, AnAcceptedTextSwitchesThePhraseOff)
{
    Montar();
    fr->AceitaVazio = false;
    fr->Frases.SetObjeto(FraseObrigatorio, 1);
    edit->setText(QStringLiteral("x"));
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 0) << "the change switches it";
    fr->Frases.SetObjeto(FraseObrigatorio, 1);
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 0);
}

TEST_F(TLabeledEditBasFrTest, EachChangeTestsTheMaskAndRefreshesOnce)
{
    Montar();
    edit->setFocus();
    fr->mudancas = fr->mascaras = fr->atualizacoes = 0;
    Digitar(edit, QStringLiteral("abc"));
    EXPECT_EQ(edit->text(), QStringLiteral("abc")) << "the mask's answer is ignored";
    EXPECT_EQ(fr->mudancas, 3);
    EXPECT_EQ(fr->mascaras, 3);
    EXPECT_EQ(fr->atualizacoes, 3);
    edit->setText(QStringLiteral("do programa"));
    EXPECT_EQ(fr->mudancas, 4) << "the program's change is announced as well";
}

TEST_F(TLabeledEditBasFrTest, TypingInARequiredFrameTurnsItsPhraseOnAndOff)
{
    Montar();
    fr->AceitaVazio = false;
    edit->setFocus();
    Teclar(edit, u' ');
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 1);
    Teclar(edit, u'x');
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 0);
}

TEST_F(TLabeledEditBasFrTest, FraseRefAddsObrigatorio)
{
    AbrirTabela();
    Montar();
    EXPECT_EQ(fr->FraseRef(), QString());
    Prender(fr, "descr", QStringLiteral("Descrição"));
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Descrição:  [Tab]Avançar"));
    fr->AceitaVazio = false;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Descrição:  [Tab]Avançar  Obrigatório"));
    fr->NaoRepetir = true;
    EXPECT_EQ(fr->FraseRef(),
              QStringLiteral(" Descrição:  [Tab]Avançar  Não pode ser repetido  Obrigatório"));
}

TEST_F(TLabeledEditBasFrTest, ZerarEmptiesTheEditAndSwitchesThePhrasesOff)
{
    Montar();
    edit->setText(QStringLiteral("x"));
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TLabeledEditBasFrTest, EnteringRunsBothHandlersAndFocusesTheEdit)
{
    Montar();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->entradasFrame, 1);
    EXPECT_EQ(fr->entradasEdit, 1);
    EXPECT_TRUE(fr->Focused());
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->saidas, 1);
    EXPECT_FALSE(fr->Focused());
}

TEST_F(TLabeledEditBasFrTest, SetFocusReachesTheEditOnlyWhereItCanBeSeen)
{
    Montar();
    fr->SetFocus();
    EXPECT_EQ(Foco(), edit);
    antes->setFocus();
    edit->hide();
    fr->SetFocus();
    EXPECT_NE(Foco(), edit);
    auto *solto = Criar<TLabeledEditBasFr>(nullptr);
    solto->SetFocus();
    EXPECT_FALSE(solto->LabeledEdit1->hasFocus());
    delete solto;
}

TEST_F(TLabeledEditBasFrTest, DescelecinarMovesTheCaretAndDropsTheSelection)
{
    Montar();
    edit->setText(QStringLiteral("abcdef"));
    edit->selectAll();
    fr->Descelecinar(VK_END);
    EXPECT_EQ(edit->cursorPosition(), 6);
    EXPECT_FALSE(edit->hasSelectedText());
    edit->selectAll();
    fr->Descelecinar(VK_HOME);
    EXPECT_EQ(edit->cursorPosition(), 0);
    EXPECT_FALSE(edit->hasSelectedText());
    edit->setSelection(1, 2);
    fr->Descelecinar(VK_LEFT);
    EXPECT_EQ(edit->selectedText(), QStringLiteral("bc"));
}

TEST_F(TLabeledEditBasFrTest, DeleteOnAReadOnlyEditWarnsNamingTheColumn)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->setText(QStringLiteral("um"));
    edit->setReadOnly(true);
    edit->setFocus();
    Teclar(edit, Qt::Key_Delete);
    Teclar(edit, Qt::Key_Backspace);
    Teclar(edit, u'x');
    const QString texto = QStringLiteral(
        "O campo Descrição está somente para leitura. Não pode ter seu valor alterado.");
    EXPECT_EQ(avisos, (QStringList{texto, texto}));
    EXPECT_EQ(edit->text(), QStringLiteral("um"));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TLabeledEditBasFrTest, AReadOnlyFrameWithoutAFieldSaysEste)
{
    Montar();
    edit->setReadOnly(true);
    edit->setFocus();
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Este campo está somente para leitura. Não pode "
                                                 "ter seu valor alterado.")});
}

TEST_F(TLabeledEditBasFrTest, TheDeleteKeysStartTheAlterationBeforeTheyLand)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    QStringList textos;
    tela.antesDeAtivar = [&] { textos << edit->text(); };
    for (const Qt::Key tecla : {Qt::Key_Delete, Qt::Key_Backspace}) {
        edit->setText(QStringLiteral("abc"));
        edit->setFocus();
        edit->setCursorPosition(1);
        Teclar(edit, tecla);
        EXPECT_EQ(edit->text().size(), 2);
        EXPECT_EQ(tabela->Status, TStatus::Alterando);
        tabela->AltCancel();
    }
    EXPECT_EQ(textos, (QStringList{QStringLiteral("abc"), QStringLiteral("abc")}));
    EXPECT_EQ(tela.pedidos, 2);
}

TEST_F(TLabeledEditBasFrTest, TypingPastingAndDroppingStartTheAlterationOnce)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->setText(QStringLiteral("um"));
    edit->setFocus();
    Digitar(edit, QStringLiteral("ab"));
    EXPECT_EQ(tela.pedidos, 1);
    tabela->AltCancel();
    Colar(edit, QStringLiteral("colado"));
    EXPECT_EQ(tela.pedidos, 2);
    tabela->AltCancel();
    Soltar(edit, QStringLiteral("solto"));
    EXPECT_EQ(tela.pedidos, 3);
    EXPECT_TRUE(edit->text().contains(QStringLiteral("solto")));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TLabeledEditBasFrTest, TheProgramNeverStartsAnAlteration)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->setFocus();
    fr->SetValor(QStringLiteral("do programa"));
    edit->setText(QStringLiteral("também"));
    fr->Zerar();
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(tela.pedidos, 0);
    Teclar(edit, Qt::Key_Left);
    Teclar(edit, Qt::Key_Home);
    Teclar(edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(tela.pedidos, 0) << "nor do keys that change nothing";
}

TEST_F(TLabeledEditBasFrTest, ARefusedAlterationIsToldOncePerKey)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    tela.recusa = true;
    edit->setText(QStringLiteral("abc"));
    edit->setFocus();
    edit->setCursorPosition(0);
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(avisos.size(), 1);
    Teclar(edit, u'x');
    EXPECT_EQ(avisos.size(), 2);
    edit->setCursorPosition(int(edit->text().size()));
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(avisos.size(), 3) << "deletes nothing, asks all the same";
    Teclar(edit, u'y');
    EXPECT_EQ(avisos.size(), 4);
}

TEST_F(TLabeledEditBasFrTest, TheFirstCharacterSurvivesAnInsertionThatEmptiesTheInputs)
{
    AbrirTabela({});
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->setFocus();
    Digitar(edit, QStringLiteral("ab"));
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TLabeledEditBasFrTest, LeavingWithARefusedValueWarnsOnceAndKeepsTheFocus)
{
    Montar();
    fr->AceitaVazio = false;
    edit->setFocus();
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1) << "Tab";
    EXPECT_EQ(Foco(), edit);
    Teclar(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(avisos.size(), 2) << "Shift+Tab";
    EXPECT_EQ(Foco(), edit);
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos.size(), 3) << "a click elsewhere";
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->Frases.Objeto(FraseObrigatorio), 1) << "the phrase stays on";
    Teclar(edit, u'x');
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 3);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TLabeledEditBasFrTest, LeavingWithARealMessageBoxKeepsTheFocusToo)
{
    Montar();
    Servicos().MensagemAviso = nullptr;
    fr->AceitaVazio = false;
    edit->setFocus();
    int caixas = 0;
    QTimer fechador;
    QObject::connect(&fechador, &QTimer::timeout, [&] {
        if (QWidget *caixa = QApplication::activeModalWidget()) {
            ++caixas;
            caixa->close();
        }
    });
    fechador.start(10);
    Teclar(edit, Qt::Key_Tab);
    QTest::qWait(100);
    EXPECT_EQ(caixas, 1);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    EXPECT_EQ(Foco(), edit);
}

TEST_F(TLabeledEditBasFrTest, AClickOnAButtonWithARefusedValueOpensOneBoxAndDoesNotClick)
{
    auto *botao = new QPushButton(&tela);
    botao->move(200, 250);
    botao->setFocusPolicy(Qt::StrongFocus);
    Montar();
    Servicos().MensagemAviso = nullptr;
    fr->AceitaVazio = false;
    edit->setFocus();
    int caixas = 0;
    int cliques = 0;
    QObject::connect(botao, &QPushButton::clicked, botao, [&] { ++cliques; });
    QTimer fechador;
    QObject::connect(&fechador, &QTimer::timeout, &fechador, [&] {
        if (QWidget *caixa = QApplication::activeModalWidget()) {
            ++caixas;
            caixa->close();
        }
    });
    fechador.start(10);
    // The release of the button goes to the box, as it does for a user.
    QTest::mousePress(botao, Qt::LeftButton);
    QTest::qWait(50);
    EXPECT_EQ(caixas, 1);
    EXPECT_EQ(cliques, 0);
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    EXPECT_EQ(Foco(), edit);
}

TEST_F(TLabeledEditBasFrTest, ACharacterThatTheDatabaseCannotHoldIsRefused)
{
    Montar();
    edit->setFocus();
    Digitar(edit, QStringLiteral("a€b"));
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    EXPECT_EQ(avisos.size(), 1);
    Colar(edit, QStringLiteral("x–y"));
    EXPECT_EQ(edit->text(), QStringLiteral("ab"));
    EXPECT_EQ(avisos.size(), 2);
}

TEST_F(TLabeledEditBasFrTest, ARefusedCharacterIsToldInTheBoxOfAllOtherWarnings)
{
    Montar();
    Servicos().MensagemAviso = nullptr;
    edit->setFocus();
    QStringList caixas;
    QTimer fechador;
    QObject::connect(&fechador, &QTimer::timeout, [&] {
        if (auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            caixas << caixa->windowTitle() + u'|' + caixa->text() + u'|' +
                          caixa->informativeText() + u'|' + caixa->buttons().constFirst()->text();
            caixa->close();
        }
    });
    fechador.start(10);
    Teclar(edit, QChar(0x20AC));
    EXPECT_EQ(caixas,
              QStringList{QStringLiteral("Aviso|O caractere \"€\" não pode ser gravado no banco de "
                                         "dados e foi recusado.|Use apenas letras, números e "
                                         "sinais do teclado.|OK")});
    EXPECT_EQ(edit->text(), QString());
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    EXPECT_EQ(Foco(), edit);
}

TEST_F(TLabeledEditBasFrTest, TheFrameMayBeDestroyedInsideItsWarning)
{
    Montar();
    fr->AceitaVazio = false;
    edit->setFocus();
    const QPointer<TContadoFr> vivo(fr);
    aoAvisar = [&] { fr->deleteLater(); };
    Teclar(edit, Qt::Key_Tab);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QTest::qWait(1);
    EXPECT_TRUE(vivo.isNull());
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(TLabeledEditBasFrTest, TheFrameOutlivesItsTable)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    tabela.reset();
    edit->setFocus();
    Digitar(edit, QStringLiteral("x"));
    fr->AceitaVazio = false;
    edit->clear();
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{ObrigatorioSemCampo});
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TLabeledEditBasFrTest, TheDisplayLabelOfTheEditFollowsTheCaption)
{
    Montar();
    edit->SetCaption(QStringLiteral("Nome completo"));
    EXPECT_EQ(edit->EditLabel->text(), QStringLiteral("Nome completo"));
    EXPECT_EQ(edit->EditLabel->geometry().bottom() + 1, 15 - 1);
}

TEST(EditKeys, AreThese92Characters)
{
    int n = 0;
    for (char16_t c = 0; c < 256; ++c)
        n += IniciaEdicao(c) ? 1 : 0;
    EXPECT_EQ(n, 92);
    for (const QChar c : QStringLiteral(" 09azAZçÇ\\|?+"))
        EXPECT_TRUE(IniciaEdicao(c)) << int(c.unicode());
    for (const QChar c : QStringLiteral("\r\n\t\b\"'~^é"))
        EXPECT_FALSE(IniciaEdicao(c)) << int(c.unicode());
}

} // namespace

#include "TLabeledEditBasFr_test.moc"
