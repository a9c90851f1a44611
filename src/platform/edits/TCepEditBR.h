#pragma once

#include "platform/edits/TDocEditBR.h"

namespace ficha
{

/** A postal code: eight digits, shown 00000-000. */
class TCepEditBR : public TDocEditBR
{
    Q_OBJECT

public:
    explicit TCepEditBR(QWidget *owner = nullptr);

    /** Eight digits: a CEP has no check digit. */
    bool Valido() const override;
};

} // namespace ficha
