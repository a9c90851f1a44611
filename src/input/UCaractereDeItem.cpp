#include "input/UCaractereDeItem.h"

namespace ficha
{

QString CaractereDoItem(int i)
{
    return QChar(char16_t(i + PrimeiroCaractere));
}

int ItemDoCaractere(const Variant &valor)
{
    const QString texto = valor.AsString();
    const QChar primeiro = texto.isEmpty() ? QChar(u' ') : texto.front();
    return int(primeiro.unicode()) - PrimeiroCaractere;
}

} // namespace ficha
