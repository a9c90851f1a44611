#include "forms/UTabLinearD.h"

#include "platform/toolkit/TImageList.h"

#include <utility>

namespace ficha
{

TTabLinearD *TabLinearD = nullptr;

namespace
{

constexpr std::pair<int, const char *> Figuras[] = {
    {2, "primeiro"}, {3, "anterior"}, {4, "proximo"},
    {5, "ultimo"},   {9, "desfazer"}, {10, "confirmar"},
};

TImageList *NovaLista(QObject *dono, const char *nome, int lado)
{
    auto *lista = new TImageList(dono, QSize(lado, lado));
    lista->setObjectName(QLatin1String(nome));
    return lista;
}

TImageList *ListaDaBarra(QObject *dono, const char *nome, int lado)
{
    TImageList *lista = NovaLista(dono, nome, lado);
    for (const auto &[indice, figura] : Figuras)
        lista->AddSvg(indice, QLatin1String(figura));
    return lista;
}

TImageList *ListaDesabilitada(QObject *dono, const char *nome, const TImageList &de)
{
    TImageList *lista = NovaLista(dono, nome, de.GetSize().width());
    lista->AssignDisabled(de);
    return lista;
}

} // namespace

TTabLinearD::TTabLinearD(QObject *owner)
    : QObject(owner), BarraImageList(ListaDaBarra(this, "BarraImageList", 24)),
      BarraDisImageList(ListaDesabilitada(this, "BarraDisImageList", *BarraImageList)),
      BarraImageList16(ListaDaBarra(this, "BarraImageList16", 16)),
      BarraDisImageList16(ListaDesabilitada(this, "BarraDisImageList16", *BarraImageList16))
{
    setObjectName(QStringLiteral("TabLinearD"));
}

} // namespace ficha
