#pragma once

#include <QObject>

namespace bancada
{

/**
 * The event loop as a program runs it, watched: how often the thread woke up, what was painted, and
 * until there is nothing left to do.
 */
class TLaco : public QObject
{
public:
    TLaco();

    /** Runs until the loop has nothing to do: events, posted ones, paintings and the updates of the
     * idle time are done. */
    void Esgotar();
    /** Runs for so long and answers how often the thread woke up, the end aside: by what the event
     * dispatcher says and by the voluntary context switches. */
    struct TDespertares {
        int Laco = 0;
        int Trocas = 0;
    };
    TDespertares Esperar(int milissegundos);

    /** Counts the paintings of this widget. */
    void Observar(const QObject *widget)
    {
        observado = widget;
        pinturas = 0;
    }
    int Pinturas() const { return pinturas; }

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void AoEsperar();

    const QObject *observado = nullptr;
    int pinturas = 0;
    quint64 eventos = 0;
    quint64 noUltimoBloqueio = 0;
    int quietas = 0;
    int despertares = 0;
    bool esgotando = false;
};

} // namespace bancada
