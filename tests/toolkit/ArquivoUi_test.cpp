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

QString PeloGeral(const QByteArray &bytes)
{
    QString erro;
    const TElementoUi raiz = LerUiGeral(bytes, erro);
    return erro.isEmpty() ? Escrito(raiz) : erro;
}

class TTextoDeArquivo : public testing::TestWithParam<const char *>
{
};

using ArquivoUiSimples = TTextoDeArquivo;
using ArquivoUiRecusado = TTextoDeArquivo;

} // namespace

TEST(ArquivoUi, EveryLayoutOfTheLibraryIsReadTheSimpleWayAndAlike)
{
    const QDir pasta(QStringLiteral(":/ficha/layouts"));
    const QStringList nomes = pasta.entryList({QStringLiteral("*.ui")});
    ASSERT_GT(nomes.size(), 50);
    for (const QString &nome : nomes) {
        QFile arquivo(pasta.filePath(nome));
        ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
        const QByteArray bytes = arquivo.readAll();
        TElementoUi raiz;
        ASSERT_TRUE(LerUiSimples(bytes, raiz)) << nome.toStdString();
        EXPECT_EQ(Escrito(raiz), PeloGeral(bytes)) << nome.toStdString();
    }
}

TEST_P(ArquivoUiSimples, IsReadAsTheGeneralReaderReadsIt)
{
    const QByteArray bytes = GetParam();
    TElementoUi raiz;
    ASSERT_TRUE(LerUiSimples(bytes, raiz));
    EXPECT_EQ(Escrito(raiz), PeloGeral(bytes));
}

INSTANTIATE_TEST_SUITE_P(
    , ArquivoUiSimples,
    testing::Values("<ui/>", "<ui></ui>", "<ui version=\"4.0\"/>", "<ui a=\"1\" b=\"2\" c=\"\"/>",
                    "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<ui>\n <a/>\n</ui>\n",
                    "<!-- one\ntwo -->\n<ui><a/></ui>", "<ui><string>  two blanks  </string></ui>",
                    "<ui><string>\n</string></ui>", "<ui><string></string></ui>",
                    "<ui><string>caf\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80</string></ui>",
                    "<ui><string>&lt;b&gt; &amp; &quot;x&quot; &apos;</string></ui>",
                    "<ui t=\"a &amp; &lt;b&gt; 'c'\"/>", "<ui>mixed <a/> text <b/> tail</ui>",
                    "<ui>\n  <a/>\n  text\n  <b/>\n</ui>", "<ui><a>x<!-- c -->y</a></ui>",
                    "<ui><a> <!-- c --> </a></ui>", "<ui>\n <!-- c -->\n <a/>\n <!-- d -->\n</ui>",
                    "<ui\n a=\"1\"\n b=\"2\"\n><x/></ui>", "<ui >\n<a\n/>\n</ui >",
                    "<ui>a]]b ]] ></ui>", "<ui>a > b</ui>", "<a-b.c_1><D/></a-b.c_1>",
                    "<ui><a/></ui> and whatever follows"));

TEST_P(ArquivoUiRecusado, IsLeftToTheGeneralReader)
{
    TElementoUi raiz;
    EXPECT_FALSE(LerUiSimples(GetParam(), raiz));
}

INSTANTIATE_TEST_SUITE_P(Sound, ArquivoUiRecusado,
                         testing::Values("<ui a='single'/>", "<ui a = \"1\"/>",
                                         "<ui><![CDATA[x]]></ui>", "<ui>&#65;</ui>",
                                         "<ui><?pi x?></ui>", "<!DOCTYPE ui><ui/>",
                                         "<?xml version='1.0'?><ui/>", "<ui a=\"x\ny\"/>",
                                         "<ui>\r\n</ui>", "\xEF\xBB\xBF<ui/>", "<ui xmlns=\"u\"/>",
                                         "<n:ui xmlns:n=\"u\"/>", "<\xC3\xA9/>"));

INSTANTIATE_TEST_SUITE_P(Broken, ArquivoUiRecusado,
                         testing::Values("", " ", "text", "<", "<ui", "<ui>", "<ui a/>", "<ui a=>",
                                         "<ui a=\"1>", "<ui a=\"1\"b=\"2\"/>",
                                         "<ui a=\"1\" a=\"2\"/>", "<ui a=\"<\"/>", "<ui></uj>",
                                         "<ui><a></ui></a>", "<ui></ui", "<ui>&nothing;</ui>",
                                         "<ui>& </ui>", "<ui>]]></ui>", "<ui><!-- a -- b --></ui>",
                                         "<ui><!-- a </ui>", "<ui / >", "<1ui/>", "<ui>\x01</ui>",
                                         "<ui>\xC3</ui>", "<ui>\xEF\xBF\xBF</ui>",
                                         "<ui><string>x</string>"));

} // namespace ficha
