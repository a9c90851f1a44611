#include "platform/toolkit/TPanel.h"

#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QFontDatabase>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TPanel)

namespace
{

/** The triangles of the symbol font, by the characters that stand for them. */
QPolygonF TrianguloDe(QChar c)
{
    switch (c.unicode()) {
    case u'3':
        return QPolygonF({{0.5, -1}, {0.5, 1}, {-0.5, 0}});
    case u'4':
        return QPolygonF({{-0.5, -1}, {-0.5, 1}, {0.5, 0}});
    case u'5':
        return QPolygonF({{-1, 0.5}, {1, 0.5}, {0, -0.5}});
    case u'6':
        return QPolygonF({{-1, -0.5}, {1, -0.5}, {0, 0.5}});
    default:
        return {};
    }
}

/** Draws a caption of the symbol font where the machine has not got that font: as a letter of
 * another one it would mean nothing. Answers whether it did. */
bool DesenharTriangulo(QPainter &pintor, const QRect &area, const QString &caption)
{
    static const QString Simbolos = QStringLiteral("Webdings");
    if (caption.size() != 1 || pintor.font().family() != Simbolos ||
        QFontDatabase::hasFamily(Simbolos))
        return false;
    const QPolygonF triangulo = TrianguloDe(caption.front());
    if (triangulo.isEmpty())
        return false;
    const qreal metade = pintor.fontInfo().pixelSize() * 0.4;
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.translate(QRectF(area).center());
    pintor.scale(metade, metade);
    pintor.setBrush(pintor.pen().color());
    pintor.setPen(Qt::NoPen);
    pintor.drawPolygon(triangulo);
    pintor.restore();
    return true;
}

} // namespace

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
    if (DesenharTriangulo(pintor, contentsRect(), caption))
        return;
    const int flags = int(alinhamento.toInt()) | Qt::TextShowMnemonic;
    pintor.drawText(contentsRect(), flags, caption);
}

void TPanel::mouseReleaseEvent(QMouseEvent *evento)
{
    QFrame::mouseReleaseEvent(evento);
    if (evento->button() != Qt::LeftButton || !rect().contains(evento->pos()))
        return;
    const QPointer<TPanel> vivo(this);
    Disparar(OnClick, this);
    // An ignored button goes on to the parent, which a destroyed panel no longer knows.
    if (!vivo)
        evento->accept();
}

} // namespace ficha
