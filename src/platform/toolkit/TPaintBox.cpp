#include "platform/toolkit/TPaintBox.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/Layout.h"

#include <QCoreApplication>
#include <QPainter>
#include <QScopedValueRollback>
#include <QTimer>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TPaintBox)

TPaintBox::TPaintBox(QWidget *owner) : QWidget(owner) {}

void TPaintBox::Desenhar(const std::function<void(QPainter &)> &desenho)
{
    PrepararTela();
    if (!pintando) {
        // What nobody can see yet is painted when it comes to be seen.
        fresca = isVisible();
        update();
    }
    if (tela.isNull())
        return;
    QPainter pintor(&tela);
    desenho(pintor);
}

void TPaintBox::paintEvent(QPaintEvent *)
{
    const bool nova = PrepararTela();
    if (OnPaint && (nova || !fresca)) {
        const QScopedValueRollback<bool> guarda(pintando, true);
        try {
            const auto pintar = OnPaint; // it may set another one in its place
            pintar(this);
        } catch (...) {
            QTimer::singleShot(0, QCoreApplication::instance(),
                               [erro = std::current_exception()] { ReportarErro(erro); });
        }
    }
    fresca = false;
    QPainter(this).drawPixmap(0, 0, tela);
}

/** Brings the drawing to the size of the box; true when what was drawn is lost. */
bool TPaintBox::PrepararTela()
{
    const qreal razao = devicePixelRatioF();
    const QSize pixels = (QSizeF(size()) * razao).toSize();
    if (tela.size() == pixels && qFuzzyCompare(tela.devicePixelRatio(), razao))
        return false;
    tela = pixels.isEmpty() ? QPixmap() : QPixmap(pixels);
    tela.setDevicePixelRatio(razao);
    tela.fill(Qt::transparent);
    return true;
}

} // namespace ficha
