#pragma once

#include "input/ULabeledEditBasFr.h"

namespace ficha
{

/**
 * A whole number with an optional lower and upper bound. Fresh, it refuses negative numbers and
 * has no upper bound.
 *
 * What the program sets is clamped into the bounds silently; what the user types is refused on
 * leaving. So is a number that 32 bits do not hold, bounds or not, before the database is asked
 * about it.
 */
class TLabeledEditIntegerBasFr : public TLabeledEditBasFr
{
    Q_OBJECT
    Q_PROPERTY(bool TemMinimo MEMBER TemMinimo)
    Q_PROPERTY(bool TemMaximo MEMBER TemMaximo)
    Q_PROPERTY(int Minimo MEMBER Minimo)
    Q_PROPERTY(int Maximo MEMBER Maximo)

public:
    explicit TLabeledEditIntegerBasFr(TChave chave);

    /** The text reduced to a whole number, as a text; "0" when there is none. */
    Variant GetValor() const override;
    /** Shows the whole number in the value's text, clamped; Null is 0. Where the bounds
     * contradict each other the upper one holds. */
    void SetValor(const Variant &valor) override;
    /** The lower bound where there is one; else empties the edit and switches the phrases off. */
    void Zerar() override;
    bool ValorAceitavel() override;
    /** The number in decimal; EVariantError when 32 bits do not hold it. */
    QString AsString() const override;

    /** The number as a one-character literal: the character of code n + 32, quoted. */
    QString SQLStrChar() const;

    bool TemMinimo = true;
    bool TemMaximo = false;
    /** Bounds, themselves included. */
    int Minimo = 0;
    int Maximo = 0;

protected:
    /** Refreshes once more after the inherited handler. */
    void LabeledEdit1Change(QObject *sender) override;

private:
    bool AbaixoDoMinimo() const;
    bool AcimaDoMaximo() const;
};

} // namespace ficha
