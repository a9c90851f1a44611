#pragma once

#include "input/UComboBoxBasFr.h"

class QPushButton;

namespace ficha
{

/**
 * A choice stored as one character, the item's index + 33: "!" is the first item, a blank is none.
 *
 * What the user picks does not stay: the change handler hands the number, not the character, to
 * SetValor, which reads its first digit. That is kept; screens that need a one-character choice
 * use the radio group.
 */
class TComboBoxCharBasFr : public TComboBoxBasFr
{
    Q_OBJECT

public:
    explicit TComboBoxCharBasFr(TChave chave);

    /** A text of one character. */
    Variant GetValor() const override;
    /** Selects by the first character of the value's text; Null, the empty text and a character
     * beyond the items select nothing. */
    void SetValor(const Variant &valor) override;
    /** The character, quoted. */
    QString SQLString() const override;

    /** For the screen to use; nothing is attached to it here. */
    QPushButton *EditButton = nullptr;

protected:
    void PegarComponentes() override;
    void ComboBox1Change(QObject *sender) override;
};

} // namespace ficha
