#pragma once

#include <QString>

namespace ficha
{
class TSQLConnection;
}

namespace comercial
{

/**
 * Fills the tables of a new database with invented groups, products, clients, sales and balances,
 * in one transaction. The folder is that of the clients' pictures, which are not written here.
 */
void InserirDadosDeExemplo(ficha::TSQLConnection &conexao, const QString &pastaDasFotos);

} // namespace comercial
