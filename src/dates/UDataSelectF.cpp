#include "dates/UDataSelectF.h"

#include "platform/toolkit/Layout.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TDataSelectF)

TDataSelectF::TDataSelectF(TChave chave) : TDiagMontCalendarBasF(chave) {}

void TDataSelectF::PegarComponentes()
{
    TDiagMontCalendarBasF::PegarComponentes();
    Pegar(this, TitLab, "TitLab");
}

} // namespace ficha
