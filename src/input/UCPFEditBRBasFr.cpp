#include "input/UCPFEditBRBasFr.h"

#include "input/UApoioInput.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/support/Mensagens.h"
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
    const bool vazioAceito = AceitaVazio && CPFEditBR1->GetText().isEmpty();
    const bool aceito = vazioAceito || CPFEditBR1->Valido();
    LigarFrase(Frases, FraseObrigatorio, !aceito);
    if (!aceito)
        MensagemAviso(QStringLiteral("CPF Inválido\r\nDigite o valor correto ou clique em "
                                     "Cancelar."),
                      0);
    return aceito;
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
