#include "platform/toolkit/TSplitter.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"
#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

namespace ficha::testes
{

/** A panel at the left, the bar, and a client that takes what is left of 400 pixels. */
class TSplitterTest : public testing::Test
{
protected:
    TSplitterTest()
    {
        painel->resize(100, 300);
        barra->resize(8, 300);
        Alinhar(painel, alLeft);
        Alinhar(barra, alLeft);
        Alinhar(cliente, alClient);
        barra->OnMoved = [this](QObject *sender) {
            ++movidos;
            EXPECT_EQ(sender, barra);
            larguraAoMover = painel->width();
        };
        janela.Abrir();
    }

    void Apertar() { QTest::mousePress(barra, Qt::LeftButton, {}, QPoint(4, 150)); }
    /** The mouse goes to a place of the window; the bar goes along. */
    void Levar(int x)
    {
        QTest::mouseMove(barra, barra->mapFrom(&janela, QPoint(x, 150)));
        QCoreApplication::processEvents();
    }
    void Soltar() { QTest::mouseRelease(barra, Qt::LeftButton, {}, QPoint(4, 150)); }
    void Arrastar(int deX, int ateX)
    {
        Apertar();
        Levar((deX + ateX) / 2);
        Levar(ateX);
        Soltar();
    }

    TJanela janela;
    TPanel *painel = new TPanel(&janela);
    TSplitter *barra = new TSplitter(&janela);
    TPanel *cliente = new TPanel(&janela);
    int movidos = 0;
    int larguraAoMover = 0;
};

TEST_F(TSplitterTest, ADragWidensTheControlAtItsLeftAndTheClientGivesWay)
{
    Apertar();
    Levar(144);
    EXPECT_EQ(painel->width(), 140);
    EXPECT_EQ(barra->x(), 140);
    EXPECT_EQ(cliente->geometry().left(), 148);
    EXPECT_EQ(movidos, 0);
    Levar(174);
    Soltar();
    EXPECT_EQ(painel->width(), 170);
    EXPECT_EQ(cliente->width(), 400 - 170 - 8);
    EXPECT_EQ(movidos, 1);
    EXPECT_EQ(larguraAoMover, 170);
}

TEST_F(TSplitterTest, ADragToTheLeftNarrowsIt)
{
    Arrastar(104, 64);
    EXPECT_EQ(painel->width(), 60);
    EXPECT_EQ(movidos, 1);
}

TEST_F(TSplitterTest, BothSidesKeepTheirLeastWidth)
{
    barra->SetAutoSnap(false);
    Arrastar(104, 1);
    EXPECT_EQ(painel->width(), 30);
    Arrastar(34, 399);
    EXPECT_EQ(painel->width(), 400 - 8 - 30);
    barra->SetMinSize(-5);
    EXPECT_EQ(barra->GetMinSize(), 0);
}

TEST_F(TSplitterTest, WithAutoSnapADragBelowTheLeastWidthClosesTheControl)
{
    EXPECT_TRUE(barra->GetAutoSnap());
    Arrastar(104, 20);
    EXPECT_EQ(painel->width(), 0);
    EXPECT_EQ(movidos, 1);
}

TEST_F(TSplitterTest, ClicksOtherButtonsAndReturningDragsMoveNothing)
{
    QTest::mouseClick(barra, Qt::LeftButton);
    Apertar();
    Levar(180);
    Levar(104);
    Soltar();
    QTest::mousePress(barra, Qt::RightButton, {}, QPoint(4, 150));
    Levar(180);
    QTest::mouseRelease(barra, Qt::RightButton, {}, QPoint(4, 150));
    EXPECT_EQ(painel->width(), 100);
    EXPECT_EQ(movidos, 0);
}

TEST_F(TSplitterTest, ProgramsWidthsAnnounceNothing)
{
    painel->resize(200, painel->height());
    EXPECT_EQ(barra->x(), 200);
    EXPECT_EQ(movidos, 0);
}

TEST_F(TSplitterTest, AControlThatDiesWhileItIsDraggedIsForgotten)
{
    Apertar();
    delete painel;
    Levar(200);
    Soltar();
    EXPECT_EQ(movidos, 0);
}

TEST_F(TSplitterTest, AFailingHandlerIsReportedAndTheBarGoesOn)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&erros](std::exception_ptr) { ++erros; };
    barra->OnMoved = [](QObject *) { throw std::runtime_error("x"); };
    Arrastar(104, 124);
    Arrastar(124, 134);
    EXPECT_EQ(erros, 2);
    EXPECT_EQ(painel->width(), 130);
}

TEST_F(TSplitterTest, TheHandlerMayTakeItselfOutOrDestroyTheBar)
{
    EXPECT_TRUE(InteiroAoSair(barra->OnMoved, [this] { Arrastar(104, 124); }));
    const QPointer<TSplitter> viva(barra);
    barra->OnMoved = [this](QObject *) { delete barra; };
    Arrastar(124, 134);
    EXPECT_TRUE(viva.isNull());
}

TEST_F(TSplitterTest, BeveledShowsRaisedEdges)
{
    EXPECT_FALSE(barra->GetBeveled());
    const QImage liso = barra->grab().toImage();
    barra->SetBeveled(true);
    const QImage alto = barra->grab().toImage();
    EXPECT_NE(liso, alto);
    EXPECT_GT(alto.pixelColor(0, 50).lightness(), alto.pixelColor(7, 50).lightness());
    EXPECT_EQ(barra->cursor().shape(), Qt::SplitHCursor);
    EXPECT_EQ(barra->focusPolicy(), Qt::NoFocus);
}

} // namespace ficha::testes
