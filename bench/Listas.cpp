// Lists that are kept in memory: sorted by a click on a title, and searched while a text is typed.

#include "bench/Bancada.h"
#include "bench/Nomes.h"
#include "bench/Pinturas.h"
#include "grids/SelectProdutosFr.h"
#include "grids/UDBClientBasFr.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TRadioButton.h"

#include <QHeaderView>
#include <QLocale>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <stdexcept>

using namespace ficha;

namespace
{

const QSize Janela(541, 217);

/** What both lists show of the i-th name. */
struct TLinha {
    explicit TLinha(int i) : Cod(i), Valor(i * 1.17), Dia(36526 + i % 3000) {}
    int Cod;
    double Valor;
    TDateTime Dia;
};

/** Seconds from a click to the painted list; what arranges itself by a timer has its turns. */
double Clicar(QWidget *titulo, QPoint onde, bancada::TPinturas &lista)
{
    const int antes = lista.Quantas;
    const double tempo = bancada::Cronometrar([&] {
        QTest::mouseClick(titulo, Qt::LeftButton, {}, onde);
        for (int i = 0; i < 10 && lista.Quantas == antes; ++i)
            QCoreApplication::processEvents();
    });
    if (lista.Quantas == antes)
        throw std::runtime_error("the click painted nothing");
    return tempo;
}

class TListaFr : public TDBClientBasFr
{
public:
    explicit TListaFr(TChave chave) : TDBClientBasFr(chave) {}
    QStringList Nomes;

    void CriarCampos() override
    {
        AdStringField(QStringLiteral("nome"), 60, QStringLiteral("Nome"), taLeftJustify);
        AdIntegerField(QStringLiteral("cod"), QStringLiteral("Código"), QString(), taRightJustify);
        AdFloatField(QStringLiteral("valor"), QStringLiteral("Valor"), QStringLiteral("#,##0.00"),
                     taRightJustify);
        AdDateTimeField(QStringLiteral("dia"), QStringLiteral("Data"), QStringLiteral("dd/mm/yyyy"),
                        taCenter);
    }
    void PreencherDados() override
    {
        CDS->DisableControls();
        for (int i = 0; i < Nomes.size(); ++i) {
            const TLinha linha(i);
            CDS->AppendRecord({Nomes[i], linha.Cod, linha.Valor, linha.Dia});
        }
        CDS->First();
        CDS->EnableControls();
    }
};

/** The frame on a screen, in the order of insertion. */
struct TNossaLista {
    explicit TNossaLista(const QStringList &nomes) : fr(Criar<TListaFr>(&tela))
    {
        fr->Nomes = nomes;
        tela.resize(Janela);
        fr->DoShow();
        tela.show();
        QCoreApplication::processEvents();
        pinturas = new bancada::TPinturas(fr->DBGrid1->viewport());
    }
    double Clicar()
    {
        TDBGrid *grid = fr->DBGrid1;
        return ::Clicar(grid->viewport(), grid->CellRect(0, 0).center(), *pinturas);
    }
    QStringList Ordem() const
    {
        QStringList nomes;
        for (int i = 1; i <= fr->CDS->RecordCount(); ++i) {
            const TLerLinha ler(fr->CDS, i);
            nomes << fr->CDS->Fields(0)->AsString();
        }
        return nomes;
    }

    QWidget tela;
    TListaFr *fr;
    bancada::TPinturas *pinturas = nullptr;
};

/** The same list of the toolkit's parts. */
struct TListaDoToolkit {
    explicit TListaDoToolkit(const QStringList &nomes)
    {
        modelo.setColumnCount(4);
        modelo.setRowCount(int(nomes.size()));
        modelo.setHorizontalHeaderLabels({"Nome", "Código", "Valor", "Data"});
        for (int i = 0; i < nomes.size(); ++i) {
            const TLinha linha(i);
            modelo.setItem(i, 0, new QStandardItem(nomes[i]));
            const QDate dia = QDate(1899, 12, 30).addDays(qint64(linha.Dia.Dias()));
            for (const auto &[c, valor] :
                 {std::pair<int, QVariant>{1, linha.Cod}, {2, linha.Valor}, {3, dia}}) {
                auto *item = new QStandardItem;
                item->setData(valor, Qt::DisplayRole);
                modelo.setItem(i, c, item);
            }
        }
        proxy.setSortLocaleAware(true);
        proxy.setSourceModel(&modelo);
        tela.resize(Janela);
        tela.setModel(&proxy);
        Desordenar();
        tela.setSortingEnabled(true);
        tela.show();
        QCoreApplication::processEvents();
        pinturas = new bancada::TPinturas(tela.viewport());
    }
    /** Back to the order of insertion. */
    void Desordenar() { tela.horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder); }
    double Clicar()
    {
        return ::Clicar(tela.horizontalHeader()->viewport(), QPoint(30, 8), *pinturas);
    }
    QStringList Ordem() const
    {
        QStringList nomes;
        for (int i = 0; i < proxy.rowCount(); ++i)
            nomes << proxy.index(i, 0).data().toString();
        return nomes;
    }

    QStandardItemModel modelo;
    QSortFilterProxyModel proxy;
    QTableView tela;
    bancada::TPinturas *pinturas = nullptr;
};

template <class TLista>
bancada::TMedida Seguintes(TLista &lista, int cliques)
{
    bancada::TAmostras amostras;
    for (int i = 0; i < cliques; ++i)
        amostras.Juntar(lista.Clicar());
    return amostras.Medida();
}

/** A click sorts both lists the same way, and the next one turns it round. */
void Comparar(const QStringList &nomes)
{
    TNossaLista nossa(nomes);
    TListaDoToolkit toolkit(nomes);
    if (nossa.Ordem() != nomes || toolkit.Ordem() != nomes)
        throw std::runtime_error("a list does not begin in the order of insertion");
    for (int i = 0; i < 2; ++i) {
        nossa.Clicar();
        toolkit.Clicar();
        if (nossa.Ordem() == nomes || nossa.Ordem() != toolkit.Ordem())
            throw std::runtime_error("the lists are sorted differently");
    }
}

void MedirCliques(const QStringList &nomes, const QString &tamanho)
{
    const QString nosso = QStringLiteral("first title click");
    const QString nossos = QStringLiteral("later title clicks");
    const QString par = QStringLiteral("QSortFilterProxyModel, locale aware, first click");
    const QString pares = QStringLiteral("QSortFilterProxyModel, locale aware, later clicks");
    // Orders that were sorted once are kept: the first click needs a list that has none.
    bancada::Medir(nosso, [nomes] {
        TNossaLista lista(nomes);
        return bancada::TMedida{lista.Clicar(), {}};
    });
    const auto nossa = std::make_shared<TNossaLista>(nomes);
    const auto toolkit = std::make_shared<TListaDoToolkit>(nomes);
    nossa->Clicar();
    bancada::Medir(nossos, [nossa] { return Seguintes(*nossa, 20); });
    bancada::Medir(par, [toolkit] {
        toolkit->Desordenar();
        return bancada::TMedida{toolkit->Clicar(), {}};
    });
    bancada::Medir(pares, [toolkit] {
        toolkit->Desordenar();
        toolkit->Clicar();
        return Seguintes(*toolkit, 2);
    });
    bancada::Exigir(
        {.Linha = "11a",
         .Trabalho = "first click on the title of a text column, " + tamanho + ", Brazilian order",
         .Nosso = {nosso, {}},
         .Par = {par, {}},
         .Sentido = bancada::TSentido::NoMinimo,
         .Limite = 5,
         .NaVerificacao = 2,
         .Nota = "from pressing the button over the title to the painted list: the keys of all "
                 "rows, the sort, the list put together, the title marked, the repaint; the peer "
                 "over a QStandardItemModel in a QTableView; both end in the same order"});
    bancada::Exigir({.Linha = "11b",
                     .Trabalho = "each later click on it",
                     .Nosso = {nossos, {}},
                     .Par = {pares, {}},
                     .Sentido = bancada::TSentido::NoMinimo,
                     .Limite = 50,
                     .NaVerificacao = 8});
}

/** Paints counted, as a key may leave the list where it is. */
class TSelectFrContado : public testes::TSelectProdutosFr
{
public:
    explicit TSelectFrContado(TChave chave) : TSelectProdutosFr(chave) {}
    int Pintadas = 0;

protected:
    void DBGrid1DrawColumnCell(QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                               TColumn *column, unsigned state) override
    {
        ++Pintadas;
        TSelectProdutosFr::DBGrid1DrawColumnCell(sender, p, rect, dataCol, column, state);
    }
};

/** A search edit with its list dropped under it. */
struct TBusca {
    TBusca(const QStringList &nomes, bool filtrar) : edit(new TLabeledEdit(&tela))
    {
        tela.resize(800, 600);
        edit->setGeometry(10, 20, 200, 21);
        fr = Criar<TSelectFrContado>(&tela);
        fr->PegarBuscaLabeledEdit(edit);
        fr->Ler = [nomes](TClientDataSet &cds) {
            for (int i = 0; i < nomes.size(); ++i)
                cds.AppendRecord({i, nomes[i], i * 1.17});
        };
        Mostrar();
        QTest::keyClick(edit, Qt::Key_Down);
        if (filtrar)
            fr->FilRadioButton->SetChecked(true);
        if (!fr->isVisible() || fr->ClientManager1->CDS1->RecordCount() != nomes.size())
            throw std::runtime_error("the list did not open");
    }
    void Mostrar()
    {
        tela.show();
        tela.activateWindow();
        if (!QTest::qWaitForWindowActive(&tela))
            throw std::runtime_error("the window did not become active");
        edit->setFocus();
    }
    /** Seconds from a key to the painted list. */
    double Tecla(Qt::Key qual, const QString &texto)
    {
        fr->Pintadas = 0;
        const double tempo = bancada::Cronometrar([&] {
            QTest::sendKeyEvent(QTest::Press, edit, qual, texto, Qt::NoModifier);
            QCoreApplication::processEvents();
            if (fr->Pintadas == 0)
                fr->repaint(); // nothing moved
        });
        QTest::sendKeyEvent(QTest::Release, edit, qual, texto, Qt::NoModifier);
        return tempo;
    }

    QWidget tela;
    TLabeledEdit *edit;
    TSelectFrContado *fr;
};

/** Texts that many rows have, that few have and that none has, typed and taken back again. */
bancada::TMedida Digitar(TBusca &busca)
{
    static const QStringList textos = {"jose da silva",
                                       "zzz nada",
                                       "conceicao assuncao",
                                       "a",
                                       "sa 12345",
                                       "luis goncalves brandao 9",
                                       "erica x",
                                       "marcia de sa araujo 777",
                                       "antonio da silva de sa 5",
                                       "joao brandao araujo",
                                       "alvaro",
                                       "ana goncalves goncalves",
                                       "o",
                                       "da silva da silva",
                                       "assuncao",
                                       "brandao 99",
                                       "erica de sa 4242",
                                       "conceicao araujo 31",
                                       "luis",
                                       "jose q"};
    busca.Mostrar();
    bancada::TAmostras amostras;
    int teclas = 0;
    const auto tecla = [&](Qt::Key qual, const QString &texto) {
        amostras.Juntar(busca.Tecla(qual, texto));
        ++teclas;
    };
    for (const QString &texto : bancada::Verificando() ? textos.mid(0, 3) : textos) {
        for (const QChar c : texto)
            tecla(Qt::Key(c.toUpper().unicode()), QString(c));
        if (busca.edit->GetText() != texto)
            throw std::runtime_error("the text was not typed");
        while (!busca.edit->GetText().isEmpty())
            tecla(Qt::Key_Backspace, QString());
    }
    if (!bancada::Verificando() && teclas < 500)
        throw std::runtime_error("too few keys for a 99th percentile");
    return amostras.Medida();
}

void MedirTeclas(const QStringList &nomes, const QString &tamanho)
{
    const QString trabalho = "one key in the search edit of a select list over " + tamanho + ", ";
    for (const bool filtrar : {false, true}) {
        const auto busca = std::make_shared<TBusca>(nomes, filtrar);
        const QString nosso = filtrar ? QStringLiteral("keys while filtering")
                                      : QStringLiteral("keys while positioning");
        bancada::Medir(nosso, [busca] { return Digitar(*busca); });
        bancada::Exigir(
            {.Linha = filtrar ? "14b" : "14a",
             .Trabalho = trabalho + (filtrar ? "filtering" : "positioning") + ", 99 in 100 within",
             .Nosso = {nosso, QStringLiteral("p99")},
             .Limite = 0.016,
             .Nota = filtrar ? QString()
                             : QStringLiteral("from the key to the painted list, "
                                              "texts typed and taken back again")});
    }
}

} // namespace

BANCADA_GRUPO(listas)
{
    const QStringList nomes = bancada::NomesDePessoas(bancada::Tamanho(100000, 10000));
    const QString tamanho = bancada::Milhares(nomes.size()) + " rows";
    // The order of the toolkit's list is that of the default locale.
    QLocale::setDefault(QLocale(QLocale::Portuguese, QLocale::Brazil));
    Comparar(nomes);
    MedirCliques(nomes, tamanho);
    MedirTeclas(nomes, tamanho);
}
