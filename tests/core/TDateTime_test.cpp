#include "platform/core/TDateTime.h"

#include <gtest/gtest.h>

#include <array>

using ficha::TDateTime;

TEST(TDateTime, DayZeroIs30December1899)
{
    EXPECT_EQ(TDateTime(0).Data(), QDate(1899, 12, 30));
    EXPECT_EQ(TDateTime::DeData(1, 1, 1980).Dias(), 29221);
}

TEST(TDateTime, KeepsMillisecondsBothWays)
{
    for (const QDateTime &momento :
         {QDateTime({2026, 11, 20}, {23, 59, 59, 999}), QDateTime({1900, 1, 1}, {0, 0, 0, 1}),
          QDateTime({1980, 1, 1}, {12, 0}), QDateTime({1890, 6, 1}, {6, 30, 15, 250})})
        EXPECT_EQ(TDateTime(momento).DataHora(), momento) << momento.toString().toStdString();
}

TEST(TDateTime, WritesTheTimeOnlyWhereThereIsOne)
{
    EXPECT_EQ(TDateTime(QDate(2026, 3, 5)).Texto(), QStringLiteral("05/03/2026"));
    EXPECT_EQ(TDateTime(QDateTime({2026, 3, 5}, {7, 8, 9})).Texto(),
              QStringLiteral("05/03/2026 07:08:09"));
}

TEST(TDateTime, TextsAreThoseOfTheCalendar)
{
    const QString dia = QStringLiteral("dd/MM/yyyy");
    const auto conferir = [&](QDate d) {
        const QTime hora(d.day() % 24, d.dayOfYear() % 60, d.month() * 4);
        const QString texto = QDateTime(d, hora).toString(dia + QStringLiteral(" HH:mm:ss"));
        EXPECT_EQ(TDateTime(d).TextoData(), d.toString(dia));
        EXPECT_EQ(TDateTime(QDateTime(d, hora)).Texto(), texto);
        std::array<char, 19> letras;
        EXPECT_EQ(TDateTime(d).EscreverTexto(letras), 10);
        EXPECT_EQ(TDateTime(QDateTime(d, hora)).EscreverTexto(letras), 19);
        EXPECT_EQ(QString::fromLatin1(letras.data(), 19), texto);
    };
    for (QDate d(1899, 11, 28); d < QDate(2101, 1, 1); d = d.addDays(13))
        conferir(d);
    // Where months and years end, leap years and those of full centuries among them.
    for (const int ano : {1,    4,    99,   100,  101,  399,  400,  401,  800,  1582, 1600, 1700,
                          1752, 1899, 1900, 1999, 2000, 2023, 2024, 2100, 2400, 4000, 9996, 9999}) {
        for (int mes = 1; mes <= 12; ++mes) {
            conferir(QDate(ano, mes, 1));
            conferir(QDate(ano, mes, QDate(ano, mes, 1).daysInMonth()));
        }
    }
    for (const QDate d : {QDate(1, 1, 1), QDate(999, 9, 9), QDate(9999, 12, 31), QDate(10000, 1, 1),
                          QDate(-5, 6, 7)}) {
        EXPECT_EQ(TDateTime(d).TextoData(), d.toString(dia));
        EXPECT_EQ(TDateTime(QDateTime(d, QTime(1, 2, 3))).Texto(),
                  d.toString(dia) + QStringLiteral(" 01:02:03"));
    }
}

TEST(TDateTime, YearsWithoutFourDigitsAreLeftToTheText)
{
    std::array<char, 19> letras;
    for (const QDate d : {QDate(10000, 1, 1), QDate(-1, 12, 31), QDate(-5, 6, 7)})
        EXPECT_EQ(TDateTime(d).EscreverTexto(letras), 0);
}

TEST(TDateTime, AnImpossibleDateIsDayZero)
{
    EXPECT_EQ(TDateTime::DeData(31, 2, 2026).Dias(), 0);
    EXPECT_EQ(TDateTime(QDateTime()).Dias(), 0);
}
