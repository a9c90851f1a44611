#pragma once

#include "platform/hostforms/TDiagMontCalendarBasF.h"

class QLabel;

namespace ficha
{

/**
 * A borderless dialog for one date, opened beside a date frame. Enter, OK and two clicks on a day
 * confirm, Esc cancels.
 *
 * It has no behaviour of its own: the opener places it, sets the text of TitLab and the calendar's
 * date (which is today at the start), runs it, and reads the calendar's date when the user
 * confirmed.
 */
class TDataSelectF : public TDiagMontCalendarBasF
{
    Q_OBJECT

public:
    explicit TDataSelectF(TChave chave);

    QLabel *TitLab = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
