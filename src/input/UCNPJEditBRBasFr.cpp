#include "input/UCNPJEditBRBasFr.h"

#include "platform/edits/TCNPJEditBR.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TCNPJEditBRBasFr)

TCNPJEditBRBasFr::TCNPJEditBRBasFr(TChave chave) : TDocEditBRBasFr(chave)
{
    AceitaVazio = false;
    NaoRepetir = true;
}

void TCNPJEditBRBasFr::Create(QWidget *owner)
{
    TDocEditBRBasFr::Create(owner);
    Frases.Add(QStringLiteral("CNPJ Inválido"));
}

bool TCNPJEditBRBasFr::ValorAceitavel()
{
    return AceitarDocumento(QStringLiteral("CNPJ"));
}

TDocEditBR *TCNPJEditBRBasFr::Edit() const
{
    return CNPJEditBR1;
}

void TCNPJEditBRBasFr::EditMudou()
{
    CNPJEditBR1Change(CNPJEditBR1);
}

void TCNPJEditBRBasFr::EditEntrou()
{
    CNPJEditBR1Enter(CNPJEditBR1);
}

void TCNPJEditBRBasFr::PegarComponentes()
{
    TDocEditBRBasFr::PegarComponentes();
    Pegar(this, CNPJEditBR1, "CNPJEditBR1");
}

void TCNPJEditBRBasFr::CNPJEditBR1Change(QObject *)
{
    Atualizar();
}

void TCNPJEditBRBasFr::CNPJEditBR1Enter(QObject *sender)
{
    FrameEnter(sender);
}

} // namespace ficha
