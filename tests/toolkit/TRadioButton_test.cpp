#include "platform/toolkit/TRadioButton.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class RadioButton : public testing::Test
{
protected:
    RadioButton()
    {
        for (TRadioButton *b : {um, dois}) {
            b->OnClick = [this](QObject *sender) {
                cliques << sender->objectName() + (um->isChecked() ? u'1' : u'0') +
                               (dois->isChecked() ? u'1' : u'0');
            };
        }
        um->setObjectName(QStringLiteral("um"));
        dois->setObjectName(QStringLiteral("dois"));
        dois->move(0, 30);
        fora->move(0, 60);
        fora->setChecked(true);
    }

    TJanela janela;
    QWidget *caixa = new QWidget(&janela);
    TRadioButton *um = new TRadioButton(caixa);
    TRadioButton *dois = new TRadioButton(caixa);
    TRadioButton *fora = new TRadioButton(&janela);
    QStringList cliques;
};

TEST_F(RadioButton, TheProgramsCheckIsAClick)
{
    um->SetChecked(true);
    EXPECT_EQ(cliques, QStringList{QStringLiteral("um10")});
    um->SetChecked(true);
    EXPECT_EQ(cliques.size(), 1) << "nothing changed";
    dois->setChecked(true);
    EXPECT_EQ(cliques.last(), QStringLiteral("dois01")) << "the other is unchecked already";
    EXPECT_EQ(cliques.size(), 2) << "being unchecked is no click";
    EXPECT_TRUE(fora->isChecked()) << "another parent is another group";
    fora->SetChecked(false);
    fora->SetChecked(true);
    EXPECT_TRUE(dois->isChecked()) << "a panel inside it too";
}

TEST_F(RadioButton, TheUsersClicksAndArrowsAreClicks)
{
    janela.Abrir();
    QTest::mouseClick(um, Qt::LeftButton, {}, QPoint(6, 8));
    QTest::mouseClick(um, Qt::LeftButton, {}, QPoint(6, 8));
    EXPECT_EQ(cliques, QStringList{QStringLiteral("um10")});
    um->setFocus();
    QTest::keyClick(um, Qt::Key_Down);
    EXPECT_EQ(cliques.size(), 2);
    EXPECT_TRUE(dois->isChecked());
    EXPECT_EQ(QApplication::focusWidget(), dois);
}

TEST_F(RadioButton, TabStopsAtTheCheckedOneOnly)
{
    dois->SetChecked(true);
    janela.Abrir();
    fora->setFocus();
    QTest::keyClick(fora, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), dois);
    QTest::keyClick(dois, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), fora);
    dois->SetChecked(false);
    QTest::keyClick(fora, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), um) << "none is checked";
}

TEST_F(RadioButton, UncheckingLeavesNoneCheckedAndIsNoClick)
{
    um->SetChecked(true);
    um->SetChecked(false);
    EXPECT_FALSE(um->isChecked());
    EXPECT_FALSE(dois->isChecked());
    EXPECT_EQ(cliques.size(), 1);
    dois->SetChecked(true);
    um->SetChecked(true);
    EXPECT_FALSE(dois->isChecked()) << "and they exclude each other still";
}

TEST_F(RadioButton, ANewParentIsANewGroup)
{
    um->SetChecked(true);
    um->setParent(&janela);
    EXPECT_FALSE(um->isChecked() && fora->isChecked());
    dois->SetChecked(true);
    um->SetChecked(true);
    EXPECT_TRUE(dois->isChecked());
    EXPECT_FALSE(fora->isChecked());
    TRadioButton solto;
    solto.SetChecked(true);
    EXPECT_TRUE(solto.isChecked());
    solto.SetChecked(false);
    EXPECT_FALSE(solto.isChecked());
}

TEST_F(RadioButton, PropertiesForLayouts)
{
    um->setProperty("caption", QStringLiteral("Qualquer data"));
    um->setProperty("tag", 1);
    EXPECT_EQ(um->text(), QStringLiteral("Qualquer data"));
    EXPECT_EQ(um->Tag, 1);
}

TEST_F(RadioButton, TheHandlerMayTakeItselfOutOrDestroyTheButtonLate)
{
    janela.Abrir();
    const auto clicar = [](TRadioButton *botao) {
        QTest::mouseClick(botao, Qt::LeftButton, {}, QPoint(6, 8));
    };
    EXPECT_TRUE(InteiroAoSair(um->OnClick, [&] { clicar(um); }));
    const QPointer<TRadioButton> vivo(dois);
    dois->OnClick = [this](QObject *) { dois->deleteLater(); };
    clicar(dois);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vivo.isNull());
}

} // namespace
