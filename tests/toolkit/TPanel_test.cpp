#include "platform/toolkit/TPanel.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QImage>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** The dark pixels of a picture, as the rectangle around them. */
QRect Tinta(const QImage &imagem)
{
    QRect tinta;
    for (int y = 2; y < imagem.height() - 2; ++y) {
        for (int x = 2; x < imagem.width() - 2; ++x) {
            if (qGray(imagem.pixel(x, y)) < 128)
                tinta |= QRect(x, y, 1, 1);
        }
    }
    return tinta;
}

} // namespace

TEST(Panel, CaptionIsCentred)
{
    TPanel painel;
    painel.resize(200, 40);
    painel.SetCaption(QStringLiteral("Aguarde..."));
    const QRect tinta = Tinta(painel.grab().toImage());
    ASSERT_FALSE(tinta.isEmpty());
    EXPECT_NEAR(tinta.center().x(), 100, 4);
    EXPECT_NEAR(tinta.center().y(), 20, 4);
    painel.SetAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_LT(Tinta(painel.grab().toImage()).left(), 10);
}

TEST(Panel, ColoursAreColorIntegers)
{
    TPanel painel;
    painel.resize(50, 20);
    painel.setProperty("color", 11895386);
    EXPECT_EQ(painel.grab().toImage().pixelColor(25, 10), QColor(90, 130, 181));
    EXPECT_EQ(painel.property("color").toInt(), 11895386);
    painel.setProperty("fontColor", 255);
    EXPECT_EQ(painel.GetFontColor(), TColor(255));
    EXPECT_EQ(painel.palette().color(QPalette::WindowText), QColor(255, 0, 0));
}

TEST(Panel, TakesTheColourOfItsParentUntilItHasOne)
{
    TPanel fora;
    fora.resize(50, 50);
    fora.SetColor(TColor(0x00FF0000));
    auto *dentro = new TPanel(&fora);
    dentro->resize(50, 50);
    EXPECT_EQ(fora.grab().toImage().pixelColor(25, 25), QColor(0, 0, 255));
}

TEST(Panel, BevelsAreFrames)
{
    TPanel painel;
    EXPECT_EQ(painel.frameShape(), QFrame::NoFrame);
    painel.SetBevel(TPanel::bvLowered);
    EXPECT_EQ(painel.frameShape(), QFrame::Panel);
    EXPECT_EQ(painel.frameShadow(), QFrame::Sunken);
    painel.SetBevel(TPanel::bvRaised);
    EXPECT_EQ(painel.frameShadow(), QFrame::Raised);
    painel.SetBevel(TPanel::bvNone);
    EXPECT_EQ(painel.frameShape(), QFrame::NoFrame);
    painel.setProperty("bevel", int(TPanel::bvLowered));
    EXPECT_EQ(painel.GetBevel(), TPanel::bvLowered);
}

TEST(Panel, ClickIsTold)
{
    TPanel painel;
    painel.resize(50, 20);
    int cliques = 0;
    painel.OnClick = [&](QObject *) { ++cliques; };
    QTest::mouseClick(&painel, Qt::LeftButton);
    QTest::mouseClick(&painel, Qt::RightButton);
    EXPECT_EQ(cliques, 1);
}

TEST(Panel, TrianglesOfTheSymbolFontPointTheirWayWithOrWithoutThatFont)
{
    TPanel painel;
    painel.resize(40, 40);
    painel.setFont(QFont(QStringLiteral("Webdings"), 20));
    const auto imagem = [&](const char *caption) {
        painel.SetCaption(QLatin1String(caption));
        return painel.grab().toImage();
    };
    /** How far the ink's weight lies right of and below the middle of its own rectangle. */
    const auto peso = [&](const char *caption) {
        const QImage desenho = imagem(caption);
        const QRect tinta = Tinta(desenho);
        EXPECT_GT(tinta.width() * tinta.height(), 40) << caption;
        QPoint soma;
        for (int y = tinta.top(); y <= tinta.bottom(); ++y)
            for (int x = tinta.left(); x <= tinta.right(); ++x)
                if (qGray(desenho.pixel(x, y)) < 128)
                    soma += QPoint(2 * x - tinta.left() - tinta.right(),
                                   2 * y - tinta.top() - tinta.bottom());
        return soma;
    };
    EXPECT_GT(peso("3").x(), 20) << "points left";
    EXPECT_LT(peso("4").x(), -20) << "points right";
    EXPECT_GT(peso("5").y(), 20) << "points up";
    EXPECT_LT(peso("6").y(), -20) << "points down";
    EXPECT_EQ(painel.GetCaption(), QStringLiteral("6"));
    const QImage triangulo = imagem("3");
    painel.setFont(QFont(QStringLiteral("Arial"), 20));
    EXPECT_NE(imagem("3"), triangulo) << "a digit of any other font";
}

TEST(Panel, TheHandlerMayTakeItselfOutOrDestroyThePanel)
{
    TJanela janela;
    auto *painel = new TPanel(&janela);
    painel->resize(50, 20);
    janela.Abrir();
    EXPECT_TRUE(InteiroAoSair(painel->OnClick, [&] { QTest::mouseClick(painel, Qt::LeftButton); }));
    const QPointer<TPanel> vivo(painel);
    painel->OnClick = [&](QObject *) { delete painel; };
    QTest::mouseClick(painel, Qt::LeftButton);
    EXPECT_TRUE(vivo.isNull());
}
