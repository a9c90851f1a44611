#include "platform/toolkit/TBitBtn.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TForm.h"
#include "platform/toolkit/TImageList.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TBitBtn)

TBitBtn::TBitBtn(QWidget *owner) : QPushButton(owner)
{
    connect(this, &QPushButton::clicked, this, &TBitBtn::Clicado);
}

TAction *TBitBtn::GetAction() const
{
    return acao;
}

void TBitBtn::SetAction(TAction *nova)
{
    disconnect(mudanca);
    acao = nova;
    if (nova)
        mudanca = connect(nova, &QAction::changed, this, &TBitBtn::Sincronizar);
    Sincronizar();
}

void TBitBtn::SetKind(Kind v)
{
    kind = v;
    if (kind == bkCustom)
        return;
    setText(kind == bkOK       ? QStringLiteral("OK")
            : kind == bkCancel ? QStringLiteral("Cancelar")
                               : QStringLiteral("Fechar"));
    SetGlyph(kind == bkOK       ? QStringLiteral("confirmar")
             : kind == bkCancel ? QStringLiteral("cancelar")
                                : QStringLiteral("fechar"));
    modalResult = kind == bkOK ? mrOk : kind == bkCancel ? mrCancel : mrNone;
    setDefault(kind == bkOK);
    cancel = kind == bkCancel;
}

void TBitBtn::SetGlyph(const QString &figura)
{
    glyph = figura;
    setIcon(figura.isEmpty() ? QIcon() : IconeSvg(figura));
}

void TBitBtn::Clicado()
{
    TForm *form = TForm::FormularioDe(this);
    const QPointer<TBitBtn> vivo = this;
    const QPointer<TForm> formVivo = form;
    const bool fecha = kind == bkClose;
    if (form && modalResult != mrNone)
        form->SetModalResult(modalResult);
    if (acao)
        acao->trigger();
    else
        Disparar(OnClick, this);
    if (vivo && formVivo && fecha)
        formVivo->Close();
}

void TBitBtn::Sincronizar()
{
    if (!acao)
        return;
    setText(acao->text());
    setToolTip(acao->toolTip());
    setEnabled(acao->isEnabled());
    if (glyph.isEmpty())
        setIcon(acao->icon());
    if (!acao->isVisible() != escondidoPelaAcao) {
        escondidoPelaAcao = !acao->isVisible();
        setVisible(!escondidoPelaAcao);
    }
}

} // namespace ficha
