#include "platform/toolkit/Atalhos.h"

#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMdiSubWindow>
#include <QPointer>
#include <QWidget>

namespace ficha
{

namespace
{

/** Enter of both blocks is one key, and so are the digits and arrows of both. */
QKeyCombination Normal(Qt::KeyboardModifiers modificadores, int tecla)
{
    if (tecla == Qt::Key_Enter)
        tecla = Qt::Key_Return;
    if (tecla == Qt::Key_Backtab) {
        tecla = Qt::Key_Tab;
        modificadores |= Qt::ShiftModifier;
    }
    return QKeyCombination(modificadores & ~(Qt::KeypadModifier | Qt::GroupSwitchModifier),
                           Qt::Key(tecla));
}

bool Atende(const TAction *acao, QKeyCombination tecla)
{
    for (const QKeySequence &atalho : acao->shortcuts())
        if (atalho.count() == 1 && Normal(atalho[0].keyboardModifiers(), atalho[0].key()) == tecla)
            return true;
    return false;
}

TAction *Ligada(QWidget *dono, QKeyCombination tecla)
{
    for (TActionList *lista :
         dono->findChildren<TActionList *>(QString(), Qt::FindDirectChildrenOnly)) {
        const QList<TAction *> acoes = lista->Actions();
        for (TAction *acao : acoes) {
            if (!Atende(acao, tecla))
                continue;
            const QPointer<TAction> viva = acao;
            acao->Update();
            if (viva && acao->GetEnabled() && acao->isVisible())
                return acao;
        }
    }
    return nullptr;
}

/** The action that a key means where the focus is: nearest owner first, up to the window. */
TAction *AcaoDaTecla(QWidget *foco, QKeyCombination tecla)
{
    if (auto *sub = qobject_cast<QMdiSubWindow *>(foco); sub && sub->widget())
        foco = sub->widget();
    for (QWidget *w = foco; w; w = w->isWindow() ? nullptr : w->parentWidget())
        if (w->isEnabled())
            if (TAction *acao = Ligada(w, tecla))
                return acao;
    return nullptr;
}

/** Sees every key before the controls do. */
class TFiltroDeAtalhos : public QObject
{
public:
    using QObject::QObject;

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override
    {
        const QEvent::Type tipo = evento->type();
        if (tipo != QEvent::ShortcutOverride && tipo != QEvent::KeyPress)
            return false;
        // Keys that the program sends to a control are meant for that control.
        if (!objeto->isWidgetType() || !evento->spontaneous())
            return false;
        return Tecla(static_cast<QWidget *>(objeto), static_cast<QKeyEvent *>(evento));
    }

private:
    static bool Tecla(QWidget *foco, QKeyEvent *evento)
    {
        const QKeyCombination tecla = Normal(evento->modifiers(), evento->key());
        if (EhSoDigitacao(tecla))
            return false;
        TAction *acao = AcaoDaTecla(foco, tecla);
        if (!acao)
            return false;
        evento->accept();
        // Accepting the override keeps both the input's own use of the key and Qt's short-cuts
        // away; the key press that follows runs the action.
        if (evento->type() == QEvent::KeyPress)
            acao->trigger();
        return true;
    }

    /** A plain letter or digit is never a short-cut here. */
    static bool EhSoDigitacao(QKeyCombination tecla)
    {
        return tecla.key() < Qt::Key_Escape &&
               !(tecla.keyboardModifiers() &
                 (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier));
    }
};

} // namespace

void LigarAtalhos()
{
    static QPointer<QObject> filtro;
    if (filtro || !qApp)
        return;
    filtro = new TFiltroDeAtalhos(qApp);
    qApp->installEventFilter(filtro);
}

} // namespace ficha
