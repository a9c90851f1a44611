#include "platform/hostforms/TDiagBasF.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"

namespace ficha
{

FICHA_REGISTRAR(TDiagBasF)

TDiagBasF::TDiagBasF(TChave chave) : TDialogoBasF(chave) {}

void TDiagBasF::PegarComponentes()
{
    TDialogoBasF::PegarComponentes();
    Pegar(this, OkButton, "OkButton");
    Pegar(this, CancelButton, "CancelButton");
    LigarBotoes(OkButton, CancelButton);
}

} // namespace ficha
