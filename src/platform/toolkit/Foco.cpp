#include "platform/toolkit/Foco.h"

#include "platform/toolkit/Evento.h"

#include <QApplication>
#include <QHash>
#include <QMdiSubWindow>
#include <QPointer>

#include <utility>

namespace ficha
{

namespace
{

using THandlers = QList<std::function<void()>>;

/** The handlers of one control, with the class it had when they were added. */
struct TControleOuvido {
    const QMetaObject *classe = nullptr;
    THandlers entrar, sair;
};

/** Where the focus stands in one window, and the walk that is under way there. */
struct TFocoDaJanela {
    /** The active control and the controls that hold it, from the inside out. */
    QList<QPointer<QWidget>> ativos;
    QPointer<QWidget> alvo;
    QPointer<QWidget> saindo;
    quint64 andanca = 0;
};

QHash<const QObject *, TControleOuvido> &Ouvidos()
{
    static QHash<const QObject *, TControleOuvido> ouvidos;
    return ouvidos;
}

QHash<const QObject *, std::shared_ptr<TFocoDaJanela>> &Janelas()
{
    static QHash<const QObject *, std::shared_ptr<TFocoDaJanela>> janelas;
    return janelas;
}

/** A child window of a main window counts as a window of its own. */
QWidget *JanelaDe(const QWidget *controle)
{
    auto *w = const_cast<QWidget *>(controle);
    while (w && !w->isWindow() && !qobject_cast<QMdiSubWindow *>(w))
        w = w->parentWidget();
    return w;
}

void OuvirPorUltimo();

std::shared_ptr<TFocoDaJanela> FocoDe(QWidget *janela)
{
    auto &foco = Janelas()[janela];
    if (!foco) {
        foco = std::make_shared<TFocoDaJanela>();
        if (qobject_cast<QMdiSubWindow *>(janela))
            OuvirPorUltimo();
        QObject::connect(janela, &QObject::destroyed,
                         [](QObject *quem) { Janelas().remove(quem); });
    }
    return foco;
}

/** The innermost active control that is still alive; those that died are forgotten. */
QWidget *Ativo(TFocoDaJanela &foco)
{
    while (!foco.ativos.isEmpty() && !foco.ativos.first())
        foco.ativos.removeFirst();
    return foco.ativos.isEmpty() ? nullptr : foco.ativos.first().data();
}

void TornarAtivo(TFocoDaJanela &foco, QWidget *controle, const QWidget *janela)
{
    foco.ativos.clear();
    for (QWidget *w = controle; w; w = w == janela ? nullptr : w->parentWidget())
        foco.ativos << w;
}

bool Contem(const QWidget *fora, const QWidget *dentro)
{
    return fora == dentro || fora->isAncestorOf(dentro);
}

/** Runs the handlers of a control, unless it is already being destroyed. */
void Avisar(QWidget *controle, THandlers TControleOuvido::*quais)
{
    const auto ouvido = Ouvidos().constFind(controle);
    if (ouvido == Ouvidos().constEnd() || !controle->metaObject()->inherits(ouvido->classe))
        return;
    const THandlers handlers = (*ouvido).*quais;
    const QPointer<QWidget> vivo = controle;
    for (const auto &handler : handlers)
        if (vivo)
            Protegido(handler);
}

void Andar(QWidget *controle);

/**
 * Whether a walk goes on after a handler. Not when another walk began, nor when the handler moved
 * the focus: in a window that is not active at the moment (its message box just closed) the move
 * is not announced before the window is active again, so it is followed here.
 */
bool Prossegue(const TFocoDaJanela &foco, const QPointer<QWidget> &janela, const QWidget *alvo,
               quint64 esta)
{
    if (foco.andanca != esta || !janela)
        return false;
    QWidget *agora = janela->focusWidget();
    if (!agora || agora == alvo || JanelaDe(agora) != janela)
        return true;
    Andar(agora);
    return false;
}

/** Tells the exits up to the first active control that holds the target. False: superseded. */
bool Sair(TFocoDaJanela &foco, const QPointer<QWidget> &janela, const QPointer<QWidget> &alvo,
          quint64 esta)
{
    while (const QPointer<QWidget> ativo = Ativo(foco)) {
        if (!alvo || Contem(ativo, alvo))
            break;
        // A handler that moves the focus on is not told again that it is being left.
        if (foco.saindo != ativo) {
            const QPointer<QWidget> antes = foco.saindo;
            foco.saindo = ativo;
            Avisar(ativo, &TControleOuvido::sair);
            foco.saindo = antes;
            if (!Prossegue(foco, janela, alvo, esta))
                return false;
        }
        if (ativo && Ativo(foco) == ativo)
            TornarAtivo(foco, ativo == janela ? nullptr : ativo->parentWidget(), janela);
    }
    return true;
}

/** Tells the enters from below the active control down to the target. */
void Entrar(TFocoDaJanela &foco, const QPointer<QWidget> &janela, const QPointer<QWidget> &alvo,
            quint64 esta)
{
    QList<QPointer<QWidget>> caminho;
    const QWidget *ativo = Ativo(foco);
    for (QWidget *w = alvo; w && w != ativo; w = w == janela ? nullptr : w->parentWidget())
        caminho.prepend(w);
    for (const QPointer<QWidget> &w : caminho) {
        if (!w)
            return;
        TornarAtivo(foco, w, janela);
        Avisar(w, &TControleOuvido::entrar);
        if (!Prossegue(foco, janela, alvo, esta))
            return;
    }
}

void Andar(QWidget *controle)
{
    QWidget *janela = JanelaDe(controle);
    if (!janela)
        return;
    const auto foco = FocoDe(janela);
    // A message box that a handler opened gave the focus back to where the walk is heading.
    if (foco->alvo == controle)
        return;
    const quint64 esta = ++foco->andanca;
    foco->alvo = controle;
    const QPointer<QWidget> alvo = controle;
    const QPointer<QWidget> viva = janela;
    if (Sair(*foco, viva, alvo, esta) && alvo)
        Entrar(*foco, viva, alvo, esta);
    if (foco->andanca == esta)
        foco->alvo = nullptr;
}

/** Whether the focus, on its way from one control to another, was given back: it stands where it
 * came from, or beside it in a container that does not hold the other one. An enter handler that
 * hands it on inside the entered frame gives nothing back. */
bool Voltou(const QWidget *antes, const QWidget *agora, const QWidget *ficou)
{
    if (!ficou || ficou == agora)
        return false;
    if (ficou == antes)
        return true;
    for (const QWidget *w = antes; w && !w->isWindow() && !Contem(w, agora);
         w = w->parentWidget()) {
        if (Contem(w, ficou))
            return true;
    }
    return false;
}

/**
 * Swallows the press of a click that an exit has undone. Qt gives the focus before it delivers the
 * press; when an exit took the focus back meanwhile, the press would still reach the control that
 * lost it, and a button would stay drawn as pressed.
 */
class TCliqueDesfeito : public QObject
{
public:
    TCliqueDesfeito() { qApp->installEventFilter(this); }

    /** The focus was meant for this control and went elsewhere. */
    void Preparar(QWidget *controle) { perdeu = controle; }

    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        switch (evento->type()) {
        case QEvent::MouseButtonPress: {
            const auto *quem = qobject_cast<QWidget *>(objeto);
            const QPointer<QWidget> antes = std::exchange(perdeu, nullptr);
            return quem && antes && (Contem(quem, antes) || Contem(antes, quem));
        }
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseMove:
        case QEvent::Timer:
            perdeu = nullptr;
            break;
        default:
            break;
        }
        return false;
    }

private:
    QPointer<QWidget> perdeu;
};

QPointer<TCliqueDesfeito> &Cliques()
{
    static QPointer<TCliqueDesfeito> cliques;
    return cliques;
}

/**
 * Follows the focus, after everybody who follows it already. Child windows do: told of a focus that
 * a message box of an exit has long taken away, one would take itself for activated again and give
 * the focus to some control of its own.
 */
void OuvirPorUltimo()
{
    static QMetaObject::Connection ligacao;
    TCliqueDesfeito *cliques = Cliques();
    if (!cliques)
        return;
    QObject::disconnect(ligacao);
    ligacao = QObject::connect(qApp, &QApplication::focusChanged, cliques, [cliques](QWidget *de) {
        const QPointer<QWidget> antes = de;
        const QPointer<QWidget> agora = QApplication::focusWidget();
        // A child window that becomes active has the focus itself before its control gets it back.
        if (!agora || qobject_cast<QMdiSubWindow *>(agora))
            return;
        Andar(agora);
        if (antes && agora && Voltou(antes, agora, JanelaDe(agora)->focusWidget()))
            cliques->Preparar(agora);
    });
}

void LigarAoPrograma()
{
    if (Cliques())
        return;
    Cliques() = new TCliqueDesfeito;
    Cliques()->setParent(qApp);
    OuvirPorUltimo();
}

TControleOuvido &Ouvir(QWidget *controle)
{
    LigarAoPrograma();
    auto achado = Ouvidos().find(controle);
    if (achado == Ouvidos().end()) {
        achado = Ouvidos().insert(controle, {controle->metaObject(), {}, {}});
        QObject::connect(controle, &QObject::destroyed,
                         [](QObject *quem) { Ouvidos().remove(quem); });
    }
    return *achado;
}

} // namespace

void AoEntrar(QWidget *controle, std::function<void()> handler)
{
    Ouvir(controle).entrar << std::move(handler);
}

void AoSair(QWidget *controle, std::function<void()> handler)
{
    Ouvir(controle).sair << std::move(handler);
}

QWidget *ControleAtivo(const QWidget *janela)
{
    LigarAoPrograma();
    const auto foco = Janelas().value(JanelaDe(janela));
    return foco ? Ativo(*foco) : nullptr;
}

} // namespace ficha
