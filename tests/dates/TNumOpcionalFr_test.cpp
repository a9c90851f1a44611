#include "dates/UNumOpcionalFr.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TPanel.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

using TNumOpcionalFrTest = TEntradaTest;

TEST_F(TNumOpcionalFrTest, LayoutIsTheGoldenOne)
{
    auto *fr = Mostrado<TNumOpcionalFr>();
    fr->AtivoCheckBox->setChecked(true);
    fr->TNumEditBRBasFr1->SetValor(123456);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TNumOpcionalFr")));
}

TEST_F(TNumOpcionalFrTest, TheScreenBuildsItsConditionFromTheNumber)
{
    auto *fr = Mostrado<TNumOpcionalFr>();
    QTest::mouseClick(fr->AtivoCheckBox, Qt::LeftButton, {}, QPoint(7, 8));
    fr->TNumEditBRBasFr1->SetFocus();
    EXPECT_EQ(Foco(), fr->TNumEditBRBasFr1->NumEditBR1);
    fr->TNumEditBRBasFr1->NumEditBR1->selectAll();
    Digitar(fr->TNumEditBRBasFr1->NumEditBR1, QStringLiteral("1500"));
    EXPECT_EQ(fr->TNumEditBRBasFr1->SQLString(), QStringLiteral("1500"));
    EXPECT_EQ(fr->height(), 46) << "as high as its row";
}

TEST_F(TNumOpcionalFrTest, SwitchedOffItTakesNoNumber)
{
    auto *fr = Mostrado<TNumOpcionalFr>();
    EXPECT_FALSE(fr->Panel1->isEnabled());
    fr->TNumEditBRBasFr1->SetFocus();
    EXPECT_EQ(Foco(), antes);
}

} // namespace
