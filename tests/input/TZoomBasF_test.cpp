#include "input/UZoomBasF.h"
#include "platform/support/EImagemInvalida.h"
#include "platform/toolkit/TAction.h"
#include "support/Imagens.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QTimer>
#include <QtTest/QTest>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TZoomBasFTest : public testing::Test
{
protected:
    TZoomBasFTest() { dono->show(); }

    QString Foto(QSize tamanho)
    {
        return pasta.Gravar(QStringLiteral("foto.bmp"),
                            TPastaDeImagens::Metades(tamanho, Qt::red, Qt::blue), "bmp");
    }
    /** Shows a file; what is done closes the form or it is closed after it. */
    void Exibir(const QString &arquivo, std::function<void(TZoomBasF *)> fazer)
    {
        QTimer::singleShot(0, qApp, [this, fazer] {
            ASSERT_TRUE(QTest::qWaitForWindowActive(zoom));
            fazer(zoom);
            fechou = zoom->GetModalResult() == mrCancel;
            zoom->Close();
        });
        zoom->Exibir(arquivo);
    }
    QScrollArea *Rolagem() const
    {
        return zoom->findChild<QScrollArea *>(QStringLiteral("ScrollBox1"));
    }

    TPastaDeImagens pasta;
    std::unique_ptr<QWidget> dono = std::make_unique<QWidget>();
    TZoomBasF *zoom = Criar<TZoomBasF>(dono.get());
    bool fechou = false;
};

} // namespace

TEST_F(TZoomBasFTest, Layout)
{
    EXPECT_TRUE(ConfereLayout(zoom, QStringLiteral("TZoomBasF")));
    EXPECT_EQ(zoom->GetCaption(), QStringLiteral("Visualizar Imagem"));
    EXPECT_EQ(zoom->size(), QSize(105, 105));
}

TEST_F(TZoomBasFTest, TakesThePicturesNaturalSizeInTheMiddleOfTheScreen)
{
    Exibir(Foto({300, 201}), [this](TZoomBasF *) {
        EXPECT_TRUE(zoom->EhModal());
        EXPECT_EQ(zoom->size(), QSize(300, 201));
        EXPECT_EQ(zoom->Image1->size(), QSize(300, 201));
        EXPECT_EQ(zoom->Image1->mapTo(zoom, QPoint(0, 0)), QPoint(0, 0));
        EXPECT_FALSE(Rolagem()->horizontalScrollBar()->isVisible());
        EXPECT_FALSE(Rolagem()->verticalScrollBar()->isVisible());
        const QRect tela = zoom->screen()->geometry();
        const QSize janela = zoom->frameGeometry().size();
        EXPECT_EQ(zoom->pos() - tela.topLeft(), QPoint((tela.width() - janela.width()) / 2,
                                                       (tela.height() - janela.height()) / 2));
        EXPECT_EQ(zoom->grab().toImage().pixelColor(299, 200), QColor(Qt::blue));
    });
}

TEST_F(TZoomBasFTest, ASmallPictureLeavesTheFormAtItsDesignSize)
{
    Exibir(Foto({16, 16}), [this](TZoomBasF *) {
        EXPECT_EQ(zoom->size(), QSize(105, 105));
        EXPECT_EQ(zoom->Image1->size(), QSize(16, 16));
    });
}

TEST_F(TZoomBasFTest, APictureLargerThanTheScreenIsScrolledInAFormThatFitsOnIt)
{
    Exibir(Foto({3000, 2500}), [this](TZoomBasF *) {
        const QRect tela = zoom->screen()->availableGeometry();
        EXPECT_TRUE(tela.contains(zoom->frameGeometry()));
        EXPECT_EQ(zoom->Image1->size(), QSize(3000, 2500));
        EXPECT_TRUE(Rolagem()->horizontalScrollBar()->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        EXPECT_GT(Rolagem()->horizontalScrollBar()->value(), 0) << "by keyboard";
        const int antes = Rolagem()->verticalScrollBar()->value();
        const QPoint onde = zoom->Image1->mapFrom(Rolagem()->viewport(), QPoint(100, 100));
        QTest::mousePress(zoom->Image1, Qt::LeftButton, {}, onde);
        // The mouse moves on the screen; the picture goes along, so its own point stays.
        const QPoint tela100 = Rolagem()->viewport()->mapToGlobal(QPoint(100, 60));
        QMouseEvent move(QEvent::MouseMove, QPointF(onde), QPointF(tela100), Qt::NoButton,
                         Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(zoom->Image1, &move);
        EXPECT_EQ(Rolagem()->verticalScrollBar()->value(), antes + 40) << "by dragging";
        QMouseEvent segue(QEvent::MouseMove, QPointF(onde), QPointF(tela100 - QPoint(0, 10)),
                          Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(zoom->Image1, &segue);
        EXPECT_EQ(Rolagem()->verticalScrollBar()->value(), antes + 50) << "step by step";
        QTest::mouseRelease(zoom->Image1, Qt::LeftButton);
        Rolagem()->verticalScrollBar()->setValue(100'000);
        EXPECT_EQ(Rolagem()->verticalScrollBar()->value(), 2500 - Rolagem()->viewport()->height());
    });
}

TEST_F(TZoomBasFTest, APictureTooWideOnlyScrollsSideways)
{
    Exibir(Foto({3000, 100}), [this](TZoomBasF *) {
        EXPECT_TRUE(Rolagem()->horizontalScrollBar()->isVisible());
        EXPECT_FALSE(Rolagem()->verticalScrollBar()->isVisible());
    });
}

TEST_F(TZoomBasFTest, EscAndCtrlF4CloseIt)
{
    Exibir(Foto({300, 200}),
           [](TZoomBasF *) { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape); });
    EXPECT_TRUE(fechou);
    fechou = false;
    Exibir(Foto({300, 200}), [](TZoomBasF *) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F4, Qt::ControlModifier);
    });
    EXPECT_TRUE(fechou);
}

TEST_F(TZoomBasFTest, ADamagedFileRaisesAndShowsNothing)
{
    EXPECT_THROW(zoom->Exibir(pasta.Gravar(QStringLiteral("x.jpg"), QByteArray("nada"))),
                 EImagemInvalida);
    EXPECT_FALSE(zoom->isVisible());
    EXPECT_THROW(zoom->Exibir(pasta.Caminho(QStringLiteral("falta.jpg"))), EImagemInvalida);
    EXPECT_FALSE(zoom->isVisible());
}
