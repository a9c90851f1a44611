// The list page of a maintenance screen: a string grid filled from an open dataset, against the
// table widget of the toolkit filled from the same one.

#include "bench/Bancada.h"
#include "bench/Dados.h"
#include "bench/Memoria.h"
#include "platform/database/TSQLQuery.h"
#include "platform/toolkit/TStringGrid.h"
#include "records/UTabelaLinear.h"
#include "support/BancoTemp.h"

#include <QCoreApplication>
#include <QLocale>
#include <QTableWidget>

#include <stdexcept>

using namespace ficha;

namespace
{

constexpr int Colunas = 8, ColunaDoLimite = 3;
const QString Bytes = QStringLiteral("bytes");
const QSize Janela(800, 600);

/** The first rows of the table, open, and the record that a screen would make of them. */
struct TLista {
    TLista(TSQLConnection &conexao, int linhas) : Linhas(linhas)
    {
        Query.SetSQLConnection(&conexao);
        Query.SetSQL(QStringLiteral("select * from cliente where cliente_cod <= %1").arg(linhas));
        Query.Open();
        Tab = Criar<TTabelaLinear>(&Query, QStringLiteral("cliente"));
        Tab->PegarCampoChave(Query.Fields(0), 60, nullptr);
        for (int c = 1; c < Colunas; ++c)
            Tab->PegarCampo(Query.Fields(c), 100);
        Tab->Campos->Campos(ColunaDoLimite)->Tipo = 4;
        Tab->Campos->Campos(ColunaDoLimite)->FormatoFloat = QStringLiteral("###,###,##0.00");
    }

    int Linhas;
    TSQLQuery Query;
    std::unique_ptr<TTabelaLinear> Tab;
};

struct TCena {
    TCena(int linhas, int muitas)
        : Banco(bancada::RoteiroDeClientes(QStringLiteral("cliente"), muitas)),
          Lista(Banco.Conexao(), linhas), Longa(Banco.Conexao(), muitas)
    {
    }

    TBancoTemp Banco;
    TLista Lista, Longa;
};

/** The time and the memory of filling a table that stands on the screen, from its first row on. */
template <class TTabela, class F>
bancada::TMedida Encher(TTabela &tabela, F &&encher)
{
    tabela.resize(Janela);
    tabela.show();
    QCoreApplication::processEvents();
    const qint64 antes = bancada::MemoriaEmUso();
    bancada::TMedida medida;
    medida.Segundos = bancada::Cronometrar(encher);
    medida.Contadores[Bytes] = double(bancada::MemoriaEmUso() - antes);
    return medida;
}

bancada::TMedida EncherGrade(TLista &lista)
{
    TStringGrid grid;
    bancada::TMedida medida = Encher(grid, [&] { lista.Tab->PreencherStringGrid(&grid); });
    if (grid.GetRowCount() != lista.Linhas + 1 || grid.GetColCount() != Colunas ||
        grid.GetCell(0, lista.Linhas) != QString::number(lista.Linhas))
        throw std::runtime_error("the grid was not filled");
    return medida;
}

/** Row by row through the dataset, an item for every text. */
void EncherTableWidget(TLista &lista, QTableWidget &tabela)
{
    const QLocale locale(QLocale::Portuguese, QLocale::Brazil);
    TDataSet &dataset = lista.Query;
    tabela.setUpdatesEnabled(false);
    tabela.setRowCount(dataset.RecordCount());
    tabela.setColumnCount(Colunas);
    QStringList titulos;
    for (int c = 0; c < Colunas; ++c)
        titulos << dataset.Fields(c)->DisplayLabel();
    tabela.setHorizontalHeaderLabels(titulos);
    dataset.First();
    for (int row = 0; !dataset.Eof(); ++row, dataset.Next()) {
        for (int c = 0; c < Colunas; ++c) {
            const TField *campo = dataset.Fields(c);
            tabela.setItem(row, c,
                           new QTableWidgetItem(c == ColunaDoLimite
                                                    ? locale.toString(campo->AsFloat(), 'f', 2)
                                                    : campo->AsString()));
        }
    }
    tabela.setUpdatesEnabled(true);
}

bancada::TMedida EncherTableWidget(TLista &lista)
{
    QTableWidget tabela;
    return Encher(tabela, [&] { EncherTableWidget(lista, tabela); });
}

/** Every text of the one is that of the other. */
void Comparar(TLista &lista)
{
    TStringGrid grid;
    QTableWidget tabela;
    lista.Tab->PreencherStringGrid(&grid);
    EncherTableWidget(lista, tabela);
    for (int row = 0; row < lista.Linhas; ++row) {
        for (int c = 0; c < Colunas; ++c) {
            if (grid.GetCell(c, row + 1) != tabela.item(row, c)->text())
                throw std::runtime_error("the two tables show different texts");
        }
    }
}

} // namespace

BANCADA_GRUPO(grade)
{
    const int linhas = bancada::Tamanho(100000, 20000), muitas = 10 * linhas;
    const auto cena = std::make_shared<TCena>(linhas, muitas);
    Comparar(cena->Lista);
    const QString tamanho = bancada::Milhares(linhas) + " rows of 8 columns";
    const QString nosso = QStringLiteral("string grid filled");
    const QString longa = QStringLiteral("string grid filled, ten times the rows");
    const QString par = QStringLiteral("QTableWidget filled from the same dataset");
    bancada::Medir(nosso, [cena] { return EncherGrade(cena->Lista); });
    bancada::Medir(longa, [cena] { return EncherGrade(cena->Longa); });
    bancada::Medir(par, [cena] { return EncherTableWidget(cena->Lista); });
    bancada::Exigir({.Linha = "4a",
                     .Trabalho = "fill the string grid of a list page with " + tamanho,
                     .Nosso = {nosso, {}},
                     .Par = {par, {}},
                     .Sentido = bancada::TSentido::NoMinimo,
                     .Limite = 3,
                     .NaVerificacao = 2,
                     .Nota = "from an open dataset into an empty table on the screen; the table "
                             "widget with both counts set once, updates off, an item for every "
                             "text; both end with the same texts"});
    bancada::Exigir({.Linha = "4b",
                     .Trabalho = "memory of that fill",
                     .Nosso = {nosso, Bytes, bancada::TUnidade::Bytes},
                     .Par = {par, Bytes, bancada::TUnidade::Bytes},
                     .Limite = 0.25,
                     .NaVerificacao = 0.3,
                     .Nota = "what the allocator has handed out, before and after"});
    bancada::Exigir({.Linha = "5",
                     .Trabalho = "the same with " + bancada::Milhares(muitas) + " rows",
                     .Nosso = {longa, {}},
                     .Par = {nosso, {}},
                     .Limite = 11,
                     .NaVerificacao = 16});
}
