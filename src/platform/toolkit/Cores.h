#pragma once

#include "platform/core/TColor.h"

#include <QPalette>

class QWidget;

namespace ficha
{

/** The colour a widget paints a role with while it is enabled. */
TColor CorDoWidget(const QWidget &widget, QPalette::ColorRole papel);
/** Sets it, leaving the look of the disabled widget alone; writes nothing when it is so already. */
void SetCorDoWidget(QWidget &widget, QPalette::ColorRole papel, TColor cor);

} // namespace ficha
