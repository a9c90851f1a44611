#include "dates/UOpcionalBasFr.h"

#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TPanel.h"

#include <QMouseEvent>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TOpcionalBasFr)

namespace
{

constexpr TColor Preto = TColor::DeRGB(0, 0, 0);
constexpr TColor Cinza = TColor::DeRGB(0x99, 0x99, 0x99);

} // namespace

TOpcionalBasFr::TOpcionalBasFr(TChave chave) : TBasFr(chave) {}

void TOpcionalBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    Colorir();
    Panel1->installEventFilter(this);
    Ligar(AtivoCheckBox, &TCheckBox::toggled, this, [this] { Atualizar(); });
    AjustarAltura();
}

void TOpcionalBasFr::Atualizar()
{
    TBasFr::Atualizar();
    AlargarCaixa();
    const bool ativo = AtivoCheckBox->isChecked();
    if (ativo && !Panel1->isEnabled())
        Panel1->setEnabled(true);
    const TColor cor = ativo ? Preto : Cinza;
    if (Panel1->GetFontColor() != cor)
        Panel1->SetFontColor(cor);
    if (!ativo && Panel1->isEnabled())
        Panel1->setEnabled(false);
}

void TOpcionalBasFr::SetAutoSize(bool v)
{
    autoSize = v;
    AjustarAltura();
}

QString TOpcionalBasFr::GetTitulo() const
{
    return AtivoCheckBox->GetCaption();
}

void TOpcionalBasFr::SetTitulo(const QString &texto)
{
    AtivoCheckBox->SetCaption(texto);
}

void TOpcionalBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, AtivoCheckBox, "AtivoCheckBox");
    Pegar(this, Panel1, "Panel1");
}

void TOpcionalBasFr::FrameClick(QObject *)
{
    SetAutoSize(true);
}

void TOpcionalBasFr::showEvent(QShowEvent *evento)
{
    TBasFr::showEvent(evento);
    if (!std::exchange(mostrado, true))
        AlinharNoTopo();
    AjustarAltura();
    Protegido([this] { Atualizar(); });
}

void TOpcionalBasFr::resizeEvent(QResizeEvent *evento)
{
    TBasFr::resizeEvent(evento);
    if (mostrado)
        AlargarCaixa();
}

void TOpcionalBasFr::mouseReleaseEvent(QMouseEvent *evento)
{
    TBasFr::mouseReleaseEvent(evento);
    // What the children do not take comes here as well.
    if (evento->button() == Qt::LeftButton && rect().contains(evento->pos()) &&
        !childAt(evento->pos()))
        Protegido([this] { FrameClick(this); });
}

bool TOpcionalBasFr::eventFilter(QObject *objeto, QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::Resize:
    case QEvent::Move:
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
        if (objeto == Panel1)
            AjustarAltura();
        break;
    default:
        break;
    }
    return TBasFr::eventFilter(objeto, evento);
}

/** The ground is the system's light of a button; what is disabled has the grey of the panel. */
void TOpcionalBasFr::Colorir()
{
    SetCorDoWidget(*this, QPalette::Window, CorDoWidget(*this, QPalette::Light));
    setAutoFillBackground(true);
    QPalette paleta = Panel1->palette();
    paleta.setColor(QPalette::Disabled, QPalette::WindowText, Cinza.ParaQColor());
    Panel1->setPalette(paleta);
}

void TOpcionalBasFr::AlinharNoTopo()
{
    const QWidget *pai = parentWidget();
    if (isWindow() || !pai)
        return;
    QLayout *layout = pai->layout();
    if (layout && (!qobject_cast<TAlinhador *>(layout) || layout->indexOf(this) >= 0))
        return;
    Alinhar(this, alTop);
    pai->layout()->activate();
}

void TOpcionalBasFr::AjustarAltura()
{
    if (!autoSize || !Panel1)
        return;
    int altura = 0;
    for (const auto *filho : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        const bool conta = !filho->isWindow() && !filho->isHidden() && filho != AguardePanel &&
                           filho != PanelLaranja;
        if (conta)
            altura = std::max(altura, filho->geometry().bottom() + 1);
    }
    if (altura > 0 && altura != height())
        resize(width(), altura);
}

void TOpcionalBasFr::AlargarCaixa()
{
    if (AtivoCheckBox->width() != width())
        AtivoCheckBox->resize(width(), AtivoCheckBox->height());
    if (AtivoCheckBox->x() != 0)
        AtivoCheckBox->move(0, AtivoCheckBox->y());
}

} // namespace ficha
