#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TGroupBox;
class TLabeledEditTextoBasFr;

/**
 * A name, required, and its short form, optional. No value frame: screens bind the two inputs.
 *
 * Leaving the name while the short name is empty proposes the name, whole, for the short one, also
 * where it is longer than the short name's maximum length. That length switches the proposal on: it
 * starts at 30, and at 0 (none) nothing is proposed. Nor is it for a record that is only being
 * looked at (the short name's table idle).
 */
class TNomeBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TNomeBasFr(TChave chave);

    /** Makes the name required. */
    void Create(QWidget *owner) override;

    TGroupBox *GroupBox1 = nullptr;
    TLabeledEditTextoBasFr *NomeLabeledEditTextoBasFr = nullptr;
    TLabeledEditTextoBasFr *MenorEditTextoBasFr = nullptr;

protected:
    void PegarComponentes() override;
    /** The name was left: proposes the short one. Runs before the name's own check. */
    virtual void NomeLabeledEditTextoBasFrLabeledEdit1Exit(QObject *sender);
};

} // namespace ficha
