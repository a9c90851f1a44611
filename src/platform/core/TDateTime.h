#pragma once

#include <QDateTime>

#include <span>

namespace ficha
{

/**
 * A moment as a count of days since 30/12/1899, the fraction being the time of day.
 *
 * The value 0 is 30/12/1899 00:00. Conversions to and from Qt's types are exact to the
 * millisecond. An invalid QDate or QDateTime becomes 0.
 */
class TDateTime
{
public:
    constexpr TDateTime() = default;
    constexpr explicit TDateTime(double dias) : valor(dias) {}
    explicit TDateTime(QDate data);
    explicit TDateTime(const QDateTime &momento);
    /** Day, month 1..12 and year; an impossible date gives 0. */
    static TDateTime DeData(int dia, int mes, int ano);

    constexpr double Dias() const { return valor; }
    /** The whole day, without its time: floor for dates on both sides of day 0. */
    TDateTime DataInteira() const;
    QDate Data() const;
    QTime Hora() const;
    QDateTime DataHora() const;
    /** "dd/mm/yyyy", the short date format of this system. */
    QString TextoData() const;
    /** "dd/mm/yyyy" when the time of day is midnight, else "dd/mm/yyyy hh:nn:ss". */
    QString Texto() const;
    /** Writes Texto() as plain characters and answers how many; 0, for years that do not have four
     * digits, leaves it to Texto(). For lists, which ask for a text per cell. */
    int EscreverTexto(std::span<char, 19> saida) const;

    friend constexpr bool operator==(TDateTime a, TDateTime b) { return a.valor == b.valor; }
    friend constexpr auto operator<=>(TDateTime a, TDateTime b) { return a.valor <=> b.valor; }

private:
    int MsDoDia() const;

    double valor = 0;
};

} // namespace ficha
