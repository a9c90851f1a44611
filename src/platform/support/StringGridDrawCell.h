#pragma once

#include "platform/core/TColor.h"

#include <QAnyStringView>
#include <QRect>
#include <QString>

class QPainter;
class QPixmap;

namespace ficha
{

class TGridColsInfo;
class TStringGrid;

/**
 * The colours of the lists, one set for the whole process. The row of the current cell has the
 * shared setting TSisD::CorControlSelec. Screens read them while painting: a change shows with the
 * next repaint.
 */
struct TCoresDaGrade {
    TColor FaixaImpar = TColor::DeRGB(0xFF, 0xFF, 0xFF);
    TColor FaixaPar = TColor::DeRGB(0xDF, 0xEF, 0xF9);
    /** The current cell; the whole row where the grid selects whole rows. */
    TColor CelulaAtual = TColor::DeRGB(0x0A, 0x24, 0x6A);
    TColor TextoDaCelulaAtual = TColor::DeRGB(0xFF, 0xFF, 0xFF);
    /** The rest of a stretched range. */
    TColor FaixaSelecionada = TColor::DeRGB(0xB5, 0xCD, 0xE6);
    /** Marked cells. */
    TColor Destaque = TColor::DeRGB(0xC9, 0xD6, 0xE2);
    TColor TextoDoDestaque = TColor::DeRGB(0x1F, 0x3B, 0x57);
    TColor TextoDesabilitado = TColor::DeRGB(0x6D, 0x6D, 0x6D);
};

/** The one instance. */
TCoresDaGrade &CoresDaGrade();

/** The marker that the screens of this system use, "%@#". */
const QString &MarcadorDaGrade();
/** Whether a text starts with a marker; never with an empty one. */
bool EhMarcado(QAnyStringView texto, QStringView marcador);

/**
 * Paints one cell of a list, title row and fixed columns included; the body of a grid's OnDrawCell.
 * The painter is left as it was.
 *
 * Titles are raised, bold, aligned like their column. Rows are banded: odd ones white, even ones
 * light blue. The row of the current cell is highlighted, and the current cell stands out in dark
 * blue, framed while the grid has the focus. Texts stay on one line inside their cell and end in an
 * ellipsis when they do not fit. A disabled grid's texts are grey.
 *
 * @param grid where the cell's text, the current cell and the fonts come from
 * @param p, col, row, rect, estado as OnDrawCell hands them over
 * @param figura a picture for the cells of one column, null for none; not owned
 * @param colFigura the column that shows the picture, before its text; -1 for no column
 * @param margemX, margemY pixels kept free left and right, above and below of the text;
 * right-aligned texts keep three more from the next column
 * @param faixas banded rows; without it every row has the grid's own colour
 * @param colsInfo what the columns hold; null counts as text columns
 * @param alinharPeloConteudo align as colsInfo says; without it everything is left-aligned
 * @param quebrarLinhas wrap long texts into lines instead of cutting them
 * @param corTexto text of cells that are neither title, current, marked nor disabled
 * @param marcador a cell whose text starts with it is emphasised: painted on a band of its own
 * colour, bold, without the marker; a cell of nothing but the marker is a separator, a line across.
 * Empty for no marked cells.
 */
void StringGridDrawCell(TStringGrid *grid, QPainter &p, int col, int row, const QRect &rect,
                        unsigned estado, const QPixmap *figura, int colFigura, int margemX,
                        int margemY, bool faixas, const TGridColsInfo *colsInfo,
                        bool alinharPeloConteudo, bool quebrarLinhas, TColor corTexto,
                        const QString &marcador);

} // namespace ficha
