#pragma once

#include <QAction>
#include <QKeySequence>

#include <functional>

namespace ficha
{

class TActionList;

/**
 * Something that the user can do on a screen: caption, hint, short-cut, picture and state in one
 * place, shown by the buttons and menu items that point to it.
 *
 * Made by a layout (inside an <actiongroup>, which becomes the TActionList) or by code with a
 * TActionList; owned by that list.
 *
 * Short-cuts act while the focus is in the frame, form or main window that owns the list, nearest
 * first, and win over the focused input's own keys as long as the action is enabled and visible;
 * otherwise the key goes to the input. Enter of the main block and of the numeric block are the
 * same key.
 */
class TAction : public QAction
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(QString hint READ GetHint WRITE SetHint)
    Q_PROPERTY(int imageIndex READ GetImageIndex WRITE SetImageIndex)
    Q_PROPERTY(bool enabled READ GetEnabled WRITE SetEnabled)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TAction(TActionList *lista);
    ~TAction() override;

    QString GetCaption() const { return text(); }
    void SetCaption(const QString &texto);
    const QString &GetHint() const { return hint; }
    /** Shown as the tool tip, followed by the short-cut. Empty: the caption serves. */
    void SetHint(const QString &texto);
    int GetImageIndex() const { return imageIndex; }
    /** Index into the images of the list; -1 is none. */
    void SetImageIndex(int indice);
    /** The action's own switch; an invisible action may be enabled, and Execute runs it. */
    bool GetEnabled() const { return habilitada; }
    void SetEnabled(bool v);
    /** Hides QAction's, so that both names mean the same switch. */
    void setEnabled(bool v) { SetEnabled(v); }
    bool GetVisible() const { return isVisible(); }
    void SetVisible(bool v);
    void SetShortCut(const QKeySequence &tecla);

    TActionList *GetActionList() const { return lista; }

    /**
     * Updates the action (OnUpdate) and, when it is then enabled, runs OnExecute. Answers whether
     * it ran. What OnExecute raises goes to the caller; when the user triggered the action (click,
     * menu, short-cut) it goes to the host's error report.
     */
    bool Execute();
    /** Runs OnUpdate, Protegido; a failure is reported once until an update succeeds again. */
    void Update();

    /** The sender is the action. */
    std::function<void(QObject *)> OnExecute;
    std::function<void(QObject *)> OnUpdate;

    int Tag = 0;

private:
    friend class TActionList;
    void AtualizarDica();
    void AtualizarIcone();

    TActionList *lista;
    QString hint;
    int imageIndex = -1;
    bool habilitada = true;
    bool visivel = true;
    bool falhou = false;
};

} // namespace ficha
