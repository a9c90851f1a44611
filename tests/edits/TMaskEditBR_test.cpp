#include "platform/edits/TMaskEditBR.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct MaskBR : testing::Test {
    MaskBR()
    {
        ddd = new TMaskEditBR(&janela);
        ddd->setGeometry(4, 20, 24, 21);
        ddd->SetEditMask(QStringLiteral("99"));
        ddd->SetCaption(QStringLiteral("DDD"));
        ddd->SetAutoSelect(false);
        ddd->OnLastType = [this](QObject *) {
            ++ultimas;
            outro->setFocus();
        };
        ddd->OnUncomplete = [this](QObject *) { ++incompletos; };
        outro = new QLineEdit(&janela);
        outro->move(40, 20);
    }

    TJanela janela;
    TMaskEditBR *ddd;
    QLineEdit *outro;
    int ultimas = 0;
    int incompletos = 0;
};

} // namespace

TEST_F(MaskBR, TypingTheLastPlaceIsTold)
{
    janela.Abrir();
    ddd->setFocus(Qt::TabFocusReason);
    QTest::keyClick(ddd, Qt::Key_1);
    EXPECT_EQ(ultimas, 0);
    QTest::keyClick(ddd, Qt::Key_1);
    EXPECT_EQ(ultimas, 1);
    EXPECT_EQ(ddd->GetText(), QStringLiteral("11"));
    EXPECT_TRUE(outro->hasFocus());
    EXPECT_EQ(incompletos, 0);
}

TEST_F(MaskBR, RefusedKeysAndPastesAreNoLastType)
{
    janela.Abrir();
    ddd->setFocus();
    QTest::keyClicks(ddd, QStringLiteral("x"));
    ColarTexto(ddd, QStringLiteral("21"));
    EXPECT_EQ(ddd->GetText(), QStringLiteral("21"));
    QTest::keyClicks(ddd, QStringLiteral("3"));
    QTest::keyClick(ddd, Qt::Key_Backspace);
    EXPECT_EQ(ultimas, 0);
}

TEST_F(MaskBR, AFullOneIsTypedOverFromItsBeginning)
{
    ddd->SetText(QStringLiteral("11"));
    janela.Abrir();
    outro->setFocus();
    QTest::keyClick(outro, Qt::Key_Backtab, Qt::ShiftModifier);
    ASSERT_TRUE(ddd->hasFocus());
    EXPECT_FALSE(ddd->hasSelectedText());
    EXPECT_EQ(ddd->cursorPosition(), 0);
    QTest::keyClicks(ddd, QStringLiteral("21"));
    EXPECT_EQ(ddd->GetText(), QStringLiteral("21"));
    EXPECT_EQ(ultimas, 1);
    EXPECT_TRUE(outro->hasFocus());
}

TEST_F(MaskBR, AutoExitLeavesAtTheLastPlaceWhenNoneIsEmpty)
{
    ddd->OnLastType = nullptr;
    ddd->SetEditMask(QStringLiteral("99/99;0;_"));
    janela.Abrir();
    ddd->setFocus();
    QTest::keyClicks(ddd, QStringLiteral("1234"));
    EXPECT_TRUE(ddd->hasFocus()) << "not unless it was asked for";
    ddd->SetAutoExit(true);
    ddd->Clear();
    ddd->setCursorPosition(3);
    QTest::keyClicks(ddd, QStringLiteral("34"));
    EXPECT_TRUE(ddd->hasFocus()) << "the first two are missing";
    ddd->setCursorPosition(0);
    QTest::keyClicks(ddd, QStringLiteral("12"));
    EXPECT_TRUE(ddd->hasFocus()) << "not the last place";
    QTest::keyClicks(ddd, QStringLiteral("3"));
    QTest::keyClick(ddd, Qt::Key_Return);
    EXPECT_TRUE(ddd->hasFocus());
    QTest::keyClicks(ddd, QStringLiteral("5"));
    EXPECT_TRUE(outro->hasFocus());
    EXPECT_EQ(ddd->GetText(), QStringLiteral("1235"));
    EXPECT_EQ(incompletos, 0);
}

TEST_F(MaskBR, AutoExitLeavesTheFocusWhereTheLastTypeEventSentIt)
{
    auto *terceiro = new QLineEdit(&janela);
    terceiro->move(200, 20);
    ddd->OnLastType = [&](QObject *) { terceiro->setFocus(); };
    ddd->SetAutoExit(true);
    janela.Abrir();
    ddd->setFocus();
    QTest::keyClicks(ddd, QStringLiteral("11"));
    EXPECT_TRUE(terceiro->hasFocus());
    ddd->OnLastType = [this](QObject *) { delete std::exchange(ddd, nullptr); };
    ddd->Clear();
    ddd->setFocus();
    TMaskEditBR *edit = ddd;
    QTest::keyClick(edit, Qt::Key_1);
    QKeyEvent ultima(QEvent::KeyPress, Qt::Key_1, Qt::NoModifier, QStringLiteral("1"));
    QCoreApplication::sendEvent(edit, &ultima);
    EXPECT_EQ(ddd, nullptr);
}

TEST_F(MaskBR, PropertiesForLayouts)
{
    ddd->setProperty("AutoExit", true);
    ddd->setProperty("editMask", QStringLiteral("99"));
    ddd->setProperty("autoSelect", false);
    ddd->setProperty("labelSpacing", 3);
    ddd->setProperty("alignment", int(Qt::AlignCenter));
    EXPECT_TRUE(ddd->GetAutoExit());
    EXPECT_EQ(ddd->GetLabelSpacing(), 3);
    EXPECT_EQ(ddd->alignment(), Qt::AlignCenter);
}

TEST_F(MaskBR, LeavingItIncompleteIsTold)
{
    janela.Abrir();
    ddd->setFocus();
    QTest::keyClick(ddd, Qt::Key_1);
    QTest::keyClick(ddd, Qt::Key_Tab);
    EXPECT_TRUE(outro->hasFocus());
    EXPECT_EQ(incompletos, 1);
    ddd->setFocus();
    ddd->Clear();
    outro->setFocus();
    EXPECT_EQ(incompletos, 2);
    ddd->SetText(QStringLiteral("11"));
    ddd->setFocus();
    outro->setFocus();
    EXPECT_EQ(incompletos, 2);
}

TEST_F(MaskBR, CaptionFollowsTheEdit)
{
    janela.Abrir();
    EXPECT_EQ(ddd->EditLabel->text(), QStringLiteral("DDD"));
    EXPECT_TRUE(ddd->EditLabel->isVisible());
    EXPECT_EQ(ddd->EditLabel->geometry().bottom() + 1, 19);
    ddd->hide();
    EXPECT_FALSE(ddd->EditLabel->isVisible());
    delete ddd;
}

TEST_F(MaskBR, DateMaskShowsTheSeparatorsAndKeepsThemInTheText)
{
    ddd->SetEditMask(QStringLiteral("99/99/99"));
    ddd->SetText(QStringLiteral("01/02/03"));
    EXPECT_EQ(ddd->GetText(), QStringLiteral("01/02/03"));
    ddd->SetText(QString());
    EXPECT_EQ(ddd->GetText(), QString());
}

TEST_F(MaskBR, IsAnEditOfItsOwnKind)
{
    EXPECT_EQ(qobject_cast<TMaskEdit *>(static_cast<QObject *>(ddd)), nullptr);
    EXPECT_NE(qobject_cast<QLineEdit *>(static_cast<QObject *>(ddd)), nullptr);
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TMaskEditBR")));
}
