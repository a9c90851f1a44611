#pragma once

#include "platform/database/TDataSet.h"

#include <QPointer>

#include <memory>

namespace ficha
{

class TSQLConnection;

/**
 * The rows of a select, read whole at Open() into compact rows; the cursor is closed after the
 * fetch. Lists are read in the connection's one long read-only, read-committed, NOWAIT
 * transaction, so that opening again sees the newest committed rows.
 *
 * Inside TSQLConnection::EmTransacao it reads in that transaction. Blobs are read with their rows.
 * The statement is prepared at each opening, so that changed tables are seen, and nothing of the
 * engine is held while the rows are in memory: they outlive a lost or closed connection. A derived
 * query that knows that it will be opened in a moment can have that work done ahead.
 */
class TSQLQuery : public TDataSet
{
    Q_OBJECT

public:
    explicit TSQLQuery(QObject *owner = nullptr);
    ~TSQLQuery() override;

    /** Not owned; may change while the query is closed. */
    TSQLConnection *GetSQLConnection() const;
    void SetSQLConnection(TSQLConnection *conexao);
    const QString &GetSQL() const { return sql; }
    /** Closes the query when the text differs. */
    void SetSQL(const QString &texto);
    /** The plan of the statement as it would run now, as the engine tells it. */
    QString Plano();
    /** Memory of the rows read, their index included. */
    qint64 BytesUsados() const;

protected:
    /**
     * Prepares ahead what the openings until Soltar will run: the query's own text, but with a "?"
     * in the place of a value. For a moment only: meanwhile nobody can drop what the statement
     * names, and a changed table reads as it was. Never raises and never connects again: where it
     * cannot be done, or is of no use any more at the opening, the text runs as always.
     */
    void Adiantar(const QString &comParametro);
    /** The value of the next openings in the place of the "?": the one that the text has there. */
    void SetValorAdiantado(const QString &valor);
    void Soltar();

    void AbrirLinhas() override;
    void FecharLinhas() override;
    int ContarLinhas() const override;
    bool CelulaNula(int linha, int coluna) const override;
    Variant CelulaValor(int linha, int coluna) const override;
    QString CelulaTexto(int linha, int coluna) const override;
    QAnyStringView CelulaTextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const override;

private:
    struct TPrivado;
    TSQLConnection &Conexao() const;

    QPointer<TSQLConnection> conexao;
    QString sql;
    std::unique_ptr<TPrivado> d;
};

} // namespace ficha
