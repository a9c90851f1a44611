#pragma once

#include <QString>

namespace ficha
{

/**
 * A number written by a pattern, in Brazilian notation: comma before the decimals, dots between
 * the thousands.
 *
 * In the pattern "0" is a digit that is always shown, "#" one that is shown when the number has
 * it, "." the place of the decimal comma and "," anywhere before it asks for the thousands' dots.
 * Anything else stands for itself ("R$ ", "%", the dashes of a document); text in single or double
 * quotes always does. Up to three sections separated by ";" serve positive, negative and zero
 * values; a negative section shows no sign of its own, and without one the first section gets a
 * minus sign in front. An empty pattern shows the number as it is, without grouping.
 *
 * The number is taken at 15 significant digits (a whole number up to 2^53 at all of them) and
 * rounded on those, halves away from zero: 1.005 with two decimals is "1,01". A value that rounds
 * to zero is shown as zero, without a sign. What is no number gives the empty text.
 *
 * Patterns are taken apart once and remembered: meant for every cell of a list.
 */
QString FormatFloat(const QString &padrao, double valor);
/** The same into a string of the caller's, whose memory is used again. */
void FormatFloat(const QString &padrao, double valor, QString &saida);

} // namespace ficha
