#pragma once

#include "base/UBasFr.h"

#include <cstdint>

namespace ficha
{

class TActionList;
class TBitBtn;
class TLabeledEdit;

/** An edit, a button and an action list without a behaviour of their own, for screens that were
 * built on them. New screens use TSelectFr. */
class TSelectFrVelho : public TBasFr
{
    Q_OBJECT

public:
    explicit TSelectFrVelho(TChave chave);

    TLabeledEdit *LabeledEdit1 = nullptr;
    TBitBtn *BitBtn1 = nullptr;
    TActionList *ActionList1 = nullptr;
    /** Of the screens; nothing here reads them. */
    std::int32_t Numero = 0;
    QString Texto;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
