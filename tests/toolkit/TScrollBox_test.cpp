#include "platform/toolkit/TScrollBox.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"
#include "support/Girar.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QLineEdit>
#include <QWheelEvent>

namespace ficha::testes
{

/** A page with five edits, 60 pixels apart, in a panel 200 pixels high with a border of 2. */
class TScrollBoxTest : public testing::Test
{
protected:
    TScrollBoxTest()
    {
        painel->setFrameStyle(int(QFrame::Box) | int(QFrame::Raised));
        painel->setGeometry(10, 10, 150, 204);
        for (int i = 0; i < 5; ++i) {
            auto *edit = new QLineEdit(pagina);
            edit->setGeometry(10, 10 + 60 * i, 100, 21);
            edits << edit;
        }
        janela.Abrir();
        Girar();
    }
    void Rodar(int entalhes)
    {
        const QPointF ponto(50, 50);
        QWheelEvent roda(ponto, pagina->mapToGlobal(ponto), {}, QPoint(0, entalhes * 120),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(pagina, &roda);
        rolou = roda.isAccepted();
    }
    bool SeVe(const QWidget *w) const
    {
        const QRect r(w->mapTo(painel, QPoint()), w->size());
        return painel->contentsRect().contains(r);
    }

    TJanela janela;
    TPanel *painel = new TPanel(&janela);
    TScrollBox *pagina = new TScrollBox(painel);
    QList<QLineEdit *> edits;
    bool rolou = false;
};

TEST_F(TScrollBoxTest, FillsItsContainerInsideItsBorderAndGrowsWithWhatItHolds)
{
    EXPECT_EQ(pagina->pos(), QPoint(2, 2));
    EXPECT_EQ(pagina->width(), 146);
    EXPECT_EQ(pagina->height(), 10 + 240 + 21);
    edits[4]->hide();
    Girar();
    EXPECT_EQ(pagina->height(), 211);
    edits[3]->move(10, 20);
    Girar();
    EXPECT_EQ(pagina->height(), 200);
    painel->resize(180, 304);
    EXPECT_EQ(pagina->size(), QSize(176, 300));
}

TEST_F(TScrollBoxTest, TheWheelMovesThePageAsFarAsThereIsSomethingToSee)
{
    Rodar(-1);
    EXPECT_EQ(pagina->GetPosition(), 48);
    EXPECT_TRUE(rolou);
    Rodar(-1);
    EXPECT_EQ(pagina->GetPosition(), 71);
    Rodar(-1);
    EXPECT_EQ(pagina->GetPosition(), 71);
    EXPECT_FALSE(rolou);
    Rodar(5);
    EXPECT_EQ(pagina->GetPosition(), 0);
}

TEST_F(TScrollBoxTest, TabBringsTheInputWithTheFocusIntoView)
{
    edits[0]->setFocus();
    for (int i = 1; i < 5; ++i) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        ASSERT_EQ(QApplication::focusWidget(), edits[i]);
        EXPECT_TRUE(SeVe(edits[i])) << i;
    }
    EXPECT_GT(pagina->GetPosition(), 0);
    edits[0]->setFocus();
    EXPECT_TRUE(SeVe(edits[0]));
}

TEST_F(TScrollBoxTest, APageThatFitsAgainIsShownWhole)
{
    pagina->SetPosition(71);
    painel->resize(150, 304);
    EXPECT_EQ(pagina->GetPosition(), 0);
    EXPECT_EQ(pagina->y(), 2);
}

TEST_F(TScrollBoxTest, ABackgroundPictureIsNoReasonToGrow)
{
    auto *fundo = new QLabel(pagina);
    fundo->setAttribute(Qt::WA_TransparentForMouseEvents);
    fundo->setGeometry(0, 0, 100, 900);
    fundo->show();
    Girar();
    EXPECT_EQ(pagina->height(), 271);
}

TEST_F(TScrollBoxTest, ControlsThatStickToItsTopStackUpAndScroll)
{
    qDeleteAll(edits);
    for (int i = 0; i < 3; ++i) {
        auto *faixa = new TPanel(pagina);
        faixa->resize(50, 90);
        Alinhar(faixa, alTop);
        faixa->show();
    }
    Girar();
    EXPECT_EQ(pagina->height(), 270);
    pagina->SetPosition(70);
    EXPECT_EQ(pagina->y(), 2 - 70);
    EXPECT_EQ(pagina->findChildren<TPanel *>().at(2)->geometry(), QRect(0, 180, 146, 90));
}

} // namespace ficha::testes
