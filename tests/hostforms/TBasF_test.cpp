#include "platform/hostforms/TBasF.h"

#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TPanel.h"
#include "support/Girar.h"

#include <QLineEdit>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

class TTelaF : public TBasF
{
public:
    using TBasF::TBasF;
    QString estado;
    int vezes = 0;

    QString TextoCaption() override
    {
        return estado.isEmpty() ? TBasF::TextoCaption()
                                : TBasF::TextoCaption() + QStringLiteral(" - ") + estado;
    }
    void Atualizar() override
    {
        ++vezes;
        TBasF::Atualizar();
    }
};

} // namespace

TEST(TBasF, HasAFillingPanelAndTheCloseAction)
{
    std::unique_ptr<TBasF> form(Criar<TBasF>(nullptr));
    EXPECT_EQ(form->Panel1->geometry(), QRect(0, 0, 480, 320));
    EXPECT_EQ(form->FecharAction->GetCaption(), QStringLiteral("Fechar"));
    EXPECT_EQ(form->FecharAction->GetActionList(), form->ActionList1);
    form->Show();
    form->resize(600, 400);
    EXPECT_EQ(form->Panel1->size(), QSize(600, 400));
}

TEST(TBasF, CaptionIsRefreshedAtIdleTimeWhileVisible)
{
    std::unique_ptr<TTelaF> form(Criar<TTelaF>(nullptr));
    form->SetCaption(QStringLiteral("Clientes"));
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Clientes"));
    form->estado = QStringLiteral("Inserindo");
    Girar();
    EXPECT_EQ(form->vezes, 0) << "not while it is hidden";
    form->Show();
    Girar();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Clientes - Inserindo"));
    form->estado.clear();
    Girar();
    EXPECT_EQ(form->windowTitle(), QStringLiteral("Clientes"));
}

TEST(TBasF, CloseActionClosesByClickAndByKey)
{
    std::unique_ptr<TTelaF> form(Criar<TTelaF>(nullptr));
    form->Show();
    form->FecharAction->trigger();
    EXPECT_FALSE(form->isVisible());
    auto *edit = new QLineEdit(form->Panel1);
    form->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_F4, Qt::ControlModifier);
    EXPECT_FALSE(form->isVisible());
}
