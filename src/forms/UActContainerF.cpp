#include "forms/UActContainerF.h"

#include "platform/toolkit/Alinhamento.h"

#include <QKeyEvent>

namespace ficha
{

FICHA_REGISTRAR(TActContainerF)

TActContainerF::TActContainerF(TChave chave) : TBasF(chave) {}

void TActContainerF::Atualizar()
{
    TBasF::Atualizar();
    if (ActFr)
        ActFr->Atualizar();
}

void TActContainerF::FormShow(QObject *sender)
{
    TBasF::FormShow(sender);
    if (!ActFr)
        return;
    Alinhar(ActFr, alClient);
    ActFr->show();
    ActFr->raise(); // above the form's own panel
    ArrumarConteiner(this);
    SelectNext(nullptr);
}

void TActContainerF::keyPressEvent(QKeyEvent *evento)
{
    TBasF::keyPressEvent(evento);
    if (evento->isAccepted() || evento->key() != Qt::Key_Escape || evento->modifiers())
        return;
    evento->accept();
    Close();
}

} // namespace ficha
