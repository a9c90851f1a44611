#pragma once

#include "platform/database/TSQLConnection.h"

namespace comercial
{

/**
 * The demo's database: opens it and installs it as the connection of every screen.
 *
 * An empty address means the embedded database "comercial.fdb" in the user's data folder, made with
 * the schema and sample data at the first run; a path means that file, made likewise; "host:path"
 * means a server, with the user and password of FICHA_USUARIO and FICHA_SENHA, where the database
 * is expected to exist. Raises EDatabaseError with one clear message; a database that could not be
 * made whole is not left behind.
 */
void AbrirBancoComercial(ficha::TSQLConnection &conexao, const QString &endereco);

/** Where the embedded database is kept when no address is given. */
QString ArquivoPadrao();

} // namespace comercial
