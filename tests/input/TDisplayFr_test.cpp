#include "input/UDisplayFr.h"
#include "platform/core/Servicos.h"
#include "platform/toolkit/TPanel.h"
#include "support/Layouts.h"

#include <QLabel>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TPreparadoFr : public TDisplayFr
{
    Q_OBJECT
public:
    using TDisplayFr::TDisplayFr;
    void Preparar() override
    {
        TDisplayFr::Preparar();
        ++preparos;
    }
    int preparos = 0;
};

class TDisplayFrTest : public testing::Test
{
protected:
    void SetUp() override
    {
        fr = Criar<TDisplayFr>(&janela);
        janela.resize(400, 100);
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&janela));
    }
    int Direita() const { return fr->Dado1Lab->x() + fr->Dado1Lab->width(); }
    QColor Pixel(int x, int y) const { return fr->grab().toImage().pixelColor(x, y); }

    QWidget janela;
    TDisplayFr *fr = nullptr;
};

TEST_F(TDisplayFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_EQ(fr->Dado1Lab->pos(), QPoint(183, 17));
    EXPECT_EQ(fr->Tit2Lab->pos(), QPoint(3, 19));
    EXPECT_EQ(fr->Tit1Lab->pos(), QPoint(3, 1));
    EXPECT_EQ(fr->Panel1->GetCaption(), QStringLiteral(" "));
    EXPECT_EQ(fr->Panel1->GetBevel(), TPanel::bvLowered);
    fr->Tit1Lab->setText(QStringLiteral("Total do período"));
    fr->Tit2Lab->setText(QStringLiteral("Qtde."));
    fr->SetDado1Str(QStringLiteral("1.234"));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDisplayFr")));
}

TEST_F(TDisplayFrTest, ColoursAndFontsAreTheStatedOnes)
{
    EXPECT_EQ(fr->GetColor(), TColor(11895386));
    EXPECT_EQ(fr->GetColor(), TColor::DeRGB(90, 130, 181));
    EXPECT_EQ(Pixel(130, 18), QColor(90, 130, 181)) << "the panel shows the frame's colour";
    const auto confere = [](const QLabel *rotulo, int pixels, bool negrito) {
        EXPECT_EQ(rotulo->palette().color(QPalette::WindowText), QColor(Qt::white));
        EXPECT_EQ(rotulo->fontInfo().pixelSize(), pixels);
        EXPECT_EQ(rotulo->font().bold(), negrito);
    };
    confere(fr->Dado1Lab, 16, true);
    confere(fr->Tit2Lab, 13, true);
    confere(fr->Tit1Lab, 11, false);
}

TEST_F(TDisplayFrTest, AnotherColourReachesThePanel)
{
    fr->SetColor(TColor::DeRGB(10, 100, 20));
    EXPECT_EQ(fr->GetColor(), TColor::DeRGB(10, 100, 20));
    EXPECT_EQ(Pixel(130, 18), QColor(10, 100, 20));
    EXPECT_EQ(fr->property("color").toInt(), fr->GetColorInt());
}

TEST_F(TDisplayFrTest, TheValueEndsOnePixelFromTheRightEdge)
{
    for (const char *texto : {"1", "1.234.567,89", "um valor que não cabe na largura do quadro"}) {
        fr->SetDado1Str(QString::fromUtf8(texto));
        EXPECT_EQ(fr->Dado1Lab->text(), QString::fromUtf8(texto));
        EXPECT_EQ(Direita(), 265 - 1);
        EXPECT_EQ(fr->Dado1Lab->y(), 17);
    }
}

TEST_F(TDisplayFrTest, TheValueStaysAtTheEdgeWhenTheFrameIsResized)
{
    fr->SetDado1Str(QStringLiteral("1.234,50"));
    fr->resize(380, 37);
    QCoreApplication::processEvents();
    EXPECT_EQ(Direita(), 379);
    fr->resize(120, 50);
    QCoreApplication::processEvents();
    EXPECT_EQ(Direita(), 119);
    EXPECT_EQ(fr->Panel1->geometry(), QRect(0, 0, 120, 50));
    EXPECT_EQ(fr->Tit2Lab->y(), 19 + 13) << "anchored at the bottom";
}

TEST_F(TDisplayFrTest, ReadingDado1StrGivesAnEmptyText)
{
    EXPECT_TRUE(fr->setProperty("Dado1Str", QStringLiteral("99")));
    EXPECT_EQ(fr->Dado1Lab->text(), QStringLiteral("99"));
    EXPECT_EQ(fr->GetDado1Str(), QString());
    EXPECT_EQ(fr->property("Dado1Str").toString(), QString());
}

TEST_F(TDisplayFrTest, PrepararRunsOnceAndTextIsNeverMarkup)
{
    auto *preparado = Criar<TPreparadoFr>(&janela);
    EXPECT_EQ(preparado->preparos, 1);
    fr->SetDado1Str(QStringLiteral("<b>1</b>"));
    EXPECT_EQ(fr->Dado1Lab->textFormat(), Qt::PlainText);
}

} // namespace

#include "TDisplayFr_test.moc"
