#pragma once

#include "platform/core/Caracteres.h"
#include "platform/support/FormatFloat.h"

#include <QString>

namespace ficha
{

/** The digits 0 to 9 of a text, in their order; everything else is dropped. */
QString SoDig(const QString &texto);
/** Whether a text is made of digits 0 to 9 alone. The empty text is not. */
bool EhSoDig(const QString &texto);

/**
 * A text reduced to the text of a whole number.
 *
 * A comma ends the whole part ("12,50" gives "12", never "1250"). A minus sign counts when it
 * stands before the first digit. Everything else that is no digit is dropped: blanks, a plus sign,
 * the dots of grouping ("1.234" gives "1234"), "R$". Leading zeros go too. Without a digit, and
 * for a negative zero, the answer is "0".
 *
 * The number may be of any size: nothing is cut to 32 bits, so that a number that is too large is
 * refused where it is converted or compared and is never changed behind the user's back.
 */
QString StrToIntStr(const QString &texto);

/** A number with zeros in front up to tam characters, the minus sign included ("-05" for -5 and
 * 3). A longer number is not cut; a tam below 1 adds nothing. */
QString IntToStrZero(qint64 n, int tam);

/**
 * A letter without its accent, tilde, diaeresis or cedilla: "á" gives "a", "Ç" gives "C".
 *
 * Works for every accented Latin letter. All other characters come back as they are, "ª" and "º"
 * too, and so does a character that is in excecoes. The flags choose which letters are looked at:
 * the small ones and the capitals.
 */
QChar CharSemAcento(QChar c, const QString &excecoes = {}, bool minusculas = true,
                    bool maiusculas = true);
/** A text with every letter so. */
QString TextoSemAcentos(QString texto);

/** A CEP as "99999-999", from its first eight digits, masked or not. Fewer digits are shown as far
 * as they go: "16015" without a hyphen, "16015-2". */
QString CEPComMasc(const QString &cep);

/** A text as an SQL literal: quotes inside doubled, the whole in single quotes. */
QString QuotedStr(const QString &texto);

} // namespace ficha
