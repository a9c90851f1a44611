#pragma once

#include <QString>

#include <array>

namespace ficha
{

/** Room for the text of one value, used again for the next: whoever reads many texts in turn hands
 * it to those that have to make them. What stands in it is their business. */
struct TEspacoDeTexto {
    std::array<char, 32> letras; /**< Latin-1, for numbers and dates */
    QString texto;               /**< for what has no room there */
};

} // namespace ficha
