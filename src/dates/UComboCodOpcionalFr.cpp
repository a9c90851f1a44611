#include "dates/UComboCodOpcionalFr.h"

#include "input/UComboBoxCodBasFr.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TComboCodOpcionalFr)

TComboCodOpcionalFr::TComboCodOpcionalFr(TChave chave) : TOpcionalBasFr(chave) {}

void TComboCodOpcionalFr::Create(QWidget *owner)
{
    TOpcionalBasFr::Create(owner);
    ComboBoxCodFr->AceitaVazio = true;
}

void TComboCodOpcionalFr::PegarComponentes()
{
    TOpcionalBasFr::PegarComponentes();
    Pegar(this, ComboBoxCodFr, "ComboBoxCodFr");
}

} // namespace ficha
