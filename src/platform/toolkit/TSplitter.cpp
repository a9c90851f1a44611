#include "platform/toolkit/TSplitter.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QMouseEvent>
#include <QPainter>
#include <qdrawutil.h>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TSplitter)

TSplitter::TSplitter(QWidget *owner) : QWidget(owner)
{
    setCursor(Qt::SplitHCursor);
    setFocusPolicy(Qt::NoFocus);
    resize(3, 100);
}

void TSplitter::SetBeveled(bool v)
{
    beveled = v;
    update();
}

void TSplitter::SetMinSize(int pixels)
{
    minSize = std::max(0, pixels);
}

void TSplitter::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    pintor.fillRect(rect(), palette().window());
    if (beveled)
        qDrawShadePanel(&pintor, rect(), palette(), false, 1);
}

void TSplitter::mousePressEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton)
        return;
    arrastado = Vizinho();
    larguraInicial = arrastado ? arrastado->width() : 0;
    xInicial = evento->globalPosition().toPoint().x();
}

void TSplitter::mouseMoveEvent(QMouseEvent *evento)
{
    if (!arrastado || !(evento->buttons() & Qt::LeftButton))
        return;
    const int andou = evento->globalPosition().toPoint().x() - xInicial;
    // A press that trembles is no drag, wherever the control stands.
    if (andou != 0 || arrastado->width() != larguraInicial)
        arrastado->resize(LarguraPara(larguraInicial + andou), arrastado->height());
}

void TSplitter::mouseReleaseEvent(QMouseEvent *evento)
{
    if (evento->button() != Qt::LeftButton || !arrastado)
        return;
    const bool mudou = arrastado->width() != larguraInicial;
    arrastado = nullptr;
    if (mudou)
        Disparar(OnMoved, this);
}

/** The control whose right edge the bar touches. */
QWidget *TSplitter::Vizinho() const
{
    const QWidget *pai = parentWidget();
    if (!pai)
        return nullptr;
    for (QWidget *w : pai->findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const bool aoLado = w->x() + w->width() == x() && w->y() <= y() + height() / 2 &&
                            w->y() + w->height() > y() + height() / 2;
        if (w != this && w->isVisible() && !w->isWindow() && aoLado)
            return w;
    }
    return nullptr;
}

int TSplitter::LarguraPara(int pedida) const
{
    if (autoSnap && pedida < minSize)
        return 0;
    const int resta = parentWidget()->contentsRect().right() + 1 - arrastado->x() - width();
    return std::max(minSize, std::min(pedida, resta - minSize));
}

} // namespace ficha
