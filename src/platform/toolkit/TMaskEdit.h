#pragma once

#include "platform/toolkit/TCustomMaskEdit.h"

namespace ficha
{

/** The toolkit's mask edit. */
class TMaskEdit : public TCustomMaskEdit
{
    Q_OBJECT

public:
    explicit TMaskEdit(QWidget *owner = nullptr);
};

} // namespace ficha
