#include "platform/edits/TCepEditBR.h"

#include "platform/core/Documentos.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TCepEditBR)

TCepEditBR::TCepEditBR(QWidget *owner)
    : TDocEditBR(owner, QStringLiteral("00000-000"), QStringLiteral("um CEP"))
{
}

bool TCepEditBR::Valido() const
{
    return !CEPSemMasc(GetValor()).isEmpty();
}

} // namespace ficha
