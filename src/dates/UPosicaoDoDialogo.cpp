#include "dates/UPosicaoDoDialogo.h"

#include <algorithm>

namespace ficha
{

QPoint PosicaoDoDialogo(QPoint cantoDoBotao, QSize dialogo, const QRect &areaDeTrabalho)
{
    // The sides just behind the last pixel, unlike QRect's own right and bottom.
    const int direita = areaDeTrabalho.x() + areaDeTrabalho.width();
    const int base = areaDeTrabalho.y() + areaDeTrabalho.height();
    const int x = std::min(cantoDoBotao.x() - dialogo.width(), direita - dialogo.width());
    const int y = std::min(cantoDoBotao.y(), base - dialogo.height());
    return {std::max(x, areaDeTrabalho.x()), std::max(y, areaDeTrabalho.y())};
}

} // namespace ficha
