#include "input/UNumDiagF.h"

#include "input/UNumEditBRBasFr.h"
#include "input/UTituloDoDialogo.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/Layout.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TNumDiagF)

TNumDiagF::TNumDiagF(TChave chave) : TDiagBasF(chave) {}

bool TNumDiagF::PodeOk()
{
    return NumEditBRBasFr->CanExit();
}

void TNumDiagF::PegarComponentes()
{
    TDiagBasF::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
    Pegar(this, NumEditBRBasFr, "NumEditBRBasFr");
}

void TNumDiagF::FormShow(QObject *sender)
{
    AcomodarTitulo(*TitLabel, *NumEditBRBasFr);
    TDiagBasF::FormShow(sender);
    NumEditBRBasFr->NumEditBR1->setFocus();
    NumEditBRBasFr->NumEditBR1->selectAll();
}

} // namespace ficha
