#include "forms/UImgD.h"

#include "platform/support/SisD.h"
#include "platform/toolkit/TImageList.h"

#include <utility>

namespace ficha
{

namespace
{

constexpr std::pair<int, const char *> Figuras[] = {
    {1, "ampliar"},
    {2, "confirmar"},
    {3, "cancelar"},
    {9, "desfazer"},
    {10, "confirmar"},
    {16, "folha"},
    {17, "desfazer"},
    {18, "localizar-imagem"},
    {19, "config-impressao"},
    {20, "imprimir"},
    {29, "lista"},
    {30, "excluir"},
    {31, "calendario-antes"},
    {32, "calendario-depois"},
    {33, "calendario-7dias"},
    {34, "calendario-hoje"},
    {35, "calendario"},
    {36, "calendario-4semanas"},
    {37, "calendario-todas"},
    {45, "inserir"},
    {46, "alterar"},
    {49, "localizar"},
    {50, "filtro"},
    {51, "relatorios"},
    {52, "manutencao"},
};

constexpr std::pair<int, const char *> Marcas[] = {
    {8, "ordem-crescente"},
    {9, "ordem-decrescente"},
    {25, "recolhido"},
    {26, "expandido"},
};

void SoltarSe(TImageList *&usada, const TImageList *minha)
{
    if (usada == minha)
        usada = nullptr;
}

} // namespace

TImgD::TImgD(QObject *owner)
    : QObject(owner), ImageList16(new TImageList(this)), DisImageList16(new TImageList(this)),
      ImageList(new TImageList(this))
{
    setObjectName(QStringLiteral("ImgD"));
    for (const auto &[indice, figura] : Figuras)
        ImageList16->AddSvg(indice, QLatin1String(figura));
    DisImageList16->AssignDisabled(*ImageList16);
    for (const auto &[indice, figura] : Marcas)
        ImageList->AddSvg(indice, QLatin1String(figura));
}

TImgD::~TImgD()
{
    SoltarSe(SisD().ImageList16, ImageList16);
    SoltarSe(SisD().DisImageList16, DisImageList16);
    SoltarSe(SisD().ImageList, ImageList);
}

void TImgD::Instalar()
{
    if (!SisD().ImageList16) {
        SisD().ImageList16 = ImageList16;
        SisD().DisImageList16 = DisImageList16;
    }
    if (!SisD().ImageList)
        SisD().ImageList = ImageList;
}

} // namespace ficha
