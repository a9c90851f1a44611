#include "platform/toolkit/TGroupBox.h"

#include "platform/toolkit/Layout.h"

#include <QPainter>
#include <QStyle>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TGroupBox)

namespace
{

constexpr int RecuoDoTitulo = 8;
constexpr int FolgaDoTitulo = 3;
constexpr int Raio = 2;

} // namespace

TGroupBox::TGroupBox(QWidget *owner) : QGroupBox(owner) {}

void TGroupBox::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    const QFontMetrics letras = fontMetrics();
    const int altura = title().isEmpty() ? 0 : letras.height();
    const QRect titulo(RecuoDoTitulo, 0,
                       letras.size(Qt::TextShowMnemonic | Qt::TextSingleLine, title()).width(),
                       altura);
    pintor.save();
    if (altura > 0)
        pintor.setClipRegion(QRegion(rect()) -
                             titulo.adjusted(-FolgaDoTitulo, 0, FolgaDoTitulo, 0));
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawRoundedRect(
        QRectF(rect().adjusted(0, altura / 2, 0, 0)).adjusted(0.5, 0.5, -0.5, -0.5), Raio, Raio);
    pintor.restore();
    style()->drawItemText(&pintor, titulo, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                          palette(), isEnabled(), title(), QPalette::WindowText);
}

} // namespace ficha
