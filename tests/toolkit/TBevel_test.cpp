#include "platform/toolkit/TBevel.h"

#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Where a bevel of 20 x 20 leaves marks: left, top, right, bottom, middle. */
QString Marcas(TBevel::Shape forma, TBevel::Style estilo = TBevel::bsLowered)
{
    QWidget fundo;
    fundo.resize(20, 20);
    const QColor cor(200, 200, 200);
    QPalette paleta(cor);
    paleta.setColor(QPalette::Dark, Qt::black);
    paleta.setColor(QPalette::Light, Qt::white);
    fundo.setPalette(paleta);
    TBevel bevel(&fundo);
    bevel.setGeometry(0, 0, 20, 20);
    bevel.SetShape(forma);
    bevel.SetStyle(estilo);
    const QImage foto = fundo.grab().toImage();
    const auto ponto = [&](int x, int y) {
        const QColor aqui = foto.pixelColor(x, y);
        return QChar(aqui == Qt::black ? u'p' : aqui == Qt::white ? u'b' : u'.');
    };
    return QString() + ponto(0, 10) + ponto(10, 0) + ponto(19, 10) + ponto(10, 19) + ponto(10, 10);
}

} // namespace

TEST(Bevel, PaintsItsShapeLoweredOrRaised)
{
    EXPECT_EQ(Marcas(TBevel::bsBox), QStringLiteral("ppbb."));
    EXPECT_EQ(Marcas(TBevel::bsBox, TBevel::bsRaised), QStringLiteral("bbpp."));
    EXPECT_EQ(Marcas(TBevel::bsFrame), QStringLiteral("ppbb."));
    EXPECT_EQ(Marcas(TBevel::bsTopLine), QStringLiteral(".p..."));
    EXPECT_EQ(Marcas(TBevel::bsBottomLine), QStringLiteral("...b."));
    EXPECT_EQ(Marcas(TBevel::bsLeftLine), QStringLiteral("p...."));
    EXPECT_EQ(Marcas(TBevel::bsRightLine), QStringLiteral("..b.."));
    EXPECT_EQ(Marcas(TBevel::bsSpacer), QStringLiteral("....."));
}

TEST(Bevel, ClicksGoThroughIt)
{
    TJanela janela;
    auto *bevel = new TBevel(&janela);
    bevel->setGeometry(0, 0, 100, 100);
    janela.Abrir();
    EXPECT_EQ(janela.childAt(50, 50), nullptr);
    EXPECT_EQ(bevel->focusPolicy(), Qt::NoFocus);
}
