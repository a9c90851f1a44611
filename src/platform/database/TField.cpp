#include "platform/database/TField.h"

#include "platform/database/EDatabaseError.h"
#include "platform/database/TDataSet.h"

namespace ficha
{

int TField::Linha() const
{
    const int linha = dataSet->Active() ? dataSet->LinhaDosCampos() : 0;
    if (linha > 0 && coluna < 0) {
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("O campo '%1' não existe mais na consulta.").arg(fieldName));
    }
    return linha - 1;
}

bool TField::IsNull() const
{
    const int linha = Linha();
    return linha < 0 || dataSet->CelulaNula(linha, coluna);
}

Variant TField::Value() const
{
    const int linha = Linha();
    return linha < 0 ? Null : dataSet->CelulaValor(linha, coluna);
}

QString TField::AsString() const
{
    const int linha = Linha();
    return linha < 0 ? QString() : dataSet->CelulaTexto(linha, coluna);
}

QAnyStringView TField::TextoDoValor(TEspacoDeTexto &espaco) const
{
    const int linha = Linha();
    return linha < 0 ? QAnyStringView() : dataSet->CelulaTextoDoValor(linha, coluna, espaco);
}

int TField::AsInteger() const
{
    return Value().AsInteger();
}

double TField::AsFloat() const
{
    return Value().AsFloat();
}

TDateTime TField::AsDateTime() const
{
    return Value().AsDateTime();
}

void TField::SetValue(const Variant &valor)
{
    dataSet->GravarCelula(*this, valor);
}

} // namespace ficha
