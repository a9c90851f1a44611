#pragma once

#include "platform/hostforms/TDiagBitBtnBasF.h"

class QCalendarWidget;

namespace ficha
{

/** The host's dialog with a month calendar. A double click on a day is OK. */
class TDiagMontCalendarBasF : public TDiagBitBtnBasF
{
    Q_OBJECT

public:
    explicit TDiagMontCalendarBasF(TChave chave);

    QCalendarWidget *MonthCalendar1 = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
