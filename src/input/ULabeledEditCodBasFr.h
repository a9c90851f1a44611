#pragma once

#include "input/ULabeledEditIntegerBasFr.h"

namespace ficha
{

/**
 * The code of a record: unique, typed only while the record is being inserted. In every other
 * state of its table the edit is read-only.
 */
class TLabeledEditCodBasFr : public TLabeledEditIntegerBasFr
{
    Q_OBJECT

public:
    explicit TLabeledEditCodBasFr(TChave chave);

    /** Makes the edit read-only unless the bound table is inserting. */
    void Atualizar() override;
    bool PodeDesfazer() const override;
};

} // namespace ficha
