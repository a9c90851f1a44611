#pragma once

#include <QString>

namespace bancada
{

/**
 * The script of a table filled as a register of clients is: rows of (integer key, varchar(40),
 * varchar(20), numeric(15,2), date, char(1), timestamp, varchar(60)), the same for every run.
 * Names, cities and streets are put together from short lists, accents included, so that texts
 * repeat and differ as in a real register; every column has its own generator.
 */
QString RoteiroDeClientes(const QString &tabela, int linhas);

} // namespace bancada
