#pragma once

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/**
 * Fills the table of sales with invented ones of the last twenty months up to today, five a day, of
 * the clients and products that the database holds; without either, with none. The same at every
 * first run, save for the dates. Belongs into a transaction of the caller's.
 */
void InserirVendasDeExemplo(ficha::TSQLConnection &conexao);

} // namespace comercial
