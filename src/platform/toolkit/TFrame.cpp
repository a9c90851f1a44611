#include "platform/toolkit/TFrame.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"

namespace ficha
{

TFrame::TFrame(TChave) {}

void TFrame::Create(QWidget *owner)
{
    setParent(owner);
    CarregarLayouts(this);
    PegarComponentes();
    AoEntrar(this, [this] { Disparar(OnEnter, this); });
    AoSair(this, [this] { Disparar(OnExit, this); });
}

void TFrame::SetFocus()
{
    setFocus(Qt::OtherFocusReason);
}

void TFrame::PegarComponentes() {}

} // namespace ficha
