#include "dates/UDataSelectF.h"
#include "platform/core/Relogio.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TPanel.h"
#include "support/Layouts.h"
#include "support/NoDialogo.h"

#include <QLabel>
#include <QTableView>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDataSelectFTest : public testing::Test
{
protected:
    void SetUp() override
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2024, 2, 10), QTime(8, 15))); });
        diag.reset(Criar<TDataSelectF>(nullptr));
        cal = diag->MonthCalendar1;
    }
    void TearDown() override { SetRelogio({}); }
    /** Runs the dialog and what the user does in it. */
    bool Executar(const std::function<void()> &usuario)
    {
        const TNoDialogo<TDataSelectF> noDialogo([&](TDataSelectF &) { usuario(); });
        return diag->Executar();
    }

    std::unique_ptr<TDataSelectF> diag;
    TMonthCalendar *cal = nullptr;
};

TEST_F(TDataSelectFTest, LayoutIsTheGoldenOne)
{
    diag->TitLab->setText(QStringLiteral("Data de nascimento"));
    diag->move(0, 0);
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TDataSelectF")));
    EXPECT_EQ(diag->size(), QSize(192, 205));
    EXPECT_TRUE(diag->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(cal->pos(), QPoint(15, 15));
    EXPECT_EQ(diag->ButPanel->height(), 29);
    EXPECT_EQ(diag->Panel1->GetBevel(), TPanel::bvLowered);
    EXPECT_TRUE(diag->TitLab->alignment().testFlag(Qt::AlignHCenter));
    EXPECT_LE(cal->geometry().bottom(), diag->Panel1->height() - 1);
}

TEST_F(TDataSelectFTest, ALineAroundItTellsItFromTheScreenBehind)
{
    diag->Show();
    const QImage foto = diag->grab().toImage();
    const QColor linha = diag->palette().color(QPalette::Shadow);
    const QColor fundo = diag->palette().color(QPalette::Window);
    EXPECT_GT(fundo.lightness() - linha.lightness(), 80);
    for (const QPoint p : {QPoint(0, 0), QPoint(96, 0), QPoint(0, 100), QPoint(191, 100),
                           QPoint(96, 204), QPoint(191, 204)})
        EXPECT_EQ(foto.pixel(p), linha.rgb()) << p.x() << ',' << p.y();
}

TEST_F(TDataSelectFTest, StartsOnTodayAndTheOpenersDateComesBackUnchanged)
{
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(10, 2, 2024));
    cal->SetDate(TDateTime::DeData(29, 2, 2024));
    EXPECT_TRUE(Executar([&] { QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return); }));
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(29, 2, 2024));
}

TEST_F(TDataSelectFTest, TheCalendarHasTheFocusArrowsChooseAndEnterConfirms)
{
    EXPECT_TRUE(Executar([&] {
        EXPECT_TRUE(cal->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Right);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }));
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(11, 3, 2024));
}

TEST_F(TDataSelectFTest, EscCancelsAndTabGoesCalendarOkCancelar)
{
    EXPECT_FALSE(Executar([&] {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), diag->OkBitBtn);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), diag->CancelBitBtn);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_TRUE(cal->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    }));
}

TEST_F(TDataSelectFTest, TwoClicksOnADayConfirmIt)
{
    EXPECT_TRUE(Executar([&] {
        auto *grade = cal->findChild<QTableView *>();
        const QPoint dia = grade->visualRect(grade->model()->index(3, 3)).center();
        QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, dia);
        QTest::mouseDClick(grade->viewport(), Qt::LeftButton, {}, dia);
    }));
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(14, 2, 2024));
}

TEST_F(TDataSelectFTest, OkAndCancelarByMouse)
{
    EXPECT_TRUE(Executar([&] { QTest::mouseClick(diag->OkBitBtn, Qt::LeftButton); }));
    EXPECT_FALSE(Executar([&] { QTest::mouseClick(diag->CancelBitBtn, Qt::LeftButton); }));
}

} // namespace
