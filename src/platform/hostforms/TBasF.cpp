#include "platform/hostforms/TBasF.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TFrame.h"
#include "platform/toolkit/TPanel.h"

#include <QVariant>

namespace ficha
{

FICHA_REGISTRAR(TBasF)

TBasF::TBasF(TChave chave) : TForm(chave) {}

QString TBasF::TextoCaption()
{
    return captionBase;
}

void TBasF::Atualizar()
{
    TForm::SetCaption(TextoCaption());
}

void TBasF::SetCaption(const QString &texto)
{
    captionBase = texto;
    TForm::SetCaption(texto);
}

void TBasF::PegarComponentes()
{
    TForm::PegarComponentes();
    Pegar(this, Panel1, "Panel1");
    Pegar(this, ActionList1, "ActionList1");
    Pegar(this, FecharAction, "FecharAction");
    FecharAction->OnExecute = [this](QObject *sender) { FecharActionExecute(sender); };
    FecharAction->OnUpdate = [this](QObject *sender) { FecharActionUpdate(sender); };
}

void TBasF::FecharActionExecute(QObject *)
{
    Close();
}

void TBasF::FecharActionUpdate(QObject *)
{
    Atualizar();
}

bool TBasF::SelecionarTag1()
{
    QWidget *primeiro = nullptr;
    PercorrerFilhos(this, [&](QWidget *w) {
        if (!primeiro && w->isVisible() && w->isEnabled() && w->property("tag").toInt() == 1)
            primeiro = w;
        return !primeiro && w->isVisible() && !qobject_cast<TFrame *>(w);
    });
    if (auto *quadro = qobject_cast<TFrame *>(primeiro))
        quadro->SetFocus();
    else if (primeiro)
        primeiro->setFocus(Qt::OtherFocusReason);
    return primeiro;
}

} // namespace ficha
