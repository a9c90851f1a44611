#pragma once

#include <QByteArray>
#include <QString>

namespace ficha
{

/**
 * Whether ISO8859_1, the character set of every database of this system, holds the text: all its
 * characters are at most U+00FF. When it does not, primeiroInvalido (if given) receives the first
 * character that does not fit, whole even when it takes two code units.
 */
bool CabeEmLatin1(const QString &texto, QString *primeiroInvalido = nullptr);

/** "U+2013" and the like, for messages; the empty text for an empty one. */
QString NomeDoCaractere(const QString &caractere);

} // namespace ficha
