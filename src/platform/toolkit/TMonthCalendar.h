#pragma once

#include "platform/core/TDateTime.h"

#include <QCalendarWidget>

#include <functional>

class QKeyEvent;
class QMouseEvent;
class QTableView;

namespace ficha
{

/**
 * A month calendar with one selected day. Names are Portuguese, weeks start on Sunday; the years
 * are 1 to 9999. Fresh, it stands on today, and today (of the library's clock) has a red frame.
 *
 * The arrows move by days and weeks, PgUp and PgDn by months, Ctrl+PgUp and Ctrl+PgDn by years, and
 * Home and End go to the first and last day of the month. The wheel, the two arrow buttons, the
 * month's menu and the year's edit turn the page, and the selected day goes along: what is selected
 * is always in sight. Enter and Esc are the form's.
 */
class TMonthCalendar : public QCalendarWidget
{
    Q_OBJECT
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TMonthCalendar(QWidget *owner = nullptr);

    /** The selected day, at midnight. */
    TDateTime GetDate() const { return TDateTime(selectedDate()); }
    /** The time of day is dropped, a day outside the years becomes the nearest inside. Shows the
     * month; announces nothing. */
    void SetDate(TDateTime dia);
    /** Hides QCalendarWidget's, which announces. */
    void setSelectedDate(QDate dia);

    /** The user selected another day, by mouse or keyboard, or by turning the page. */
    std::function<void(QObject *)> OnClick;
    /** The user clicked twice on the selected day. */
    std::function<void(QObject *)> OnDblClick;

    int Tag = 0;

protected:
    void paintCell(QPainter *pintor, const QRect &area, QDate dia) const override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void ArrumarBarra();
    bool TeclaNaGrade(QKeyEvent &evento);
    bool CliqueDuplo(const QMouseEvent &evento);
    void PaginaVirada();
    void Escolhido();

    QTableView *grade = nullptr;
    QWidget *anoEdit = nullptr;
    bool calado = false;
};

} // namespace ficha
