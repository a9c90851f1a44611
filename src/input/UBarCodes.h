#pragma once

#include <QString>

namespace ficha
{

/*
 * Check digits of product bar codes (modulo 10, weights 3 and 1 from the right).
 *
 * Every function reads the digits before the last character one by one: one that is no digit 0 to
 * 9 raises EVariantError. A caller that cannot be sure of its digits asks EhSoDig first. The last
 * character is compared as text and never raises.
 */

/** A code of 8, 12, 13 or 14 digits with its check digit right, blanks around it passed over; any
 * other length is invalid and is not read. */
bool BarCodValido(const QString &s);
/** Exactly 8 characters; any other length is invalid. */
bool EAN8Valido(const QString &s);
/** Exactly 12 characters; any other length is invalid. */
bool UPCAValido(const QString &s);
/** Exactly 13 characters; any other length is invalid. */
bool EAN13Valido(const QString &s);
/** Exactly 14 characters; any other length is invalid. */
bool EAN14Valido(const QString &s);

} // namespace ficha
