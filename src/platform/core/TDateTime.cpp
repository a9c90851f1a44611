#include "platform/core/TDateTime.h"

#include <cmath>

namespace ficha
{

namespace
{
constexpr double MsPorDia = 86400000.0;
const QDate &DiaZero()
{
    static const QDate dia(1899, 12, 30);
    return dia;
}
} // namespace

TDateTime::TDateTime(QDate data) : valor(data.isValid() ? double(DiaZero().daysTo(data)) : 0) {}

TDateTime::TDateTime(const QDateTime &momento)
    : valor(momento.isValid() ? double(DiaZero().daysTo(momento.date())) +
                                    momento.time().msecsSinceStartOfDay() / MsPorDia
                              : 0)
{
}

TDateTime TDateTime::DeData(int dia, int mes, int ano)
{
    return TDateTime(QDate(ano, mes, dia));
}

TDateTime TDateTime::DataInteira() const
{
    return TDateTime(std::floor(valor + 0.5 / MsPorDia));
}

QDate TDateTime::Data() const
{
    return DiaZero().addDays(qint64(DataInteira().valor));
}

QTime TDateTime::Hora() const
{
    const double fracao = std::max(0.0, valor - DataInteira().valor);
    return QTime::fromMSecsSinceStartOfDay(int(std::lround(fracao * MsPorDia)) % int(MsPorDia));
}

QDateTime TDateTime::DataHora() const
{
    return {Data(), Hora()};
}

QString TDateTime::TextoData() const
{
    return Data().toString(QStringLiteral("dd/MM/yyyy"));
}

QString TDateTime::Texto() const
{
    const QTime hora = Hora();
    return hora.msecsSinceStartOfDay() == 0
               ? TextoData()
               : TextoData() + hora.toString(QStringLiteral(" HH:mm:ss"));
}

} // namespace ficha
