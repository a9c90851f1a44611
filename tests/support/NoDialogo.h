#pragma once

#include <QApplication>
#include <QTimer>

#include <functional>

namespace ficha::testes
{

/**
 * What the user does in a modal dialog of a class, as soon as one is open and has the keyboard.
 * Made before the dialog is run; one that never opened is told by Aberto().
 */
template <typename T>
class TNoDialogo
{
public:
    explicit TNoDialogo(std::function<void(T &)> usuario)
    {
        QObject::connect(&relogio, &QTimer::timeout, [this, usuario = std::move(usuario)] {
            auto *dialogo = qobject_cast<T *>(QApplication::activeModalWidget());
            if (!dialogo || !dialogo->isActiveWindow())
                return;
            relogio.stop();
            aberto = true;
            usuario(*dialogo);
        });
        relogio.start(2);
    }
    bool Aberto() const { return aberto; }

private:
    QTimer relogio;
    bool aberto = false;
};

} // namespace ficha::testes
