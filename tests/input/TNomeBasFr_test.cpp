#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNomeBasFr.h"
#include "platform/toolkit/TGroupBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TNomeBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TNomeBasFr>();
        nome = fr->NomeLabeledEditTextoBasFr->LabeledEdit1;
        menor = fr->MenorEditTextoBasFr->LabeledEdit1;
    }
    void DigitarNome(const QString &texto)
    {
        nome->setFocus();
        nome->selectAll();
        Digitar(nome, texto);
        Teclar(nome, Qt::Key_Tab);
    }

    TNomeBasFr *fr = nullptr;
    TLabeledEdit *nome = nullptr;
    TLabeledEdit *menor = nullptr;
};

TEST_F(TNomeBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    nome->setText(QStringLiteral("Maria da Conceição Gonçalves"));
    menor->setText(QStringLiteral("Maria Gonçalves"));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TNomeBasFr")));
    EXPECT_FALSE(fr->NomeLabeledEditTextoBasFr->AceitaVazio);
    EXPECT_TRUE(fr->MenorEditTextoBasFr->AceitaVazio);
    for (const TLabeledEdit *edit : {nome, menor}) {
        EXPECT_TRUE(edit->font().bold());
        EXPECT_TRUE(edit->EditLabel->font().bold());
        EXPECT_EQ(edit->EditLabel->font().family(), QStringLiteral("Arial"));
        EXPECT_GE(edit->EditLabel->height(), edit->EditLabel->fontMetrics().height());
    }
    EXPECT_EQ(fr->GroupBox1->geometry(), fr->rect());
}

TEST_F(TNomeBasFrTest, LeavingTheNameWithTheShortNameEmptyCopiesIt)
{
    Montar();
    DigitarNome(QStringLiteral("  Ana Maria "));
    EXPECT_EQ(menor->text(), QStringLiteral("Ana Maria"));
    EXPECT_EQ(Foco(), menor);
    EXPECT_EQ(menor->selectedText(), QStringLiteral("Ana Maria")) << "ready to be typed over";
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TNomeBasFrTest, AClickElsewhereLeavesTheNameToo)
{
    Montar();
    nome->setFocus();
    Digitar(nome, QStringLiteral("Ana"));
    EXPECT_EQ(menor->text(), QString()) << "not while it is typed";
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(menor->text(), QStringLiteral("Ana"));
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TNomeBasFrTest, AFilledShortNameStays)
{
    Montar();
    menor->setText(QStringLiteral("Aninha"));
    DigitarNome(QStringLiteral("Ana Maria"));
    EXPECT_EQ(menor->text(), QStringLiteral("Aninha"));
    menor->setText(QStringLiteral("   "));
    DigitarNome(QStringLiteral("Ana"));
    EXPECT_EQ(menor->text(), QStringLiteral("Ana")) << "blanks are an empty short name";
    nome->setFocus();
    menor->setText(QStringLiteral("   "));
    DigitarNome(QStringLiteral("Bia"));
    EXPECT_EQ(menor->text(), QStringLiteral("Bia")) << "also those that nobody has left yet";
}

TEST_F(TNomeBasFrTest, ALongerNameIsCopiedWhole)
{
    Montar();
    menor->SetMaxLength(5);
    DigitarNome(QStringLiteral("Maria da Conceição"));
    EXPECT_EQ(menor->text(), QStringLiteral("Maria da Conceição"));
}

TEST_F(TNomeBasFrTest, WithoutAMaximumLengthNothingIsCopied)
{
    Montar();
    menor->SetMaxLength(0);
    DigitarNome(QStringLiteral("Ana"));
    EXPECT_EQ(menor->text(), QString());
    menor->SetMaxLength(1);
    DigitarNome(QStringLiteral("Ana"));
    EXPECT_EQ(menor->text(), QStringLiteral("Ana"));
}

TEST_F(TNomeBasFrTest, TheNameIsRequiredAndTheShortNameIsNot)
{
    Montar();
    nome->setFocus();
    Teclar(nome, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Campo incompleto\r\nEste é um campo obrigatório\r\n (não pode ser "
                          "deixado em branco).\r\nDigite um valor ou clique em Cancelar.")});
    EXPECT_EQ(Foco(), nome);
    EXPECT_EQ(menor->text(), QString());
    DigitarNome(QStringLiteral("Ana"));
    menor->clear();
    Teclar(menor, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TNomeBasFrTest, TheCopyIsNoEditOfTheUser)
{
    AbrirTabela({QStringLiteral("1, '', 0, 0, '', ''")});
    Montar();
    Prender(fr->NomeLabeledEditTextoBasFr, "descr", QStringLiteral("Nome"));
    Prender(fr->MenorEditTextoBasFr, "obs", QStringLiteral("Nome reduzido"));
    DigitarNome(QStringLiteral("Ana"));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(tela.pedidos, 1) << "typing the name asked, the copy did not";
    EXPECT_EQ(menor->text(), QStringLiteral("Ana"));
    tabela->AltCancel();
    tabela->First();
    EXPECT_EQ(menor->text(), QString()) << "showing the row again takes the copy back";
}

TEST_F(TNomeBasFrTest, ARecordThatIsOnlyLookedAtStaysAsItIs)
{
    AbrirTabela({QStringLiteral("1, 'Ana', 0, 0, '', ''")});
    Montar();
    Prender(fr->NomeLabeledEditTextoBasFr, "descr", QStringLiteral("Nome"));
    Prender(fr->MenorEditTextoBasFr, "obs", QStringLiteral("Nome reduzido"));
    nome->setFocus();
    Teclar(nome, Qt::Key_Tab);
    EXPECT_EQ(Foco(), menor);
    EXPECT_EQ(menor->text(), QString());
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);
}

} // namespace
