#pragma once

#include <QString>

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/**
 * Fills the clients of a new database with invented people and companies: valid CPFs and CNPJs
 * (some with letters), the addresses of the sample guide, telephones of their states. The same at
 * every first run, but for the days of registration, which are before that day. Joins the
 * transaction under way; needs the guide and the groups. A person and a company have the pictures
 * of the folder, see GravarFotosDeExemplo.
 */
void InserirClientesDeExemplo(ficha::TSQLConnection &conexao, const QString &pastaDasFotos);

/** Writes the two sample pictures, pessoa.jpg and empresa.jpg, into a folder, which is made; those
 * that are there stay. EErro when it cannot be written. */
void GravarFotosDeExemplo(const QString &pasta);

} // namespace comercial
