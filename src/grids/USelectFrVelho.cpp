#include "grids/USelectFrVelho.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TLabeledEdit.h"

namespace ficha
{

FICHA_REGISTRAR(TSelectFrVelho)

TSelectFrVelho::TSelectFrVelho(TChave chave) : TBasFr(chave) {}

void TSelectFrVelho::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, LabeledEdit1, "LabeledEdit1");
    Pegar(this, BitBtn1, "BitBtn1");
    Pegar(this, ActionList1, "ActionList1");
}

} // namespace ficha
