#pragma once

#include <QObject>

namespace ficha
{

class TImageList;

/** The tool-bar pictures of the grid frames: 0 print, 1 insert, 2 alter, 3 delete. */
class TImg16D : public QObject
{
    Q_OBJECT

public:
    explicit TImg16D(QObject *owner = nullptr);

    /** 16 x 16; owned. */
    TImageList *ImageList16;
};

/** The one instance of the process; null outside the life of TFicha. */
extern TImg16D *Img16D;

} // namespace ficha
