#include "platform/toolkit/Colagem.h"

#include "platform/core/Erros.h"
#include "platform/toolkit/TMaskEdit.h"
#include "support/Girar.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Colagem : testing::Test {
    Colagem() { edit.SetMaxLength(5); }

    TAvisos avisos;
    TCustomEdit edit;
};

} // namespace

TEST_F(Colagem, TheHandlerChangesTheTextBeforeItIsCutToTheLimit)
{
    QString visto;
    AoColar(&edit, [&](QString &texto) {
        visto = texto;
        texto.remove(u'-');
        return QString();
    });
    ColarTexto(&edit, QStringLiteral("1-2-3-4-5\n"));
    EXPECT_EQ(visto, QStringLiteral("1-2-3-4-5")) << "in one line";
    EXPECT_EQ(edit.text(), QStringLiteral("12345"));
    edit.Clear();
    Soltar(&edit, QPoint(2, 5), QStringLiteral("9-8"));
    EXPECT_EQ(edit.text(), QStringLiteral("98"));
    EXPECT_EQ(avisos.textos, QStringList());
}

TEST_F(Colagem, ARefusalIsToldOnceAndLeavesTheEditAsItIs)
{
    AoColar(&edit, [](QString &) { return QStringLiteral("assim não"); });
    edit.SetText(QStringLiteral("ab"));
    edit.selectAll();
    ColarTexto(&edit, QStringLiteral("x"));
    EXPECT_EQ(avisos.textos, QStringList{QStringLiteral("assim não")});
    EXPECT_EQ(edit.text(), QStringLiteral("ab"));
    EXPECT_EQ(edit.selectedText(), QStringLiteral("ab"));
    Soltar(&edit, QPoint(2, 5), QStringLiteral("x"));
    Girar();
    EXPECT_EQ(avisos.textos.size(), 2);
    EXPECT_EQ(edit.text(), QStringLiteral("ab"));
}

TEST_F(Colagem, HandlersRunInOrderUntilOneRefusesOrEmptiesTheText)
{
    QString passos;
    AoColar(&edit, [&](QString &texto) {
        passos += u'1';
        texto = texto == QStringLiteral("nada") ? QString() : texto + u'!';
        return QString();
    });
    AoColar(&edit, [&](QString &texto) {
        passos += u'2' + texto;
        return QString();
    });
    ColarTexto(&edit, QStringLiteral("a"));
    EXPECT_EQ(passos, QStringLiteral("12a!"));
    EXPECT_EQ(edit.text(), QStringLiteral("a!"));
    ColarTexto(&edit, QStringLiteral("nada"));
    EXPECT_EQ(passos, QStringLiteral("12a!1"));
    EXPECT_EQ(edit.text(), QStringLiteral("a!"));
}

TEST_F(Colagem, OnlyPastingRunsIt)
{
    int vezes = 0;
    AoColar(&edit, [&](QString &) {
        ++vezes;
        return QString();
    });
    edit.SetText(QStringLiteral("a"));
    QTest::keyClicks(&edit, QStringLiteral("b"));
    Compor(&edit, QStringLiteral("ã"));
    ColarTexto(&edit, QStringLiteral("€"));
    EXPECT_EQ(avisos.textos.size(), 1) << "what the database cannot hold is refused before";
    edit.setReadOnly(true);
    ColarTexto(&edit, QStringLiteral("c"));
    EXPECT_EQ(vezes, 0);
    EXPECT_EQ(edit.text(), QStringLiteral("abã"));
}

TEST_F(Colagem, AnErrorInAHandlerRefusesTheTextAndIsReported)
{
    TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    AoColar(&edit, [](QString &) -> QString { throw EErro(QStringLiteral("falhou")); });
    ColarTexto(&edit, QStringLiteral("x"));
    EXPECT_EQ(erros, 1);
    EXPECT_EQ(edit.text(), QString());
}

TEST_F(Colagem, EditsWithAnEngineAskItToo)
{
    TMaskEdit mascara;
    mascara.SetEditMask(QStringLiteral("99/99"));
    AoColar(&mascara, [](QString &texto) {
        texto.remove(u'x');
        return QString();
    });
    ColarTexto(&mascara, QStringLiteral("x12x34"));
    EXPECT_EQ(mascara.GetEditText(), QStringLiteral("12/34"));
}
