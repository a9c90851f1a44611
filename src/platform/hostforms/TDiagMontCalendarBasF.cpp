#include "platform/hostforms/TDiagMontCalendarBasF.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QCalendarWidget>

namespace ficha
{

FICHA_REGISTRAR(TDiagMontCalendarBasF)

TDiagMontCalendarBasF::TDiagMontCalendarBasF(TChave chave) : TDiagBitBtnBasF(chave) {}

void TDiagMontCalendarBasF::PegarComponentes()
{
    TDiagBitBtnBasF::PegarComponentes();
    Pegar(this, MonthCalendar1, "MonthCalendar1");
    MonthCalendar1->setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Ligar(MonthCalendar1, &QCalendarWidget::activated, this, [this] { OkClick(MonthCalendar1); });
}

} // namespace ficha
