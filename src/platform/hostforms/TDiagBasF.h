#pragma once

#include "platform/hostforms/TDialogoBasF.h"

namespace ficha
{

class TBitBtn;

/** The host's dialog with plain buttons "OK" and "Cancelar". */
class TDiagBasF : public TDialogoBasF
{
    Q_OBJECT

public:
    explicit TDiagBasF(TChave chave);

    TBitBtn *OkButton = nullptr;
    TBitBtn *CancelButton = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
