#include "demo/UComercialF.h"

#include "demo/UCepsF.h"
#include "demo/UClientesF.h"
#include "demo/UGruposF.h"
#include "demo/UMostruarioF.h"
#include "demo/UPlanoDeContasF.h"
#include "demo/UProdutosF.h"
#include "demo/UVendasF.h"
#include "platform/database/ConexD.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"

#include <QMenu>

using namespace ficha;

namespace comercial
{

void TComercialF::FormCreate(QObject *sender)
{
    TPrincipalMDIF::FormCreate(sender);
    SetCaption(QStringLiteral("Comercial"));
    MontarMenus();
    if (const TSQLConnection *conexao = ConexD().SQLConnection)
        SetStatus(QStringLiteral("Banco de dados: ") + conexao->DatabaseName);
}

bool TComercialF::AbrirTela(const QString &nome)
{
    for (TAction *acao : ActionList1->Actions()) {
        if (acao->GetCaption().remove(u'&').compare(nome, Qt::CaseInsensitive) == 0)
            return acao->Execute();
    }
    return false;
}

void TComercialF::MontarMenus()
{
    const auto acao = [this](QMenu *menu, const QString &caption, const QKeySequence &tecla,
                             std::function<void()> executar) {
        auto *nova = new TAction(ActionList1);
        nova->SetCaption(caption);
        nova->SetShortCut(tecla);
        nova->OnExecute = [executar = std::move(executar)](QObject *) { executar(); };
        menu->addAction(nova);
    };
    QMenu *cadastros = AcrescentarMenu(QStringLiteral("&Cadastros"));
    acao(cadastros, QStringLiteral("&Grupos"), Qt::Key_F2, [this] { Abrir<TGruposF>(); });
    acao(cadastros, QStringLiteral("&Produtos"), Qt::Key_F3, [this] { Abrir<TProdutosF>(); });
    acao(cadastros, QStringLiteral("C&lientes"), Qt::Key_F4, [this] { Abrir<TClientesF>(); });
    acao(cadastros, QStringLiteral("&CEPs"), Qt::Key_F7, [this] { Abrir<TCepsF>(); });
    acao(cadastros, QStringLiteral("Pl&ano de contas"), Qt::Key_F6,
         [this] { Abrir<TPlanoDeContasF>(); });
    acao(cadastros, QStringLiteral("&Mostruário"), Qt::Key_F9, [this] { Abrir<TMostruarioF>(); });
    cadastros->addSeparator();
    acao(cadastros, QStringLiteral("&Sair"), Qt::ALT | Qt::Key_F4, [this] { Close(); });
    QMenu *movimento = AcrescentarMenu(QStringLiteral("&Movimento"));
    acao(movimento, QStringLiteral("&Vendas"), Qt::Key_F5, [this] { Abrir<TVendasF>(); });
}

} // namespace comercial
