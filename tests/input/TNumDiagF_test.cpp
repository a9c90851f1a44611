#include "input/UNumDiagF.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/core/Servicos.h"
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

class TNumDiagFTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        diag.reset(Criar<TNumDiagF>(nullptr));
        edit = diag->NumEditBRBasFr->NumEditBR1;
    }
    /** Runs the dialog and what the user does in it. */
    bool Executar(const std::function<void()> &usuario)
    {
        QTimer::singleShot(50, diag.get(), usuario);
        return diag->Executar();
    }

    TServicosGuarda guarda;
    QStringList avisos;
    std::unique_ptr<TNumDiagF> diag;
    TNumEditBR *edit = nullptr;
};

TEST_F(TNumDiagFTest, LayoutIsTheGoldenOne)
{
    diag->TitLabel->setText(QStringLiteral("Quantas cópias?"));
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TNumDiagF")));
    EXPECT_EQ(diag->NumEditBRBasFr->geometry(), QRect(16, 40, 146, 45));
    EXPECT_EQ(edit->height(), 22);
    EXPECT_EQ(edit->Tag, 1);
    const QPalette &paleta = diag->TitLabel->palette();
    EXPECT_EQ(paleta.color(QPalette::Window), QColor(240, 248, 255));
    EXPECT_EQ(paleta.color(QPalette::WindowText), QColor(0, 0, 128));
    EXPECT_EQ(diag->TitLabel->fontInfo().pixelSize(), 13);
    EXPECT_TRUE(diag->TitLabel->font().bold());
}

TEST_F(TNumDiagFTest, TheNumberHasTheFocusAndOkGivesIt)
{
    diag->NumEditBRBasFr->SetValor(10);
    const bool ok = Executar([&] {
        EXPECT_EQ(QApplication::focusWidget(), edit);
        EXPECT_EQ(edit->selectedText(), QStringLiteral("10"));
        QTest::keyClicks(edit, QStringLiteral("42"));
        QTest::mouseClick(diag->OkButton, Qt::LeftButton);
    });
    EXPECT_TRUE(ok);
    EXPECT_EQ(diag->NumEditBRBasFr->GetValor(), Variant(42));
}

TEST_F(TNumDiagFTest, EscCancels)
{
    EXPECT_FALSE(Executar([&] { QTest::keyClick(edit, Qt::Key_Escape); }));
    EXPECT_EQ(diag->OkButton->text(), QStringLiteral("OK"));
    EXPECT_EQ(diag->CancelButton->text(), QStringLiteral("Cancelar"));
}

TEST_F(TNumDiagFTest, ARefusedNumberWarnsOnceAndKeepsTheDialogOpen)
{
    diag->NumEditBRBasFr->TemMaximo = true;
    diag->NumEditBRBasFr->Maximo = 10;
    const bool ok = Executar([&] {
        QTest::keyClicks(edit, QStringLiteral("11"));
        // A real message box takes the release of the click that opened it.
        QTest::mousePress(diag->OkButton, Qt::LeftButton);
        QCoreApplication::processEvents();
        EXPECT_EQ(avisos.size(), 1) << "OK by mouse";
        EXPECT_TRUE(diag->isVisible());
        EXPECT_EQ(QApplication::focusWidget(), edit);
        diag->ApertarDefault();
        EXPECT_EQ(avisos.size(), 2) << "OK by key";
        EXPECT_TRUE(diag->isVisible());
        edit->selectAll();
        QTest::keyClicks(edit, QStringLiteral("9"));
        QTest::mouseClick(diag->OkButton, Qt::LeftButton);
    });
    EXPECT_TRUE(ok);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(diag->NumEditBRBasFr->GetValor(), Variant(9));
}

TEST_F(TNumDiagFTest, ALongTitleIsShownWhole)
{
    diag->TitLabel->setText(
        QStringLiteral("Quantas cópias do relatório de vendas do mês passado, por vendedor e por "
                       "região, devem ser impressas agora nesta impressora?"));
    const int antes = diag->height();
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    Retratar(diag.get(), QStringLiteral("TNumDiagF_longo"));
    EXPECT_GT(diag->height(), antes);
    EXPECT_GE(diag->TitLabel->height(), diag->TitLabel->heightForWidth(diag->TitLabel->width()));
    EXPECT_GE(diag->NumEditBRBasFr->y(), diag->TitLabel->height());
    EXPECT_LE(diag->NumEditBRBasFr->geometry().bottom(), diag->ButPanel->y());
}

} // namespace
