#include "grids/USelectCodBasFr.h"

#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Teclas.h"

namespace ficha
{

FICHA_REGISTRAR(TSelectCodBasFr)

TSelectCodBasFr::TSelectCodBasFr(TChave chave) : TSelectBasFr(chave) {}

void TSelectCodBasFr::PegarComponentes()
{
    TSelectBasFr::PegarComponentes();
    Pegar(this, CodNumEditBR, "CodNumEditBR");
    AoTeclaDescer(CodNumEditBR, [this](int &tecla, Qt::KeyboardModifiers estado) {
        CodNumEditBRKeyDown(CodNumEditBR, tecla, estado);
    });
}

void TSelectCodBasFr::CodNumEditBRKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    if (tecla != VK_RETURN || !OnBuscarCod)
        return;
    Codigo = std::int32_t(CodNumEditBR->GetEscalado());
    if (!Perguntar(OnBuscarCod, QString()))
        tecla = 0;
}

void TSelectCodBasFr::MostrarAchado(const QString &descr)
{
    TSelectBasFr::MostrarAchado(descr);
    CodNumEditBR->SetValor(Codigo);
}

} // namespace ficha
