#include "input/UComboBoxCharBasFr.h"

#include "input/UCaractereDeItem.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TComboBox.h"

#include <QPushButton>

namespace ficha
{

FICHA_REGISTRAR(TComboBoxCharBasFr)

TComboBoxCharBasFr::TComboBoxCharBasFr(TChave chave) : TComboBoxBasFr(chave) {}

Variant TComboBoxCharBasFr::GetValor() const
{
    return CaractereDoItem(ComboBox1->GetItemIndex());
}

void TComboBoxCharBasFr::SetValor(const Variant &valor)
{
    TComboBoxBasFr::SetValor(valor);
    ComboBox1->SetItemIndex(ItemDoCaractere(valor));
}

QString TComboBoxCharBasFr::SQLString() const
{
    return QuotedStr(GetValor().AsString());
}

void TComboBoxCharBasFr::PegarComponentes()
{
    TComboBoxBasFr::PegarComponentes();
    Pegar(this, EditButton, "EditButton");
}

void TComboBoxCharBasFr::ComboBox1Change(QObject *sender)
{
    TComboBoxBasFr::ComboBox1Change(sender);
    // The number itself, whose first digit decides; kept as it is.
    SetValor(ComboBox1->GetItemIndex() + PrimeiroCaractere);
}

} // namespace ficha
