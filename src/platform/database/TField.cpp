#include "platform/database/TField.h"

#include "platform/database/EDatabaseError.h"
#include "platform/database/TDataSet.h"

namespace ficha
{

bool TField::TemValor() const
{
    if (!dataSet->Active() || dataSet->RecNo() == 0)
        return false;
    if (coluna < 0) {
        throw EDatabaseError(
            TErroBanco::Outro,
            QStringLiteral("O campo '%1' não existe mais na consulta.").arg(fieldName));
    }
    return true;
}

bool TField::IsNull() const
{
    return !TemValor() || dataSet->CelulaNula(dataSet->RecNo() - 1, coluna);
}

Variant TField::Value() const
{
    return TemValor() ? dataSet->CelulaValor(dataSet->RecNo() - 1, coluna) : Null;
}

QString TField::AsString() const
{
    return TemValor() ? dataSet->CelulaTexto(dataSet->RecNo() - 1, coluna) : QString();
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

} // namespace ficha
