#include "input/UBarCodes.h"

#include "platform/core/Documentos.h"
#include "platform/core/Erros.h"

namespace ficha
{

namespace
{

constexpr int TamanhoEAN8 = 8;
constexpr int TamanhoUPCA = 12;
constexpr int TamanhoEAN13 = 13;
constexpr int TamanhoEAN14 = 14;

void ExigirDigitos(const QString &corpo)
{
    for (const QChar c : corpo) {
        if (c < u'0' || c > u'9')
            throw EVariantError(
                QStringLiteral("Não é possível converter '%1' em número inteiro").arg(c));
    }
}

bool CodigoValido(const QString &s, int tamanho)
{
    if (s.size() != tamanho)
        return false;
    const QString corpo = s.chopped(1);
    ExigirDigitos(corpo);
    return s.last(1) == DigitoGTIN(corpo);
}

} // namespace

bool BarCodValido(const QString &s)
{
    const QString codigo = s.trimmed();
    switch (codigo.size()) {
    case TamanhoEAN8:
        return EAN8Valido(codigo);
    case TamanhoUPCA:
        return UPCAValido(codigo);
    case TamanhoEAN13:
        return EAN13Valido(codigo);
    case TamanhoEAN14:
        return EAN14Valido(codigo);
    default:
        return false;
    }
}

bool EAN8Valido(const QString &s)
{
    return CodigoValido(s, TamanhoEAN8);
}

bool UPCAValido(const QString &s)
{
    return CodigoValido(s, TamanhoUPCA);
}

bool EAN13Valido(const QString &s)
{
    return CodigoValido(s, TamanhoEAN13);
}

bool EAN14Valido(const QString &s)
{
    return CodigoValido(s, TamanhoEAN14);
}

} // namespace ficha
