#include "grids/USQLGridBasFr.h"

#include "forms/UFicha.h"
#include "forms/UImg16D.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <memory>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TSQLGridBasFrTest : public TEntradaTest
{
protected:
    std::unique_ptr<TFicha> biblioteca = std::make_unique<TFicha>();
};

} // namespace

TEST_F(TSQLGridBasFrTest, LayoutIsTheGoldenOne)
{
    auto *fr = Mostrado<TSQLGridBasFr>();
    Girar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TSQLGridBasFr")));
    EXPECT_EQ(fr->size(), QSize(357, 205));
    EXPECT_FALSE(fr->ToolBar1->GetWrapable());
    EXPECT_EQ(fr->ToolBar1->geometry().bottom(), 204);
    EXPECT_EQ(fr->StringGrid1->geometry(), QRect(0, 0, 357, fr->ToolBar1->y()));
    EXPECT_EQ(fr->ToolBar1->GetImages(), Img16D->ImageList16);
    EXPECT_EQ(fr->ActionList1->GetImages(), Img16D->ImageList16);
    TToolButton *const botoes[] = {fr->ImprToolButton, fr->InsToolButton, fr->AltToolButton,
                                   fr->ExclToolButton};
    TAction *const acoes[] = {fr->ImprAction, fr->InsAction, fr->AltAction, fr->ExclAction};
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(botoes[i]->GetAction(), acoes[i]) << i;
        EXPECT_EQ(acoes[i]->GetImageIndex(), i);
        EXPECT_EQ(acoes[i]->GetActionList(), fr->ActionList1) << i;
        EXPECT_FALSE(botoes[i]->icon().isNull()) << i;
    }
    EXPECT_EQ(fr->ToolBar1->Buttons().value(1), fr->ToolButton2);
    EXPECT_EQ(fr->ToolButton2->GetStyle(), TToolButton::tbsSeparator);
}

TEST_F(TSQLGridBasFrTest, TheButtonsRunWhatTheDescendantSupplies)
{
    auto *fr = Mostrado<TSQLGridBasFr>();
    QTest::mouseClick(fr->InsToolButton, Qt::LeftButton); // no handler yet
    QStringList feitas;
    for (TAction *acao : {fr->ImprAction, fr->InsAction, fr->AltAction, fr->ExclAction})
        acao->OnExecute = [&feitas, acao](QObject *) { feitas << acao->objectName(); };
    Girar();
    for (TToolButton *botao : fr->ToolBar1->Buttons())
        QTest::mouseClick(botao, Qt::LeftButton);
    EXPECT_EQ(feitas, QStringList({QStringLiteral("ImprAction"), QStringLiteral("InsAction"),
                                   QStringLiteral("AltAction"), QStringLiteral("ExclAction")}));
}

TEST_F(TSQLGridBasFrTest, ItIsAValueFrameInTheTabOrderWithTheGridAsItsStop)
{
    auto *fr = Mostrado<TSQLGridBasFr>();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->StringGrid1);
    Teclar(fr->StringGrid1, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    fr->SetFocus();
    EXPECT_EQ(Foco(), fr->StringGrid1);
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->Frases.Count(), 1);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TSQLGridBasFrTest, WithoutTheLibrarysImagesItHasNone)
{
    biblioteca.reset();
    auto *fr = Mostrado<TSQLGridBasFr>();
    EXPECT_EQ(fr->ToolBar1->GetImages(), nullptr);
}

TEST_F(TSQLGridBasFrTest, TheImagesMayGoBeforeTheFrame)
{
    auto *fr = Mostrado<TSQLGridBasFr>();
    biblioteca.reset();
    fr->grab();
    EXPECT_EQ(fr->ToolBar1->GetImages(), nullptr);
    delete fr;
}
