#include "dates/USeculo.h"

#include "platform/support/Datas.h"
#include "platform/support/Textos.h"

namespace ficha
{

QString DigitosPeloSeculo(const QString &texto, int seculoBase, bool zeroEhCem)
{
    constexpr int ComAnoCurto = 6;
    constexpr int ComAnoLongo = 8;
    if (texto.size() != ComAnoCurto && texto.size() != ComAnoLongo)
        return texto;
    const auto numero = [](const QString &letras) { return StrToIntStr(letras).toInt(); };
    const int final = numero(texto.mid(4));
    const int ano =
        texto.size() == ComAnoCurto ? AnoPeloSeculo(final, seculoBase, zeroEhCem) : final;
    return IntToStrZero(numero(texto.left(2)), 2) + IntToStrZero(numero(texto.mid(2, 2)), 2) +
           IntToStrZero(ano, 4);
}

} // namespace ficha
