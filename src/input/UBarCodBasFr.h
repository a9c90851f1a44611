#pragma once

#include "input/ULabeledEditTextoBasFr.h"

namespace ficha
{

/**
 * The bar code of a product: digits only, its check digit right, unique in its column. May stay
 * empty unless AceitaVazio says otherwise.
 *
 * Keys that type anything but a digit are ignored. A pasted or dropped text may have blanks,
 * hyphens and dots between its digits, which are dropped; one with anything else in it, or with
 * more digits than fit, is refused whole with a warning. The edit starts with room for 13 digits;
 * a screen that takes codes of 14 sets its maximum length.
 */
class TBarCodBasFr : public TLabeledEditTextoBasFr
{
    Q_OBJECT
    /** The check digit is verified. */
    Q_PROPERTY(bool ValidarCodBar MEMBER ValidarCodBar)

public:
    explicit TBarCodBasFr(TChave chave);

    /** Adds phrase 3, "Cód.Bar. inválido", and switches uniqueness on. */
    void Create(QWidget *owner) override;

    /** The inherited checks, then the check digit. What the program set and is not made of digits
     * is an invalid code like any other. */
    bool ValorAceitavel() override;

    bool ValidarCodBar = true;

protected:
    void LabeledEdit1KeyPress(QObject *sender, QChar &caractere) override;
    /** Brings a pasted text to its digits; answers why it is refused. */
    virtual QString LabeledEdit1Colar(QString &texto);
};

} // namespace ficha
