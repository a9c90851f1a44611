#include "platform/toolkit/TBoundLabel.h"

#include <QEvent>

#include <algorithm>

namespace ficha
{

TBoundLabel::TBoundLabel(QWidget *de) : QLabel(de->parentWidget()), controle(de)
{
    setBuddy(de);
    hide(); // shown with the edit only, and only with a caption
    setEnabled(de->isEnabledTo(de->parentWidget()));
    stackUnder(de);
    de->installEventFilter(this);
    Posicionar();
    Mostrar();
}

void TBoundLabel::setText(const QString &texto)
{
    if (texto == text())
        return;
    QLabel::setText(texto);
    Posicionar();
    Mostrar();
}

void TBoundLabel::SetEspaco(int pixels)
{
    espaco = pixels;
    Posicionar();
}

void TBoundLabel::Posicionar()
{
    if (!controle || controle->isWindow())
        return;
    adjustSize();
    // Where the room is short, the blank rows go first: the letters need the font's height only.
    const int sala = controle->y() - espaco;
    if (sala < height())
        resize(width(), std::max(std::min(height(), sala + espaco), fontMetrics().height()));
    move(controle->x(), std::max(0, sala - height()));
}

bool TBoundLabel::eventFilter(QObject *alvo, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::Move:
    case QEvent::Resize:
        Posicionar();
        break;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        Posicionar();
        Mostrar();
        break;
    case QEvent::EnabledChange:
        setEnabled(controle->isEnabledTo(controle->parentWidget()));
        break;
    case QEvent::ParentChange:
        setParent(controle->parentWidget());
        Posicionar();
        Mostrar();
        break;
    default:
        break;
    }
    return QLabel::eventFilter(alvo, evento);
}

void TBoundLabel::changeEvent(QEvent *evento)
{
    QLabel::changeEvent(evento);
    if (evento->type() == QEvent::FontChange || evento->type() == QEvent::StyleChange)
        Posicionar();
}

void TBoundLabel::Mostrar()
{
    const bool mostra =
        controle && !controle->isWindow() && !controle->isHidden() && !text().isEmpty();
    if (mostra == isHidden())
        setVisible(mostra);
}

} // namespace ficha
