#include "platform/hostforms/TChildMDIBasF.h"

#include "platform/hostforms/TPrincipalMDIF.h"
#include "platform/toolkit/TAction.h"
#include "support/Girar.h"

#include <QMdiSubWindow>
#include <QPointer>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

class TFilhoF : public TChildMDIBasF
{
    Q_OBJECT
public:
    using TChildMDIBasF::TChildMDIBasF;
    QString naCriacao;

protected:
    void FormCreate(QObject *sender) override
    {
        TChildMDIBasF::FormCreate(sender);
        naCriacao = Parametro;
    }
};

} // namespace

TEST(TChildMDIBasF, IsAWindowOfItsOwnWithoutAMainWindowAndFreesItselfOnClose)
{
    QPointer<TFilhoF> form = Criar<TFilhoF>(nullptr);
    EXPECT_TRUE(form->isWindow());
    EXPECT_FALSE(form->isVisible());
    form->Show();
    EXPECT_TRUE(form->Close());
    Girar();
    EXPECT_FALSE(form);
}

TEST(TChildMDIBasF, ParameterIsThereWhenFormCreateRuns)
{
    std::unique_ptr<TFilhoF> form(Criar<TFilhoF>(nullptr, QStringLiteral("abc")));
    EXPECT_EQ(form->Parametro, QStringLiteral("abc"));
    EXPECT_EQ(form->naCriacao, QStringLiteral("abc"));
}

TEST(TChildMDIBasF, LivesInTheMainWindowAndTakesItsSubWindowAlong)
{
    std::unique_ptr<TPrincipalMDIF> principal(Criar<TPrincipalMDIF>(nullptr));
    principal->Show();
    QPointer<TFilhoF> form = Criar<TFilhoF>(principal.get());
    ASSERT_TRUE(form->SubJanela());
    form->Show();
    Girar();
    EXPECT_EQ(form->size(), QSize(480, 320)) << "the size for which it was designed";
    QPointer<QMdiSubWindow> sub = form->SubJanela();
    form->FecharAction->trigger();
    Girar();
    EXPECT_FALSE(form);
    EXPECT_FALSE(sub);
}

#include "TChildMDIBasF_test.moc"
