#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QSize>

#include <vector>

namespace ficha
{

/**
 * A Windows metafile (.wmf), placeable or not: a recording of drawing calls, played at whatever
 * size it is wanted.
 *
 * Nothing in the file is trusted. The records are checked and written anew before the player sees
 * them, so that it meets no length, object or bitmap that does not add up; a picture of more than
 * MaiorArquivo bytes or MaisRegistros records, of more lines than any picture holds, or that takes
 * more than SegundosDePintura to draw, is refused. Palettes, regions as objects, flood fills and
 * escapes are passed over; pattern brushes fill with a light grey.
 */
class TMetafile
{
public:
    static constexpr qsizetype MaiorArquivo = 32LL * 1024 * 1024;
    static constexpr int MaisRegistros = 200'000;
    static constexpr int SegundosDePintura = 5;
    /** Longest side of TamanhoNatural and of Desenhar, in pixels. */
    static constexpr int MaiorLado = 4096;

    /** Takes the bytes of the file. Raises EImagemInvalida when they are no sound metafile. */
    explicit TMetafile(const QByteArray &arquivo);

    /** Pixels at 96 dpi: what a placeable file says of itself; without that a unit counts as a
     * pixel. Brought down to MaiorLado, at least one pixel each way. */
    QSize TamanhoNatural() const { return natural; }
    /** The picture on white, stretched to a size in pixels (1 to MaiorLado each way). Raises
     * EImagemInvalida when the player gives it up. */
    QImage Desenhar(QSize pixels) const;

private:
    QByteArray registros;
    std::vector<QImage> bitmaps;
    QPoint origem;
    QSize extensao;
    QSize natural;
    int objetos = 0;
};

} // namespace ficha
