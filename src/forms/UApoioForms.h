#pragma once

#include <QPointer>
#include <QWidget>

namespace ficha
{

/** Sets a flag of an object and brings its earlier value back, if the object is still there. */
template <typename T>
class TFlagGuarda
{
public:
    TFlagGuarda(T *doDono, bool T::*doFlag, bool valor)
        : dono(doDono), flag(doFlag), antes(doDono->*doFlag)
    {
        doDono->*flag = valor;
    }
    ~TFlagGuarda()
    {
        if (dono)
            dono->*flag = antes;
    }
    TFlagGuarda(const TFlagGuarda &) = delete;
    TFlagGuarda &operator=(const TFlagGuarda &) = delete;

private:
    QPointer<T> dono;
    bool T::*flag;
    bool antes;
};

/** The widget's own switch, whatever page or window around it is hidden. */
bool EstaVisivel(const QWidget *w);
/** Whether the active control of the widget's window is the widget or inside it. */
bool FocoDentroDe(const QWidget *w);

} // namespace ficha
