#include "input/UNomeBasFr.h"

#include "input/ULabeledEditTextoBasFr.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TGroupBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "records/UTabelaLinear.h"

namespace ficha
{

FICHA_REGISTRAR(TNomeBasFr)

TNomeBasFr::TNomeBasFr(TChave chave) : TBasFr(chave) {}

void TNomeBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    NomeLabeledEditTextoBasFr->AceitaVazio = false;
    TLabeledEdit *nome = NomeLabeledEditTextoBasFr->LabeledEdit1;
    AoSair(nome, [this, nome] { NomeLabeledEditTextoBasFrLabeledEdit1Exit(nome); });
}

void TNomeBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, GroupBox1, "GroupBox1");
    Pegar(this, NomeLabeledEditTextoBasFr, "NomeLabeledEditTextoBasFr");
    Pegar(this, MenorEditTextoBasFr, "MenorEditTextoBasFr");
}

void TNomeBasFr::NomeLabeledEditTextoBasFrLabeledEdit1Exit(QObject *)
{
    const TTabelaLinear *tabela = MenorEditTextoBasFr->Tabela;
    // Passing through a record that nobody is editing would show what it does not hold.
    if (tabela && tabela->Status == TStatus::Ocioso)
        return;
    TLabeledEdit *menor = MenorEditTextoBasFr->LabeledEdit1;
    if (!MenorEditTextoBasFr->AsString().isEmpty() || menor->GetMaxLength() == 0)
        return;
    MenorEditTextoBasFr->SetValor(NomeLabeledEditTextoBasFr->AsString());
    // Entered before there was a text to select.
    if (menor->hasFocus())
        menor->selectAll();
}

} // namespace ficha
