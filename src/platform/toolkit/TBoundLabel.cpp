#include "platform/toolkit/TBoundLabel.h"

#include <QEvent>
#include <QStyle>

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
    if (pixels == espaco)
        return;
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

QSize TBoundLabel::sizeHint() const
{
    // A mnemonic, markup, tabs, more lines or a frame: the general case.
    const bool marcado = textFormat() != Qt::PlainText &&
                         (textFormat() != Qt::AutoText || Qt::mightBeRichText(text()));
    const QString texto = text();
    const bool especial = std::ranges::any_of(texto, [](QChar c) { return c < u' ' || c == u'&'; });
    if (marcado || especial || wordWrap() || margin() != 0 || indent() > 0 || frameWidth() != 0 ||
        !contentsMargins().isNull())
        return QLabel::sizeHint();
    ensurePolished();
    const int lado = int((QStyle::visualAlignment(layoutDirection(), alignment()) &
                          ~(Qt::AlignVCenter | Qt::AlignHCenter))
                             .toInt());
    if (texto != medida.Texto || lado != medida.Lado || font() != medida.Fonte) {
        constexpr int SemLimite = 2000;
        const QRect area = fontMetrics().boundingRect(0, 0, SemLimite, SemLimite, lado, texto);
        medida = {texto, font(), lado, area.size()};
    }
    return medida.Tamanho.expandedTo(minimumSize());
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
