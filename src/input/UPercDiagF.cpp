#include "input/UPercDiagF.h"

#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TPercDiagF)

TPercDiagF::TPercDiagF(TChave chave) : TNumDiagF(chave) {}

} // namespace ficha
