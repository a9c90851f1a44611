#pragma once

#include "platform/edits/TDocEditBR.h"

namespace ficha
{

/** The taxpayer number of a person: eleven digits, shown 000.000.000-00. */
class TCPFEditBR : public TDocEditBR
{
    Q_OBJECT

public:
    explicit TCPFEditBR(QWidget *owner = nullptr);

    /** Eleven digits, not one repeated, with their check digits right. */
    bool Valido() const override;
};

} // namespace ficha
