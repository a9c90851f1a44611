#pragma once

#include "input/URadioGroupBasFr.h"

namespace ficha
{

/** An option stored as an integer, its index + 1; 0 is none. */
class TRadioGroupCodBasFr : public TRadioGroupBasFr
{
    Q_OBJECT

public:
    explicit TRadioGroupCodBasFr(TChave chave);

    Variant GetValor() const override;
    /** Selects option value - 1, rounded, halves to even. Null and a number that is no option's
     * select nothing; EVariantError for a text that is no number. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and selects the first option. */
    void Zerar() override;
    /** The number in decimal, unquoted. */
    QString SQLString() const override;
};

} // namespace ficha
