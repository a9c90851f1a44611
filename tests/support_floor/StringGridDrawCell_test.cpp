#include "platform/support/StringGridDrawCell.h"

#include "platform/support/SisD.h"
#include "platform/support/TGridColsInfo.h"
#include "platform/toolkit/TStringGrid.h"

#include <QElapsedTimer>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{
const QColor Fora(255, 0, 255); // what no cell is painted with
const QRect Celula(40, 30, 120, 18);

/** Draws single cells of a small list into an image, as a screen hands them over. */
class DrawCellTest : public testing::Test
{
protected:
    DrawCellTest()
    {
        grid.SetColCount(4);
        grid.SetRowCount(12);
        grid.SetColor(TColor(13684944));
        const QStringList titulos = {"Código", "Nome", "Cadastro", "Saldo"};
        for (int c = 0; c < 4; ++c)
            grid.SetCell(c, 0, titulos[c]);
        for (int r = 1; r < 12; ++r) {
            grid.SetCell(0, r, QString::number(r));
            grid.SetCell(1, r, QStringLiteral("Ana Maria"));
            grid.SetCell(2, r, QStringLiteral("01/02/2024"));
            grid.SetCell(3, r, QStringLiteral("1.234,56"));
        }
        info.Atualizar(grid);
    }

    QImage Pintar(int col, int row, unsigned estado = gdNada, const QRect &rect = Celula)
    {
        QImage imagem(rect.right() + 60, rect.bottom() + 60, QImage::Format_RGB32);
        imagem.fill(Fora);
        QPainter p(&imagem);
        StringGridDrawCell(&grid, p, col, row, rect, estado, figura, colFigura, 2, 1, faixas,
                           colsInfo, alinhar, quebrar, corTexto, marcador);
        return imagem;
    }
    static QColor Fundo(const QImage &imagem, const QRect &rect = Celula)
    {
        return imagem.pixelColor(rect.right() - 1, rect.top() + 2);
    }
    /** Where something other than the background was painted, the cell's edges left out. */
    static QRect Tinta(const QImage &imagem, const QRect &rect = Celula)
    {
        const QColor fundo = Fundo(imagem, rect);
        QRect tinta;
        const QRect dentro = rect.adjusted(1, 1, -1, -1);
        for (int y = dentro.top(); y <= dentro.bottom(); ++y)
            for (int x = dentro.left(); x <= dentro.right(); ++x)
                if (imagem.pixelColor(x, y) != fundo)
                    tinta |= QRect(x, y, 1, 1);
        return tinta;
    }
    static bool NadaFora(const QImage &imagem, const QRect &rect = Celula)
    {
        for (int y = 0; y < imagem.height(); ++y)
            for (int x = 0; x < imagem.width(); ++x)
                if (!rect.contains(x, y) && imagem.pixelColor(x, y) != Fora)
                    return false;
        return true;
    }
    static bool Tem(const QImage &imagem, const QColor &cor)
    {
        for (int y = 0; y < imagem.height(); ++y)
            for (int x = 0; x < imagem.width(); ++x)
                if (imagem.pixelColor(x, y) == cor)
                    return true;
        return false;
    }

    TStringGrid grid;
    TGridColsInfo info;
    const TGridColsInfo *colsInfo = &info;
    const QPixmap *figura = nullptr;
    int colFigura = -1;
    bool faixas = true, alinhar = true, quebrar = false;
    TColor corTexto;
    QString marcador = QStringLiteral("%@#");
};
} // namespace

TEST_F(DrawCellTest, RowsAreBanded)
{
    EXPECT_EQ(Fundo(Pintar(1, 3)), QColor(255, 255, 255));
    EXPECT_EQ(Fundo(Pintar(1, 4)), QColor(0xDF, 0xEF, 0xF9));
    faixas = false;
    EXPECT_EQ(Fundo(Pintar(1, 3)), TColor(13684944).ParaQColor());
    EXPECT_EQ(Fundo(Pintar(1, 4)), TColor(13684944).ParaQColor());
}

TEST_F(DrawCellTest, TheRowOfTheCurrentCellIsHighlightedAndTheCellItselfDark)
{
    grid.SetCelula(1, 4);
    EXPECT_EQ(Fundo(Pintar(1, 4)), QColor(0x0A, 0x24, 0x6A));
    for (const int c : {0, 2, 3})
        EXPECT_EQ(Fundo(Pintar(c, 4)), SisD().CorControlSelec.ParaQColor()) << c;
    EXPECT_EQ(Fundo(Pintar(1, 3)), QColor(Qt::white));
    const TColor antes = SisD().CorControlSelec;
    SisD().CorControlSelec = TColor::DeRGB(1, 200, 3);
    EXPECT_EQ(Fundo(Pintar(0, 4)), QColor(1, 200, 3));
    SisD().CorControlSelec = antes;
    grid.SetRowSelect(true);
    for (int c = 0; c < 4; ++c)
        EXPECT_EQ(Fundo(Pintar(c, 4)), QColor(0x0A, 0x24, 0x6A)) << c;
}

TEST_F(DrawCellTest, TheFrameShowsOnlyWithTheFocus)
{
    grid.SetCelula(1, 4);
    EXPECT_NE(Pintar(1, 4, gdSelecionada | gdFocada), Pintar(1, 4, gdSelecionada));
    EXPECT_EQ(Tinta(Pintar(1, 4, gdSelecionada | gdFocada)), Tinta(Pintar(1, 4, gdSelecionada)));
}

TEST_F(DrawCellTest, AStretchedRangeHasItsOwnColour)
{
    grid.SetCelula(1, 4);
    EXPECT_EQ(Fundo(Pintar(1, 6, gdSelecionada)), CoresDaGrade().FaixaSelecionada.ParaQColor());
    EXPECT_EQ(Fundo(Pintar(1, 4, gdSelecionada)), QColor(0x0A, 0x24, 0x6A));
}

TEST_F(DrawCellTest, AlignsByWhatTheColumnHolds)
{
    const QRect dentro = Celula.adjusted(2, 1, -2, -1);
    const QRect texto = Tinta(Pintar(1, 3));
    EXPECT_LE(texto.left() - dentro.left(), 2);
    const QRect numero = Tinta(Pintar(3, 3));
    EXPECT_LE(dentro.right() - numero.right(), 5);
    EXPECT_GE(dentro.right() - numero.right(), 3);
    const QRect data = Tinta(Pintar(2, 3));
    EXPECT_NEAR(data.center().x(), Celula.center().x(), 2);
    alinhar = false;
    EXPECT_LE(Tinta(Pintar(3, 3)).left() - dentro.left(), 2);
    alinhar = true;
    colsInfo = nullptr;
    EXPECT_LE(Tinta(Pintar(3, 3)).left() - dentro.left(), 2);
    TGridColsInfo vazia;
    colsInfo = &vazia;
    EXPECT_LE(Tinta(Pintar(2, 3)).left() - dentro.left(), 2);
}

TEST_F(DrawCellTest, TitlesAreRaisedBoldAndAlignedLikeTheirColumn)
{
    const QImage titulo = Pintar(3, 0, gdFixa);
    EXPECT_EQ(Fundo(titulo), grid.GetFixedColor().ParaQColor());
    EXPECT_GT(titulo.pixelColor(Celula.topLeft()).lightness(),
              titulo.pixelColor(Celula.bottomRight()).lightness());
    EXPECT_LE(Celula.right() - Tinta(titulo).right(), 7);
    QFont negrito = grid.font();
    negrito.setBold(true);
    const int largura = QFontMetrics(negrito).horizontalAdvance(QStringLiteral("Saldo"));
    EXPECT_NEAR(Tinta(titulo).width(), largura, 3);
    grid.SetFixedColor(TColor::DeRGB(0x88, 0xCC, 0xFF));
    EXPECT_EQ(Fundo(Pintar(1, 0, gdFixa)), QColor(0x88, 0xCC, 0xFF));
    EXPECT_LE(Tinta(Pintar(1, 0, gdFixa)).left() - Celula.left(), 4);
}

TEST_F(DrawCellTest, ATitleThatFitsOnlyThinIsWrittenThin)
{
    const QString texto = QStringLiteral("Observações do cliente");
    grid.SetCell(1, 0, texto);
    QFont negrito = grid.font();
    negrito.setBold(true);
    const int fina = QFontMetrics(grid.font()).horizontalAdvance(texto);
    ASSERT_GT(QFontMetrics(negrito).horizontalAdvance(texto), fina + 2);
    const QRect justa(10, 10, fina + 5, 18);
    EXPECT_NEAR(Tinta(Pintar(1, 0, gdFixa, justa), justa).width(), fina, 3);
}

TEST_F(DrawCellTest, TextsStayInsideTheirCell)
{
    for (const QString &texto :
         {QString(500, u'W'), QString(500, u'Ł'), QStringLiteral("Ágil çgjpqy\r\nsegunda"),
          QString(20, u'|'), QStringLiteral("\u0301\u0301\u0301acentos")}) {
        grid.SetCell(1, 3, texto);
        for (const QRect &rect : {Celula, QRect(40, 30, 10, 18), QRect(40, 30, 120, 6),
                                  QRect(40, 30, 3, 18), QRect(40, 30, 120, 1)}) {
            for (const bool quebra : {false, true}) {
                quebrar = quebra;
                EXPECT_TRUE(NadaFora(Pintar(1, 3, gdNada, rect), rect)) << texto.toStdString();
                EXPECT_TRUE(NadaFora(Pintar(1, 3, gdFixa, rect), rect)) << texto.toStdString();
            }
        }
    }
}

TEST_F(DrawCellTest, ACutTextEndsInAnEllipsisOnlyWhenItDoesNotFit)
{
    const QString texto = QStringLiteral("Comércio de Alimentos");
    grid.SetCell(1, 3, texto);
    const int largura = QFontMetrics(grid.font()).horizontalAdvance(texto);
    const QRect cabe(10, 10, largura + 6, 18), naoCabe(10, 10, largura - 8, 18);
    EXPECT_NEAR(Tinta(Pintar(1, 3, gdNada, cabe), cabe).width(), largura, 3);
    const QRect cortado = Tinta(Pintar(1, 3, gdNada, naoCabe), naoCabe);
    EXPECT_LE(cortado.right(), naoCabe.right() - 2);
    EXPECT_GE(cortado.right(), naoCabe.right() - 16);
    // The three dots stand on the base line: the last columns have no ink above it.
    const QImage imagem = Pintar(1, 3, gdNada, naoCabe);
    for (int y = naoCabe.top() + 1; y < naoCabe.center().y(); ++y)
        EXPECT_EQ(imagem.pixelColor(cortado.right(), y), QColor(Qt::white));
}

TEST_F(DrawCellTest, WrappedTextsUseTheHeightOfTheirCell)
{
    grid.SetCell(1, 3, QStringLiteral("um texto de várias palavras que pede mais linhas"));
    const QRect alta(10, 10, 100, 60);
    const int umaLinha = Tinta(Pintar(1, 3, gdNada, alta), alta).height();
    quebrar = true;
    EXPECT_GT(Tinta(Pintar(1, 3, gdNada, alta), alta).height(), umaLinha * 2);
}

TEST_F(DrawCellTest, AMarkedCellIsEmphasisedWithoutItsMarker)
{
    grid.SetCell(1, 3, QStringLiteral("%@#Total"));
    const QImage marcada = Pintar(1, 3);
    EXPECT_EQ(Fundo(marcada), CoresDaGrade().Destaque.ParaQColor());
    QFont negrito = grid.font();
    negrito.setBold(true);
    EXPECT_NEAR(Tinta(marcada).width(),
                QFontMetrics(negrito).horizontalAdvance(QStringLiteral("Total")), 3);
    EXPECT_TRUE(NadaFora(marcada));
    // Only at the start, and only when there is a marker.
    grid.SetCell(1, 3, QStringLiteral("a%@#Total"));
    EXPECT_EQ(Fundo(Pintar(1, 3)), QColor(Qt::white));
    grid.SetCell(1, 3, QStringLiteral("%@#Total"));
    marcador.clear();
    EXPECT_EQ(Fundo(Pintar(1, 3)), QColor(Qt::white));
    marcador = QStringLiteral("**");
    grid.SetCell(1, 3, QStringLiteral("**Łódź"));
    EXPECT_EQ(Fundo(Pintar(1, 3)), CoresDaGrade().Destaque.ParaQColor());
    // Titles are written as they stand.
    grid.SetCell(1, 0, QStringLiteral("**Nome"));
    EXPECT_EQ(Fundo(Pintar(1, 0, gdFixa)), grid.GetFixedColor().ParaQColor());
}

TEST_F(DrawCellTest, ACellOfNothingButTheMarkerIsALineAcross)
{
    grid.SetCell(1, 3, QStringLiteral("%@#"));
    const QImage imagem = Pintar(1, 3);
    for (int x = Celula.left(); x <= Celula.right(); ++x)
        EXPECT_EQ(imagem.pixelColor(x, Celula.center().y()),
                  CoresDaGrade().TextoDoDestaque.ParaQColor());
    EXPECT_EQ(Tinta(imagem).height(), 1);
}

TEST_F(DrawCellTest, APictureGoesBeforeTheTextOfItsColumnOnly)
{
    QPixmap azul(10, 10);
    azul.fill(Qt::blue);
    figura = &azul;
    EXPECT_FALSE(Tem(Pintar(1, 3), Qt::blue));
    colFigura = 1;
    const QImage com = Pintar(1, 3);
    EXPECT_TRUE(Tem(com, Qt::blue));
    EXPECT_FALSE(Tem(Pintar(0, 3), Qt::blue));
    EXPECT_FALSE(Tem(Pintar(1, 0, gdFixa), Qt::blue));
    EXPECT_EQ(com.pixelColor(Celula.left() + 2, Celula.center().y()), QColor(Qt::blue));
    EXPECT_EQ(com.pixelColor(Celula.left() + 12, Celula.center().y()), QColor(Qt::white));
    figura = nullptr;
    EXPECT_GE(Tinta(com).right(), Tinta(Pintar(1, 3)).right() + 11);
}

TEST_F(DrawCellTest, TheTextColourIsTheCallersExceptOnTheDarkCell)
{
    corTexto = TColor::DeRGB(200, 0, 0);
    grid.SetCell(1, 3, QString(5, QChar(0x2588))); // solid blocks
    grid.SetCell(1, 4, QString(5, QChar(0x2588)));
    grid.SetCelula(1, 4);
    EXPECT_TRUE(Tem(Pintar(1, 3), QColor(200, 0, 0)));
    EXPECT_FALSE(Tem(Pintar(1, 4), QColor(200, 0, 0)));
    EXPECT_TRUE(Tem(Pintar(1, 4), QColor(Qt::white)));
}

TEST_F(DrawCellTest, ADisabledListIsGreyAndWithoutAHighlight)
{
    grid.SetCelula(1, 4);
    grid.SetCell(1, 4, QString(5, QChar(0x2588)));
    grid.setEnabled(false);
    EXPECT_EQ(Fundo(Pintar(1, 4, gdSelecionada)), QColor(0xDF, 0xEF, 0xF9));
    EXPECT_TRUE(Tem(Pintar(1, 4, gdSelecionada), CoresDaGrade().TextoDesabilitado.ParaQColor()));
}

TEST_F(DrawCellTest, LeavesThePainterAsItWas)
{
    QImage imagem(300, 100, QImage::Format_RGB32);
    QPainter p(&imagem);
    p.setPen(QPen(Qt::green, 3));
    p.setFont(QFont(QStringLiteral("Liberation Mono"), 20));
    const QFont fonte = p.font();
    const QPen pena = p.pen();
    grid.SetCell(1, 3, QStringLiteral("%@#x"));
    for (const unsigned estado : {gdNada, gdFixa, gdFocada})
        StringGridDrawCell(&grid, p, 1, 3, Celula, estado, nullptr, -1, 2, 1, true, &info, true,
                           false, TColor(), marcador);
    EXPECT_EQ(p.font(), fonte);
    EXPECT_EQ(p.pen(), pena);
    EXPECT_FALSE(p.hasClipping());
}

TEST_F(DrawCellTest, UsesTheGridsOwnFont)
{
    const int antes = Tinta(Pintar(1, 3)).height();
    grid.setFont(QFont(QStringLiteral("Liberation Sans"), 12));
    EXPECT_GT(Tinta(Pintar(1, 3)).height(), antes);
}

TEST_F(DrawCellTest, AScreenfulPaintsInAFewMilliseconds)
{
    grid.SetDefaultDrawing(false);
    grid.SetColCount(8);
    grid.SetRowCount(10'001);
    grid.SetDefaultRowHeight(18);
    for (int r = 1; r <= 10'000; ++r)
        for (int c = 0; c < 8; ++c)
            grid.SetCell(c, r,
                         c % 2 ? QStringLiteral("Comércio de Alimentos %1 Ltda.").arg(r)
                               : QString::number(r * 17));
    info.Atualizar(grid);
    grid.OnDrawCell = [this](QObject *, int c, int r, QPainter &p, const QRect &ret, unsigned e) {
        StringGridDrawCell(&grid, p, c, r, ret, e, nullptr, -1, 2, 1, true, &info, true, false,
                           TColor(), marcador);
    };
    grid.resize(8 * 65 + 30, 31 * 19);
    grid.grab();
    QElapsedTimer t;
    t.start();
    for (int i = 0; i < 20; ++i)
        grid.viewport()->grab();
    const double ms = double(t.nsecsElapsed()) / 2e7;
    std::printf("[ FIGURES  ] one full paint of 31 x 8 cells: %.2f ms\n", ms);
    EXPECT_LT(ms, 100);
}
