#pragma once

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/** Fills the guide's tables of a new database with the states, their capitals and a few streets of
 * each state, in one transaction. */
void InserirGuiaDeExemplo(ficha::TSQLConnection &conexao);

/**
 * Adds an invented guide to the one of InserirGuiaDeExemplo, for measuring: about that many streets
 * spread over municípios and bairros of all states, each state with as many as it has codes to
 * give, their CEPs different and inside the state's ranges. Small towns have one CEP for the whole
 * town. The same number gives the same guide.
 *
 * One transaction for each state; a failure leaves whole states, and running it twice adds it
 * twice. Answers how many streets were added. A million takes about ten seconds.
 */
int GerarGuia(ficha::TSQLConnection &conexao, int logradouros);

} // namespace comercial
