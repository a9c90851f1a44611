#pragma once

#include "platform/database/TClientDataSet.h"
#include "platform/support/DBGridOrdem.h"
#include "platform/toolkit/TImageList.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QPainter;
class QRect;

namespace ficha
{

class TColumn;
class TDBGrid;
class TDataSource;

/**
 * A list that is kept in memory, and the grid that shows it: makes the dataset, loads it, sorts it
 * by its titles, paints its cells.
 *
 * Load makes the dataset with the fields that OnCreateFields1 declares, on the first time, and asks
 * OnListUpDate to put the rows in; they stand as they came until a title is clicked. A list of
 * which nobody declared a field has no dataset: it stays closed and empty, and loading does
 * nothing.
 */
class TClientManager : public QObject
{
    Q_OBJECT

public:
    explicit TClientManager(QObject *owner = nullptr);

    /** The grid, which is referred to; it may be destroyed first, and so may this. */
    TDBGrid *GetDBGrid1() const;
    void SetDBGrid1(TDBGrid *grid);

    /**
     * Reads the list: the rows are dropped and asked for anew, nothing is announced meanwhile, and
     * the first row becomes current. What the events raise goes to the caller; the list is then
     * empty and out of date.
     */
    void Carregar();
    /** The list comes to sight again: it is painted anew. A list that is out of date is read again,
     * staying on the row with the same value in its first field. */
    void Atualizar();
    /** The rows are out of date: somebody changed the table behind them. */
    void Invalidar() { vencida = true; }
    /** Appends the rows of another open dataset, the fields of equal names. For OnListUpDate. */
    void CopiarDe(TDataSet &origem);

    /** A click on a title: sorts by it, rising, or falling when it is sorted rising already. */
    void TitleClick(TDBGrid *grid, TColumn *column);
    /** Sorts by a field that has a column; nothing without one. For OnPrepGrid1. */
    void Ordenar(const QString &campo, bool ascendente = true);
    const TOrdemDaLista &Ordem() const { return ordem; }
    /** Paints one cell; see DBGridDrawColumnCell. */
    void DrawColumnCell(QPainter &p, const QRect &rect, TColumn *column, unsigned estado) const;

    /** Owned; open from the first load on. */
    QPointer<TClientDataSet> CDS1;
    TDataSource *const DataSource1;
    /** The sort arrows, 8 rising and 9 falling; referred to. */
    QPointer<TImageList> ImageList8x8;
    /** Dates on or before 01/01/1980, which stand for "no date", are shown too. */
    bool MostrarDataNula = false;

    /** Declare the fields of CDS1. */
    std::function<void(QObject *)> OnCreateFields1;
    /** Lay the grid out: it has its columns. */
    std::function<void(QObject *)> OnPrepGrid1;
    /** Put the rows into CDS1, which is open and empty. */
    std::function<void(QObject *)> OnListUpDate;

Q_SIGNALS:
    /** The list was read. */
    void Carregou();

private:
    bool Preparar();

    QPointer<TDBGrid> grid;
    TOrdemDaLista ordem;
    bool gradePronta = false;
    bool vencida = false;
};

} // namespace ficha
