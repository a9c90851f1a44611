#include "platform/toolkit/Teclas.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/TCustomEdit.h"
#include "platform/toolkit/TMemo.h"
#include "support/Widgets.h"

#include <QPointer>

#include <stdexcept>

using namespace ficha;
using namespace ficha::testes;

TEST(Teclas, VirtualCodesGoBothWays)
{
    for (const int tecla : {8,  9,  13, 27, 32, 33, 34, 35, 36,  37,  38,
                            39, 40, 45, 46, 48, 57, 65, 90, 112, 117, 123}) {
        const QKeyEvent evento(QEvent::KeyPress, DeTeclaVirtual(tecla), Qt::NoModifier);
        EXPECT_EQ(TeclaVirtual(evento), tecla);
    }
    EXPECT_EQ(TeclaVirtual(QKeyEvent(QEvent::KeyPress, Qt::Key_Enter, Qt::NoModifier)), VK_RETURN);
    EXPECT_EQ(TeclaVirtual(QKeyEvent(QEvent::KeyPress, Qt::Key_Backtab, Qt::NoModifier)), VK_TAB);
    EXPECT_EQ(TeclaVirtual(QKeyEvent(QEvent::KeyPress, Qt::Key_Shift, Qt::NoModifier)), 0);
    EXPECT_EQ(DeTeclaVirtual(7), Qt::Key_unknown);
    EXPECT_EQ(DeTeclaVirtual(0), Qt::Key_unknown);
}

TEST(Teclas, KeyDownHandlerRunsBeforeTheControl)
{
    TCustomEdit edit;
    QString textoVisto;
    int vista = 0;
    AoTeclaDescer(&edit, [&](int &tecla, Qt::KeyboardModifiers estado) {
        vista = tecla;
        textoVisto = edit.text();
        EXPECT_EQ(estado, Qt::NoModifier);
    });
    edit.setText(QStringLiteral("ab"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(vista, VK_BACK);
    EXPECT_EQ(textoVisto, QStringLiteral("ab"));
    EXPECT_EQ(edit.text(), QStringLiteral("a"));
}

TEST(Teclas, KeySetToZeroIsSwallowed)
{
    TCustomEdit edit;
    edit.setText(QStringLiteral("ab"));
    int depois = 0;
    AoTeclaDescer(&edit, [](int &tecla, Qt::KeyboardModifiers) {
        if (tecla == VK_BACK)
            tecla = 0;
    });
    AoTeclaDescer(&edit, [&](int &, Qt::KeyboardModifiers) { ++depois; });
    QTest::keyClick(&edit, Qt::Key_Backspace);
    EXPECT_EQ(edit.text(), QStringLiteral("ab"));
    EXPECT_EQ(depois, 0);
    QTest::keyClick(&edit, Qt::Key_C);
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
    EXPECT_EQ(depois, 1);
}

TEST(Teclas, SwallowedTabKeepsTheFocus)
{
    TJanela janela;
    TCustomEdit a(&janela);
    TCustomEdit b(&janela);
    b.move(0, 40);
    int tabs = 0;
    AoTeclaDescer(&a, [&](int &tecla, Qt::KeyboardModifiers) {
        if (tecla == VK_TAB && ++tabs == 1)
            tecla = 0;
    });
    janela.Abrir();
    a.setFocus();
    QTest::keyClick(&a, Qt::Key_Tab);
    EXPECT_TRUE(a.hasFocus());
    QTest::keyClick(&a, Qt::Key_Tab);
    EXPECT_TRUE(b.hasFocus());
}

TEST(Teclas, TypedCharacterCanBeReplacedOrSwallowed)
{
    TCustomEdit edit;
    AoTeclar(&edit, [](QChar &c) {
        if (c == u'é')
            c = u'e';
        else if (c == u'x')
            c = QChar();
    });
    Tecla(&edit, Qt::Key_Eacute, QStringLiteral("é"));
    QTest::keyClicks(&edit, QStringLiteral("xyz"));
    EXPECT_EQ(edit.text(), QStringLiteral("eyz"));
}

TEST(Teclas, ControlCharactersReachTheCharacterHandler)
{
    TCustomEdit edit;
    QList<int> vistos;
    AoTeclar(&edit, [&](QChar &c) { vistos.append(c.unicode()); });
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Enter);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QTest::keyClick(&edit, Qt::Key_Delete);
    QTest::keyClick(&edit, Qt::Key_Left);
    EXPECT_EQ(vistos, (QList<int>{13, 13, 8, 27}));
}

TEST(Teclas, SwallowedEnterTypesNoLineBreak)
{
    TMemo memo;
    AoTeclar(&memo, [](QChar &c) {
        if (c == u'\r')
            c = QChar();
    });
    QTest::keyClicks(&memo, QStringLiteral("a"));
    QTest::keyClick(&memo, Qt::Key_Return);
    QTest::keyClicks(&memo, QStringLiteral("b"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("ab"));
}

TEST(Teclas, KeyDownRunsBeforeTheCharacterOfTheSameKey)
{
    TCustomEdit edit;
    QStringList ordem;
    AoTeclar(&edit, [&](QChar &) { ordem << QStringLiteral("teclar"); });
    AoTeclaDescer(&edit, [&](int &, Qt::KeyboardModifiers) { ordem << QStringLiteral("descer"); });
    QTest::keyClick(&edit, Qt::Key_A);
    EXPECT_EQ(ordem, (QStringList{QStringLiteral("descer"), QStringLiteral("teclar")}));
}

TEST(Teclas, InputMethodTextIsTakenCharacterByCharacter)
{
    TCustomEdit edit;
    QString vistos;
    AoTeclar(&edit, [&](QChar &c) {
        vistos += c;
        if (c == u'ã')
            c = u'a';
        else if (c == u'!')
            c = QChar();
    });
    Compor(&edit, QStringLiteral("pão!"));
    EXPECT_EQ(vistos, QStringLiteral("pão!"));
    EXPECT_EQ(edit.text(), QStringLiteral("pao"));
}

TEST(Teclas, CtrlWithALetterIsItsControlCharacterAndNotTheLetter)
{
    QLineEdit edit;
    QList<int> codigos;
    AoTeclar(&edit, [&](QChar &c) { codigos << c.unicode(); });
    QTest::keyClick(&edit, Qt::Key_V, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClick(&edit, Qt::Key_E, Qt::ControlModifier | Qt::AltModifier);
    QTest::keyClick(&edit, Qt::Key_V);
    EXPECT_EQ(codigos, (QList<int>{0x16, 0x01, u'e', u'v'})) << "Ctrl and Alt together type";
}

TEST(Teclas, HandlerMayDestroyItsControl)
{
    const auto edit = new TCustomEdit;
    const QPointer<TCustomEdit> vivo(edit);
    int depois = 0;
    AoTeclaDescer(edit, [edit](int &, Qt::KeyboardModifiers) { delete edit; });
    AoTeclaDescer(edit, [&](int &, Qt::KeyboardModifiers) { ++depois; });
    QKeyEvent evento(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, QStringLiteral("a"));
    QApplication::sendEvent(edit, &evento);
    EXPECT_TRUE(vivo.isNull());
    EXPECT_EQ(depois, 0);
}

TEST(Teclas, ErrorOfAHandlerIsReportedAndTheKeyGoesOn)
{
    TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    TCustomEdit edit;
    AoTeclaDescer(&edit, [](int &, Qt::KeyboardModifiers) { throw std::runtime_error("x"); });
    QTest::keyClick(&edit, Qt::Key_A);
    EXPECT_EQ(erros, 1);
    EXPECT_EQ(edit.text(), QStringLiteral("a"));
}

TEST(Teclas, EnviarTeclaDeliversAtOnceWithoutFocus)
{
    TMemo memo;
    memo.SetText(QStringLiteral("abc"));
    EnviarTecla(&memo, VK_END);
    EXPECT_EQ(memo.textCursor().position(), 3);
    EnviarTecla(&memo, VK_BACK);
    EXPECT_EQ(memo.GetText(), QStringLiteral("ab"));
    EnviarTecla(&memo, VK_RETURN);
    EnviarTecla(&memo, 'X');
    EXPECT_EQ(memo.GetText(), QStringLiteral("ab\r\nx"));
    EnviarTecla(nullptr, VK_END);
}

TEST(Teclas, EnviarTeclaSurvivesAControlThatDies)
{
    const auto edit = new TCustomEdit;
    const QPointer<TCustomEdit> vivo(edit);
    AoTeclaDescer(edit, [edit](int &, Qt::KeyboardModifiers) { delete edit; });
    EnviarTecla(edit, VK_DOWN);
    EXPECT_TRUE(vivo.isNull());
}
