#include "platform/hostforms/TDiagMontCalendarBasF.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TMonthCalendar.h"

namespace ficha
{

FICHA_REGISTRAR(TDiagMontCalendarBasF)

TDiagMontCalendarBasF::TDiagMontCalendarBasF(TChave chave) : TDiagBitBtnBasF(chave) {}

void TDiagMontCalendarBasF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, MonthCalendar1, "MonthCalendar1");
    MonthCalendar1->OnDblClick = [this](QObject *sender) { OkClick(sender); };
}

} // namespace ficha
