#include "platform/toolkit/TToolBar.h"

#include "platform/core/TColor.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TImageList.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TToolButton)
FICHA_REGISTRAR_WIDGET(TToolBar)

TToolButton::TToolButton(QWidget *owner) : QToolButton(owner)
{
    setFocusPolicy(Qt::NoFocus);
    setAutoRaise(true);
    setCheckable(true);
    connect(this, &QToolButton::clicked, this, [this] {
        if (acao)
            acao->trigger();
        else
            Disparar(OnClick, this);
    });
    Sincronizar();
}

TAction *TToolButton::GetAction() const
{
    return acao;
}

void TToolButton::SetAction(TAction *nova)
{
    disconnect(mudanca);
    acao = nova;
    if (nova)
        mudanca = connect(nova, &QAction::changed, this, &TToolButton::Sincronizar);
    Sincronizar();
}

void TToolButton::SetCaption(const QString &texto)
{
    caption = texto;
    Sincronizar();
}

void TToolButton::SetImageIndex(int indice)
{
    imageIndex = indice;
    Sincronizar();
}

void TToolButton::SetDown(bool v)
{
    setChecked(v);
}

void TToolButton::SetStyle(Style v)
{
    style_ = v;
    Sincronizar();
    update();
}

void TToolButton::nextCheckState()
{
    if (style_ == tbsCheck)
        QToolButton::nextCheckState();
}

void TToolButton::paintEvent(QPaintEvent *evento)
{
    if (style_ == tbsButton || style_ == tbsCheck) {
        QToolButton::paintEvent(evento);
        return;
    }
    if (style_ == tbsSeparator)
        return;
    QPainter pintor(this);
    const int x = width() / 2;
    pintor.setPen(palette().color(QPalette::Mid));
    pintor.drawLine(x, 2, x, height() - 3);
}

bool TToolButton::event(QEvent *evento)
{
    if (evento->type() == QEvent::ParentChange)
        Sincronizar();
    return QToolButton::event(evento);
}

TToolBar *TToolButton::Barra() const
{
    return qobject_cast<TToolBar *>(parentWidget());
}

/** The picture for normal and disabled state, as the bar and the action have it. */
QIcon TToolButton::Figura() const
{
    const TToolBar *barra = Barra();
    const int indice = acao && acao->GetImageIndex() >= 0 ? acao->GetImageIndex() : imageIndex;
    const TImageList *normais = barra ? barra->GetImages() : nullptr;
    if (!normais)
        return acao ? acao->icon() : QIcon();
    const TImageList *apagadas = barra->GetDisabledImages();
    if (!apagadas || !apagadas->Tem(indice))
        return normais->GetIcon(indice);
    return IconeComApagado(normais->GetIcon(indice), apagadas->GetIcon(indice));
}

/** Brings the button up to its action and its bar. */
void TToolButton::Sincronizar()
{
    const TToolBar *barra = Barra();
    const QIcon figura = Figura();
    setText(acao ? acao->text() : caption);
    setIcon(figura);
    if (barra && barra->GetImages())
        setIconSize(barra->GetImages()->GetSize());
    const bool comTexto = barra && barra->GetShowCaptions();
    setToolButtonStyle(!comTexto          ? Qt::ToolButtonIconOnly
                       : figura.isNull()  ? Qt::ToolButtonTextOnly
                       : barra->GetList() ? Qt::ToolButtonTextBesideIcon
                                          : Qt::ToolButtonTextUnderIcon);
    if (acao) {
        setToolTip(acao->toolTip());
        setEnabled(acao->isEnabled());
        if (!acao->isVisible() != escondidoPelaAcao) {
            escondidoPelaAcao = !acao->isVisible();
            setVisible(!escondidoPelaAcao);
        }
    }
    if (TToolBar *dona = Barra())
        dona->AgendarAjuste();
}

TToolBar::TToolBar(QWidget *owner) : QFrame(owner) {}

void TToolBar::SetButtonWidth(int pixels)
{
    buttonWidth = pixels;
    AgendarAjuste();
}

void TToolBar::SetButtonHeight(int pixels)
{
    buttonHeight = pixels;
    AgendarAjuste();
}

void TToolBar::SetShowCaptions(bool v)
{
    showCaptions = v;
    SincronizarTodos();
}

void TToolBar::SetList(bool v)
{
    list = v;
    SincronizarTodos();
}

void TToolBar::SetWrapable(bool v)
{
    wrapable = v;
    AgendarAjuste();
}

void TToolBar::SetIndent(int pixels)
{
    indent = pixels;
    AgendarAjuste();
}

int TToolBar::GetColorInt() const
{
    return int(TColor::DeQColor(palette().color(QPalette::Window)).valor);
}

void TToolBar::SetColorInt(int cor)
{
    QPalette paleta = palette();
    paleta.setColor(QPalette::Window, TColor(std::uint32_t(cor)).ParaQColor());
    setPalette(paleta);
    setAutoFillBackground(true);
}

TImageList *TToolBar::GetImages() const
{
    return imagens;
}

void TToolBar::SetImages(TImageList *lista)
{
    disconnect(mudanca);
    imagens = lista;
    if (lista)
        mudanca = connect(lista, &TImageList::Change, this, &TToolBar::SincronizarTodos);
    SincronizarTodos();
}

TImageList *TToolBar::GetDisabledImages() const
{
    return desabilitadas;
}

void TToolBar::SetDisabledImages(TImageList *lista)
{
    disconnect(mudancaDes);
    desabilitadas = lista;
    if (lista)
        mudancaDes = connect(lista, &TImageList::Change, this, &TToolBar::SincronizarTodos);
    SincronizarTodos();
}

QList<TToolButton *> TToolBar::Buttons() const
{
    return findChildren<TToolButton *>(QString(), Qt::FindDirectChildrenOnly);
}

void TToolBar::Ajustar()
{
    ajusteAgendado = false;
    Dispor(contentsRect().width(), true);
    updateGeometry();
}

QSize TToolBar::sizeHint() const
{
    const int moldura = 2 * frameWidth();
    return Dispor(wrapable && testAttribute(Qt::WA_Resized) ? contentsRect().width() : 1 << 20,
                  false) +
           QSize(moldura, moldura);
}

bool TToolBar::event(QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::ChildAdded:
    case QEvent::ChildRemoved:
    case QEvent::FontChange:
        AgendarAjuste();
        break;
    case QEvent::Show:
        Ajustar();
        break;
    default:
        break;
    }
    return QFrame::event(evento);
}

void TToolBar::resizeEvent(QResizeEvent *evento)
{
    QFrame::resizeEvent(evento);
    if (wrapable)
        Ajustar();
}

/** One layout for any number of changes, when the event loop comes round. */
void TToolBar::AgendarAjuste()
{
    if (ajusteAgendado)
        return;
    ajusteAgendado = true;
    QMetaObject::invokeMethod(
        this,
        [this] {
            if (ajusteAgendado)
                Ajustar();
        },
        Qt::QueuedConnection);
}

void TToolBar::SincronizarTodos()
{
    for (TToolButton *botao : Buttons())
        botao->Sincronizar();
    AgendarAjuste();
}

/** The least width that shows a picture and the caption beside it whole. */
int TToolBar::LarguraLadoALado(const TToolButton *botao)
{
    constexpr int EntreOsDois = 4;
    constexpr int Moldura = 2;
    if (botao->toolButtonStyle() != Qt::ToolButtonTextBesideIcon)
        return botao->sizeHint().width();
    const QSize texto = botao->fontMetrics().size(Qt::TextShowMnemonic, botao->text());
    return botao->iconSize().width() + EntreOsDois + texto.width() + 2 * Moldura;
}

QSize TToolBar::TamanhoDe(const TToolButton *botao) const
{
    const TToolButton::Style tipo = botao->GetStyle();
    if (tipo == TToolButton::tbsSeparator || tipo == TToolButton::tbsDivider)
        return {botao->testAttribute(Qt::WA_Resized) ? botao->width() : 8, buttonHeight};
    QSize s(buttonWidth, buttonHeight);
    if (!showCaptions)
        return s;
    s = s.expandedTo(botao->sizeHint());
    // The style likes more air than a bar with a stated width may have room for.
    if (LarguraLadoALado(botao) <= buttonWidth)
        s.setWidth(buttonWidth);
    // A bar that is given less height than captions like keeps its buttons whole.
    if (testAttribute(Qt::WA_Resized) && contentsRect().height() >= buttonHeight)
        s.setHeight(qMin(s.height(), contentsRect().height()));
    return s;
}

/** Rows of buttons within a width; answers the room they take. */
QSize TToolBar::Dispor(int largura, bool mover) const
{
    const QPoint origem = mover ? contentsRect().topLeft() : QPoint();
    int x = indent, y = 0, maisLargo = 0, daLinha = buttonHeight;
    for (TToolButton *botao : Buttons()) {
        if (botao->isHidden())
            continue;
        const QSize s = TamanhoDe(botao);
        if (wrapable && x > indent && x + s.width() > largura) {
            x = indent;
            y += daLinha;
            daLinha = buttonHeight;
        }
        daLinha = qMax(daLinha, s.height());
        if (mover)
            botao->setGeometry(QRect(origem + QPoint(x, y), s));
        x += s.width();
        maisLargo = qMax(maisLargo, x);
    }
    return {maisLargo, y + daLinha};
}

} // namespace ficha
