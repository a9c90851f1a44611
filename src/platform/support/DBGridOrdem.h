#pragma once

#include <QString>

namespace ficha
{

class TClientDataSet;
class TColumn;

/** By which field a list is sorted, and which way; no field while the rows stand as they came. */
struct TOrdemDaLista {
    QString Campo;
    bool Ascendente = true;
};

/** Two indexes for each field of a dataset, "a" and "d" before its name, rising and falling. Those
 * that are there already stay; the order of the rows stays too. */
void DBGridCriarIndices(TClientDataSet &cds);
/** A click on the title of a list with those indexes: sorts by the column, rising, or falling when
 * it is sorted rising already, and marks its title. EDatabaseError for a column without a field. */
TOrdemDaLista DBGridTitleClick(TClientDataSet &cds, TColumn &column);
/** Sorts by a column of that list and marks its title. */
TOrdemDaLista DBGridOrdenar(TClientDataSet &cds, TColumn &column, bool ascendente);

} // namespace ficha
