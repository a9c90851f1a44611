#include "input/UNumEditBRCodBasFr.h"

#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TNumEditBRCodBasFr)

namespace
{
constexpr TColor Marrom{5597875};
constexpr TColor Bordo{128};
} // namespace

TNumEditBRCodBasFr::TNumEditBRCodBasFr(TChave chave) : TNumEditBRBasFr(chave)
{
    NaoRepetir = true;
}

void TNumEditBRCodBasFr::Atualizar()
{
    TNumEditBRBasFr::Atualizar();
    if (!Tabela)
        return;
    const TColor cor = NumEditBR1->isReadOnly() ? Marrom : Bordo;
    if (NumEditBR1->GetFontColor() != cor)
        NumEditBR1->SetFontColor(cor);
}

void TNumEditBRCodBasFr::NumEditBR1Change(QObject *sender)
{
    TNumEditBRBasFr::NumEditBR1Change(sender);
}

} // namespace ficha
