#include "platform/edits/TCPFEditBR.h"

#include "platform/core/Documentos.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TCPFEditBR)

TCPFEditBR::TCPFEditBR(QWidget *owner)
    : TDocEditBR(owner, QStringLiteral("000.000.000-00"), QStringLiteral("um CPF"))
{
}

bool TCPFEditBR::Valido() const
{
    return CPFValido(GetValor());
}

} // namespace ficha
