#pragma once

#include "dates/UOpcionalBasFr.h"

namespace ficha
{

class TComboBoxCodBasFr;

/** A choice by code as an optional criterion; no choice at all is acceptable. The screen fills the
 * inner frame (SQLText) and builds its condition from that frame's SQLString. */
class TComboCodOpcionalFr : public TOpcionalBasFr
{
    Q_OBJECT

public:
    explicit TComboCodOpcionalFr(TChave chave);

    void Create(QWidget *owner) override;

    TComboBoxCodBasFr *ComboBoxCodFr = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
