#pragma once

#include "platform/toolkit/Layout.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** A folder of layouts that a test writes; looked into before the library's own. */
class TPastaDeLayouts
{
public:
    /** Writes "<classe>.ui"; corpo is what stands inside <ui>. Answers the file's path. */
    QString Escrever(const QString &classe, const QString &corpo)
    {
        const QString arquivo = pasta.filePath(classe + QStringLiteral(".ui"));
        QFile f(arquivo);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly | QIODevice::Truncate));
        f.write(QStringLiteral("<ui version=\"4.0\">\n%1\n</ui>\n").arg(corpo).toUtf8());
        f.close();
        RegistrarPastaDeLayouts(pasta.path());
        return arquivo;
    }
    QString Caminho() const { return pasta.path(); }

private:
    QTemporaryDir pasta;
};

} // namespace ficha::testes
