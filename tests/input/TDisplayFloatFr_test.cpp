#include "input/UDisplayFloatFr.h"
#include "support/Layouts.h"

#include <QLabel>

#include <cmath>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDisplayFloatFrTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fr = Criar<TDisplayFloatFr>(&janela);
        janela.resize(400, 100);
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&janela));
    }
    QString Mostra(double x)
    {
        fr->SetValor(x);
        return fr->Dado1Lab->text();
    }

    QWidget janela;
    TDisplayFloatFr *fr = nullptr;
};

TEST_F(TDisplayFloatFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_EQ(fr->Valor, 0);
    EXPECT_EQ(fr->Formato, QStringLiteral("###,###,##0.00"));
    EXPECT_EQ(fr->Tit2Lab->text(), QStringLiteral("R$"));
    EXPECT_EQ(fr->Dado1Lab->pos(), QPoint(183, 17)) << "as laid out until the first SetValor";
    fr->Tit1Lab->setText(QStringLiteral("Total em aberto"));
    fr->SetValor(1234567.89);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDisplayFloatFr")));
}

TEST_F(TDisplayFloatFrTest, TheAmountHasTwoDecimalsAndGroupedThousandsRightAligned)
{
    EXPECT_EQ(Mostra(1234.5), QStringLiteral("1.234,50"));
    EXPECT_EQ(fr->Valor, 1234.5);
    EXPECT_EQ(fr->Dado1Lab->x() + fr->Dado1Lab->width(), 264);
    EXPECT_EQ(fr->GetDado1Str(), QString());
    EXPECT_EQ(Mostra(0), QStringLiteral("0,00"));
    EXPECT_EQ(Mostra(-1234.005), QStringLiteral("-1.234,01"));
    EXPECT_EQ(Mostra(999999999.99), QStringLiteral("999.999.999,99"));
    EXPECT_EQ(Mostra(NAN), QString());
}

TEST_F(TDisplayFloatFrTest, AnotherFormat)
{
    fr->setProperty("Formato", QStringLiteral("#,##0.000"));
    EXPECT_EQ(Mostra(1234.5), QStringLiteral("1.234,500"));
}

} // namespace
