// What a window full of owner-drawn cells costs to paint, against a table view with its own
// delegate.

#include "bench/Bancada.h"
#include "bench/Nomes.h"
#include "bench/Pinturas.h"
#include "grids/UDBClientBasFr.h"
#include "grids/UGridBasFr.h"
#include "platform/support/DBGridDrawCell.h"
#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TStringGrid.h"

#include <QHeaderView>
#include <QPixmap>
#include <QStandardItemModel>
#include <QTableView>
#include <QTest>

#include <stdexcept>

using namespace ficha;

namespace
{

constexpr int Linhas = 1000, Pinturas = 60;
const QSize Janela(1000, 700);
constexpr std::array<int, 8> Larguras = {330, 60, 90, 80, 140, 60, 120, 90};
constexpr std::array<TAlignment, 8> Alinhamentos = {taLeftJustify, taRightJustify, taRightJustify,
                                                    taCenter,      taLeftJustify,  taRightJustify,
                                                    taLeftJustify, taRightJustify};

class TListaFr : public TDBClientBasFr
{
public:
    explicit TListaFr(TChave chave) : TDBClientBasFr(chave) {}

    void CriarCampos() override
    {
        AdStringField("nome", 60, "Nome", taLeftJustify);
        AdIntegerField("cod", "Código", QString(), taRightJustify);
        AdFloatField("valor", "Valor", "#,##0.00", taRightJustify);
        AdDateTimeField("dia", "Data", "dd/mm/yyyy", taCenter);
        AdStringField("cidade", 40, "Cidade", taLeftJustify);
        AdIntegerField("numero", "Número", "#,##0", taRightJustify);
        AdStringField("obs", 40, "Observação", taLeftJustify);
        AdFloatField("saldo", "Saldo", "#,##0.00", taRightJustify);
    }
    void PreencherDados() override
    {
        const QStringList nomes = bancada::NomesDePessoas(Linhas);
        const QStringList cidades = {"São Paulo", "Belém", "Goiânia", "Florianópolis", "Niterói"};
        CDS->DisableControls();
        for (int i = 0; i < Linhas; ++i) {
            CDS->AppendRecord({nomes[i], i, i * 11.7, TDateTime(36526.0 + i),
                               cidades[i % cidades.size()], i * 31, "cliente desde sempre",
                               i * -3.21});
        }
        CDS->First();
        CDS->EnableControls();
        int coluna = 0;
        for (const int largura : Larguras)
            DBGrid1->Columns(coluna++)->SetWidth(largura);
    }
    /** The text that a cell shows, row from 0. */
    QString Texto(int col, int row) const
    {
        const TLerLinha ler(CDS, row + 1);
        return TextoParaLista(*CDS->Fields(col), MostrarDataNula);
    }
};

class TGradeFr : public TGridBasFr
{
public:
    explicit TGradeFr(TChave chave) : TGridBasFr(chave) {}
    void Encher(const TListaFr &de)
    {
        StringGrid1->SetColCount(int(Larguras.size()));
        StringGrid1->SetRowCount(Linhas + 1);
        for (int c = 0; c < int(Larguras.size()); ++c) {
            StringGrid1->SetColWidth(c, Larguras[size_t(c)]);
            StringGrid1->SetCell(c, 0, de.CDS->Fields(c)->DisplayLabel());
            for (int row = 0; row < Linhas; ++row)
                StringGrid1->SetCell(c, row + 1, de.Texto(c, row));
        }
        ColsInfo->Atualizar(*StringGrid1);
    }
};

/** Pictures as a host has them, the arrows among them. */
TImageList *Imagens(QObject *dono)
{
    auto *lista = new TImageList(dono, QSize(8, 8));
    for (int i = 0; i < 10; ++i) {
        QPixmap imagem(8, 8);
        imagem.fill(QColor(20 * i, 60, 90, 200));
        lista->Add(imagem);
    }
    return lista;
}

/** The same cells in a view of the toolkit, columns and rows of the same size. */
struct TParDoToolkit {
    TParDoToolkit(const TListaFr &de, QSize tamanho, int altura, const QFont &fonte)
        : modelo(Linhas, int(Larguras.size()))
    {
        for (int c = 0; c < int(Larguras.size()); ++c) {
            modelo.setHeaderData(c, Qt::Horizontal, de.CDS->Fields(c)->DisplayLabel());
            for (int row = 0; row < Linhas; ++row) {
                auto *item = new QStandardItem(de.Texto(c, row));
                const TAlignment a = Alinhamentos[size_t(c)];
                if (a != taLeftJustify)
                    item->setTextAlignment((a == taCenter ? Qt::AlignHCenter : Qt::AlignRight) |
                                           Qt::AlignVCenter);
                modelo.setItem(row, c, item);
            }
        }
        tela.setFont(fonte);
        tela.setModel(&modelo);
        tela.setFrameShape(QFrame::NoFrame);
        tela.setAlternatingRowColors(true);
        tela.verticalHeader()->hide();
        tela.verticalHeader()->setMinimumSectionSize(1);
        tela.verticalHeader()->setDefaultSectionSize(altura);
        for (int c = 0; c < int(Larguras.size()); ++c)
            tela.setColumnWidth(c, Larguras[size_t(c)] + 1);
        tela.resize(tamanho);
        tela.setCurrentIndex(modelo.index(0, 0));
        tela.show();
        QCoreApplication::processEvents();
    }

    QStandardItemModel modelo;
    QTableView tela;
};

/** The frame of either kind alone in its window. */
template <class TFr>
struct TNossa {
    TNossa() : fr(Criar<TFr>(&tela)) {}
    template <class F>
    void Mostrar(F &&encher)
    {
        tela.resize(Janela);
        fr->setGeometry(tela.rect());
        encher(*fr);
        tela.show();
        QCoreApplication::processEvents();
    }

    QWidget tela;
    TFr *fr;
};

struct TCena {
    TCena() : antes(std::exchange(SisD().ImageList, Imagens(&dono)))
    {
        dados.Mostrar([](TListaFr &fr) { fr.DoShow(); });
        textos.Mostrar([this](TGradeFr &fr) { fr.Encher(*dados.fr); });
        const TDBGrid *lista = dados.fr->DBGrid1;
        const TStringGrid *grade = textos.fr->StringGrid1;
        daLista = std::make_unique<TParDoToolkit>(*dados.fr, lista->size(), 18, lista->font());
        daGrade = std::make_unique<TParDoToolkit>(*dados.fr, grade->size(),
                                                  grade->GetDefaultRowHeight(), grade->font());
    }
    ~TCena() { SisD().ImageList = antes; }

    QObject dono;
    TImageList *antes;
    TNossa<TListaFr> dados;
    TNossa<TGradeFr> textos;
    std::unique_ptr<TParDoToolkit> daLista, daGrade;
};

/** Every painting covers the whole window at once. */
bancada::TMedida Repintar(QAbstractScrollArea &area)
{
    const auto pinturas = std::make_unique<bancada::TPinturas>(area.viewport());
    bancada::TAmostras amostras;
    for (int i = 0; i < Pinturas; ++i)
        amostras.Juntar(bancada::Cronometrar([&] { area.viewport()->repaint(); }));
    if (pinturas->Quantas != Pinturas || pinturas->Area != QRegion(area.viewport()->rect()))
        throw std::runtime_error("the window was not painted whole");
    return amostras.Medida();
}

} // namespace

BANCADA_GRUPO(pintura)
{
    const auto cena = std::make_shared<TCena>();
    const QString lista = QStringLiteral("list in memory painted");
    const QString grade = QStringLiteral("string grid painted");
    const QString daLista = QStringLiteral("QTableView of the list's cells painted");
    const QString daGrade = QStringLiteral("QTableView of the string grid's cells painted");
    bancada::Medir(lista, [cena] { return Repintar(*cena->dados.fr->DBGrid1); });
    bancada::Medir(grade, [cena] { return Repintar(*cena->textos.fr->StringGrid1); });
    bancada::Medir(daLista, [cena] { return Repintar(cena->daLista->tela); });
    bancada::Medir(daGrade, [cena] { return Repintar(cena->daGrade->tela); });
    const QString tamanho = QStringLiteral("%1 x %2").arg(Janela.width()).arg(Janela.height());
    bancada::Exigir({.Linha = "12a",
                     .Trabalho = "repaint a window full of cells, " + tamanho + ", list in memory",
                     .Nosso = {lista, {}},
                     .Par = {daLista, {}},
                     .Limite = 1.2,
                     .NaVerificacao = 1.8,
                     .Nota = "the same texts in columns and rows of the same size, the same font, "
                             "both in bands; the view's texts stand ready in a QStandardItemModel, "
                             "the list reads and formats its fields at every painting"});
    bancada::Exigir({.Linha = "12b",
                     .Trabalho = "the same, string grid",
                     .Nosso = {grade, {}},
                     .Par = {daGrade, {}},
                     .Limite = 1.2,
                     .NaVerificacao = 1.8});
}
