#pragma once

#include "platform/core/TDateTime.h"

#include <QString>

namespace ficha
{

/** 01/01/1980: the date that stands for "no date". */
inline constexpr TDateTime SemData{29221.0};

/**
 * Whether the moment is still passing: true from `desde` until the interval (in days) is over,
 * false from then on.
 *
 * A throttle that acts when the answer is false and then remembers the present moment so acts at
 * once the first time (with `desde` 0) and afterwards at most once per interval. A `desde` that
 * lies in the future answers false, so that a clock that was put back never stops a screen from
 * refreshing. Counted in whole milliseconds.
 */
bool PassouTempo(TDateTime desde, double intervaloEmDias);

/** The date without its time of day. */
TDateTime DataInteira(TDateTime data);
/** The first day of the date's month, at midnight. */
TDateTime PrimeiroDateMes(TDateTime data);
/** The last day of the date's month, at midnight. */
TDateTime UltimoDateMes(TDateTime data);
/** n months later (earlier when negative), on the same day or, where the month is too short, on
 * its last one. The time of day stays. */
TDateTime IncMonth(TDateTime data, int n);
/** The same day one month earlier; 31/03 gives 28/02 (29/02 in a leap year). */
TDateTime MesAnt(TDateTime data);
/** Whole calendar years between two moments in either order, as an age is counted: the year is
 * full on the birthday at the same time of day. Born on 29/02, it is full on 01/03. */
int YearsBetween(TDateTime a, TDateTime b);

/**
 * A date written by a format: d, dd, ddd ("sex"), dddd ("sexta-feira"), m, mm, mmm ("nov"), mmmm
 * ("novembro"), yy, yyyy, h, hh, n, nn, s, ss, zzz; m directly behind h is the minute. Letters of
 * either case; text in single or double quotes and every other character stand for themselves.
 */
QString FormatDateTime(const QString &formato, TDateTime data);

/**
 * The year for two digits of one.
 *
 * A seculoBase below 100 is the last pair of digits of this century: a greater pair is of the
 * 1900s. From 100 on it is added to the pair, and where zeroEhCem is set the pair 00 counts as 100.
 */
int AnoPeloSeculo(int aa, int seculoBase, bool zeroEhCem);
/** The base that puts two-digit years into the 80 years before and the 19 after today: (this year
 * - 80) mod 100. */
int SeculoBasePadrao();

/**
 * A date out of the bare digits of a masked edit: ddmmyyyy, or ddmmyy with the year after
 * SeculoBasePadrao(). Blanks behind the digits are passed over. Anything else, an impossible date
 * or an empty text gives SemData.
 */
TDateTime StrLimpaToDate(const QString &texto);
/** Whether StrLimpaToDate finds a real calendar date; the year 0000 is none. */
bool StrLimpaIsValidDate(const QString &texto);
/** The date as bare digits: ddmmyyyy. SemData too is written in full. */
QString DateToStrLimpa(TDateTime data);
/** Writes the date into a masked edit as bare digits. */
template <typename TEdit>
void PreencherMaskEditStrLimpa(TDateTime data, TEdit *edit)
{
    edit->SetText(DateToStrLimpa(data));
}

/** Both ends of a range as one text, "ddmmyyyy;ddmmyyyy"; an open end (SemData) leaves its side
 * empty. */
QString DatesToStrConfig(TDateTime inicio, TDateTime fim);
/** Takes such a text apart. A side that is empty, missing or no date becomes SemData. */
void StrConfigToDates(const QString &texto, TDateTime &inicio, TDateTime &fim);

/** The day as an SQL literal that every dialect reads, 'yyyy-mm-dd'. The time of day is dropped. */
QString DataSQL(TDateTime data);
/** The day as a Firebird literal, 'dd.mm.yyyy'. The time of day is dropped. */
QString DataSQLFirebird(TDateTime data);
/** The moment as a Firebird literal, 'dd.mm.yyyy hh:nn:ss.zzz'. */
QString DataHoraSQLFirebird(TDateTime momento);

} // namespace ficha
