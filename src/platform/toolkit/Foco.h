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
 * one stood. Losing the window (a message box, another program) is neither exit nor enter.
 *
 * Handlers run Protegido, in the order in which they were added, and go with their widget.
 */
void AoEntrar(QWidget *controle, std::function<void()> handler);
void AoSair(QWidget *controle, std::function<void()> handler);

/** The control that counts as active in the window of a widget; null when there is none yet. */
QWidget *ControleAtivo(const QWidget *janela);

} // namespace ficha
