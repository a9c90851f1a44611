#include "platform/hostforms/TPrincipalMDIF.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"

#include <QLabel>
#include <QLayout>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>

namespace ficha
{

FICHA_REGISTRAR(TPrincipalMDIF)

namespace
{

QList<TPrincipalMDIF *> &Principais()
{
    static QList<TPrincipalMDIF *> principais;
    return principais;
}

} // namespace

TPrincipalMDIF::TPrincipalMDIF(TChave chave) : TForm(chave) {}

TPrincipalMDIF::~TPrincipalMDIF()
{
    Principais().removeAll(this);
}

void TPrincipalMDIF::Create(QWidget *owner)
{
    Principais() << this;
    TForm::Create(owner);
}

TPrincipalMDIF *TPrincipalMDIF::Atual()
{
    return Principais().isEmpty() ? nullptr : Principais().last();
}

QMenu *TPrincipalMDIF::AcrescentarMenu(const QString &titulo)
{
    auto *menu = new QMenu(titulo, MenuPrincipal);
    MenuPrincipal->insertMenu(JanelaMenu->menuAction(), menu);
    return menu;
}

QMdiSubWindow *TPrincipalMDIF::Acolher(TForm *form)
{
    const QSize desenho = form->size();
    QMdiSubWindow *sub = MdiArea->addSubWindow(form);
    sub->setAttribute(Qt::WA_DeleteOnClose, false);
    sub->setWindowIcon(form->windowIcon().isNull() ? IconeSvg(QStringLiteral("ficha"))
                                                   : form->windowIcon());
    const QMargins moldura = sub->contentsMargins();
    sub->resize(desenho.grownBy(moldura));
    return sub;
}

QList<TForm *> TPrincipalMDIF::Filhos() const
{
    QList<TForm *> filhos;
    for (const QMdiSubWindow *sub : MdiArea->subWindowList(QMdiArea::CreationOrder))
        if (auto *form = qobject_cast<TForm *>(sub->widget()); form && sub->isVisible())
            filhos << form;
    return filhos;
}

TForm *TPrincipalMDIF::FilhoAtivo() const
{
    const QMdiSubWindow *sub = MdiArea->activeSubWindow();
    return sub ? qobject_cast<TForm *>(sub->widget()) : nullptr;
}

bool TPrincipalMDIF::FecharFilhos()
{
    for (TForm *form : Filhos())
        if (const QPointer<TForm> vivo = form; !form->Close() && vivo)
            return false;
    return true;
}

void TPrincipalMDIF::SetStatus(const QString &texto)
{
    StatusLabel->setText(texto);
}

void TPrincipalMDIF::PegarComponentes()
{
    TForm::PegarComponentes();
    Pegar(this, MdiArea, "MdiArea");
    Pegar(this, StatusLabel, "StatusLabel");
    Pegar(this, ActionList1, "ActionList1");
    Pegar(this, LadoALadoAction, "LadoALadoAction");
    Pegar(this, EmCascataAction, "EmCascataAction");
    Pegar(this, ProximaAction, "ProximaAction");
    Pegar(this, FecharJanelaAction, "FecharJanelaAction");
    Pegar(this, FecharTodasAction, "FecharTodasAction");
    MenuPrincipal = new QMenuBar(this);
    MenuPrincipal->setObjectName(QStringLiteral("MenuPrincipal"));
    layout()->setMenuBar(MenuPrincipal);
    MdiArea->setBackground(QColor(168, 185, 200));
    MontarJanelaMenu();
}

void TPrincipalMDIF::FormCloseQuery(QObject *sender, bool &pode)
{
    TForm::FormCloseQuery(sender, pode);
    pode = pode && FecharFilhos();
}

void TPrincipalMDIF::MontarJanelaMenu()
{
    JanelaMenu = MenuPrincipal->addMenu(QStringLiteral("&Janela"));
    LadoALadoAction->setIcon(IconeSvg(QStringLiteral("lado-a-lado")));
    EmCascataAction->setIcon(IconeSvg(QStringLiteral("cascata")));
    FecharJanelaAction->setIcon(IconeSvg(QStringLiteral("fechar")));
    LadoALadoAction->OnExecute = [this](QObject *) { MdiArea->tileSubWindows(); };
    EmCascataAction->OnExecute = [this](QObject *) { MdiArea->cascadeSubWindows(); };
    ProximaAction->OnExecute = [this](QObject *) { MdiArea->activateNextSubWindow(); };
    FecharJanelaAction->OnExecute = [this](QObject *) {
        if (TForm *form = FilhoAtivo())
            form->Close();
    };
    FecharTodasAction->OnExecute = [this](QObject *) { FecharFilhos(); };
    const auto comFilhos = [this](QObject *quem) {
        static_cast<TAction *>(quem)->SetEnabled(!Filhos().isEmpty());
    };
    for (TAction *acao :
         {LadoALadoAction, EmCascataAction, ProximaAction, FecharJanelaAction, FecharTodasAction}) {
        acao->OnUpdate = comFilhos;
        JanelaMenu->addAction(acao);
    }
    Ligar(JanelaMenu, &QMenu::aboutToShow, this, [this] { ListarJanelas(); });
}

/** The open windows at the end of the menu, the active one marked. */
void TPrincipalMDIF::ListarJanelas()
{
    const QString marca = QStringLiteral("janela");
    const QList<QAction *> itens = JanelaMenu->actions();
    for (QAction *item : itens)
        if (item->objectName() == marca)
            delete item;
    const QList<TForm *> filhos = Filhos();
    if (filhos.isEmpty())
        return;
    JanelaMenu->addSeparator()->setObjectName(marca);
    for (TForm *form : filhos) {
        QString titulo = form->windowTitle();
        QAction *item = JanelaMenu->addAction(titulo.replace(u'&', QStringLiteral("&&")));
        item->setObjectName(marca);
        item->setCheckable(true);
        item->setChecked(form == FilhoAtivo());
        Ligar(item, &QAction::triggered, form, [form] { form->Show(); });
    }
}

} // namespace ficha
