#pragma once

#include "platform/core/TColor.h"

#include <QAbstractScrollArea>

#include <cstdint>
#include <functional>
#include <memory>

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
 * A grid of texts with a current cell, built for lists of a million rows: texts are held compactly,
 * painting touches visible cells only, and setting sizes or cells costs no repaint until the event
 * loop comes round.
 *
 * Columns and rows count from 0; the first FixedRows rows and FixedCols columns are titles that do
 * not scroll and cannot become current. Reading a cell outside answers the empty text, writing one
 * does nothing. There is always at least one column and one row that is not fixed.
 */
class TStringGrid : public QAbstractScrollArea
{
    Q_OBJECT
    Q_PROPERTY(int colCount READ GetColCount WRITE SetColCount)
    Q_PROPERTY(int rowCount READ GetRowCount WRITE SetRowCount)
    Q_PROPERTY(int fixedCols READ GetFixedCols WRITE SetFixedCols)
    Q_PROPERTY(int fixedRows READ GetFixedRows WRITE SetFixedRows)
    Q_PROPERTY(int defaultColWidth READ GetDefaultColWidth WRITE SetDefaultColWidth)
    Q_PROPERTY(int defaultRowHeight READ GetDefaultRowHeight WRITE SetDefaultRowHeight)
    Q_PROPERTY(bool rangeSelect READ GetRangeSelect WRITE SetRangeSelect)
    Q_PROPERTY(bool rowSelect READ GetRowSelect WRITE SetRowSelect)
    Q_PROPERTY(bool thumbTracking READ GetThumbTracking WRITE SetThumbTracking)
    Q_PROPERTY(bool colSizing READ GetColSizing WRITE SetColSizing)
    Q_PROPERTY(bool defaultDrawing READ GetDefaultDrawing WRITE SetDefaultDrawing)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TStringGrid(QWidget *owner = nullptr);
    ~TStringGrid() override;

    int GetColCount() const;
    void SetColCount(int n);
    int GetRowCount() const;
    void SetRowCount(int n);
    int GetFixedCols() const;
    void SetFixedCols(int n);
    int GetFixedRows() const;
    void SetFixedRows(int n);
    int GetDefaultColWidth() const;
    /** Also sets the width of every column. */
    void SetDefaultColWidth(int pixels);
    int GetDefaultRowHeight() const;
    /** All rows have this height, pixels. */
    void SetDefaultRowHeight(int pixels);
    int GetColWidth(int col) const;
    /** 0 hides the column. */
    void SetColWidth(int col, int pixels);

    QString GetCell(int col, int row) const;
    void SetCell(int col, int row, const QString &texto);
    /** A pointer or number of the caller's, carried by a cell; 0 where none was set. */
    std::intptr_t GetObjeto(int col, int row) const;
    void SetObjeto(int col, int row, std::intptr_t objeto);
    /** Empties the texts and objects of one row. */
    void LimparLinha(int row);

    int GetCol() const;
    int GetRow() const;
    /** Moves the current cell from the program: clamps into the cells that are not fixed, asks
     * OnSelectCell like a click does, scrolls the cell into view. */
    void SetCol(int col);
    void SetRow(int row);
    void SetCelula(int col, int row);
    TGridRect GetSelection() const;
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
    bool GetColSizing() const;
    void SetColSizing(bool v);
    /** Paint background and text before OnDrawCell. */
    bool GetDefaultDrawing() const;
    void SetDefaultDrawing(bool v);
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }

    /** Repaints everything once, when the event loop comes round. */
    void Invalidate();

    /** A cell is about to become current by mouse, keyboard or program; false vetoes it. */
    std::function<void(QObject *, int col, int row, bool &pode)> OnSelectCell;
    /** Paints one cell, titles included; estado is a set of TGridDrawState. */
    std::function<void(QObject *, int col, int row, QPainter &, const QRect &, unsigned estado)>
        OnDrawCell;
    std::function<void(QObject *)> OnClick;
    std::function<void(QObject *)> OnDblClick;
    std::function<void(QObject *)> OnTopLeftChanged;
    std::function<void(QObject *, QMouseEvent *)> OnMouseDown, OnMouseMove, OnMouseUp;
    /** A click on a fixed cell. */
    std::function<void(QObject *, int col, int row)> OnFixedCellClick;

    int Tag = 0;

private:
    struct TPrivado;
    std::unique_ptr<TPrivado> d;
};

} // namespace ficha
