#include "platform/toolkit/Layout.h"

#include <QDir>

#include <gtest/gtest.h>

using namespace ficha;

/** Every layout that the library ships belongs to a registered class and names only what exists. */
TEST(LayoutsDaCasa, EveryShippedLayoutIsSound)
{
    const QDir pasta(QStringLiteral(":/ficha/layouts"));
    const QStringList arquivos = pasta.entryList({QStringLiteral("*.ui")});
    ASSERT_GT(arquivos.size(), 5);
    for (const QString &arquivo : arquivos) {
        const QString classe = arquivo.chopped(3);
        const QMetaObject *meta = ClasseRegistrada(classe);
        ASSERT_TRUE(meta) << classe.toStdString() << " has a layout but is not registered";
        for (const QString &falha : VerificarLayout(pasta.filePath(arquivo), *meta))
            ADD_FAILURE() << falha.toStdString();
    }
}
