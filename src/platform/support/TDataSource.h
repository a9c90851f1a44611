#pragma once

#include "platform/database/TDataSet.h"

#include <QObject>
#include <QPointer>

namespace ficha
{

/**
 * The link between a dataset and the lists that show it. Neither is owned, and all three may be
 * destroyed in any order: a list of a destroyed source, and a source of a destroyed dataset, show
 * an empty list.
 */
class TDataSource : public QObject
{
    Q_OBJECT

public:
    explicit TDataSource(QObject *owner = nullptr) : QObject(owner) {}

    TDataSet *GetDataSet() const { return dataSet; }
    void SetDataSet(TDataSet *novo);
    /** There is a dataset and it is open. */
    bool Active() const { return dataSet && dataSet->Active(); }

Q_SIGNALS:
    /** Another dataset, or it was opened or closed: the columns may be others. */
    void EstruturaMudou();
    /** Other rows, or other values in them. */
    void DadosMudaram();
    /** Another row is current. */
    void Rolou();

private:
    QPointer<TDataSet> dataSet;
};

} // namespace ficha
