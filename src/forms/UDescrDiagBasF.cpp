#include "forms/UDescrDiagBasF.h"

#include "input/ULabeledEditTextoBasFr.h"
#include "input/UTituloDoDialogo.h"
#include "platform/toolkit/Layout.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TDescrDiagBasF)

TDescrDiagBasF::TDescrDiagBasF(TChave chave) : TDiagBitBtnBasF(chave) {}

bool TDescrDiagBasF::PodeOk()
{
    return !DescrLabeledEditTextoBasFr->AsString().isEmpty();
}

void TDescrDiagBasF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
    Pegar(this, DescrLabeledEditTextoBasFr, "DescrLabeledEditTextoBasFr");
}

void TDescrDiagBasF::FormShow(QObject *sender)
{
    AcomodarTitulo(*TitLabel, *DescrLabeledEditTextoBasFr);
    TDiagBitBtnBasF::FormShow(sender);
}

void TDescrDiagBasF::OkClick(QObject *sender)
{
    TDiagBitBtnBasF::OkClick(sender);
    if (GetModalResult() == mrNone)
        DescrLabeledEditTextoBasFr->SetFocus();
}

} // namespace ficha
