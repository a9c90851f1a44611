#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"
#include "records/UTabelaLinear.h"

namespace ficha
{

/**
 * The user has changed the text of an edit: asks for an alteration where none is open.
 *
 * A screen without records starts an insertion instead, which empties every input: what the user
 * has just entered is put back, as a key that lands after its handler would. Where the screen
 * refuses, the stored value comes back. Answers whether the text was put back.
 */
template <typename TEdit>
bool EditadoPeloUsuario(TDBControlBasFr &frame, TEdit &edit, TPedidoDeEdicao &pedido)
{
    if (!frame.Tabela || frame.Tabela->Status != TStatus::Ocioso)
        return false;
    const QString texto = edit.GetText();
    const QPointer<QWidget> vivo(&frame);
    pedido.Depois();
    const bool aberta = vivo && frame.Tabela && frame.Tabela->Status != TStatus::Ocioso;
    if (!aberta || edit.GetText() == texto)
        return false;
    edit.SetText(texto);
    return true;
}

} // namespace ficha
