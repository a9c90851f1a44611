#include "platform/edits/TMaskEditBR.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"

#include <utility>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TMaskEditBR)

TMaskEditBR::TMaskEditBR(QWidget *owner) : TCustomMaskEdit(owner), EditLabel(new TBoundLabel(this))
{
    AoSair(this, [this] {
        if (OnUncomplete && IsMasked() && !Mascara().TudoPreenchido(GetEditText()))
            OnUncomplete(this);
    });
}

TMaskEditBR::~TMaskEditBR()
{
    delete EditLabel;
}

QString TMaskEditBR::GetCaption() const
{
    return EditLabel ? EditLabel->text() : QString();
}

void TMaskEditBR::SetCaption(const QString &texto)
{
    if (EditLabel)
        EditLabel->setText(texto);
}

int TMaskEditBR::GetLabelSpacing() const
{
    return EditLabel ? EditLabel->GetEspaco() : 0;
}

void TMaskEditBR::SetLabelSpacing(int pixels)
{
    if (EditLabel)
        EditLabel->SetEspaco(pixels);
}

TCustomEdit::TResposta TMaskEditBR::Digitar(const TEstado &antes, const QString &texto,
                                            TOrigem origem)
{
    TResposta resposta = TCustomMaskEdit::Digitar(antes, texto, origem);
    const int ultimo = Mascara().Anterior(Mascara().Tamanho());
    digitouUltimo = origem == TOrigem::Teclado && resposta.Nova && resposta.Nova->Cursor > ultimo &&
                    Mascara().Aceita(ultimo, texto.at(0)) && !Mascara().EhLiteral(texto.at(0));
    return resposta;
}

void TMaskEditBR::AposDigitar()
{
    TCustomMaskEdit::AposDigitar();
    if (!std::exchange(digitouUltimo, false))
        return;
    const QPointer<TMaskEditBR> vivo(this);
    if (OnLastType)
        Protegido([this] { OnLastType(this); });
    if (vivo && autoExit && hasFocus() && Mascara().TudoPreenchido(GetEditText()))
        focusNextPrevChild(true);
}

} // namespace ficha
