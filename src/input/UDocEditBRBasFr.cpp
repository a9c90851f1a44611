#include "input/UDocEditBRBasFr.h"

#include "input/UApoioInput.h"
#include "input/UEdicaoDoUsuario.h"
#include "platform/edits/TDocEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"

namespace ficha
{

TDocEditBRBasFr::TDocEditBRBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TDocEditBRBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    AoEntrar(Edit(), [this] { EditEntrou(); });
    Ligar(Edit(), &TDocEditBR::textChanged, this, [this] { EditMudou(); });
    Ligar(Edit(), &TDocEditBR::textEdited, this,
          [this] { EditadoPeloUsuario(*this, *Edit(), pedido); });
}

void TDocEditBRBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    if (parentWidget() && isVisible() && Edit()->isVisible())
        Edit()->setFocus();
}

Variant TDocEditBRBasFr::GetValor() const
{
    return Edit()->GetValorVariant().AsString();
}

void TDocEditBRBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    Edit()->SetValorVariant(valor);
}

void TDocEditBRBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    Edit()->SetValorVariant(QString());
}

QString TDocEditBRBasFr::AsString() const
{
    return Edit()->GetText();
}

QString TDocEditBRBasFr::SQLString() const
{
    return Edit()->SQLText();
}

QString TDocEditBRBasFr::FraseRef() const
{
    const QString frase = TDBControlBasFr::FraseRef();
    return AceitaVazio ? frase : frase + QStringLiteral("  ");
}

bool TDocEditBRBasFr::Focused() const
{
    return hasFocus() || Edit()->hasFocus();
}

bool TDocEditBRBasFr::AceitarDocumento(const QString &documento)
{
    const bool vazioAceito = AceitaVazio && Edit()->GetText().isEmpty();
    const bool aceito = vazioAceito || Edit()->Valido();
    LigarFrase(Frases, FraseObrigatorio, !aceito);
    if (!aceito)
        MensagemAviso(TextoDocumentoInvalido(documento), 0);
    return aceito;
}

void TDocEditBRBasFr::FrameExit(QObject *sender)
{
    const QPointer<TDocEditBRBasFr> vivo(this);
    const int cursor = Edit()->cursorPosition();
    TDBControlBasFr::FrameExit(sender);
    if (!vivo || window()->focusWidget() != Edit())
        return;
    // Said in every case: whether the edit selects by itself hangs on there having been a box.
    if (Edit()->GetText().size() < Edit()->GetMaxLength())
        Edit()->setCursorPosition(cursor);
    else
        Edit()->selectAll();
}

} // namespace ficha
