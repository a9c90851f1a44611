#pragma once

#include <QList>
#include <QString>

/*
 * The numbers that Brazilian records carry: their check digits, their shapes and how they are
 * shown. No screen is needed.
 *
 * A text may be bare or masked: blanks around it, and dots, hyphens, slashes and blanks between
 * its characters, are passed over. Nothing else is, so that a text with letters never turns into
 * the number that its digits would make.
 */
namespace ficha
{

/** Eleven digits with their two check digits right. One digit repeated eleven times meets the
 * arithmetic and is refused all the same. */
bool CPFValido(const QString &texto);
/** The two check digits of the first nine digits; empty when they are not nine digits. */
QString DigitosCPF(const QString &base);
/** "000.000.000-00" for eleven digits; any other text as it is. The check digits are not asked. */
QString CPFComMasc(const QString &texto);
/** The eleven digits; empty for any other text. The check digits are not asked. */
QString CPFSemMasc(const QString &texto);

/** Twelve digits or letters A to Z and two check digits that are right; digits only before July
 * 2026. Small letters count as capitals. All zeros are refused. */
bool CNPJValido(const QString &texto);
/** The two check digits of the first twelve characters; empty when they are no such twelve. */
QString DigitosCNPJ(const QString &base);
/** "SS.SSS.SSS/SSSS-00" for what has the shape of a CNPJ, its letters as capitals; any other text
 * as it is. The check digits are not asked. */
QString CNPJComMasc(const QString &texto);
/** The fourteen characters, letters as capitals, as a CNPJ is kept; empty for any other text. The
 * check digits are not asked. */
QString CNPJSemMasc(const QString &texto);

/** A product code of 8, 12, 13 or 14 digits whose last one is its check digit. Only blanks around
 * it are passed over. Nothing but the arithmetic is asked: all zeros are valid. */
bool GTINValido(const QString &texto);
/** The check digit of the 7, 11, 12 or 13 digits before it; empty for any other text. */
QString DigitoGTIN(const QString &corpo);

/** Whether an area code is in use. */
bool DDDValido(int ddd);
/** The state of an area code ("SP"); empty when it is not in use. */
QString UFDoDDD(int ddd);

/** First and last CEP of a range, eight digits each. */
struct TFaixaCEP {
    QString Primeiro;
    QString Ultimo;

    friend bool operator==(const TFaixaCEP &, const TFaixaCEP &) = default;
};

/** The eight digits of a CEP; empty for any other text. It has no check digit. */
QString CEPSemMasc(const QString &texto);
/** The state in whose range a CEP is ("SP"); empty for no CEP and for one that no state has. */
QString UFDoCEP(const QString &cep);
/** The ranges of a state, in rising order: one, or two for AM, DF and GO; none when there is no
 * such state. The state is asked for in capitals. */
QList<TFaixaCEP> CEPDaUF(const QString &uf);

enum class TTipoFone {
    Nenhum,
    Fixo,   /**< eight digits, the first one 2 to 5 */
    Celular /**< nine digits, the first one 9 */
};

/** What a telephone number without its area code is, by its shape. */
TTipoFone TipoDoFone(const QString &texto);

} // namespace ficha
