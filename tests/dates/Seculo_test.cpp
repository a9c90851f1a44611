#include "dates/USeculo.h"

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

QString Digitos(const char *texto, int seculoBase = 46, bool zeroEhCem = true)
{
    return DigitosPeloSeculo(QString::fromLatin1(texto), seculoBase, zeroEhCem);
}

} // namespace

TEST(Seculo, SixDigitsGetTheirCentury)
{
    EXPECT_EQ(Digitos("010203"), QStringLiteral("01022003"));
    EXPECT_EQ(Digitos("010246"), QStringLiteral("01022046"));
    EXPECT_EQ(Digitos("010247"), QStringLiteral("01021947"));
    EXPECT_EQ(Digitos("010200", 1900, true), QStringLiteral("01022000"));
    EXPECT_EQ(Digitos("010200", 1900, false), QStringLiteral("01021900"));
    EXPECT_EQ(Digitos("010205", 1900, false), QStringLiteral("01021905"));
    EXPECT_EQ(Digitos("010205", 100, false), QStringLiteral("01020105")) << "a base of its own";
    EXPECT_EQ(Digitos("010299", 99, false), QStringLiteral("01022099")) << "a pair of digits";
}

TEST(Seculo, EightDigitsArePaddedAndOtherLengthsStay)
{
    EXPECT_EQ(Digitos("31022024"), QStringLiteral("31022024")) << "no calendar is asked";
    EXPECT_EQ(Digitos(" 5 32024"), QStringLiteral("05032024"));
    EXPECT_EQ(Digitos("5 3 2024"), QStringLiteral("05032024"));
    EXPECT_EQ(Digitos("0102  24"), QStringLiteral("01020024"));
    EXPECT_EQ(Digitos("  032024"), QStringLiteral("00032024"));
    for (const char *texto : {"", "0102", "0102203", "01", "010220245"})
        EXPECT_EQ(Digitos(texto), QString::fromLatin1(texto));
}
