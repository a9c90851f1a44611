#include "platform/toolkit/TAction.h"

#include "platform/toolkit/Atalhos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"

#include <QPointer>

namespace ficha
{

TAction::TAction(TActionList *lista_) : QAction(lista_), lista(lista_)
{
    LigarAtalhos();
    if (lista)
        lista->Entrar(this);
    connect(this, &QAction::triggered, this, [this] { Protegido([this] { Execute(); }); });
    connect(this, &QAction::changed, this, &TAction::AtualizarDica);
}

TAction::~TAction()
{
    if (lista)
        lista->Sair(this);
}

void TAction::SetCaption(const QString &texto)
{
    if (texto == text())
        return;
    setText(texto);
}

void TAction::SetHint(const QString &texto)
{
    hint = texto;
    AtualizarDica();
}

void TAction::SetImageIndex(int indice)
{
    if (indice == imageIndex)
        return;
    imageIndex = indice;
    AtualizarIcone();
    Q_EMIT changed();
}

void TAction::SetEnabled(bool v)
{
    habilitada = v;
    if (visivel && v != isEnabled())
        QAction::setEnabled(v);
}

void TAction::SetVisible(bool v)
{
    if (v == visivel)
        return;
    visivel = v;
    QAction::setVisible(v);
    if (v)
        QAction::setEnabled(habilitada);
}

void TAction::SetShortCut(const QKeySequence &tecla)
{
    setShortcut(tecla);
}

bool TAction::Execute()
{
    const QPointer<TAction> vivo = this;
    Update();
    if (!vivo || !habilitada)
        return false;
    if (OnExecute) {
        const auto executar = OnExecute;
        executar(this);
    }
    return true;
}

void TAction::Update()
{
    if (!OnUpdate)
        return;
    const QPointer<TAction> vivo = this;
    try {
        const auto atualizar = OnUpdate;
        atualizar(this);
        if (vivo)
            falhou = false;
    } catch (...) {
        const bool novo = !vivo || !falhou;
        if (vivo)
            falhou = true;
        if (novo)
            ReportarErro(std::current_exception());
    }
}

void TAction::AtualizarDica()
{
    const QString texto = hint.isEmpty() ? text() : hint;
    const QString tecla = shortcut().toString(QKeySequence::NativeText);
    setToolTip(tecla.isEmpty() ? texto : QStringLiteral("%1 (%2)").arg(texto, tecla));
}

void TAction::AtualizarIcone()
{
    const TImageList *imagens = lista ? lista->GetImages() : nullptr;
    setIcon(imagens ? imagens->GetIcon(imageIndex) : QIcon());
}

} // namespace ficha
