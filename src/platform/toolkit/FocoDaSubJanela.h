#pragma once

class QMdiSubWindow;

namespace ficha
{

/**
 * Gives a child window of a main window its active control back whenever it is activated again:
 * by key, from a menu, by a click on its title or on its ground.
 *
 * Qt empties a child window's own memory of its focus when another one is activated, and would
 * start the next visit at the first control that takes the focus, which is a row of page tabs as a
 * rule. In the place of a control that is hidden or disabled by then the first stop of the Tab key
 * has the focus; a click on another control of the window goes to that one. Asking a second time
 * for the same window changes nothing.
 */
void DevolverFocoAoVoltar(QMdiSubWindow *sub);

} // namespace ficha
