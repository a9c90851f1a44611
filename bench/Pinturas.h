#pragma once

#include <QPaintEvent>
#include <QWidget>

namespace bancada
{

/** Watches the paintings of a widget, which owns it: a list that nobody painted was not shown. */
class TPinturas : public QObject
{
public:
    explicit TPinturas(QWidget *de) : QObject(de) { de->installEventFilter(this); }

    int Quantas = 0;
    /** Of the last one. */
    QRegion Area;

    bool eventFilter(QObject *, QEvent *evento) override
    {
        if (evento->type() == QEvent::Paint) {
            ++Quantas;
            Area = static_cast<QPaintEvent *>(evento)->region();
        }
        return false;
    }
};

} // namespace bancada
