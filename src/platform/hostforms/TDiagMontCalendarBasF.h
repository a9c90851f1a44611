#pragma once

#include "platform/hostforms/TDiagBitBtnBasF.h"

namespace ficha
{

class TMonthCalendar;

/** The host's dialog with a month calendar. A double click on a day is OK. */
class TDiagMontCalendarBasF : public TDiagBitBtnBasF
{
    Q_OBJECT

public:
    explicit TDiagMontCalendarBasF(TChave chave);

    TMonthCalendar *MonthCalendar1 = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
