#include "platform/support/Imagens.h"

#include <QSize>

namespace ficha
{

QRect CopiarRect(int esquerda, int topo, int direita, int baixo)
{
    return {QPoint(esquerda, topo), QPoint(direita, baixo)};
}

QRect StretchRect(const QRect &imagem, const QRect &caixa)
{
    if (imagem.isEmpty() || caixa.isEmpty())
        return {};
    const QSize tamanho =
        imagem.size().scaled(caixa.size(), Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
    return {caixa.left() + (caixa.width() - tamanho.width()) / 2,
            caixa.top() + (caixa.height() - tamanho.height()) / 2, tamanho.width(),
            tamanho.height()};
}

} // namespace ficha
