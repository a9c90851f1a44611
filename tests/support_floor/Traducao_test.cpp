#include "platform/support/Traducao.h"

#include <QAction>
#include <QCoreApplication>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>

using namespace ficha;

namespace
{

/** What a context menu offers, without mnemonics and short-cuts. */
QStringList Textos(const QMenu *menu)
{
    QStringList textos;
    for (const QAction *acao : menu->actions()) {
        if (!acao->isSeparator())
            textos << acao->text().section(u'\t', 0, 0).remove(u'&');
    }
    return textos;
}

const QStringList &MenuDeEdicao()
{
    static const QStringList textos = {QStringLiteral("Desfazer"),       QStringLiteral("Refazer"),
                                       QStringLiteral("Recortar"),       QStringLiteral("Copiar"),
                                       QStringLiteral("Colar"),          QStringLiteral("Excluir"),
                                       QStringLiteral("Selecionar tudo")};
    return textos;
}

} // namespace

TEST(Traducao, TheMenusOfTheEditsAreInPortuguese)
{
    InstalarTraducao();
    QLineEdit edit;
    EXPECT_EQ(Textos(std::unique_ptr<QMenu>(edit.createStandardContextMenu()).get()),
              MenuDeEdicao());
    QPlainTextEdit memo;
    EXPECT_EQ(Textos(std::unique_ptr<QMenu>(memo.createStandardContextMenu()).get()),
              MenuDeEdicao());
}

TEST(Traducao, TheTextsOfTheHostAreLeftAlone)
{
    InstalarTraducao();
    EXPECT_EQ(QCoreApplication::translate("TelaDoHost", "Open"), QStringLiteral("Open"));
    EXPECT_EQ(QCoreApplication::translate("QFileDialog", "a text that is not known"),
              QStringLiteral("a text that is not known"));
}

TEST(Traducao, InstallingTwiceInstallsOne)
{
    const auto tradutores = [] {
        return qApp->findChildren<QTranslator *>(QString(), Qt::FindDirectChildrenOnly).size();
    };
    InstalarTraducao();
    const auto antes = tradutores();
    InstalarTraducao();
    EXPECT_EQ(tradutores(), antes);
}
