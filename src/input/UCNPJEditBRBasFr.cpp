#include "input/UCNPJEditBRBasFr.h"

#include "input/UApoioInput.h"
#include "platform/edits/TCNPJEditBR.h"
#include "platform/support/Mensagens.h"
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
    const bool vazioAceito = AceitaVazio && CNPJEditBR1->GetText().isEmpty();
    const bool aceito = vazioAceito || CNPJEditBR1->Valido();
    LigarFrase(Frases, FraseObrigatorio, !aceito);
    if (!aceito)
        MensagemAviso(QStringLiteral("CNPJ Inválido\r\nDigite o valor correto ou clique em "
                                     "Cancelar."),
                      0);
    return aceito;
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
