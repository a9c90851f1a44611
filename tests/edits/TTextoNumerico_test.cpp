#include "platform/edits/TTextoNumerico.h"

#include "platform/core/Variant.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ficha;

namespace
{

TFormatoNumerico Formato(int casas, const char *mascara = "###,###,##0")
{
    TFormatoNumerico formato;
    formato.Casas = casas;
    formato.LerMascara(QString::fromLatin1(mascara));
    return formato;
}

/** The number read from a text, to so many places, "nada" for no number. */
QString Lido(const QString &texto, int casas = 2)
{
    const auto decimal = LerDecimal(texto);
    if (!decimal)
        return QStringLiteral("nada");
    return FormatarEscalado(decimal->Escalado(casas).value(), Formato(casas, "0"));
}

} // namespace

TEST(LerDecimal, BrazilianNotation)
{
    EXPECT_EQ(Lido(QStringLiteral("1.234,56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("1234,56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("R$ 1.234,56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("R$\u00A01.234,56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("  12 ")), QStringLiteral("12,00"));
    EXPECT_EQ(Lido(QStringLiteral(",5")), QStringLiteral("0,50"));
    EXPECT_EQ(Lido(QStringLiteral("5,")), QStringLiteral("5,00"));
    EXPECT_EQ(Lido(QStringLiteral("1.234.567")), QStringLiteral("1234567,00"));
    EXPECT_EQ(Lido(QStringLiteral("1.234")), QStringLiteral("1234,00"));
    EXPECT_EQ(Lido(QStringLiteral("000012")), QStringLiteral("12,00"));
}

TEST(LerDecimal, PointAsDecimalSeparatorWhereItCannotGroup)
{
    EXPECT_EQ(Lido(QStringLiteral("1234.56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("0.5")), QStringLiteral("0,50"));
    EXPECT_EQ(Lido(QStringLiteral("1234.567"), 3), QStringLiteral("1234,567"));
    EXPECT_EQ(Lido(QStringLiteral("1,234.56")), QStringLiteral("1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("1,234,567")), QStringLiteral("1234567,00"));
}

TEST(LerDecimal, Signs)
{
    EXPECT_EQ(Lido(QStringLiteral("-1.234,56")), QStringLiteral("-1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("1.234,56-")), QStringLiteral("-1234,56"));
    EXPECT_EQ(Lido(QStringLiteral("R$ -5")), QStringLiteral("-5,00"));
    EXPECT_EQ(Lido(QStringLiteral("-R$ 5")), QStringLiteral("-5,00"));
    EXPECT_EQ(Lido(QStringLiteral("-0,00")), QStringLiteral("0,00"));
}

TEST(LerDecimal, NonsenseIsNoNumber)
{
    for (const char16_t *texto :
         {u"", u" ", u"-", u",", u".", u"abc", u"12a", u"1,2,3", u"1.2.3", u"1..234", u"1.23,4",
          u"--5", u"R$", u"1 234", u"5-5", u"1,23,456"})
        EXPECT_EQ(Lido(QString::fromUtf16(texto)), QStringLiteral("nada"))
            << QString::fromUtf16(texto).toStdString();
}

TEST(Decimal, RoundsHalvesAwayFromZeroByTheWrittenDigits)
{
    const auto arredondado = [](double numero, int casas) {
        return TDecimal::DeDouble(numero)->Escalado(casas).value();
    };
    EXPECT_EQ(arredondado(1.005, 2), 101);
    EXPECT_EQ(arredondado(2.675, 2), 268);
    EXPECT_EQ(arredondado(-1.005, 2), -101);
    EXPECT_EQ(arredondado(0.1 + 0.2, 2), 30);
    EXPECT_EQ(arredondado(1234.5, 0), 1235);
    EXPECT_EQ(arredondado(0.004, 2), 0);
    EXPECT_EQ(arredondado(9.999, 2), 1000);
}

TEST(Decimal, WhatHasNoRoomIsTold)
{
    EXPECT_FALSE(TDecimal::DeDouble(std::numeric_limits<double>::infinity()));
    EXPECT_FALSE(TDecimal::DeDouble(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(TDecimal::DeDouble(1e18));
    EXPECT_TRUE(LerDecimal(QString(18, u'9'))->Escalado(0).has_value());
    EXPECT_FALSE(LerDecimal(QString(18, u'9'))->Escalado(1).has_value());
    EXPECT_FALSE(LerDecimal(QString(18, u'9') + QStringLiteral(",5"))->Escalado(0).has_value());
    EXPECT_FALSE(LerDecimal(QString(40, u'9'))->Escalado(0).has_value());
}

TEST(Formatar, MasksGroupAndPad)
{
    EXPECT_EQ(FormatarEscalado(123456, Formato(2)), QStringLiteral("1.234,56"));
    EXPECT_EQ(FormatarEscalado(0, Formato(2)), QStringLiteral("0,00"));
    EXPECT_EQ(FormatarEscalado(-5, Formato(2)), QStringLiteral("-0,05"));
    EXPECT_EQ(FormatarEscalado(1234567, Formato(0)), QStringLiteral("1.234.567"));
    EXPECT_EQ(FormatarEscalado(1234567, Formato(0, "########0")), QStringLiteral("1234567"));
    EXPECT_EQ(FormatarEscalado(12, Formato(0, "000000")), QStringLiteral("000012"));
    EXPECT_EQ(FormatarEscalado(12, Formato(0, "000,000")), QStringLiteral("000.012"));
    EXPECT_EQ(FormatarEscalado(999999999999999999, Formato(2)),
              QStringLiteral("9.999.999.999.999.999,99"));
    EXPECT_EQ(FormatarEscalado(123456, Formato(2, "")), QStringLiteral("1234,56"));
}

TEST(Formatar, WhatIsWrittenIsReadBack)
{
    for (int casas = 0; casas <= 4; ++casas) {
        for (const std::int64_t n :
             {0LL, 1LL, -1LL, 99LL, 100000LL, -123456789012345LL, 999999999999999999LL}) {
            const TFormatoNumerico formato = Formato(casas);
            const QString texto = FormatarEscalado(n, formato);
            EXPECT_EQ(TTextoNumerico(texto, formato).Escalado(), n);
            EXPECT_EQ(TTextoNumerico(texto, formato).Exibir(), texto);
        }
    }
}
