#include "input/URadioGroupCharBasFr.h"

#include "input/UCaractereDeItem.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TRadioGroup.h"

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TRadioGroupCharBasFr)

TRadioGroupCharBasFr::TRadioGroupCharBasFr(TChave chave) : TRadioGroupBasFr(chave) {}

Variant TRadioGroupCharBasFr::GetValor() const
{
    return CaractereDoItem(RadioGroup1->GetItemIndex());
}

void TRadioGroupCharBasFr::SetValor(const Variant &valor)
{
    RadioGroup1->SetItemIndex(
        std::min(std::max(ItemDoCaractere(valor), 0), RadioGroup1->Count() - 1));
    TRadioGroupBasFr::SetValor(valor);
}

void TRadioGroupCharBasFr::Zerar()
{
    TRadioGroupBasFr::Zerar();
    SetValor(u" ");
}

QString TRadioGroupCharBasFr::SQLString() const
{
    return QuotedStr(GetValor().AsString());
}

} // namespace ficha
