#include "demo/UPasseio.h"

#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/TForm.h"

#include <QApplication>
#include <QProcess>
#include <QTest>
#include <QTimer>

#include <cstdio>

using namespace ficha;

namespace comercial
{

namespace
{
void Dizer(const QString &texto)
{
    std::fputs((texto + u'\n').toUtf8().constData(), stdout);
    std::fflush(stdout);
}

QWidget *Alvo()
{
    if (QWidget *modal = QApplication::activeModalWidget())
        return modal->focusWidget() ? modal->focusWidget() : modal;
    QWidget *foco = QApplication::focusWidget();
    return foco ? foco : QApplication::activeWindow();
}
} // namespace

TPasseio::TPasseio(TComercialF &principal, TSQLConnection &banco, const QDir &destino)
    : janela(principal), conexao(banco), pasta(destino)
{
    for (const QString &velha : pasta.entryList({QStringLiteral("*.png")}))
        pasta.remove(velha);
}

void TPasseio::Executar()
{
    janela.resize(900, 640);
    janela.show();
    Assentar();
    MostrarBanco("Antes");
    Grupos();
    InsercaoRecusada();
    Alteracao();
    Busca();
    Exclusao();
    Produtos();
    PerguntaAoFechar();
    SegundoPrograma();
    MostrarBanco("Depois");
    Dizer(QStringLiteral("%1 telas fotografadas").arg(fotos));
}

void TPasseio::MostrarBanco(const char *titulo)
{
    Dizer(QStringLiteral("== %1: %2 grupos, %3 produtos")
              .arg(QString::fromUtf8(titulo),
                   DoBanco(QStringLiteral("select count(*) from grupos")),
                   DoBanco(QStringLiteral("select count(*) from produtos"))));
    TCustomBRSQL grupos(
        QStringLiteral("select grupos_cod, descricao from grupos order by grupos_cod"));
    for (; !grupos.Eof(); grupos.Next())
        Dizer(QStringLiteral("   %1  %2")
                  .arg(grupos.Fields(0)->AsString(), 3)
                  .arg(grupos.Fields(1)->AsString()));
    const TCustomBRSQL ultimo(QStringLiteral(
        "select first 1 p.produtos_cod, p.descricao, g.descricao, p.preco from produtos p "
        "join grupos g on g.grupos_cod = p.grupos_cod order by p.produtos_cod desc"));
    Dizer(QStringLiteral("   último produto: %1 %2 (%3) R$ %4")
              .arg(ultimo.Fields(0)->AsString(), ultimo.Fields(1)->AsString(),
                   ultimo.Fields(2)->AsString(), ultimo.Fields(3)->AsString()));
}

void TPasseio::Grupos()
{
    AbrirTela(Qt::Key_G);
    Foto(QStringLiteral("grupos-lista"));
    Tecla(Qt::Key_Tab, Qt::ControlModifier);
    Foto(QStringLiteral("grupos-campos"));
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("Brinquedos"));
    Foto(QStringLiteral("grupos-inserindo"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select count(*) from grupos where descricao='Brinquedos'")) ==
               QStringLiteral("1"),
           "o grupo inserido");
    Foto(QStringLiteral("grupos-inserido"));
}

void TPasseio::InsercaoRecusada()
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("BEBIDAS"));
    ResponderCaixa(QStringLiteral("grupos-insercao-recusada"), Qt::Key_Return);
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(
        DoBanco(QStringLiteral("select count(*) from grupos where upper(descricao)='BEBIDAS'")) ==
            QStringLiteral("1"),
        "a repetição recusada");
    Foto(QStringLiteral("grupos-continua-inserindo"));
    Tecla(Qt::Key_Escape);
}

void TPasseio::Alteracao()
{
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral(" e grãos"));
    Foto(QStringLiteral("grupos-alterando"));
    Tecla(Qt::Key_Return, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral(
               "select count(*) from grupos where descricao='Alimentos básicos e grãos'")) ==
               QStringLiteral("1"),
           "o grupo alterado");
    Foto(QStringLiteral("grupos-alterado"));
}

void TPasseio::Busca()
{
    janela.TelaAtiva()->findChild<TPageControl *>()->SetActivePageIndex(0);
    Assentar();
    Tecla(Qt::Key_L, Qt::ControlModifier);
    Assentar();
    Foto(QStringLiteral("busca"), QApplication::activeWindow());
    Tecla(Qt::Key_Escape);
}

void TPasseio::Exclusao() {}

void TPasseio::Produtos() {}

void TPasseio::PerguntaAoFechar() {}

void TPasseio::SegundoPrograma() {}

} // namespace comercial
