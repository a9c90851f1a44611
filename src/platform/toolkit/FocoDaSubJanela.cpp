#include "platform/toolkit/FocoDaSubJanela.h"

#include "platform/toolkit/Foco.h"

#include <QApplication>
#include <QFocusEvent>
#include <QMdiSubWindow>
#include <QPointer>

namespace ficha
{

namespace
{

/**
 * A child window that is activated gives the focus to the first widget of its focus chain that has
 * a focus policy. For the moment of the activation the first one of all has one, and is the proxy
 * of the control that was active.
 */
class TPorteiro : public QObject
{
public:
    explicit TPorteiro(QMdiSubWindow *dona) : QObject(dona), sub(dona)
    {
        setObjectName(Nome());
        ControleAtivo(sub); // from here on it is followed
        sub->installEventFilter(this);
        connect(sub, &QMdiSubWindow::aboutToActivate, this, [this] { Preparar(); });
        connect(qApp, &QApplication::focusChanged, this, [this](QWidget *, const QWidget *agora) {
            if (agora)
                Passar(agora == sub && QApplication::focusWidget() == sub);
        });
        connect(sub, &QMdiSubWindow::windowStateChanged, this,
                [this](Qt::WindowStates, Qt::WindowStates agora) {
                    const QWidget *foco = QApplication::focusWidget();
                    if (agora & Qt::WindowActive)
                        Passar(!foco || foco == sub);
                });
    }

    static QString Nome() { return QStringLiteral("PorteiroDoFoco"); }

    /** The focus reaches the child window itself before it hands it to a control. The Tab key
     * comes past it as well, on its way round. */
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        if (objeto == sub && evento->type() == QEvent::FocusIn) {
            const Qt::FocusReason motivo = static_cast<QFocusEvent *>(evento)->reason();
            if (motivo != Qt::TabFocusReason && motivo != Qt::BacktabFocusReason)
                Preparar();
        }
        return QObject::eventFilter(objeto, evento);
    }

private:
    bool Serve(const QWidget *w) const
    {
        return w && w != sub && sub->isAncestorOf(w) && w->focusPolicy() != Qt::NoFocus &&
               w->isEnabled() && w->isVisible();
    }

    QWidget *PrimeiroQueServe() const
    {
        for (QWidget *w = sub->nextInFocusChain(); w != sub; w = w->nextInFocusChain())
            if (!w->focusProxy() && (w->focusPolicy() & Qt::TabFocus) && Serve(w))
                return w;
        return nullptr;
    }

    void Preparar()
    {
        if (porteiro)
            return;
        // Where Qt remembers a control after all, it would insist on it whatever became of it.
        QWidget *lembrado = sub->widget() ? sub->widget()->focusWidget() : nullptr;
        if (lembrado && !Serve(lembrado))
            lembrado->clearFocus();
        QWidget *ativo = ControleAtivo(sub);
        QWidget *alvo = Serve(ativo) ? ativo : PrimeiroQueServe();
        QWidget *primeiro = sub->nextInFocusChain();
        if (!alvo || primeiro == alvo || primeiro->focusProxy() || !sub->isAncestorOf(primeiro))
            return;
        porteiro = primeiro;
        politica = primeiro->focusPolicy();
        // In this order: a policy goes on to the proxy that there is.
        primeiro->setFocusPolicy(Qt::ClickFocus);
        primeiro->setFocusProxy(alvo);
        // An activation that gives the focus to nobody ends with the events under way.
        QMetaObject::invokeMethod(
            this, [this] { Passar(false); }, Qt::QueuedConnection);
    }

    /** The activation is over. Where Qt has given the focus to no control, after a click or for one
     * that is disabled by now, it is handed on here. */
    void Passar(bool faltaFoco)
    {
        if (!porteiro)
            return;
        QWidget *primeiro = porteiro;
        QWidget *alvo = primeiro->focusProxy();
        porteiro = nullptr;
        primeiro->setFocusProxy(nullptr);
        primeiro->setFocusPolicy(politica);
        if (faltaFoco && alvo)
            alvo->setFocus();
    }

    QMdiSubWindow *sub;
    QPointer<QWidget> porteiro;
    Qt::FocusPolicy politica = Qt::NoFocus;
};

} // namespace

void DevolverFocoAoVoltar(QMdiSubWindow *sub)
{
    if (!sub->findChild<QObject *>(TPorteiro::Nome(), Qt::FindDirectChildrenOnly))
        new TPorteiro(sub);
}

} // namespace ficha
