#include "demo/UItensDaVendaFr.h"

#include "input/UNumDiagF.h"
#include "input/UNumEditBRBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/FormatFloat.h"
#include "platform/support/Mensagens.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QLabel>

#include <memory>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TItensDaVendaFr)

namespace
{

enum TColuna { Numero, Produto, Quantidade, Preco, Total, Colunas };

constexpr int MaiorQuantidade = 9999;

QString Dinheiro(double valor)
{
    return FormatFloat(QStringLiteral("###,###,##0.00"), valor);
}

} // namespace

void TItensDaVendaFr::Create(QWidget *owner)
{
    TSQLGridBasFr::Create(owner);
    const std::pair<const char16_t *, int> colunas[] = {
        {u"Item", 40}, {u"Produto", 270}, {u"Quantidade", 76}, {u"Preço", 76}, {u"Total", 84}};
    StringGrid1->SetColCount(Colunas);
    for (int i = 0; i < Colunas; ++i) {
        StringGrid1->SetCell(i, 0, QString::fromUtf16(colunas[i].first));
        StringGrid1->SetColWidth(i, colunas[i].second);
    }
    StringGrid1->SetRowSelect(true);
    StringGrid1->SetDefaultDrawing(false);
    StringGrid1->OnDrawCell = [this](QObject *, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado) {
        StringGridDrawCell(StringGrid1, pintor, col, row, area, estado, nullptr, -1, 2, 1, true,
                           &colsInfo, true, false, TColor(), QStringLiteral("%@#"));
    };
    StringGrid1->OnDblClick = [this](QObject *) { AltAction->Execute(); };
    // Nothing of this is printed.
    ImprAction->SetVisible(false);
    ToolButton2->hide();
    InsAction->SetHint(QStringLiteral("Acrescentar o produto escolhido"));
    AltAction->SetHint(QStringLiteral("Alterar a quantidade"));
    ExclAction->SetHint(QStringLiteral("Excluir o item"));
    InsAction->OnUpdate = [this](QObject *) { InsAction->SetEnabled(venda > 0); };
    AltAction->OnUpdate = [this](QObject *) { AltAction->SetEnabled(Item() > 0); };
    ExclAction->OnUpdate = [this](QObject *) {
        ExclAction->SetEnabled(Item() > 0 && StringGrid1->GetRowCount() > 2);
    };
    InsAction->OnExecute = [this](QObject *) { Inserir(); };
    AltAction->OnExecute = [this](QObject *) { Alterar(); };
    ExclAction->OnExecute = [this](QObject *) { Excluir(); };
    Reler();
}

Variant TItensDaVendaFr::GetValor() const
{
    return venda;
}

void TItensDaVendaFr::SetValor(const Variant &valor)
{
    TSQLGridBasFr::SetValor(valor);
    venda = valor.AsInteger();
    Reler();
}

void TItensDaVendaFr::Zerar()
{
    TSQLGridBasFr::Zerar();
    SetValor(0);
}

void TItensDaVendaFr::Reler()
{
    StringGrid1->SetRowCount(2);
    StringGrid1->LimparLinha(1);
    if (venda == 0)
        return;
    TCustomBRSQL itens(QStringLiteral("select item, descricao, quantidade, preco from vendas_itens "
                                      "where vendas_cod=%1 order by item")
                           .arg(venda));
    for (int row = 1; !itens.Eof(); itens.Next(), ++row) {
        const int quantidade = itens.Fields(2)->AsInteger();
        const double preco = itens.Fields(3)->AsFloat();
        if (row >= StringGrid1->GetRowCount())
            StringGrid1->SetRowCount(row + 1);
        StringGrid1->SetCell(Numero, row, itens.Fields(0)->AsString());
        StringGrid1->SetCell(Produto, row, itens.Fields(1)->AsString());
        StringGrid1->SetCell(Quantidade, row, QString::number(quantidade));
        StringGrid1->SetCell(Preco, row, Dinheiro(preco));
        StringGrid1->SetCell(Total, row, Dinheiro(quantidade * preco));
    }
    colsInfo.Atualizar(*StringGrid1);
    for (int i = Quantidade; i < Colunas; ++i)
        colsInfo.SetConteudo(i, TConteudoCol::Numero);
}

void TItensDaVendaFr::Inserir()
{
    const int codigo = OnProduto ? OnProduto() : 0;
    const TCustomBRSQL produto(
        QStringLiteral("select descricao from produtos where produtos_cod=%1").arg(codigo));
    if (produto.IsEmpty()) {
        MensagemInfo(QStringLiteral("Escolha antes o produto"));
        return;
    }
    const int quantidade = PedirQuantidade(produto.Fields(0)->AsString(), 1);
    if (quantidade > 0)
        Gravar(QStringLiteral(
                   "insert into vendas_itens (vendas_cod, item, produtos_cod, descricao, "
                   "quantidade, preco) select %1, (select max(item) + 1 from vendas_itens where "
                   "vendas_cod=%1), produtos_cod, descricao, %2, preco from produtos where "
                   "produtos_cod=%3")
                   .arg(venda)
                   .arg(quantidade)
                   .arg(codigo));
}

void TItensDaVendaFr::Alterar()
{
    const int row = StringGrid1->GetRow();
    const int quantidade = PedirQuantidade(StringGrid1->GetCell(Produto, row),
                                           StringGrid1->GetCell(Quantidade, row).toInt());
    if (quantidade > 0)
        Gravar(QStringLiteral("update vendas_itens set quantidade=%1 where vendas_cod=%2 and "
                              "item=%3")
                   .arg(quantidade)
                   .arg(venda)
                   .arg(Item()));
}

void TItensDaVendaFr::Excluir()
{
    if (PerguntaDeletar())
        Gravar(QStringLiteral("delete from vendas_itens where vendas_cod=%1 and item=%2")
                   .arg(venda)
                   .arg(Item()));
}

int TItensDaVendaFr::Item() const
{
    return StringGrid1->GetCell(Numero, StringGrid1->GetRow()).toInt();
}

int TItensDaVendaFr::PedirQuantidade(const QString &produto, int quantidade)
{
    const std::unique_ptr<TNumDiagF> dialogo(Criar<TNumDiagF>(this));
    TNumEditBRBasFr *numero = dialogo->NumEditBRBasFr;
    dialogo->TitLabel->setText(produto);
    numero->NumEditBR1->SetCaption(QStringLiteral("Quantidade"));
    numero->Minimo = 1;
    numero->TemMaximo = true;
    numero->Maximo = MaiorQuantidade;
    numero->SetValor(quantidade);
    return dialogo->Executar() ? numero->GetValor().AsInteger() : 0;
}

void TItensDaVendaFr::Gravar(const QString &sql)
{
    const int row = StringGrid1->GetRow();
    ConexD().Executar(sql);
    Reler();
    StringGrid1->SetRow(row);
    if (OnMudou)
        OnMudou();
}

} // namespace comercial
