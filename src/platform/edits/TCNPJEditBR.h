#pragma once

#include "platform/edits/TDocEditBR.h"

namespace ficha
{

/**
 * The taxpayer number of a company: twelve digits or letters and two digits, shown
 * SS.SSS.SSS/SSSS-00. Letters turn to capitals as they are typed.
 */
class TCNPJEditBR : public TDocEditBR
{
    Q_OBJECT

public:
    explicit TCNPJEditBR(QWidget *owner = nullptr);

    /** Fourteen characters, not all zeros, with their check digits right. */
    bool Valido() const override;
};

} // namespace ficha
