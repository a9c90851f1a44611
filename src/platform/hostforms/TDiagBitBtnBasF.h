#pragma once

#include "platform/hostforms/TDialogoBasF.h"

namespace ficha
{

class TBitBtn;

/** The host's dialog with picture buttons "OK" and "Cancelar". */
class TDiagBitBtnBasF : public TDialogoBasF
{
    Q_OBJECT

public:
    explicit TDiagBitBtnBasF(TChave chave);

    TBitBtn *OkBitBtn = nullptr;
    TBitBtn *CancelBitBtn = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
