#pragma once

#include "platform/database/TSQLQuery.h"

#include <QStringList>

namespace ficha
{

/**
 * A query of the postal-code guide: lines of text, one of which stands for a code and is replaced
 * before each opening. Runs on the host's connection, taken at the first opening.
 */
class TConsultaDoGuia : public TSQLQuery
{
public:
    /** The line of the code, counted from 0, holds a value that finds nothing; -1: no such line. */
    TConsultaDoGuia(QObject *owner, const char *nome, QStringList linhas, int lugar = -1);

    /** The line of the code as it stands now. */
    QString Codigo() const;
    /** Closes the query when the code is another one. */
    void SetCodigo(const QString &codigo);
    /** Puts the code back that finds nothing. */
    void Esquecer();
    /** Prepares the query for whatever code its readings of the next moments will have, so that
     * they need not; until Soltar, which may be called at any time. Never raises. */
    void Adiantar();
    void Soltar() { TSQLQuery::Soltar(); }
    /** Reads the rows anew. EDatabaseError, also where the host has no connection. */
    void Ler();

private:
    void TomarConexao();

    QStringList linhas;
    int lugar;
    QString deProjeto;
};

} // namespace ficha
