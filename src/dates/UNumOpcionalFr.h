#pragma once

#include "dates/UOpcionalBasFr.h"

namespace ficha
{

class TNumEditBRBasFr;

/** A number as an optional criterion. The screen builds its condition from the inner frame's
 * SQLString. */
class TNumOpcionalFr : public TOpcionalBasFr
{
    Q_OBJECT

public:
    explicit TNumOpcionalFr(TChave chave);

    TNumEditBRBasFr *TNumEditBRBasFr1 = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
