#include "platform/toolkit/TPanel.h"

#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QMouseEvent>
#include <QPainter>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TPanel)

TPanel::TPanel(QWidget *owner) : QFrame(owner) {}

void TPanel::SetCaption(const QString &texto)
{
    if (texto == caption)
        return;
    caption = texto;
    setAccessibleName(texto.trimmed());
    update();
}

void TPanel::SetAlignment(Qt::Alignment v)
{
    alinhamento = v;
    update();
}

void TPanel::SetBevel(Bevel v)
{
    bevel = v;
    if (v == bvNone)
        setFrameShape(QFrame::NoFrame);
    else
        setFrameStyle(int(QFrame::Panel) | int(v == bvLowered ? QFrame::Sunken : QFrame::Raised));
    setLineWidth(1);
}

TColor TPanel::GetColor() const
{
    return CorDoWidget(*this, QPalette::Window);
}

void TPanel::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Window, cor);
    setAutoFillBackground(true);
}

TColor TPanel::GetFontColor() const
{
    return CorDoWidget(*this, QPalette::WindowText);
}
void TPanel::SetFontColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::WindowText, cor);
}

void TPanel::paintEvent(QPaintEvent *evento)
{
    QFrame::paintEvent(evento);
    if (caption.isEmpty())
        return;
    QPainter pintor(this);
    pintor.setPen(
        palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    const int flags = int(alinhamento.toInt()) | Qt::TextShowMnemonic;
    pintor.drawText(contentsRect(), flags, caption);
}

void TPanel::mouseReleaseEvent(QMouseEvent *evento)
{
    QFrame::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && OnClick && rect().contains(evento->pos()))
        Protegido([this] { OnClick(this); });
}

} // namespace ficha
