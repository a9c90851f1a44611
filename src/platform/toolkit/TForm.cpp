#include "platform/toolkit/TForm.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/FocoDaSubJanela.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TBitBtn.h"

#include <QApplication>
#include <QCloseEvent>
#include <QEventLoop>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScopeGuard>
#include <QThread>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace ficha
{

namespace
{

QList<TForm *> &Vivos()
{
    static QList<TForm *> vivos;
    return vivos;
}

QPointer<TForm> &Ativo()
{
    static QPointer<TForm> ativo;
    return ativo;
}

Qt::WindowFlags JanelaPara(TForm::BorderStyle borda, bool sobreTudo)
{
    const Qt::WindowFlags fechavel = Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                     Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
    Qt::WindowFlags flags = Qt::Window;
    if (borda == TForm::bsNone)
        flags = Qt::Window | Qt::FramelessWindowHint;
    else if (borda == TForm::bsSingle)
        flags =
            fechavel | Qt::Window | Qt::WindowMinimizeButtonHint | Qt::MSWindowsFixedSizeDialogHint;
    else if (borda == TForm::bsDialog)
        flags = fechavel | Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint;
    else if (borda == TForm::bsToolWindow)
        flags = fechavel | Qt::Tool | Qt::MSWindowsFixedSizeDialogHint;
    else if (borda == TForm::bsSizeToolWin)
        flags = fechavel | Qt::Tool;
    return sobreTudo ? flags | Qt::WindowStaysOnTopHint : flags;
}

} // namespace

TForm::TForm(TChave)
{
    Vivos() << this;
}

TForm::~TForm()
{
    Destruindo();
    Vivos().removeAll(this);
    if (laco)
        laco->exit();
}

void TForm::Create(QWidget *owner)
{
    setParent(owner, JanelaPara(borda, sobreTudo));
    if (objectName().isEmpty())
        setObjectName(QString::fromLatin1(metaObject()->className())
                          .section(QStringLiteral("::"), -1)
                          .mid(1));
    CarregarLayouts(this);
    PegarComponentes();
    criado = true;
    FormCreate(this);
}

void TForm::SetCaption(const QString &texto)
{
    if (texto != windowTitle())
        setWindowTitle(texto);
}

void TForm::SetBorderStyle(BorderStyle v)
{
    borda = v;
    AplicarJanela();
}

void TForm::SetStayOnTop(bool v)
{
    sobreTudo = v;
    AplicarJanela();
}

void TForm::AplicarJanela()
{
    if (!isWindow())
        return;
    const bool visivel = isVisible();
    setWindowFlags(JanelaPara(borda, sobreTudo));
    if (visivel)
        show();
}

TColor TForm::GetColor() const
{
    return TColor::DeQColor(palette().color(QPalette::Window));
}

void TForm::SetColor(TColor cor)
{
    QPalette paleta = palette();
    paleta.setColor(QPalette::Window, cor.ParaQColor());
    setPalette(paleta);
    setAutoFillBackground(true);
}

void TForm::Show()
{
    show();
    if (QMdiSubWindow *sub = SubJanela()) {
        if (sub->isMinimized() || sub->isShaded())
            sub->showNormal();
        sub->show();
        if (!mostrado && isVisible())
            Aparecer();
        if (sub->mdiArea())
            sub->mdiArea()->setActiveSubWindow(sub);
        return;
    }
    VirParaAFrente();
}

void TForm::Hide()
{
    if (QMdiSubWindow *sub = SubJanela())
        sub->hide();
    hide();
    if (mostrado)
        Sumir();
}

bool TForm::Close()
{
    if (laco) {
        if (resultado == mrNone)
            SetModalResult(mrCancel);
        return false;
    }
    return close();
}

void TForm::Release()
{
    if (liberado)
        return;
    liberado = true;
    nivelAoLiberar = qMax(1, QThread::currentThread()->loopLevel());
    Hide();
    deleteLater();
}

/**
 * A released form waits until the event loop in which it was released comes round: code of its own
 * that opened a nested loop (a dialog, a message box) may still be running.
 */
bool TForm::CedoParaDestruir()
{
    if (!liberado || QThread::currentThread()->loopLevel() <= nivelAoLiberar)
        return false;
    constexpr int ms = 100;
    QTimer::singleShot(ms, this, &QObject::deleteLater);
    return true;
}

int TForm::ShowModal()
{
    if (laco)
        return mrNone;
    const QPointer<TForm> vivo = this;
    QEventLoop espera;
    laco = &espera;
    resultado = mrNone;
    if (isVisible()) {
        laco = nullptr;
        hide();
        laco = &espera;
    }
    const QPointer<QWidget> antes = QApplication::activeWindow();
    setWindowModality(Qt::ApplicationModal);
    show();
    if (vivo && laco)
        VirParaAFrente();
    if (vivo && laco)
        espera.exec(QEventLoop::DialogExec);
    // Where no window manager does it, the window below becomes active again by this.
    const auto devolver = qScopeGuard([&] {
        if (antes && antes->isVisible() && !QApplication::activeWindow())
            antes->activateWindow();
    });
    if (!vivo)
        return mrCancel;
    laco = nullptr;
    if (!liberado)
        hide();
    setWindowModality(Qt::NonModal);
    return resultado == mrNone ? mrCancel : resultado;
}

void TForm::SetModalResult(int valor)
{
    resultado = valor;
    if (laco && valor != mrNone)
        QMetaObject::invokeMethod(
            this, [this] { VerificarModal(); }, Qt::QueuedConnection);
}

/** Ends the modal state once its result stands, unless the form refuses. */
void TForm::VerificarModal()
{
    if (!laco || resultado == mrNone || fechando)
        return;
    const QPointer<TForm> vivo = this;
    fechando = true;
    const bool pode = ConsultarFechamento();
    TCloseAction acao = caHide;
    if (vivo && pode)
        Protegido([&] { FormClose(this, acao); });
    if (!vivo)
        return;
    fechando = false;
    if (!pode || acao == caNone) {
        resultado = mrNone;
        return;
    }
    QEventLoop *espera = laco;
    if (acao == caFree)
        Release();
    if (espera)
        espera->exit();
}

QWidget *TForm::ActiveControl() const
{
    QWidget *ativo = ControleAtivo(this);
    return ativo && ativo != this && isAncestorOf(ativo) ? ativo : nullptr;
}

void TForm::SetActiveControl(QWidget *controle)
{
    controle->setFocus(Qt::OtherFocusReason);
}

/** The widgets of the form in tab order, those that take no focus included. */
QList<QWidget *> TForm::OrdemDeTabulacao() const
{
    QList<QWidget *> ordem;
    for (QWidget *w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain())
        if (isAncestorOf(w))
            ordem << w;
    return ordem;
}

bool TForm::SelectNext(QWidget *controle, bool paraFrente)
{
    QList<QWidget *> ordem = OrdemDeTabulacao();
    if (!paraFrente)
        std::reverse(ordem.begin(), ordem.end());
    const auto dentro = [controle](const QWidget *w) {
        return controle && (w == controle || controle->isAncestorOf(w));
    };
    const auto parada = [this](const QWidget *w) {
        return !w->focusProxy() && (w->focusPolicy() & Qt::TabFocus) && w->isEnabled() &&
               w->isVisibleTo(this);
    };
    // From behind the last stop inside the control, or from where the control itself stands.
    qsizetype inicio = ordem.indexOf(controle);
    for (qsizetype i = 0; i < ordem.size(); ++i)
        if (dentro(ordem[i]) && parada(ordem[i]))
            inicio = i;
    for (qsizetype k = 1; k <= ordem.size(); ++k) {
        QWidget *w = ordem[(inicio + k) % ordem.size()];
        if (dentro(w) || !parada(w))
            continue;
        w->setFocus(paraFrente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        return true;
    }
    return false;
}

QPushButton *TForm::BotaoQue(bool cancela) const
{
    for (QPushButton *botao : findChildren<QPushButton *>()) {
        const auto *com = qobject_cast<const TBitBtn *>(botao);
        const bool serve = cancela ? com && com->GetCancel() : botao->isDefault();
        if (serve && botao->isEnabled() && botao->isVisible() && botao->window() == window())
            return botao;
    }
    return nullptr;
}

bool TForm::ApertarDefault()
{
    QPushButton *botao = BotaoQue(false);
    if (botao)
        botao->click();
    return botao;
}

bool TForm::ApertarCancel()
{
    QPushButton *botao = BotaoQue(true);
    if (botao)
        botao->click();
    return botao;
}

QMdiSubWindow *TForm::SubJanela() const
{
    return qobject_cast<QMdiSubWindow *>(parentWidget());
}

const QList<TForm *> &TForm::Formularios()
{
    return Vivos();
}

TForm *TForm::FormularioAtivo()
{
    return Ativo();
}

TForm *TForm::FormularioDe(const QWidget *controle)
{
    auto *w = const_cast<QWidget *>(controle);
    while (w && !qobject_cast<TForm *>(w))
        w = w->parentWidget();
    return static_cast<TForm *>(w);
}

void TForm::PegarComponentes() {}

void TForm::FormCreate(QObject *) {}

void TForm::FormShow(QObject *) {}

void TForm::FormHide(QObject *) {}

void TForm::FormActivate(QObject *) {}

void TForm::FormDeactivate(QObject *) {}

void TForm::FormCloseQuery(QObject *, bool &) {}

void TForm::FormClose(QObject *, TCloseAction &) {}

void TForm::FormDestroy(QObject *) {}

void TForm::FormResize(QObject *) {}

void TForm::Destruindo() noexcept
{
    if (!criado || destruido)
        return;
    destruido = true;
    Protegido([this] { FormDestroy(this); });
}

bool TForm::event(QEvent *evento)
{
    switch (evento->type()) {
    case QEvent::DeferredDelete:
        if (CedoParaDestruir())
            return true;
        Destruindo();
        if (QMdiSubWindow *sub = SubJanela(); sub && liberado) {
            delete sub; // and the form in it
            return true;
        }
        break;
    case QEvent::ParentChange:
        LigarSubJanela();
        break;
    case QEvent::WindowActivate:
        if (const QMdiSubWindow *sub = SubJanela()) {
            if (sub->mdiArea() && sub->mdiArea()->activeSubWindow() == sub)
                TornarAtivo();
        } else if (isWindow()) {
            const auto *area = findChild<QMdiArea *>();
            if (!area || !area->activeSubWindow())
                TornarAtivo();
        }
        break;
    default:
        break;
    }
    return QWidget::event(evento);
}

void TForm::showEvent(QShowEvent *evento)
{
    QWidget::showEvent(evento);
    if (evento->spontaneous() || !criado)
        return;
    LigarSubJanela();
    if (!mostrado && !SubJanelaMuda())
        Aparecer();
}

void TForm::hideEvent(QHideEvent *evento)
{
    QWidget::hideEvent(evento);
    if (!evento->spontaneous() && mostrado && !SubJanelaMuda())
        Sumir();
}

/** A sub window hides and shows what is in it while it is minimised, maximised or restored; to the
 * form that is neither hiding nor showing. */
bool TForm::SubJanelaMuda() const
{
    const QMdiSubWindow *sub = SubJanela();
    return sub && (sub->windowState() & ~Qt::WindowActive) != estadoDaSub;
}

void TForm::Aparecer()
{
    mostrado = true;
    const QPointer<TForm> vivo = this;
    Protegido([this] { FormShow(this); });
    if (vivo && std::exchange(ativarAoMostrar, false))
        TornarAtivo();
}

void TForm::Sumir()
{
    mostrado = ativarAoMostrar = false;
    const QPointer<TForm> vivo = this;
    if (Ativo() == this) {
        Ativo() = nullptr;
        Protegido([this] { FormDeactivate(this); });
    }
    if (vivo)
        Protegido([this] { FormHide(this); });
    if (vivo && laco)
        laco->exit();
}

void TForm::closeEvent(QCloseEvent *evento)
{
    if (laco) {
        evento->ignore();
        Close();
        return;
    }
    evento->setAccepted(Fechar());
}

bool TForm::ConsultarFechamento()
{
    bool pode = true;
    return Protegido([&] { FormCloseQuery(this, pode); }) && pode;
}

/** Asks and closes; answers whether the form goes away. */
bool TForm::Fechar()
{
    if (fechando)
        return false;
    const QPointer<TForm> vivo = this;
    fechando = true;
    const bool pode = ConsultarFechamento();
    TCloseAction acao = pode ? AcaoAoFechar : caNone;
    if (vivo && pode)
        Protegido([&] { FormClose(this, acao); });
    if (!vivo)
        return true;
    fechando = false;
    if (acao == caMinimize)
        (SubJanela() ? static_cast<QWidget *>(SubJanela()) : this)->showMinimized();
    else if (acao == caFree)
        Release();
    else if (acao == caHide)
        Hide();
    return acao == caHide || acao == caFree;
}

void TForm::resizeEvent(QResizeEvent *evento)
{
    QWidget::resizeEvent(evento);
    if (criado)
        Protegido([this] { FormResize(this); });
}

void TForm::keyPressEvent(QKeyEvent *evento)
{
    const bool nua = !(evento->modifiers() & ~Qt::KeypadModifier);
    const int tecla = evento->key();
    bool usada = false;
    if (nua && (tecla == Qt::Key_Return || tecla == Qt::Key_Enter)) {
        auto *botao = qobject_cast<QPushButton *>(focusWidget());
        if (botao && botao->isEnabled())
            botao->click();
        usada = botao || ApertarDefault();
    } else if (nua && tecla == Qt::Key_Escape) {
        usada = ApertarCancel();
    }
    // The click may have destroyed the form: only the event is touched from here on.
    if (usada)
        evento->accept();
    else
        QWidget::keyPressEvent(evento);
}

/** A form that came into a sub window follows its activation and its end. */
void TForm::LigarSubJanela()
{
    QMdiSubWindow *sub = SubJanela();
    if (!sub || !sub->mdiArea())
        return;
    // FormClose decides what becomes of the form, and of its sub window with it.
    sub->setAttribute(Qt::WA_DeleteOnClose, false);
    if (sub == ligada)
        return;
    ligada = sub;
    DevolverFocoAoVoltar(sub);
    estadoDaSub = sub->windowState() & ~Qt::WindowActive;
    connect(sub, &QMdiSubWindow::windowStateChanged, this,
            [this](Qt::WindowStates, Qt::WindowStates agora) {
                estadoDaSub = agora & ~Qt::WindowActive;
            });
    connect(sub->mdiArea(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow *ativa) {
        if (ativa && ativa == SubJanela())
            TornarAtivo();
    });
}

void TForm::VirParaAFrente()
{
    raise();
    activateWindow();
    // Where a window keeps the focus while it is hidden, nobody tells that it is active again.
    if (windowHandle() && QGuiApplication::focusWindow() == windowHandle() && !isActiveWindow())
        QApplication::setActiveWindow(this);
}

void TForm::TornarAtivo()
{
    if (Ativo() == this || !criado)
        return;
    if (!mostrado) {
        ativarAoMostrar = true;
        return;
    }
    const QPointer<TForm> antes = Ativo();
    const QPointer<TForm> vivo = this;
    Ativo() = this;
    if (antes)
        Protegido([&] { antes->FormDeactivate(antes); });
    if (vivo && Ativo() == this)
        Protegido([this] { FormActivate(this); });
}

} // namespace ficha
