#include "forms/UApoioForms.h"

#include "platform/toolkit/Foco.h"

namespace ficha
{

bool EstaVisivel(const QWidget *w)
{
    return !(w->testAttribute(Qt::WA_WState_Hidden) &&
             w->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

bool FocoDentroDe(const QWidget *w)
{
    const QWidget *ativo = ControleAtivo(w);
    return ativo && (ativo == w || w->isAncestorOf(ativo));
}

} // namespace ficha
