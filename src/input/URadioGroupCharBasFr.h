#pragma once

#include "input/URadioGroupBasFr.h"

namespace ficha
{

/** An option stored as one character, its index + 33: "!" is the first. A blank is none. */
class TRadioGroupCharBasFr : public TRadioGroupBasFr
{
    Q_OBJECT

public:
    explicit TRadioGroupCharBasFr(TChave chave);

    /** A text of one character. */
    Variant GetValor() const override;
    /** Selects by the first character of the value's text, brought into the options: the blank,
     * Null and the empty text select the first one, a character beyond the last the last one. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and selects the first option. */
    void Zerar() override;
    /** The character, quoted. */
    QString SQLString() const override;
};

} // namespace ficha
