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

/** Writes a number into its places, zeros before it. */
void Escrever(QChar *fim, int n, int casas)
{
    for (; casas > 0; --casas, n /= 10)
        *--fim = QChar(char16_t(u'0' + n % 10));
}

/** "dd/mm/yyyy" and room for more behind it. Lists write a date per cell: no format is read. */
QString TextoDoDia(QDate dia, int tamanho)
{
    int ano = 0;
    int mes = 0;
    int doMes = 0;
    dia.getDate(&ano, &mes, &doMes);
    QString t(tamanho, u'/');
    Escrever(t.data() + 2, doMes, 2);
    Escrever(t.data() + 5, mes, 2);
    Escrever(t.data() + 10, ano, 4);
    return t;
}

/** The years that have four digits. */
bool AnoComum(QDate dia)
{
    return dia.year() >= 1 && dia.year() <= 9999;
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
    const QDate dia = Data();
    return AnoComum(dia) ? TextoDoDia(dia, 10) : dia.toString(QStringLiteral("dd/MM/yyyy"));
}

QString TDateTime::Texto() const
{
    const QTime hora = Hora();
    if (hora.msecsSinceStartOfDay() == 0)
        return TextoData();
    const QDate dia = Data();
    if (!AnoComum(dia))
        return TextoData() + hora.toString(QStringLiteral(" HH:mm:ss"));
    QString t = TextoDoDia(dia, 19);
    t[10] = u' ';
    t[13] = t[16] = u':';
    Escrever(t.data() + 13, hora.hour(), 2);
    Escrever(t.data() + 16, hora.minute(), 2);
    Escrever(t.data() + 19, hora.second(), 2);
    return t;
}

} // namespace ficha
