#pragma once

#include "platform/core/Variant.h"

namespace ficha
{

/** The character code of item 0, "!"; the one below it, the blank, stands for no item. */
inline constexpr int PrimeiroCaractere = 33;

/** How a choice is stored in one character: item index + 33; -1 gives a blank. */
QString CaractereDoItem(int i);
/** The index that the first character of a value's text stands for; Null and the empty text are
 * read as a blank. May be below 0 and beyond the items. */
int ItemDoCaractere(const Variant &valor);

} // namespace ficha
