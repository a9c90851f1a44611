#include "platform/hostforms/TMdiArea.h"

#include "platform/toolkit/Layout.h"

#include <QKeyEvent>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TMdiArea)

bool TMdiArea::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress || evento->type() == QEvent::KeyRelease) {
        const int tecla = static_cast<QKeyEvent *>(evento)->key();
        if (tecla == Qt::Key_Tab || tecla == Qt::Key_Backtab)
            return false;
    }
    return QMdiArea::eventFilter(objeto, evento);
}

} // namespace ficha
