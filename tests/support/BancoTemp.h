#pragma once

#include "platform/core/Variant.h"
#include "platform/database/TSQLConnection.h"

#include <QTemporaryDir>

namespace ficha
{

/**
 * A database of its own for one test: a copy of one that is made once per test program and script,
 * connected embedded and installed as ConexD().SQLConnection until the object goes. PrepararBanco
 * has run in it, before the script.
 */
class TBancoTemp
{
public:
    explicit TBancoTemp(const QString &script = {});
    ~TBancoTemp();
    TBancoTemp(const TBancoTemp &) = delete;
    TBancoTemp &operator=(const TBancoTemp &) = delete;

    TSQLConnection &Conexao() { return conexao; }
    QString Pasta() const { return pasta.path(); }
    QString Arquivo() const { return conexao.DatabaseName; }
    int Executar(const QString &sql) { return conexao.Executar(sql); }
    /** First column of the first row; Null when there is no row. */
    Variant Valor(const QString &sql);

private:
    QTemporaryDir pasta;
    TSQLConnection conexao;
    TSQLConnection *antes;
};

/** Where test databases are made: in memory (/dev/shm) when there is room, for every commit waits
 * for the disk; else in the temporary folder. A template for QTemporaryDir. */
QString PastaDeBancos();

/** First column of the first row of a select on some connection; Null when there is no row. */
Variant ValorDoBanco(TSQLConnection &conexao, const QString &sql);

} // namespace ficha
