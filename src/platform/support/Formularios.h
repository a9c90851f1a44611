#pragma once

#include <QString>

namespace ficha
{

class TForm;

/** The form of this object name, letter case ignored: the newest one that is shown, else the
 * newest; null when there is none. An empty name finds none. */
TForm *NameToForm(const QString &nome);

} // namespace ficha
