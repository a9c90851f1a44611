#include "forms/UBotaoFr.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QLabel>
#include <QMouseEvent>

namespace ficha
{

FICHA_REGISTRAR(TBotaoFr)

TBotaoFr::TBotaoFr(TChave chave) : TBasFr(chave) {}

void TBotaoFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, Image1, "Image1");
    Image1->adjustSize();
}

bool TBotaoFr::event(QEvent *evento)
{
    // A label that gets another picture asks its parent for room, once it is shown.
    if ((evento->type() == QEvent::LayoutRequest || evento->type() == QEvent::Show) && Image1)
        Image1->adjustSize();
    return TBasFr::event(evento);
}

void TBotaoFr::mouseReleaseEvent(QMouseEvent *evento)
{
    TBasFr::mouseReleaseEvent(evento);
    if (evento->button() != Qt::LeftButton || !OnClick ||
        !Image1->geometry().contains(evento->position().toPoint()))
        return;
    evento->accept();
    // The handler may destroy the frame and itself with it.
    const auto handler = OnClick;
    Protegido([&] { handler(this); });
}

} // namespace ficha
