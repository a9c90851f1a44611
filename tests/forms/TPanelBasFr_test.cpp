#include "forms/UPanelBasFr.h"

#include "forms/UBotaoFr.h"
#include "forms/UBotaoHelpFr.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QFontDatabase>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QScrollBar>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Counts what the base asks of it. */
class TPesquisaFr : public TPanelBasFr
{
public:
    using TPanelBasFr::TPanelBasFr;
    void ResetFiltro() override
    {
        ++zeragens;
        barraAoZerar = ToolBar1->pos();
    }
    void Atualizar() override { ++atualizacoes; }

    int zeragens = 0;
    int atualizacoes = 0;
    QPoint barraAoZerar;
};

class TPanelBasFrTest : public testing::Test
{
protected:
    TPanelBasFrTest() : fr(Criar<TPesquisaFr>(&janela))
    {
        janela.resize(500, 360);
        fr->resize(480, 360);
    }
    void Abrir()
    {
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        Girar();
    }
    /** Where the handle's triangle points: which half of it has the wide side. */
    bool ApontaParaAEsquerda() const
    {
        const QImage imagem = fr->SplitterPanel->grab().toImage();
        int esquerda = 0, direita = 0;
        for (int y = 0; y < imagem.height(); ++y)
            for (int x = 0; x < imagem.width(); ++x)
                if (y > 30 && imagem.pixelColor(x, y).lightness() < 160)
                    ++(x < imagem.width() / 2 ? esquerda : direita);
        EXPECT_GT(esquerda + direita, 10) << "nothing drawn";
        return direita > esquerda;
    }

    QWidget janela;
    TPesquisaFr *fr;
};

} // namespace

TEST_F(TPanelBasFrTest, LayoutIsTheGoldenOne)
{
    std::unique_ptr<TPanelBasFr> puro(Criar<TPanelBasFr>(nullptr));
    puro->ExplicLabel->setText(QStringLiteral("Preencha um ou mais campos e clique em Executar. "
                                              "Campos vazios não entram na pesquisa."));
    puro->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(puro.get()));
    Girar();
    EXPECT_TRUE(ConfereLayout(puro.get(), QStringLiteral("TPanelBasFr")));
    EXPECT_EQ(puro->Panel1->width(), 308);
    EXPECT_EQ(puro->Panel1->GetColorInt(), 0xFFFFFF);
    EXPECT_EQ(puro->Label1->text(), QStringLiteral("Pesquisa"));
    EXPECT_EQ(puro->SplitterPanel->width(), 12);
    EXPECT_EQ(puro->SplitterPanel->GetColorInt(), 16118255);
    EXPECT_EQ(puro->SplitterPanel->GetCaption(), QStringLiteral("3"));
    EXPECT_EQ(puro->SplitterPanel->font().family(), QStringLiteral("Webdings"));
    EXPECT_EQ(puro->SplitterPanel->cursor().shape(), Qt::PointingHandCursor);
    EXPECT_TRUE(puro->Image1->isHidden());
    EXPECT_TRUE(puro->ExplicLabel->wordWrap());
    EXPECT_EQ(puro->ToolBar1->pos(), QPoint(128, 0));
    EXPECT_EQ(puro->ToolBar1->parentWidget(), puro->BasePanel);
    EXPECT_EQ(puro->ToolButton1->GetAction(), puro->ExecAct);
    EXPECT_EQ(puro->ExecAct->GetCaption(), QStringLiteral("Executar"));
    EXPECT_EQ(puro->ExecAct->GetActionList(), puro->PanelActionList);
    EXPECT_FALSE(puro->ToolButton1->icon().isNull());
    EXPECT_TRUE(puro->PanelImageList->Tem(0));
}

TEST_F(TPanelBasFrTest, TheFiltersAreResetOnceAfterTheBarStandsInItsPlace)
{
    EXPECT_EQ(fr->zeragens, 1);
    EXPECT_EQ(fr->barraAoZerar, QPoint(128, 0));
}

TEST_F(TPanelBasFrTest, AClickOnTheHandleFoldsThePanelAwayAndBack)
{
    Abrir();
    EXPECT_EQ(fr->SplitterPanel->x(), fr->Panel1->x() + fr->Panel1->width());
    EXPECT_EQ(fr->SplitterPanel->geometry(), QRect(468, 0, 12, 360));
    EXPECT_TRUE(ApontaParaAEsquerda());
    EXPECT_EQ(fr->SplitterPanel->accessibleName(), QStringLiteral("Fechar"));
    EXPECT_EQ(fr->SplitterPanel->toolTip(), QStringLiteral("Fechar"));
    fr->SplitterPanel->setFont(QFont(QStringLiteral("Arial")));

    QTest::mouseClick(fr->SplitterPanel, Qt::LeftButton);
    EXPECT_FALSE(fr->Panel1->isVisible());
    EXPECT_EQ(fr->SplitterPanel->GetCaption(), QStringLiteral("4"));
    EXPECT_EQ(fr->SplitterPanel->font().family(), QStringLiteral("Webdings"));
    EXPECT_TRUE(fr->Image1->isVisible());
    EXPECT_TRUE(fr->SplitterPanel->isVisible());
    EXPECT_FALSE(ApontaParaAEsquerda());
    EXPECT_EQ(fr->SplitterPanel->accessibleName(), QStringLiteral("Abrir"));
    Retratar(fr, QStringLiteral("TPanelBasFr-fechado"));

    QTest::mouseClick(fr->SplitterPanel, Qt::LeftButton);
    EXPECT_TRUE(fr->Panel1->isVisible());
    EXPECT_EQ(fr->SplitterPanel->GetCaption(), QStringLiteral("3"));
    EXPECT_FALSE(fr->Image1->isVisible());
    EXPECT_EQ(fr->SplitterPanel->x(), fr->Panel1->x() + fr->Panel1->width());
    EXPECT_EQ(fr->SplitterPanel->accessibleName(), QStringLiteral("Fechar"));
}

TEST_F(TPanelBasFrTest, AClickOnThePictureOfTheClosedHandleOpensThePanel)
{
    Abrir();
    QTest::mouseClick(fr->SplitterPanel, Qt::LeftButton);
    ASSERT_TRUE(fr->Image1->isVisible());
    QTest::mouseClick(fr->Image1, Qt::LeftButton);
    EXPECT_TRUE(fr->Panel1->isVisible());
    QTest::mouseClick(fr->SplitterPanel, Qt::RightButton);
    EXPECT_TRUE(fr->Panel1->isVisible()) << "the left button only";
}

TEST_F(TPanelBasFrTest, APanelFoldedBeforeItIsShownOpensAtTheFirstClick)
{
    fr->Panel1->hide();
    Abrir();
    QTest::mouseClick(fr->SplitterPanel, Qt::LeftButton);
    EXPECT_TRUE(fr->Panel1->isVisible());
    EXPECT_EQ(fr->SplitterPanel->GetCaption(), QStringLiteral("3"));
}

TEST_F(TPanelBasFrTest, InputsThatNeedMoreRoomScroll)
{
    auto *edit = new QLineEdit(fr->ScrollBox1Corpo);
    edit->setGeometry(8, 600, 200, 21);
    Abrir();
    EXPECT_GE(fr->ScrollBox1Corpo->height(), 621);
    EXPECT_TRUE(fr->ScrollBox1->verticalScrollBar()->isVisible());
    EXPECT_FALSE(fr->ScrollBox1->horizontalScrollBar()->isVisible());
}

TEST_F(TPanelBasFrTest, ExecutarIsTheDescendantsAndRefreshesTheFrameAtIdleTime)
{
    Abrir();
    EXPECT_GT(fr->atualizacoes, 0);
    QTest::mouseClick(fr->ToolButton1, Qt::LeftButton);
    int vezes = 0;
    fr->ExecAct->OnExecute = [&](QObject *) { ++vezes; };
    QTest::mouseClick(fr->ToolButton1, Qt::LeftButton);
    EXPECT_EQ(vezes, 1);
}

TEST_F(TPanelBasFrTest, TheFrameMayBeDestroyedByItsOwnAction)
{
    Abrir();
    fr->ExecAct->OnExecute = [&](QObject *) { delete fr; };
    QTest::mouseClick(fr->ToolButton1, Qt::LeftButton);
    Girar();
    EXPECT_TRUE(janela.findChildren<TPanelBasFr *>().isEmpty());
}

TEST_F(TPanelBasFrTest, TheActionListMayGoBeforeItsFrame)
{
    Abrir();
    delete fr->PanelActionList;
    QTest::mouseClick(fr->ToolButton1, Qt::LeftButton);
    QTest::mouseClick(fr->SplitterPanel, Qt::LeftButton);
    Girar();
    EXPECT_FALSE(fr->Panel1->isVisible());
}

namespace
{

class TBotaoFrTest : public testing::Test
{
protected:
    template <typename T>
    T *Mostrado()
    {
        T *fr = Criar<T>(&janela);
        janela.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&janela));
        return fr;
    }

    QWidget janela;
};

} // namespace

TEST_F(TBotaoFrTest, LayoutsAreTheGoldenOnes)
{
    auto *botao = Mostrado<TBotaoFr>();
    EXPECT_TRUE(ConfereLayout(botao, QStringLiteral("TBotaoFr")));
    EXPECT_EQ(botao->Image1->size(), QSize(187, 107));
    EXPECT_FALSE(botao->Image1->pixmap().isNull());
    auto *ajuda = Mostrado<TBotaoHelpFr>();
    EXPECT_TRUE(ConfereLayout(ajuda, QStringLiteral("TBotaoHelpFr")));
    EXPECT_EQ(ajuda->Image1->size(), QSize(15, 18));
    EXPECT_EQ(ajuda->size(), QSize(15, 18));
}

TEST_F(TBotaoFrTest, ThePictureIsTransparent)
{
    auto *botao = Mostrado<TBotaoFr>();
    janela.setStyleSheet(QStringLiteral("QWidget { background: rgb(1, 200, 3); }"));
    EXPECT_EQ(botao->grab().toImage().pixelColor(0, 0), QColor(1, 200, 3));
}

TEST_F(TBotaoFrTest, TheLabelFollowsItsPicture)
{
    auto *botao = Mostrado<TBotaoFr>();
    QPixmap outra(40, 30);
    outra.fill(Qt::red);
    botao->Image1->setPixmap(outra);
    Girar();
    EXPECT_EQ(botao->Image1->size(), QSize(40, 30));
}

TEST_F(TBotaoFrTest, APictureThatWasPutInBeforeTheFrameIsShownIsFollowedToo)
{
    auto *botao = Criar<TBotaoFr>(&janela);
    QPixmap outra(20, 20);
    outra.fill(Qt::red);
    botao->Image1->setPixmap(outra);
    janela.show();
    Girar();
    EXPECT_EQ(botao->Image1->size(), QSize(20, 20));
}

TEST_F(TBotaoFrTest, ALeftClickOnThePictureIsAnnouncedOnce)
{
    auto *botao = Mostrado<TBotaoFr>();
    botao->resize(300, 200);
    QTest::mouseClick(botao->Image1, Qt::LeftButton); // nobody listens
    int vezes = 0;
    botao->OnClick = [&](QObject *sender) {
        EXPECT_EQ(sender, botao);
        ++vezes;
    };
    QTest::mouseClick(botao->Image1, Qt::LeftButton);
    EXPECT_EQ(vezes, 1);
    QTest::mouseClick(botao->Image1, Qt::RightButton);
    QTest::mouseClick(botao, Qt::LeftButton, {}, QPoint(250, 150));
    EXPECT_EQ(vezes, 1);
    botao->OnClick = [&](QObject *) { delete botao; };
    QTest::mouseClick(botao->Image1, Qt::LeftButton);
    EXPECT_TRUE(janela.findChildren<TBotaoFr *>().isEmpty());
}
