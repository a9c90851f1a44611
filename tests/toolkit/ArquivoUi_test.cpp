#include "platform/toolkit/ArquivoUi.h"

#include <QDir>
#include <QFile>

#include <gtest/gtest.h>

namespace ficha
{

namespace
{

/** Everything that an element holds, as one text. */
QString Escrito(const TElementoUi &el)
{
    QString texto = QStringLiteral("%1@%2").arg(el.Nome).arg(el.Linha);
    for (const auto &[nome, valor] : el.Atributos)
        texto += QStringLiteral(" %1='%2'").arg(nome, valor);
    texto += QStringLiteral("[%1](").arg(el.Texto);
    for (const TElementoUi &filho : el.Filhos)
        texto += Escrito(filho);
    return texto + u')';
}

QByteArray Bytes(const QString &nome)
{
    QFile arquivo(nome);
    EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly)) << qPrintable(nome);
    return arquivo.readAll();
}

TElementoUi Lido(const QByteArray &texto)
{
    QString erro;
    const TElementoUi raiz = LerUi(texto, erro);
    EXPECT_EQ(erro, QString());
    return raiz;
}

const QByteArray Exemplo = "<ui version=\"4.0\">\n <widget class=\"T\" name=\"Código\">\n"
                           "  <string>um &lt; dois</string>\n  <x/>\n </widget>\n</ui>\n";

} // namespace

TEST(ArquivoUi, LayoutsOfTheLibraryLieCompiledAndSayWhatTheirTextsSay)
{
    const QDir pasta(QStringLiteral(":/ficha/layouts"));
    const QDir textos(QStringLiteral(FICHA_FONTES "/src/layouts"));
    const QStringList nomes = pasta.entryList({QStringLiteral("*.ui")});
    EXPECT_EQ(nomes, textos.entryList({QStringLiteral("*.ui")}));
    ASSERT_GT(nomes.size(), 50);
    for (const QString &nome : nomes) {
        TElementoUi compilado;
        ASSERT_TRUE(LerUiCompilado(Bytes(pasta.filePath(nome)), compilado)) << qPrintable(nome);
        EXPECT_EQ(Escrito(compilado), Escrito(Lido(Bytes(textos.filePath(nome)))));
    }
}

TEST(ArquivoUi, BlanksAroundChildrenAreDroppedAndTextsKept)
{
    EXPECT_EQ(Escrito(Lido(Exemplo)),
              QStringLiteral("ui@1 version='4.0'[](widget@2 class='T' name='Código'[]("
                             "string@3[um < dois]()x@4[]()))"));
    EXPECT_EQ(Escrito(Lido("<ui><string>  two  </string></ui>")),
              QStringLiteral("ui@1[](string@1[  two  ]())"));
    EXPECT_EQ(Escrito(Lido("<ui>mixed <a/> tail</ui>")),
              QStringLiteral("ui@1[mixed  tail](a@1[]())"));
}

TEST(ArquivoUi, ABrokenTextIsToldWithItsLine)
{
    QString erro;
    EXPECT_EQ(LerUi("<ui>\n<a>\n</ui>", erro).Nome, QString());
    EXPECT_TRUE(erro.startsWith(QStringLiteral("3: XML mal formado: "))) << qPrintable(erro);
}

TEST(ArquivoUi, ATextIsNoCompiledLayout)
{
    TElementoUi raiz;
    EXPECT_FALSE(LerUiCompilado(Exemplo, raiz));
    EXPECT_FALSE(LerUiCompilado({}, raiz));
}

TEST(ArquivoUi, ACompiledLayoutThatIsCutOffOrLongerIsRefused)
{
    const QByteArray bytes = CompilarUi(Lido(Exemplo));
    TElementoUi raiz;
    ASSERT_TRUE(LerUiCompilado(bytes, raiz));
    for (qsizetype n = 0; n < bytes.size(); ++n)
        EXPECT_FALSE(LerUiCompilado(bytes.first(n), raiz)) << n;
    EXPECT_FALSE(LerUiCompilado(bytes + '\0', raiz));
}

TEST(ArquivoUi, ADamagedCompiledLayoutNeverReadsBeyondItself)
{
    const QByteArray bytes = CompilarUi(Lido(Exemplo));
    int recusados = 0;
    for (qsizetype i = 0; i < bytes.size(); ++i) {
        for (const char valor : {'\x00', '\x7F', '\xFF'}) {
            QByteArray outros = bytes;
            outros[i] = valor;
            TElementoUi raiz;
            recusados += LerUiCompilado(outros, raiz) ? 0 : 1;
        }
    }
    EXPECT_GT(recusados, 100);
}

} // namespace ficha
