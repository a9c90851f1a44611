#pragma once

#include "platform/database/TDataSet.h"

#include <QPointer>

namespace ficha
{

/** A reference to a dataset's field that becomes null when the dataset is destroyed. */
class TRefField
{
public:
    TRefField() = default;
    TRefField(TField *alvo) : dono(alvo ? alvo->DataSet() : nullptr), campo(alvo) {}

    operator TField *() const { return dono ? campo : nullptr; }
    TField *operator->() const { return *this; }

private:
    QPointer<TDataSet> dono;
    TField *campo = nullptr;
};

} // namespace ficha
