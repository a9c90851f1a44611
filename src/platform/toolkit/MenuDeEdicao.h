#pragma once

#include <functional>

class QMenu;
class QWidget;

namespace ficha
{

/** What the context menu of an edit offers; a command that is not possible now is shown grey. */
struct TComandosDeEdicao {
    std::function<void()> Desfazer, Refazer, Recortar, Copiar, Colar, Excluir, SelecionarTudo;
    bool PodeDesfazer = false;
    bool PodeRefazer = false;
    bool TemSelecao = false;
    bool PodeColar = false;
    bool TemTexto = false;
    bool SomenteLeitura = false;
};

/** The context menu of an edit, in Portuguese; owned by the widget, destroyed when it closes. */
QMenu *NovoMenuDeEdicao(QWidget *dono, const TComandosDeEdicao &comandos);

} // namespace ficha
