#include "input/UPedidoDeEdicao.h"

#include "base/UDBControlBasFr.h"
#include "records/UTabelaLinear.h"

#include <QPointer>

namespace ficha
{

void TPedidoDeEdicao::Antes()
{
    if (avisado)
        return;
    const QPointer<TDBControlBasFr> vivo(frame);
    frame->Editar();
    if (!vivo || !Recusado())
        return;
    avisado = true;
    // The gesture ends with the event that is being handled.
    QMetaObject::invokeMethod(
        frame, [this] { avisado = false; }, Qt::QueuedConnection);
}

void TPedidoDeEdicao::Depois()
{
    const QPointer<TDBControlBasFr> vivo(frame);
    Antes();
    if (vivo && Recusado() && frame->Campo)
        frame->Campo->Undo();
}

bool TPedidoDeEdicao::Recusado() const
{
    return frame->Tabela && frame->FormTabela() && frame->Tabela->Status == TStatus::Ocioso;
}

} // namespace ficha
