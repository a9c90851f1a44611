#include "platform/toolkit/Cores.h"

#include <QWidget>

namespace ficha
{

TColor CorDoWidget(const QWidget &widget, QPalette::ColorRole papel)
{
    return TColor::DeQColor(widget.palette().color(QPalette::Active, papel));
}

void SetCorDoWidget(QWidget &widget, QPalette::ColorRole papel, TColor cor)
{
    QPalette paleta = widget.palette();
    const QColor nova = cor.ParaQColor();
    const bool propria = widget.testAttribute(Qt::WA_SetPalette);
    if (propria && paleta.color(QPalette::Active, papel) == nova)
        return;
    paleta.setColor(QPalette::Active, papel, nova);
    paleta.setColor(QPalette::Inactive, papel, nova);
    widget.setPalette(paleta);
}

} // namespace ficha
