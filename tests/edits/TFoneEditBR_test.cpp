#include "platform/edits/TFoneEditBR.h"

#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Fone : testing::Test {
    Fone()
    {
        fone = new TFoneEditBR(&janela);
        fone->setGeometry(30, 20, 70, 21);
        outro = new QLineEdit(&janela);
        outro->move(102, 20);
    }

    void Teclar(const QString &teclas) { QTest::keyClicks(fone, teclas); }

    TAvisos avisos;
    TJanela janela;
    TFoneEditBR *fone;
    QLineEdit *outro;
};

} // namespace

TEST_F(Fone, ProgramTextOfEightOrNineDigitsIsHyphenated)
{
    fone->SetText(QStringLiteral("12345678"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("1234-5678"));
    fone->SetText(QStringLiteral("987654321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    fone->SetText(QStringLiteral("9876.5432"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("9876-5432"));
    EXPECT_EQ(fone->SoDigitos(), QStringLiteral("98765432"));
    fone->SetText(QStringLiteral("98765-4321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    fone->Clear();
    EXPECT_EQ(fone->GetText(), QString());
}

TEST_F(Fone, OtherProgramTextIsKeptAsItIs)
{
    for (const QString &texto : {QStringLiteral("ramal 23"), QStringLiteral("0800-123-4567"),
                                 QStringLiteral("234-5678"), QStringLiteral("190")}) {
        fone->SetText(texto);
        EXPECT_EQ(fone->GetText(), texto);
    }
    fone->SetText(QStringLiteral("ramal 23"));
    Teclar(QStringLiteral("4"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("ramal 23"));
    QTest::keyClick(fone, Qt::Key_Backspace);
    EXPECT_EQ(fone->GetText(), QStringLiteral("ramal 2"));
    fone->selectAll();
    Teclar(QStringLiteral("4"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("4"));
}

TEST_F(Fone, TypedDigitsGetTheirHyphen)
{
    const QString fixo = QStringLiteral("32345678");
    QStringList vistas;
    for (const QChar c : fixo) {
        Teclar(QString(c));
        vistas << fone->GetText();
    }
    EXPECT_EQ(vistas.at(3), QStringLiteral("3234"));
    EXPECT_EQ(vistas.at(4), QStringLiteral("3234-5"));
    EXPECT_EQ(vistas.last(), QStringLiteral("3234-5678"));
    fone->Clear();
    Teclar(QStringLiteral("98765-4321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    Teclar(QStringLiteral("0"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    EXPECT_EQ(fone->GetMaxLength(), 10);
}

TEST_F(Fone, LettersAreIgnored)
{
    Teclar(QStringLiteral("3a2 3(4"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("3234"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Fone, DeletingPassesOverTheHyphen)
{
    fone->SetText(QStringLiteral("32345678"));
    fone->setCursorPosition(5);
    QTest::keyClick(fone, Qt::Key_Backspace);
    EXPECT_EQ(fone->GetText(), QStringLiteral("3235-678"));
    EXPECT_EQ(fone->cursorPosition(), 3);
    fone->SetText(QStringLiteral("32345678"));
    fone->setCursorPosition(4);
    QTest::keyClick(fone, Qt::Key_Delete);
    EXPECT_EQ(fone->GetText(), QStringLiteral("3234-678"));
    fone->selectAll();
    QTest::keyClick(fone, Qt::Key_Delete);
    EXPECT_EQ(fone->GetText(), QString());
    fone->Desfazer();
    EXPECT_EQ(fone->GetText(), QStringLiteral("3234-678"));
}

TEST_F(Fone, InsertsInTheMiddle)
{
    fone->SetText(QStringLiteral("32345678"));
    fone->setCursorPosition(0);
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("93234-5678"));
    EXPECT_EQ(fone->cursorPosition(), 1);
}

TEST_F(Fone, ACompleteOneIsTypedOverInTheMiddle)
{
    fone->SetText(QStringLiteral("987654321"));
    fone->setCursorPosition(4);
    Teclar(QStringLiteral("00"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98760-0321"));
    EXPECT_EQ(fone->cursorPosition(), 7);
    fone->end(false);
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98760-0321"));
}

TEST_F(Fone, AWholePastedNumberReplacesWhatStandsThere)
{
    fone->SetText(QStringLiteral("ramal 23"));
    ColarTexto(fone, QStringLiteral("98765-4321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    fone->setCursorPosition(3);
    ColarTexto(fone, QStringLiteral("3234 5678"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("3234-5678"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Fone, EnteredFromTheProgramEverythingIsSelected)
{
    fone->SetText(QStringLiteral("32345678"));
    janela.Abrir();
    outro->setFocus();
    fone->setFocus();
    EXPECT_EQ(fone->selectedText(), QStringLiteral("3234-5678"));
    outro->setFocus();
    fone->SetAutoSelect(false);
    fone->setFocus();
    EXPECT_FALSE(fone->hasSelectedText());
}

TEST_F(Fone, AKeyThatAHandlerTakesBackDoesNotLeave)
{
    fone->SetAutoExit(true);
    fone->SetText(QStringLiteral("98765-4321"));
    janela.Abrir();
    fone->setFocus();
    QObject::connect(fone, &QLineEdit::textEdited, fone,
                     [this] { fone->SetText(QStringLiteral("98765-4321")); });
    fone->setCursorPosition(9);
    Teclar(QStringLiteral("9"));
    EXPECT_TRUE(fone->hasFocus());
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
}

TEST_F(Fone, PastesNumbersAndRefusesTheRest)
{
    ColarTexto(fone, QStringLiteral("98765 4321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
    for (const QString &ruim : {QStringLiteral("(11) 98765-4321"), QStringLiteral("fone 32345678"),
                                QStringLiteral("+5532345678")}) {
        avisos.textos.clear();
        fone->selectAll();
        ColarTexto(fone, ruim);
        EXPECT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
        ASSERT_EQ(avisos.textos.size(), 1);
        EXPECT_EQ(
            avisos.textos[0],
            QStringLiteral("O texto \"%1\" não é um telefone de oito ou nove dígitos e não foi "
                           "colado.\r\nO DDD tem o seu próprio campo.")
                .arg(ruim));
    }
}

TEST_F(Fone, AutoExitLeavesAFixedLineAtEightAndAMobileAtNine)
{
    fone->SetAutoExit(true);
    janela.Abrir();
    fone->setFocus();
    Teclar(QStringLiteral("12345678"));
    EXPECT_TRUE(fone->hasFocus()) << "no fixed line begins so";
    fone->clear();
    Teclar(QStringLiteral("3234567"));
    EXPECT_TRUE(fone->hasFocus());
    Teclar(QStringLiteral("8"));
    EXPECT_TRUE(outro->hasFocus());
    EXPECT_EQ(fone->GetText(), QStringLiteral("3234-5678"));
    fone->setFocus();
    fone->selectAll();
    Teclar(QStringLiteral("98765432"));
    EXPECT_TRUE(fone->hasFocus());
    Teclar(QStringLiteral("1"));
    EXPECT_TRUE(outro->hasFocus());
}

TEST_F(Fone, WithoutAutoExitNothingMoves)
{
    janela.Abrir();
    fone->setFocus();
    Teclar(QStringLiteral("32345678"));
    EXPECT_TRUE(fone->hasFocus());
    QTest::keyClick(fone, Qt::Key_Return);
    EXPECT_TRUE(fone->hasFocus());
}

TEST_F(Fone, AutoExitIsNotRunByEnterNorByARefusedKey)
{
    fone->SetAutoExit(true);
    fone->SetText(QStringLiteral("98765-4321"));
    janela.Abrir();
    fone->setFocus();
    fone->end(false);
    Teclar(QStringLiteral("5x"));
    QTest::keyClick(fone, Qt::Key_Return);
    EXPECT_TRUE(fone->hasFocus());
}

TEST_F(Fone, AnnouncesOncePerEditAndLosesNoKey)
{
    QSignalSpy mudou(fone, &QLineEdit::textChanged);
    for (int i = 0; i < 20; ++i) {
        Teclar(QStringLiteral("987654321"));
        ASSERT_EQ(fone->GetText(), QStringLiteral("98765-4321"));
        fone->selectAll();
        QTest::keyClick(fone, Qt::Key_Delete);
    }
    EXPECT_EQ(mudou.count(), 20 * 10);
}

TEST_F(Fone, PropertiesForLayouts)
{
    fone->setProperty("maxLength", 9);
    fone->setProperty("AutoExit", true);
    fone->setProperty("caption", QStringLiteral("Telefone 1"));
    EXPECT_TRUE(fone->GetAutoExit());
    Teclar(QStringLiteral("987654321"));
    EXPECT_EQ(fone->GetText(), QStringLiteral("9876-5432"));
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TFoneEditBR")));
}
