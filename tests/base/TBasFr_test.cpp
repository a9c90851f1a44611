#include "base/UBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/toolkit/TPanel.h"

#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

using namespace ficha;

namespace
{

class TContaFr : public TBasFr
{
    Q_OBJECT
public:
    using TBasFr::TBasFr;
    void Create(QWidget *owner) override
    {
        TBasFr::Create(owner);
        painelNoCorpo = AguardePanel != nullptr;
        preparadosNoCorpo = preparados;
    }
    void Preparar() override
    {
        ++preparados;
        painelNoPreparar = AguardePanel != nullptr;
    }
    void Atualizar() override { ++atualizados; }
    void keyPressEvent(QKeyEvent *evento) override { teclas << evento->key(); }
    void keyReleaseEvent(QKeyEvent *evento) override { soltas << evento->key(); }

    int preparados = 0;
    int preparadosNoCorpo = 0;
    bool painelNoCorpo = false;
    bool painelNoPreparar = false;
    int atualizados = 0;
    QList<int> teclas;
    QList<int> soltas;
};

class TBasFrTest : public testing::Test
{
protected:
    void SetUp() override { janela.resize(700, 400); }
    void TearDown() override { SetRelogio({}); }

    QWidget janela;
};

TEST_F(TBasFrTest, PrepararRunsOnceDuringConstructionWithTheLayoutLoaded)
{
    auto *fr = Criar<TContaFr>(&janela);
    EXPECT_EQ(fr->preparados, 1);
    EXPECT_EQ(fr->preparadosNoCorpo, 1) << "before the descendant's own body";
    EXPECT_TRUE(fr->painelNoPreparar);
    EXPECT_EQ(fr->UltimaAtualizacao.Dias(), 0);
    EXPECT_EQ(fr->parentWidget(), &janela);
}

TEST_F(TBasFrTest, LayoutOfTheWaitPanels)
{
    auto *fr = Criar<TBasFr>(&janela);
    EXPECT_EQ(fr->size(), QSize(541, 217));
    EXPECT_EQ(fr->AguardePanel->size(), QSize(220, 38));
    EXPECT_EQ(fr->PanelLaranja->size(), QSize(220, 37));
    EXPECT_TRUE(fr->AguardePanel->isHidden());
    EXPECT_TRUE(fr->PanelLaranja->isHidden());
    EXPECT_EQ(fr->AguardeImage->geometry(), QRect(10, 7, 13, 22));
    EXPECT_EQ(fr->AguardeImageLaranja->geometry(), QRect(16, -2, 30, 39));
    EXPECT_FALSE(fr->AguardeImage->pixmap().isNull());
    EXPECT_FALSE(fr->AguardeImageLaranja->pixmap().isNull());
    for (const TPanel *painel : {fr->AguardePanel, fr->PanelLaranja}) {
        EXPECT_TRUE(painel->font().bold());
        EXPECT_EQ(QFontInfo(painel->font()).pixelSize(), 19);
        EXPECT_EQ(painel->GetCaption(), QStringLiteral("Aguarde..."));
        EXPECT_EQ(painel->frameShape(), QFrame::Box);
    }
    EXPECT_EQ(fr->AguardePanel->GetColor(), TColor::DeRGB(177, 203, 224));
    EXPECT_EQ(fr->AguardePanel->GetFontColor(), TColor::DeRGB(49, 91, 125));
    EXPECT_EQ(fr->PanelLaranja->GetColor(), TColor::DeRGB(185, 124, 0));
    EXPECT_EQ(fr->PanelLaranja->GetFontColor(), TColor::DeRGB(255, 255, 0));
}

TEST_F(TBasFrTest, TheFrameMayGoWhileTheWaitPanelPumpsEvents)
{
    for (const bool esconder : {false, true}) {
        QPointer<TBasFr> fr = Criar<TBasFr>(&janela);
        QMetaObject::invokeMethod(
            &janela, [&] { delete fr; }, Qt::QueuedConnection);
        if (esconder)
            fr->AguardeEsconder();
        else
            fr->AguardeExibir();
        EXPECT_TRUE(fr.isNull());
    }
}

TEST_F(TBasFrTest, TheWaitPanelIsCentredInFrontAndPainted)
{
    auto *fr = Criar<TBasFr>(&janela);
    auto *porCima = new QWidget(fr);
    porCima->setGeometry(fr->rect());
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&janela));
    fr->AguardeExibir();
    EXPECT_EQ(fr->AguardePanel->pos(), QPoint((541 - 220) / 2, (217 - 38) / 2));
    EXPECT_EQ(fr->childAt(fr->rect().center())->window(), &janela);
    QWidget *noCentro = fr->childAt(fr->rect().center());
    EXPECT_TRUE(noCentro == fr->AguardePanel || fr->AguardePanel->isAncestorOf(noCentro));
    EXPECT_EQ(
        janela.grab().toImage().pixelColor(fr->AguardePanel->geometry().topRight() + QPoint(-4, 4)),
        QColor(177, 203, 224));
    fr->AguardeEsconder();
    EXPECT_TRUE(fr->AguardePanel->isHidden());
}

TEST_F(TBasFrTest, AFrameSmallerThanThePanelShowsItAtANegativeOffsetTruncatedTowardZero)
{
    auto *fr = Criar<TBasFr>(&janela);
    fr->resize(101, 21);
    fr->AguardeExibir();
    EXPECT_EQ(fr->AguardePanel->x(), -59) << "(101 - 220) / 2 = -59.5";
    EXPECT_EQ(fr->AguardePanel->y(), -8) << "(21 - 38) / 2 = -8.5";
}

TEST_F(TBasFrTest, TwoShowsAndOneHideLeaveThePanelHidden)
{
    auto *fr = Criar<TBasFr>(&janela);
    fr->AguardeExibir();
    fr->AguardeExibir();
    EXPECT_FALSE(fr->AguardePanel->isHidden());
    fr->AguardeEsconder();
    EXPECT_TRUE(fr->AguardePanel->isHidden());
}

TEST_F(TBasFrTest, ShowingThePanelPumpsPendingEvents)
{
    auto *fr = Criar<TBasFr>(&janela);
    int chegou = 0;
    QMetaObject::invokeMethod(
        fr, [&] { ++chegou; }, Qt::QueuedConnection);
    fr->AguardeExibir();
    EXPECT_EQ(chegou, 1);
    QMetaObject::invokeMethod(
        fr, [&] { ++chegou; }, Qt::QueuedConnection);
    fr->AguardeEsconder();
    EXPECT_EQ(chegou, 2);
}

TEST_F(TBasFrTest, ControlesHabilitadosReachesDirectChildrenOnly)
{
    auto *fr = Criar<TBasFr>(&janela);
    auto *filho = new QWidget(fr);
    auto *neto = new QLineEdit(filho);
    fr->ControlesHabilitados(false);
    EXPECT_FALSE(filho->isEnabledTo(fr));
    EXPECT_TRUE(neto->isEnabledTo(filho)) << "its own state is untouched";
    EXPECT_FALSE(neto->isEnabled()) << "it follows its parent";
    fr->ControlesHabilitados(true);
    EXPECT_TRUE(neto->isEnabled());
    neto->setEnabled(false);
    fr->ControlesHabilitados(true);
    EXPECT_FALSE(neto->isEnabled()) << "nor is a grandchild enabled";
}

TEST_F(TBasFrTest, ControlesHabilitadosLeavesWindowsOfTheFrameAlone)
{
    auto *fr = Criar<TBasFr>(&janela);
    QWidget dialogo(fr, Qt::Dialog);
    fr->ControlesHabilitados(false);
    EXPECT_TRUE(dialogo.isEnabled());
    EXPECT_FALSE(fr->AguardePanel->isEnabledTo(fr));
}

TEST_F(TBasFrTest, SimuleTeclaWithoutControlAndFocusGoesToTheFrame)
{
    auto *fr = Criar<TContaFr>(&janela);
    ASSERT_EQ(QApplication::focusWidget(), nullptr);
    fr->SimuleTecla(46, nullptr);
    EXPECT_EQ(fr->teclas, QList<int>{Qt::Key_Delete});
    EXPECT_EQ(fr->soltas, QList<int>{Qt::Key_Delete});
}

TEST_F(TBasFrTest, SimuleTeclaReachesTheFocusedOrTheGivenControlAtOnce)
{
    auto *fr = Criar<TBasFr>(&janela);
    auto *edit = new QLineEdit(QStringLiteral("abc"), fr);
    auto *outro = new QLineEdit(QStringLiteral("xyz"), fr);
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    edit->setFocus();
    edit->setCursorPosition(0);
    outro->setCursorPosition(1);
    fr->SimuleTecla(46, nullptr);
    EXPECT_EQ(edit->text(), QStringLiteral("bc"));
    fr->SimuleTecla(8, outro);
    EXPECT_EQ(outro->text(), QStringLiteral("yz"));
}

TEST_F(TBasFrTest, ExecuteAtualizarRefreshesAtMostOnceInATenthOfASecond)
{
    QDateTime agora({2026, 11, 20}, {9, 0});
    SetRelogio([&] { return TDateTime(agora); });
    auto *fr = Criar<TContaFr>(&janela);
    fr->ExecuteAtualizar();
    EXPECT_EQ(fr->atualizados, 1);
    EXPECT_EQ(fr->UltimaAtualizacao, TDateTime(agora));
    agora = agora.addMSecs(60);
    fr->ExecuteAtualizar();
    EXPECT_EQ(fr->atualizados, 1) << "within 100 ms nothing happens";
    EXPECT_NE(fr->UltimaAtualizacao, TDateTime(agora));
    agora = agora.addMSecs(60);
    fr->ExecuteAtualizar();
    EXPECT_EQ(fr->atualizados, 2);
    EXPECT_EQ(fr->UltimaAtualizacao, TDateTime(agora));
}

} // namespace

#include "TBasFr_test.moc"
