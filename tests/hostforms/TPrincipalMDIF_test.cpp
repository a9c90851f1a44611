#include "platform/hostforms/TPrincipalMDIF.h"

#include "platform/hostforms/TChildMDIBasF.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TPanel.h"
#include "support/Girar.h"

#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

class TUmF : public TChildMDIBasF
{
    Q_OBJECT
public:
    using TChildMDIBasF::TChildMDIBasF;
    bool pode = true;

protected:
    void FormCloseQuery(QObject *, bool &p) override { p = pode; }
};

class TDoisF : public TChildMDIBasF
{
    Q_OBJECT
public:
    using TChildMDIBasF::TChildMDIBasF;
};

class TPrincipalTeste : public testing::Test
{
protected:
    void SetUp() override
    {
        p.reset(Criar<TPrincipalMDIF>(nullptr));
        p->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(p.get()));
    }
    QStringList ItensDoMenu()
    {
        Q_EMIT p->JanelaMenu->aboutToShow();
        QStringList itens;
        for (const QAction *a : p->JanelaMenu->actions())
            itens << (a->isSeparator()                     ? QStringLiteral("-")
                      : a->isCheckable() && a->isChecked() ? QStringLiteral("*") + a->text()
                                                           : a->text());
        return itens;
    }
    std::unique_ptr<TPrincipalMDIF> p;
};

} // namespace

TEST_F(TPrincipalTeste, IsTheMainWindowWhileItLives)
{
    EXPECT_EQ(TPrincipalMDIF::Atual(), p.get());
    p.reset();
    EXPECT_EQ(TPrincipalMDIF::Atual(), nullptr);
}

TEST_F(TPrincipalTeste, CtrlTabChangesThePageOfAChildWindowAndCtrlF6TheWindow)
{
    auto *dois = p->Abrir<TDoisF>();
    auto *um = p->Abrir<TUmF>();
    auto *paginas = new TPageControl(um->Panel1);
    for (int i = 0; i < 2; ++i)
        (new QLineEdit(new TTabSheet(paginas)))->show();
    paginas->resize(300, 200);
    paginas->show();
    QWidget *edit = paginas->GetPage(0)->findChild<QLineEdit *>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Tab, Qt::ControlModifier);
    EXPECT_EQ(paginas->GetActivePageIndex(), 1);
    edit = paginas->GetPage(1)->findChild<QLineEdit *>();
    edit->setFocus();
    QTest::keyClick(edit, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(paginas->GetActivePageIndex(), 0);
    EXPECT_EQ(p->FilhoAtivo(), um);
    QTest::keyClick(paginas->GetPage(0)->findChild<QLineEdit *>(), Qt::Key_F6, Qt::ControlModifier);
    EXPECT_EQ(p->FilhoAtivo(), dois);
}

TEST_F(TPrincipalTeste, OpensOneWindowPerClass)
{
    auto *um = p->Abrir<TUmF>();
    auto *dois = p->Abrir<TDoisF>();
    EXPECT_EQ(p->FilhoAtivo(), dois);
    EXPECT_EQ(p->Abrir<TUmF>(), um);
    EXPECT_EQ(p->FilhoAtivo(), um);
    EXPECT_EQ(p->Filhos(), (QList<TForm *>{um, dois}));
    um->Close();
    EXPECT_NE(p->Abrir<TUmF>(), um) << "the one that is going away is not given out again";
    Girar();
    EXPECT_EQ(p->Filhos().size(), 2);
}

TEST_F(TPrincipalTeste, WindowMenuArrangesClosesAndLists)
{
    auto *um = p->Abrir<TUmF>();
    auto *dois = p->Abrir<TDoisF>();
    um->SetCaption(QStringLiteral("Compra & venda"));
    dois->SetCaption(QStringLiteral("Dois"));
    EXPECT_EQ(ItensDoMenu(),
              (QStringList{QStringLiteral("Lado a lado"), QStringLiteral("Em cascata"),
                           QStringLiteral("Próxima"), QStringLiteral("Fechar"),
                           QStringLiteral("Fechar todas"), QStringLiteral("-"),
                           QStringLiteral("Compra && venda"), QStringLiteral("*Dois")}));
    EXPECT_EQ(ItensDoMenu().size(), 8) << "the list is made anew";
    p->LadoALadoAction->trigger();
    EXPECT_FALSE(um->SubJanela()->geometry().intersects(dois->SubJanela()->geometry()));
    p->EmCascataAction->trigger();
    EXPECT_TRUE(um->SubJanela()->geometry().intersects(dois->SubJanela()->geometry()));
    p->ProximaAction->trigger();
    EXPECT_EQ(p->FilhoAtivo(), um);
    p->JanelaMenu->actions().last()->trigger();
    EXPECT_EQ(p->FilhoAtivo(), dois);
    p->FecharJanelaAction->trigger();
    EXPECT_EQ(p->Filhos(), QList<TForm *>{um});
    p->FecharTodasAction->trigger();
    EXPECT_TRUE(p->Filhos().isEmpty());
    Girar();
    EXPECT_FALSE(p->LadoALadoAction->GetEnabled());
    EXPECT_EQ(ItensDoMenu().size(), 5);
}

TEST_F(TPrincipalTeste, ClosingAsksEveryChildAndOneRefusalKeepsAllOpen)
{
    auto *um = p->Abrir<TUmF>();
    um->pode = false;
    EXPECT_FALSE(p->Close());
    EXPECT_TRUE(p->isVisible());
    um->pode = true;
    EXPECT_TRUE(p->Close());
    EXPECT_FALSE(p->isVisible());
}

TEST_F(TPrincipalTeste, MenusOfTheProgramStandBeforeTheWindowMenu)
{
    QMenu *cadastros = p->AcrescentarMenu(QStringLiteral("&Cadastros"));
    EXPECT_EQ(p->MenuPrincipal->actions(),
              (QList<QAction *>{cadastros->menuAction(), p->JanelaMenu->menuAction()}));
    p->SetStatus(QStringLiteral("Pronto"));
    EXPECT_EQ(p->StatusLabel->text(), QStringLiteral("Pronto"));
}

TEST_F(TPrincipalTeste, SubWindowShowsTheFormsTitleIconAndDesignSize)
{
    auto *um = p->Abrir<TUmF>();
    um->SetCaption(QStringLiteral("Grupos"));
    EXPECT_EQ(um->SubJanela()->windowTitle(), QStringLiteral("Grupos"));
    EXPECT_FALSE(um->SubJanela()->windowIcon().isNull());
    EXPECT_EQ(um->size(), QSize(480, 320));
}

#include "TPrincipalMDIF_test.moc"
