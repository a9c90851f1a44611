#include "platform/support/Datas.h"

#include "platform/core/Relogio.h"

#include <gtest/gtest.h>

#include <array>

using namespace ficha;

namespace
{

TDateTime Dia(int dia, int mes, int ano)
{
    return TDateTime::DeData(dia, mes, ano);
}

TDateTime Momento(int dia, int mes, int ano, int hora, int minuto, int segundo = 0, int ms = 0)
{
    return TDateTime(QDateTime(QDate(ano, mes, dia), QTime(hora, minuto, segundo, ms)));
}

/** A clock that stands where the test puts it. */
class Datas : public testing::Test
{
protected:
    void SetUp() override
    {
        SetRelogio([this] { return agora; });
    }
    void TearDown() override { SetRelogio({}); }

    TDateTime agora = Momento(20, 11, 2026, 9, 15);
};

constexpr double DecimoDeSegundo = 1.0 / 864000;

} // namespace

TEST_F(Datas, PassouTempoThrottlesToOncePerInterval)
{
    EXPECT_FALSE(PassouTempo(TDateTime(), DecimoDeSegundo)) << "the first time acts at once";
    const TDateTime desde = agora;
    EXPECT_TRUE(PassouTempo(desde, DecimoDeSegundo)) << "the same moment";
    agora = Momento(20, 11, 2026, 9, 15, 0, 99);
    EXPECT_TRUE(PassouTempo(desde, DecimoDeSegundo));
    agora = Momento(20, 11, 2026, 9, 15, 0, 100);
    EXPECT_FALSE(PassouTempo(desde, DecimoDeSegundo)) << "the interval is over";
    agora = Momento(21, 11, 2026, 9, 15);
    EXPECT_FALSE(PassouTempo(desde, DecimoDeSegundo));
}

TEST_F(Datas, PassouTempoIsNotStoppedByAClockThatWasPutBack)
{
    EXPECT_FALSE(PassouTempo(Momento(20, 11, 2026, 9, 15, 1), DecimoDeSegundo));
}

TEST_F(Datas, WholeDaysAndMonths)
{
    EXPECT_EQ(DataInteira(Momento(10, 3, 2024, 23, 59, 59, 999)), Dia(10, 3, 2024));
    EXPECT_EQ(PrimeiroDateMes(Momento(29, 2, 2024, 8, 0)), Dia(1, 2, 2024));
    EXPECT_EQ(UltimoDateMes(Dia(1, 2, 2024)), Dia(29, 2, 2024));
    EXPECT_EQ(UltimoDateMes(Dia(1, 2, 2100)), Dia(28, 2, 2100));
    EXPECT_EQ(UltimoDateMes(Momento(31, 12, 2026, 12, 0)), Dia(31, 12, 2026));
}

TEST_F(Datas, MesAntStepsToTheSameDayOrTheLastOfAShorterMonth)
{
    EXPECT_EQ(MesAnt(Dia(1, 4, 2024)), Dia(1, 3, 2024));
    EXPECT_EQ(MesAnt(Dia(31, 3, 2024)), Dia(29, 2, 2024));
    EXPECT_EQ(MesAnt(Dia(31, 3, 2023)), Dia(28, 2, 2023));
    EXPECT_EQ(MesAnt(Dia(31, 5, 2023)), Dia(30, 4, 2023));
    EXPECT_EQ(MesAnt(Dia(15, 1, 2024)), Dia(15, 12, 2023));
    EXPECT_EQ(MesAnt(Momento(15, 6, 2024, 14, 30)), Momento(15, 5, 2024, 14, 30));
    EXPECT_EQ(IncMonth(Dia(31, 12, 2023), 2), Dia(29, 2, 2024));
    EXPECT_EQ(IncMonth(Dia(31, 12, 2023), -13), Dia(30, 11, 2022));
}

TEST_F(Datas, YearsBetweenCountsAnAge)
{
    EXPECT_EQ(YearsBetween(agora, Dia(20, 11, 2000)), 26) << "on the birthday";
    EXPECT_EQ(YearsBetween(agora, Dia(21, 11, 2000)), 25);
    EXPECT_EQ(YearsBetween(Dia(20, 11, 2000), agora), 26) << "either order";
    EXPECT_EQ(YearsBetween(Dia(29, 2, 2004), Dia(28, 2, 2022)), 17);
    EXPECT_EQ(YearsBetween(Dia(29, 2, 2004), Dia(1, 3, 2022)), 18);
    EXPECT_EQ(YearsBetween(agora, agora), 0);
}

TEST_F(Datas, FormatDateTimeWritesPortugueseNames)
{
    const TDateTime m = Momento(5, 3, 2024, 7, 8, 9, 45);
    const struct {
        const char *formato;
        const char *texto;
    } casos[] = {
        {"dd/mm/yyyy", "05/03/2024"},
        {"d/m/yy", "5/3/24"},
        {"ddd", "ter"},
        {"dddd", "terça-feira"},
        {"dddd, d 'de' mmmm 'de' yyyy", "terça-feira, 5 de março de 2024"},
        {"mmm/yyyy", "mar/2024"},
        {"DD/MM/YYYY", "05/03/2024"},
        {"hh:nn:ss", "07:08:09"},
        {"h:n:s", "7:8:9"},
        {"hh:mm", "07:08"},
        {"ss.zzz", "09.045"},
        {"\"dia\" dd", "dia 05"},
        {"dd 'aberto", "05 aberto"},
        {"", ""},
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(FormatDateTime(QString::fromUtf8(caso.formato), m), QString::fromUtf8(caso.texto))
            << caso.formato;
    }
    EXPECT_EQ(FormatDateTime(QStringLiteral("ddd"), Dia(9, 3, 2024)), QStringLiteral("sáb"));
    EXPECT_EQ(FormatDateTime(QStringLiteral("dddd"), Dia(10, 3, 2024)), QStringLiteral("domingo"));
    EXPECT_EQ(FormatDateTime(QStringLiteral("mmmm"), Dia(31, 12, 2024)),
              QStringLiteral("dezembro"));
}

TEST_F(Datas, TwoDigitYearsFollowTheBase)
{
    EXPECT_EQ(SeculoBasePadrao(), 46) << "during 2026";
    const struct {
        int aa, base, comCem, semCem;
    } casos[] = {
        {3, 46, 2003, 2003},   {99, 46, 1999, 1999},   {46, 46, 2046, 2046},
        {47, 46, 1947, 1947},  {0, 46, 2000, 2000},    {0, 1900, 2000, 1900},
        {5, 1900, 1905, 1905}, {99, 2000, 2099, 2099}, {0, 2000, 2100, 2000},
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(AnoPeloSeculo(caso.aa, caso.base, true), caso.comCem) << caso.aa;
        EXPECT_EQ(AnoPeloSeculo(caso.aa, caso.base, false), caso.semCem) << caso.aa;
    }
}

TEST_F(Datas, StrLimpaToDateReadsBareDigits)
{
    const struct {
        const char *texto;
        TDateTime data;
        bool valida;
    } casos[] = {
        {"01022003", Dia(1, 2, 2003), true},
        {"29022024", Dia(29, 2, 2024), true},
        {"31122099", Dia(31, 12, 2099), true},
        {"010203", Dia(1, 2, 2003), true},
        {"010299", Dia(1, 2, 1999), true},
        {"010246", Dia(1, 2, 2046), true},
        {"010247", Dia(1, 2, 1947), true},
        {"010203  ", Dia(1, 2, 2003), true},
        {"01011980", SemData, true},
        {"", SemData, false},
        {"        ", SemData, false},
        {"31022024", SemData, false},
        {"29022023", SemData, false},
        {"00012024", SemData, false},
        {"01132024", SemData, false},
        {"01010000", SemData, false},
        {"0102", SemData, false},
        {"0102003", SemData, false},
        {"010220031", SemData, false},
        {" 1022003", SemData, false},
        {"01 22003", SemData, false},
        {"01/02/03", SemData, false},
        {"-1022003", SemData, false},
    };
    for (const auto &caso : casos) {
        const QString texto = QString::fromUtf8(caso.texto);
        EXPECT_EQ(StrLimpaToDate(texto).Dias(), caso.data.Dias()) << caso.texto;
        EXPECT_EQ(StrLimpaIsValidDate(texto), caso.valida) << caso.texto;
    }
}

TEST_F(Datas, DateToStrLimpaIsReadBackAsTheSameDay)
{
    EXPECT_EQ(DateToStrLimpa(Momento(1, 2, 2003, 10, 0)), QStringLiteral("01022003"));
    EXPECT_EQ(DateToStrLimpa(SemData), QStringLiteral("01011980"));
    for (int dias = -20000; dias < 80000; dias += 37) {
        const TDateTime data{double(dias)};
        ASSERT_EQ(StrLimpaToDate(DateToStrLimpa(data)).Dias(), data.Dias());
    }
}

TEST_F(Datas, PreencherMaskEditStrLimpaWritesTheDigits)
{
    struct {
        QString texto;
        void SetText(const QString &t) { texto = t; }
    } edit;
    PreencherMaskEditStrLimpa(Dia(9, 8, 2026), &edit);
    EXPECT_EQ(edit.texto, QStringLiteral("09082026"));
}

TEST_F(Datas, ARangeSurvivesItsConfigurationText)
{
    EXPECT_EQ(DatesToStrConfig(Dia(1, 2, 2024), Dia(31, 12, 2026)),
              QStringLiteral("01022024;31122026"));
    EXPECT_EQ(DatesToStrConfig(SemData, SemData), QStringLiteral(";"));
    const std::array ends = {SemData, Dia(1, 1, 1980), Dia(29, 2, 2024), Dia(31, 12, 1899)};
    for (const TDateTime de : ends) {
        for (const TDateTime ate : ends) {
            TDateTime inicio;
            TDateTime fim;
            StrConfigToDates(DatesToStrConfig(de, ate), inicio, fim);
            EXPECT_EQ(inicio.Dias(), de.Dias());
            EXPECT_EQ(fim.Dias(), ate.Dias());
        }
    }
}

TEST_F(Datas, ADamagedConfigurationTextLeavesOpenEnds)
{
    for (const char *texto : {"", ";", "x", "31022024;99999999", "01/02/2024;1"}) {
        TDateTime inicio;
        TDateTime fim;
        StrConfigToDates(QString::fromUtf8(texto), inicio, fim);
        EXPECT_EQ(inicio.Dias(), SemData.Dias()) << texto;
        EXPECT_EQ(fim.Dias(), SemData.Dias()) << texto;
    }
}

TEST_F(Datas, SqlLiterals)
{
    const TDateTime m = Momento(5, 3, 2024, 17, 8, 9, 45);
    EXPECT_EQ(DataSQL(m), QStringLiteral("'2024-03-05'"));
    EXPECT_EQ(DataSQLFirebird(m), QStringLiteral("'05.03.2024'"));
    EXPECT_EQ(DataHoraSQLFirebird(m), QStringLiteral("'05.03.2024 17:08:09.045'"));
    EXPECT_EQ(DataSQL(TDateTime()), QStringLiteral("'1899-12-30'"));
}
