#include "support/BancoTemp.h"

#include "platform/database/ConexD.h"
#include "platform/database/PrepararBanco.h"

#include <QDir>
#include <QFile>
#include <QStorageInfo>

#include <map>

namespace ficha
{

namespace
{

/** The database made from a script, closed and ready to be copied. */
QString Modelo(const QString &script)
{
    static const QTemporaryDir pasta(PastaDeBancos());
    static std::map<QString, QString> prontos;
    QString &arquivo = prontos[script];
    if (arquivo.isEmpty()) {
        TSQLConnection conexao;
        conexao.DatabaseName = pasta.filePath(QStringLiteral("modelo%1.fdb").arg(prontos.size()));
        conexao.CriarBanco({});
        PrepararBanco(conexao);
        conexao.ExecutarScript(script);
        arquivo = conexao.DatabaseName;
    }
    return arquivo;
}

} // namespace

QString PastaDeBancos()
{
    constexpr qint64 Folga = qint64(512) * 1024 * 1024;
    const QFileInfo memoria(QStringLiteral("/dev/shm"));
    const bool cabe = memoria.isDir() && memoria.isWritable() &&
                      QStorageInfo(memoria.filePath()).bytesAvailable() > Folga;
    return (cabe ? memoria.filePath() : QDir::tempPath()) + QStringLiteral("/ficha-teste-") +
           QString(6, u'X');
}

TBancoTemp::TBancoTemp(const QString &script)
    : pasta(PastaDeBancos()), antes(ConexD().SQLConnection)
{
    conexao.DatabaseName = pasta.filePath(QStringLiteral("banco.fdb"));
    if (!QFile::copy(Modelo(script), conexao.DatabaseName))
        qFatal("the test database could not be copied to %s", qPrintable(conexao.DatabaseName));
    conexao.Open();
    ConexD().SQLConnection = &conexao;
}

TBancoTemp::~TBancoTemp()
{
    ConexD().SQLConnection = antes;
}

Variant TBancoTemp::Valor(const QString &sql)
{
    return ValorDoBanco(conexao, sql);
}

Variant ValorDoBanco(TSQLConnection &conexao, const QString &sql)
{
    TSQLQuery query;
    query.SetSQLConnection(&conexao);
    query.SetSQL(sql);
    query.Open();
    return query.IsEmpty() ? Null : query.Fields(0)->Value();
}

} // namespace ficha
