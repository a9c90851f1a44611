#include "platform/toolkit/TToolBar.h"

#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "support/Girar.h"
#include "support/TrocaDeHandler.h"

#include <QApplication>
#include <QLineEdit>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TToolBarTeste : public testing::Test
{
protected:
    TToolBarTeste()
    {
        for (const int i : {0, 1, 2}) {
            botoes[i] = new TToolButton(barra);
            acoes[i] = new TAction(lista);
            acoes[i]->SetCaption(QStringLiteral("Ação %1").arg(i));
            acoes[i]->SetImageIndex(i);
            acoes[i]->OnExecute = [this, i](QObject *) { executada = i; };
            botoes[i]->SetAction(acoes[i]);
        }
        janela.resize(400, 100);
        barra->setGeometry(0, 0, 400, 40);
    }
    void Mostrar()
    {
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    }

    QWidget janela;
    TActionList *lista = new TActionList(&janela);
    TToolBar *barra = new TToolBar(&janela);
    TToolButton *botoes[3];
    TAction *acoes[3];
    int executada = -1;
};

} // namespace

TEST_F(TToolBarTeste, ButtonsStandInARowOfOneWidth)
{
    barra->SetButtonWidth(25);
    barra->Ajustar();
    EXPECT_EQ(botoes[0]->geometry(), QRect(0, 0, 25, 22));
    EXPECT_EQ(botoes[2]->geometry(), QRect(50, 0, 25, 22));
    EXPECT_EQ(barra->Buttons().size(), 3);
}

TEST_F(TToolBarTeste, CaptionsAreShownBelowOrBesideThePictures)
{
    TImageList imagens;
    for (const int i : {0, 1, 2})
        imagens.AddSvg(i, QStringLiteral("info"));
    barra->SetImages(&imagens);
    EXPECT_EQ(botoes[0]->toolButtonStyle(), Qt::ToolButtonIconOnly);
    barra->SetButtonWidth(71);
    barra->SetShowCaptions(true);
    EXPECT_EQ(botoes[0]->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
    barra->Ajustar();
    EXPECT_EQ(botoes[1]->x(), 71);
    EXPECT_GT(botoes[1]->height(), 22);
    barra->SetList(true);
    EXPECT_EQ(botoes[0]->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
    const int precisa =
        16 + 4 + botoes[1]->fontMetrics().size(Qt::TextShowMnemonic, botoes[1]->text()).width() + 4;
    ASSERT_LT(precisa, botoes[1]->sizeHint().width());
    barra->SetButtonWidth(precisa);
    barra->Ajustar();
    EXPECT_EQ(botoes[1]->width(), precisa) << "as wide as stated where all is seen";
    barra->SetButtonWidth(precisa - 1);
    barra->Ajustar();
    EXPECT_GE(botoes[1]->width(), precisa) << "never cut";
}

TEST_F(TToolBarTeste, ClickExecutesTheActionAndTakesNoFocus)
{
    auto *edit = new QLineEdit(&janela);
    edit->move(0, 60);
    Mostrar();
    edit->setFocus();
    QTest::mouseClick(botoes[1], Qt::LeftButton);
    EXPECT_EQ(executada, 1);
    EXPECT_EQ(QApplication::focusWidget(), edit);
}

TEST_F(TToolBarTeste, ButtonFollowsItsAction)
{
    Mostrar();
    acoes[0]->SetEnabled(false);
    EXPECT_FALSE(botoes[0]->isEnabled());
    QTest::mouseClick(botoes[0], Qt::LeftButton);
    EXPECT_EQ(executada, -1);
    acoes[1]->SetCaption(QStringLiteral("Outra"));
    EXPECT_EQ(botoes[1]->text(), QStringLiteral("Outra"));
    acoes[1]->SetHint(QStringLiteral("Dica"));
    EXPECT_EQ(botoes[1]->toolTip(), QStringLiteral("Dica"));
    acoes[0]->SetVisible(false);
    Girar();
    EXPECT_FALSE(botoes[0]->isVisible());
    EXPECT_EQ(botoes[1]->x(), 0) << "the others close up";
    acoes[0]->SetVisible(true);
    Girar();
    EXPECT_TRUE(botoes[0]->isVisible());
    EXPECT_EQ(botoes[1]->x(), botoes[0]->width());
    delete acoes[1];
    QTest::mouseClick(botoes[1], Qt::LeftButton);
    EXPECT_EQ(executada, -1);
}

TEST_F(TToolBarTeste, ButtonHiddenByTheProgramStaysHidden)
{
    botoes[0]->hide();
    Mostrar();
    acoes[0]->SetCaption(QStringLiteral("x"));
    Girar();
    EXPECT_FALSE(botoes[0]->isVisible());
}

TEST_F(TToolBarTeste, DisabledImagesAreUsedForDisabledButtons)
{
    TImageList imagens, apagadas;
    imagens.AddSvg(0, QStringLiteral("info"));
    apagadas.AddSvg(0, QStringLiteral("fechar"));
    barra->SetImages(&imagens);
    const QImage semLista = botoes[0]->icon().pixmap(16, QIcon::Disabled).toImage();
    barra->SetDisabledImages(&apagadas);
    const QImage normal = botoes[0]->icon().pixmap(16, QIcon::Normal).toImage();
    const QImage apagada = botoes[0]->icon().pixmap(16, QIcon::Disabled).toImage();
    EXPECT_EQ(normal, imagens.GetPixmap(0).toImage());
    EXPECT_EQ(apagada, apagadas.GetPixmap(0).toImage());
    EXPECT_NE(semLista, apagada);
}

TEST_F(TToolBarTeste, DownIsTheProgramsUnlessTheButtonIsACheck)
{
    Mostrar();
    botoes[0]->SetDown(true);
    QTest::mouseClick(botoes[0], Qt::LeftButton);
    EXPECT_TRUE(botoes[0]->GetDown());
    EXPECT_EQ(executada, 0);
    botoes[0]->SetDown(false);
    EXPECT_FALSE(botoes[0]->GetDown());
    botoes[1]->SetStyle(TToolButton::tbsCheck);
    QTest::mouseClick(botoes[1], Qt::LeftButton);
    EXPECT_TRUE(botoes[1]->GetDown());
}

TEST_F(TToolBarTeste, ButtonWithoutAnActionHasItsOwnClick)
{
    auto *solto = new TToolButton(barra);
    int cliques = 0;
    solto->SetCaption(QStringLiteral("Solto"));
    solto->OnClick = [&](QObject *quem) {
        EXPECT_EQ(quem, solto);
        ++cliques;
    };
    Mostrar();
    QTest::mouseClick(solto, Qt::LeftButton);
    EXPECT_EQ(cliques, 1);
}

TEST_F(TToolBarTeste, SeparatorsTakeTheirOwnWidth)
{
    auto *separador = new TToolButton(barra);
    separador->SetStyle(TToolButton::tbsSeparator);
    separador->resize(13, 22);
    auto *ultimo = new TToolButton(barra);
    barra->Ajustar();
    EXPECT_EQ(ultimo->x(), 3 * 23 + 13);
}

TEST_F(TToolBarTeste, ButtonsThatDoNotFitGoToANextRow)
{
    barra->resize(50, 60);
    barra->Ajustar();
    EXPECT_EQ(botoes[2]->pos(), QPoint(0, 22));
    barra->SetWrapable(false);
    barra->Ajustar();
    EXPECT_EQ(botoes[2]->pos(), QPoint(46, 0));
}

TEST_F(TToolBarTeste, CaptionsFitIntoALowBar)
{
    TImageList imagens;
    imagens.AddSvg(0, QStringLiteral("info"));
    barra->SetImages(&imagens);
    barra->SetShowCaptions(true);
    barra->resize(400, 34);
    barra->Ajustar();
    EXPECT_EQ(botoes[0]->height(), 34);
    barra->resize(400, 80);
    barra->Ajustar();
    EXPECT_EQ(botoes[0]->height(), botoes[0]->sizeHint().height());
}

TEST_F(TToolBarTeste, ClickHandlersMayTakeThemselvesOutOrDestroyTheButton)
{
    auto *botao = new TToolButton(barra);
    barra->Ajustar();
    Mostrar();
    EXPECT_TRUE(InteiroAoSair(botao->OnClick, [&] { QTest::mouseClick(botao, Qt::LeftButton); }));
    const QPointer<TToolButton> vivo(botao);
    botao->OnClick = [&](QObject *) { delete botao; };
    QTest::mouseClick(botao, Qt::LeftButton);
    EXPECT_TRUE(vivo.isNull());
}
