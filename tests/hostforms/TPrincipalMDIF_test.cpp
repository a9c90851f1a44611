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
#include <QTabBar>

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

/** Two child windows, each with two pages of two edits; every tab bar can take the focus. */
class TVoltaTeste : public TPrincipalTeste
{
protected:
    void SetUp() override
    {
        TPrincipalTeste::SetUp();
        p->resize(1000, 680);
        um = p->Abrir<TUmF>();
        Encher(um);
        dois = p->Abrir<TDoisF>();
        Encher(dois);
        p->LadoALadoAction->Execute();
        Girar();
    }
    static void Encher(TForm *form)
    {
        auto *paginas = new TPageControl(static_cast<TChildMDIBasF *>(form)->Panel1);
        for (int i = 0; i < 2; ++i) {
            auto *pagina = new TTabSheet(paginas);
            for (int j = 0; j < 2; ++j) {
                auto *edit = new QLineEdit(pagina);
                edit->setObjectName(QStringLiteral("edit%1%2").arg(i).arg(j));
                edit->setGeometry(10, 10 + 30 * j, 120, 22);
                edit->show();
            }
        }
        paginas->resize(300, 200);
        paginas->show();
    }
    static QWidget *Edit(TForm *form, const char *nome)
    {
        return form->findChild<QLineEdit *>(QString::fromLatin1(nome));
    }
    static void Tecla(int tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key(tecla), com);
        Girar();
    }
    TForm *um = nullptr;
    TForm *dois = nullptr;
};

/** Ways back into a child window that go for no control of it. */
struct TVolta {
    const char *nome;
    void (*voltar)(TPrincipalMDIF &p, TForm &um);
};

void PrintTo(const TVolta &volta, std::ostream *em)
{
    *em << volta.nome;
}

const TVolta Voltas[] = {
    {"CtrlF6",
     [](TPrincipalMDIF &, TForm &) {
         QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6, Qt::ControlModifier);
     }},
    {"WindowMenu",
     [](TPrincipalMDIF &p, TForm &) {
         Q_EMIT p.JanelaMenu->aboutToShow();
         for (QAction *item : p.JanelaMenu->actions()) {
             if (item->isCheckable() && !item->isChecked()) {
                 item->trigger();
                 break;
             }
         }
     }},
    {"ClickOnTheTitle",
     [](TPrincipalMDIF &, TForm &um) {
         QTest::mouseClick(um.SubJanela(), Qt::LeftButton, {}, QPoint(80, 8));
     }},
    {"ClickOnTheGround",
     [](TPrincipalMDIF &, TForm &um) {
         QTest::mouseClick(static_cast<TChildMDIBasF &>(um).Panel1, Qt::LeftButton, {},
                           QPoint(400, 250));
     }},
    {"ClosingTheOtherWindow", [](TPrincipalMDIF &p, TForm &) { p.FilhoAtivo()->Close(); }},
    {"OpeningItAgain", [](TPrincipalMDIF &p, TForm &) { p.Abrir<TUmF>(); }},
};

class TVoltaPorTeste : public TVoltaTeste, public testing::WithParamInterface<TVolta>
{
};

TEST_P(TVoltaPorTeste, TheControlThatHadTheFocusHasItAgain)
{
    Edit(um, "edit01")->setFocus();
    Tecla(Qt::Key_F6, Qt::ControlModifier);
    ASSERT_EQ(p->FilhoAtivo(), dois);
    QTest::mouseClick(Edit(dois, "edit00"), Qt::LeftButton);
    GetParam().voltar(*p, *um);
    Girar();
    EXPECT_EQ(p->FilhoAtivo(), um);
    EXPECT_EQ(QApplication::focusWidget(), Edit(um, "edit01"));
    EXPECT_EQ(um->ActiveControl(), Edit(um, "edit01"));
}

TEST_P(TVoltaPorTeste, InThePlaceOfADisabledOrHiddenControlTheFirstStopHasIt)
{
    for (const bool some : {false, true}) {
        QWidget *edit = Edit(um, some ? "edit00" : "edit01");
        p->Abrir<TUmF>();
        edit->setFocus();
        Girar();
        ASSERT_EQ(QApplication::focusWidget(), edit);
        auto *outra = p->Abrir<TDoisF>();
        if (outra != dois)
            Encher(dois = outra);
        QTest::mouseClick(Edit(dois, "edit00"), Qt::LeftButton);
        if (some)
            edit->hide();
        else
            edit->setEnabled(false);
        GetParam().voltar(*p, *um);
        Girar();
        EXPECT_EQ(p->FilhoAtivo(), um);
        EXPECT_EQ(QApplication::focusWidget(), um->findChild<QTabBar *>());
    }
}

INSTANTIATE_TEST_SUITE_P(Voltas, TVoltaPorTeste, testing::ValuesIn(Voltas),
                         [](const auto &volta) { return std::string(volta.param.nome); });

TEST_F(TVoltaTeste, AClickOnAnotherControlGoesToThatOne)
{
    Edit(um, "edit01")->setFocus();
    QTest::mouseClick(Edit(dois, "edit00"), Qt::LeftButton);
    ASSERT_EQ(QApplication::focusWidget(), Edit(dois, "edit00"));
    QTest::mouseClick(Edit(um, "edit00"), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), Edit(um, "edit00"));
    auto *abas = dois->findChild<QTabBar *>();
    QTest::mouseClick(abas, Qt::LeftButton, {}, abas->tabRect(0).center());
    EXPECT_EQ(QApplication::focusWidget(), Edit(dois, "edit00")) << "tabs take no click focus";
}

TEST_F(TVoltaTeste, WhatGivesTheFocusBackIsNoStopOfTheTabKey)
{
    Edit(um, "edit00")->setFocus();
    QList<QWidget *> paradas;
    for (int i = 0; i < 6; ++i) {
        paradas << QApplication::focusWidget();
        Tecla(Qt::Key_Tab);
    }
    auto *abas = um->findChild<QTabBar *>();
    EXPECT_EQ(paradas, (QList<QWidget *>{Edit(um, "edit00"), Edit(um, "edit01"), abas,
                                         Edit(um, "edit00"), Edit(um, "edit01"), abas}));
}

#include "TPrincipalMDIF_test.moc"
