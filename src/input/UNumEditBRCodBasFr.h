#pragma once

#include "input/UNumEditBRBasFr.h"

namespace ficha
{

/**
 * The code of a record as a number: unique, bold, centred. In a bound frame the colour of the
 * digits tells whether the code can be typed; that is decided outside this frame.
 */
class TNumEditBRCodBasFr : public TNumEditBRBasFr
{
    Q_OBJECT

public:
    explicit TNumEditBRCodBasFr(TChave chave);

    /** Brown digits while the edit is read-only, else maroon; only in a bound frame. */
    void Atualizar() override;

protected:
    void NumEditBR1Change(QObject *sender) override;
};

} // namespace ficha
