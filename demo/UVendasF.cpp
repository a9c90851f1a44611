#include "demo/UVendasF.h"

#include "dates/UComboCodOpcionalFr.h"
#include "demo/UItensDaVendaFr.h"
#include "demo/UPeriodoFr.h"
#include "demo/UPesquisaDeVendasFr.h"
#include "demo/USelectProdutosFr.h"
#include "demo/UVendasFr.h"
#include "forms/UBotaoHelpFr.h"
#include "forms/UMemoDiagBasF.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDisplayFloatFr.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UPercDiagF.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TClientManager.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/TDBGrid.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMemo.h"

#include <QLabel>

#include <memory>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TVendasF)

namespace
{

const char16_t Ajuda[] =
    u"Vendas\r\n"
    "O período vale ao sair dele ou com Enter.\r\n"
    "Produto: um código ou uma parte do nome, e Enter, mostra só as vendas dele.\r\n"
    "Um clique no título de uma coluna ordena por ela; outro clique, ao contrário.\r\n"
    "A faixa à direita abre e fecha a pesquisa.\r\n"
    "Ctrl+D: desconto da venda\r\n"
    "Ctrl+O: observação da venda\r\n"
    "Ctrl+N: ir para uma venda pelo número";

QString Coluna(int venda, const char *coluna)
{
    const TCustomBRSQL sql(QStringLiteral("select %1 from vendas where vendas_cod=%2")
                               .arg(QString::fromLatin1(coluna))
                               .arg(venda));
    return sql.IsEmpty() ? QString() : sql.Fields(0)->AsString();
}

void Gravar(int venda, const char *coluna, const QString &valor)
{
    ConexD().Executar(QStringLiteral("update vendas set %1=%2 where vendas_cod=%3")
                          .arg(QString::fromLatin1(coluna), valor, QString::number(venda)));
}

} // namespace

void TVendasF::PegarComponentes()
{
    TChildMDIBasF::PegarComponentes();
    Pegar(this, PeriodoFr, "PeriodoFr");
    Pegar(this, ProdutoEdit, "ProdutoEdit");
    Pegar(this, SelectFr, "SelectFr");
    Pegar(this, AjudaFr, "AjudaFr");
    Pegar(this, PesquisaFr, "PesquisaFr");
    Pegar(this, QuantasFr, "QuantasFr");
    Pegar(this, BrutoFr, "BrutoFr");
    Pegar(this, DescontosFr, "DescontosFr");
    Pegar(this, LiquidoFr, "LiquidoFr");
    Pegar(this, DescontoAct, "DescontoAct");
    Pegar(this, ObservacaoAct, "ObservacaoAct");
    Pegar(this, IrParaAct, "IrParaAct");
}

void TVendasF::FormCreate(QObject *sender)
{
    TChildMDIBasF::FormCreate(sender);
    ActionList1->SetImages(SisD().ImageList16);
    PesquisaFr->GrupoFr->ComboBoxCodFr->SetSQLText(
        QStringLiteral("select grupos_cod, descricao from grupos order by descricao"));
    PeriodoFr->UltimosTrintaDias();
    PeriodoFr->OnMudou = [this] { Reler(); };
    PesquisaFr->OnExecutar = [this] { Reler(); };
    PesquisaFr->ListaFr->OnVenda = [this] {
        PesquisaFr->ItensFr->SetValor(PesquisaFr->ListaFr->Venda());
    };
    SelectFr->PegarBuscaLabeledEdit(ProdutoEdit);
    SelectFr->OnEnviar = [this](QObject *) {
        ProdutoEdit->SetText(SelectFr->Descricao());
        EscolherProduto(SelectFr->Cod());
    };
    SelectFr->OnVazio = [this] { EscolherProduto(0); };
    PesquisaFr->ItensFr->OnMudou = [this] { Reler(); };
    AjudaFr->OnClick = [](QObject *) { MensagemInfo(QString::fromUtf16(Ajuda)); };
    LigarAcoes();
}

void TVendasF::LigarAcoes()
{
    for (TAction *acao : {DescontoAct, ObservacaoAct, IrParaAct})
        acao->OnUpdate = [this, acao](QObject *) {
            acao->SetEnabled(PesquisaFr->ListaFr->Venda() > 0);
        };
    DescontoAct->OnExecute = [this](QObject *) { PedirDesconto(); };
    ObservacaoAct->OnExecute = [this](QObject *) { PedirObservacao(); };
    IrParaAct->OnExecute = [this](QObject *) { IrParaVenda(); };
}

void TVendasF::FormShow(QObject *sender)
{
    TChildMDIBasF::FormShow(sender);
    PrepararLista();
    PesquisaFr->ListaFr->DoShow();
    MostrarTotais();
    SetActiveControl(PesquisaFr->ListaFr->DBGrid1);
}

void TVendasF::FormActivate(QObject *sender)
{
    TChildMDIBasF::FormActivate(sender);
    SelectFr->ClientManager1->Invalidar();
}

void TVendasF::PrepararLista()
{
    TVendasFr *lista = PesquisaFr->ListaFr;
    lista->Condicoes = PesquisaFr->Condicoes();
    lista->Condicoes << PeriodoFr->WhereStr(QStringLiteral("v.data"));
    if (produto > 0)
        lista->Condicoes << QStringLiteral("exists(select 1 from vendas_itens y where "
                                           "y.vendas_cod = v.vendas_cod and y.produtos_cod=%1)")
                                .arg(produto);
    lista->CondicaoDoBruto = PesquisaFr->CondicaoDoBruto();
}

void TVendasF::Reler()
{
    PrepararLista();
    PesquisaFr->ListaFr->Reler();
    MostrarTotais();
}

void TVendasF::MostrarTotais()
{
    const TVendasFr *lista = PesquisaFr->ListaFr;
    QuantasFr->SetDado1Str(QString::number(lista->Quantas));
    BrutoFr->SetValor(lista->Bruto);
    DescontosFr->SetValor(lista->Descontos);
    LiquidoFr->SetValor(lista->Liquido);
}

void TVendasF::EscolherProduto(int codigo)
{
    if (codigo == produto)
        return;
    produto = codigo;
    Reler();
}

void TVendasF::PedirDesconto()
{
    const int venda = PesquisaFr->ListaFr->Venda();
    const std::unique_ptr<TPercDiagF> dialogo(Criar<TPercDiagF>(this));
    TNumEditBRBasFr *numero = dialogo->NumEditBRBasFr;
    dialogo->TitLabel->setText(QStringLiteral("Desconto da venda %1").arg(venda));
    numero->TemMaximo = true;
    numero->Maximo = 100;
    numero->SetValor(Coluna(venda, "desconto"));
    if (!dialogo->Executar())
        return;
    Gravar(venda, "desconto", numero->SQLString());
    Reler();
}

void TVendasF::PedirObservacao()
{
    const int venda = PesquisaFr->ListaFr->Venda();
    const std::unique_ptr<TMemoDiagBasF> dialogo(Criar<TMemoDiagBasF>(this));
    dialogo->MemoTitLab->setText(QStringLiteral("Observação da venda %1").arg(venda));
    dialogo->Memo1->SetText(Coluna(venda, "observacao"));
    if (dialogo->Executar())
        Gravar(venda, "observacao", QuotedStr(dialogo->Memo1->GetText()));
}

void TVendasF::IrParaVenda()
{
    const std::unique_ptr<TNumDiagF> dialogo(Criar<TNumDiagF>(this));
    dialogo->TitLabel->setText(QStringLiteral("Ir para a venda"));
    dialogo->NumEditBRBasFr->NumEditBR1->SetCaption(QStringLiteral("Número"));
    if (!dialogo->Executar())
        return;
    const int venda = dialogo->NumEditBRBasFr->GetValor().AsInteger();
    if (!PesquisaFr->ListaFr->IrPara(venda))
        MensagemAviso(QStringLiteral("A venda %1 não está na lista").arg(venda));
}

} // namespace comercial
