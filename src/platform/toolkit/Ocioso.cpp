#include "platform/toolkit/Ocioso.h"

#include "platform/core/Servicos.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QEvent>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

namespace ficha
{

namespace
{

struct TAtualizacao {
    quint64 numero = 0;
    QPointer<QObject> dono;
    std::function<void()> atualizar;
    bool falhou = false;
};

std::vector<std::shared_ptr<TAtualizacao>> &Atualizacoes()
{
    static std::vector<std::shared_ptr<TAtualizacao>> lista;
    return lista;
}

/** Counts what happens in the program: every event that is delivered. */
class TContador : public QObject
{
public:
    using QObject::QObject;
    quint64 Eventos = 0;
    quint64 NoUltimoBloqueio = 0;
    quint64 NaUltimaVez = 0;

    /**
     * The program is about to wait. Some event dispatchers say so before they have delivered all
     * that there is, so another round is asked for until one finds nothing to do.
     */
    void AoEsperar(QAbstractEventDispatcher *despachante)
    {
        if (std::exchange(NoUltimoBloqueio, Eventos) != Eventos) {
            despachante->wakeUp();
        } else if (NaUltimaVez != Eventos) {
            ExecutarOcioso();
            // What the updates did by direct calls is no new happening.
            NaUltimaVez = NoUltimoBloqueio = Eventos;
        }
    }

protected:
    bool eventFilter(QObject *, QEvent *) override
    {
        ++Eventos;
        return false;
    }
};

/** The dispatcher is made anew with each application; hook into the one of now. */
void LigarAoDespachante()
{
    static QPointer<TContador> contador;
    QAbstractEventDispatcher *agora = QAbstractEventDispatcher::instance();
    if (!agora || !qApp || contador)
        return;
    contador = new TContador(qApp);
    qApp->installEventFilter(contador);
    QObject::connect(agora, &QAbstractEventDispatcher::aboutToBlock, contador,
                     [agora] { contador->AoEsperar(agora); });
}

void Executar(TAtualizacao &a)
{
    try {
        // The handler is copied: it may cancel itself.
        const auto atualizar = a.atualizar;
        atualizar();
        a.falhou = false;
    } catch (...) {
        if (!a.falhou)
            ReportarErro(std::current_exception());
        a.falhou = true;
    }
}

} // namespace

quint64 AoOcioso(QObject *dono, std::function<void()> atualizar)
{
    static quint64 ultimo = 0;
    LigarAoDespachante();
    auto nova = std::make_shared<TAtualizacao>();
    nova->numero = ++ultimo;
    nova->dono = dono;
    nova->atualizar = std::move(atualizar);
    Atualizacoes().push_back(std::move(nova));
    QObject::connect(dono, &QObject::destroyed, [numero = ultimo] { CancelarOcioso(numero); });
    return ultimo;
}

void CancelarOcioso(quint64 numero)
{
    for (const auto &a : Atualizacoes())
        if (a->numero == numero)
            a->dono = nullptr;
    std::erase_if(Atualizacoes(), [numero](const auto &a) { return a->numero == numero; });
}

void ExecutarOcioso()
{
    static bool executando = false;
    if (executando)
        return;
    const QScopedValueRollback guarda(executando, true);
    const auto lista = Atualizacoes();
    for (const auto &a : lista)
        if (a->dono)
            Executar(*a);
}

} // namespace ficha
