#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace ficha
{

/**
 * Where a dialog opens below a button: its upper right corner at the lower right corner of the
 * button, moved up and to the left as far as it takes to stay inside the work area, and in any case
 * not beyond the area's own left and upper edge, at which a dialog larger than the area stands.
 *
 * All in the coordinates of the desktop, where the screens beside the first one may begin at
 * negative coordinates: the work area is that of the screen that has the button. On a screen that
 * begins at 0 no coordinate of the answer is negative.
 */
QPoint PosicaoDoDialogo(QPoint cantoDoBotao, QSize dialogo, const QRect &areaDeTrabalho);

} // namespace ficha
