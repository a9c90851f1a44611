#pragma once

#include "bench/Medidas.h"

#include <QStringList>

namespace bancada
{

/** The names of all groups, in alphabetical order. */
QStringList NomesDosGrupos();
/** Runs one group; once per process. Without series when there is no such group. */
TResultado ExecutarGrupo(const QString &nome, bool verificar);

} // namespace bancada
