#include "platform/core/Erros.h"
#include "platform/core/Variant.h"

#include <gtest/gtest.h>

using namespace ficha;

TEST(Variant, StartsUnassignedAndEqualsOnlyItsLike)
{
    EXPECT_TRUE(Variant().EhNaoAtribuido());
    EXPECT_EQ(Variant(), Variant());
    EXPECT_NE(Variant(), Null);
    EXPECT_EQ(Variant(Null), Null);
    EXPECT_NE(Null, Variant(0));
    EXPECT_NE(Null, Variant(""));
    EXPECT_NE(Variant(), Variant(""));
}

TEST(Variant, NumbersAndNumericTextsCompareAsNumbers)
{
    EXPECT_EQ(Variant(5), Variant("5"));
    EXPECT_EQ(Variant(5), Variant(" 5,0 "));
    EXPECT_EQ(Variant(2.5), Variant("2,5"));
    EXPECT_NE(Variant(25), Variant("2.5"));
    EXPECT_LT(Variant("9"), Variant(10));
    EXPECT_GT(Variant("9"), Variant("10")) << "two texts compare as texts";
    EXPECT_EQ(Variant(TDateTime(29221)), Variant(29221));
}

TEST(Variant, ATextThatIsNoNumberIsNeverEqualToOneAndHasNoOrderWithIt)
{
    EXPECT_NE(Variant("abc"), Variant(0));
    EXPECT_NE(Variant(""), Variant(0));
    EXPECT_THROW((void)(Variant("abc") < Variant(1)), EVariantError);
    EXPECT_THROW((void)(Null < Variant(1)), EVariantError);
}

TEST(Variant, NullAndUnassignedConvertToNothing)
{
    for (const Variant &v : {Variant(), Variant(Null)}) {
        EXPECT_EQ(v.AsString(), QString());
        EXPECT_EQ(v.AsInteger(), 0);
        EXPECT_EQ(v.AsFloat(), 0);
        EXPECT_EQ(v.AsDateTime().Dias(), 0);
    }
}

TEST(Variant, RefusesWhatCannotBeConverted)
{
    EXPECT_THROW((void)Variant("doze").AsInteger(), EVariantError);
    EXPECT_THROW((void)Variant("1.5").AsFloat(), EVariantError);
    EXPECT_THROW((void)Variant("").AsFloat(), EVariantError);
    EXPECT_THROW((void)Variant(3e9).AsInteger(), EVariantError);
    EXPECT_THROW((void)Variant("31/02/2026").AsDateTime(), EVariantError);
}

TEST(Variant, DoublesKeepEveryCentavo)
{
    EXPECT_EQ(Variant(0.1 + 0.2).AsString(), QStringLiteral("0,3"));
    EXPECT_EQ(Variant(9999999999999.99).AsString(), QStringLiteral("9999999999999,99"));
    EXPECT_EQ(Variant(-1234.5).AsString(), QStringLiteral("-1234,5"));
    EXPECT_EQ(Variant(1e15).AsString(), QStringLiteral("1000000000000000"));
    EXPECT_EQ(Variant(0.01).AsString(), QStringLiteral("0,01"));
    EXPECT_EQ(Variant(-0.0).AsString(), QStringLiteral("0"));
    for (const double v : {0.01, 0.29, 1.005, 123456.78, 9999999999999.99, -0.07})
        EXPECT_EQ(Variant(Variant(v).AsString()).AsFloat(), v);
}

TEST(Variant, RoundsToTheNearestInteger)
{
    EXPECT_EQ(Variant(2.5).AsInteger(), 2);
    EXPECT_EQ(Variant(3.5).AsInteger(), 4);
    EXPECT_EQ(Variant("-7").AsInteger(), -7);
}

TEST(Variant, ReadsDates)
{
    EXPECT_EQ(Variant("20/11/2026").AsDateTime(), TDateTime::DeData(20, 11, 2026));
    EXPECT_EQ(Variant(" 20/11/2026 08:30 ").AsDateTime(),
              TDateTime(QDateTime({2026, 11, 20}, {8, 30})));
    EXPECT_EQ(Variant(TDateTime::DeData(5, 1, 2026)).AsString(), QStringLiteral("05/01/2026"));
}
