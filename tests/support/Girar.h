#pragma once

#include <QEventLoop>
#include <QTimer>

namespace ficha::testes
{

/**
 * Runs the event loop as a program does: until the queue has drained and the idle-time updates
 * ran, for at least that many milliseconds.
 */
inline void Girar(int ms = 0)
{
    QEventLoop laco;
    QTimer::singleShot(ms, &laco, &QEventLoop::quit);
    laco.exec();
    QTimer::singleShot(0, &laco, &QEventLoop::quit);
    laco.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace ficha::testes
