#include "input/UItensDoCombo.h"

namespace ficha
{

void TItensDoCombo::Trocar(std::vector<TItem> novos)
{
    beginResetModel();
    itens = std::move(novos);
    indexados = false;
    endResetModel();
}

int TItensDoCombo::IndexOfObjeto(std::intptr_t objeto) const
{
    if (!indexados) {
        primeiros.clear();
        primeiros.reserve(itens.size());
        for (std::size_t i = 0; i < itens.size(); ++i)
            primeiros.try_emplace(itens[i].Objeto, int(i));
        indexados = true;
    }
    const auto achado = primeiros.find(objeto);
    return achado == primeiros.end() ? -1 : achado->second;
}

int TItensDoCombo::rowCount(const QModelIndex &pai) const
{
    return pai.isValid() ? 0 : int(itens.size());
}

QVariant TItensDoCombo::data(const QModelIndex &indice, int papel) const
{
    if (!indice.isValid() || indice.row() >= int(itens.size()))
        return {};
    const TItem &item = itens[std::size_t(indice.row())];
    if (papel == Qt::DisplayRole || papel == Qt::EditRole)
        return item.Texto;
    return papel == Qt::UserRole ? QVariant(qlonglong(item.Objeto)) : QVariant();
}

bool TItensDoCombo::setData(const QModelIndex &indice, const QVariant &valor, int papel)
{
    if (!indice.isValid() || indice.row() >= int(itens.size()))
        return false;
    TItem &item = itens[std::size_t(indice.row())];
    if (papel == Qt::UserRole) {
        item.Objeto = std::intptr_t(valor.toLongLong());
        indexados = false;
    } else if (papel == Qt::DisplayRole || papel == Qt::EditRole) {
        item.Texto = valor.toString();
    } else {
        return false;
    }
    // NOLINTNEXTLINE(readability-misleading-indentation): Q_EMIT is an empty macro
    Q_EMIT dataChanged(indice, indice);
    return true;
}

bool TItensDoCombo::insertRows(int linha, int quantas, const QModelIndex &pai)
{
    if (!Cabe(linha, quantas, pai, int(itens.size())))
        return false;
    beginInsertRows(pai, linha, linha + quantas - 1);
    itens.insert(itens.begin() + linha, std::size_t(quantas), TItem());
    indexados = false;
    endInsertRows();
    return true;
}

bool TItensDoCombo::removeRows(int linha, int quantas, const QModelIndex &pai)
{
    if (!Cabe(linha, quantas, pai, int(itens.size()) - quantas))
        return false;
    beginRemoveRows(pai, linha, linha + quantas - 1);
    itens.erase(itens.begin() + linha, itens.begin() + linha + quantas);
    indexados = false;
    endRemoveRows();
    return true;
}

bool TItensDoCombo::Cabe(int linha, int quantas, const QModelIndex &pai, int limite) const
{
    return !pai.isValid() && quantas > 0 && linha >= 0 && linha <= limite;
}

} // namespace ficha
