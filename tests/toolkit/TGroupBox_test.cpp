#include "platform/toolkit/TGroupBox.h"

#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct GroupBox : testing::Test {
    GroupBox()
    {
        caixa = new TGroupBox(&janela);
        caixa->setGeometry(10, 10, 200, 67);
        caixa->setProperty("caption", QStringLiteral("Documentação"));
        janela.Abrir();
        fundo = janela.palette().color(QPalette::Window).rgb();
    }
    bool Linha(int x, int y) const { return caixa->grab().toImage().pixel(x, y) != fundo; }

    TJanela janela;
    TGroupBox *caixa;
    QRgb fundo = 0;
};

} // namespace

TEST_F(GroupBox, TheLineRunsThroughTheMiddleOfTheTitleAndLeavesItFree)
{
    const int meio = caixa->fontMetrics().height() / 2;
    EXPECT_TRUE(Linha(190, meio));
    EXPECT_TRUE(Linha(3, meio));
    EXPECT_FALSE(Linha(6, meio)) << "a gap before the title";
    EXPECT_FALSE(Linha(190, 0)) << "nothing beside the title's upper half";
    EXPECT_TRUE(Linha(0, 40));
    EXPECT_TRUE(Linha(199, 40));
    EXPECT_TRUE(Linha(100, 66));
    for (int y = 14; y < 66; ++y)
        EXPECT_FALSE(Linha(100, y)) << "room for controls from 14 pixels on";
}

TEST_F(GroupBox, WithoutATitleTheLineIsTheEdge)
{
    caixa->SetCaption(QString());
    EXPECT_TRUE(Linha(100, 0));
    EXPECT_FALSE(Linha(100, caixa->fontMetrics().height() / 2));
}

TEST_F(GroupBox, CaptionIsTheTitleAndLayoutsKnowTheClass)
{
    EXPECT_EQ(caixa->title(), QStringLiteral("Documentação"));
    EXPECT_EQ(caixa->GetCaption(), caixa->title());
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TGroupBox")));
}
