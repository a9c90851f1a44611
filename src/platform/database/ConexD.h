#pragma once

#include "platform/database/TSQLConnection.h"
#include "platform/database/TSQLQuery.h"

namespace ficha
{

/** The process-wide connection module: the one connection that every screen shares. */
class TConexD
{
public:
    /** Not owned: the host's connection, installed before the first screen. Null until then. */
    TSQLConnection *SQLConnection = nullptr;

    /** Runs a statement without a result on the host's connection, in its own transaction (see
     * TSQLConnection::Executar). EDatabaseError when there is no connection. */
    int Executar(const QString &sql);
};

/** The one instance. */
TConexD &ConexD();

/**
 * A short-lived select on the host's connection: made, opened, read and freed.
 *
 * Made with a text it opens it at once; made empty it is opened with Open(text).
 */
class TCustomBRQuery
{
public:
    TCustomBRQuery() { query.SetSQLConnection(ConexD().SQLConnection); }
    virtual ~TCustomBRQuery() = default;
    TCustomBRQuery(const TCustomBRQuery &) = delete;
    TCustomBRQuery &operator=(const TCustomBRQuery &) = delete;

    /** Runs a select; answers whether it returned at least one row. */
    bool Open(const QString &sql);
    TSQLQuery &Query() { return query; }
    /** The i-th column of the current row. */
    TField *Fields(int i) const { return query.Fields(i); }
    bool IsEmpty() const { return query.IsEmpty(); }
    bool Eof() const { return query.Eof(); }
    void Next() { query.Next(); }

private:
    TSQLQuery query;
};

/** The same, as the statement look-ups use it. */
class TCustomBRSQL : public TCustomBRQuery
{
public:
    TCustomBRSQL() = default;
    explicit TCustomBRSQL(const QString &sql) { Open(sql); }
};

} // namespace ficha
