#include "input/UNumDiagF.h"

#include "input/UNumEditBRBasFr.h"
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
    AcomodarTitulo();
    TDiagBasF::FormShow(sender);
    NumEditBRBasFr->NumEditBR1->setFocus();
    NumEditBRBasFr->NumEditBR1->selectAll();
}

void TNumDiagF::AcomodarTitulo()
{
    if (TitLabel->text().isEmpty())
        return;
    const int altura = TitLabel->heightForWidth(TitLabel->width());
    TitLabel->setFixedHeight(altura);
    const int falta = altura - NumEditBRBasFr->y();
    if (falta <= 0)
        return;
    resize(width(), height() + falta);
    NumEditBRBasFr->move(NumEditBRBasFr->x(), NumEditBRBasFr->y() + falta);
}

} // namespace ficha
