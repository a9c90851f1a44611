#include "forms/UBotaoHelpFr.h"

#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TBotaoHelpFr)

TBotaoHelpFr::TBotaoHelpFr(TChave chave) : TBotaoFr(chave) {}

} // namespace ficha
