#pragma once

#include "forms/UActBasFr.h"
#include "platform/support/TGridColsInfo.h"

class QMouseEvent;
class QPainter;

namespace ficha
{

class TStringGrid;

/**
 * Base of the owner-drawn tables of texts with an action tool bar below: the grid is painted by
 * StringGridDrawCell, kept painted as the current cell moves, and tells descendants in cells what
 * the mouse does.
 */
class TGridBasFr : public TActBasFr
{
    Q_OBJECT

public:
    explicit TGridBasFr(TChave chave);
    ~TGridBasFr() override;

    void Create(QWidget *owner) override;

    /** Repaints the grid when its current cell moved since the last time. */
    void Atualizar() override;
    /** Hands the focus on to the grid. */
    void SetFocus() override;

    /** A mouse button went down over a cell; -1, -1 where there is none. */
    virtual void GridMouseDown(int col, int row);
    /** Set up the columns; for descendants, which call it when they need it. */
    virtual void PrepGrid();

    TStringGrid *StringGrid1 = nullptr;
    /** What the columns hold, for the painter; of no grid until a descendant brings it up. */
    std::unique_ptr<TGridColsInfo> ColsInfo;

protected:
    void PegarComponentes() override;
    virtual void StringGrid1Click(QObject *sender);
    /** Repaints the grid while the left button is held. */
    virtual void StringGrid1MouseMove(QObject *sender, QMouseEvent *evento);
    virtual void StringGrid1MouseDown(QObject *sender, QMouseEvent *evento);
    virtual void StringGrid1DrawCell(QObject *sender, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado);

private:
    int ultimaCol = -1;
    int ultimaLinha = -1;
};

} // namespace ficha
