#pragma once

namespace ficha
{

class TSQLConnection;

/**
 * Creates in the connected database what this library needs and the engine lacks, where it is
 * missing: the functions LTRIM and RTRIM and the table of the record locks, all open to every user
 * of the database. Running it again changes nothing. Needs a user who may create objects.
 *
 * LTRIM and RTRIM take texts of up to 8191 characters, which is what every character set allows.
 */
void PrepararBanco(TSQLConnection &conexao);

} // namespace ficha
