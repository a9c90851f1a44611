#include "forms/UMemoDiagBasF.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMemo.h"
#include "platform/toolkit/Teclas.h"
#include "support/Layouts.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QTextBlock>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TMemoDiagBasFTest : public testing::Test
{
protected:
    TMemoDiagBasFTest() : diag(Criar<TMemoDiagBasF>(nullptr)), memo(diag->Memo1) {}
    bool Executar(const std::function<void()> &usuario)
    {
        QTimer::singleShot(50, diag.get(), usuario);
        return diag->Executar();
    }
    void Abrir()
    {
        diag->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    }
    void Digitar(const QString &texto)
    {
        for (const QChar c : texto)
            Tecla(memo, c.toUpper().unicode(), QString(c));
    }

    TAvisos avisos;
    std::unique_ptr<TMemoDiagBasF> diag;
    TMemo *memo;
};

} // namespace

TEST_F(TMemoDiagBasFTest, LayoutIsTheGoldenOne)
{
    memo->SetText(QStringLiteral("Entregar depois das 18h.\r\nPortaria dos fundos."));
    Abrir();
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TMemoDiagBasF")));
    EXPECT_EQ(diag->MemoTitLab->text(), QStringLiteral("Digite o texto"));
    EXPECT_EQ(memo->Tag, 1);
    EXPECT_EQ(memo->GetMaxLength(), 300);
    EXPECT_EQ(memo->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
    EXPECT_TRUE(diag->PodeVazio);
    EXPECT_EQ(diag->ActiveControl(), memo);
}

TEST_F(TMemoDiagBasFTest, TheCaretStandsBehindAPresetTextOfSeveralLines)
{
    memo->SetText(QStringLiteral("um\r\ndois"));
    EXPECT_TRUE(Executar([&] {
        EXPECT_EQ(QApplication::focusWidget(), memo);
        EXPECT_TRUE(memo->textCursor().atEnd());
        Digitar(QStringLiteral("!"));
        QTest::mouseClick(diag->OkBitBtn, Qt::LeftButton);
    }));
    EXPECT_EQ(memo->GetText(), QStringLiteral("um\r\ndois!"));
}

TEST_F(TMemoDiagBasFTest, TheCaretGoesToTheEndEachTimeTheDialogOpens)
{
    memo->SetText(QStringLiteral("abc"));
    for (int vez = 0; vez < 2; ++vez) {
        memo->moveCursor(QTextCursor::Start);
        Executar([&] {
            EXPECT_TRUE(memo->textCursor().atEnd()) << vez;
            diag->Close();
        });
    }
}

TEST_F(TMemoDiagBasFTest, TheMemoGetsAnEndKeyWhenTheDialogOpens)
{
    QList<int> teclas;
    AoTeclaDescer(memo, [&](int &tecla, Qt::KeyboardModifiers) { teclas << tecla; });
    Abrir();
    EXPECT_EQ(teclas, QList<int>{35});
}

TEST_F(TMemoDiagBasFTest, BlanksOnlyAreRefusedWherePodeVazioIsOff)
{
    EXPECT_TRUE(diag->PodeOk());
    diag->PodeVazio = false;
    EXPECT_FALSE(diag->PodeOk());
    EXPECT_FALSE(Executar([&] {
        Digitar(QStringLiteral("  "));
        QTest::keyClick(memo, Qt::Key_Return);
        Digitar(QStringLiteral(" "));
        QTest::mouseClick(diag->OkBitBtn, Qt::LeftButton);
        QTest::qWait(20);
        EXPECT_TRUE(diag->isVisible());
        EXPECT_EQ(QApplication::focusWidget(), memo);
        diag->Close();
    }));
    memo->SetText(QStringLiteral(" x "));
    EXPECT_TRUE(diag->PodeOk());
}

TEST_F(TMemoDiagBasFTest, TypedAccentsComeOff)
{
    Abrir();
    Digitar(QStringLiteral("Ação à mão, Ü ñ 1ª"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("Acao a mao, U n 1ª"));
}

TEST_F(TMemoDiagBasFTest, NothingAccentedGetsInByAnyOtherWay)
{
    Abrir();
    Compor(memo, QStringLiteral("é"));
    Compor(memo, QStringLiteral("e\u0301")); // a letter and its accent apart
    Compor(memo, QStringLiteral("\u0301"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("ee"));
    ColarTexto(memo, QStringLiteral(" Índice\nção \u1EBD o\u0303"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("ee Indice\r\ncao e o"));
    Soltar(memo->viewport(), QPoint(2, 2), QStringLiteral("É"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("Eee Indice\r\ncao e o"));
    EXPECT_EQ(avisos.textos, QStringList());
    // What is no letter and cannot be kept is refused as everywhere.
    ColarTexto(memo, QStringLiteral("\u20AC"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("Eee Indice\r\ncao e o"));
}

TEST_F(TMemoDiagBasFTest, APresetTextKeepsItsAccentsWhileTheUserGoesOnTyping)
{
    memo->SetText(QStringLiteral("Observação"));
    Abrir();
    Digitar(QStringLiteral(" é"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("Observação e"));
}

TEST_F(TMemoDiagBasFTest, TheTextEndsAt300Characters)
{
    Abrir();
    ColarTexto(memo, QString(299, u'á'));
    Digitar(QStringLiteral("éí"));
    EXPECT_EQ(memo->GetText(), QString(299, u'a') + u'e');
    EXPECT_TRUE(diag->PodeOk());
}
