#pragma once

#include <QWidget>

#include <functional>

namespace ficha
{

/**
 * Enter and exit of controls that hold other controls.
 *
 * A tracker follows the active control of each window. When the focus moves inside a window, exit
 * runs from the innermost control outwards up to the common ancestor, then enter runs inwards. A
 * handler that moves the focus elsewhere ends that walk: the new walk starts from where the first
 * one stood, and a control that is just being left is not told so again. Losing the window (a
 * message box, another program) is neither exit nor enter, and neither are pop-ups: the list of a
 * combo box, a menu, a calendar.
 *
 * A child window of an MDI main window counts as a window of its own: going to another child
 * window, or to a control of the main window itself, leaves the active control as it is.
 *
 * Controls that are destroyed are passed over in silence; what held them is left or entered as if
 * the focus had been there.
 *
 * Handlers run Protegido, in the order in which they were added, and go with their widget.
 */
void AoEntrar(QWidget *controle, std::function<void()> handler);
void AoSair(QWidget *controle, std::function<void()> handler);

/** The control that counts as active in the window of a widget; null when there is none yet. The
 * focus is followed from the first call of any of these functions on. */
QWidget *ControleAtivo(const QWidget *janela);

} // namespace ficha
