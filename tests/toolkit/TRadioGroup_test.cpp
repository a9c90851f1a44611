#include "platform/toolkit/TRadioGroup.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QLineEdit>
#include <QRadioButton>
#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Radio : testing::Test {
    Radio()
    {
        grupo = new TRadioGroup(&janela);
        grupo->setGeometry(0, 0, 219, 159);
        grupo->SetItems({QStringLiteral("Um"), QStringLiteral("Dois"), QStringLiteral("Três")});
        grupo->OnClick = [this](QObject *sender) {
            EXPECT_EQ(sender, grupo);
            ++cliques;
        };
    }

    TJanela janela;
    TRadioGroup *grupo;
    int cliques = 0;
};

} // namespace

TEST_F(Radio, StartsWithNothingSelected)
{
    EXPECT_EQ(grupo->GetItemIndex(), -1);
    EXPECT_EQ(grupo->Count(), 3);
    EXPECT_EQ(grupo->Item(1), QStringLiteral("Dois"));
    EXPECT_EQ(grupo->Item(7), QString());
    EXPECT_EQ(grupo->Botao(3), nullptr);
}

TEST_F(Radio, SelectingFromTheProgramHasTheEffectOfAClick)
{
    QSignalSpy sinal(grupo, &TRadioGroup::Clicked);
    grupo->SetItemIndex(1);
    EXPECT_EQ(grupo->GetItemIndex(), 1);
    EXPECT_EQ(cliques, 1);
    EXPECT_EQ(sinal.count(), 1);
    grupo->SetItemIndex(1);
    EXPECT_EQ(cliques, 1);
    grupo->SetItemIndex(-1);
    EXPECT_EQ(grupo->GetItemIndex(), -1);
    EXPECT_EQ(cliques, 1);
    grupo->SetItemIndex(9);
    EXPECT_EQ(grupo->GetItemIndex(), -1);
    grupo->SetItemIndex(2);
    EXPECT_EQ(cliques, 2);
}

TEST_F(Radio, ClickSelects)
{
    janela.Abrir();
    QTest::mouseClick(grupo->Botao(2), Qt::LeftButton, {},
                      QPoint(8, grupo->Botao(2)->height() / 2));
    EXPECT_EQ(grupo->GetItemIndex(), 2);
    EXPECT_EQ(cliques, 1);
    QTest::mouseClick(grupo->Botao(2), Qt::LeftButton, {},
                      QPoint(8, grupo->Botao(2)->height() / 2));
    EXPECT_EQ(cliques, 1);
}

TEST_F(Radio, ArrowsMoveInsideAndTabEntersAtTheSelected)
{
    auto *antes = new QLineEdit(&janela);
    auto *depois = new QLineEdit(&janela);
    antes->move(0, 200);
    depois->move(0, 240);
    QWidget::setTabOrder(antes, grupo->Botao(0));
    QWidget::setTabOrder(grupo->Botao(0), grupo->Botao(1));
    QWidget::setTabOrder(grupo->Botao(1), grupo->Botao(2));
    QWidget::setTabOrder(grupo->Botao(2), depois);
    janela.Abrir();
    grupo->SetItemIndex(1);
    antes->setFocus();
    QTest::keyClick(antes, Qt::Key_Tab);
    EXPECT_TRUE(grupo->Botao(1)->hasFocus());
    QTest::keyClick(grupo->Botao(1), Qt::Key_Down);
    EXPECT_EQ(grupo->GetItemIndex(), 2);
    EXPECT_TRUE(grupo->Botao(2)->hasFocus());
    QTest::keyClick(grupo->Botao(2), Qt::Key_Up);
    EXPECT_EQ(grupo->GetItemIndex(), 1);
    EXPECT_EQ(cliques, 3);
    QTest::keyClick(grupo->Botao(1), Qt::Key_Tab);
    EXPECT_TRUE(depois->hasFocus());
}

TEST_F(Radio, FocusGivenToTheGroupReachesTheSelectedButton)
{
    janela.Abrir();
    grupo->setFocus();
    EXPECT_TRUE(grupo->Botao(0)->hasFocus());
    EXPECT_EQ(grupo->GetItemIndex(), -1);
    janela.setFocus();
    grupo->SetItemIndex(2);
    grupo->setFocus();
    EXPECT_TRUE(grupo->Botao(2)->hasFocus());
}

TEST_F(Radio, ColumnsAreFilledOneAfterTheOther)
{
    grupo->AddItem(QStringLiteral("Quatro"));
    grupo->SetColumns(2);
    janela.Abrir();
    const QPoint um = grupo->Botao(0)->pos();
    const QPoint dois = grupo->Botao(1)->pos();
    const QPoint tres = grupo->Botao(2)->pos();
    EXPECT_EQ(um.x(), dois.x());
    EXPECT_LT(um.y(), dois.y());
    EXPECT_LT(um.x(), tres.x());
    EXPECT_EQ(um.y(), tres.y());
}

TEST_F(Radio, ItemsCarryIntegersAndControls)
{
    grupo->SetObjeto(1, 77);
    EXPECT_EQ(grupo->GetObjeto(1), 77);
    EXPECT_EQ(grupo->GetObjeto(0), 0);
    auto *controle = new QWidget(&janela);
    grupo->SetControle(0, controle);
    EXPECT_EQ(grupo->GetControle(0), controle);
    delete controle;
    EXPECT_EQ(grupo->GetControle(0), nullptr);
    EXPECT_EQ(grupo->GetControle(5), nullptr);
    grupo->SetObjeto(5, 1);
    EXPECT_EQ(grupo->GetObjeto(5), 0);
}

TEST_F(Radio, LayoutMaySetTheIndexBeforeTheItems)
{
    TRadioGroup outro;
    int vezes = 0;
    outro.OnClick = [&](QObject *) { ++vezes; };
    outro.setProperty("caption", QStringLiteral("Tipo"));
    outro.setProperty("itemIndex", 1);
    EXPECT_EQ(outro.GetItemIndex(), -1);
    outro.setProperty("items", QStringList{QStringLiteral("a"), QStringLiteral("b")});
    outro.setProperty("columns", 2);
    outro.setProperty("tag", 1);
    EXPECT_EQ(outro.GetItemIndex(), 1);
    EXPECT_EQ(vezes, 0);
    EXPECT_EQ(outro.title(), QStringLiteral("Tipo"));
    EXPECT_EQ(outro.GetColumns(), 2);
    EXPECT_EQ(outro.Tag, 1);
}

TEST_F(Radio, ClickHandlerMayBringNewItemsOrDestroyTheGroup)
{
    janela.Abrir();
    grupo->OnClick = [this](QObject *) { grupo->SetItems({QStringLiteral("novo")}); };
    QTest::mouseClick(grupo->Botao(0), Qt::LeftButton, {},
                      QPoint(8, grupo->Botao(0)->height() / 2));
    EXPECT_EQ(grupo->GetItems(), QStringList{QStringLiteral("novo")});
    EXPECT_EQ(grupo->GetItemIndex(), 0);
    const QPointer<TRadioGroup> vivo(grupo);
    grupo->OnClick = [this](QObject *) { grupo->deleteLater(); };
    grupo->SetItemIndex(-1);
    grupo->SetItemIndex(0);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(Radio, NewItemsKeepTheIndexWhereItExists)
{
    grupo->SetItemIndex(1);
    cliques = 0;
    grupo->SetItems({QStringLiteral("a"), QStringLiteral("b")});
    EXPECT_EQ(grupo->GetItemIndex(), 1);
    grupo->SetItems({QStringLiteral("a")});
    EXPECT_EQ(grupo->GetItemIndex(), -1);
    EXPECT_EQ(cliques, 0);
}

TEST_F(Radio, OptionsThatComeLateStandInTheTabOrderWhereTheGroupStands)
{
    auto *antes = new QLineEdit(&janela);
    auto *tarde = new TRadioGroup(&janela);
    auto *depois = new QLineEdit(&janela);
    tarde->setGeometry(230, 0, 100, 100);
    antes->move(0, 200);
    depois->move(0, 240);
    tarde->SetItems({QStringLiteral("a"), QStringLiteral("b")});
    tarde->AddItem(QStringLiteral("c"));
    tarde->SetItems({QStringLiteral("x"), QStringLiteral("y")});
    tarde->AddItem(QStringLiteral("z"));
    janela.Abrir();
    const auto tab = [](Qt::Key tecla = Qt::Key_Tab) {
        QTest::keyClick(QApplication::focusWidget(), tecla);
    };
    for (const int escolhido : {-1, 0, 1, 2}) {
        tarde->SetItemIndex(escolhido);
        QWidget *opcao = tarde->Botao(std::max(0, escolhido));
        antes->setFocus();
        tab();
        EXPECT_EQ(QApplication::focusWidget(), opcao) << escolhido;
        tab();
        EXPECT_EQ(QApplication::focusWidget(), depois) << escolhido;
        tab(Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget(), opcao) << escolhido;
        tab(Qt::Key_Backtab);
        EXPECT_EQ(QApplication::focusWidget(), antes) << escolhido;
    }
}

TEST_F(Radio, TheHandlerMayTakeItselfOut)
{
    janela.Abrir();
    EXPECT_TRUE(InteiroAoSair(grupo->OnClick, [this] {
        QTest::mouseClick(grupo->Botao(0), Qt::LeftButton, {},
                          QPoint(8, grupo->Botao(0)->height() / 2));
    }));
    EXPECT_TRUE(InteiroAoSair(grupo->OnClick, [this] { grupo->SetItemIndex(1); }));
}
