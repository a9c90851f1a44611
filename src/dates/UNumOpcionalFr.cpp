#include "dates/UNumOpcionalFr.h"

#include "input/UNumEditBRBasFr.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TNumOpcionalFr)

TNumOpcionalFr::TNumOpcionalFr(TChave chave) : TOpcionalBasFr(chave) {}

void TNumOpcionalFr::PegarComponentes()
{
    TOpcionalBasFr::PegarComponentes();
    Pegar(this, TNumEditBRBasFr1, "TNumEditBRBasFr1");
}

} // namespace ficha
