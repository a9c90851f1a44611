#include "demo/UPasseio.h"

#include "demo/UContasFr.h"
#include "demo/UItensDaVendaFr.h"
#include "demo/UPeriodoFr.h"
#include "demo/UPesquisaDeVendasFr.h"
#include "demo/USelectProdutosFr.h"
#include "demo/UVendasFr.h"
#include "forms/UBotaoFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TForm.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QApplication>
#include <QLabel>
#include <QTest>

/* The tour of the lists: the sales, and the chart of accounts. */

using namespace ficha;

namespace comercial
{

namespace
{
constexpr QSize TamanhoParaAsListas(1060, 700);
}

void TPasseio::Listas()
{
    const QSize antes = janela.size();
    janela.resize(TamanhoParaAsListas);
    Vendas();
    PlanoDeContas();
    janela.resize(antes);
}

void TPasseio::Vendas()
{
    Tecla(Qt::Key_F5);
    Foto(QStringLiteral("vendas"));
    auto *lista = Achar<TVendasFr>("ListaFr");
    OrdemDasVendas();
    ProdutoDasVendas();
    PesquisaDeVendas();
    // Yesterday's, by typing the day twice.
    const QString ontem = FormatDateTime(QStringLiteral("ddmmyyyy"), TDateTime(Hoje().Dias() - 1));
    auto *periodo = Achar<TPeriodoFr>("PeriodoFr");
    DigitarEm(periodo->MaskEdit1, ontem);
    DigitarEm(periodo->MaskEdit2, ontem);
    Tecla(Qt::Key_Return);
    Exigir(lista->CDS->RecordCount() == 5, "mostrar as vendas de um só dia");
    Foto(QStringLiteral("vendas-de-um-dia"));
    DialogosDaVenda();
    Tecla(Qt::Key_F4, Qt::ControlModifier);
}

/** By what they come to: rising, and falling with the second click. */
void TPasseio::OrdemDasVendas()
{
    constexpr int Liquido = 6;
    auto *lista = Achar<TVendasFr>("ListaFr");
    TDBGrid *grid = lista->DBGrid1;
    for (const bool crescente : {true, false}) {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, Qt::NoModifier,
                          grid->CellRect(Liquido, 0).center());
        Tecla(Qt::Key_Home, Qt::ControlModifier);
        Exigir(lista->CampoOrdem == QStringLiteral("liquido") && lista->Ascendente == crescente,
               "ordenar as vendas pelo título");
        Foto(crescente ? QStringLiteral("vendas-ordem-crescente")
                       : QStringLiteral("vendas-ordem-decrescente"));
    }
}

/** Out of the list that drops under the edit. */
void TPasseio::ProdutoDasVendas()
{
    auto *lista = Achar<TVendasFr>("ListaFr");
    auto *select = Achar<TSelectProdutosFr>("SelectFr");
    auto *edit = Achar<TLabeledEdit>("ProdutoEdit");
    const int todas = lista->CDS->RecordCount();
    DigitarEm(edit, QStringLiteral("cafe"));
    Tecla(Qt::Key_Down);
    Exigir(select->isVisible(), "abrir a lista de produtos ao digitar");
    Foto(QStringLiteral("vendas-lista-de-produtos"));
    Tecla(Qt::Key_Return);
    Exigir(!select->isVisible() && lista->CDS->RecordCount() > 0 &&
               lista->CDS->RecordCount() < todas,
           "mostrar as vendas de um produto");
    Foto(QStringLiteral("vendas-de-um-produto"));
    DigitarEm(edit, QString());
    Tecla(Qt::Key_Delete);
    Tecla(Qt::Key_Escape);
    Exigir(lista->CDS->RecordCount() == todas, "voltar a todos os produtos");
}

/** By a part of the client's name; then the panel folds away. */
void TPasseio::PesquisaDeVendas()
{
    auto *painel = Achar<TPesquisaDeVendasFr>("PesquisaFr");
    DigitarEm(painel->ClienteFr->LabeledEdit1, QStringLiteral("silva"));
    Tecla(Qt::Key_Return);
    Exigir(painel->ListaFr->CDS->FieldByName(QStringLiteral("cliente"))
               ->AsString()
               .contains(QStringLiteral("Silva")),
           "pesquisar as vendas por cliente");
    Foto(QStringLiteral("vendas-pesquisa"));
    Clicar(painel->SplitterPanel);
    Exigir(!painel->Panel1->isVisible(), "recolher o painel de pesquisa");
    Foto(QStringLiteral("vendas-painel-recolhido"));
    Clicar(painel->SplitterPanel);
    Clicar(Achar<TToolButton>("LimparToolButton"));
}

void TPasseio::DialogosDaVenda()
{
    auto *lista = Achar<TVendasFr>("ListaFr");
    const QString venda = QString::number(lista->Venda());
    const auto coluna = [&](const char *nome) {
        return DoBanco(QStringLiteral("select %1 from vendas where vendas_cod=%2")
                           .arg(QString::fromLatin1(nome), venda));
    };
    NaCaixa([this](QWidget *caixa) {
        Digitar(QStringLiteral("7,5"));
        Foto(QStringLiteral("vendas-desconto"), caixa);
        Tecla(Qt::Key_Return);
        Tecla(Qt::Key_Return);
    });
    Tecla(Qt::Key_D, Qt::ControlModifier);
    Exigir(coluna("desconto") == QStringLiteral("7,5"), "dar um desconto a uma venda");
    NaCaixa([this](QWidget *caixa) {
        Digitar(QStringLiteral("Entregar de manhã"));
        Foto(QStringLiteral("vendas-observacao"), caixa);
        Clicar(caixa->findChild<TBitBtn *>(QStringLiteral("OkBitBtn")));
    });
    Tecla(Qt::Key_O, Qt::ControlModifier);
    Exigir(coluna("observacao") == QStringLiteral("Entregar de manha"), "anotar algo numa venda");
    NaCaixa([this](QWidget *caixa) {
        Digitar(QStringLiteral("12"));
        Foto(QStringLiteral("vendas-quantidade"), caixa);
        Tecla(Qt::Key_Return);
        Tecla(Qt::Key_Return);
    });
    Clicar(Achar<TItensDaVendaFr>("ItensFr")->AltToolButton);
    Exigir(DoBanco(QStringLiteral("select quantidade from vendas_itens where item=1 and "
                                  "vendas_cod=") +
                   venda) == QStringLiteral("12"),
           "alterar a quantidade de um item");
    Foto(QStringLiteral("vendas-alterada"));
}

void TPasseio::PlanoDeContas()
{
    Tecla(Qt::Key_F6);
    auto *contas = Achar<TContasFr>("ContasFr");
    TStringGrid *grid = contas->StringGrid1;
    const int linhas = grid->GetRowCount();
    Foto(QStringLiteral("contas"));
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Plus);
    Exigir(grid->GetRowCount() > linhas, "abrir uma conta");
    Foto(QStringLiteral("contas-aberta"));
    Tecla(Qt::Key_Minus);
    Exigir(grid->GetRowCount() == linhas, "fechar uma conta");
    Clicar(Achar<TBotaoFr>("ExpandirFr")->Image1);
    Exigir(grid->GetRowCount() == 59, "abrir todas as contas");
    Foto(QStringLiteral("contas-todas"));
    Clicar(Achar<TBotaoFr>("RecolherFr")->Image1);
    Exigir(grid->GetRowCount() == 5, "fechar todas as contas");
    Foto(QStringLiteral("contas-fechadas"));
    DigitarEm(Achar<TLabeledEdit>("LabeledEdit1"), QStringLiteral("salarios"));
    Tecla(Qt::Key_Return);
    Exigir(contas->Atual()->Codigo == QStringLiteral("2.1.02.01"), "achar uma conta pelo nome");
    Foto(QStringLiteral("contas-achada"));
    NaCaixa([this](QWidget *caixa) {
        DigitarEm(QApplication::focusWidget(), QStringLiteral("Salários e ordenados"));
        Foto(QStringLiteral("contas-descricao"), caixa);
        Tecla(Qt::Key_Return);
    });
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Exigir(DoBanco(QStringLiteral("select descricao from contas where codigo='2.1.02.01'")) ==
               QStringLiteral("Salários e ordenados"),
           "mudar a descrição de uma conta");
    ResponderCaixa(QStringLiteral("contas-ampliado"), Qt::Key_Escape);
    Clicar(contas->AmplToolButton);
    Exigir(!QApplication::activeModalWidget(), "fechar a janela ampliada");
    Tecla(Qt::Key_F4, Qt::ControlModifier);
}

} // namespace comercial
