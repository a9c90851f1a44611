#pragma once

#include <QString>

#include <cstdint>
#include <optional>

namespace ficha
{

/** How a numeric edit writes its number. */
struct TFormatoNumerico {
    int Casas = 0;       /**< decimal places */
    int CasasEsq = 0;    /**< most digits of the integer part; 0 is as many as 15 in all allow */
    bool Agrupa = false; /**< a point between thousands */
    int MinDigitos = 1;  /**< the integer part is padded with zeros to so many digits */

    /** Digits that the user may type before the comma. */
    int MaxEsq() const;
    /** Takes grouping and padding from a mask such as "###,###,##0", "########0" or "000000";
     * characters other than # 0 and comma are passed over. */
    void LerMascara(const QString &mascEsq);
};

/**
 * A decimal number of any length, as digits: what stands between a text, a double and the scaled
 * integer of a numeric edit.
 */
struct TDecimal {
    bool Negativo = false;
    QString Inteiro;  /**< without leading zeros; empty for 0 */
    QString Decimais; /**< without trailing zeros */

    bool EhZero() const { return Inteiro.isEmpty() && Decimais.isEmpty(); }
    /** At most 15 significant digits; none for infinity and NaN. */
    static std::optional<TDecimal> DeDouble(double numero);
    static TDecimal DeEscalado(std::int64_t escalado, int casas);
    /** Rounded to so many places, halves away from zero; none beyond 18 digits. */
    std::optional<std::int64_t> Escalado(int casas) const;
};

/**
 * Reads a number as people write and paste it.
 *
 * Blanks and an "R$" in front are passed over, a minus may stand before or behind. A comma is the
 * decimal separator and points group: "1.234,56", "1234,56". Without a comma, points that stand
 * before groups of exactly three digits group ("1.234" is 1234), and a single point anywhere else
 * is the decimal separator ("1234.56", "0.5"). With both, the one further right is the decimal
 * separator ("1,234.56"). Several commas group when no point follows and the groups have three
 * digits. Everything else is no number.
 */
std::optional<TDecimal> LerDecimal(const QString &texto);

/** The text of a scaled number: 123456 with two places is "1.234,56". */
QString FormatarEscalado(std::int64_t escalado, const TFormatoNumerico &formato);

/**
 * The text of a numeric edit taken apart: sign, integer digits without leading zeros, exactly the
 * format's decimal digits. The editing operations work here, on digits and a caret among digits,
 * so that separators never get in the way.
 */
class TTextoNumerico
{
public:
    /** A caret between digits: in the integer part counted by the digits to its right, behind the
     * comma by the digits to its left. */
    struct TCursor {
        bool NosDecimais = false;
        int Digitos = 0;
    };

    /** From a text that the format wrote ("-0" included). */
    TTextoNumerico(const QString &exibido, const TFormatoNumerico &formato);

    QString Exibir() const;
    std::int64_t Escalado() const;
    TCursor CursorEm(const QString &exibido, int posicao) const;
    int PosicaoDe(TCursor cursor) const;

    /** False when there is no room for the digit. */
    bool Digitar(QChar digito, TCursor &cursor);
    /** Removes what stands in a range of the shown text; the caret goes where it stood. */
    TCursor Remover(const QString &exibido, int inicio, int fim);
    /** One digit before the caret, or the sign; false when there is none. */
    bool ApagarAnterior(TCursor &cursor);
    /** One digit behind the caret; false when there is none. */
    bool ApagarSeguinte(TCursor &cursor);

    bool Negativo = false;
    QString Inteiro;
    QString Decimais;

private:
    void Normalizar();
    int DigitosAEsquerda(TCursor cursor) const;

    TFormatoNumerico formato;
};

} // namespace ficha
