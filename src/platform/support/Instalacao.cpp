#include "platform/support/Instalacao.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>

namespace ficha
{

namespace
{

QStringList &PastasDoHost()
{
    static QStringList pastas;
    return pastas;
}

/** Within a data folder there is no way up. */
QString SemSubida(QString caminho)
{
    while (caminho.startsWith(QStringLiteral("../")))
        caminho.remove(0, 3);
    return caminho;
}

} // namespace

QStringList LugaresDoArquivo(const QString &caminho)
{
    const QString relativo = QString(caminho).replace(u'\\', u'/');
    QStringList lugares;
    const auto por = [&lugares](const QString &pasta, const QString &arquivo) {
        const QString lugar = QDir::cleanPath(QDir(pasta).absoluteFilePath(arquivo));
        if (!lugares.contains(lugar))
            lugares << lugar;
    };
    if (!PastasDoHost().isEmpty()) {
        for (const QString &pasta : PastasDoHost())
            por(pasta, relativo);
        return lugares;
    }
    const QString programa = QCoreApplication::applicationDirPath();
    por(QDir::currentPath(), relativo);
    por(programa, relativo);
    por(programa + QStringLiteral("/../share/ficha"), SemSubida(relativo));
    por(QStringLiteral(FICHA_PASTA_DADOS), SemSubida(relativo));
    return lugares;
}

QString ArquivoDaInstalacao(const QString &caminho)
{
    for (const QString &lugar : LugaresDoArquivo(caminho)) {
        if (QFileInfo(lugar).isFile())
            return lugar;
    }
    return {};
}

void SetPastasDaInstalacao(const QStringList &pastas)
{
    PastasDoHost() = pastas;
}

} // namespace ficha
