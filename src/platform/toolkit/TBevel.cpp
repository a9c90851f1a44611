#include "platform/toolkit/TBevel.h"

#include "platform/toolkit/Layout.h"

#include <QPainter>
#include <qdrawutil.h>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TBevel)

TBevel::TBevel(QWidget *owner) : QWidget(owner)
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    resize(50, 50);
}

void TBevel::SetShape(Shape v)
{
    forma = v;
    update();
}

void TBevel::SetStyle(Style v)
{
    estilo = v;
    update();
}

void TBevel::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    const bool baixo = estilo == bsLowered;
    const QRect r = rect();
    // A groove or a ridge: two lines, one beside the other.
    const auto linha = [&](QPoint de, QPoint ate, QPoint aoLado) {
        pintor.setPen(palette().color(baixo ? QPalette::Dark : QPalette::Light));
        pintor.drawLine(de, ate);
        pintor.setPen(palette().color(baixo ? QPalette::Light : QPalette::Dark));
        pintor.drawLine(de + aoLado, ate + aoLado);
    };
    constexpr QPoint Direita(1, 0);
    constexpr QPoint Abaixo(0, 1);
    switch (forma) {
    case bsBox:
        qDrawShadePanel(&pintor, r, palette(), baixo, 1);
        break;
    case bsFrame:
        qDrawShadeRect(&pintor, r, palette(), baixo, 1, 0);
        break;
    case bsTopLine:
        linha(r.topLeft(), r.topRight(), Abaixo);
        break;
    case bsBottomLine:
        linha(r.bottomLeft() - Abaixo, r.bottomRight() - Abaixo, Abaixo);
        break;
    case bsLeftLine:
        linha(r.topLeft(), r.bottomLeft(), Direita);
        break;
    case bsRightLine:
        linha(r.topRight() - Direita, r.bottomRight() - Direita, Direita);
        break;
    case bsSpacer:
        break;
    }
}

} // namespace ficha
