#pragma once

#include <QString>

namespace ficha
{

/**
 * The bare digits of a date edit with the year in four digits: ddmmyy becomes ddmmyyyy by
 * AnoPeloSeculo, and ddmmyyyy, which may have blanks among its digits (" 5 32024"), is written anew
 * with zeros in front. A text of another length comes back as it is. Whether there is such a day is
 * not asked: 31022024 stays 31022024.
 *
 * Day, month and year are what StrToIntStr makes of their characters; a group without a digit is 0.
 */
QString DigitosPeloSeculo(const QString &texto, int seculoBase, bool zeroEhCem);

} // namespace ficha
