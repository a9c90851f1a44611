#include "input/ULabeledEditCodBasFr.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "records/UTabelaLinear.h"

namespace ficha
{

FICHA_REGISTRAR(TLabeledEditCodBasFr)

TLabeledEditCodBasFr::TLabeledEditCodBasFr(TChave chave) : TLabeledEditIntegerBasFr(chave)
{
    NaoRepetir = true;
}

void TLabeledEditCodBasFr::Atualizar()
{
    TLabeledEditIntegerBasFr::Atualizar();
    if (!Tabela)
        return;
    const bool leitura = Tabela->Status != TStatus::Inserindo;
    if (LabeledEdit1->isReadOnly() != leitura)
        LabeledEdit1->setReadOnly(leitura);
}

bool TLabeledEditCodBasFr::PodeDesfazer() const
{
    return true;
}

} // namespace ficha
