#include "platform/toolkit/TRadioButton.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TRadioButton)

TRadioButton::TRadioButton(QWidget *owner) : QRadioButton(owner)
{
    Ligar(this, &QRadioButton::toggled, this, [this](bool marcado) {
        if (marcado && OnClick)
            OnClick(this);
    });
}

void TRadioButton::SetChecked(bool v)
{
    // While it excludes the others the toolkit refuses to uncheck the checked one.
    if (!v)
        setAutoExclusive(false);
    setChecked(v);
    setAutoExclusive(true);
}

} // namespace ficha
