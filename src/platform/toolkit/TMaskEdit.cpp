#include "platform/toolkit/TMaskEdit.h"

#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TMaskEdit)

TMaskEdit::TMaskEdit(QWidget *owner) : TCustomMaskEdit(owner) {}

} // namespace ficha
