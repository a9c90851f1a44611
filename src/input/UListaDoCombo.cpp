#include "input/UListaDoCombo.h"

#include "platform/toolkit/TComboBox.h"

#include <QListView>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace ficha
{

void PrepararLista(TComboBox &combo)
{
    combo.view()->setTextElideMode(Qt::ElideRight);
    if (auto *lista = qobject_cast<QListView *>(combo.view()))
        lista->setUniformItemSizes(true);
}

void AlargarLista(TComboBox &combo)
{
    QAbstractItemView *lista = combo.view();
    const int margens = 4 * (lista->style()->pixelMetric(QStyle::PM_FocusFrameHMargin) + 1) +
                        lista->style()->pixelMetric(QStyle::PM_ScrollBarExtent);
    const int cabe = combo.screen()->availableGeometry().right() - combo.mapToGlobal(QPoint()).x();
    const int texto = lista->fontMetrics().horizontalAdvance(combo.ItemMaisLongo());
    lista->setMinimumWidth(std::max(0, std::min(texto + margens, cabe)));
}

} // namespace ficha
