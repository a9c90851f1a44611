#include "input/UCepEditBRFr.h"

#include "input/UApoioInput.h"
#include "platform/edits/TCepEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR(TCepEditBRFr)

TCepEditBRFr::TCepEditBRFr(TChave chave) : TDocEditBRBasFr(chave) {}

void TCepEditBRFr::Create(QWidget *owner)
{
    constexpr int Largura = 66;
    TDocEditBRBasFr::Create(owner);
    resize(Largura, height());
    Frases.Add(QStringLiteral("Obrigatório"));
}

bool TCepEditBRFr::ValorAceitavel()
{
    if (!TDocEditBRBasFr::ValorAceitavel())
        return false;
    if (AceitaVazio) {
        LigarFrase(Frases, FraseObrigatorio, false);
        return Inteiro() || CepEditBR1->GetText().isEmpty();
    }
    if (Inteiro())
        return true;
    LigarFrase(Frases, FraseObrigatorio, true);
    MensagemAviso(RotuloDoCampo() +
                      QStringLiteral(" é um campo obrigatório\r\n (não pode ser deixado em "
                                     "branco).\r\nDigite um valor ou clique em Cancelar."),
                  0);
    return false;
}

TDocEditBR *TCepEditBRFr::Edit() const
{
    return CepEditBR1;
}

void TCepEditBRFr::EditMudou()
{
    CepEditBR1Change(CepEditBR1);
}

void TCepEditBRFr::EditEntrou()
{
    CepEditBR1Enter(CepEditBR1);
}

void TCepEditBRFr::PegarComponentes()
{
    TDocEditBRBasFr::PegarComponentes();
    Pegar(this, CepEditBR1, "CepEditBR1");
}

void TCepEditBRFr::CepEditBR1Change(QObject *)
{
    if (!AceitaVazio)
        LigarFrase(Frases, FraseObrigatorio, !Inteiro());
    Atualizar();
}

void TCepEditBRFr::CepEditBR1Enter(QObject *sender)
{
    FrameEnter(sender);
}

bool TCepEditBRFr::Inteiro() const
{
    constexpr int Tamanho = 9;
    return CepEditBR1->GetText().size() == Tamanho;
}

} // namespace ficha
