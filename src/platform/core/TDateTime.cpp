#include "platform/core/TDateTime.h"

#include <array>
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
void Escrever(char *fim, int n, int casas)
{
    for (; casas > 0; --casas, n /= 10)
        *--fim = char('0' + n % 10);
}

/** Writes "dd/mm/yyyy"; false, nothing written, for years that do not have four digits. Counted in
 * eras of 400 years, the year starting in March so that the leap day is its last one. */
bool EscreverDia(char *saida, double dias)
{
    constexpr double PrimeiroDia = -693593, UltimoDia = 2958465; // 01/01/0001 and 31/12/9999
    if (!(dias >= PrimeiroDia && dias <= UltimoDia))
        return false;
    constexpr int DoAnoZero = 693899, DiasDaEra = 146097; // day 0 since 01/03/0000
    const int n = int(dias) + DoAnoZero, era = n / DiasDaEra, naEra = n % DiasDaEra;
    const int anoDaEra = (naEra - naEra / 1460 + naEra / 36524 - naEra / 146096) / 365;
    const int doAno = naEra - (365 * anoDaEra + anoDaEra / 4 - anoDaEra / 100);
    const int desdeMarco = (5 * doAno + 2) / 153;
    const int mes = desdeMarco < 10 ? desdeMarco + 3 : desdeMarco - 9;
    Escrever(saida + 2, doAno - (153 * desdeMarco + 2) / 5 + 1, 2);
    Escrever(saida + 5, mes, 2);
    Escrever(saida + 10, era * 400 + anoDaEra + (mes <= 2 ? 1 : 0), 4);
    saida[2] = saida[5] = '/';
    return true;
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
    return QTime::fromMSecsSinceStartOfDay(MsDoDia());
}

QDateTime TDateTime::DataHora() const
{
    return {Data(), Hora()};
}

QString TDateTime::TextoData() const
{
    std::array<char, 10> letras;
    return EscreverDia(letras.data(), DataInteira().valor)
               ? QString::fromLatin1(letras.data(), letras.size())
               : Data().toString(QStringLiteral("dd/MM/yyyy"));
}

QString TDateTime::Texto() const
{
    std::array<char, 19> letras;
    if (const int n = EscreverTexto(letras))
        return QString::fromLatin1(letras.data(), n);
    return MsDoDia() == 0 ? TextoData()
                          : TextoData() + Hora().toString(QStringLiteral(" HH:mm:ss"));
}

int TDateTime::EscreverTexto(std::span<char, 19> saida) const
{
    char *letras = saida.data();
    if (!EscreverDia(letras, DataInteira().valor))
        return 0;
    const int ms = MsDoDia();
    if (ms == 0)
        return 10;
    const int segundos = ms / 1000;
    letras[10] = ' ';
    Escrever(letras + 13, segundos / 3600, 2);
    Escrever(letras + 16, segundos / 60 % 60, 2);
    Escrever(letras + 19, segundos % 60, 2);
    letras[13] = letras[16] = ':';
    return 19;
}

int TDateTime::MsDoDia() const
{
    const double fracao = std::max(0.0, valor - DataInteira().valor);
    return int(std::lround(fracao * MsPorDia)) % int(MsPorDia);
}

} // namespace ficha
