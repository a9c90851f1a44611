#include "platform/toolkit/TCheckBox.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QMouseEvent>
#include <QPointer>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TCheckBox)

TCheckBox::TCheckBox(QWidget *owner) : QCheckBox(owner)
{
    Ligar(this, &QCheckBox::clicked, this, [this] { Disparar(OnClick, this); });
}

void TCheckBox::mousePressEvent(QMouseEvent *evento)
{
    const QPointer<TCheckBox> vivo(this);
    Disparar(OnMouseDown, this, evento);
    if (vivo)
        QCheckBox::mousePressEvent(evento);
}

} // namespace ficha
