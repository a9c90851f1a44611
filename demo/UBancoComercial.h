#pragma once

#include "platform/database/TSQLConnection.h"

namespace comercial
{

/**
 * The demo's database: opens it and installs it as the connection of every screen.
 *
 * An empty address means the embedded database "comercial.fdb" in the user's data folder, made with
 * the schema and sample data at the first run, its pictures in the folder "fotos" beside it; a path
 * means that file, made likewise; "host:path" means a server, with the user and password of
 * FICHA_USUARIO and FICHA_SENHA, where the database is expected to exist. Raises EDatabaseError
 * with one clear message; a database that could not be made whole is not left behind.
 *
 * A database of an earlier version of the program is brought up first: it gains what it lacks (the
 * postal-code guide with its states, the clients, the products' bar codes and days of registration,
 * the sales, the chart of accounts) and keeps everything that it holds. Each step is done whole or
 * not at all; one that failed is tried again at the next opening. Two workstations may do it at the
 * same time. Sample clients, sales and balances go into new databases only.
 */
void AbrirBancoComercial(ficha::TSQLConnection &conexao, const QString &endereco);

/** Where the embedded database is kept when no address is given. */
QString ArquivoPadrao();

} // namespace comercial
