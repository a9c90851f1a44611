#include "platform/toolkit/TMonthCalendar.h"

#include "platform/core/Relogio.h"
#include "platform/core/TColor.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QTextCharFormat>
#include <QToolButton>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TMonthCalendar)

namespace
{

constexpr TColor Vermelho = TColor::DeRGB(184, 56, 47);

/** Paints the names of the weekdays with three letters, uncut in columns of 20 pixels; the days are
 * painted as before. */
class TPinturaDaGrade : public QStyledItemDelegate
{
public:
    TPinturaDaGrade(QAbstractItemDelegate *dosDias_, QObject *dono)
        : QStyledItemDelegate(dono), dosDias(dosDias_)
    {
    }

    void paint(QPainter *pintor, const QStyleOptionViewItem &opcao,
               const QModelIndex &indice) const override
    {
        if (indice.row() > 0) {
            dosDias->paint(pintor, opcao, indice);
            return;
        }
        constexpr int Letras = 3;
        pintor->fillRect(opcao.rect, opcao.palette.brush(QPalette::Window));
        pintor->setPen(indice.column() == 0 ? Vermelho.ParaQColor()
                                            : opcao.palette.color(QPalette::WindowText));
        pintor->drawText(opcao.rect, Qt::AlignCenter, indice.data().toString().left(Letras));
    }

private:
    QAbstractItemDelegate *dosDias;
};

} // namespace

TMonthCalendar::TMonthCalendar(QWidget *owner) : QCalendarWidget(owner)
{
    constexpr int UltimoAno = 9999;
    setLocale(QLocale(QLocale::Portuguese, QLocale::Brazil));
    setFirstDayOfWeek(Qt::Sunday);
    setVerticalHeaderFormat(NoVerticalHeader);
    setHorizontalHeaderFormat(ShortDayNames);
    // A digit is no command here: dates are typed in the edits beside the calendars.
    setDateEditEnabled(false);
    setDateRange(QDate(1, 1, 1), QDate(UltimoAno, 12, 31));
    grade = findChild<QTableView *>();
    anoEdit = findChild<QSpinBox *>();
    Q_ASSERT_X(grade && anoEdit, "TMonthCalendar", "the toolkit's calendar has other parts");
    grade->setItemDelegate(new TPinturaDaGrade(grade->itemDelegate(), this));
    grade->installEventFilter(this);
    grade->viewport()->installEventFilter(this);
    anoEdit->installEventFilter(this);
    ArrumarBarra();
    SetDate(Hoje());
    Ligar(this, &QCalendarWidget::selectionChanged, this, [this] { Escolhido(); });
    Ligar(this, &QCalendarWidget::currentPageChanged, this, [this] { PaginaVirada(); });
}

void TMonthCalendar::SetDate(TDateTime dia)
{
    setSelectedDate(dia.Data());
}

void TMonthCalendar::setSelectedDate(QDate dia)
{
    const QScopedValueRollback guarda(calado, true);
    QCalendarWidget::setSelectedDate(std::clamp(dia, minimumDate(), maximumDate()));
}

void TMonthCalendar::paintCell(QPainter *pintor, const QRect &area, QDate dia) const
{
    const QPalette &cores = palette();
    const bool escolhido = dia == selectedDate();
    const bool desteMes = dia.month() == monthShown() && dia.year() == yearShown();
    pintor->save();
    pintor->fillRect(area, cores.brush(QPalette::Base));
    QColor letra =
        dia.dayOfWeek() == Qt::Sunday ? Vermelho.ParaQColor() : cores.color(QPalette::Text);
    if (!desteMes || !isEnabled())
        letra = cores.color(QPalette::Disabled, QPalette::Text);
    if (escolhido && grade->hasFocus()) {
        pintor->fillRect(area, cores.brush(QPalette::Highlight));
        letra = cores.color(QPalette::HighlightedText);
    } else if (escolhido) {
        // Without the focus the day is marked more softly: one sees where the keys go.
        QColor suave = cores.color(QPalette::Highlight);
        suave.setAlphaF(0.3F);
        pintor->fillRect(area, suave);
    }
    if (TDateTime(dia) == Hoje()) {
        pintor->setPen(Vermelho.ParaQColor());
        pintor->drawRect(area.adjusted(0, 0, -1, -1));
    }
    pintor->setPen(letra);
    pintor->drawText(area, Qt::AlignCenter, QString::number(dia.day()));
    pintor->restore();
}

bool TMonthCalendar::eventFilter(QObject *objeto, QEvent *evento)
{
    const bool tecla = evento->type() == QEvent::KeyPress;
    if (tecla && objeto == grade)
        return TeclaNaGrade(static_cast<QKeyEvent &>(*evento));
    if (tecla && objeto == anoEdit) {
        const int qual = static_cast<QKeyEvent *>(evento)->key();
        if (qual == Qt::Key_Return || qual == Qt::Key_Enter) {
            // Ends the editing of the year, not the form.
            setFocus();
            return true;
        }
    }
    if (evento->type() == QEvent::MouseButtonDblClick && objeto == grade->viewport())
        return CliqueDuplo(static_cast<const QMouseEvent &>(*evento));
    return QCalendarWidget::eventFilter(objeto, evento);
}

/** The buttons that turn the page. */
void TMonthCalendar::ArrumarBarra()
{
    const auto arrumar = [this](const char *nome, Qt::ArrowType seta, const QString &dica) {
        auto *botao = findChild<QToolButton *>(QLatin1String(nome));
        if (!botao)
            return;
        botao->setArrowType(seta);
        botao->setToolTip(dica);
    };
    arrumar("qt_calendar_prevmonth", Qt::LeftArrow, QStringLiteral("Mês anterior"));
    arrumar("qt_calendar_nextmonth", Qt::RightArrow, QStringLiteral("Mês seguinte"));
    arrumar("qt_calendar_monthbutton", Qt::NoArrow, QStringLiteral("Escolher o mês"));
    arrumar("qt_calendar_yearbutton", Qt::NoArrow, QStringLiteral("Escolher o ano"));
}

/** True for the keys that the grid does not see. */
bool TMonthCalendar::TeclaNaGrade(QKeyEvent &evento)
{
    constexpr int UmAno = 12;
    const int tecla = evento.key();
    if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
        evento.ignore(); // goes on to the form
        return true;
    }
    const bool porAno = evento.modifiers() == Qt::ControlModifier &&
                        (tecla == Qt::Key_PageUp || tecla == Qt::Key_PageDown);
    if (porAno)
        QCalendarWidget::setSelectedDate(
            selectedDate().addMonths(tecla == Qt::Key_PageUp ? -UmAno : UmAno));
    return porAno;
}

/** On the selected day only: the first of two clicks on a day of another month turns the page, and
 * the second then falls on a day that nobody chose. */
bool TMonthCalendar::CliqueDuplo(const QMouseEvent &evento)
{
    const QModelIndex dia = grade->indexAt(evento.position().toPoint());
    const bool noDia =
        evento.button() == Qt::LeftButton && dia.isValid() && dia == grade->currentIndex();
    if (noDia)
        Disparar(OnDblClick, this);
    return true;
}

/** The selected day goes to the month that is shown now. */
void TMonthCalendar::PaginaVirada()
{
    const QDate atual = selectedDate();
    const QDate primeiro(yearShown(), monthShown(), 1);
    if (atual.year() == primeiro.year() && atual.month() == primeiro.month())
        return;
    const int dia = std::min(atual.day(), primeiro.daysInMonth());
    QCalendarWidget::setSelectedDate(primeiro.addDays(dia - 1));
}

void TMonthCalendar::Escolhido()
{
    if (!calado)
        Disparar(OnClick, this);
}

} // namespace ficha
