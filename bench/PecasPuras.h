#pragma once

#include "platform/database/MotorFirebird.h"

#include <QString>

/** What a work cannot do without: the engine's own interface, and nothing else. */
namespace bancada
{

/** A second connection to a database file, embedded, in ISO8859_1. Raises what the engine says. */
ficha::motor::TRef<Firebird::IAttachment> Anexar(const QString &arquivo);

/** Prepares, opens and fetches until the end, discarding the rows; answers their number. */
int BuscarTudo(Firebird::IAttachment *anexo, const QString &sql);

} // namespace bancada
