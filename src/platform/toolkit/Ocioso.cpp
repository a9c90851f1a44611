#include "platform/toolkit/Ocioso.h"

#include "platform/core/Servicos.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QPointer>
#include <QScopedValueRollback>

#include <algorithm>
#include <memory>
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

/** The dispatcher is made anew with each application; hook into the one of now. */
void LigarAoDespachante()
{
    static QPointer<QAbstractEventDispatcher> ligado;
    QAbstractEventDispatcher *agora = QAbstractEventDispatcher::instance();
    if (!agora || ligado == agora)
        return;
    ligado = agora;
    QObject::connect(agora, &QAbstractEventDispatcher::aboutToBlock, agora, &ExecutarOcioso);
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
