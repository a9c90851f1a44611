#pragma once

#include "platform/toolkit/TLabeledEdit.h"

namespace ficha
{

/**
 * A telephone number without area code: eight digits shown NNNN-NNNN (fixed lines) or nine shown
 * NNNNN-NNNN (mobiles, which begin with 9).
 *
 * The user types digits, the hyphen comes by itself and is part of the text. A text of the program
 * that holds eight or nine digits is shown so; any other (an extension, a free-call number) is kept
 * as it is, and the user can then only shorten it or type over it until it is a number. A pasted
 * text may have hyphen, dots, blanks and parentheses; one that is no number of at most nine digits
 * is refused whole with a warning.
 */
class TFoneEditBR : public TLabeledEdit
{
    Q_OBJECT
    Q_PROPERTY(bool AutoExit READ GetAutoExit WRITE SetAutoExit)

public:
    explicit TFoneEditBR(QWidget *owner = nullptr);

    void SetText(const QString &texto) override;
    /** The digits of the text. */
    QString SoDigitos() const;

    /**
     * Typing the last digit at the end of the number moves to the next control: the eighth of a
     * number that begins with 2 to 5 (a fixed line), the ninth of any other. Default false. Enter
     * is left to the screen.
     */
    bool GetAutoExit() const { return autoExit; }
    void SetAutoExit(bool v) { autoExit = v; }

protected:
    bool TemMotor() const override { return true; }
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    TResposta Apagar(const TEstado &antes, TApagar modo) override;
    void AposDigitar() override;
    void TextoDeFora(const QString &texto) override;

private:
    bool CabeNoEdit(const QString &digitos) const;

    bool autoExit = false;
};

} // namespace ficha
