#pragma once

#include <QStyledItemDelegate>

namespace ficha
{

/** Rows of one height, pixels; 0 lets the font decide. */
class TAlturaDeItem : public QStyledItemDelegate
{
public:
    TAlturaDeItem(int pixels, QObject *dono) : QStyledItemDelegate(dono), altura(pixels) {}

    QSize sizeHint(const QStyleOptionViewItem &opcao, const QModelIndex &indice) const override
    {
        QSize tamanho = QStyledItemDelegate::sizeHint(opcao, indice);
        if (altura > 0)
            tamanho.setHeight(altura);
        return tamanho;
    }

private:
    int altura;
};

} // namespace ficha
