#include "platform/core/TLinhas.h"

#include <algorithm>

namespace ficha
{

int TLinhas::Add(QString texto, std::intptr_t objeto)
{
    linhas.push_back({std::move(texto), objeto});
    return Count() - 1;
}

void TLinhas::SetTexto(int i, QString texto)
{
    Q_ASSERT_X(i >= 0 && i < Count(), "TLinhas::SetTexto", "index outside the list");
    linhas[size_t(i)].texto = std::move(texto);
}

void TLinhas::SetObjeto(int i, std::intptr_t objeto)
{
    Q_ASSERT_X(i >= 0 && i < Count(), "TLinhas::SetObjeto", "index outside the list");
    linhas[size_t(i)].objeto = objeto;
}

int TLinhas::IndexOf(const QString &texto) const
{
    const auto achada = std::ranges::find(linhas, texto, &TLinha::texto);
    return achada == linhas.end() ? -1 : int(achada - linhas.begin());
}

int TLinhas::IndexOfObjeto(std::intptr_t objeto) const
{
    const auto achada = std::ranges::find(linhas, objeto, &TLinha::objeto);
    return achada == linhas.end() ? -1 : int(achada - linhas.begin());
}

const TLinhas::TLinha &TLinhas::Linha(int i) const
{
    Q_ASSERT_X(i >= 0 && i < Count(), "TLinhas", "index outside the list");
    return linhas[size_t(i)];
}

} // namespace ficha
