#include "platform/toolkit/TImageList.h"

#include "platform/core/Erros.h"

#include <QDir>
#include <QPainter>
#include <QSignalSpy>
#include <QSvgRenderer>

using namespace ficha;

namespace
{

int Pintados(const QPixmap &figura)
{
    const QImage imagem = figura.toImage();
    int n = 0;
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x)
            n += qAlpha(imagem.pixel(x, y)) > 0;
    return n;
}

bool SoCinzas(const QPixmap &figura)
{
    const QImage imagem = figura.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x) {
            const QRgb p = imagem.pixel(x, y);
            if (qAlpha(p) && (qAbs(qRed(p) - qGreen(p)) > 2 || qAbs(qGreen(p) - qBlue(p)) > 2))
                return false;
        }
    return true;
}

} // namespace

TEST(TImageList, IndicesMayHaveGapsAndMissingOnesAreEmpty)
{
    TImageList lista;
    EXPECT_EQ(lista.Count(), 0);
    lista.AddSvg(5, QStringLiteral("fechar"));
    EXPECT_EQ(lista.Count(), 6);
    EXPECT_TRUE(lista.Tem(5));
    for (const int indice : {-1, 0, 4, 6, 1000}) {
        EXPECT_FALSE(lista.Tem(indice));
        EXPECT_TRUE(lista.GetIcon(indice).isNull());
        EXPECT_TRUE(lista.GetPixmap(indice).isNull());
    }
    EXPECT_EQ(lista.Add(IconeSvg(QStringLiteral("info"))), 6);
    EXPECT_THROW(lista.SetIcon(-1, {}), ELayoutError);
}

TEST(TImageList, UnknownPictureIsRefusedByName)
{
    TImageList lista;
    try {
        lista.AddSvg(0, QStringLiteral("nao-ha"));
        FAIL();
    } catch (const ELayoutError &e) {
        EXPECT_TRUE(e.Mensagem().contains(QStringLiteral("nao-ha.svg")));
    }
}

TEST(TImageList, PicturesAreDrawnAtTheResolutionOfTheScreen)
{
    TImageList lista(nullptr, QSize(24, 24));
    lista.AddSvg(0, QStringLiteral("fechar"));
    const QPixmap um = lista.GetPixmap(0);
    EXPECT_EQ(um.size(), QSize(24, 24));
    const QPixmap dois = lista.GetPixmap(0, 2);
    EXPECT_EQ(dois.size(), QSize(48, 48));
    EXPECT_EQ(dois.devicePixelRatio(), 2);
    EXPECT_GT(Pintados(um), 20);
    EXPECT_GT(Pintados(dois), 2 * Pintados(um));
}

TEST(TImageList, DisabledPicturesAreGrey)
{
    TImageList lista;
    lista.AddSvg(3, QStringLiteral("fechar"));
    EXPECT_FALSE(SoCinzas(lista.GetPixmap(3)));
    EXPECT_TRUE(SoCinzas(lista.GetPixmap(3, 1, false)));
    TImageList apagada;
    apagada.AssignDisabled(lista);
    EXPECT_EQ(apagada.Count(), 4);
    EXPECT_TRUE(SoCinzas(apagada.GetPixmap(3)));
    EXPECT_GT(Pintados(apagada.GetPixmap(3)), 20);
}

TEST(TImageList, DrawsWhereItIsTold)
{
    TImageList lista;
    lista.AddSvg(0, QStringLiteral("info"));
    QPixmap tela(40, 40);
    tela.fill(Qt::transparent);
    {
        QPainter pintor(&tela);
        lista.Draw(pintor, QPoint(20, 20), 0);
        lista.Draw(pintor, QPoint(0, 0), 77);
    }
    EXPECT_EQ(Pintados(tela.copy(0, 0, 20, 20)), 0);
    EXPECT_GT(Pintados(tela.copy(20, 20, 20, 20)), 20);
}

TEST(TImageList, ChangesAreAnnounced)
{
    TImageList lista;
    QSignalSpy mudou(&lista, &TImageList::Change);
    lista.AddSvg(0, QStringLiteral("info"));
    lista.SetSize(QSize(24, 24));
    lista.SetSize(QSize(24, 24));
    lista.Clear();
    EXPECT_EQ(mudou.count(), 3);
}

TEST(TImageList, EveryPictureOfTheLibraryCanBeDrawn)
{
    const QDir pasta(QStringLiteral(":/ficha/layouts/pictures"));
    const QStringList figuras = pasta.entryList({QStringLiteral("*.svg")});
    ASSERT_GT(figuras.size(), 20);
    for (const QString &figura : figuras) {
        QSvgRenderer desenho(pasta.filePath(figura));
        EXPECT_TRUE(desenho.isValid()) << figura.toStdString();
        EXPECT_GT(Pintados(PixmapSvg(pasta.filePath(figura))), 3) << figura.toStdString();
    }
}
