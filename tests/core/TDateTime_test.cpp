#include "platform/core/TDateTime.h"

#include <gtest/gtest.h>

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
    for (QDate d(1899, 11, 28); d < QDate(2101, 1, 1); d = d.addDays(13)) {
        const QTime hora(d.day() % 24, d.dayOfYear() % 60, d.month() * 4);
        EXPECT_EQ(TDateTime(d).TextoData(), d.toString(dia));
        EXPECT_EQ(TDateTime(QDateTime(d, hora)).Texto(),
                  QDateTime(d, hora).toString(dia + QStringLiteral(" HH:mm:ss")));
    }
    for (const QDate d : {QDate(1, 1, 1), QDate(999, 9, 9), QDate(9999, 12, 31), QDate(10000, 1, 1),
                          QDate(-5, 6, 7)}) {
        EXPECT_EQ(TDateTime(d).TextoData(), d.toString(dia));
        EXPECT_EQ(TDateTime(QDateTime(d, QTime(1, 2, 3))).Texto(),
                  d.toString(dia) + QStringLiteral(" 01:02:03"));
    }
}

TEST(TDateTime, AnImpossibleDateIsDayZero)
{
    EXPECT_EQ(TDateTime::DeData(31, 2, 2026).Dias(), 0);
    EXPECT_EQ(TDateTime(QDateTime()).Dias(), 0);
}
