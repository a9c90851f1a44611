#pragma once

#include "platform/database/MotorFirebird.h"

#include <QString>

/** What a work cannot do without: the engine's own interface, and nothing else. */
namespace bancada
{

/** A second connection to a database file, embedded, in ISO8859_1. Raises what the engine says. */
ficha::motor::TRef<Firebird::IAttachment> Anexar(const QString &arquivo);

/** A transaction that sees what is confirmed and writes nothing, which is the cheapest one. */
ficha::motor::TRef<Firebird::ITransaction> TransacaoDeLeitura(Firebird::IAttachment *anexo);

/** Prepares, opens and fetches until the end, discarding the rows; answers their number. In a clean
 * floating-point environment, in which the client library has the least to do. */
int BuscarTudo(Firebird::IAttachment *anexo, const QString &sql);

} // namespace bancada
