#pragma once

#include "platform/core/TColor.h"

#include <QRect>
#include <QString>

class QPainter;

namespace ficha
{

class TColumn;
class TDBGrid;
class TField;
class TImageList;

/** Whether a number is odd; negative ones too. */
inline bool NumEhImpar(int numero)
{
    return numero % 2 != 0;
}
/** The x at which a text, in the painter's font, ends at the right edge of a rectangle. */
int XDir(const QPainter &p, const QRect &rect, const QString &texto);
/** The x at which a text stands in the middle of a rectangle; an odd pixel is left on the right. */
int XCentro(const QPainter &p, const QRect &rect, const QString &texto);

/**
 * A field's value as lists show it: numbers and dates by the field's display format where it has
 * one, everything else as its text without blanks around it. Null is empty. Without
 * mostrarDataNula so is a date on or before 01/01/1980.
 */
QString TextoParaLista(const TField &campo, bool mostrarDataNula = true);

/** How a sorted list is painted. */
struct TPinturaDaLista {
    QString CampoOrdem;          /**< field of the sort column, empty for none */
    bool Ascendente = true;      /**< which of the two arrows it has */
    bool MostrarDataNula = true; /**< see TextoParaLista */
    TImageList *Imagens = nullptr;
    int ImagemAscendente = 8, ImagemDescendente = 9;
};

/**
 * Paints one cell of a data grid; the body of an OnDrawColumnCell with DefaultDrawing off.
 *
 * Rows are banded white and light blue by their place in the window (18 pixels each), in other
 * shades in the sort column; the current row is dark blue. The band fills the lines around the cell
 * as well. The sort arrow is painted into the title of the sort column, whatever row is painted. A
 * text that does not fit ends in an ellipsis.
 */
void DBGridDrawColumnCell(QPainter &p, const QRect &rect, const TColumn &column, unsigned estado,
                          const TPinturaDaLista &pintura);

/** Titles of sorted lists: all of them white on blue, regular. */
void DBGridTitulosNormais(TDBGrid &grid);
/** The title of the sort column: bold, white on a darker blue. */
void DBGridMarcarTitulo(TColumn &column);
/** Makes room for the arrow in the title of the sort column, and in that one only. */
void DBGridReservarSeta(TDBGrid &grid, const QString &campoOrdem);

} // namespace ficha
