#pragma once

#include <QObject>

namespace ficha
{

class TImageList;

/**
 * The tool-bar pictures of the maintenance screens, in two sizes, each with its disabled forms:
 * 2 first record, 3 prior, 4 next, 5 last, 9 undo, 10 confirm.
 */
class TTabLinearD : public QObject
{
    Q_OBJECT

public:
    explicit TTabLinearD(QObject *owner = nullptr);

    /** 24 x 24; owned, like all of them. */
    TImageList *BarraImageList;
    TImageList *BarraDisImageList;
    /** 16 x 16: the navigation bar and the maintenance screens' actions. */
    TImageList *BarraImageList16;
    TImageList *BarraDisImageList16;
};

/** The one instance of the process; null outside the life of TFicha. */
extern TTabLinearD *TabLinearD;

} // namespace ficha
