#pragma once

#include <QCoreApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>

#include <chrono>
#include <cstdio>

namespace comercial
{

/**
 * Ends the program once a widget has been painted for the first time, for who measures its start:
 * when what was posted until then is done too, it prints "pintada" and the monotonic clock in
 * nanoseconds, and quits. Nothing of the library stands in here, so that an empty program can be
 * measured in the same way.
 */
class TSaidaAoPintar : public QObject
{
public:
    /** Goes before the widget, or with the program. */
    explicit TSaidaAoPintar(QWidget *aPintar) { aPintar->installEventFilter(this); }

    bool eventFilter(QObject *alvo, QEvent *evento) override
    {
        if (evento->type() == QEvent::Paint) {
            alvo->removeEventFilter(this);
            // The painting that begins here ends before any timer.
            QTimer::singleShot(0, this, [] {
                const auto agora = std::chrono::steady_clock::now().time_since_epoch();
                std::printf(
                    "pintada %lld\n",
                    static_cast<long long>(
                        std::chrono::duration_cast<std::chrono::nanoseconds>(agora).count()));
                std::fflush(stdout);
                QCoreApplication::quit();
            });
        }
        return QObject::eventFilter(alvo, evento);
    }
};

} // namespace comercial
