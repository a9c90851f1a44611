#pragma once

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/**
 * Fills the clients of a new database with invented people and companies: valid CPFs and CNPJs
 * (some with letters), the addresses of the sample guide, telephones of their states. The same at
 * every first run. Joins the transaction under way; needs the guide and the groups.
 */
void InserirClientesDeExemplo(ficha::TSQLConnection &conexao);

} // namespace comercial
