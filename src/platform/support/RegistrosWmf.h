#pragma once

#include <QByteArray>
#include <QImage>
#include <QPoint>
#include <QSize>

#include <vector>

namespace ficha
{

/** The alignment of texts, in the bits above those that the player knows: 2 right, 6 centre, 8
 * bottom, 24 base line; else left and top. */
enum { wmfDireita = 2, wmfCentro = 6, wmfBaixo = 8, wmfBase = 24, wmfAlinhamento = 30 };
constexpr int wmfDeslocamento = 8;

/** The records of a Windows metafile, checked and written anew. */
struct TRegistrosWmf {
    /** Header and closing record left out. */
    QByteArray bytes;
    /** How many pens, brushes and fonts they create; none is ever deleted. */
    int objetos = 0;
    /** The bitmaps that they copy, cut and turned; the records hold their numbers. */
    std::vector<QImage> bitmaps;
    /** The part of the drawing's own plane that fills the picture; a negative extension runs
     * leftwards or upwards, none is 0. */
    QPoint origem;
    QSize extensao;
    /** Pixels at 96 dpi, at least 1 x 1. */
    QSize natural;
};

/** Checks every record of a file. Raises EImagemInvalida at the first that is damaged. */
TRegistrosWmf LerRegistrosWmf(const QByteArray &arquivo);

/** A whole metafile for the player: those records, shown in a picture of so many pixels. */
QByteArray MontarWmf(const QByteArray &registros, int objetos, QPoint origem, QSize extensao,
                     QSize pixels);

} // namespace ficha
