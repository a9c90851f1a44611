#pragma once

#include <QByteArray>
#include <QImage>

#include <vector>

namespace ficha
{

/**
 * Plays a metafile that MontarWmf made for a picture of this size on that picture, with the bitmaps
 * that its records number. A point of the picture takes `fineza` pixels each way: no line is
 * thinner. Raises EImagemInvalida when it takes longer than that many seconds or the player fails.
 */
void TocarWmf(QByteArray arquivo, const std::vector<QImage> &bitmaps, QImage &tela, int fineza,
              int segundos);

} // namespace ficha
