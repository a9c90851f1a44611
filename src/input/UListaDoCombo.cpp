#include "input/UListaDoCombo.h"

#include "platform/toolkit/TComboBox.h"

#include <QAbstractItemView>
#include <QScreen>
#include <QStyle>

#include <algorithm>

namespace ficha
{

void PrepararLista(TComboBox &combo)
{
    combo.SetLinhasIguais(true);
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
