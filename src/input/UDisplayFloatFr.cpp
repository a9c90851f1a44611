#include "input/UDisplayFloatFr.h"

#include "platform/support/FormatFloat.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TDisplayFloatFr)

TDisplayFloatFr::TDisplayFloatFr(TChave chave)
    : TDisplayFr(chave), Formato(QStringLiteral("###,###,##0.00"))
{
}

void TDisplayFloatFr::SetValor(double x)
{
    Valor = x;
    SetDado1Str(FormatFloat(Formato, x));
}

} // namespace ficha
