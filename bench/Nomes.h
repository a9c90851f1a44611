#pragma once

#include <QStringList>

namespace bancada
{

/** Names of people as a register has them, accents and either case included, the same for every
 * run; the number behind them makes most of them differ. */
QStringList NomesDePessoas(int quantos);

} // namespace bancada
