#pragma once

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/**
 * Fills the tables of a new database with invented groups, products and clients, in one
 * transaction.
 */
void InserirDadosDeExemplo(ficha::TSQLConnection &conexao);

} // namespace comercial
