#include "platform/support/TGridColsInfo.h"

#include "platform/toolkit/TStringGrid.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{
/** One column filled with texts below its title. */
void Encher(TStringGrid &grid, int col, const QStringList &textos)
{
    if (grid.GetRowCount() <= textos.size())
        grid.SetRowCount(int(textos.size()) + 1);
    grid.SetCell(col, 0, QStringLiteral("Título"));
    for (int r = 0; r < textos.size(); ++r)
        grid.SetCell(col, r + 1, textos[r]);
}
TConteudoCol ConteudoDe(const QStringList &textos)
{
    TStringGrid grid;
    Encher(grid, 0, textos);
    return TGridColsInfo(grid).Conteudo(0);
}
} // namespace

TEST(TGridColsInfo, TellsNumbers)
{
    for (const char *texto : {"0",
                              "7",
                              "-7",
                              "+7",
                              "1234",
                              "1.234",
                              "1.234.567",
                              "1.234,56",
                              "1234,5",
                              "1234.56",
                              "0,10",
                              "-0,5",
                              "R$ 10,00",
                              "R$1.000,00",
                              "-1.234,56",
                              "R$ -5,00",
                              "5%",
                              "5,25 %",
                              " 12",
                              "12  ",
                              "1234567890",
                              "12345678901,50",
                              "999.999.999.999,99"})
        EXPECT_TRUE(TGridColsInfo::EhNumero(QString::fromLatin1(texto))) << texto;
    for (const char *texto : {"",
                              " ",
                              "-",
                              "R$",
                              "%",
                              ",5",
                              "5,",
                              "1.23",
                              "1.2345,00",
                              "0012",
                              "01310-100",
                              "12345678901",
                              "7891234567895",
                              "123.456.789-09",
                              "12/34",
                              "1,2,3",
                              "1.234.56",
                              "12a",
                              "a12",
                              "(11) 3456-7890",
                              "1 2",
                              "--1",
                              "1.234.567.8"}) {
        // A point with two decimals is how a plain double is written.
        const bool decimal = QLatin1StringView(texto) == QLatin1StringView("1.23");
        EXPECT_EQ(TGridColsInfo::EhNumero(QString::fromLatin1(texto)), decimal) << texto;
    }
    EXPECT_FALSE(TGridColsInfo::EhNumero(QStringLiteral("12 €")));
    EXPECT_FALSE(TGridColsInfo::EhNumero(QString(5000, u'1')));
}

TEST(TGridColsInfo, TellsDatesAndTimes)
{
    for (const char *texto :
         {"01/02/2024", "31/12/1899", "1/2/2024", "01/02/24", "01/02/2024 10:30",
          "01/02/2024 10:30:59", "23:59", "7:05", "00:00:00"})
        EXPECT_TRUE(TGridColsInfo::EhData(QString::fromLatin1(texto))) << texto;
    for (const char *texto : {"", "32/01/2024", "01/13/2024", "00/01/2024", "01/02", "01/02/202",
                              "01/02/20245", "01/02/2024x", "01/02/2024 ", "24:00", "10:60", "10",
                              "10:", "2024-02-01", "01/02/2024 25:00", "   "}) {
        // Trailing spaces are those of a fixed-width column.
        const bool comEspaco = QLatin1StringView(texto) == QLatin1StringView("01/02/2024 ");
        EXPECT_EQ(TGridColsInfo::EhData(QString::fromLatin1(texto)), comEspaco) << texto;
    }
}

TEST(TGridColsInfo, AlignsEachColumnByAllItsTexts)
{
    TStringGrid grid;
    Encher(grid, 0, {"1", "2", "", "300"});
    Encher(grid, 1, {"01/02/2024", "", "15/12/2023", ""});
    Encher(grid, 2, {"1", "dois", "3", "4"});
    Encher(grid, 3, {"", "", "", ""});
    Encher(grid, 4, {"1", "01/02/2024", "3", "4"});
    const TGridColsInfo info(grid);
    EXPECT_EQ(info.Count(), 5);
    EXPECT_EQ(info.Alinhamento(0), Qt::AlignRight);
    EXPECT_EQ(info.Alinhamento(1), Qt::AlignHCenter);
    EXPECT_EQ(info.Alinhamento(2), Qt::AlignLeft);
    EXPECT_EQ(info.Alinhamento(3), Qt::AlignLeft);
    EXPECT_EQ(info.Alinhamento(4), Qt::AlignLeft);
    EXPECT_TRUE(info.Numerica(0));
    EXPECT_FALSE(info.Numerica(1));
}

TEST(TGridColsInfo, CodesAreTexts)
{
    EXPECT_EQ(ConteudoDe({"00001", "00002"}), TConteudoCol::Texto);
    EXPECT_EQ(ConteudoDe({"7891234567895", "7891234567901"}), TConteudoCol::Texto);
    EXPECT_EQ(ConteudoDe({"01310-100", "04538-133"}), TConteudoCol::Texto);
    EXPECT_EQ(ConteudoDe({"123.456.789-09"}), TConteudoCol::Texto);
}

TEST(TGridColsInfo, MarkedCellsDoNotCount)
{
    EXPECT_EQ(ConteudoDe({"1", "%@#", "%@#Total", "3"}), TConteudoCol::Numero);
    EXPECT_EQ(ConteudoDe({"%@#", "%@#Total"}), TConteudoCol::Texto);
}

TEST(TGridColsInfo, KeepsWidthsUntilItLooksAgain)
{
    TStringGrid grid;
    grid.SetColWidth(1, 77);
    grid.SetColWidth(2, 0);
    TGridColsInfo info(grid);
    EXPECT_EQ(info.Largura(1), 77);
    EXPECT_EQ(info.Largura(2), 0);
    grid.SetColWidth(1, 99);
    grid.SetColCount(7);
    Encher(grid, 6, {"1"});
    EXPECT_EQ(info.Largura(1), 77);
    EXPECT_EQ(info.Count(), 5);
    info.Atualizar(grid);
    EXPECT_EQ(info.Largura(1), 99);
    EXPECT_EQ(info.Conteudo(6), TConteudoCol::Numero);
    grid.SetColCount(1);
    info.Atualizar(grid);
    EXPECT_EQ(info.Count(), 1);
    EXPECT_EQ(info.Conteudo(6), TConteudoCol::Texto);
}

TEST(TGridColsInfo, OfNoGridAnswersForAnyColumn)
{
    TGridColsInfo info;
    EXPECT_EQ(info.Count(), 0);
    EXPECT_EQ(info.Largura(3), 0);
    EXPECT_EQ(info.Alinhamento(3), Qt::AlignLeft);
    EXPECT_EQ(info.Alinhamento(-1), Qt::AlignLeft);
    info.SetConteudo(3, TConteudoCol::Data);
    EXPECT_EQ(info.Conteudo(3), TConteudoCol::Texto);
}

TEST(TGridColsInfo, AScreenMayStateWhatAColumnHolds)
{
    TStringGrid grid;
    TGridColsInfo info(grid);
    info.SetConteudo(2, TConteudoCol::Numero);
    EXPECT_EQ(info.Alinhamento(2), Qt::AlignRight);
    info.Atualizar(grid);
    EXPECT_EQ(info.Alinhamento(2), Qt::AlignLeft);
}

TEST(TGridColsInfo, ATextBeyondTheFirstScreensIsSeenInTheSample)
{
    TStringGrid grid;
    grid.SetRowCount(10'001);
    for (int r = 1; r <= 10'000; ++r)
        grid.SetCell(0, r, r <= 1000 ? QString::number(r) : QStringLiteral("texto %1").arg(r));
    EXPECT_EQ(TGridColsInfo(grid).Conteudo(0), TConteudoCol::Texto);
    grid.SetRowCount(65);
    EXPECT_EQ(TGridColsInfo(grid).Conteudo(0), TConteudoCol::Numero);
    grid.SetCell(0, 64, QStringLiteral("x"));
    EXPECT_EQ(TGridColsInfo(grid).Conteudo(0), TConteudoCol::Texto);
    // One row more than the first part of the sample.
    grid.SetCell(0, 64, QStringLiteral("64"));
    grid.SetRowCount(66);
    grid.SetCell(0, 65, QStringLiteral("x"));
    EXPECT_EQ(TGridColsInfo(grid).Conteudo(0), TConteudoCol::Texto);
}

TEST(TGridColsInfo, CostsTheSameForAnyList)
{
    TStringGrid grid;
    grid.SetColCount(10);
    grid.SetRowCount(200'001);
    for (int r = 1; r <= 200'000; ++r)
        for (int c = 0; c < 10; ++c)
            grid.SetCell(c, r, QStringLiteral("1.234,56"));
    QElapsedTimer t;
    t.start();
    for (int i = 0; i < 100; ++i)
        EXPECT_TRUE(TGridColsInfo(grid).Numerica(9));
    const double ms = double(t.nsecsElapsed()) / 1e8;
    std::printf("[ FIGURES  ] column information of 200,000 x 10 cells: %.3f ms\n", ms);
    EXPECT_LT(ms, 20);
}
