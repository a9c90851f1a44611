#pragma once

// Private to this floor.

#include <QString>

#include <functional>

namespace ficha
{

class TDataSet;

/**
 * A filter written as text, made into a question about the row that a dataset's fields read.
 *
 * Comparisons "campo operador valor" with =, <>, <, <=, > and >=, "campo like 'padrão'" (% any
 * text, _ one character), "campo is null", "campo is not null"; joined by and, or and not, with
 * parentheses. Values are numbers (1234.5) and texts in single quotes ('d''água'; dates as
 * '31/12/2003', times of day
 * not at all). Texts compare without regard to case and accents. A comparison with Null is never
 * true.
 *
 * Raises EDatabaseError that names the place for what it does not understand, and for unknown
 * fields.
 */
std::function<bool()> LerFiltro(const QString &texto, const TDataSet &dataset);

} // namespace ficha
