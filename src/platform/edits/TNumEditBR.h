#pragma once

#include "platform/core/Variant.h"
#include "platform/edits/TTextoNumerico.h"
#include "platform/toolkit/TLabeledEdit.h"

namespace ficha
{

/**
 * An edit that always holds a number, in Brazilian notation: comma before the decimals, points
 * between thousands where MascEsq has them, both kept right on every key with the caret staying at
 * its digit.
 *
 * The number is exact: it is kept as its digits, never as a double. The user can type 15 digits in
 * all; the program may set up to 18. Emptied, it is 0 ("0", "0,00").
 *
 * Keys: a digit is inserted before the comma and typed over behind it; the comma, and the point of
 * the numeric keypad, go behind the comma; the point of the letter keys is ignored, grouping
 * comes by itself; "-" turns the sign wherever the caret is (over a full selection it starts a new
 * negative number; "-0" becomes "0" on leaving), "+" takes it away. Backspace and Delete pass over
 * separators. All else is ignored. Entering by Tab or from the program selects everything.
 *
 * Pasting: see LerDecimal for what is read as a number. Bare digits are inserted as if typed; a
 * text with sign or separators replaces the number. What is no number, has too many digits or more
 * decimals than the edit is refused whole with a warning.
 */
class TNumEditBR : public TLabeledEdit
{
    Q_OBJECT
    Q_PROPERTY(int NCasas READ GetNCasas WRITE SetNCasas)
    Q_PROPERTY(int NCasasEsq READ GetNCasasEsq WRITE SetNCasasEsq)
    Q_PROPERTY(QString MascEsq READ GetMascEsq WRITE SetMascEsq)
    Q_PROPERTY(bool AutoExit READ GetAutoExit WRITE SetAutoExit)
    Q_PROPERTY(double Valor READ GetValor WRITE SetValor USER true)

public:
    explicit TNumEditBR(QWidget *owner = nullptr);

    /** A number as LerDecimal reads it, rounded to the edit's places; an empty text is 0. Raises
     * EVariantError for any other text, and for more than 18 digits; the number then stays. */
    void SetText(const QString &texto) override;

    double GetValor() const;
    /** Rounded to the edit's places, halves away from zero, by the number's 15 significant digits
     * (1.005 is 1,01). EVariantError for what has more than 18 digits or is no number. */
    void SetValor(double valor);
    /** The number as an integer count of its last place: 1.234,56 is 123456. Exact. */
    std::int64_t GetEscalado() const;
    void SetEscalado(std::int64_t escalado);

    /** Null and unassigned are 0, texts as in SetText, a date is its day number. */
    virtual void SetValorVariant(const Variant &valor);
    /** An integer when there are no decimals and it fits in 32 bits, else a double. */
    virtual Variant GetValorVariant() const;
    /** The number for an SQL text: decimal point, all decimals, no grouping. */
    virtual QString SQLText() const;

    /** Decimal places, 0..9. The number stays, rounded. */
    int GetNCasas() const { return formato.Casas; }
    void SetNCasas(int n);
    /** Most digits of the integer part; 0 is as many as fit. Binds the user only. */
    int GetNCasasEsq() const { return formato.CasasEsq; }
    void SetNCasasEsq(int n);
    /** How the integer part is written; default "###,###,##0". */
    const QString &GetMascEsq() const { return mascEsq; }
    void SetMascEsq(const QString &mascara);
    /** Enter moves to the next control in tab order; so does, where NCasasEsq is set, typing the
     * last digit that fits at the end of the number. Default false. */
    bool GetAutoExit() const { return autoExit; }
    void SetAutoExit(bool v) { autoExit = v; }

protected:
    bool TemMotor() const override { return true; }
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    TResposta Apagar(const TEstado &antes, TApagar modo) override;
    QString TextoDaTecla(const QKeyEvent &evento) const override;
    void AposDigitar() override;
    void TextoDeFora(const QString &texto) override;

    void keyPressEvent(QKeyEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

private:
    void SetDecimal(const TDecimal &decimal);
    void Reescrever();
    TResposta DigitarTecla(const TEstado &antes, QChar tecla) const;
    TResposta Sinal(const TEstado &antes, bool menos) const;
    TResposta Colar(const TEstado &antes, const QString &texto) const;
    TResposta ColarDigitos(const TEstado &antes, const QString &digitos) const;

    TFormatoNumerico formato;
    QString mascEsq;
    /** What the program set, before rounding, and the text it gave: layouts may set the number
     * before the places. */
    TDecimal original;
    QString textoDoOriginal;
    bool autoExit = false;
};

} // namespace ficha
