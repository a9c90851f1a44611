#pragma once

#include "base/UBasFr.h"

class QLabel;
class QScrollArea;

namespace ficha
{

class TAction;
class TActionList;
class TImageList;
class TPanel;
class TToolBar;
class TToolButton;

/**
 * A side panel for search inputs, at the right of the frame, that folds away: a narrow handle
 * beside it opens and closes it. What a descendant adds takes the room at its left.
 *
 * Inputs go into ScrollBox1Corpo, the inside of ScrollBox1, which scrolls when they need more room.
 * The action "Executar" has no handler here: the descendant supplies it.
 */
class TPanelBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TPanelBasFr(TChave chave);

    /** Places the tool bar and runs ResetFiltro. */
    void Create(QWidget *owner) override;

    /** Empty the search inputs. */
    virtual void ResetFiltro();

    TPanel *Panel1 = nullptr;
    QLabel *Label1 = nullptr;
    QScrollArea *ScrollBox1 = nullptr;
    TPanel *ScrollBox1Corpo = nullptr;
    TPanel *BasePanel = nullptr;
    TToolBar *ToolBar1 = nullptr;
    TToolButton *ToolButton1 = nullptr;
    TPanel *Panel2 = nullptr;
    /** What the search does, wrapped into lines. */
    QLabel *ExplicLabel = nullptr;
    /** The handle; a click on it, or on its picture, opens and closes the panel. */
    TPanel *SplitterPanel = nullptr;
    /** On the handle of the closed panel. */
    QLabel *Image1 = nullptr;
    TActionList *PanelActionList = nullptr;
    TAction *ExecAct = nullptr;
    /** The picture of "Executar", index 0; owned. */
    TImageList *PanelImageList = nullptr;

protected:
    void PegarComponentes() override;
    virtual void SplitterPanelClick(QObject *sender);
    /** Runs Atualizar, at idle time while the frame is visible. */
    virtual void ExecActUpdate(QObject *sender);
    void showEvent(QShowEvent *evento) override;

private:
    void NomearAlca();
};

} // namespace ficha
