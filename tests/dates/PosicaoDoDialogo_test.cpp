#include "dates/UPosicaoDoDialogo.h"

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

constexpr QSize Dialogo(475, 315);

QPoint Na(const QRect &area, int x, int y)
{
    const QPoint onde = PosicaoDoDialogo({x, y}, Dialogo, area);
    EXPECT_TRUE(area.contains(QRect(onde, Dialogo))) << onde.x() << ',' << onde.y();
    return onde;
}

} // namespace

TEST(PosicaoDoDialogo, BelowTheButtonWithItsRightSidesInLine)
{
    EXPECT_EQ(Na({0, 0, 1920, 1040}, 900, 200), QPoint(425, 200));
}

TEST(PosicaoDoDialogo, MovedInsideAtTheRightAndTheLowerEdge)
{
    const QRect area(0, 0, 1920, 1040);
    EXPECT_EQ(Na(area, 1930, 1000), QPoint(1445, 725));
    EXPECT_EQ(Na(area, 1920, 725), QPoint(1445, 725)) << "the edge itself is inside";
    EXPECT_EQ(Na(area, 1919, 726), QPoint(1444, 725));
}

TEST(PosicaoDoDialogo, NeverToNegativeCoordinatesOnAScreenThatBeginsAtZero)
{
    const QRect area(0, 0, 1920, 1040);
    EXPECT_EQ(Na(area, 179, 30), QPoint(0, 30));
    EXPECT_EQ(Na(area, 475, 30), QPoint(0, 30));
    EXPECT_EQ(Na(area, 100, -40), QPoint(0, 0)) << "a window pushed over the upper edge";
}

TEST(PosicaoDoDialogo, ADialogLargerThanTheAreaStandsAtItsUpperLeftCorner)
{
    EXPECT_EQ(PosicaoDoDialogo({300, 200}, Dialogo, {0, 0, 400, 300}), QPoint(0, 0));
    EXPECT_EQ(PosicaoDoDialogo({300, 200}, Dialogo, {-400, -300, 400, 300}), QPoint(-400, -300));
}

TEST(PosicaoDoDialogo, ATaskBarAtTheLeftOrAboveIsNotCovered)
{
    EXPECT_EQ(Na({60, 28, 1860, 1052}, 200, 10), QPoint(60, 28));
}

TEST(PosicaoDoDialogo, StaysOnASecondScreenAtTheRightOrBelow)
{
    const QRect direita(1920, 0, 1280, 1024);
    EXPECT_EQ(Na(direita, 2000, 100), QPoint(1920, 100)) << "not half on the first one";
    EXPECT_EQ(Na(direita, 3200, 1000), QPoint(2725, 709));
    EXPECT_EQ(Na({0, 1080, 1920, 1080}, 900, 2100), QPoint(425, 1845));
}

TEST(PosicaoDoDialogo, StaysOnASecondScreenAtTheLeftOrAboveWhereCoordinatesAreNegative)
{
    const QRect esquerda(-1280, 0, 1280, 1024);
    EXPECT_EQ(Na(esquerda, -500, 100), QPoint(-975, 100)) << "beside its button, not at 0";
    EXPECT_EQ(Na(esquerda, -1200, 100), QPoint(-1280, 100));
    EXPECT_EQ(Na(esquerda, -2, 100), QPoint(-477, 100));
    EXPECT_EQ(Na(esquerda, 3, 100), QPoint(-475, 100));
    const QRect acima(0, -1080, 1920, 1080);
    EXPECT_EQ(Na(acima, 900, -900), QPoint(425, -900));
    EXPECT_EQ(Na(acima, 100, -100), QPoint(0, -315));
}
