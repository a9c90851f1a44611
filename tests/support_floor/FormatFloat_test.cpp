#include "platform/support/FormatFloat.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

using namespace ficha;

namespace
{

struct TCaso {
    const char *padrao;
    double valor;
    const char *texto;
};

void Conferir(std::initializer_list<TCaso> casos)
{
    for (const auto &caso : casos) {
        EXPECT_EQ(FormatFloat(QString::fromUtf8(caso.padrao), caso.valor),
                  QString::fromUtf8(caso.texto))
            << caso.padrao << " of " << testing::PrintToString(caso.valor);
        QString usada = QStringLiteral("o que havia antes");
        FormatFloat(QString::fromUtf8(caso.padrao), caso.valor, usada);
        EXPECT_EQ(usada, QString::fromUtf8(caso.texto));
    }
}

} // namespace

TEST(FormatFloat, WritesThePatternsOfTheScreens)
{
    Conferir({
        {"###,###,##0.00", 0, "0,00"},
        {"###,###,##0.00", 1, "1,00"},
        {"###,###,##0.00", 0.5, "0,50"},
        {"###,###,##0.00", 999.99, "999,99"},
        {"###,###,##0.00", 1000, "1.000,00"},
        {"###,###,##0.00", 1234567.891, "1.234.567,89"},
        {"###,###,##0.00", -1234.5, "-1.234,50"},
        {"########0.00", 1234567.89, "1234567,89"},
        {"########0.00", 12, "12,00"},
        {"0", 41.5, "42"},
        {"000", 7, "007"},
        {"#,##0", 1234567, "1.234.567"},
    });
}

TEST(FormatFloat, ShowsMoreDigitsThanThePatternHasPlaces)
{
    Conferir({
        {"###,###,##0.00", 1234567890123.45, "1.234.567.890.123,45"},
        {"0.00", 1234.5, "1234,50"},
        {".00", 1234.5, "1234,50"},
        {"#.0", 12.34, "12,3"},
    });
}

TEST(FormatFloat, IsExactToTheCentavoForFifteenDigits)
{
    Conferir({
        {"###,###,##0.00", 9999999999999.99, "9.999.999.999.999,99"},
        {"###,###,##0.00", -9999999999999.99, "-9.999.999.999.999,99"},
        {"###,###,##0.00", 9999999999999.98, "9.999.999.999.999,98"},
        {"###,###,##0.00", 1000000000000.01, "1.000.000.000.000,01"},
        {"0.00", 0.01, "0,01"},
        {"0.000", 123456789012.345, "123456789012,345"},
    });
    const QString padrao = QStringLiteral("0.00");
    for (qint64 centavos = 999999999999900; centavos <= 999999999999999; ++centavos) {
        const QString texto = QString::number(centavos);
        ASSERT_EQ(FormatFloat(padrao, double(centavos) / 100),
                  texto.left(texto.size() - 2) + u',' + texto.right(2));
    }
}

TEST(FormatFloat, EveryCentavoIsShownAsItIsAndItsNeighboursToo)
{
    const QString padrao = QStringLiteral("0.00");
    for (qint64 centavos = 1; centavos < 9'000'000'000'000'00; centavos = centavos * 3 / 2 + 7) {
        const QString esperado = QStringLiteral("%1,%2")
                                     .arg(centavos / 100)
                                     .arg(centavos % 100, 2, 10, QLatin1Char('0'));
        const double valor = double(centavos) / 100;
        EXPECT_EQ(FormatFloat(padrao, valor), esperado);
        EXPECT_EQ(FormatFloat(padrao, -valor), u'-' + esperado);
        if (centavos < 100'000'000'000) {
            EXPECT_EQ(FormatFloat(padrao, std::nextafter(valor, 0)), esperado);
            EXPECT_EQ(FormatFloat(padrao, std::nextafter(valor, 1e15)), esperado);
        }
    }
    EXPECT_EQ(FormatFloat(QStringLiteral("0.0"), 0.05), QStringLiteral("0,1"));
    EXPECT_EQ(FormatFloat(QStringLiteral("0.000"), 0.05), QStringLiteral("0,050"));
    EXPECT_EQ(FormatFloat(QStringLiteral("0.0000"), 0.0049), QStringLiteral("0,0049"));
}

TEST(FormatFloat, RoundsHalvesAwayFromZeroOnTheDecimalDigits)
{
    Conferir({
        {"0.00", 1.005, "1,01"},
        {"0.00", 2.675, "2,68"},
        {"0.00", 1.115, "1,12"},
        {"0.00", -1.005, "-1,01"},
        {"0.00", 0.125, "0,13"},
        {"0.00", 0.124999, "0,12"},
        {"0.00", 0.995, "1,00"},
        {"0.00", 99.995, "100,00"},
        {"#,##0", 999.5, "1.000"},
        {"0", 0.5, "1"},
        {"0", 2.5, "3"},
        {"0", 0.49, "0"},
        {"0.00", 0.1 + 0.2, "0,30"},
        {"0.00", 0.0049999, "0,00"},
        {"0.00", 0.005, "0,01"},
        {"0.00", 4.35 * 100, "435,00"},
    });
}

TEST(FormatFloat, OptionalDecimalsGoWithTheirZeros)
{
    Conferir({
        {"0.##", 5, "5"},
        {"0.##", 5.5, "5,5"},
        {"0.0#", 5, "5,0"},
        {"#", 0, ""},
        {"#.##", 0.5, ",5"},
        {"#.##", 0, ""},
        {"0.00##", 1.23456, "1,2346"},
    });
}

TEST(FormatFloat, SectionsServePositiveNegativeAndZero)
{
    Conferir({
        {"0.00;(0.00)", 12.5, "12,50"},
        {"0.00;(0.00)", -12.5, "(12,50)"},
        {"0.00;(0.00)", 0, "0,00"},
        {"#,##0.00;(#,##0.00);'-'", 0, "-"},
        {"#,##0.00;(#,##0.00);'-'", -1234, "(1.234,00)"},
        {"0.00;;zero", -3, "-3,00"},
        {"0.00;;zero", 0, "zero"},
    });
}

TEST(FormatFloat, AValueThatRoundsToZeroIsShownAsZero)
{
    Conferir({
        {"0.00", -0.001, "0,00"},
        {"0.00", -0.0, "0,00"},
        {"0.00;(0.00)", -0.004, "0,00"},
        {"0.00;(0.00);nada", -0.004, "nada"},
        {"0.00;(0.00);nada", 0.004, "nada"},
    });
}

TEST(FormatFloat, LiteralsStandForThemselves)
{
    Conferir({
        {"R$ #,##0.00", 1234.5, "R$ 1.234,50"},
        {"R$ #,##0.00", -1234.5, "-R$ 1.234,50"},
        {"0.0%", 12.34, "12,3%"},
        {"0.00 'kg; 0'", 1, "1,00 kg; 0"},
        {"0 \"d'água\"", 3, "3 d'água"},
        {"00000-000", 1045001, "01045-001"},
        {"texto", 5, "texto"},
    });
}

TEST(FormatFloat, AnEmptyPatternShowsTheNumberAsItIs)
{
    Conferir({{"", 1234.5, "1234,5"}, {"", 0, "0"}, {"", -7, "-7"}});
}

TEST(FormatFloat, ExtremeValues)
{
    Conferir({
        {"0", 9007199254740992.0, "9007199254740992"},
        {"#,##0", 1e15, "1.000.000.000.000.000"},
        {"0", 1e20, "100000000000000000000"},
        {"0.00", 1e-300, "0,00"},
        {"0.00000000000000000000", 1e-20, "0,00000000000000000001"},
        {"0", std::numeric_limits<double>::infinity(), ""},
        {"0", std::numeric_limits<double>::quiet_NaN(), ""},
    });
}

TEST(FormatFloat, ManyPatternsInTurnKeepTheirOwnMeaning)
{
    for (int volta = 0; volta < 2; ++volta) {
        for (int casas = 1; casas < 300; ++casas) {
            const QString padrao = QStringLiteral("0.0") + QString(casas, u'#');
            ASSERT_EQ(FormatFloat(padrao, 2.5), QStringLiteral("2,5"));
            ASSERT_EQ(FormatFloat(QStringLiteral("0"), 2.5), QStringLiteral("3"));
        }
    }
}
