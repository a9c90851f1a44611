#pragma once

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/** Fills the empty table of accounts with the chart of a small trading company, nothing booked, in
 * one transaction. */
void InserirPlanoDeContas(ficha::TSQLConnection &conexao);

/** Books an invented balance sheet that closes. Belongs into a transaction of the caller's. */
void InserirSaldosDeExemplo(ficha::TSQLConnection &conexao);

} // namespace comercial
