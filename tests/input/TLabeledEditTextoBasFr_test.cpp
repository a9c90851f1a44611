#include "input/UApoioInput.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QElapsedTimer>
#include <QMouseEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Replaces the handlers that do nothing. */
class TOuvinteFr : public TLabeledEditTextoBasFr
{
    Q_OBJECT
public:
    using TLabeledEditTextoBasFr::TLabeledEditTextoBasFr;
    QString teclas;
    int movimentos = 0;

protected:
    void LabeledEdit1KeyPress(QObject *, QChar &caractere) override
    {
        teclas += caractere;
        if (caractere == u'z')
            caractere = QChar();
    }
    void FrameMouseMove(QObject *sender, QMouseEvent *) override
    {
        EXPECT_EQ(sender, this);
        ++movimentos;
    }
};

class TLabeledEditTextoBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TLabeledEditTextoBasFr>();
        edit = fr->LabeledEdit1;
    }

    TLabeledEditTextoBasFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

TEST_F(TLabeledEditTextoBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetValor(QStringLiteral("Ângela Çgjpqy"));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TLabeledEditTextoBasFr")));
    ASSERT_EQ(fr->Frases.Count(), 3);
    EXPECT_EQ(fr->Frases.Texto(2), QStringLiteral("Máx. de caracteres"));
    EXPECT_TRUE(fr->AceitaVazio);
    EXPECT_FALSE(fr->NaoRepetir);
}

TEST_F(TLabeledEditTextoBasFrTest, TheFifthOfFiveCharactersShowsThePhraseAndDeletingOneHidesIt)
{
    Montar();
    edit->SetMaxLength(5);
    edit->setFocus();
    Digitar(edit, QStringLiteral("abcd"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    Teclar(edit, u'e');
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Máx 5 caracs."));
    Teclar(edit, u'f');
    EXPECT_EQ(edit->text(), QStringLiteral("abcde"));
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_EQ(fr->Frases.Texto(FraseMaxCaracteres), QStringLiteral("Máx 5 caracs."))
        << "the text of the phrase is kept";
}

TEST_F(TLabeledEditTextoBasFrTest, BlanksAtTheEndsDoNotCountForTheMaximum)
{
    Montar();
    edit->SetMaxLength(5);
    edit->setText(QStringLiteral("abc  "));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    edit->setText(QStringLiteral("abcde"));
    EXPECT_EQ(fr->Frases.Objeto(FraseMaxCaracteres), 1);
}

TEST_F(TLabeledEditTextoBasFrTest, AChangeSwitchesJaExisteOff)
{
    Montar();
    fr->Frases.SetObjeto(FraseJaExiste, 1);
    edit->setFocus();
    Teclar(edit, u'x');
    EXPECT_EQ(fr->Frases.Objeto(FraseJaExiste), 0);
}

TEST_F(TLabeledEditTextoBasFrTest, TheValueIsTheTrimmedText)
{
    Montar();
    fr->SetValor(QStringLiteral("  Ana Maria "));
    EXPECT_EQ(edit->text(), QStringLiteral("Ana Maria"));
    edit->setText(QStringLiteral(" Ana "));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("Ana")));
    EXPECT_EQ(fr->AsString(), QStringLiteral("Ana"));
    fr->SetValor(Null);
    EXPECT_EQ(edit->text(), QString());
    fr->SetValor(12.5);
    EXPECT_EQ(edit->text(), QStringLiteral("12,5"));
}

TEST_F(TLabeledEditTextoBasFrTest, SQLStringDoublesTheQuotes)
{
    Montar();
    fr->SetValor(QStringLiteral("O'Brien"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'O''Brien'"));
    fr->SetValor(Null);
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
}

TEST_F(TLabeledEditTextoBasFrTest, HostileTextsComeBackFromTheDatabaseAsTheyWentIn)
{
    AbrirTabela();
    Montar();
    const TCampo *campo = Prender(fr, "descr", QStringLiteral("Descrição"));
    edit->setFocus();
    for (const QString &texto : TextosHostis()) {
        edit->selectAll();
        Colar(edit, texto);
        ASSERT_EQ(edit->text(), texto);
        banco->Executar(QStringLiteral("update testes set descr = ") + fr->SQLString());
        query.Close();
        query.Open();
        tabela->AltCancel();
        tabela->First();
        EXPECT_EQ(edit->text(), texto);
        EXPECT_EQ(campo->Valor, Variant(texto));
    }
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TLabeledEditTextoBasFrTest, HostileTextsAreSearchedForSafelyByTheUniquenessCheck)
{
    AbrirTabela({QStringLiteral("1, 'O''Brien', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("Nome"));
    fr->NaoRepetir = true;
    tabela->InsIni();
    fr->SetValor(QStringLiteral("o'brien"));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Repetição\r\nNome 'o''brien' já existe no "
                                                 "sistema. Escolha outro valor, ou clique em "
                                                 "Cancelar.")});
    avisos.clear();
    for (const QString &texto : TextosHostis().mid(1)) {
        fr->SetValor(texto);
        EXPECT_TRUE(fr->ValorAceitavel()) << texto.left(40).toStdString();
    }
    EXPECT_EQ(banco->Valor(QStringLiteral("select count(*) from testes")), Variant(1));
}

TEST_F(TLabeledEditTextoBasFrTest, ARepeatedValueWarnsOnceOnLeavingAndKeepsTheFocus)
{
    AbrirTabela(
        {QStringLiteral("1, 'um', 0, 0, '', ''"), QStringLiteral("2, 'dois', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("Nome"));
    fr->NaoRepetir = true;
    edit->setFocus();
    edit->selectAll();
    Digitar(edit, QStringLiteral("DOIS"));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Já existe"));
    edit->selectAll();
    Digitar(edit, QStringLiteral("um"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1) << "the record's own value is not repeated";
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TLabeledEditTextoBasFrTest, ARefusedAlterationShowsTheStoredTextAgain)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Nome"));
    tela.recusa = true;
    edit->setFocus();
    edit->setCursorPosition(0);
    Teclar(edit, u'x');
    EXPECT_EQ(edit->text(), QStringLiteral("um"));
    edit->setCursorPosition(0);
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(edit->text(), QStringLiteral("um"));
    Colar(edit, QStringLiteral("colado"));
    EXPECT_EQ(edit->text(), QStringLiteral("um"));
    EXPECT_EQ(avisos.size(), 3) << "each is told once";
}

TEST_F(TLabeledEditTextoBasFrTest, DescendantsHearKeysAndMouse)
{
    auto *ouvinte = Mostrado<TOuvinteFr>();
    ouvinte->LabeledEdit1->setFocus();
    Digitar(ouvinte->LabeledEdit1, QStringLiteral("azb"));
    EXPECT_EQ(ouvinte->teclas, QStringLiteral("azb"));
    EXPECT_EQ(ouvinte->LabeledEdit1->text(), QStringLiteral("ab"));
    QTest::mouseMove(ouvinte, QPoint(100, 45));
    QTest::mouseMove(ouvinte, QPoint(110, 46));
    EXPECT_GE(ouvinte->movimentos, 1);
}

TEST_F(TLabeledEditTextoBasFrTest, AKeyCostsMicroseconds)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("Descrição"));
    fr->AceitaVazio = false;
    edit->SetMaxLength(5000);
    edit->setFocus();
    constexpr int Mudancas = 2000;
    QElapsedTimer relogio;
    relogio.start();
    for (int i = 0; i < Mudancas; ++i)
        edit->setText(QStringLiteral("texto número %1").arg(i));
    const double comFrame = double(relogio.nsecsElapsed()) / Mudancas;
    TLabeledEdit puro;
    relogio.start();
    for (int i = 0; i < Mudancas; ++i)
        puro.setText(QStringLiteral("texto número %1").arg(i));
    const double semFrame = double(relogio.nsecsElapsed()) / Mudancas;
    RecordProperty("ns_per_change_of_the_frame", int(comFrame - semFrame));
    EXPECT_LT(comFrame - semFrame, 200'000) << "ns that the frame adds to a change of text";
}

} // namespace

#include "TLabeledEditTextoBasFr_test.moc"
