#include "platform/toolkit/TUpDown.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QToolButton>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct UpDown : testing::Test {
    UpDown()
    {
        edit = new QLineEdit(&janela);
        edit->setGeometry(0, 12, 62, 21);
        botoes = new TUpDown(&janela);
        botoes->setGeometry(62, 12, 15, 21);
        botoes->Associar(edit);
    }

    QToolButton *Seta(const char *nome)
    {
        for (QToolButton *botao : botoes->findChildren<QToolButton *>()) {
            if (botao->accessibleName() == QString::fromUtf8(nome))
                return botao;
        }
        return nullptr;
    }

    TJanela janela;
    QLineEdit *edit;
    TUpDown *botoes;
};

} // namespace

TEST_F(UpDown, ClicksStepTheNumberOfTheEdit)
{
    edit->setText(QStringLiteral("7"));
    janela.Abrir();
    int cliques = 0;
    botoes->OnClick = [&](QObject *, bool) { ++cliques; };
    QTest::mouseClick(Seta("Aumentar"), Qt::LeftButton);
    EXPECT_EQ(edit->text(), QStringLiteral("8"));
    EXPECT_EQ(botoes->GetPosition(), 8);
    QTest::mouseClick(Seta("Diminuir"), Qt::LeftButton);
    QTest::mouseClick(Seta("Diminuir"), Qt::LeftButton);
    EXPECT_EQ(edit->text(), QStringLiteral("6"));
    EXPECT_EQ(cliques, 3);
}

TEST_F(UpDown, KeysInTheEditStepToo)
{
    edit->setText(QStringLiteral("7"));
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(edit->text(), QStringLiteral("8"));
    QTest::keyClick(edit, Qt::Key_Down);
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    botoes->Associar(nullptr);
    QTest::keyClick(edit, Qt::Key_Up);
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
}

TEST_F(UpDown, PositionDoesNotWriteIntoTheEdit)
{
    edit->setText(QStringLiteral("100"));
    botoes->SetPosition(250);
    EXPECT_EQ(botoes->GetPosition(), 250);
    EXPECT_EQ(edit->text(), QStringLiteral("100"));
}

TEST_F(UpDown, NumbersAreOf16Bits)
{
    botoes->SetPosition(100000);
    EXPECT_EQ(botoes->GetPosition(), 32767);
    botoes->SetPosition(-100000);
    EXPECT_EQ(botoes->GetPosition(), -32768);
    botoes->SetMin(0);
    EXPECT_EQ(botoes->GetPosition(), 0);
    botoes->SetMax(40000);
    EXPECT_EQ(botoes->GetMax(), 32767);
}

TEST_F(UpDown, BoundsStopTheStepsAndDoNotBendANumberOutside)
{
    botoes->SetMin(0);
    botoes->SetMax(10);
    botoes->SetIncrement(4);
    edit->setText(QStringLiteral("8"));
    botoes->Passo(true);
    EXPECT_EQ(edit->text(), QStringLiteral("10"));
    botoes->Passo(true);
    EXPECT_EQ(edit->text(), QStringLiteral("10"));
    edit->setText(QStringLiteral("50"));
    botoes->Passo(true);
    EXPECT_EQ(edit->text(), QStringLiteral("50"));
    botoes->Passo(false);
    EXPECT_EQ(edit->text(), QStringLiteral("46"));
}

TEST_F(UpDown, ReadOnlyEditIsNotStepped)
{
    edit->setText(QStringLiteral("8"));
    edit->setReadOnly(true);
    botoes->Passo(true);
    EXPECT_EQ(edit->text(), QStringLiteral("8"));
    EXPECT_EQ(botoes->GetPosition(), 0);
}

TEST_F(UpDown, EditMayDieFirst)
{
    delete edit;
    botoes->Passo(true);
    EXPECT_EQ(botoes->GetPosition(), 1);
    EXPECT_EQ(botoes->Associado(), nullptr);
}

TEST_F(UpDown, ArrowsFillItAndTakeNoFocus)
{
    janela.Abrir();
    edit->setFocus();
    QTest::mouseClick(Seta("Aumentar"), Qt::LeftButton);
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_EQ(Seta("Aumentar")->geometry().united(Seta("Diminuir")->geometry()), botoes->rect());
}

TEST_F(UpDown, TheHandlerMayTakeItselfOutOrDestroyTheArrows)
{
    janela.Abrir();
    const auto clicar = [this] { QTest::mouseClick(Seta("Aumentar"), Qt::LeftButton); };
    EXPECT_TRUE(InteiroAoSair(botoes->OnClick, clicar));
    EXPECT_TRUE(InteiroAoSair(botoes->OnClick, [this] { QTest::keyClick(edit, Qt::Key_Up); }));
    const QPointer<TUpDown> vivo(botoes);
    botoes->OnClick = [this](QObject *, bool) { delete botoes; };
    clicar();
    EXPECT_TRUE(vivo.isNull());
    EXPECT_EQ(edit->text(), QStringLiteral("3"));
}
