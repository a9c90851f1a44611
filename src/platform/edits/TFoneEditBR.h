#pragma once

#include "platform/edits/TEditFormatadoBR.h"

namespace ficha
{

/**
 * A telephone number without area code: eight digits shown NNNN-NNNN (fixed lines) or nine shown
 * NNNNN-NNNN (mobiles, which begin with 9). See TEditFormatadoBR for the keys; maxLength 10.
 *
 * A text of the program that holds eight or nine digits is shown so; any other (an extension, a
 * free-call number) is kept as it is. A pasted text may have hyphen, dots, blanks and parentheses;
 * one that is no number of at most nine digits is refused whole with a warning.
 *
 * AutoExit leaves at the eighth digit of a number that begins with 2 to 5 (a fixed line), at the
 * ninth of any other. Enter is left to the screen.
 */
class TFoneEditBR : public TEditFormatadoBR
{
    Q_OBJECT

public:
    explicit TFoneEditBR(QWidget *owner = nullptr);

    /** The digits of the text. */
    QString SoDigitos() const;

protected:
    std::optional<QString> SemSeparadores(const QString &texto) const override;
    QString Formatar(const QString &nu) const override;
    bool TemLugar(const QString &nu) const override;
    bool Completo(const QString &nu) const override;
    bool FormataDoPrograma(const QString &texto) const override;
    QString RecusaDaColagem(const QString &texto) const override;
};

} // namespace ficha
