#include "platform/toolkit/TCustomEdit.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QMenu>
#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Edit : testing::Test {
    TAvisos avisos;
    TCustomEdit edit;
};

} // namespace

TEST_F(Edit, ProgramTextIsKeptWholeBeyondTheLimit)
{
    edit.SetMaxLength(3);
    edit.setText(QStringLiteral("abcdef"));
    EXPECT_EQ(edit.text(), QStringLiteral("abcdef"));
    const QString longo(40000, u'x');
    edit.SetMaxLength(0);
    edit.setText(longo);
    EXPECT_EQ(edit.text().size(), 40000);
}

TEST_F(Edit, ProgramTextMayHoldAnyCharacter)
{
    edit.setText(QStringLiteral("€ “aspas” 😀"));
    EXPECT_EQ(edit.text(), QStringLiteral("€ “aspas” 😀"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Edit, TypingStopsAtTheLimitAndPasteIsCut)
{
    edit.SetMaxLength(3);
    QTest::keyClicks(&edit, QStringLiteral("abcd"));
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
    edit.setSelection(1, 1);
    ColarTexto(&edit, QStringLiteral("xyz"));
    EXPECT_EQ(edit.text(), QStringLiteral("axc"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Edit, TypingOverASelectionOfAFullEditWorks)
{
    edit.SetMaxLength(3);
    edit.setText(QStringLiteral("abc"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(edit.text(), QStringLiteral("x"));
}

TEST_F(Edit, ATextBeyondTheLimitCanOnlyBeShortened)
{
    edit.SetMaxLength(3);
    edit.setText(QStringLiteral("abcde"));
    edit.setSelection(4, 1);
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(edit.text(), QStringLiteral("abcde"));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("e"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_Backspace);
    QTest::keyClick(&edit, Qt::Key_X);
    EXPECT_EQ(edit.text(), QStringLiteral("abx"));
}

TEST_F(Edit, LimitZeroIsNone)
{
    EXPECT_EQ(edit.GetMaxLength(), 0);
    EXPECT_EQ(edit.property("maxLength").toInt(), 0);
    edit.setProperty("maxLength", 2);
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    EXPECT_EQ(edit.text(), QStringLiteral("ab"));
}

TEST_F(Edit, TypedCharacterThatTheDatabaseCannotHoldIsIgnoredWithOneWarning)
{
    QTest::keyClicks(&edit, QStringLiteral("10"));
    Tecla(&edit, 0, QStringLiteral("€"));
    QTest::keyClicks(&edit, QStringLiteral("0"));
    EXPECT_EQ(edit.text(), QStringLiteral("100"));
    ASSERT_EQ(avisos.textos.size(), 1);
    EXPECT_EQ(avisos.textos[0],
              QStringLiteral("O caractere \"€\" não pode ser gravado no banco de dados e foi "
                             "recusado.\r\nUse apenas letras, números e sinais do teclado."));
}

TEST_F(Edit, RefusedKeyKeepsTheSelection)
{
    edit.setText(QStringLiteral("abc"));
    edit.selectAll();
    Tecla(&edit, 0, QStringLiteral("€"));
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("abc"));
}

TEST_F(Edit, EmojiFromTheKeyboardIsRefusedWithAWarning)
{
    Tecla(&edit, 0, QStringLiteral("😀"));
    EXPECT_EQ(edit.text(), QString());
    ASSERT_EQ(avisos.textos.size(), 1);
    EXPECT_TRUE(avisos.textos[0].contains(QStringLiteral("\"😀\"")));
}

TEST_F(Edit, PasteWithAForeignCharacterIsRefusedWhole)
{
    for (const QString &ruim :
         {QStringLiteral("dez €"), QStringLiteral("“aspas”"), QStringLiteral("a—b"),
          QStringLiteral("fim…"), QStringLiteral("a\u200Bb"), QStringLiteral("ok 😀")}) {
        avisos.textos.clear();
        edit.setText(QStringLiteral("antes"));
        edit.setSelection(1, 2);
        ColarTexto(&edit, ruim);
        EXPECT_EQ(edit.text(), QStringLiteral("antes"));
        EXPECT_EQ(edit.selectedText(), QStringLiteral("nt"));
        EXPECT_EQ(avisos.textos.size(), 1) << ruim.toStdString();
    }
    ColarTexto(&edit, QStringLiteral("a\u200Bb"));
    EXPECT_TRUE(avisos.textos.last().contains(QStringLiteral("U+200B")));
}

TEST_F(Edit, PortugueseTextPasses)
{
    ColarTexto(&edit, QStringLiteral("Ação à São João nº 1º §2 «ü»"));
    EXPECT_EQ(edit.text(), QStringLiteral("Ação à São João nº 1º §2 «ü»"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Edit, AccentsWrittenAsMarksAreJoined)
{
    ColarTexto(&edit, QStringLiteral("Joa\u0303o"));
    EXPECT_EQ(edit.text(), QStringLiteral("João"));
    EXPECT_TRUE(avisos.textos.isEmpty());
}

TEST_F(Edit, PastedLinesBecomeOne)
{
    ColarTexto(&edit, QStringLiteral("Rua A\r\nCasa 2\t3\r\n"));
    EXPECT_EQ(edit.text(), QStringLiteral("Rua A Casa 2 3"));
}

TEST_F(Edit, InputMethodTextPassesTheSameGate)
{
    Compor(&edit, QStringLiteral("é"));
    Compor(&edit, QStringLiteral("€"));
    EXPECT_EQ(edit.text(), QStringLiteral("é"));
    EXPECT_EQ(avisos.textos.size(), 1);
    edit.SetMaxLength(2);
    Compor(&edit, QStringLiteral("ã"));
    Compor(&edit, QStringLiteral("õ"));
    EXPECT_EQ(edit.text(), QStringLiteral("éã"));
}

TEST_F(Edit, DroppedTextPassesTheSameGate)
{
    TJanela janela;
    auto *dentro = new TCustomEdit(&janela);
    dentro->resize(200, 21);
    janela.Abrir();
    dentro->setText(QStringLiteral("ab"));
    Soltar(dentro, QPoint(190, 10), QStringLiteral("cd"));
    EXPECT_EQ(dentro->text(), QStringLiteral("abcd"));
    Soltar(dentro, QPoint(190, 10), QStringLiteral("€"));
    EXPECT_EQ(dentro->text(), QStringLiteral("abcd"));
    EXPECT_TRUE(avisos.textos.isEmpty());
    QTest::qWait(1);
    EXPECT_EQ(avisos.textos.size(), 1);
    dentro->setReadOnly(true);
    Soltar(dentro, QPoint(190, 10), QStringLiteral("e"));
    EXPECT_EQ(dentro->text(), QStringLiteral("abcd"));
}

TEST_F(Edit, AnnouncesProgramAndUserOnceEachAndTheUserApart)
{
    QSignalSpy mudou(&edit, &QLineEdit::textChanged);
    QSignalSpy editado(&edit, &QLineEdit::textEdited);
    int chamadas = 0;
    edit.OnChange = [&](QObject *sender) {
        EXPECT_EQ(sender, &edit);
        ++chamadas;
    };
    edit.setText(QStringLiteral("a"));
    edit.setText(QStringLiteral("a"));
    EXPECT_EQ(mudou.count(), 1);
    EXPECT_EQ(editado.count(), 0);
    EXPECT_EQ(chamadas, 1);
    QTest::keyClick(&edit, Qt::Key_B);
    EXPECT_EQ(mudou.count(), 2);
    EXPECT_EQ(editado.count(), 1);
    EXPECT_EQ(chamadas, 2);
    edit.selectAll();
    ColarTexto(&edit, QStringLiteral("xyz"));
    EXPECT_EQ(mudou.count(), 3);
    EXPECT_EQ(chamadas, 3);
    edit.Clear();
    EXPECT_EQ(mudou.count(), 4);
}

TEST_F(Edit, TabSelectsAllAndAClickDoesNot)
{
    TJanela janela;
    auto *a = new TCustomEdit(&janela);
    auto *b = new TCustomEdit(&janela);
    auto *c = new TCustomEdit(&janela);
    b->move(0, 40);
    c->move(0, 80);
    c->SetAutoSelect(false);
    for (TCustomEdit *e : {a, b, c})
        e->setText(QStringLiteral("abc"));
    janela.Abrir();
    QTest::mouseClick(b, Qt::LeftButton, {}, QPoint(5, 10));
    EXPECT_TRUE(b->hasFocus());
    EXPECT_FALSE(b->hasSelectedText());
    a->setFocus();
    QTest::keyClick(a, Qt::Key_Tab);
    EXPECT_TRUE(b->hasFocus());
    EXPECT_EQ(b->selectedText(), QStringLiteral("abc"));
    QTest::keyClick(b, Qt::Key_Tab);
    EXPECT_TRUE(c->hasFocus());
    EXPECT_FALSE(c->hasSelectedText());
}

TEST_F(Edit, ReadOnlyEditTakesNothingOfTheUsers)
{
    edit.setText(QStringLiteral("abc"));
    edit.setReadOnly(true);
    QTest::keyClicks(&edit, QStringLiteral("x"));
    QTest::keyClick(&edit, Qt::Key_Backspace);
    ColarTexto(&edit, QStringLiteral("y"));
    edit.selectAll();
    edit.Recortar();
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
}

TEST_F(Edit, UndoBringsTheTypedTextBack)
{
    QTest::keyClicks(&edit, QStringLiteral("abc"));
    edit.selectAll();
    QTest::keyClick(&edit, Qt::Key_Delete);
    EXPECT_EQ(edit.text(), QString());
    QTest::keyClick(&edit, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(edit.text(), QStringLiteral("abc"));
}

TEST_F(Edit, ClickIsTold)
{
    TJanela janela;
    auto *dentro = new TCustomEdit(&janela);
    int cliques = 0;
    dentro->OnClick = [&](QObject *) { ++cliques; };
    janela.Abrir();
    QTest::mouseClick(dentro, Qt::LeftButton);
    EXPECT_EQ(cliques, 1);
    QTest::mouseClick(dentro, Qt::RightButton);
    EXPECT_EQ(cliques, 1);
}

TEST_F(Edit, ContextMenuIsPortugueseAndPastesThroughTheGate)
{
    TJanela janela;
    auto *dentro = new TCustomEdit(&janela);
    janela.Abrir();
    dentro->setText(QStringLiteral("ab"));
    dentro->selectAll();
    QApplication::clipboard()->setText(QStringLiteral("€"));
    QContextMenuEvent pede(QContextMenuEvent::Mouse, QPoint(5, 5),
                           janela.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(dentro, &pede);
    auto *menu = dentro->findChild<QMenu *>();
    ASSERT_NE(menu, nullptr);
    QStringList textos;
    QAction *colar = nullptr;
    QAction *excluir = nullptr;
    for (QAction *acao : menu->actions()) {
        const QString texto = acao->text().section(u'\t', 0, 0).remove(u'&');
        if (acao->isSeparator())
            continue;
        textos << texto;
        colar = texto == QStringLiteral("Colar") ? acao : colar;
        excluir = texto == QStringLiteral("Excluir") ? acao : excluir;
    }
    EXPECT_EQ(textos, (QStringList{QStringLiteral("Desfazer"), QStringLiteral("Refazer"),
                                   QStringLiteral("Recortar"), QStringLiteral("Copiar"),
                                   QStringLiteral("Colar"), QStringLiteral("Excluir"),
                                   QStringLiteral("Selecionar tudo")}));
    colar->trigger();
    EXPECT_EQ(dentro->text(), QStringLiteral("ab"));
    EXPECT_EQ(avisos.textos.size(), 1);
    excluir->trigger();
    EXPECT_EQ(dentro->text(), QString());
    menu->close();
}

TEST_F(Edit, ColoursAreColorIntegers)
{
    edit.setProperty("color", 0x0000FFFF);
    EXPECT_EQ(edit.palette().color(QPalette::Base), QColor(255, 255, 0));
    EXPECT_EQ(edit.GetColor(), TColor(0x0000FFFF));
    edit.SetFontColor(TColor(128));
    EXPECT_EQ(edit.palette().color(QPalette::Text), QColor(128, 0, 0));
    EXPECT_EQ(edit.property("fontColor").toInt(), 128);
}

TEST_F(Edit, TextIsTheUserProperty)
{
    EXPECT_STREQ(edit.metaObject()->userProperty().name(), "text");
    edit.setProperty("text", QStringLiteral("x"));
    EXPECT_EQ(edit.GetText(), QStringLiteral("x"));
    edit.setProperty("tag", 7);
    EXPECT_EQ(edit.Tag, 7);
}

TEST_F(Edit, BurstOfKeysLosesNone)
{
    QString tudo;
    for (int i = 0; i < 200; ++i)
        tudo += QChar(u'a' + i % 26);
    QTest::keyClicks(&edit, tudo);
    EXPECT_EQ(edit.text(), tudo);
}

TEST(EditAlone, WithoutTheSupportFloorARefusalIsALogLine)
{
    static QStringList linhas;
    linhas.clear();
    TServicosGuarda guarda;
    Servicos().MensagemAviso = nullptr;
    TCustomEdit edit;
    const auto antes = qInstallMessageHandler(
        [](QtMsgType, const QMessageLogContext &, const QString &texto) { linhas << texto; });
    Compor(&edit, QStringLiteral("€"));
    qInstallMessageHandler(antes);
    EXPECT_EQ(edit.text(), QString());
    ASSERT_EQ(linhas.size(), 1);
    EXPECT_TRUE(linhas.constFirst().startsWith(QStringLiteral("ficha: Aviso: O caractere")));
}

TEST_F(Edit, HandlersMayTakeThemselvesOut)
{
    edit.resize(100, 21);
    EXPECT_TRUE(InteiroAoSair(edit.OnChange, [this] { QTest::keyClick(&edit, Qt::Key_A); }));
    EXPECT_TRUE(InteiroAoSair(edit.OnChange, [this] { edit.setText(QStringLiteral("b")); }));
    EXPECT_TRUE(InteiroAoSair(edit.OnClick, [this] { QTest::mouseClick(&edit, Qt::LeftButton); }));
}

TEST(CustomEdit, ClickHandlerMayDestroyTheEdit)
{
    TJanela janela;
    auto *edit = new TCustomEdit(&janela);
    const QPointer<TCustomEdit> vivo(edit);
    edit->OnClick = [&](QObject *) { delete edit; };
    QTest::mouseClick(edit, Qt::LeftButton);
    EXPECT_TRUE(vivo.isNull());
}
