#pragma once

#include "input/UNumEditBRBasFr.h"

namespace ficha
{

class TUpDown;

/** A number with a spin button that steps it. A step is the user's edit and starts an alteration.
 */
class TUpDownBRFr : public TNumEditBRBasFr
{
    Q_OBJECT

public:
    explicit TUpDownBRFr(TChave chave);

    void Create(QWidget *owner) override;

    /** The spin button stands on the value as it was given, unclamped by the bounds (kept as it
     * is), at the nearest number that 16 bits hold. */
    void SetValor(const Variant &valor) override;

    TUpDown *UpDown1 = nullptr;

protected:
    void PegarComponentes() override;
    /** The user stepped the number. */
    virtual void UpDown1Click(QObject *sender, bool paraCima);
};

} // namespace ficha
