#include "platform/toolkit/TMaskEdit.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Mascarado : testing::Test {
    Mascarado() { edit.SetEditMask(QStringLiteral("99/99/99;0;_")); }

    void Cursor(int posicao) { edit.setCursorPosition(posicao); }

    TAvisos avisos;
    TMaskEdit edit;
};

} // namespace

TEST_F(Mascarado, EmptyEditShowsBlanksAndAnswersTheEmptyText)
{
    EXPECT_TRUE(edit.IsMasked());
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("__/__/__"));
    EXPECT_EQ(edit.GetText(), QString());
    EXPECT_TRUE(edit.IsEmpty());
}

TEST_F(Mascarado, TypedDigitsFillPlacesAndPassOverLiterals)
{
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("010203"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/03"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
    QTest::keyClick(&edit, Qt::Key_4);
    EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
}

TEST_F(Mascarado, TypedSeparatorsAreTakenForWhatTheyAre)
{
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("01/02/03"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
    edit.Clear();
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("1/2/03"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("1_/2_/03"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("1 2 03"));
}

TEST_F(Mascarado, LettersAreIgnoredInDigitPlaces)
{
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("a0x1"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/__/__"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Mascarado, EightDigitsOfTheProgramAreAllReadAndSeen)
{
    edit.SetText(QStringLiteral("01022003"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("01022003"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/2003"));
    EXPECT_EQ(edit.displayText(), QStringLiteral("01/02/2003"));
    edit.SetText(QStringLiteral("0102"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("0102"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/__"));
    edit.SetText(QStringLiteral("0102200"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("0102200"));
}

TEST_F(Mascarado, EightDigitsFitTheEditOfADateFrame)
{
    TJanela janela;
    auto *data = new TMaskEdit(&janela);
    data->setGeometry(1, 13, 55, 21);
    data->SetEditMask(QStringLiteral("99/99/99;0;_"));
    data->SetText(QStringLiteral("28/08/2008"));
    janela.Abrir();
    // Seen whole: the first character is still in view with the caret at the end.
    data->end(false);
    QTest::qWait(1);
    EXPECT_EQ(data->GetEditText().size(), 10);
    EXPECT_LT(data->fontMetrics().horizontalAdvance(data->GetEditText()), 55 - 2);
    EXPECT_EQ(data->cursorPositionAt(QPoint(2, 10)), 0);
    // Back to the mask's own width, the letters stand as ever.
    data->SetText(QStringLiteral("280808"));
    EXPECT_EQ(data->font().letterSpacing(), 0);
}

TEST_F(Mascarado, TextThatFitsNoPlaceIsKeptAsItIs)
{
    edit.SetText(QStringLiteral("amanhã"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("amanhã"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("amanhã"));
    QTest::keyClick(&edit, Qt::Key_1);
    EXPECT_EQ(edit.GetText(), QStringLiteral("amanhã"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetText(), QStringLiteral("amanh"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_1);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("1_/__/__"));
}

TEST_F(Mascarado, DeletingAForeignTextEndsInTheEmptyMask)
{
    edit.SetText(QStringLiteral("ab"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("__/__/__"));
}

TEST_F(Mascarado, BackspaceEmptiesPlacesAndLiteralsStay)
{
    edit.SetText(QStringLiteral("010203"));
    Cursor(8);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/0_"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/0_/__"));
    EXPECT_EQ(edit.cursorPosition(), 4);
    Cursor(0);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/0_/__"));
}

TEST_F(Mascarado, DeleteEmptiesThePlaceAtTheCaretAndNothingShifts)
{
    edit.SetText(QStringLiteral("010203"));
    Cursor(0);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("_1/02/03"));
    EXPECT_EQ(edit.cursorPosition(), 0);
    EXPECT_EQ(edit.GetText(), QStringLiteral(" 10203"));
    Cursor(2);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("_1/_2/03"));
}

TEST_F(Mascarado, OverflowOfTheProgramCanBeDeleted)
{
    edit.SetText(QStringLiteral("01022003"));
    Cursor(10);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/200"));
    Cursor(8);
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/20"));
    edit.SetText(QStringLiteral("01022003"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("__/__/__"));
}

TEST_F(Mascarado, SelectionIsEmptiedAndTypedOver)
{
    edit.SetText(QStringLiteral("010203"));
    edit.setSelection(1, 4);
    QTest::keyClick(&edit, Qt::Key_9);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("09/__/03"));
    EXPECT_EQ(edit.cursorPosition(), 3);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_1);
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("1_/__/__"));
}

TEST_F(Mascarado, PastesMaskedAndBareText)
{
    for (const QString &colado : {QStringLiteral("01/02/03"), QStringLiteral("010203"),
                                  QStringLiteral(" 01/02/03 "), QStringLiteral("01/02/03\n")}) {
        edit.Clear();
        Cursor(0);
        ColarTexto(&edit, colado);
        EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
    }
    edit.selectAll();
    ColarTexto(&edit, QStringLiteral("311299"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("31/12/99"));
    Cursor(3);
    ColarTexto(&edit, QStringLiteral("01/00"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("31/01/00"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Mascarado, PasteThatDoesNotFitIsRefusedWhole)
{
    edit.SetText(QStringLiteral("010203"));
    for (const QString &colado : {QStringLiteral("01/02/2003"), QStringLiteral("hoje")}) {
        avisos.textos.clear();
        edit.selectAll();
        ColarTexto(&edit, colado);
        EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
        ASSERT_EQ(avisos.textos.size(), 1);
        EXPECT_EQ(avisos.textos[0], QStringLiteral("O texto \"%1\" não cabe na máscara deste campo "
                                                   "e não foi colado.")
                                        .arg(colado));
    }
}

TEST_F(Mascarado, ForeignCharacterIsRefusedWithTheWarningOfTheGate)
{
    Tecla(&edit, 0, QStringLiteral("€"));
    EXPECT_EQ(edit.GetText(), QString());
    EXPECT_EQ(avisos.textos.size(), 1);
}

TEST_F(Mascarado, HomeAndEndGoToTheFilledPart)
{
    edit.SetText(QStringLiteral("0102"));
    QTest::keyClick(&edit, Qt::Key_Home);
    EXPECT_EQ(edit.cursorPosition(), 0);
    QTest::keyClick(&edit, Qt::Key_End);
    EXPECT_EQ(edit.cursorPosition(), 5);
    QTest::keyClick(&edit, Qt::Key_3);
    EXPECT_EQ(edit.GetText(), QStringLiteral("01023"));
    QTest::keyClick(&edit, Qt::Key_Home, Qt::ShiftModifier);
    EXPECT_EQ(edit.selectedText(), QStringLiteral("01/02/3"));
}

TEST_F(Mascarado, UndoAndRedo)
{
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("01"));
    edit.Desfazer();
    EXPECT_EQ(edit.GetText(), QStringLiteral("0"));
    edit.Refazer();
    EXPECT_EQ(edit.GetText(), QStringLiteral("01"));
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit.GetText(), QString());
    edit.SetText(QStringLiteral("05"));
    edit.Desfazer();
    EXPECT_EQ(edit.GetText(), QStringLiteral("05"));
}

TEST_F(Mascarado, AnnouncesEachChangeOnce)
{
    QSignalSpy mudou(&edit, &QLineEdit::textChanged);
    QSignalSpy editado(&edit, &QLineEdit::textEdited);
    int chamadas = 0;
    edit.OnChange = [&](QObject *) { ++chamadas; };
    edit.SetText(QStringLiteral("010203"));
    edit.SetText(QStringLiteral("01/02/03"));
    EXPECT_EQ(mudou.count(), 1);
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_9);
    EXPECT_EQ(mudou.count(), 2);
    EXPECT_EQ(editado.count(), 1);
    EXPECT_EQ(chamadas, 2);
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(mudou.count(), 2);
}

TEST_F(Mascarado, WritingThroughTheBaseClassIsBroughtIntoForm)
{
    int chamadas = 0;
    edit.OnChange = [&](QObject *) { ++chamadas; };
    QLineEdit *base = &edit;
    base->setText(QStringLiteral("010203"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("01/02/03"));
    EXPECT_EQ(chamadas, 1);
    base->clear();
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("__/__/__"));
}

TEST_F(Mascarado, ClickIntoAnEmptyEditStartsAtTheFirstPlace)
{
    TJanela janela;
    auto *data = new TMaskEdit(&janela);
    data->SetEditMask(QStringLiteral("99/99/99;0;_"));
    data->resize(90, 21);
    janela.Abrir();
    QTest::mouseClick(data, Qt::LeftButton, {}, QPoint(60, 10));
    EXPECT_EQ(data->cursorPosition(), 0);
    QTest::keyClicks(data, QStringLiteral("01"));
    EXPECT_EQ(data->GetText(), QStringLiteral("01"));
}

TEST_F(Mascarado, LiteralsArePartOfTheTextWhereTheMaskSaysSo)
{
    edit.SetEditMask(QStringLiteral("00000-000;1; "));
    edit.SetText(QStringLiteral("01045001"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("01045-001"));
    edit.SetText(QStringLiteral("01045"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("01045-   "));
    edit.Clear();
    EXPECT_EQ(edit.GetText(), QString());
    edit.SetEditMask(QStringLiteral("99/99/99"));
    edit.SetText(QStringLiteral("01/02/03"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("01/02/03"));
}

TEST_F(Mascarado, ChangingTheMaskKeepsTheText)
{
    edit.SetText(QStringLiteral("010203"));
    edit.SetEditMask(QStringLiteral("9999-99;0;_"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("0102-03"));
    edit.SetEditMask(QString());
    EXPECT_FALSE(edit.IsMasked());
    EXPECT_EQ(edit.GetText(), QStringLiteral("010203"));
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("010203abc"));
}

TEST_F(Mascarado, KindsOfPlaces)
{
    edit.SetEditMask(QStringLiteral(">LLL<-a000;0;_"));
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("1abcX12"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("ABC-x12_"));
    EXPECT_FALSE(edit.IsComplete());
    QTest::keyClick(&edit, Qt::Key_3);
    EXPECT_TRUE(edit.IsComplete());
    edit.SetEditMask(QStringLiteral("\\A#99;0;_"));
    edit.Clear();
    Cursor(0);
    QTest::keyClicks(&edit, QStringLiteral("-12"));
    EXPECT_EQ(edit.GetEditText(), QStringLiteral("A-12"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("-12"));
    edit.SetEditMask(QStringLiteral("cc cc;0;_"));
    edit.SetText(QStringLiteral("a bc"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("a bc"));
}

TEST_F(Mascarado, OptionalPlacesDoNotMakeItIncomplete)
{
    edit.SetText(QStringLiteral("01"));
    EXPECT_TRUE(edit.IsComplete());
    edit.SetEditMask(QStringLiteral("00/00/00;0;_"));
    EXPECT_FALSE(edit.IsComplete());
}

TEST_F(Mascarado, BurstOfKeysLosesNone)
{
    edit.SetEditMask(QString(200, u'9') + QStringLiteral(";0;_"));
    QString tudo;
    for (int i = 0; i < 200; ++i)
        tudo += QChar(u'0' + i % 10);
    Cursor(0);
    QTest::keyClicks(&edit, tudo);
    EXPECT_EQ(edit.GetText(), tudo);
}

TEST_F(Mascarado, ReadOnlyTakesNothing)
{
    edit.SetText(QStringLiteral("01"));
    edit.setReadOnly(true);
    QTest::keyClicks(&edit, QStringLiteral("9"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Delete);
    ColarTexto(&edit, QStringLiteral("9"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("01"));
}

TEST_F(Mascarado, EnteredWithoutASelectionTheCaretIsWhereTypingBegins)
{
    TJanela janela;
    auto *data = new TMaskEdit(&janela);
    data->SetEditMask(QStringLiteral("99/99/99;0;_"));
    auto *outro = new QLineEdit(&janela);
    outro->move(100, 0);
    janela.Abrir();
    const auto entrar = [&](const QString &texto) {
        data->SetText(texto);
        outro->setFocus();
        data->setFocus();
        return data->cursorPosition();
    };
    EXPECT_EQ(entrar(QString()), 0);
    EXPECT_EQ(entrar(QStringLiteral("0102")), 6);
    EXPECT_EQ(entrar(QStringLiteral("010203")), 0);
    QTest::keyClicks(data, QStringLiteral("311299"));
    EXPECT_EQ(data->GetText(), QStringLiteral("311299"));
    EXPECT_EQ(entrar(QStringLiteral("01022003")), 10) << "a rest behind the mask is not typed over";
}

TEST_F(Mascarado, TheHandlerMayTakeItselfOutOrDestroyTheEdit)
{
    Cursor(0);
    EXPECT_TRUE(InteiroAoSair(edit.OnChange, [this] { QTest::keyClick(&edit, Qt::Key_1); }));
    TJanela janela;
    auto *outro = new TMaskEdit(&janela);
    outro->SetEditMask(QStringLiteral("99/99/99;0;_"));
    const QPointer<TMaskEdit> vivo(outro);
    outro->OnChange = [&](QObject *) { delete outro; };
    QTest::keyClick(outro, Qt::Key_1);
    EXPECT_TRUE(vivo.isNull());
}
