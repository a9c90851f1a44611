#pragma once

#include <QString>

class QKeyEvent;

namespace ficha
{

/** Whether a key press carries text to be typed, not a command: what has a printable character
 * and no Ctrl (AltGr, which is Ctrl and Alt together, types). */
bool EhTeclaDeTexto(const QKeyEvent &evento);

/**
 * Text from outside in the form in which the edits take it.
 *
 * Accents written as separate marks are joined to their letters. Line breaks of every kind become
 * "\n"; where only one line is wanted, those at the ends are dropped and those inside become
 * blanks. Tabs become blanks; other control characters are dropped.
 */
QString NormalizarEntrada(const QString &texto, bool umaLinha);

/** Why a text cannot be taken in (it has a character that ISO8859_1 cannot hold), as a message
 * for the user that names the character; empty when it can. */
QString RecusaDoTexto(const QString &texto);

} // namespace ficha
