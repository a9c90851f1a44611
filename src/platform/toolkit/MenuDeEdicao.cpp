#include "platform/toolkit/MenuDeEdicao.h"

#include "platform/toolkit/Evento.h"

#include <QAction>
#include <QMenu>

namespace ficha
{

namespace
{

void Comando(QMenu *menu, const QString &texto, const char *atalho, bool pode,
             const std::function<void()> &fazer)
{
    // The edit handles the keys itself; the menu only shows them.
    const QString rotulo = atalho ? texto + u'\t' + QString::fromLatin1(atalho) : texto;
    QAction *acao = menu->addAction(rotulo);
    acao->setEnabled(pode);
    Ligar(acao, &QAction::triggered, menu, [fazer] { fazer(); });
}

} // namespace

QMenu *NovoMenuDeEdicao(QWidget *dono, const TComandosDeEdicao &c)
{
    auto *menu = new QMenu(dono);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const bool escreve = !c.SomenteLeitura;
    Comando(menu, QStringLiteral("&Desfazer"), "Ctrl+Z", escreve && c.PodeDesfazer, c.Desfazer);
    Comando(menu, QStringLiteral("&Refazer"), "Ctrl+Shift+Z", escreve && c.PodeRefazer, c.Refazer);
    menu->addSeparator();
    Comando(menu, QStringLiteral("Re&cortar"), "Ctrl+X", escreve && c.TemSelecao, c.Recortar);
    Comando(menu, QStringLiteral("C&opiar"), "Ctrl+C", c.TemSelecao, c.Copiar);
    Comando(menu, QStringLiteral("Co&lar"), "Ctrl+V", escreve && c.PodeColar, c.Colar);
    Comando(menu, QStringLiteral("&Excluir"), nullptr, escreve && c.TemSelecao, c.Excluir);
    menu->addSeparator();
    Comando(menu, QStringLiteral("Selecionar &tudo"), "Ctrl+A", c.TemTexto, c.SelecionarTudo);
    return menu;
}

} // namespace ficha
