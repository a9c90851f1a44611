#pragma once

#include <QAbstractListModel>

#include <cstdint>
#include <vector>

namespace ficha
{

/**
 * The items of a long drop-down list: texts with an integer each, replaced as a whole in one step.
 * An integer is looked for from the first item on: an index over all of them would cost more than
 * the one question that most lists are asked. Also takes the items that a combo box adds one by
 * one.
 */
class TItensDoCombo : public QAbstractListModel
{
    Q_OBJECT

public:
    struct TItem {
        QString Texto;
        std::intptr_t Objeto = 0;
    };

    explicit TItensDoCombo(QObject *owner) : QAbstractListModel(owner) {}

    void Trocar(std::vector<TItem> novos);
    /** The first item with this integer; -1 when there is none. */
    int IndexOfObjeto(std::intptr_t objeto) const;

    int rowCount(const QModelIndex &pai = {}) const override;
    QVariant data(const QModelIndex &indice, int papel) const override;
    bool setData(const QModelIndex &indice, const QVariant &valor, int papel) override;
    bool insertRows(int linha, int quantas, const QModelIndex &pai = {}) override;
    bool removeRows(int linha, int quantas, const QModelIndex &pai = {}) override;

private:
    bool Cabe(int linha, int quantas, const QModelIndex &pai, int limite) const;

    std::vector<TItem> itens;
};

} // namespace ficha
