#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>
#include <QtGlobal>

namespace ficha::testes
{

/**
 * Runs the event loop as a program does, for at least that many milliseconds and until the queue
 * has drained and the idle-time updates ran; what was to be deleted late is deleted.
 */
inline void Girar(int ms = 0)
{
    QEventLoop laco;
    QTimer::singleShot(qMax(ms, 5), &laco, &QEventLoop::quit);
    laco.exec();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace ficha::testes
