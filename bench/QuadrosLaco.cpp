#include "bench/QuadrosLaco.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QEventLoop>
#include <QTimer>

#include <sys/resource.h>

namespace bancada
{

namespace
{

/** Rounds of the loop without an event after which there is nothing left; the first one may have
 * posted something. */
constexpr int RodadasQuietas = 2;

int TrocasVoluntarias()
{
    rusage uso{};
    getrusage(RUSAGE_THREAD, &uso);
    return int(uso.ru_nvcsw);
}

} // namespace

TLaco::TLaco()
{
    QAbstractEventDispatcher *despachante = QAbstractEventDispatcher::instance();
    connect(despachante, &QAbstractEventDispatcher::aboutToBlock, this, &TLaco::AoEsperar);
    connect(despachante, &QAbstractEventDispatcher::awake, this, [this] { ++despertares; });
    qApp->installEventFilter(this);
}

void TLaco::Esgotar()
{
    quietas = 0;
    noUltimoBloqueio = 0;
    esgotando = true;
    while (esgotando)
        QAbstractEventDispatcher::instance()->processEvents(QEventLoop::WaitForMoreEvents);
}

TLaco::TDespertares TLaco::Esperar(int milissegundos)
{
    QEventLoop laco;
    QTimer::singleShot(milissegundos, Qt::PreciseTimer, &laco, &QEventLoop::quit);
    // The making of the timer is an event too.
    Esgotar();
    const int trocas = TrocasVoluntarias();
    despertares = 0;
    laco.exec();
    return {despertares - 1, TrocasVoluntarias() - trocas - 1};
}

bool TLaco::eventFilter(QObject *objeto, QEvent *evento)
{
    ++eventos;
    if (evento->type() == QEvent::Paint && objeto == observado)
        ++pinturas;
    return false;
}

/** Connected after the library's own, which has asked for another round or run its updates. */
void TLaco::AoEsperar()
{
    if (!esgotando)
        return;
    quietas = noUltimoBloqueio == eventos ? quietas + 1 : 0;
    noUltimoBloqueio = eventos;
    esgotando = quietas < RodadasQuietas;
    QAbstractEventDispatcher::instance()->wakeUp();
}

} // namespace bancada
