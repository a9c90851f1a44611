#pragma once

#include <QRect>

namespace ficha
{

/** The rectangle with these edges, both ends counted: (0, 0, largura - 1, altura - 1) is a whole
 * picture. */
QRect CopiarRect(int esquerda, int topo, int direita, int baixo);

/**
 * Where a picture goes when it is stretched into a box with its proportions kept: the largest such
 * rectangle inside the box, centred, at least one pixel each way. Small pictures grow. An odd
 * pixel is left on the right and below. Empty when either is empty.
 */
QRect StretchRect(const QRect &imagem, const QRect &caixa);

} // namespace ficha
