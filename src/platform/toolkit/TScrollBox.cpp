#include "platform/toolkit/TScrollBox.h"

#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Layout.h"

#include <QApplication>
#include <QChildEvent>
#include <QWheelEvent>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TScrollBox)

namespace
{

/** Around a control that is brought into view. */
constexpr int Folga = 4;
/** One notch of the wheel, in units of Qt and in pixels. */
constexpr int Entalhe = 120;
constexpr int PixelsPorEntalhe = 48;

} // namespace

TScrollBox::TScrollBox(QWidget *owner) : QFrame(owner), conteiner(owner)
{
    if (owner) {
        owner->installEventFilter(this);
        AgendarAjuste();
    }
    connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, QWidget *agora) {
        if (agora && isAncestorOf(agora))
            Mostrar(agora);
    });
}

int TScrollBox::GetColorInt() const
{
    return int(CorDoWidget(*this, QPalette::Window).valor);
}

void TScrollBox::SetColorInt(int cor)
{
    SetCorDoWidget(*this, QPalette::Window, TColor(std::uint32_t(cor)));
    setAutoFillBackground(true);
}

void TScrollBox::SetPosition(int pixels)
{
    if (!conteiner)
        return;
    const QRect area = conteiner->contentsRect();
    posicao = std::max(0, std::min(pixels, height() - area.height()));
    move(area.left(), area.top() - posicao);
}

void TScrollBox::Mostrar(const QWidget *controle)
{
    if (!conteiner || !isAncestorOf(controle))
        return;
    Ajustar();
    const int janela = conteiner->contentsRect().height();
    const int topo = controle->mapTo(this, QPoint()).y() - Folga;
    const int base = topo + controle->height() + 2 * Folga;
    if (base > GetPosition() + janela)
        SetPosition(base - janela);
    if (topo < GetPosition())
        SetPosition(topo);
}

bool TScrollBox::event(QEvent *evento)
{
    if (evento->type() == QEvent::ChildAdded || evento->type() == QEvent::ChildRemoved) {
        QObject *filho = static_cast<QChildEvent *>(evento)->child();
        if (evento->type() == QEvent::ChildAdded && filho->isWidgetType())
            filho->installEventFilter(this);
        AgendarAjuste();
    }
    return QFrame::event(evento);
}

bool TScrollBox::eventFilter(QObject *objeto, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::Resize:
        if (objeto == conteiner)
            Ajustar();
        else
            AgendarAjuste();
        break;
    case QEvent::Move:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (objeto != conteiner)
            AgendarAjuste();
        break;
    default:
        break;
    }
    return QFrame::eventFilter(objeto, evento);
}

void TScrollBox::wheelEvent(QWheelEvent *evento)
{
    const int antes = GetPosition();
    SetPosition(antes - evento->angleDelta().y() * PixelsPorEntalhe / Entalhe);
    evento->setAccepted(GetPosition() != antes);
}

int TScrollBox::AlturaDoConteudo() const
{
    int altura = 0;
    for (const QWidget *w : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!w->isWindow() && !w->isHidden() && !w->testAttribute(Qt::WA_TransparentForMouseEvents))
            altura = std::max(altura, w->y() + w->height());
    }
    return altura;
}

/** As wide as its container, as high as that or as what it holds. */
void TScrollBox::Ajustar()
{
    if (!conteiner)
        return;
    const QRect area = conteiner->contentsRect();
    resize(area.width(), std::max(area.height(), AlturaDoConteudo()));
    SetPosition(posicao);
    ArrumarConteiner(this);
}

/** Once, when the event loop comes round: controls come and are placed one after the other. */
void TScrollBox::AgendarAjuste()
{
    if (agendado)
        return;
    agendado = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            agendado = false;
            Ajustar();
        },
        Qt::QueuedConnection);
}

} // namespace ficha
