#include "input/UUpDownBRFr.h"

#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TUpDown.h"

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TUpDownBRFr)

TUpDownBRFr::TUpDownBRFr(TChave chave) : TNumEditBRBasFr(chave) {}

void TUpDownBRFr::Create(QWidget *owner)
{
    TNumEditBRBasFr::Create(owner);
    UpDown1->Associar(NumEditBR1);
    UpDown1->OnClick = [this](QObject *sender, bool paraCima) { UpDown1Click(sender, paraCima); };
}

void TUpDownBRFr::SetValor(const Variant &valor)
{
    TNumEditBRBasFr::SetValor(valor);
    const double numero = EhVazio(valor) ? 0 : valor.AsFloat();
    UpDown1->SetPosition(Variant(std::clamp(numero, -32768.0, 32767.0)).AsInteger());
}

void TUpDownBRFr::PegarComponentes()
{
    TNumEditBRBasFr::PegarComponentes();
    Pegar(this, UpDown1, "UpDown1");
}

void TUpDownBRFr::UpDown1Click(QObject *, bool)
{
    NumeroEditado();
}

} // namespace ficha
