#pragma once

#include <QObject>

#include <functional>

namespace ficha
{

/**
 * Updates that run when the program falls idle: each registered update runs once when the event
 * queue has drained, and not again before something happened. An idle program uses no processor.
 *
 * Updates run Protegido, in the order in which they were added. One that raises is reported once;
 * while it goes on failing it is tried at every idle moment but not reported again until it has
 * succeeded. While updates run (also inside a message box that one of them opened) no other idle
 * pass begins.
 *
 * The update goes with its owner. Answers a number for CancelarOcioso, never 0.
 */
quint64 AoOcioso(QObject *dono, std::function<void()> atualizar);
/** Forgets an update; unknown numbers do nothing. May be called from inside the update. */
void CancelarOcioso(quint64 numero);
/** Runs all updates now, for a caller that needs the state at once. Does nothing inside a pass. */
void ExecutarOcioso();

} // namespace ficha
