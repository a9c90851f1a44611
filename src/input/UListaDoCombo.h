#pragma once

namespace ficha
{

class TComboBox;

/** Makes the drop-down list ready for thousands of items: one row is measured, not every one. */
void PrepararLista(TComboBox &combo);
/** Makes the list about to open as wide as its longest text, inside the screen. */
void AlargarLista(TComboBox &combo);

} // namespace ficha
