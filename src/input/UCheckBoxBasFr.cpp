#include "input/UCheckBoxBasFr.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCheckBox.h"

namespace ficha
{

FICHA_REGISTRAR(TCheckBoxBasFr)

TCheckBoxBasFr::TCheckBoxBasFr(TChave chave) : TDBControlBasFr(chave), pedido(this) {}

void TCheckBoxBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    CheckBox1->setChecked(false);
    CheckBox1->OnMouseDown = [this](QObject *sender, QMouseEvent *) { CheckBox1MouseDown(sender); };
    // Space bar and short-cut press the box, too; after the mouse this asks no more.
    Ligar(CheckBox1, &TCheckBox::pressed, this, [this] { pedido.Antes(); });
    Ligar(CheckBox1, &TCheckBox::clicked, this, [this] { pedido.Depois(); });
}

void TCheckBoxBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    CheckBox1->setFocus();
}

Variant TCheckBoxBasFr::GetValor() const
{
    return AsString();
}

void TCheckBoxBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    CheckBox1->setChecked(valor == Variant(u"S"));
}

void TCheckBoxBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    CheckBox1->setChecked(MarcadoPadrao);
}

bool TCheckBoxBasFr::ValorAceitavel()
{
    return true;
}

QString TCheckBoxBasFr::AsString() const
{
    return CheckBox1->isChecked() ? QStringLiteral("S") : QStringLiteral("N");
}

QString TCheckBoxBasFr::SQLString() const
{
    return QuotedStr(AsString());
}

QString TCheckBoxBasFr::GetTitulo() const
{
    return CheckBox1->GetCaption();
}

void TCheckBoxBasFr::SetTitulo(const QString &texto)
{
    CheckBox1->SetCaption(texto);
}

void TCheckBoxBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, CheckBox1, "CheckBox1");
}

void TCheckBoxBasFr::CheckBox1MouseDown(QObject *)
{
    pedido.Antes();
}

} // namespace ficha
