#pragma once

#include "platform/core/TColor.h"

#include <QAbstractScrollArea>
#include <QAnyStringView>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

class QPainter;

namespace ficha
{

/** State of a cell handed to an owner-drawing handler. */
enum TGridDrawState : unsigned {
    gdNada = 0,
    gdSelecionada = 1, /**< inside the selected range, the current cell included */
    gdFocada = 2,      /**< the current cell, the grid having the focus */
    gdFixa = 4,        /**< title row or fixed column */
};

/** A rectangle of cells, ends included. */
struct TGridRect {
    int Esquerda = 0, Topo = 0, Direita = 0, Base = 0;
    friend bool operator==(const TGridRect &, const TGridRect &) = default;
};

/** A cell by its coordinates; -1, -1 is none. */
struct TGridCoord {
    int Col = -1, Row = -1;
    friend bool operator==(const TGridCoord &, const TGridCoord &) = default;
};

/**
 * What every grid of cells has: titles, a current cell, a range, scrolling, keys, mouse, painting
 * and the table that assistive tools see. Descendants say what the cells hold. Built for lists of a
 * million rows: painting touches visible cells only, and setting sizes or cells costs no repaint
 * until the event loop comes round.
 *
 * Columns and rows count from 0; the first FixedRows rows and FixedCols columns are titles that do
 * not scroll and cannot become current. There is always at least one column and one row that is not
 * fixed: with fewer rows than the titles need, the titles give way until there are enough again.
 *
 * A new grid has 5 columns of 64 pixels, 5 rows of 24, one title row and no fixed column.
 *
 * Keys: arrows, Page Up and Down, Home and End (of the row; of the list where whole rows are
 * selected), Ctrl+Home and Ctrl+End; with Shift they stretch the range where RangeSelect is on.
 * Every other key, all other Ctrl and Alt combinations included, is left to the screen.
 *
 * A stretched range leaves the current cell where it was, so that no record is walked through.
 * Handlers that the grid calls out of an event run Protegido; those of a key or a mouse button may
 * destroy the grid.
 */
class TCustomGrid : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(int defaultRowHeight READ GetDefaultRowHeight WRITE SetDefaultRowHeight)
    Q_PROPERTY(bool rangeSelect READ GetRangeSelect WRITE SetRangeSelect)
    Q_PROPERTY(bool rowSelect READ GetRowSelect WRITE SetRowSelect)
    Q_PROPERTY(bool thumbTracking READ GetThumbTracking WRITE SetThumbTracking)
    Q_PROPERTY(bool colSizing READ GetColSizing WRITE SetColSizing)
    Q_PROPERTY(bool gridLines READ GetGridLines WRITE SetGridLines)
    Q_PROPERTY(bool defaultDrawing READ GetDefaultDrawing WRITE SetDefaultDrawing)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int fixedColor READ GetFixedColorInt WRITE SetFixedColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TCustomGrid(QWidget *owner = nullptr);
    ~TCustomGrid() override;

    int GetColCount() const;
    int GetRowCount() const;
    int GetFixedCols() const;
    int GetFixedRows() const;
    int GetDefaultColWidth() const;
    int GetDefaultRowHeight() const;
    /** All rows have this height, pixels, without the grid line. */
    void SetDefaultRowHeight(int pixels);
    int GetColWidth(int col) const;
    /** Pixels without the grid line; 0 hides the column. */
    void SetColWidth(int col, int pixels);

    QString GetCell(int col, int row) const;
    /** The text of a cell without a copy, valid until the next change of any cell or size; empty
     * outside of the grid. */
    virtual QAnyStringView CellTexto(int col, int row) const = 0;

    int GetCol() const;
    int GetRow() const;
    /** Moves the current cell from the program: clamps into the cells that are not fixed, asks
     * OnSelectCell like a click does (not when the cell is current already), scrolls the cell into
     * view. What OnSelectCell raises goes to the caller, the cell then stays. */
    void SetCol(int col);
    void SetRow(int row);
    void SetCelula(int col, int row);
    /** The range between the current cell and its other end; whole rows with RowSelect. */
    TGridRect GetSelection() const;
    /** The top left cell of the range becomes current (OnSelectCell is asked and may refuse the
     * whole); works without RangeSelect as well. */
    void SetSelection(const TGridRect &faixa);

    int GetTopRow() const;
    void SetTopRow(int row);
    int GetLeftCol() const;
    void SetLeftCol(int col);
    /** Rows that fit whole below the titles. */
    int VisibleRowCount() const;
    /** The cell under a point of the viewport; -1, -1 when there is none. */
    TGridCoord MouseToCell(QPoint ponto) const;
    /** The visible rectangle of a cell in the viewport, empty when it is out of view. */
    QRect CellRect(int col, int row) const;

    bool GetRangeSelect() const;
    void SetRangeSelect(bool v);
    bool GetRowSelect() const;
    void SetRowSelect(bool v);
    /** Rows scroll while the thumb is dragged, not only when it is let go. */
    bool GetThumbTracking() const;
    void SetThumbTracking(bool v);
    /** The user may drag the right borders of the titles. */
    bool GetColSizing() const;
    void SetColSizing(bool v);
    /** A line of one pixel right of every column and below every row; on at first. */
    bool GetGridLines() const;
    void SetGridLines(bool v);
    /** Paint background and text before OnDrawCell. Without it a cell is only filled with Color
     * (FixedColor for titles) before OnDrawCell. */
    bool GetDefaultDrawing() const;
    void SetDefaultDrawing(bool v);
    /** Background of the cells and of the area beside them. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }
    /** Background of title row and fixed columns. */
    TColor GetFixedColor() const;
    void SetFixedColor(TColor cor);
    int GetFixedColorInt() const { return int(GetFixedColor().valor); }
    void SetFixedColorInt(int cor) { SetFixedColor(TColor(std::uint32_t(cor))); }

    /** Repaints everything once, when the event loop comes round. */
    void Invalidate();
    /** The same for one row; nothing when it is out of view. */
    void InvalidarLinha(int row);

    /** A cell is about to become current by mouse, keyboard or program; false vetoes it. A click on
     * the cell that is current asks too: what follows the grid may have been elsewhere. */
    std::function<void(QObject *, int col, int row, bool &pode)> OnSelectCell;
    /** Paints one cell, titles included, clipped to it; estado is a set of TGridDrawState. After an
     * error, which is reported once, cells are drawn the default way until Invalidate. */
    std::function<void(QObject *, int col, int row, QPainter &, const QRect &, unsigned estado)>
        OnDrawCell;
    /** The user picked a cell: the left button was let go after a press on it, or a key moved the
     * current cell. */
    std::function<void(QObject *)> OnClick;
    /** A double click on a cell that is not fixed and could become current. */
    std::function<void(QObject *)> OnDblClick;
    std::function<void(QObject *)> OnTopLeftChanged;
    /** Positions are the viewport's. A press is announced after the cell was selected; the second
     * press of a double click after OnDblClick. */
    std::function<void(QObject *, QMouseEvent *)> OnMouseDown, OnMouseMove, OnMouseUp;
    /** A click on a fixed cell: pressed and let go over it. */
    std::function<void(QObject *, int col, int row)> OnFixedCellClick;
    /** For assistive tools: whether what a cell folds away is shown; nothing for a cell that folds
     * nothing away. The owner announces a change with AnunciarExpansao. */
    std::function<std::optional<bool>(int col, int row)> OnExpansao;
    /** Tells assistive tools that a cell was expanded or collapsed. */
    void AnunciarExpansao(int col, int row);

    int Tag = 0;

protected:
    void SetColCount(int n);
    /** The current cell and the range stay inside without asking OnSelectCell. The same count
     * again costs nothing. */
    void SetRowCount(int n);
    void SetFixedCols(int n);
    void SetFixedRows(int n);
    /** Also sets the width of every column. */
    void SetDefaultColWidth(int pixels);
    bool CelulaExiste(int col, int row) const;

    /** The counts are about to become these. */
    virtual void VaiRedimensionar(int cols, int rows);
    /** A cell is about to become current; false vetoes it. Asks OnSelectCell and lets through what
     * it raises. */
    virtual bool PodeSelecionar(int col, int row);
    /** A click on a fixed cell; announces it. */
    virtual void CliqueFixo(int col, int row);
    /** The user scrolled with a bar or the wheel. */
    virtual void RolouPelaBarra();
    /** Paints one cell with its lines; estado is a set of TGridDrawState. */
    virtual void PintarCelula(QPainter &p, const QRect &ret, int col, int row, unsigned estado);
    /** Whether cells paint by their place in the window or beyond their edges: every painting then
     * goes through all visible cells, and no painted row is moved by scrolling. */
    virtual bool PintaTudo() const { return false; }
    /** Runs a host's painting: an error is reported once, when the event loop comes round, and
     * answers false from then on until Invalidate. */
    bool Desenhar(const std::function<void()> &pintura);

    void paintEvent(QPaintEvent *e) override;
    void resizeEvent(QResizeEvent *e) override;
    void showEvent(QShowEvent *e) override;
    void scrollContentsBy(int dx, int dy) override;
    void keyPressEvent(QKeyEvent *e) override;
    void mousePressEvent(QMouseEvent *e) override;
    void mouseDoubleClickEvent(QMouseEvent *e) override;
    void mouseMoveEvent(QMouseEvent *e) override;
    void mouseReleaseEvent(QMouseEvent *e) override;
    void timerEvent(QTimerEvent *e) override;
    void focusInEvent(QFocusEvent *e) override;
    void focusOutEvent(QFocusEvent *e) override;

private:
    struct TPrivado;
    std::unique_ptr<TPrivado> d;
};

/**
 * Writes one cell's text inside an area with the painter's font and pen, never outside of it. A
 * text that is too long ends in an ellipsis; with quebrar it is wrapped into lines instead. What
 * cannot be seen is cut off before it is laid out, so that a text of any length costs little.
 */
void EscreverNaCelula(QPainter &p, const QRect &area, QAnyStringView texto,
                      Qt::Alignment alinhamento, bool quebrar = false);
/** Fills an area and gives it the raised edges of a title. */
void PintarRelevo(QPainter &p, const QRect &area, const QColor &fundo);

} // namespace ficha
