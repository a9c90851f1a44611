#pragma once

#include <QFile>
#include <QString>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** The script of the postal-code guide as the demo makes it: the 27 states, their capitals and
 * some streets. */
inline QString RoteiroDoGuia()
{
    QString roteiro;
    for (const char *nome : {"schema-guia.sql", "guia.sql"}) {
        QFile arquivo(QStringLiteral(FICHA_FONTES "/demo/") + QString::fromLatin1(nome));
        EXPECT_TRUE(arquivo.open(QIODevice::ReadOnly)) << nome;
        roteiro += QString::fromUtf8(arquivo.readAll());
    }
    return roteiro;
}

} // namespace ficha::testes
