#pragma once

#include "platform/database/TDataSet.h"

#include <memory>

namespace ficha
{

class TSQLConnection;

/**
 * The rows of a select, read whole at Open() into compact rows; the cursor is closed after the
 * fetch. Lists are read in the connection's one long read-only, read-committed, NOWAIT
 * transaction, so that opening again sees the newest committed rows.
 *
 * Inside TSQLConnection::EmTransacao it reads in that transaction.
 */
class TSQLQuery : public TDataSet
{
    Q_OBJECT

public:
    explicit TSQLQuery(QObject *owner = nullptr);
    ~TSQLQuery() override;

    /** Not owned; may change while the query is closed. */
    TSQLConnection *GetSQLConnection() const { return conexao; }
    void SetSQLConnection(TSQLConnection *conexao);
    const QString &GetSQL() const { return sql; }
    /** Closes the query when the text differs. */
    void SetSQL(const QString &texto);
    /** The prepared statement's plan, as the engine tells it. */
    QString Plano();

protected:
    void AbrirLinhas() override;
    void FecharLinhas() override;
    int ContarLinhas() const override;
    bool CelulaNula(int linha, int coluna) const override;
    Variant CelulaValor(int linha, int coluna) const override;
    QString CelulaTexto(int linha, int coluna) const override;

private:
    struct TPrivado;
    TSQLConnection *conexao = nullptr;
    QString sql;
    std::unique_ptr<TPrivado> d;
};

} // namespace ficha
