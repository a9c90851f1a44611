#include "platform/support/TArvItem.h"

#include "platform/core/Erros.h"

#include <QHash>

#include <utility>

namespace ficha
{

namespace
{

/** Every item that is alive, by its number. Never destroyed itself: items may be static objects. */
QHash<std::intptr_t, TArvItem *> &Vivos()
{
    static auto *vivos = new QHash<std::intptr_t, TArvItem *>;
    return *vivos;
}

} // namespace

TArvItem::TArvItem()
{
    Vivos().insert(Objeto(), this);
}

TArvItem::~TArvItem()
{
    LimparFilhos();
    Vivos().remove(Objeto());
}

TArvItem *TArvItem::AddFilho(std::unique_ptr<TArvItem> item)
{
    if (!item)
        throw EErro(QStringLiteral("Um item da árvore não pode ser nulo."));
    TArvItem *novo = item.get();
    filhos.push_back(std::move(item));
    novo->pai = this;
    novo->nivel = nivel + 1;
    if (!novo->filhos.empty())
        novo->NivelarAbaixo();
    Sujar();
    return novo;
}

TArvItem *TArvItem::GetFilhos(int indice) const
{
    return indice >= 0 && indice < NFilhos() ? filhos[std::size_t(indice)].get() : nullptr;
}

void TArvItem::LimparFilhos()
{
    if (filhos.empty())
        return;
    // Each item loses its children before it goes, so that no destructor runs inside another's.
    std::vector<std::unique_ptr<TArvItem>> pendentes = std::move(filhos);
    filhos.clear();
    Sujar();
    while (!pendentes.empty()) {
        const std::unique_ptr<TArvItem> item = std::move(pendentes.back());
        pendentes.pop_back();
        for (auto &filho : item->filhos) {
            filho->pai = nullptr;
            pendentes.push_back(std::move(filho));
        }
        item->filhos.clear();
    }
}

void TArvItem::SetExpandido(bool v)
{
    if (std::exchange(expandido, v) != v && pai)
        pai->Sujar();
}

int TArvItem::NLins() const
{
    if (filhos.empty())
        return 0;
    Contar();
    return 1 + (expandido ? abaixo : 0);
}

TArvItem *TArvItem::De(std::intptr_t objeto)
{
    return Vivos().value(objeto, nullptr);
}

/** What is above is counted again too, up to where that is known already. */
void TArvItem::Sujar()
{
    for (TArvItem *item = this; item && !item->sujo; item = item->pai)
        item->sujo = true;
}

/** Brings the count up to date, from the lowest items that changed upwards; collapsed ones wait
 * until they are expanded. */
void TArvItem::Contar() const
{
    if (!sujo)
        return;
    std::vector<const TArvItem *> pilha{this};
    while (!pilha.empty()) {
        const TArvItem *item = pilha.back();
        const std::size_t antes = pilha.size();
        int soma = 0;
        for (const auto &filho : item->filhos) {
            if (filho->expandido && filho->sujo)
                pilha.push_back(filho.get());
            soma += 1 + (filho->expandido ? filho->abaixo : 0);
        }
        if (pilha.size() != antes)
            continue; // the children first
        item->abaixo = soma;
        item->sujo = false;
        pilha.pop_back();
    }
}

/** Levels below an item that was put into a tree together with what it holds. */
void TArvItem::NivelarAbaixo()
{
    std::vector<TArvItem *> pilha{this};
    while (!pilha.empty()) {
        const TArvItem *item = pilha.back();
        pilha.pop_back();
        for (const auto &filho : item->filhos) {
            filho->nivel = item->nivel + 1;
            pilha.push_back(filho.get());
        }
    }
}

} // namespace ficha
