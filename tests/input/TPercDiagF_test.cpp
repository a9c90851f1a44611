#include "input/UNumEditBRBasFr.h"
#include "input/UPercDiagF.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TPanel.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TPercDiagFTest : public testing::Test
{
protected:
    void SetUp() override
    {
        diag.reset(Criar<TPercDiagF>(nullptr));
        edit = diag->NumEditBRBasFr->NumEditBR1;
    }

    std::unique_ptr<TPercDiagF> diag;
    TNumEditBR *edit = nullptr;
};

TEST_F(TPercDiagFTest, LayoutIsTheGoldenOne)
{
    diag->TitLabel->setText(QStringLiteral("Desconto"));
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TPercDiagF")));
    EXPECT_EQ(diag->size(), QSize(205, 125));
    EXPECT_EQ(diag->ButPanel->geometry(), QRect(0, 91, 205, 34));
    EXPECT_EQ(diag->OkButton->pos(), QPoint(8, 2));
    EXPECT_EQ(diag->CancelButton->pos(), QPoint(104, 2));
    EXPECT_EQ(diag->NumEditBRBasFr->pos(), QPoint(8, 37));
    EXPECT_EQ(diag->NumEditBRBasFr->width(), 83);
    EXPECT_EQ(edit->width(), 69);
    EXPECT_EQ(edit->GetCaption(), QStringLiteral("Percentual"));
    EXPECT_TRUE(edit->alignment().testFlag(Qt::AlignRight));
}

TEST_F(TPercDiagFTest, StartsWithZeroAndAcceptsOneDecimalPlace)
{
    EXPECT_EQ(edit->text(), QStringLiteral("0,0"));
    QTimer::singleShot(50, diag.get(), [&] {
        EXPECT_EQ(QApplication::focusWidget(), edit);
        QTest::keyClicks(edit, QStringLiteral("12,57"));
        EXPECT_EQ(edit->text(), QStringLiteral("12,5")) << "no second decimal";
        QTest::mouseClick(diag->OkButton, Qt::LeftButton);
    });
    EXPECT_TRUE(diag->Executar());
    EXPECT_EQ(diag->NumEditBRBasFr->GetValor(), Variant(12.5));
    EXPECT_EQ(diag->NumEditBRBasFr->SQLString(), QStringLiteral("12.5"));
}

} // namespace
