#include "input/UListBoxControlBasFr.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TListBox.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TListBoxControlBasFr)

TListBoxControlBasFr::TListBoxControlBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TListBoxControlBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    TitLabel->setBuddy(ListBox1);
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    ListBox1->OnClick = [this](QObject *sender) { ListBox1Click(sender); };
}

void TListBoxControlBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    if (ListBox1->isVisible())
        ListBox1->setFocus();
}

Variant TListBoxControlBasFr::GetValor() const
{
    return AsString();
}

void TListBoxControlBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    ListBox1->SetText(valor.AsString());
}

void TListBoxControlBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    ListBox1->Clear();
}

QString TListBoxControlBasFr::AsString() const
{
    return ListBox1->GetText().trimmed();
}

QString TListBoxControlBasFr::SQLString() const
{
    return QuotedStr(AsString());
}

QString TListBoxControlBasFr::GetTitulo() const
{
    return TitLabel->text();
}

void TListBoxControlBasFr::SetTitulo(const QString &texto)
{
    TitLabel->setText(texto);
}

void TListBoxControlBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
    Pegar(this, ListBox1, "ListBox1");
}

void TListBoxControlBasFr::FrameEnter(QObject *sender)
{
    TDBControlBasFr::FrameEnter(sender);
    ListBox1->setFocus();
    if (ListBox1->Count() > 0 && ListBox1->GetItemIndex() < 0)
        ListBox1->SetItemIndex(0);
}

void TListBoxControlBasFr::ListBox1Click(QObject *)
{
    const QPointer<TListBoxControlBasFr> vivo(this);
    Atualizar();
    if (vivo)
        Editar();
}

} // namespace ficha
