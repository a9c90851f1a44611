#pragma once

#include "base/UDBControlBasFr.h"

namespace ficha
{

class TAction;
class TActionList;
class TStringGrid;
class TToolBar;
class TToolButton;

/**
 * A string grid as a value frame, with the actions print, insert, alter and delete in a tool bar
 * below. The descendant supplies their handlers and the value; here nothing answers them.
 */
class TSQLGridBasFr : public TDBControlBasFr
{
    Q_OBJECT

public:
    explicit TSQLGridBasFr(TChave chave);

    /** Takes the pictures from Img16D, where there is one. */
    void Create(QWidget *owner) override;
    /** Hands the focus on to the grid. */
    void SetFocus() override;

    TToolBar *ToolBar1 = nullptr;
    TToolButton *ImprToolButton = nullptr;
    /** The gap behind the first button. */
    TToolButton *ToolButton2 = nullptr;
    TToolButton *InsToolButton = nullptr;
    TToolButton *AltToolButton = nullptr;
    TToolButton *ExclToolButton = nullptr;
    TStringGrid *StringGrid1 = nullptr;
    TActionList *ActionList1 = nullptr;
    TAction *ImprAction = nullptr;
    TAction *InsAction = nullptr;
    TAction *AltAction = nullptr;
    TAction *ExclAction = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
