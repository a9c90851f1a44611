#include "input/URadioGroupCodBasFr.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TRadioGroup.h"

namespace ficha
{

FICHA_REGISTRAR(TRadioGroupCodBasFr)

TRadioGroupCodBasFr::TRadioGroupCodBasFr(TChave chave) : TRadioGroupBasFr(chave) {}

Variant TRadioGroupCodBasFr::GetValor() const
{
    return RadioGroup1->GetItemIndex() + 1;
}

void TRadioGroupCodBasFr::SetValor(const Variant &valor)
{
    const int i = valor.EhNulo() ? -1 : Variant(valor.AsFloat() - 1).AsInteger();
    RadioGroup1->SetItemIndex(i < RadioGroup1->Count() ? i : -1);
    TRadioGroupBasFr::SetValor(valor);
}

void TRadioGroupCodBasFr::Zerar()
{
    TRadioGroupBasFr::Zerar();
    SetValor(1);
}

QString TRadioGroupCodBasFr::SQLString() const
{
    return QString::number(GetValor().AsInteger());
}

} // namespace ficha
