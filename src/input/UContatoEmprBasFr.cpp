#include "input/UContatoEmprBasFr.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

namespace ficha
{

FICHA_REGISTRAR(TContatoEmprBasFr)

TContatoEmprBasFr::TContatoEmprBasFr(TChave chave) : TContatoBasFr(chave) {}

void TContatoEmprBasFr::Create(QWidget *owner)
{
    TContatoBasFr::Create(owner);
    AoTeclaDescer(PaginaLabeledEdit, [this](int &tecla, Qt::KeyboardModifiers estado) {
        PaginaLabeledEditKeyDown(PaginaLabeledEdit, tecla, estado);
    });
}

void TContatoEmprBasFr::Zerar()
{
    TContatoBasFr::Zerar();
}

void TContatoEmprBasFr::PaginaLabeledEditKeyDown(QObject *, int &, Qt::KeyboardModifiers) {}

} // namespace ficha
