#include "grids/USQLGridBasFr.h"

#include "forms/UImg16D.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

namespace ficha
{

FICHA_REGISTRAR(TSQLGridBasFr)

TSQLGridBasFr::TSQLGridBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TSQLGridBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    if (!Img16D)
        return;
    ToolBar1->SetImages(Img16D->ImageList16);
    ActionList1->SetImages(Img16D->ImageList16);
}

void TSQLGridBasFr::SetFocus()
{
    StringGrid1->setFocus(Qt::OtherFocusReason);
}

void TSQLGridBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, ToolBar1, "ToolBar1");
    Pegar(this, ImprToolButton, "ImprToolButton");
    Pegar(this, ToolButton2, "ToolButton2");
    Pegar(this, InsToolButton, "InsToolButton");
    Pegar(this, AltToolButton, "AltToolButton");
    Pegar(this, ExclToolButton, "ExclToolButton");
    Pegar(this, StringGrid1, "StringGrid1");
    Pegar(this, ActionList1, "ActionList1");
    Pegar(this, ImprAction, "ImprAction");
    Pegar(this, InsAction, "InsAction");
    Pegar(this, AltAction, "AltAction");
    Pegar(this, ExclAction, "ExclAction");
}

} // namespace ficha
