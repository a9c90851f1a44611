#pragma once

namespace ficha
{

/** Where a text stands between the left and the right edge of its cell. */
enum TAlignment { taLeftJustify, taRightJustify, taCenter };

} // namespace ficha
