#pragma once

#include <QString>

#include <cstdint>
#include <vector>

namespace ficha
{

/**
 * A list of texts with one integer slot per entry.
 *
 * Indices run from 0 to Count() - 1; an index outside is a programming mistake and asserts.
 */
class TLinhas
{
public:
    int Count() const { return int(linhas.size()); }
    /** Appends and answers the index of the new entry. */
    int Add(QString texto, std::intptr_t objeto = 0);
    void Clear() { linhas.clear(); }
    const QString &Texto(int i) const { return Linha(i).texto; }
    void SetTexto(int i, QString texto);
    std::intptr_t Objeto(int i) const { return Linha(i).objeto; }
    void SetObjeto(int i, std::intptr_t objeto);
    /** First entry with this text, compared to the letter; -1 when there is none. */
    int IndexOf(const QString &texto) const;
    /** First entry whose slot holds this value; -1 when there is none. */
    int IndexOfObjeto(std::intptr_t objeto) const;

private:
    struct TLinha {
        QString texto;
        std::intptr_t objeto = 0;
    };
    const TLinha &Linha(int i) const;

    std::vector<TLinha> linhas;
};

} // namespace ficha
