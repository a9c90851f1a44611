#include "platform/hostforms/TChildMDIBasF.h"

#include "platform/hostforms/TPrincipalMDIF.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TChildMDIBasF)

TChildMDIBasF::TChildMDIBasF(TChave chave) : TBasF(chave)
{
    AcaoAoFechar = caFree;
}

void TChildMDIBasF::Create(QWidget *owner)
{
    TBasF::Create(owner);
    if (TPrincipalMDIF *principal = TPrincipalMDIF::Atual())
        principal->Acolher(this);
}

void TChildMDIBasF::Create(QWidget *owner, const QString &texto)
{
    Parametro = texto;
    Create(owner);
}

} // namespace ficha
