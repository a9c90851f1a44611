#include "input/UItensDoCombo.h"

#include <algorithm>

namespace ficha
{

void TItensDoCombo::Trocar(std::vector<TItem> novos)
{
    beginResetModel();
    itens = std::move(novos);
    endResetModel();
}

int TItensDoCombo::IndexOfObjeto(std::intptr_t objeto) const
{
    const auto achado = std::find_if(itens.begin(), itens.end(),
                                     [objeto](const TItem &item) { return item.Objeto == objeto; });
    return achado == itens.end() ? -1 : int(achado - itens.begin());
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
    endInsertRows();
    return true;
}

bool TItensDoCombo::removeRows(int linha, int quantas, const QModelIndex &pai)
{
    if (!Cabe(linha, quantas, pai, int(itens.size()) - quantas))
        return false;
    beginRemoveRows(pai, linha, linha + quantas - 1);
    itens.erase(itens.begin() + linha, itens.begin() + linha + quantas);
    endRemoveRows();
    return true;
}

bool TItensDoCombo::Cabe(int linha, int quantas, const QModelIndex &pai, int limite) const
{
    return !pai.isValid() && quantas > 0 && linha >= 0 && linha <= limite;
}

} // namespace ficha
