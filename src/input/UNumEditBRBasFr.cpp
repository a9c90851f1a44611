#include "input/UNumEditBRBasFr.h"

#include "input/UApoioInput.h"
#include "input/UEdicaoDoUsuario.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TNumEditBRBasFr)

TNumEditBRBasFr::TNumEditBRBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TNumEditBRBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    AoEntrar(NumEditBR1, [this] { NumEditBR1Enter(NumEditBR1); });
    Ligar(NumEditBR1, &TNumEditBR::textChanged, this, [this] { NumEditBR1Change(NumEditBR1); });
    Ligar(NumEditBR1, &TNumEditBR::textEdited, this, [this] { NumeroEditado(); });
}

void TNumEditBRBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    NumEditBR1->setFocus();
}

Variant TNumEditBRBasFr::GetValor() const
{
    return NumEditBR1->GetValorVariant();
}

void TNumEditBRBasFr::SetValor(const Variant &valor)
{
    Variant numero = EhVazio(valor) ? Variant(0) : valor;
    if (TemMinimo && numero < Variant(Minimo))
        numero = Minimo;
    if (TemMaximo && numero > Variant(Maximo))
        numero = Maximo;
    TDBControlBasFr::SetValor(numero);
    NumEditBR1->SetValorVariant(numero);
}

void TNumEditBRBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    SetValor(TemMinimo ? Minimo : 0);
}

bool TNumEditBRBasFr::ValorAceitavel()
{
    if (!TDBControlBasFr::ValorAceitavel())
        return false;
    const Variant numero = GetValor();
    const bool abaixo = TemMinimo && numero < Variant(Minimo);
    const bool acima = TemMaximo && numero > Variant(Maximo);
    if (!abaixo && !acima)
        return true;
    MensagemAviso(TextoForaDosLimites(TemRotulo() ? RotuloDoCampo() : QString(), Minimo, Maximo),
                  0);
    return false;
}

QString TNumEditBRBasFr::AsString() const
{
    return NumEditBR1->text();
}

QString TNumEditBRBasFr::SQLString() const
{
    return NumEditBR1->SQLText();
}

QString TNumEditBRBasFr::SQLStrChar() const
{
    return SQLDoCaractere(GetValor().AsInteger());
}

bool TNumEditBRBasFr::EhVazio(const Variant &valor)
{
    return valor.EhNulo() || valor.EhNaoAtribuido() ||
           (valor.EhTexto() && valor.AsString().trimmed().isEmpty());
}

void TNumEditBRBasFr::NumeroEditado()
{
    EditadoPeloUsuario(*this, *NumEditBR1, pedido);
}

void TNumEditBRBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, NumEditBR1, "NumEditBR1");
}

void TNumEditBRBasFr::NumEditBR1Change(QObject *)
{
    Atualizar();
}

void TNumEditBRBasFr::NumEditBR1Enter(QObject *)
{
    if (!NumEditBR1->isReadOnly())
        NumEditBR1->setFocus();
}

} // namespace ficha
