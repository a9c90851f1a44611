#include "input/UCPFEditBRBasFr.h"

#include "platform/edits/TCPFEditBR.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TCPFEditBRBasFr)

TCPFEditBRBasFr::TCPFEditBRBasFr(TChave chave) : TDocEditBRBasFr(chave)
{
    AceitaVazio = false;
    NaoRepetir = true;
}

void TCPFEditBRBasFr::Create(QWidget *owner)
{
    TDocEditBRBasFr::Create(owner);
    Frases.Add(QStringLiteral("CPF Inválido"));
}

bool TCPFEditBRBasFr::ValorAceitavel()
{
    return AceitarDocumento(QStringLiteral("CPF"));
}

TDocEditBR *TCPFEditBRBasFr::Edit() const
{
    return CPFEditBR1;
}

void TCPFEditBRBasFr::EditMudou()
{
    CPFEditBR1Change(CPFEditBR1);
}

void TCPFEditBRBasFr::EditEntrou()
{
    CPFEditBR1Enter(CPFEditBR1);
}

void TCPFEditBRBasFr::PegarComponentes()
{
    TDocEditBRBasFr::PegarComponentes();
    Pegar(this, CPFEditBR1, "CPFEditBR1");
}

void TCPFEditBRBasFr::CPFEditBR1Change(QObject *)
{
    Atualizar();
}

void TCPFEditBRBasFr::CPFEditBR1Enter(QObject *sender)
{
    FrameEnter(sender);
}

} // namespace ficha
