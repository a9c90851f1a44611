#pragma once

#include <QObject>

namespace ficha
{

class TImageList;

/**
 * The image module that serves a host which brings none of its own: TFicha puts its lists into
 * SisD() where they are missing.
 *
 * Indices at 16 pixels: 1 enlarge, 2 and 10 confirm, 3 cancel, 9 and 17 undo, 16 a blank sheet (the
 * fields page, clearing a picture), 18 find a picture, 19 printer set-up, 20 print, 29 list page,
 * 30 delete, 45 insert, 46 alter, 49 search, 50 filter, 51 reports page, 52 upkeep page; of date
 * ranges 31 up to today, 32 from today on, 33 seven days, 34 today, 35 a month, 36 four weeks, 37
 * all. Markers: 8 and 9 the sort arrows, 25 collapsed, 26 expanded.
 */
class TImgD : public QObject
{
    Q_OBJECT

public:
    explicit TImgD(QObject *owner = nullptr);
    /** Takes its lists out of SisD() again. */
    ~TImgD() override;

    /** Puts the lists into SisD() where it has none. */
    void Instalar();

    /** 16 x 16; owned, like all of them. */
    TImageList *ImageList16;
    TImageList *DisImageList16;
    /** Markers of grids and trees. */
    TImageList *ImageList;
};

} // namespace ficha
