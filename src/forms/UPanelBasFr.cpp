#include "forms/UPanelBasFr.h"

#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TToolBar.h"

#include <QLabel>
#include <QScrollArea>

namespace ficha
{

FICHA_REGISTRAR(TPanelBasFr)

namespace
{

constexpr QPoint LugarDaBarra(128, 0);
constexpr int FiguraExecutar = 0;
constexpr int TamanhoDaSeta = 9;

/** Its "3" and "4" are triangles. */
QFont FonteDasSetas()
{
    return {QStringLiteral("Webdings"), TamanhoDaSeta};
}

} // namespace

TPanelBasFr::TPanelBasFr(TChave chave) : TBasFr(chave) {}

void TPanelBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    PanelImageList = new TImageList(this);
    PanelImageList->setObjectName(QStringLiteral("PanelImageList"));
    PanelImageList->AddSvg(FiguraExecutar, QStringLiteral("executar"));
    ToolBar1->SetImages(PanelImageList);
    PanelActionList->SetImages(PanelImageList);
    SplitterPanel->setFont(FonteDasSetas());
    NomearAlca();
    ToolBar1->move(LugarDaBarra);
    ResetFiltro();
}

void TPanelBasFr::ResetFiltro() {}

void TPanelBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, Panel1, "Panel1");
    Pegar(this, Label1, "Label1");
    Pegar(this, ScrollBox1, "ScrollBox1");
    Pegar(this, ScrollBox1Corpo, "ScrollBox1Corpo");
    Pegar(this, BasePanel, "BasePanel");
    Pegar(this, ToolBar1, "ToolBar1");
    Pegar(this, ToolButton1, "ToolButton1");
    Pegar(this, Panel2, "Panel2");
    Pegar(this, ExplicLabel, "ExplicLabel");
    Pegar(this, SplitterPanel, "SplitterPanel");
    Pegar(this, Image1, "Image1");
    Pegar(this, PanelActionList, "PanelActionList");
    Pegar(this, ExecAct, "ExecAct");
    ExecAct->OnUpdate = [this](QObject *sender) { ExecActUpdate(sender); };
    // A click on the picture falls through to the handle that it stands on.
    SplitterPanel->OnClick = [this](QObject *sender) { SplitterPanelClick(sender); };
}

void TPanelBasFr::SplitterPanelClick(QObject *)
{
    SplitterPanel->setFont(FonteDasSetas());
    Panel1->setVisible(Panel1->isHidden());
    const bool aberto = !Panel1->isHidden();
    SplitterPanel->SetCaption(aberto ? QStringLiteral("3") : QStringLiteral("4"));
    NomearAlca();
    Image1->setVisible(!aberto);
    // The handle is the outermost of the two: this puts it right after the panel.
    ArrumarConteiner(this);
}

void TPanelBasFr::ExecActUpdate(QObject *)
{
    Atualizar();
}

/** Scrolling starts where the inputs need more than there is. */
void TPanelBasFr::showEvent(QShowEvent *evento)
{
    TBasFr::showEvent(evento);
    const QRect ocupado = ScrollBox1Corpo->childrenRect();
    ScrollBox1Corpo->setMinimumSize(ocupado.right() + 1, ocupado.bottom() + 1);
}

/** The caption is a letter only to the font. */
void TPanelBasFr::NomearAlca()
{
    const QString nome = Panel1->isHidden() ? QStringLiteral("Abrir") : QStringLiteral("Fechar");
    SplitterPanel->setAccessibleName(nome);
    SplitterPanel->setToolTip(nome);
}

} // namespace ficha
