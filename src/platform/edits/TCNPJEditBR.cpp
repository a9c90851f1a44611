#include "platform/edits/TCNPJEditBR.h"

#include "platform/core/Documentos.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TCNPJEditBR)

TCNPJEditBR::TCNPJEditBR(QWidget *owner)
    : TDocEditBR(owner, QStringLiteral("SS.SSS.SSS/SSSS-00"), QStringLiteral("um CNPJ"))
{
}

bool TCNPJEditBR::Valido() const
{
    return CNPJValido(GetValor());
}

} // namespace ficha
