#include "input/UUpDownBRFr.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TUpDown.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TUpDownBRFrTest : public TEntradaTest
{
protected:
    void Montar() { fr = Mostrado<TUpDownBRFr>(); }
    void ClicarCima()
    {
        QTest::mouseClick(fr->UpDown1->childAt(7, 4), Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    void ClicarBaixo()
    {
        QTest::mouseClick(fr->UpDown1->childAt(7, 17), Qt::LeftButton);
        QCoreApplication::processEvents();
    }

    TUpDownBRFr *fr = nullptr;
};

TEST_F(TUpDownBRFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetValor(123456);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TUpDownBRFr")));
    EXPECT_EQ(fr->UpDown1->Associado(), fr->NumEditBR1);
}

TEST_F(TUpDownBRFrTest, TheSpinButtonTakesTheUnclampedValue)
{
    Montar();
    fr->TemMaximo = true;
    fr->Maximo = 100;
    fr->SetValor(250);
    EXPECT_EQ(fr->NumEditBR1->text(), QStringLiteral("100"));
    EXPECT_EQ(fr->UpDown1->GetPosition(), 250);
    EXPECT_EQ(fr->GetValor(), Variant(100));
    fr->SetValor(-3);
    EXPECT_EQ(fr->NumEditBR1->text(), QStringLiteral("0"));
    EXPECT_EQ(fr->UpDown1->GetPosition(), -3);
}

TEST_F(TUpDownBRFrTest, ThePositionIsANumberOf16Bits)
{
    Montar();
    fr->SetValor(100000);
    EXPECT_EQ(fr->GetValor(), Variant(100000));
    EXPECT_EQ(fr->UpDown1->GetPosition(), 32767);
    fr->SetValor(1e12);
    EXPECT_EQ(fr->UpDown1->GetPosition(), 32767);
    fr->SetValor(Null);
    EXPECT_EQ(fr->UpDown1->GetPosition(), 0);
    fr->SetValor(QString());
    EXPECT_EQ(fr->UpDown1->GetPosition(), 0);
}

TEST_F(TUpDownBRFrTest, TheArrowsStepTheNumberOfTheEdit)
{
    Montar();
    fr->SetValor(5);
    ClicarCima();
    EXPECT_EQ(fr->GetValor(), Variant(6));
    ClicarBaixo();
    ClicarBaixo();
    EXPECT_EQ(fr->GetValor(), Variant(4));
    fr->SetFocus();
    fr->NumEditBR1->selectAll();
    Digitar(fr->NumEditBR1, QStringLiteral("40"));
    Teclar(fr->NumEditBR1, Qt::Key_Up);
    EXPECT_EQ(fr->GetValor(), Variant(41)) << "from what was typed";
}

TEST_F(TUpDownBRFrTest, AStepStartsTheAlteration)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    EXPECT_EQ(tela.pedidos, 0);
    ClicarCima();
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->GetValor(), Variant(8));
}

TEST_F(TUpDownBRFrTest, AStepThatTheScreenRefusesIsTakenBack)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    tela.recusa = true;
    ClicarCima();
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(fr->GetValor(), Variant(7));
}

TEST_F(TUpDownBRFrTest, SteppingBeyondABoundIsRefusedOnLeaving)
{
    Montar();
    fr->SetValor(0);
    fr->SetFocus();
    Teclar(fr->NumEditBR1, Qt::Key_Down);
    EXPECT_EQ(fr->GetValor(), Variant(-1));
    Teclar(fr->NumEditBR1, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), fr->NumEditBR1);
}

} // namespace
