#include "demo/UVendasF.h"

#include "NoComercial.h"
#include "demo/UItensDaVendaFr.h"
#include "demo/UPeriodoFr.h"
#include "demo/UPesquisaDeVendasFr.h"
#include "demo/USelectProdutosFr.h"
#include "demo/UVendasFr.h"
#include "forms/UBotaoHelpFr.h"
#include "grids/USelectCodBasFr.h"
#include "input/UDisplayFloatFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/database/Colacao.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Datas.h"
#include "platform/support/FormatFloat.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QLabel>

#include <algorithm>

using namespace ficha;
using ficha::testes::Retratar;

namespace comercial::testes
{

class TVendasFTest : public TNoComercial
{
protected:
    void SetUp() override
    {
        Abrir(Qt::Key_F5);
        lista = Achar<TVendasFr>("ListaFr");
        grid = lista->DBGrid1;
    }
    int Quantas(const QString &onde = {})
    {
        return DoBanco(QStringLiteral("select count(*) from vendas v where v.data >= %1")
                           .arg(DataSQLFirebird(TDateTime(Hoje().Dias() - 29))) +
                       onde)
            .toInt();
    }
    QString Mostrado(const char *nome) const { return Achar<TDisplayFr>(nome)->Dado1Lab->text(); }
    QStringList Coluna(int coluna, int quantas) const
    {
        QStringList textos;
        for (int row = 1; row <= quantas; ++row)
            textos << grid->GetCell(coluna, row);
        return textos;
    }
    /** Enter leaves the number, and presses OK. */
    static void Confirmar()
    {
        Tecla(Qt::Key_Return);
        Tecla(Qt::Key_Return);
    }
    void Periodo(const QString &de, const QString &ate)
    {
        for (const auto &[edit, texto] : {std::pair(Achar<TMaskEdit>("MaskEdit1"), de),
                                          std::pair(Achar<TMaskEdit>("MaskEdit2"), ate)}) {
            DigitarEm(edit, texto);
            if (texto.isEmpty())
                Tecla(Qt::Key_Delete);
        }
        Tecla(Qt::Key_Return);
    }

    TVendasFr *lista = nullptr;
    TDBGrid *grid = nullptr;
};

TEST_F(TVendasFTest, OpensOnTheLastThirtyDaysWithTheirTotals)
{
    Retratar(janela.get(), QStringLiteral("TVendasF"));
    EXPECT_EQ(DoBanco(QStringLiteral("select count(*) from vendas")), QStringLiteral("3000"));
    EXPECT_EQ(lista->CDS->RecordCount(), Quantas());
    EXPECT_EQ(Mostrado("QuantasFr").toInt(), Quantas());
    const double bruto =
        ValorDoBanco(conexao, QStringLiteral("select sum(i.quantidade * i.preco) from vendas v "
                                             "join vendas_itens i on i.vendas_cod = v.vendas_cod "
                                             "where v.data >= ") +
                                  DataSQLFirebird(TDateTime(Hoje().Dias() - 29)))
            .AsFloat();
    EXPECT_EQ(Mostrado("BrutoFr"), FormatFloat(QStringLiteral("###,###,##0.00"), bruto));
    EXPECT_NEAR(lista->Bruto - lista->Descontos, lista->Liquido, 0.005);
    EXPECT_GT(lista->Descontos, 0);
    EXPECT_EQ(grid->GetCell(0, 1), QStringLiteral("3000")) << "the newest first";
    EXPECT_EQ(QApplication::focusWidget(), grid);
}

TEST_F(TVendasFTest, ASaleThatWasPaidAtOnceShowsNoDueDate)
{
    const int avista = DoBanco(QStringLiteral("select max(vendas_cod) from vendas where vencimento "
                                              "is null"))
                           .toInt();
    ASSERT_TRUE(lista->IrPara(avista));
    EXPECT_EQ(grid->GetCell(7, grid->GetRow()), QString());
    ASSERT_TRUE(lista->IrPara(avista - 1));
    EXPECT_NE(grid->GetCell(7, grid->GetRow()), QString());
}

TEST_F(TVendasFTest, ATitleSortsAndTheCurrentSaleStays)
{
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Down);
    const int venda = lista->Venda();
    Clicar(grid->viewport(), grid->CellRect(6, 0).center());
    Retratar(janela.get(), QStringLiteral("TVendasF-ordenada"));
    EXPECT_EQ(lista->Venda(), venda);
    const auto valor = [&](int row) {
        return QString(grid->GetCell(6, row)).remove(u'.').replace(u',', u'.').toDouble();
    };
    const int n = lista->CDS->RecordCount();
    for (int row = 2; row <= n; ++row)
        ASSERT_LE(valor(row - 1), valor(row)) << row;
    Clicar(grid->viewport(), grid->CellRect(6, 0).center());
    for (int row = 2; row <= n; ++row)
        ASSERT_GE(valor(row - 1), valor(row)) << row;
    EXPECT_EQ(lista->Venda(), venda);
}

TEST_F(TVendasFTest, AnotherRangeOfDatesReadsTheListAgain)
{
    const TDateTime ontem(Hoje().Dias() - 1);
    const QString digitos = FormatDateTime(QStringLiteral("ddmmyy"), ontem);
    Periodo(digitos, digitos);
    EXPECT_EQ(lista->CDS->RecordCount(), 5);
    QStringList dias = Coluna(1, 5);
    EXPECT_EQ(dias.removeDuplicates(), 4);
    EXPECT_EQ(grid->GetCell(1, 1), FormatDateTime(QStringLiteral("dd/mm/yyyy"), ontem));
    EXPECT_EQ(Mostrado("QuantasFr"), QStringLiteral("5"));
    // The order chosen by a title stays over a new reading.
    Clicar(grid->viewport(), grid->CellRect(2, 0).center());
    Periodo(QString(), QString());
    EXPECT_EQ(lista->CDS->RecordCount(), 3000);
    const QStringList nomes = Coluna(2, 400);
    EXPECT_TRUE(std::ranges::is_sorted(nomes, [](const QString &a, const QString &b) {
        return TColacao::Comparar(a, b, false) < 0;
    })) << nomes.join(u'\n').toStdString();
}

TEST_F(TVendasFTest, AReadingAnnouncesTheCurrentSaleOnceAtItsEnd)
{
    QList<int> anunciadas;
    lista->OnVenda = [&, antes = lista->OnVenda] {
        anunciadas << lista->Venda();
        antes();
    };
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(anunciadas, (QList{2999, 2998}));
    anunciadas.clear();
    lista->Reler();
    EXPECT_EQ(anunciadas, QList{2998}) << "it stays current";
    // Each of the two dates reads when it is left.
    anunciadas.clear();
    Periodo(QStringLiteral("010150"), QStringLiteral("020150"));
    EXPECT_EQ(anunciadas, (QList{2998, 0}));
    anunciadas.clear();
    Periodo(QString(), QString());
    EXPECT_EQ(anunciadas, (QList{0, 3000}));
    Tecla(Qt::Key_Down);
    anunciadas.clear();
    tela->hide();
    tela->show();
    Assentar();
    EXPECT_EQ(anunciadas, QList{3000}) << "a screen that is shown reads once";
    EXPECT_EQ(Achar<TItensDaVendaFr>("ItensFr")->GetValor(), Variant(3000));
}

TEST_F(TVendasFTest, AnEmptyRangeShowsNothingAndDisablesWhatNeedsASale)
{
    Periodo(QStringLiteral("010150"), QStringLiteral("020150"));
    EXPECT_EQ(lista->CDS->RecordCount(), 0);
    EXPECT_EQ(Mostrado("LiquidoFr"), QStringLiteral("0,00"));
    EXPECT_EQ(Achar<TItensDaVendaFr>("ItensFr")->GetValor(), Variant(0));
    for (const char *botao : {"DescontoBitBtn", "ObservacaoBitBtn", "IrParaBitBtn"})
        EXPECT_FALSE(Achar<TBitBtn>(botao)->isEnabled()) << botao;
    Tecla(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(dialogos, 0);
}

TEST_F(TVendasFTest, TheItemsAreThoseOfTheCurrentSale)
{
    auto *itens = Achar<TItensDaVendaFr>("ItensFr");
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(itens->GetValor(), Variant(lista->Venda()));
        EXPECT_EQ(itens->StringGrid1->GetRowCount() - 1,
                  lista->CDS->FieldByName(QStringLiteral("itens"))->AsInteger());
        Tecla(Qt::Key_Down);
    }
}

TEST_F(TVendasFTest, AQuantityIsAlteredAndTheTotalsFollow)
{
    auto *itens = Achar<TItensDaVendaFr>("ItensFr");
    const int venda = lista->Venda();
    const double antes = lista->Bruto;
    NoDialogo([&](QWidget *dialogo) {
        Retratar(dialogo, QStringLiteral("TVendasF-quantidade"));
        Digitar(QStringLiteral("1000"));
        Confirmar();
    });
    Clicar(itens->AltToolButton);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(DoBanco(QStringLiteral("select quantidade from vendas_itens where vendas_cod=%1 and "
                                     "item=1")
                          .arg(venda)),
              QStringLiteral("1000"));
    EXPECT_EQ(lista->Venda(), venda);
    EXPECT_GT(lista->Bruto, antes);
    EXPECT_EQ(itens->StringGrid1->GetCell(2, 1), QStringLiteral("1000"));
}

TEST_F(TVendasFTest, TheLastItemOfASaleStays)
{
    auto *itens = Achar<TItensDaVendaFr>("ItensFr");
    while (itens->StringGrid1->GetRowCount() != 3) // two items
        Tecla(Qt::Key_Down);
    responde = false;
    Clicar(itens->ExclToolButton);
    EXPECT_EQ(itens->StringGrid1->GetRowCount(), 3);
    responde = true;
    Clicar(itens->ExclToolButton);
    EXPECT_EQ(perguntas, 2);
    EXPECT_EQ(itens->StringGrid1->GetRowCount(), 2);
    EXPECT_FALSE(itens->ExclToolButton->isEnabled());
}

TEST_F(TVendasFTest, ADiscountIsGivenInPercent)
{
    const int venda = lista->Venda();
    NoDialogo([&](QWidget *dialogo) {
        Retratar(dialogo, QStringLiteral("TVendasF-desconto"));
        Digitar(QStringLiteral("12,5"));
        Confirmar();
    });
    Tecla(Qt::Key_D, Qt::ControlModifier);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(DoBanco(QStringLiteral("select desconto from vendas where vendas_cod=%1").arg(venda)),
              QStringLiteral("12,5"));
    const double bruto = lista->CDS->FieldByName(QStringLiteral("bruto"))->AsFloat();
    EXPECT_NEAR(lista->CDS->FieldByName(QStringLiteral("desconto"))->AsFloat(), bruto * 0.125,
                0.006);
    EXPECT_EQ(lista->Venda(), venda);
}

TEST_F(TVendasFTest, ANoteIsKeptWithoutAccents)
{
    const int venda = lista->Venda();
    NoDialogo([&](QWidget *dialogo) {
        Digitar(QStringLiteral("Entregar de manhã"));
        Retratar(dialogo, QStringLiteral("TVendasF-observacao"));
        Clicar(dialogo->findChild<TBitBtn *>(QStringLiteral("OkBitBtn")));
    });
    Tecla(Qt::Key_O, Qt::ControlModifier);
    EXPECT_EQ(dialogos, 1);
    EXPECT_EQ(
        DoBanco(QStringLiteral("select observacao from vendas where vendas_cod=%1").arg(venda)),
        QStringLiteral("Entregar de manha"));
}

TEST_F(TVendasFTest, ASaleIsFoundByItsNumber)
{
    NoDialogo([&](QWidget *) {
        Digitar(QStringLiteral("2950"));
        Confirmar();
    });
    Tecla(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(lista->Venda(), 2950);
    EXPECT_EQ(Achar<TItensDaVendaFr>("ItensFr")->GetValor(), Variant(2950));
    NoDialogo([&](QWidget *) {
        Digitar(QStringLiteral("7"));
        Confirmar();
    });
    Tecla(Qt::Key_N, Qt::ControlModifier);
    EXPECT_EQ(dialogos, 2);
    EXPECT_EQ(avisos, QStringList(QStringLiteral("A venda 7 não está na lista")));
    avisos.clear();
    EXPECT_EQ(lista->Venda(), 2950);
}

TEST_F(TVendasFTest, TheSidePanelNarrowsTheListAndFoldsAway)
{
    auto *painel = Achar<TPesquisaDeVendasFr>("PesquisaFr");
    EXPECT_TRUE(painel->Panel1->isVisible());
    DigitarEm(painel->ClienteFr->findChild<QWidget *>(QStringLiteral("LabeledEdit1")),
              QStringLiteral("silva"));
    Tecla(Qt::Key_Return);
    const int silvas = Quantas(QStringLiteral(" and v.cliente containing 'silva'"));
    ASSERT_GT(silvas, 0);
    ASSERT_LT(silvas, Quantas());
    EXPECT_EQ(lista->CDS->RecordCount(), silvas);
    EXPECT_EQ(grid->GetRow(), 1) << "the sale that was current is not there";
    Retratar(janela.get(), QStringLiteral("TVendasF-pesquisa"));
    const int largura = lista->width();
    Clicar(painel->SplitterPanel);
    EXPECT_FALSE(painel->Panel1->isVisible());
    EXPECT_EQ(lista->width(), largura + 308) << "the list takes the room";
    Retratar(janela.get(), QStringLiteral("TVendasF-painel-fechado"));
    Clicar(painel->SplitterPanel);
    EXPECT_EQ(lista->width(), largura);
    Clicar(painel->findChild<TToolButton *>(QStringLiteral("LimparToolButton")));
    EXPECT_EQ(lista->CDS->RecordCount(), Quantas());
}

TEST_F(TVendasFTest, EveryCriterionOfTheSidePanelCounts)
{
    auto *painel = Achar<TPesquisaDeVendasFr>("PesquisaFr");
    const auto marcar = [&](const char *frame) {
        auto *caixa = painel->findChild<QWidget *>(QString::fromLatin1(frame))
                          ->findChild<TCheckBox *>(QStringLiteral("AtivoCheckBox"));
        Clicar(caixa, QPoint(8, 8));
        EXPECT_TRUE(caixa->isChecked()) << frame;
    };
    const auto executar = [&] { Clicar(painel->ToolButton1); };
    const auto limpar = [&] {
        Clicar(painel->findChild<TToolButton *>(QStringLiteral("LimparToolButton")));
        EXPECT_EQ(lista->CDS->RecordCount(), Quantas());
    };
    marcar("ValorFr");
    DigitarEm(painel->findChild<QWidget *>(QStringLiteral("ValorFr"))
                  ->findChild<QWidget *>(QStringLiteral("NumEditBR1")),
              QStringLiteral("1500,50"));
    executar();
    EXPECT_EQ(lista->CDS->RecordCount(),
              Quantas(QStringLiteral(" and (select sum(quantidade * preco) from vendas_itens i "
                                     "where i.vendas_cod = v.vendas_cod) >= 1500.50")));
    EXPECT_LT(lista->CDS->RecordCount(), Quantas());
    limpar();
    marcar("VencimentoFr");
    executar();
    EXPECT_EQ(lista->CDS->RecordCount(),
              Quantas(QStringLiteral(" and v.vencimento = ") + DataSQLFirebird(Hoje())));
    limpar();
    marcar("GrupoFr");
    painel->findChild<QWidget *>(QStringLiteral("GrupoFr"))
        ->findChild<TComboBox *>(QStringLiteral("ComboBox1"))
        ->SetItemIndex(1); // Bebidas
    executar();
    EXPECT_EQ(lista->CDS->RecordCount(),
              Quantas(QStringLiteral(" and exists(select 1 from vendas_itens i join produtos p on "
                                     "p.produtos_cod = i.produtos_cod where i.vendas_cod = "
                                     "v.vendas_cod and p.grupos_cod = 2)")));
    EXPECT_LT(lista->CDS->RecordCount(), Quantas());
    limpar();
}

TEST_F(TVendasFTest, AProductIsFoundInTheListThatDropsAndNarrowsTheSales)
{
    auto *edit = Achar<TLabeledEdit>("ProdutoEdit");
    auto *select = Achar<TSelectProdutosFr>("SelectFr");
    const QString comProduto = QStringLiteral(
        " and exists(select 1 from vendas_itens i where i.vendas_cod = v.vendas_cod and "
        "i.produtos_cod = %1)");
    DigitarEm(edit, QStringLiteral("cafe"));
    EXPECT_TRUE(select->isVisible());
    EXPECT_EQ(select->y(), edit->mapTo(tela, QPoint()).y() + edit->height() + 1);
    Retratar(janela.get(), QStringLiteral("TVendasF-produtos"));
    EXPECT_EQ(select->Descricao(), QStringLiteral("Café torrado econômico"));
    Tecla(Qt::Key_Down);
    EXPECT_EQ(select->Descricao(), QStringLiteral("Café torrado grande"));
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(select->isVisible());
    EXPECT_EQ(edit->GetText(), QStringLiteral("Café torrado grande"));
    const QString codigo = DoBanco(
        QStringLiteral("select produtos_cod from produtos where descricao='Café torrado grande'"));
    EXPECT_EQ(lista->CDS->RecordCount(), Quantas(comProduto.arg(codigo)));
    EXPECT_EQ(QApplication::focusWidget(), edit);
    DigitarEm(edit, QStringLiteral("12"));
    EXPECT_FALSE(select->isVisible()) << "a code is being typed";
    Tecla(Qt::Key_Return);
    EXPECT_EQ(lista->CDS->RecordCount(), Quantas(comProduto.arg(12)));
    EXPECT_EQ(edit->GetText(),
              DoBanco(QStringLiteral("select descricao from produtos where produtos_cod=12")));
    DigitarEm(edit, QString());
    Tecla(Qt::Key_Delete);
    EXPECT_EQ(lista->CDS->RecordCount(), Quantas()) << "all of them without a product";
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(select->isVisible());
}

TEST_F(TVendasFTest, AnItemIsAddedByTheCodeOrTheNameOfItsProduct)
{
    auto *itens = Achar<TItensDaVendaFr>("ItensFr");
    auto *novo = Achar<TSelectCodBasFr>("NovoItemFr");
    const int antes = itens->StringGrid1->GetRowCount();
    Clicar(Achar<TBitBtn>("NovoItemBitBtn"));
    EXPECT_EQ(avisos, QStringList(QStringLiteral("Escolha antes o produto")));
    avisos.clear();
    DigitarEm(novo->CodNumEditBR, QStringLiteral("20"));
    Tecla(Qt::Key_Return);
    const QString vinte =
        DoBanco(QStringLiteral("select descricao from produtos where produtos_cod=20"));
    EXPECT_EQ(novo->DescrLabeledEdit->GetText(), vinte);
    NoDialogo([&](QWidget *) {
        Digitar(QStringLiteral("3"));
        Confirmar();
    });
    Clicar(Achar<TBitBtn>("NovoItemBitBtn"));
    EXPECT_EQ(dialogos, 1);
    ASSERT_EQ(itens->StringGrid1->GetRowCount(), antes + 1);
    EXPECT_EQ(itens->StringGrid1->GetCell(1, antes), vinte);
    EXPECT_EQ(itens->StringGrid1->GetCell(2, antes), QStringLiteral("3"));
    DigitarEm(novo->DescrLabeledEdit, QStringLiteral("banana"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(novo->DescrLabeledEdit->GetText(), QStringLiteral("Banana econômico"));
    EXPECT_EQ(QString::number(novo->Codigo),
              DoBanco(QStringLiteral("select produtos_cod from produtos where descricao='Banana "
                                     "econômico'")));
}

TEST_F(TVendasFTest, TheHelpButtonTellsTheKeys)
{
    Clicar(Achar<TBotaoHelpFr>("AjudaFr"), QPoint(5, 5));
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("Ctrl+D")));
    avisos.clear();
}

} // namespace comercial::testes
