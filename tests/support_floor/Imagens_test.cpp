#include "platform/support/Imagens.h"

#include <gtest/gtest.h>

using namespace ficha;

TEST(Imagens, CopiarRectCountsBothEnds)
{
    EXPECT_EQ(CopiarRect(0, 0, 639, 479), QRect(0, 0, 640, 480));
}

TEST(Imagens, StretchRectKeepsTheProportionsAndCentres)
{
    const QRect caixa(0, 0, 176, 155);
    EXPECT_EQ(StretchRect(QRect(0, 0, 352, 155), caixa), QRect(0, 39, 176, 77));
    EXPECT_EQ(StretchRect(QRect(0, 0, 100, 310), caixa), QRect(63, 0, 50, 155));
    EXPECT_EQ(StretchRect(QRect(0, 0, 16, 16), caixa), QRect(10, 0, 155, 155)) << "small ones grow";
    EXPECT_EQ(StretchRect(caixa, caixa), caixa);
    EXPECT_EQ(StretchRect(QRect(0, 0, 10, 10), QRect(5, 7, 20, 40)), QRect(5, 17, 20, 20));
}

TEST(Imagens, StretchRectOfAThinPictureIsAtLeastAPixelWide)
{
    EXPECT_EQ(StretchRect(QRect(0, 0, 1, 5000), QRect(0, 0, 100, 100)).size(), QSize(1, 100));
    EXPECT_EQ(StretchRect(QRect(0, 0, 5000, 1), QRect(0, 0, 100, 100)).size(), QSize(100, 1));
}

TEST(Imagens, StretchRectStaysInsideTheBox)
{
    const QRect caixa(3, 4, 37, 29);
    for (int l = 1; l < 80; l += 3) {
        for (int a = 1; a < 80; a += 7)
            ASSERT_TRUE(caixa.contains(StretchRect(QRect(0, 0, l, a), caixa))) << l << "x" << a;
    }
}

TEST(Imagens, StretchRectOfNothingIsEmpty)
{
    EXPECT_TRUE(StretchRect(QRect(), QRect(0, 0, 10, 10)).isEmpty());
    EXPECT_TRUE(StretchRect(QRect(0, 0, 10, 10), QRect()).isEmpty());
}
