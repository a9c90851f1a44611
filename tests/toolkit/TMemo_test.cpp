#include "platform/toolkit/TMemo.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMenu>
#include <QMimeData>
#include <QSignalSpy>
#include <QTextBlock>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Memo : testing::Test {
    void Fim() { memo.moveCursor(QTextCursor::End); }

    TAvisos avisos;
    TMemo memo;
};

} // namespace

TEST_F(Memo, LinesLeaveJoinedWithBothLineBreakCharacters)
{
    memo.SetText(QStringLiteral("um\ndois\r\ntrês\rquatro"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("um\r\ndois\r\ntrês\r\nquatro"));
    EXPECT_EQ(memo.GetTamanho(), memo.GetText().size());
    EXPECT_EQ(memo.GetLinhas().size(), 4);
    memo.SetText(QStringLiteral("a\r\n"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("a\r\n"));
    memo.Clear();
    EXPECT_EQ(memo.GetText(), QString());
    EXPECT_TRUE(memo.GetLinhas().isEmpty());
    memo.SetLinhas({QStringLiteral("x"), QStringLiteral("y")});
    EXPECT_EQ(memo.GetText(), QStringLiteral("x\r\ny"));
}

TEST_F(Memo, AnnouncesEachChangeOnce)
{
    QSignalSpy mudou(&memo, &QPlainTextEdit::textChanged);
    int chamadas = 0;
    memo.OnChange = [&](QObject *) { ++chamadas; };
    memo.SetText(QStringLiteral("a\r\nb"));
    memo.SetText(QStringLiteral("a\nb"));
    EXPECT_EQ(mudou.count(), 1);
    Fim();
    QTest::keyClick(&memo, Qt::Key_C);
    EXPECT_EQ(mudou.count(), 2);
    ColarTexto(&memo, QStringLiteral("xyz"));
    EXPECT_EQ(mudou.count(), 3);
    EXPECT_EQ(chamadas, 3);
    memo.SetText(QStringLiteral("outro"));
    EXPECT_EQ(memo.toPlainText(), QStringLiteral("outro"));
    EXPECT_EQ(mudou.count(), 4);
}

TEST_F(Memo, TheUserIsAnnouncedApartAndFirst)
{
    QStringList ordem;
    QObject::connect(&memo, &TMemo::UserChanged,
                     [&] { ordem << QStringLiteral("user ") + memo.GetText(); });
    QObject::connect(&memo, &QPlainTextEdit::textChanged,
                     [&] { ordem << QStringLiteral("text ") + memo.GetText(); });
    const auto houve = [&](const QString &texto) {
        EXPECT_EQ(ordem,
                  (QStringList{QStringLiteral("user ") + texto, QStringLiteral("text ") + texto}));
        ordem.clear();
    };
    QTest::keyClick(&memo, Qt::Key_A);
    houve(QStringLiteral("a"));
    QTest::keyClick(&memo, Qt::Key_Return);
    houve(QStringLiteral("a\r\n"));
    QTest::keyClick(&memo, Qt::Key_Backspace);
    houve(QStringLiteral("a"));
    QTest::keyClick(&memo, Qt::Key_Z, Qt::ControlModifier);
    houve(QStringLiteral("a\r\n"));
    QTest::keyClick(&memo, Qt::Key_Y, Qt::ControlModifier);
    houve(QStringLiteral("a"));
    ColarTexto(&memo, QStringLiteral("bc"));
    houve(QStringLiteral("abc"));
    QInputMethodEvent escrito;
    escrito.setCommitString(QStringLiteral("d"));
    QApplication::sendEvent(&memo, &escrito);
    houve(QStringLiteral("abcd"));
    memo.selectAll();
    QTest::keyClick(&memo, Qt::Key_X);
    houve(QStringLiteral("x"));
    QTest::keyClick(&memo, Qt::Key_End);
    QTest::keyClick(&memo, Qt::Key_Delete);
    EXPECT_EQ(ordem, QStringList()) << "nothing changed";

    const auto programa = [&](const QString &texto) {
        EXPECT_EQ(ordem, QStringList(QStringLiteral("text ") + texto));
        ordem.clear();
    };
    memo.SetText(QStringLiteral("p"));
    programa(QStringLiteral("p"));
    memo.setPlainText(QStringLiteral("q"));
    programa(QStringLiteral("q"));
    memo.insertPlainText(QStringLiteral("r"));
    programa(QStringLiteral("rq"));
    memo.clear();
    programa(QString());
}

TEST_F(Memo, TheMenuIsTheUserToo)
{
    TJanela janela;
    auto *m = new TMemo(&janela);
    m->resize(200, 100);
    janela.Abrir();
    m->SetText(QStringLiteral("abc"));
    int usuario = 0;
    QObject::connect(m, &TMemo::UserChanged, [&] { ++usuario; });
    const auto escolher = [&](const QString &comando) {
        QContextMenuEvent pede(QContextMenuEvent::Mouse, QPoint(5, 5),
                               m->mapToGlobal(QPoint(5, 5)));
        QApplication::sendEvent(m->viewport(), &pede);
        auto *menu = m->findChild<QMenu *>();
        ASSERT_NE(menu, nullptr);
        for (QAction *acao : menu->actions()) {
            if (acao->text().remove(u'&').startsWith(comando))
                acao->trigger();
        }
        delete menu;
    };
    m->selectAll();
    escolher(QStringLiteral("Recortar"));
    EXPECT_EQ(m->GetText(), QString());
    EXPECT_EQ(usuario, 1);
    escolher(QStringLiteral("Colar"));
    EXPECT_EQ(m->GetText(), QStringLiteral("abc"));
    EXPECT_EQ(usuario, 2);
    escolher(QStringLiteral("Desfazer"));
    EXPECT_EQ(usuario, 3);
    escolher(QStringLiteral("Refazer"));
    EXPECT_EQ(usuario, 4);
    m->selectAll();
    escolher(QStringLiteral("Excluir"));
    EXPECT_EQ(m->GetText(), QString());
    EXPECT_EQ(usuario, 5);
}

TEST_F(Memo, WhatAHandlerOfTheUsersChangeWritesIsTheProgrammes)
{
    int usuario = 0;
    QObject::connect(&memo, &TMemo::UserChanged, [&] {
        ++usuario;
        memo.SetText(QStringLiteral("corrigido"));
    });
    QTest::keyClick(&memo, Qt::Key_A);
    EXPECT_EQ(usuario, 1);
    EXPECT_EQ(memo.GetText(), QStringLiteral("corrigido"));
}

TEST_F(Memo, TabLeaves)
{
    TJanela janela;
    auto *a = new TMemo(&janela);
    auto *b = new TMemo(&janela);
    b->move(0, 100);
    janela.Abrir();
    a->setFocus();
    QTest::keyClick(a, Qt::Key_Tab);
    EXPECT_TRUE(b->hasFocus());
    EXPECT_EQ(a->GetText(), QString());
}

TEST_F(Memo, LimitBindsTypingAndCutsThePaste)
{
    memo.SetMaxLength(5);
    QTest::keyClicks(&memo, QStringLiteral("abc"));
    QTest::keyClick(&memo, Qt::Key_Return);
    EXPECT_EQ(memo.GetText(), QStringLiteral("abc\r\n"));
    QTest::keyClicks(&memo, QStringLiteral("d"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("abc\r\n"));
    memo.Clear();
    QTest::keyClicks(&memo, QStringLiteral("abcd"));
    QTest::keyClick(&memo, Qt::Key_Return);
    EXPECT_EQ(memo.GetText(), QStringLiteral("abcd"));
    memo.Clear();
    ColarTexto(&memo, QStringLiteral("ab\ncdef"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("ab\r\nc"));
    memo.selectAll();
    ColarTexto(&memo, QStringLiteral("123456"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("12345"));
    memo.SetText(QStringLiteral("do programa, inteiro"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("do programa, inteiro"));
}

TEST_F(Memo, GateRefusesForeignCharacters)
{
    QTest::keyClicks(&memo, QStringLiteral("10"));
    Tecla(&memo, 0, QStringLiteral("€"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("10"));
    EXPECT_EQ(avisos.textos.size(), 1);
    memo.selectAll();
    ColarTexto(&memo, QStringLiteral("linha 1\nlinha “2”"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("10"));
    EXPECT_EQ(memo.textCursor().selectedText(), QStringLiteral("10"));
    EXPECT_EQ(avisos.textos.size(), 2);
    Compor(&memo, QStringLiteral("😀"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("10"));
    EXPECT_EQ(avisos.textos.size(), 3);
    Compor(&memo, QStringLiteral("ã"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("ã"));
}

TEST_F(Memo, DropPassesTheGateAndWarnsAfterwards)
{
    TJanela janela;
    auto *dentro = new TMemo(&janela);
    dentro->resize(200, 100);
    janela.Abrir();
    Soltar(dentro->viewport(), QPoint(50, 10), QStringLiteral("a\tb"));
    EXPECT_EQ(dentro->GetText(), QStringLiteral("a b"));
    Soltar(dentro->viewport(), QPoint(50, 10), QStringLiteral("€"));
    EXPECT_EQ(dentro->GetText(), QStringLiteral("a b"));
    EXPECT_TRUE(avisos.textos.isEmpty());
    QTest::qWait(1);
    EXPECT_EQ(avisos.textos.size(), 1);
}

TEST_F(Memo, RichTextIsPastedPlain)
{
    auto *dados = new QMimeData;
    dados->setHtml(QStringLiteral("<b>negrito</b>"));
    dados->setText(QStringLiteral("negrito"));
    QApplication::clipboard()->setMimeData(dados);
    QTest::keyClick(&memo, Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(memo.GetText(), QStringLiteral("negrito"));
    EXPECT_FALSE(memo.document()->begin().begin().fragment().charFormat().hasProperty(
        QTextFormat::FontWeight));
}

TEST_F(Memo, ReadOnlyTakesNothing)
{
    memo.SetText(QStringLiteral("abc"));
    memo.setReadOnly(true);
    QTest::keyClicks(&memo, QStringLiteral("x"));
    ColarTexto(&memo, QStringLiteral("y"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("abc"));
}

TEST_F(Memo, PropertiesForLayouts)
{
    memo.setProperty("text", QStringLiteral("a"));
    memo.setProperty("maxLength", 3);
    memo.setProperty("tag", 1);
    memo.setProperty("color", 0x00FFFF00);
    EXPECT_EQ(memo.GetText(), QStringLiteral("a"));
    EXPECT_EQ(memo.GetMaxLength(), 3);
    EXPECT_EQ(memo.Tag, 1);
    EXPECT_EQ(memo.palette().color(QPalette::Base), QColor(0, 255, 255));
    EXPECT_STREQ(memo.metaObject()->userProperty().name(), "text");
}

TEST_F(Memo, BurstOfKeysLosesNone)
{
    memo.SetMaxLength(1000);
    QString tudo;
    for (int i = 0; i < 200; ++i)
        tudo += QChar(u'a' + i % 26);
    QTest::keyClicks(&memo, tudo);
    EXPECT_EQ(memo.GetText(), tudo);
}

TEST_F(Memo, WhatIsPastedOrDroppedPassesThroughItsHandlerBeforeItIsMeasured)
{
    memo.SetMaxLength(6);
    memo.OnPaste = [](QString &texto) { texto.remove(u'-').remove(u'€'); };
    ColarTexto(&memo, QStringLiteral("1-2-3-4€"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("1234"));
    EXPECT_TRUE(avisos.textos.isEmpty());
    Soltar(memo.viewport(), QPoint(2, 2), QStringLiteral("-0"));
    EXPECT_EQ(memo.GetText(), QStringLiteral("01234"));
    QTest::keyClicks(&memo, QStringLiteral("-"));
    EXPECT_EQ(memo.GetText().size(), 6) << "typing is not pasting";
    memo.SetText(QString());
    memo.OnPaste = [](QString &) { throw std::runtime_error("x"); };
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    ColarTexto(&memo, QStringLiteral("abc"));
    EXPECT_EQ(memo.GetText(), QString());
    EXPECT_EQ(erros, 1);
}

TEST_F(Memo, HandlersMayTakeThemselvesOut)
{
    EXPECT_TRUE(InteiroAoSair(memo.OnChange, [this] { QTest::keyClick(&memo, Qt::Key_A); }));
    EXPECT_TRUE(
        InteiroAoSair(memo.OnPaste, [this] { ColarTexto(&memo, QStringLiteral("colado")); }));
    EXPECT_EQ(memo.GetText(), QStringLiteral("acolado"));
}
