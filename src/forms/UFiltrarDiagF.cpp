#include "forms/UFiltrarDiagF.h"

#include "platform/toolkit/Layout.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TFiltrarDiagF)

namespace
{

constexpr TColor AzulClaro = TColor(14732209);

} // namespace

TFiltrarDiagF::TFiltrarDiagF(TChave chave) : TDiagBitBtnBasF(chave) {}

bool TFiltrarDiagF::Exibir(TForm *, TLinhas &)
{
    return true;
}

void TFiltrarDiagF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, Image1, "Image1");
}

void TFiltrarDiagF::FormCreate(QObject *sender)
{
    TDiagBitBtnBasF::FormCreate(sender);
    SetColor(AzulClaro);
}

} // namespace ficha
