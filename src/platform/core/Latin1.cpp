#include "platform/core/Latin1.h"

#include <QList>

#include <algorithm>

namespace ficha
{

bool CabeEmLatin1(const QString &texto, QString *primeiroInvalido)
{
    const auto achado = std::ranges::find_if(texto, [](QChar c) { return c.unicode() > 0xFF; });
    if (achado == texto.end())
        return true;
    if (primeiroInvalido) {
        const qsizetype i = achado - texto.begin();
        const bool par =
            achado->isHighSurrogate() && i + 1 < texto.size() && texto.at(i + 1).isLowSurrogate();
        *primeiroInvalido = texto.mid(i, par ? 2 : 1);
    }
    return false;
}

QString NomeDoCaractere(const QString &caractere)
{
    if (caractere.isEmpty())
        return {};
    const char32_t codigo = caractere.toUcs4().constFirst();
    return QStringLiteral("U+%1").arg(uint(codigo), 4, 16, QLatin1Char('0')).toUpper();
}

} // namespace ficha
