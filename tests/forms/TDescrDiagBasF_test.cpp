#include "forms/UDescrDiagBasF.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDescrDiagBasFTest : public testing::Test
{
protected:
    TDescrDiagBasFTest() : diag(Criar<TDescrDiagBasF>(nullptr))
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        edit = diag->DescrLabeledEditTextoBasFr->LabeledEdit1;
    }
    bool Executar(const std::function<void()> &usuario)
    {
        QTimer::singleShot(50, diag.get(), usuario);
        return diag->Executar();
    }

    TServicosGuarda guarda;
    QStringList avisos;
    std::unique_ptr<TDescrDiagBasF> diag;
    QLineEdit *edit = nullptr;
};

} // namespace

TEST_F(TDescrDiagBasFTest, LayoutIsTheGoldenOne)
{
    diag->TitLabel->setText(QStringLiteral("Novo grupo de produtos"));
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TDescrDiagBasF")));
    EXPECT_EQ(diag->size(), QSize(225, 115));
    EXPECT_EQ(diag->DescrLabeledEditTextoBasFr->Tag, 1);
    EXPECT_EQ(diag->DescrLabeledEditTextoBasFr->LabeledEdit1->GetCaption(),
              QStringLiteral("Descrição"));
    const QPalette &paleta = diag->TitLabel->palette();
    EXPECT_EQ(paleta.color(QPalette::Window), TColor(16775664).ParaQColor());
    EXPECT_EQ(paleta.color(QPalette::WindowText), QColor(0, 0, 128));
    EXPECT_TRUE(diag->TitLabel->font().bold());
    EXPECT_EQ(diag->TitLabel->font().family(), QStringLiteral("Arial"));
}

TEST_F(TDescrDiagBasFTest, TheDescriptionHasTheFocusAndEnterConfirmsIt)
{
    EXPECT_TRUE(Executar([&] {
        EXPECT_EQ(QApplication::focusWidget(), edit);
        QTest::keyClicks(edit, QStringLiteral(" Bebidas "));
        QTest::keyClick(edit, Qt::Key_Return);
    }));
    EXPECT_EQ(diag->DescrLabeledEditTextoBasFr->AsString(), QStringLiteral("Bebidas"));
}

TEST_F(TDescrDiagBasFTest, OkIsRefusedWithoutATextAndTheCaretGoesBack)
{
    EXPECT_FALSE(diag->PodeOk());
    EXPECT_FALSE(Executar([&] {
        QTest::keyClicks(edit, QStringLiteral("   "));
        diag->OkBitBtn->setFocus();
        QTest::mouseClick(diag->OkBitBtn, Qt::LeftButton);
        QTest::qWait(20);
        EXPECT_TRUE(diag->isVisible());
        EXPECT_EQ(QApplication::focusWidget(), edit);
        QTest::keyClick(edit, Qt::Key_Escape);
    }));
    EXPECT_EQ(avisos, QStringList());
    diag->DescrLabeledEditTextoBasFr->SetValor(QStringLiteral("x"));
    EXPECT_TRUE(diag->PodeOk());
}

TEST_F(TDescrDiagBasFTest, ALongTitleIsShownWhole)
{
    diag->TitLabel->setText(QStringLiteral("Descrição do novo grupo de produtos que será criado a "
                                           "partir dos itens marcados na lista"));
    diag->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    Retratar(diag.get(), QStringLiteral("TDescrDiagBasF_longo"));
    EXPECT_GE(diag->TitLabel->height(), diag->TitLabel->heightForWidth(diag->TitLabel->width()));
    EXPECT_GE(diag->DescrLabeledEditTextoBasFr->y(), diag->TitLabel->geometry().bottom());
    EXPECT_LE(diag->DescrLabeledEditTextoBasFr->geometry().bottom(), diag->ButPanel->y());
}
