#include "input/UApoioInput.h"
#include "input/UBarCodBasFr.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Invalido =
    QStringLiteral("Código de barras inválido. Corrija o ou deixe o campo em branco.");
const QString Bom = QStringLiteral("7891000315507");

class TBarCodBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TBarCodBasFr>();
        edit = fr->LabeledEdit1;
    }
    void MontarPreso(const QStringList &linhas)
    {
        AbrirTabela(linhas);
        Montar();
        Prender(fr, "descr", QStringLiteral("Código de barras"));
        fr->SetFocus();
    }

    TBarCodBasFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

TEST_F(TBarCodBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetValor(Bom);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TBarCodBasFr")));
    EXPECT_EQ(edit->GetMaxLength(), 13);
    EXPECT_GE(edit->width() - 8, edit->fontMetrics().horizontalAdvance(Bom));
    EXPECT_TRUE(fr->rect().contains(edit->EditLabel->geometry()));
    ASSERT_EQ(fr->Frases.Count(), 4);
    EXPECT_EQ(fr->Frases.Texto(3), QStringLiteral("Cód.Bar. inválido"));
    EXPECT_TRUE(fr->ValidarCodBar);
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_TRUE(fr->AceitaVazio);
}

TEST_F(TBarCodBasFrTest, ALetterDoesNothingAndBackspaceWorks)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("/7x:8 9-Ç.1"));
    Compor(edit, QStringLiteral("ã"));
    EXPECT_EQ(edit->text(), QStringLiteral("7891"));
    Compor(edit, QStringLiteral("0a0"));
    EXPECT_EQ(edit->text(), QStringLiteral("789100"));
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->text(), QStringLiteral("78910"));
    Teclar(edit, Qt::Key_Home);
    Teclar(edit, Qt::Key_Delete);
    EXPECT_EQ(edit->text(), QStringLiteral("8910"));
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TBarCodBasFrTest, KeysThatTypeNothingKeepTheirMeaning)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, Bom);
    Teclar(edit, Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(edit->selectedText(), Bom);
    Teclar(edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), Bom);
    Teclar(edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), QString());
    Teclar(edit, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), Bom);
    edit->setText(QStringLiteral("789"));
    Teclar(edit, Qt::Key_Backspace);
    Teclar(edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit->text(), QStringLiteral("789"));
    edit->clear();
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TBarCodBasFrTest, AnInvalidCodeIsRefusedOnLeaving)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("7891000315500"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{Invalido});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->Frases.Objeto(3), 1);
    EXPECT_EQ(edit->text(), QStringLiteral("7891000315500")) << "what was typed stays";
    Teclar(edit, Qt::Key_End);
    Teclar(edit, Qt::Key_Backspace);
    Teclar(edit, u'7');
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->Frases.Objeto(3), 0);
}

TEST_F(TBarCodBasFrTest, ACodeOfNoKnownLengthIsRefused)
{
    Montar();
    for (const char *codigo : {"1", "1234567", "123456789", "78910003155"}) {
        fr->SetValor(codigo);
        EXPECT_FALSE(fr->ValorAceitavel()) << codigo;
    }
    EXPECT_EQ(avisos, QStringList(4, Invalido));
    for (const char *codigo : {"96385074", "036000291452", "7891000315507"}) {
        fr->SetValor(codigo);
        EXPECT_TRUE(fr->ValorAceitavel()) << codigo;
    }
}

TEST_F(TBarCodBasFrTest, AnEmptyCodeIsAcceptedAndTakesThePhraseAway)
{
    Montar();
    fr->SetValor("1");
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Objeto(3), 1);
    edit->setText(QStringLiteral("  "));
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Objeto(3), 0);
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(TBarCodBasFrTest, ARequiredCodeIsAskedForBeforeItsCheckDigit)
{
    Montar();
    fr->AceitaVazio = false;
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Campo incompleto\r\nEste é um campo obrigatório\r\n (não pode ser "
                          "deixado em branco).\r\nDigite um valor ou clique em Cancelar.")});
    EXPECT_EQ(fr->Frases.Objeto(3), 0);
}

TEST_F(TBarCodBasFrTest, WithoutVerifyingAnyDigitsAreAccepted)
{
    Montar();
    fr->setProperty("ValidarCodBar", false);
    fr->SetValor("123");
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TBarCodBasFrTest, ALoadedTextThatIsNoNumberIsInvalidAndNoError)
{
    Montar();
    for (const char *texto : {"ABCDEFGH", "78910003x5507", "789-1000315507", "7891000315507x"}) {
        fr->SetValor(texto);
        EXPECT_FALSE(fr->ValorAceitavel()) << texto;
        EXPECT_EQ(fr->AsString(), QString::fromLatin1(texto)) << "it stays to be corrected";
    }
    EXPECT_EQ(avisos, QStringList(4, Invalido));
}

TEST_F(TBarCodBasFrTest, APastedCodeLosesWhatPeopleWriteBetweenItsDigits)
{
    Montar();
    fr->SetFocus();
    for (const char *texto : {"7891000315507", "789-1000-315507", "7 891000 315507",
                              " 789.1000.3155.07\r\n", "7891000\u00a0315507"}) {
        edit->clear();
        Colar(edit, QString::fromUtf8(texto));
        EXPECT_EQ(edit->text(), Bom) << texto;
    }
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList());
    edit->setText(QStringLiteral("7815507"));
    edit->setCursorPosition(2);
    Colar(edit, QStringLiteral("91-0003"));
    EXPECT_EQ(edit->text(), Bom) << "pasted where the caret stands";
    edit->setText(QStringLiteral("78xx"));
    edit->setSelection(2, 2);
    Colar(edit, QStringLiteral("91"));
    EXPECT_EQ(edit->text(), QStringLiteral("7891")) << "over the selection";
    Colar(edit, QStringLiteral("  \n"));
    EXPECT_EQ(edit->text(), QStringLiteral("7891"));
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TBarCodBasFrTest, APastedTextWithAnythingElseIsRefusedWhole)
{
    Montar();
    fr->SetFocus();
    edit->setText(QStringLiteral("7891"));
    edit->selectAll();
    Colar(edit, QStringLiteral("EAN 7891000315507"));
    EXPECT_EQ(avisos, QStringList{QStringLiteral("O texto \"EAN 7891000315507\" não é um código "
                                                 "de barras e não foi colado.")});
    EXPECT_EQ(edit->text(), QStringLiteral("7891"));
    EXPECT_EQ(edit->selectedText(), QStringLiteral("7891"));
    Colar(edit, QStringLiteral("789١"));
    EXPECT_EQ(avisos.size(), 2);
    Colar(edit, QStringLiteral("--"));
    EXPECT_EQ(avisos.size(), 3) << "no digit at all";
    EXPECT_EQ(edit->text(), QStringLiteral("7891"));
}

TEST_F(TBarCodBasFrTest, APastedCodeThatDoesNotFitIsNotCut)
{
    Montar();
    fr->SetFocus();
    Colar(edit, QStringLiteral("10012345678902"));
    EXPECT_EQ(avisos, QStringList{QStringLiteral("O texto \"10012345678902\" não cabe neste campo "
                                                 "de 13 dígitos e não foi colado.")});
    EXPECT_EQ(edit->text(), QString());
    edit->setText(Bom);
    edit->deselect();
    Colar(edit, QStringLiteral("1"));
    EXPECT_EQ(avisos.size(), 2);
    edit->SetMaxLength(14);
    edit->clear();
    Colar(edit, QStringLiteral("1 0012345 678902"));
    EXPECT_TRUE(fr->ValorAceitavel()) << "a screen that takes 14 digits says so";
    edit->SetMaxLength(0);
    edit->selectAll();
    Colar(edit, QString(40, u'7'));
    EXPECT_EQ(edit->text().size(), 40);
    EXPECT_EQ(avisos.size(), 2);
}

TEST_F(TBarCodBasFrTest, ADroppedTextPassesTheSameGate)
{
    Montar();
    fr->SetFocus();
    TEntradaTest::Soltar(edit, QStringLiteral("789-1000-315507"));
    EXPECT_EQ(edit->text(), Bom);
    edit->clear();
    TEntradaTest::Soltar(edit, QStringLiteral("produto 12"));
    Girar();
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(TBarCodBasFrTest, HostileTextsAreRefusedAndNamedInShort)
{
    Montar();
    fr->SetFocus();
    for (const QString &texto : TextosHostis())
        Colar(edit, texto);
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(avisos.size(), TextosHostis().size());
    for (const QString &aviso : avisos)
        EXPECT_LT(aviso.size(), 140) << aviso.toStdString();
}

TEST_F(TBarCodBasFrTest, ARepeatedCodeIsRefusedBeforeItsCheckDigit)
{
    MontarPreso({QStringLiteral("1, '7891000315507', 0, 0, '', ''"),
                 QStringLiteral("2, '1234', 0, 0, '', ''")});
    edit->selectAll();
    Digitar(edit, QStringLiteral("1234"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos,
              QStringList{QStringLiteral("Repetição\r\nCódigo de barras '1234' já existe no "
                                         "sistema. Escolha outro valor, ou clique em Cancelar.")});
    EXPECT_EQ(Foco(), edit);
}

TEST_F(TBarCodBasFrTest, OnlyWhatLandsStartsTheAlteration)
{
    MontarPreso({QStringLiteral("1, '7891000315507', 0, 0, '', ''")});
    Digitar(edit, QStringLiteral("abc"));
    Colar(edit, QStringLiteral("EAN 1"));
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);
    Teclar(edit, Qt::Key_End);
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    Teclar(edit, u'7');
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'7891000315507'"));
}

} // namespace
