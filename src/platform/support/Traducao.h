#pragma once

namespace ficha
{

/**
 * Gives Qt's own texts (context menus of edits, the file dialog, the details button, the menu of
 * a child window) in Portuguese. Needs a QCoreApplication, which owns the translator; without one
 * nothing happens, and a second call does nothing.
 *
 * A translator that the host installs afterwards comes first.
 */
void InstalarTraducao();

} // namespace ficha
