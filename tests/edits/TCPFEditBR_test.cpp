#include "platform/edits/TCPFEditBR.h"

#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

#include <QMetaProperty>
#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/* The engine of all edits that write their separators is tested here, on the CPF. */
struct CPFEdit : testing::Test {
    CPFEdit()
    {
        edit = new TCPFEditBR(&janela);
        edit->setGeometry(10, 20, 84, 21);
        outro = new QLineEdit(&janela);
        outro->move(120, 20);
    }

    void Teclar(const QString &teclas) { QTest::keyClicks(edit, teclas); }
    void Por(const QString &texto, int cursor)
    {
        edit->SetText(texto);
        edit->setCursorPosition(cursor);
    }
    /** The text with a bar at the caret. */
    QString Visto() const { return edit->GetText().insert(edit->cursorPosition(), u'|'); }

    TAvisos avisos;
    TJanela janela;
    TCPFEditBR *edit;
    QLineEdit *outro;
};

} // namespace

TEST_F(CPFEdit, TypedDigitsGetTheirSeparatorsWithTheNextDigit)
{
    QStringList vistas;
    for (const QChar c : QStringLiteral("52998224725")) {
        Teclar(QString(c));
        vistas << Visto();
    }
    EXPECT_EQ(vistas.at(2), QStringLiteral("529|"));
    EXPECT_EQ(vistas.at(3), QStringLiteral("529.9|"));
    EXPECT_EQ(vistas.at(6), QStringLiteral("529.982.2|"));
    EXPECT_EQ(vistas.at(9), QStringLiteral("529.982.247-2|"));
    EXPECT_EQ(vistas.at(10), QStringLiteral("529.982.247-25|"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Visto(), QStringLiteral("529.982.247-25|"));
    EXPECT_EQ(edit->GetMaxLength(), 14);
}

TEST_F(CPFEdit, TypedSeparatorsAndEverythingElseAreIgnored)
{
    Teclar(QStringLiteral("529.982.247-25"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    edit->Clear();
    Teclar(QStringLiteral(".5-/ 2x9+_"));
    Tecla(edit, 0, QStringLiteral("ç"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(CPFEdit, ThereAreNoGapsAndNothingTypedIsTheEmptyText)
{
    EXPECT_EQ(edit->GetText(), QString());
    EXPECT_EQ(edit->displayText(), QString());
    Teclar(QStringLiteral("5"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->GetText(), QString());
    EXPECT_EQ(edit->GetValor(), QString());
}

TEST_F(CPFEdit, InsertsInTheMiddleWhileThereIsRoom)
{
    Por(QStringLiteral("5298224725"), 3);
    EXPECT_EQ(Visto(), QStringLiteral("529|.822.472-5"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Visto(), QStringLiteral("529.9|82.247-25"));
}

TEST_F(CPFEdit, ACompleteOneIsTypedOver)
{
    Por(QStringLiteral("52998224725"), 0);
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(Visto(), QStringLiteral("1|29.982.247-25"));
    Teclar(QStringLiteral("23"));
    EXPECT_EQ(Visto(), QStringLiteral("123|.982.247-25"));
    Teclar(QStringLiteral("4"));
    EXPECT_EQ(Visto(), QStringLiteral("123.4|82.247-25"));
    Por(QStringLiteral("52998224725"), 4);
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Visto(), QStringLiteral("529.7|82.247-25"));
    Teclar(QStringLiteral("x."));
    EXPECT_EQ(Visto(), QStringLiteral("529.7|82.247-25"));
}

TEST_F(CPFEdit, ASelectionIsReplacedByWhatIsTyped)
{
    edit->SetText(QStringLiteral("52998224725"));
    edit->setSelection(2, 4); // "9.98"
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(Visto(), QStringLiteral("521|.224.725"));
    edit->selectAll();
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Visto(), QStringLiteral("7|"));
    edit->SetText(QStringLiteral("52998224725"));
    edit->setSelection(3, 1); // a separator alone: nothing to take out, and no room
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
}

TEST_F(CPFEdit, DeletingClosesUpAndPassesOverSeparators)
{
    Por(QStringLiteral("52998224725"), 4);
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Visto(), QStringLiteral("52|9.822.472-5"));
    Por(QStringLiteral("52998224725"), 3);
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Visto(), QStringLiteral("529|.822.472-5"));
    Por(QStringLiteral("52998224725"), 0);
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    edit->end(false);
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    edit->setSelection(1, 6);
    QTest::keyClick(edit, Qt::Key_Delete);
    EXPECT_EQ(Visto(), QStringLiteral("5|24.725"));
    edit->selectAll();
    QTest::keyClick(edit, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(edit->GetText(), QString());
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("524.725"));
}

TEST_F(CPFEdit, AWrongDigitIsTakenOutAndTypedAnewInItsPlace)
{
    Por(QStringLiteral("52978224725"), 5);
    EXPECT_EQ(Visto(), QStringLiteral("529.7|82.247-25"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Visto(), QStringLiteral("529|.822.472-5"));
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Visto(), QStringLiteral("529.9|82.247-25"));
    EXPECT_TRUE(edit->Valido());
}

TEST_F(CPFEdit, UndoAndRedoGoThroughTheUsersEdits)
{
    Teclar(QStringLiteral("5299"));
    edit->Desfazer();
    EXPECT_EQ(edit->GetText(), QStringLiteral("529"));
    edit->Refazer();
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.9"));
    edit->SetText(QStringLiteral("1"));
    edit->Desfazer();
    EXPECT_EQ(edit->GetText(), QStringLiteral("1")) << "the program wrote";
}

TEST_F(CPFEdit, PastesMaskedAndBareOnes)
{
    for (const char *texto : {"52998224725", "529.982.247-25", " 529.982.247-25\n", "529982247-25",
                              "529 982 247 25", "529.982.247/25"}) {
        edit->Clear();
        ColarTexto(edit, QString::fromLatin1(texto));
        EXPECT_EQ(Visto(), QStringLiteral("529.982.247-25|")) << texto;
    }
    // A whole one replaces what stands there, wherever the caret is.
    Por(QStringLiteral("15886489070"), 5);
    ColarTexto(edit, QStringLiteral("529.982.247-25"));
    EXPECT_EQ(Visto(), QStringLiteral("529.982.247-25|"));
    edit->SetText(QStringLiteral("ISENTO"));
    ColarTexto(edit, QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(CPFEdit, APartIsPastedIntoItsPlace)
{
    Por(QStringLiteral("52947"), 3);
    ColarTexto(edit, QStringLiteral(".982.2"));
    EXPECT_EQ(Visto(), QStringLiteral("529.982.2|47"));
    edit->end(false);
    ColarTexto(edit, QStringLiteral("-25"));
    EXPECT_EQ(Visto(), QStringLiteral("529.982.247-25|"));
    edit->setSelection(12, 2);
    ColarTexto(edit, QStringLiteral("00"));
    EXPECT_EQ(Visto(), QStringLiteral("529.982.247-00|"));
}

TEST_F(CPFEdit, WhatDoesNotFitIsRefusedWhole)
{
    Por(QStringLiteral("529982"), 2);
    for (const char *ruim : {"12ABC345000188", "11.017.153/0002-49", "CPF 52998224725", "529,9",
                             "123456", ".-/", "+52998224725"}) {
        avisos.textos.clear();
        ColarTexto(edit, QString::fromLatin1(ruim));
        EXPECT_EQ(Visto(), QStringLiteral("52|9.982")) << ruim;
        ASSERT_EQ(avisos.textos.size(), 1) << ruim;
        EXPECT_EQ(avisos.textos[0], QStringLiteral("O texto \"") + QString::fromLatin1(ruim) +
                                        QStringLiteral("\" não é um CPF e não foi colado."));
    }
    edit->selectAll();
    ColarTexto(edit, QStringLiteral("12ABC345000188"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982"));
    EXPECT_EQ(edit->selectedText(), QStringLiteral("529.982")) << "the selection stays too";
    avisos.textos.clear();
    ColarTexto(edit, QString(5000, u'x'));
    ASSERT_EQ(avisos.textos.size(), 1);
    EXPECT_LT(avisos.textos[0].size(), 120);
}

TEST_F(CPFEdit, DropsAreTakenAsPastes)
{
    janela.Abrir();
    Soltar(edit, QPoint(3, 10), QStringLiteral("529.982.247-25"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    Soltar(edit, QPoint(3, 10), QStringLiteral("x"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos.textos.size(), 1);
}

TEST_F(CPFEdit, WhatAnInputMethodCommitsIsTypedCharacterByCharacter)
{
    Compor(edit, QStringLiteral("529.98x2"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982"));
}

TEST_F(CPFEdit, TheProgramsTextIsBroughtIntoFormOrKeptAsItIs)
{
    const QList<std::pair<const char *, const char *>> casos{{"52998224725", "529.982.247-25"},
                                                             {"529.982.247-25", "529.982.247-25"},
                                                             {"529982247-25", "529.982.247-25"},
                                                             {"  52998224725  ", "529.982.247-25"},
                                                             {"1", "1"},
                                                             {"5299", "529.9"},
                                                             {"529.", "529"},
                                                             {"   ", ""},
                                                             {"", ""},
                                                             {"529982247256", "529982247256"},
                                                             {"ISENTO", "ISENTO"},
                                                             {"12ABC345000188", "12ABC345000188"},
                                                             {"-5", "-5"},
                                                             {"529,98", "529,98"},
                                                             {"O'Brien", "O'Brien"}};
    for (const auto &[texto, exibido] : casos) {
        edit->SetText(QString::fromLatin1(texto));
        EXPECT_EQ(edit->GetText(), QString::fromLatin1(exibido)) << texto;
        EXPECT_EQ(edit->cursorPosition(), edit->GetText().size());
    }
}

TEST_F(CPFEdit, ATextThatWasKeptCanOnlyBeShortenedOrReplaced)
{
    edit->SetText(QStringLiteral("529982247256"));
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529982247256"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Visto(), QStringLiteral("529.982.247-25|")) << "in form again";
    edit->SetText(QStringLiteral("ISENTO"));
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("ISENTO"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(Visto(), QStringLiteral("ISENT|"));
    edit->selectAll();
    Teclar(QStringLiteral("1"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("1"));
}

TEST_F(CPFEdit, TheValueIsTheCharactersAloneAndTheSQLTextQuotesThem)
{
    edit->SetValor(QStringLiteral("529.982.247-25"));
    EXPECT_EQ(edit->GetValor(), QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetValorVariant(), Variant(QStringLiteral("52998224725")));
    EXPECT_TRUE(edit->GetValorVariant().EhTexto());
    EXPECT_EQ(edit->SQLText(), QStringLiteral("'52998224725'"));
    edit->SetValor(QStringLiteral("5299"));
    EXPECT_EQ(edit->GetValor(), QStringLiteral("5299"));
    edit->SetValor(QStringLiteral(" D'Ávila "));
    EXPECT_EQ(edit->GetValor(), QStringLiteral("D'Ávila"));
    EXPECT_EQ(edit->SQLText(), QStringLiteral("'D''Ávila'"));
    edit->SetValor(QString());
    EXPECT_EQ(edit->GetValorVariant(), Variant(QString()));
    EXPECT_EQ(edit->SQLText(), QStringLiteral("''"));
}

TEST_F(CPFEdit, AnyVariantGivesAText)
{
    const auto texto = [&](const Variant &v) {
        edit->SetValorVariant(v);
        return edit->GetText();
    };
    EXPECT_EQ(texto(QStringLiteral("52998224725")), QStringLiteral("529.982.247-25"));
    EXPECT_EQ(texto(QStringLiteral("529982  ")), QStringLiteral("529.982"));
    EXPECT_EQ(texto(Null), QString());
    EXPECT_EQ(texto(Variant()), QString());
    EXPECT_EQ(texto(0), QString());
    EXPECT_EQ(texto(9090947.0), QStringLiteral("000.090.909-47")) << "zeros of a numeric column";
    EXPECT_EQ(texto(529982247), QStringLiteral("005.299.822-47"));
    EXPECT_EQ(texto(52998224725.0), QStringLiteral("529.982.247-25"));
    EXPECT_EQ(texto(529982247256.0), QStringLiteral("529982247256")) << "too long: as it is";
    EXPECT_EQ(texto(-5), QStringLiteral("-5"));
    EXPECT_EQ(texto(1.5), QStringLiteral("1,5"));
    EXPECT_EQ(texto(QStringLiteral("9090947")), QStringLiteral("909.094.7"))
        << "a text has its zeros";
}

TEST_F(CPFEdit, OnlyElevenDigitsWithTheirCheckDigitsAreValid)
{
    const auto valido = [&](const char *texto) {
        edit->SetText(QString::fromLatin1(texto));
        return edit->Valido();
    };
    EXPECT_TRUE(valido("52998224725"));
    EXPECT_TRUE(valido("158.864.890-70"));
    for (const char *ruim : {"", "5", "5299822472", "52998224735", "529982247250", "11111111111",
                             "12ABC345000188", "52998224725x"})
        EXPECT_FALSE(valido(ruim)) << ruim;
}

TEST_F(CPFEdit, AutoExitLeavesAtTheLastDigit)
{
    janela.Abrir();
    edit->setFocus();
    Teclar(QStringLiteral("52998224725"));
    EXPECT_TRUE(edit->hasFocus()) << "not unless it was asked for";
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(edit->hasFocus());
    edit->SetAutoExit(true);
    edit->selectAll();
    Teclar(QStringLiteral("5299822472"));
    EXPECT_TRUE(edit->hasFocus());
    Teclar(QStringLiteral("5"));
    EXPECT_TRUE(outro->hasFocus());
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    // Entered from the program, all is selected: the next one is typed over it.
    edit->setFocus();
    EXPECT_EQ(edit->selectedText(), QStringLiteral("529.982.247-25"));
    edit->end(false);
    Teclar(QStringLiteral("x"));
    EXPECT_TRUE(edit->hasFocus()) << "nothing was typed this time";
    ColarTexto(edit, QStringLiteral("52998224725"));
    EXPECT_TRUE(edit->hasFocus());
}

TEST_F(CPFEdit, AHandlerThatSendsTheFocusElsewhereHasTheLastWord)
{
    auto *terceiro = new QLineEdit(&janela);
    terceiro->move(220, 20);
    edit->SetAutoExit(true);
    janela.Abrir();
    edit->setFocus();
    QObject::connect(edit, &QLineEdit::returnPressed, terceiro, [=] { terceiro->setFocus(); });
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_TRUE(terceiro->hasFocus());
    edit->setFocus();
    Teclar(QStringLiteral("5299822472"));
    QObject::connect(edit, &QLineEdit::textEdited, terceiro, [=] { terceiro->setFocus(); });
    Teclar(QStringLiteral("5"));
    EXPECT_TRUE(terceiro->hasFocus());
}

TEST_F(CPFEdit, APastedPartDoesNotTypeOverACompleteNumber)
{
    Por(QStringLiteral("52998224725"), 0);
    ColarTexto(edit, QStringLiteral("123"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    EXPECT_EQ(avisos.textos.size(), 1);
}

TEST_F(CPFEdit, AutoExitIsNotRunInTheMiddleByARefusedKeyNorByAPaste)
{
    edit->SetAutoExit(true);
    edit->SetText(QStringLiteral("52998224725"));
    janela.Abrir();
    edit->setFocus();
    edit->end(false);
    Teclar(QStringLiteral("5x."));
    EXPECT_TRUE(edit->hasFocus());
    edit->setCursorPosition(2);
    Teclar(QStringLiteral("9"));
    EXPECT_TRUE(edit->hasFocus());
    QTest::keyClick(edit, Qt::Key_Backspace);
    Teclar(QStringLiteral("9"));
    EXPECT_TRUE(edit->hasFocus());
    edit->selectAll();
    ColarTexto(edit, QStringLiteral("15886489070"));
    EXPECT_TRUE(edit->hasFocus());
    edit->setCursorPosition(13);
    Teclar(QStringLiteral("1"));
    EXPECT_TRUE(outro->hasFocus()) << "the last one, typed over";
}

TEST_F(CPFEdit, AutoExitLetsEnterGoOnOnceAfterTheReturnEvent)
{
    edit->SetAutoExit(true);
    janela.Abrir();
    edit->setFocus();
    QSignalSpy voltas(edit, &QLineEdit::returnPressed);
    QTest::keyClick(edit, Qt::Key_Return);
    EXPECT_EQ(voltas.count(), 1);
    EXPECT_TRUE(outro->hasFocus());
}

TEST_F(CPFEdit, AKeyThatAHandlerTakesBackDoesNotLeave)
{
    edit->SetAutoExit(true);
    edit->SetText(QStringLiteral("15886489070"));
    janela.Abrir();
    edit->setFocus();
    QObject::connect(edit, &QLineEdit::textEdited, edit,
                     [this] { edit->SetText(QStringLiteral("15886489070")); });
    edit->setCursorPosition(13);
    Teclar(QStringLiteral("9"));
    EXPECT_TRUE(edit->hasFocus());
    EXPECT_EQ(edit->GetText(), QStringLiteral("158.864.890-70"));
}

TEST_F(CPFEdit, MaxLengthBindsTheUserNotTheProgram)
{
    edit->SetMaxLength(7);
    Teclar(QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982"));
    ColarTexto(edit, QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982"));
    edit->SetText(QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-2"));
}

TEST_F(CPFEdit, AnnouncesEachChangeOnceAndTheUsersAsTheirs)
{
    QSignalSpy mudou(edit, &QLineEdit::textChanged);
    QSignalSpy editou(edit, &QLineEdit::textEdited);
    int avisadas = 0;
    edit->OnChange = [&](QObject *) { ++avisadas; };
    edit->SetText(QStringLiteral("529"));
    EXPECT_EQ(mudou.count(), 1);
    EXPECT_EQ(editou.count(), 0);
    Teclar(QStringLiteral("9x."));
    EXPECT_EQ(mudou.count(), 2);
    EXPECT_EQ(editou.count(), 1);
    EXPECT_EQ(editou[0][0].toString(), QStringLiteral("529.9"));
    edit->SetText(QStringLiteral("5299"));
    EXPECT_EQ(mudou.count(), 2) << "shown already";
    EXPECT_EQ(avisadas, 2);
}

TEST_F(CPFEdit, AReadOnlyOneTakesNothing)
{
    edit->SetText(QStringLiteral("529"));
    edit->setReadOnly(true);
    Teclar(QStringLiteral("9"));
    QTest::keyClick(edit, Qt::Key_Backspace);
    ColarTexto(edit, QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529"));
}

TEST_F(CPFEdit, TextWrittenPastTheEditIsBroughtIntoForm)
{
    static_cast<QLineEdit *>(edit)->setText(QStringLiteral("52998224725"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
}

TEST_F(CPFEdit, PropertiesForLayouts)
{
    edit->setProperty("Valor", QStringLiteral("52998224725"));
    edit->setProperty("AutoExit", true);
    edit->setProperty("caption", QStringLiteral("CPF"));
    EXPECT_EQ(edit->property("text").toString(), QStringLiteral("529.982.247-25"));
    EXPECT_TRUE(edit->GetAutoExit());
    EXPECT_EQ(edit->EditLabel->text(), QStringLiteral("CPF"));
    EXPECT_EQ(QString::fromLatin1(edit->metaObject()->userProperty().name()),
              QStringLiteral("Valor"));
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TCPFEditBR")));
}
