#include "forms/UTabLinBasF.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"

namespace ficha
{

FICHA_REGISTRAR(TTabLinBasF)

TTabLinBasF::TTabLinBasF(TChave chave) : TTabBasF(chave) {}

void TTabLinBasF::PegarComponentes()
{
    TTabBasF::PegarComponentes();
    Pegar(this, Panel5, "Panel5");
}

} // namespace ficha
