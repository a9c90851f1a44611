#include "platform/hostforms/TDiagBitBtnBasF.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"

namespace ficha
{

FICHA_REGISTRAR(TDiagBitBtnBasF)

TDiagBitBtnBasF::TDiagBitBtnBasF(TChave chave) : TDialogoBasF(chave) {}

void TDiagBitBtnBasF::PegarComponentes()
{
    TDialogoBasF::PegarComponentes();
    Pegar(this, OkBitBtn, "OkBitBtn");
    Pegar(this, CancelBitBtn, "CancelBitBtn");
    LigarBotoes(OkBitBtn, CancelBitBtn);
}

} // namespace ficha
