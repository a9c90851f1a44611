#pragma once

#include <QString>

namespace ficha
{

class TDataSet;
class TField;

/*
 * Helpers on the host's connection (ConexD). Failures of the database are not caught: they reach
 * the caller as EDatabaseError.
 */

/** The present value of a generator, by its name; whole up to 2^53. */
qint64 GenVal(const QString &nome);
/** Sets a generator, committed at once (with the others inside TSQLConnection::EmTransacao). */
void GenSet(const QString &nome, qint64 valor);
/** Moves a generator on by one and answers the new value. It is never given back. */
qint64 GenProximo(const QString &nome);

/** Whether a column holds text: char, varchar or a text memo. Null is none. */
bool FieldIsString(const TField *field);
/** The number of rows of a dataset; 0 for null and for a closed one. */
int NLinsDataSet(const TDataSet *dataset);

/**
 * Takes the lock on a record, for an alteration or a deletion: by its table and the text of its
 * key; `onde` is the record's "where" clause. Answers whether it was obtained.
 *
 * When another has it, the user is told who and since when, as far as the database knows. When the
 * clause finds no record any more, because someone deleted it, the user is told so and the lock is
 * not kept. A clause without a condition (" where " alone, a table without key) asks nothing of
 * the record, and the lock is on the table as a whole.
 */
bool GarantiaTentar(const QString &tabela, const QString &chaves, const QString &onde);
/** Gives a lock back; one that is not held is left alone. */
void GarantiaLiberar(const QString &tabela, const QString &chaves);
/** The number of a lock that this program holds, 0 when it holds none; every lock taken has
 * another one. After a lost connection all locks are gone. Never asks the database. */
qint64 GarantiaNumero(const QString &tabela, const QString &chaves);

} // namespace ficha
