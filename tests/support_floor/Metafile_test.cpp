#include "platform/support/DispositivoWmf.h"
#include "platform/support/EImagemInvalida.h"
#include "platform/support/Metafile.h"
#include "platform/support/RegistrosWmf.h"
#include "support/Imagens.h"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QRandomGenerator>

using namespace ficha;
using namespace ficha::testes;

namespace
{

constexpr int Vermelho = 0x0000FF, Verde = 0x00FF00, Azul = 0xFF0000;
using W = TGravadorWmf;

/** A red rectangle in the upper left quarter of a window of 200 x 100. */
TGravadorWmf QuartoVermelho()
{
    TGravadorWmf w;
    w.Janela(0, 0, 200, 100);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Retangulo(0, 0, 100, 50);
    return w;
}

QColor Em(const QImage &imagem, double x, double y)
{
    return imagem.pixelColor(int(imagem.width() * x), int(imagem.height() * y));
}

int Escuros(const QImage &imagem, QRect onde)
{
    int n = 0;
    for (int y = onde.top(); y <= onde.bottom(); ++y)
        for (int x = onde.left(); x <= onde.right(); ++x)
            n += qGray(imagem.pixel(x, y)) < 128;
    return n;
}

} // namespace

TEST(TMetafile, PlaysAFileWithoutAPlaceableHeaderInItsWindow)
{
    const TMetafile m(QuartoVermelho().Arquivo());
    EXPECT_EQ(m.TamanhoNatural(), QSize(200, 100)) << "a unit counts as a pixel";
    const QImage i = m.Desenhar({80, 40});
    EXPECT_EQ(i.size(), QSize(80, 40));
    EXPECT_EQ(Em(i, .1, .1), QColor(Qt::red));
    EXPECT_EQ(Em(i, .45, .45), QColor(Qt::red));
    EXPECT_EQ(Em(i, .55, .1), QColor(Qt::white));
    EXPECT_EQ(Em(i, .1, .55), QColor(Qt::white));
}

TEST(TMetafile, APlaceableFileTellsItsSizeInInches)
{
    const TMetafile m(QuartoVermelho().Posicionavel(0, 0, 2000, 1000, 1000));
    EXPECT_EQ(m.TamanhoNatural(), QSize(192, 96)) << "2 x 1 inches at 96 dpi";
    EXPECT_EQ(Em(m.Desenhar({40, 20}), .45, .45), QColor(Qt::red))
        << "the drawing's own window fills the picture";
}

TEST(TMetafile, WithoutAWindowThePlaceableFrameIsThePicture)
{
    TGravadorWmf w;
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Azul);
    w.Retangulo(100, 50, 200, 100);
    const TMetafile m(w.Posicionavel(0, 0, 200, 100, 96));
    EXPECT_EQ(m.TamanhoNatural(), QSize(200, 100));
    const QImage i = m.Desenhar({40, 20});
    EXPECT_EQ(Em(i, .75, .75), QColor(Qt::blue));
    EXPECT_EQ(Em(i, .25, .25), QColor(Qt::white));
}

TEST(TMetafile, WithoutAnyFrameThePictureIsWhatWasDrawn)
{
    TGravadorWmf w;
    w.Por(W::SetWindowOrg, {7, 7});
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Azul);
    w.Retangulo(1000, 500, 1100, 600);
    w.Pincel(Verde);
    w.Retangulo(1100, 500, 1200, 600);
    const TMetafile m(w.Arquivo());
    EXPECT_EQ(m.TamanhoNatural(), QSize(200, 100));
    const QImage i = m.Desenhar({40, 20});
    EXPECT_EQ(Em(i, .05, .1), QColor(Qt::blue));
    EXPECT_EQ(Em(i, .45, .9), QColor(Qt::blue));
    EXPECT_EQ(Em(i, .55, .5), QColor(Qt::green));
}

TEST(TMetafile, AnAxisThatRunsUpwardsIsFollowed)
{
    TGravadorWmf w;
    w.Janela(0, 100, 200, -100);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Retangulo(0, 0, 100, 50);
    const QImage i = TMetafile(w.Arquivo()).Desenhar({80, 40});
    EXPECT_EQ(Em(i, .1, .9), QColor(Qt::red));
    EXPECT_EQ(Em(i, .1, .1), QColor(Qt::white));
}

TEST(TMetafile, PolygonsEllipsesAndPiesAreWhereTheyWereDrawn)
{
    TGravadorWmf w;
    w.Janela(0, 0, 400, 100);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Por(W::Polygon, {3, 0, 100, 50, 0, 100, 100});
    w.Por(W::Ellipse, {100, 200, 0, 100});
    // The upper quarter: from the ray to the upper right, counter-clockwise, to the upper left.
    w.Por(W::Pie, {0, 200, 0, 300, 100, 300, 0, 200});
    // Two squares, the inner one a hole.
    w.Por(W::PolyPolygon,
          {2, 4, 4, 300, 0, 400, 0, 400, 100, 300, 100, 325, 25, 375, 25, 375, 75, 325, 75});
    const QImage i = TMetafile(w.Arquivo()).Desenhar({400, 100});
    EXPECT_EQ(i.pixelColor(50, 50), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(5, 20), QColor(Qt::white));
    EXPECT_EQ(i.pixelColor(150, 50), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(105, 5), QColor(Qt::white)) << "the corner is outside the ellipse";
    EXPECT_EQ(i.pixelColor(250, 20), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(250, 80), QColor(Qt::white));
    EXPECT_EQ(i.pixelColor(310, 50), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(350, 50), QColor(Qt::white));
}

TEST(TMetafile, TextIsWrittenWithTheWesternLettersAtItsPlace)
{
    TGravadorWmf w;
    w.Janela(0, 0, 400, 100);
    w.Fonte(40, "Liberation Sans");
    w.Por(W::SetBkMode, {1});
    w.Texto(20, 10, "A\xE7\xE3o \x80");
    TGravadorWmf sem;
    sem.Janela(0, 0, 400, 100);
    const QImage i = TMetafile(w.Arquivo()).Desenhar({400, 100});
    QFont fonte(QStringLiteral("Liberation Sans"));
    fonte.setPixelSize(40);
    const int largura = int(QFontMetricsF(fonte).horizontalAdvance(QStringLiteral("Ação \u20AC")));
    EXPECT_GT(Escuros(i, QRect(20, 10, largura, 50)), 300);
    EXPECT_GT(Escuros(i, QRect(20 + largura - 18, 10, 18, 50)), 20) << "the euro sign ends it";
    EXPECT_EQ(Escuros(i, QRect(0, 0, 19, 100)), 0);
    EXPECT_EQ(Escuros(i, QRect(20 + largura + 2, 0, 400 - largura - 22, 100)), 0);
}

TEST(TMetafile, TextAlignedToTheRightEndsAtItsPoint)
{
    TGravadorWmf w;
    w.Janela(0, 0, 400, 100);
    w.Fonte(40, "Liberation Sans");
    w.Por(W::SetBkMode, {1});
    w.Por(W::SetTextAlign, {2});
    w.Texto(300, 10, "fim");
    const QImage i = TMetafile(w.Arquivo()).Desenhar({400, 100});
    EXPECT_EQ(Escuros(i, QRect(302, 0, 98, 100)), 0);
    EXPECT_GT(Escuros(i, QRect(250, 10, 50, 50)), 100);
    EXPECT_EQ(Escuros(i, QRect(0, 0, 200, 100)), 0);
}

TEST(TMetafile, BitmapsAreCopiedWholeInPartAndMirrored)
{
    TGravadorWmf w;
    w.Janela(0, 0, 300, 100);
    const auto copiar = [&](int x, int largura, QRect de) {
        w.Por(W::DIBStretchBlt,
              {0x0020, 0x00CC, de.height(), de.width(), de.y(), de.x(), 100, largura, 0, x},
              DibDeQuatroCores());
    };
    copiar(0, 100, {0, 0, 2, 2});
    copiar(100, 100, {1, 0, 1, 1});
    copiar(300, -100, {0, 0, 2, 2});
    const QImage i = TMetafile(w.Arquivo()).Desenhar({300, 100});
    EXPECT_EQ(i.pixelColor(5, 5), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(95, 5), QColor(Qt::green));
    EXPECT_EQ(i.pixelColor(5, 95), QColor(Qt::blue));
    EXPECT_EQ(i.pixelColor(95, 95), QColor(Qt::black));
    EXPECT_EQ(i.pixelColor(150, 50), QColor(Qt::green));
    EXPECT_EQ(i.pixelColor(295, 5), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(205, 95), QColor(Qt::black));
}

TEST(TMetafile, ClippingEndsWithTheStateThatHadIt)
{
    TGravadorWmf w;
    w.Janela(0, 0, 200, 100);
    w.Pena(W::SemContorno, 0, 0);
    w.Por(W::SaveDC);
    w.Por(W::IntersectClipRect, {100, 50, 0, 0});
    w.Pincel(Vermelho);
    w.Retangulo(0, 0, 200, 100);
    w.Por(W::RestoreDC, {-1});
    w.Pincel(Azul);
    w.Retangulo(150, 0, 200, 100);
    const QImage i = TMetafile(w.Arquivo()).Desenhar({200, 100});
    EXPECT_EQ(i.pixelColor(25, 50), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(100, 50), QColor(Qt::white));
    EXPECT_EQ(i.pixelColor(175, 50), QColor(Qt::blue));
}

TEST(TMetafile, AnObjectDeletedWhileSelectedStillDraws)
{
    TGravadorWmf w;
    w.Janela(0, 0, 100, 100);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Por(W::DeleteObject, {1});
    w.Por(W::CreateBrushIndirect, {0, Verde, 0, 0}); // takes the slot that became free
    w.Retangulo(0, 0, 50, 100);
    w.Por(W::SelectObject, {1});
    w.Retangulo(50, 0, 100, 100);
    const QImage i = TMetafile(w.Arquivo()).Desenhar({100, 100});
    EXPECT_EQ(i.pixelColor(25, 50), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(75, 50), QColor(Qt::green));
}

TEST(TMetafile, LinesAreSmoothAndTouchingShapesShowNoSeam)
{
    TGravadorWmf w;
    w.Janela(0, 0, 101, 101);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Por(W::Polygon, {3, 0, 0, 101, 0, 0, 101});
    w.Por(W::Polygon, {3, 101, 0, 101, 101, 0, 101});
    const QImage i = TMetafile(w.Arquivo()).Desenhar({40, 40});
    for (int k = 1; k < 39; ++k)
        ASSERT_EQ(i.pixelColor(k, 39 - k), QColor(Qt::red)) << "on the diagonal, at " << k;
    w.Pincel(Azul);
    w.Por(W::Polygon, {3, 0, 0, 101, 0, 0, 101});
    const QImage meia = TMetafile(w.Arquivo()).Desenhar({40, 40});
    int intermediarios = 0;
    for (int k = 1; k < 39; ++k)
        intermediarios += meia.pixelColor(k, 39 - k).red() > 0 && meia.pixelColor(k, 39 - k).blue();
    EXPECT_GT(intermediarios, 30);
}

TEST(TMetafile, AHugeNaturalSizeIsBroughtDownInItsProportions)
{
    TGravadorWmf w;
    w.Janela(0, 0, 32000, 8000);
    EXPECT_EQ(TMetafile(w.Arquivo()).TamanhoNatural(), QSize(4096, 1024));
    EXPECT_EQ(TMetafile(w.Posicionavel(0, 0, 32000, 1, 1)).TamanhoNatural(), QSize(4096, 1));
}

TEST(TMetafile, AnEmptyDrawingIsWhite)
{
    const QImage i = TMetafile(TGravadorWmf().Arquivo()).Desenhar({5, 5});
    EXPECT_EQ(i.pixelColor(2, 2), QColor(Qt::white));
}

TEST(TMetafile, WhatIsNoMetafileIsRefused)
{
    EXPECT_THROW(TMetafile(QByteArray("")), EImagemInvalida);
    EXPECT_THROW(TMetafile(QByteArray(17, '\1')), EImagemInvalida);
    EXPECT_THROW(TMetafile(QByteArray("\x89PNG\r\n\x1A\n and so on and so on")), EImagemInvalida);
    EXPECT_THROW(TMetafile(QByteArray(100'000, '\xFF')), EImagemInvalida);
    const QByteArray inteiro = QuartoVermelho().Arquivo();
    EXPECT_NO_THROW(TMetafile(inteiro + QByteArray(1000, '\0')));
    EXPECT_THROW(TMetafile(inteiro + QByteArray(TMetafile::MaiorArquivo, '\0')), EImagemInvalida);
}

TEST(TMetafile, AFileCutShortAnywhereIsRefused)
{
    const QByteArray inteiro = QuartoVermelho().Posicionavel(0, 0, 200, 100, 96);
    ASSERT_NO_THROW(TMetafile{inteiro});
    for (qsizetype n = 0; n < inteiro.size(); ++n)
        ASSERT_THROW(TMetafile(inteiro.first(n)), EImagemInvalida) << "cut to " << n;
}

TEST(TMetafile, RecordsShorterThanTheirKindAreRefused)
{
    for (const quint16 funcao :
         {W::SetWindowExt, W::CreatePenIndirect, W::CreateBrushIndirect, W::CreateFontIndirect,
          W::Rectangle, W::Pie, W::IntersectClipRect, W::PatBlt, W::ExtTextOut, W::LineTo}) {
        TGravadorWmf w;
        w.Por(funcao, {});
        EXPECT_THROW(TMetafile(w.Arquivo()), EImagemInvalida) << std::hex << funcao;
    }
    TGravadorWmf pontos;
    pontos.Por(W::Polygon, {30000, 1, 1});
    EXPECT_THROW(TMetafile(pontos.Arquivo()), EImagemInvalida);
    TGravadorWmf muitos;
    muitos.Por(W::PolyPolygon, {2, 3, 60000, 1, 1, 2, 2, 3, 3});
    EXPECT_THROW(TMetafile(muitos.Arquivo()), EImagemInvalida);
    TGravadorWmf letras;
    letras.Por(W::TextOut, {30000, 0x4141});
    EXPECT_THROW(TMetafile(letras.Arquivo()), EImagemInvalida);
}

TEST(TMetafile, ABitmapThatDoesNotAddUpIsLeftOut)
{
    TGravadorWmf w = QuartoVermelho();
    for (const qsizetype cabem : {0, 20, 40, 54}) {
        w.Por(W::DIBStretchBlt, {0x0020, 0x00CC, 2, 2, 0, 0, 100, 100, 0, 100},
              DibDeQuatroCores().first(cabem));
    }
    QByteArray enorme = DibDeQuatroCores();
    qToLittleEndian<qint32>(0x7FFFFFFF, enorme.data() + 4);
    qToLittleEndian<qint32>(0x7FFFFFFF, enorme.data() + 8);
    w.Por(W::DIBStretchBlt, {0x0020, 0x00CC, 2, 2, 0, 0, 100, 100, 0, 100}, enorme);
    const QImage i = TMetafile(w.Arquivo()).Desenhar({80, 40});
    EXPECT_EQ(Em(i, .1, .1), QColor(Qt::red));
    EXPECT_EQ(Em(i, .75, .5), QColor(Qt::white));
}

TEST(TMetafile, MoreRecordsThanTheLimitAreRefused)
{
    TGravadorWmf w;
    for (int n = 0; n <= TMetafile::MaisRegistros; ++n)
        w.Por(W::SetBkMode, {1});
    EXPECT_THROW(TMetafile(w.Arquivo()), EImagemInvalida);
}

TEST(TMetafile, OneRecordOfTooManyPointsIsRefused)
{
    TGravadorWmf w;
    w.Janela(0, 0, 100, 100);
    w.Por(W::PolyPolygon, {3, 30000, 30000, 30000}, QByteArray(90000 * 4, '\1'));
    EXPECT_THROW(TMetafile(w.Arquivo()), EImagemInvalida);
}

TEST(TMetafile, InAMetricPlaneYGrowsUpwards)
{
    TGravadorWmf w;
    w.Por(W::SetMapMode, {2});
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    w.Retangulo(0, 0, 100, 50);
    w.Pincel(Azul);
    w.Retangulo(0, 50, 100, 100);
    w.Por(W::DIBStretchBlt, {0x0020, 0x00CC, 2, 2, 0, 0, -40, 40, 100, 60}, DibDeQuatroCores());
    const QImage i = TMetafile(w.Arquivo()).Desenhar({100, 100});
    EXPECT_EQ(i.pixelColor(20, 80), QColor(Qt::red));
    EXPECT_EQ(i.pixelColor(20, 20), QColor(Qt::blue));
    EXPECT_EQ(i.pixelColor(62, 2), QColor(Qt::red)) << "the bitmap stands upright";
    EXPECT_EQ(i.pixelColor(97, 37), QColor(Qt::black));
}

TEST(TMetafile, MoreLinesThanAPictureHoldsAreGivenUpBeforeTheyAreDrawn)
{
    for (const int estilo : {0, 1}) {
        TGravadorWmf w;
        w.Janela(-32000, -32000, 64000 / 2, 64000 / 2);
        w.Pena(estilo, 1, Vermelho);
        QByteArray pontos;
        for (int n = 0; n < 30000; ++n) {
            W::U16(pontos, n % 2 ? 0 : -32000);
            W::U16(pontos, n % 3 ? 0 : -32000);
        }
        w.Por(W::Polygon, {30000}, pontos);
        const TMetafile m(w.Arquivo());
        QElapsedTimer relogio;
        relogio.start();
        EXPECT_THROW((void)m.Desenhar({700, 700}), EImagemInvalida);
        EXPECT_LT(relogio.elapsed(), 5000) << "drawing them takes minutes";
    }
}

TEST(TMetafile, ADrawingThatTakesLongerThanItsTimeIsGivenUp)
{
    TGravadorWmf w;
    w.Janela(0, 0, 200, 200);
    w.Pena(W::SemContorno, 0, 0);
    w.Pincel(Vermelho);
    for (int n = 0; n < 100'000; ++n)
        w.Por(W::Ellipse, {200, 200, 0, 0});
    const TRegistrosWmf lido = LerRegistrosWmf(w.Arquivo());
    QImage tela(800, 800, QImage::Format_RGB32);
    tela.fill(Qt::white);
    QElapsedTimer relogio;
    relogio.start();
    EXPECT_THROW(
        TocarWmf(MontarWmf(lido.bytes, lido.objetos, lido.origem, lido.extensao, tela.size()),
                 lido.bitmaps, tela, 4, 1),
        EImagemInvalida);
    EXPECT_GT(relogio.elapsed(), 1000) << "the drawing really takes longer than its time";
    EXPECT_LT(relogio.elapsed(), 5000);
}

TEST(TMetafile, DamagedFilesAreDrawnOrRefusedButNeverEndTheProgram)
{
    TGravadorWmf w = QuartoVermelho();
    w.Fonte(20, "Liberation Sans");
    w.Texto(10, 10, "texto");
    w.Por(W::SaveDC);
    w.Por(W::IntersectClipRect, {100, 50, 0, 0});
    w.Por(W::Ellipse, {100, 200, 0, 100});
    w.Por(W::Pie, {0, 200, 0, 300, 100, 300, 0, 200});
    w.Por(W::Polygon, {3, 0, 100, 50, 0, 100, 100});
    w.Por(W::PolyPolygon, {2, 3, 3, 0, 0, 10, 0, 10, 10, 20, 20, 30, 20, 30, 30});
    w.Por(W::DIBStretchBlt, {0x0020, 0x00CC, 2, 2, 0, 0, 100, 100, 0, 100}, DibDeQuatroCores());
    w.Por(W::RestoreDC, {-1});
    w.Por(W::PatBlt, {0x0021, 0x00F0, 10, 10, 0, 0});
    w.Por(W::DeleteObject, {0});
    const QByteArray inteiro = w.Posicionavel(0, 0, 200, 100, 96);
    QRandomGenerator acaso(20240229);
    int desenhados = 0, recusados = 0;
    for (int n = 0; n < 1500; ++n) {
        QByteArray ruim = inteiro;
        for (int k = acaso.bounded(1, 8); k > 0; --k)
            ruim[acaso.bounded(int(ruim.size()))] =
                char(acaso.bounded(3) ? acaso.bounded(256) : 0xFF);
        try {
            (void)TMetafile(ruim).Desenhar({24, 24});
            ++desenhados;
        } catch (const EImagemInvalida &) {
            ++recusados;
        }
    }
    EXPECT_GT(desenhados, 100);
    EXPECT_GT(recusados, 100);
}
