#include "platform/toolkit/TActionList.h"

#include "platform/toolkit/Ocioso.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TImageList.h"

namespace ficha
{

TActionList::TActionList(QWidget *owner) : QObject(owner), dono(owner)
{
    AoOcioso(this, [this] {
        if (dono->isVisible())
            Atualizar();
    });
}

TActionList::~TActionList()
{
    for (TAction *acao : acoes)
        acao->lista = nullptr;
}

TAction *TActionList::ActionByName(const QString &nome) const
{
    for (TAction *acao : acoes)
        if (acao->objectName() == nome)
            return acao;
    return nullptr;
}

TImageList *TActionList::GetImages() const
{
    return imagens;
}

void TActionList::SetImages(TImageList *lista)
{
    if (lista == imagens)
        return;
    disconnect(mudanca);
    imagens = lista;
    const auto mostrar = [this] {
        for (TAction *acao : acoes)
            acao->AtualizarIcone();
    };
    if (lista)
        mudanca = connect(lista, &TImageList::Change, this, mostrar);
    mostrar();
}

void TActionList::Atualizar()
{
    QList<QPointer<TAction>> vivas;
    for (TAction *acao : acoes)
        if (acao->OnUpdate)
            vivas << acao;
    for (const QPointer<TAction> &acao : vivas)
        if (acao)
            acao->Update();
}

void TActionList::Entrar(TAction *acao)
{
    acoes << acao;
}

void TActionList::Sair(TAction *acao)
{
    acoes.removeAll(acao);
}

} // namespace ficha
