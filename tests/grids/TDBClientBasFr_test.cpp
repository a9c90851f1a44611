#include "grids/UDBClientBasFr.h"

#include "platform/core/Servicos.h"
#include "platform/database/EDatabaseError.h"
#include "platform/support/SisD.h"
#include "platform/support/TDBGrid.h"
#include "platform/toolkit/TImageList.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QPainter>
#include <QScrollBar>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Products as a program would compute them. */
class TProdutosFr : public TDBClientBasFr
{
public:
    explicit TProdutosFr(TChave chave) : TDBClientBasFr(chave) {}

    void CriarCampos() override
    {
        eventos << QStringLiteral("campos");
        AdIntegerField(QStringLiteral("cod"), QStringLiteral("Código"), QStringLiteral("000"),
                       taCenter);
        AdStringField(QStringLiteral("descr"), 60, QStringLiteral("Descrição"), taLeftJustify);
        AdFloatField(QStringLiteral("preco"), QStringLiteral("Preço"), QStringLiteral("#,##0.00"),
                     taRightJustify);
        AdFloatField(QStringLiteral("peso"), QStringLiteral("Peso"), QString(), taRightJustify);
        AdDateTimeField(QStringLiteral("data"), QStringLiteral("Data"),
                        QStringLiteral("dd/mm/yyyy"), taCenter);
        AdStringFieldInvisivel(QStringLiteral("obs"), 10);
        AdBooleanFieldInvisivel(QStringLiteral("ativo"));
    }
    void PreencherDados() override
    {
        eventos << QStringLiteral("dados");
        ordemAoPreencher = CampoOrdem;
        indicesAoPreencher = int(CDS->IndexDefs().size());
        CDS->EmptyDataSet();
        const auto por = [this](int cod, const char *descr, const Variant &preco, double peso,
                                double dia) {
            CDS->AppendRecord({cod, QString::fromUtf8(descr), preco, peso, TDateTime(dia)});
        };
        por(3, "Água mineral", 1234.5, 1.5, 29221);
        por(1, "caderno  ", 7.0, 0.25, 29222);
        por(2, "Abajur", Null, 3, 0);
        por(4, "Uma descrição tão comprida que não cabe na coluna", 10000000.0, 2, 37987);
        CDS->First();
    }
    void CDS1AfterOpen(TDataSet *dataset) override
    {
        eventos << QStringLiteral("abriu");
        EXPECT_EQ(dataset, CDS);
        EXPECT_EQ(DataSource1->GetDataSet(), CDS) << "bound before it is opened";
    }
    void CDS1AfterScroll(TDataSet *dataset) override
    {
        ++rolagens;
        EXPECT_EQ(dataset, CDS);
    }
    void AtualizarListas() override
    {
        eventos << QStringLiteral("listas");
        filtrandoNasListas = Filtrando;
    }

    QStringList eventos;
    int rolagens = 0;
    QString ordemAoPreencher;
    int indicesAoPreencher = 0;
    bool filtrandoNasListas = false;

protected:
    void DBGrid1DrawColumnCell(QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                               TColumn *column, unsigned state) override
    {
        ++pintadas;
        TDBClientBasFr::DBGrid1DrawColumnCell(sender, p, rect, dataCol, column, state);
    }

public:
    int pintadas = 0;
};

class TDBClientBasFrTest : public testing::Test
{
protected:
    TDBClientBasFrTest()
    {
        // Arrows that tests can tell apart.
        for (const auto &[indice, cor] : {std::pair(8, Qt::red), std::pair(9, Qt::green)}) {
            QPixmap seta(16, 16);
            seta.fill(cor);
            setas.SetIcon(indice, QIcon(seta));
        }
        antes = std::exchange(SisD().ImageList, &setas);
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        fr = Criar<TProdutosFr>(&tela);
        grid = fr->DBGrid1;
        tela.resize(fr->size());
    }
    ~TDBClientBasFrTest() override { SisD().ImageList = antes; }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    void Mostrar()
    {
        fr->TitulosNormais(grid);
        int coluna = 0;
        fr->PrepGridAjustarCol(grid, coluna, 50, taCenter);
        fr->PrepGridAjustarCol(grid, coluna, 150, taLeftJustify);
        fr->PrepGridAjustarCol(grid, coluna, 100, taRightJustify);
        fr->PrepGridAjustarCol(grid, coluna, 60, taRightJustify);
        fr->PrepGridAjustarCol(grid, coluna, 80, taCenter);
        fr->PrepGridEsconderCol(grid, coluna);
        fr->PrepGridEsconderCol(grid, coluna);
        EXPECT_EQ(coluna, 7);
        tela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
        fr->DoShow();
        Girar();
    }
    void ClicarTitulo(int col)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(col, 0).center());
        Girar();
    }
    QStringList Coluna(int col)
    {
        QStringList textos;
        for (int row = 1; row < grid->GetRowCount(); ++row)
            textos << grid->GetCell(col, row);
        return textos;
    }
    QStringList Codigos() { return Coluna(0); }
    QImage Foto() { return grid->viewport()->grab().toImage(); }
    /** The colour of a cell's ground, at its top left corner, where no text is. */
    QColor Fundo(const QImage &foto, int col, int row)
    {
        return foto.pixelColor(grid->CellRect(col, row).topLeft() + QPoint(1, 1));
    }
    /** Whether anything but the ground is painted inside a cell. */
    bool TemTexto(const QImage &foto, int col, int row)
    {
        const QRect area = grid->CellRect(col, row).adjusted(1, 1, -1, -1);
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (foto.pixelColor(x, y) != Fundo(foto, col, row))
                    return true;
        return false;
    }
    /** What the sort arrow's place in a column's title shows, above the letters. */
    QColor Seta(const QImage &foto, int col)
    {
        return foto.pixelColor(grid->CellRect(col, 0).right() + 1 - 11 + 2, 2);
    }
    static QColor Cor(int r, int g, int b) { return {r, g, b}; }

    const QColor Branco = Cor(255, 255, 255), Azul = Cor(0xDF, 0xEF, 0xF9);
    const QColor OrdemImpar = Cor(0xF2, 0xF9, 0xFF), OrdemPar = Cor(0xD0, 0xE1, 0xEE);
    const QColor Escuro = Cor(0x0A, 0x24, 0x6A);

    TServicosGuarda guarda;
    QStringList erros;
    TImageList setas;
    TImageList *antes = nullptr;
    QWidget tela;
    TProdutosFr *fr = nullptr;
    TDBGrid *grid = nullptr;
};

} // namespace

TEST_F(TDBClientBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDBClientBasFr")));
    EXPECT_EQ(fr->size(), QSize(541, 217));
    EXPECT_EQ(grid->geometry(), QRect(0, 0, 541, 217));
    EXPECT_EQ(grid->frameShape(), QFrame::NoFrame);
    EXPECT_FALSE(grid->GetDefaultDrawing());
    EXPECT_EQ(grid->GetOptions(), unsigned(dgTitles | dgColumnResize | dgColLines | dgRowLines |
                                           dgTabs | dgConfirmDelete | dgCancelOnExit));
    EXPECT_EQ(grid->GetTitleFont(), grid->font());
    tela.show();
    fr->resize(300, 100);
    Girar();
    EXPECT_EQ(grid->geometry(), QRect(0, 0, 300, 100));
}

TEST_F(TDBClientBasFrTest, CreatedItIsOpenAndEmptyWithTheFieldsOfTheDescendant)
{
    EXPECT_EQ(fr->eventos, (QStringList{QStringLiteral("campos"), QStringLiteral("abriu")}));
    EXPECT_EQ(fr->CDS->objectName(), QStringLiteral("CDS1"));
    EXPECT_EQ(fr->CDS->parent(), fr);
    EXPECT_TRUE(fr->CDS->Active());
    EXPECT_EQ(fr->CDS->RecordCount(), 0);
    EXPECT_FALSE(fr->Filtrando);
    EXPECT_TRUE(fr->Ascendente);
    EXPECT_FALSE(fr->MostrarDataNula);
    EXPECT_EQ(fr->Numero, 0);
    EXPECT_TRUE(fr->Opcao);
    EXPECT_EQ(fr->CampoOrdem, QString());
    EXPECT_TRUE(fr->CDS->IndexDefs().empty());
}

TEST_F(TDBClientBasFrTest, FieldsHaveTheirKindNameLabelFormatAndAlignment)
{
    const auto campo = [&](const char *nome) {
        return fr->CDS->FieldByName(QString::fromLatin1(nome));
    };
    EXPECT_EQ(campo("cod")->DataType(), TFieldType::ftInteger);
    EXPECT_EQ(campo("cod")->Name(), QStringLiteral("CDS1cod"));
    EXPECT_EQ(campo("cod")->DisplayLabel(), QStringLiteral("Código"));
    EXPECT_EQ(campo("cod")->DisplayFormat(), QStringLiteral("000"));
    EXPECT_EQ(campo("cod")->Alignment(), taCenter);
    EXPECT_EQ(campo("descr")->DataType(), TFieldType::ftString);
    EXPECT_EQ(campo("descr")->Size(), 60);
    EXPECT_EQ(campo("preco")->DataType(), TFieldType::ftFloat);
    EXPECT_EQ(campo("preco")->Alignment(), taRightJustify);
    EXPECT_EQ(campo("data")->DataType(), TFieldType::ftDateTime);
    EXPECT_EQ(campo("data")->DisplayFormat(), QStringLiteral("dd/mm/yyyy"));
    EXPECT_EQ(campo("obs")->DisplayLabel(), QStringLiteral("obs")) << "no label of its own";
    EXPECT_EQ(campo("obs")->Alignment(), taLeftJustify);
    EXPECT_EQ(campo("ativo")->DataType(), TFieldType::ftBoolean);
    EXPECT_EQ(campo("ativo")->Name(), QStringLiteral("CDS1ativo"));
    EXPECT_EQ(grid->Columns(1)->Title.GetCaption(), QStringLiteral("Descrição"));
    EXPECT_EQ(grid->ColumnCount(), 7);
}

TEST_F(TDBClientBasFrTest, ShowingBuildsTheIndexesLoadsAndRefreshesInThisOrder)
{
    fr->eventos.clear();
    Mostrar();
    EXPECT_EQ(fr->eventos, (QStringList{QStringLiteral("dados"), QStringLiteral("listas")}));
    EXPECT_EQ(fr->indicesAoPreencher, 14);
    EXPECT_EQ(fr->ordemAoPreencher, QStringLiteral("cod"));
    EXPECT_EQ(fr->CDS->IndexDefs().size(), 14u);
    EXPECT_TRUE(fr->CDS->HasIndex(QStringLiteral("acod")));
    EXPECT_TRUE(fr->CDS->HasIndex(QStringLiteral("dativo")));
    EXPECT_EQ(fr->CampoOrdem, QStringLiteral("cod"));
    EXPECT_EQ(fr->CDS->GetIndexName(), QString());
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("003 001 002 004"))
        << "the order of insertion until the first click";
    EXPECT_GT(fr->rolagens, 0);
}

TEST_F(TDBClientBasFrTest, ShownAgainTheSortColumnIsTheFirstAndTheOrderStays)
{
    Mostrar();
    ClicarTitulo(1);
    fr->DoShow();
    EXPECT_EQ(fr->CampoOrdem, QStringLiteral("cod"));
    EXPECT_EQ(fr->CDS->GetIndexName(), QStringLiteral("adescr"));
    EXPECT_EQ(fr->CDS->IndexDefs().size(), 14u);
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("002 003 001 004"));
}

TEST_F(TDBClientBasFrTest, FilteringIsStoredAndRefreshesTheLists)
{
    fr->eventos.clear();
    fr->SetFiltrando(true);
    EXPECT_TRUE(fr->Filtrando);
    EXPECT_TRUE(fr->filtrandoNasListas) << "stored before the lists are refreshed";
    fr->SetFiltrando(false);
    EXPECT_FALSE(fr->Filtrando);
    EXPECT_EQ(fr->eventos, (QStringList{QStringLiteral("listas"), QStringLiteral("listas")}));
}

TEST_F(TDBClientBasFrTest, ThreeClicksOnATitleSortUpDownUpAndTheArrowFollows)
{
    Mostrar();
    ClicarTitulo(0);
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("001 002 003 004"));
    EXPECT_TRUE(fr->Ascendente);
    EXPECT_EQ(fr->CDS->GetIndexName(), QStringLiteral("acod"));
    EXPECT_EQ(Seta(Foto(), 0), QColor(Qt::red));
    ClicarTitulo(0);
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("004 003 002 001"));
    EXPECT_FALSE(fr->Ascendente);
    EXPECT_EQ(fr->CDS->GetIndexName(), QStringLiteral("dcod"));
    EXPECT_EQ(Seta(Foto(), 0), QColor(Qt::green));
    ClicarTitulo(0);
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("001 002 003 004"));
    EXPECT_TRUE(fr->Ascendente);
    EXPECT_EQ(Seta(Foto(), 0), QColor(Qt::red));
}

TEST_F(TDBClientBasFrTest, AnotherColumnAlwaysStartsRising)
{
    Mostrar();
    ClicarTitulo(0);
    ClicarTitulo(0);
    ASSERT_FALSE(fr->Ascendente);
    ClicarTitulo(1);
    EXPECT_TRUE(fr->Ascendente);
    EXPECT_EQ(fr->CampoOrdem, QStringLiteral("descr"));
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("002 003 001 004"))
        << "Abajur, Água, caderno, Uma: accents and case do not part letters";
    ClicarTitulo(0);
    EXPECT_TRUE(fr->Ascendente) << "it was falling before the other column was clicked";
    EXPECT_EQ(Codigos().join(u' '), QStringLiteral("001 002 003 004"));
}

TEST_F(TDBClientBasFrTest, TheRecordStaysCurrentThroughTheClicks)
{
    Mostrar();
    ASSERT_EQ(fr->CDS->Fields(0)->AsInteger(), 3);
    const int antesDe = fr->rolagens;
    ClicarTitulo(0);
    EXPECT_EQ(fr->CDS->Fields(0)->AsInteger(), 3);
    EXPECT_EQ(fr->CDS->RecNo(), 3);
    EXPECT_EQ(grid->GetRow(), 3);
    EXPECT_EQ(fr->rolagens, antesDe);
}

TEST_F(TDBClientBasFrTest, TitlesAreBlueAndTheClickedOneDarkerAndBold)
{
    Mostrar();
    ClicarTitulo(1);
    for (int col = 0; col < grid->ColumnCount(); ++col) {
        const TColumnTitle &titulo = grid->Columns(col)->Title;
        const bool clicado = col == 1;
        EXPECT_EQ(titulo.GetFont().bold(), clicado) << col;
        EXPECT_EQ(titulo.GetColor(),
                  clicado ? TColor::DeRGB(0x42, 0x68, 0x97) : TColor::DeRGB(0x58, 0x82, 0xB5));
        EXPECT_EQ(titulo.GetFontColor(), TColor::DeRGB(255, 255, 255));
    }
    const QImage foto = Foto();
    EXPECT_EQ(Fundo(foto, 0, 0), Cor(0x58, 0x82, 0xB5));
    EXPECT_EQ(Fundo(foto, 1, 0), Cor(0x42, 0x68, 0x97));
    ClicarTitulo(2);
    EXPECT_EQ(Fundo(Foto(), 1, 0), Cor(0x58, 0x82, 0xB5));
    fr->TitulosNormais(grid);
    EXPECT_FALSE(grid->Columns(2)->Title.GetFont().bold());
}

TEST_F(TDBClientBasFrTest, OnlyTheSortColumnHasTheOtherBandsAndTheSelectedRowIsDarkOverBoth)
{
    Mostrar();
    ClicarTitulo(2);
    fr->CDS->First();
    const QImage foto = Foto();
    for (int col = 0; col < 5; ++col) {
        EXPECT_EQ(Fundo(foto, col, 1), Escuro) << col;
        EXPECT_EQ(Fundo(foto, col, 2), col == 2 ? OrdemPar : Azul) << col;
        EXPECT_EQ(Fundo(foto, col, 3), col == 2 ? OrdemImpar : Branco) << col;
        EXPECT_EQ(Fundo(foto, col, 4), col == 2 ? OrdemPar : Azul) << col;
    }
    fr->CDS->Next();
    const QImage depois = Foto();
    EXPECT_EQ(Fundo(depois, 0, 1), Branco);
    EXPECT_EQ(Fundo(depois, 2, 1), OrdemImpar);
    EXPECT_EQ(Fundo(depois, 0, 2), Escuro);
    // Letters without soft edges are of their pure colour.
    QFont dura = grid->font();
    dura.setStyleStrategy(QFont::NoAntialias);
    grid->setFont(dura);
    const QImage letras = Foto();
    const auto tem = [&](int row, const QColor &cor) {
        const QRect area = grid->CellRect(1, row).adjusted(1, 1, -1, -1);
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (letras.pixelColor(x, y) == cor)
                    return true;
        return false;
    };
    EXPECT_TRUE(tem(2, Qt::white));
    EXPECT_FALSE(tem(2, Qt::black));
    EXPECT_TRUE(tem(1, Qt::black));
}

TEST_F(TDBClientBasFrTest, TheBandFillsTheLinesAndTheSelectionDoesNot)
{
    Mostrar();
    const QImage foto = Foto();
    const QRect celula = grid->CellRect(3, 3);
    EXPECT_EQ(foto.pixelColor(celula.right() + 1, celula.center().y()), Branco) << "no line";
    EXPECT_EQ(foto.pixelColor(celula.left(), celula.bottom() + 1), Azul)
        << "the next row's band reaches up by a pixel";
    const QRect atual = grid->CellRect(3, 1);
    EXPECT_EQ(foto.pixelColor(atual.topLeft()), Escuro);
    EXPECT_EQ(foto.pixelColor(atual.bottomRight()), Escuro);
    EXPECT_EQ(foto.pixelColor(atual.right() + 1, atual.center().y()), Branco);
    const QRect ultima = grid->CellRect(4, 4);
    EXPECT_EQ(foto.pixelColor(ultima.right() + 1, ultima.center().y()), Azul);
    EXPECT_EQ(foto.pixelColor(ultima.left() + 9, ultima.bottom() + 1), Azul) << "below the rows";
    ClicarTitulo(2);
    const QImage ordenada = Foto();
    const QRect daOrdem = grid->CellRect(2, 3);
    const int y = daOrdem.center().y();
    EXPECT_EQ(ordenada.pixelColor(daOrdem.left() - 1, y), OrdemImpar) << "to the left as well";
    EXPECT_EQ(ordenada.pixelColor(daOrdem.right() + 1, y), Branco) << "the next column's";
}

TEST_F(TDBClientBasFrTest, BandsGoByThePlaceInTheWindowNotByTheRow)
{
    Mostrar();
    for (int i = 0; i < 50; ++i)
        fr->CDS->AppendRecord({100 + i});
    fr->CDS->First();
    grid->SetTopRow(2);
    Girar();
    ASSERT_EQ(grid->GetTopRow(), 2);
    const QImage foto = Foto();
    EXPECT_EQ(grid->CellRect(1, 2).top(), 18);
    EXPECT_EQ(Fundo(foto, 1, 2), Branco) << "the first one in view, though an even row";
    EXPECT_EQ(Fundo(foto, 1, 3), Azul);
}

TEST_F(TDBClientBasFrTest, TheArrowIsInTheTitleWhateverIsPainted)
{
    Mostrar();
    EXPECT_EQ(Seta(Foto(), 0), QColor(Qt::red)) << "the first column, before any click";
    EXPECT_EQ(Seta(Foto(), 1), Cor(0x58, 0x82, 0xB5));
    ClicarTitulo(1);
    const QImage foto = Foto();
    EXPECT_EQ(Seta(foto, 1), QColor(Qt::red));
    EXPECT_EQ(Seta(foto, 0), Cor(0x58, 0x82, 0xB5));
    const int x = grid->CellRect(1, 0).right() + 1 - 11;
    EXPECT_EQ(foto.pixelColor(x, 1), QColor(Qt::red));
    EXPECT_NE(foto.pixelColor(x, 0), QColor(Qt::red));
    EXPECT_NE(foto.pixelColor(x - 1, 5), QColor(Qt::red));
    // The title alone is painted again, no row with it.
    const QRect titulo = grid->CellRect(1, 0);
    grid->viewport()->repaint(titulo);
    QImage parte(grid->viewport()->size(), QImage::Format_RGB32);
    grid->viewport()->render(&parte, titulo.topLeft(), QRegion(titulo));
    EXPECT_EQ(Seta(parte, 1), QColor(Qt::red));
}

TEST_F(TDBClientBasFrTest, TheTitleOfTheSortColumnKeepsClearOfTheArrow)
{
    Mostrar();
    const auto folgas = [&] {
        QList<int> lista;
        for (int col = 0; col < 5; ++col)
            lista << grid->Columns(col)->Title.GetRightMargin();
        return lista;
    };
    EXPECT_EQ(folgas(), (QList<int>{11, 0, 0, 0, 0}));
    ClicarTitulo(2);
    EXPECT_EQ(folgas(), (QList<int>{0, 0, 11, 0, 0}));
    fr->TitulosNormais(grid);
    EXPECT_EQ(folgas(), (QList<int>{0, 0, 11, 0, 0}));
}

TEST_F(TDBClientBasFrTest, AHostWithoutPicturesHasNoArrow)
{
    Mostrar();
    SisD().ImageList = nullptr;
    EXPECT_EQ(Seta(Foto(), 0), Cor(0x58, 0x82, 0xB5));
}

TEST_F(TDBClientBasFrTest, AnEmptyListHasABlankRowAndTheArrow)
{
    Mostrar();
    fr->CDS->EmptyDataSet();
    Girar();
    const QImage foto = Foto();
    EXPECT_EQ(grid->GetRowCount(), 2);
    for (int col = 0; col < 5; ++col)
        EXPECT_FALSE(TemTexto(foto, col, 1)) << col;
    EXPECT_EQ(Fundo(foto, 1, 1), Branco) << "no row is selected";
    EXPECT_EQ(Seta(foto, 0), QColor(Qt::red));
}

TEST_F(TDBClientBasFrTest, NumbersFollowTheirFormatOrAreTheTrimmedText)
{
    Mostrar();
    EXPECT_EQ(Coluna(2), (QStringList{QStringLiteral("1.234,50"), QStringLiteral("7,00"), QString(),
                                      QStringLiteral("10.000.000,00")}));
    EXPECT_EQ(Coluna(3), (QStringList{QStringLiteral("1,5"), QStringLiteral("0,25"),
                                      QStringLiteral("3"), QStringLiteral("2")}));
    EXPECT_EQ(Codigos().first(), QStringLiteral("003"));
    EXPECT_EQ(Coluna(1)[1], QStringLiteral("caderno"));
    EXPECT_TRUE(TemTexto(Foto(), 2, 2));
    EXPECT_FALSE(TemTexto(Foto(), 2, 3)) << "no price is no zero";
}

TEST_F(TDBClientBasFrTest, NoDateIsPaintedEmptyUntilAskedFor)
{
    Mostrar();
    const auto pintadas = [&] {
        const QImage foto = Foto();
        QList<bool> tem;
        for (int row = 1; row <= 4; ++row)
            tem << TemTexto(foto, 4, row);
        return tem;
    };
    // 01/01/1980, 02/01/1980, 30/12/1899, 31/12/2003.
    EXPECT_EQ(pintadas(), (QList<bool>{false, true, false, true}));
    EXPECT_EQ(grid->GetCell(4, 1), QString()) << "assistive tools read what is painted";
    EXPECT_EQ(grid->GetCell(4, 2), QStringLiteral("02/01/1980"));
    fr->MostrarDataNula = true;
    EXPECT_EQ(pintadas(), (QList<bool>{true, true, true, true}));
    EXPECT_EQ(grid->GetCell(4, 1), QStringLiteral("01/01/1980"));
    fr->MostrarDataNula = false;
    fr->CDS->Edit();
    fr->CDS->FieldByName(QStringLiteral("data"))->SetAsDateTime(TDateTime(29221.99));
    fr->CDS->Post();
    EXPECT_EQ(pintadas(), (QList<bool>{false, true, false, true})) << "at any time of that day";
}

TEST_F(TDBClientBasFrTest, TextsStandByTheirAlignmentThreePixelsFromTheEdge)
{
    Mostrar();
    fr->CDS->Next(); // row 2 is dark, row 1 is not
    const QImage foto = Foto();
    const auto extremos = [&](int col, int row) {
        const QRect area = grid->CellRect(col, row);
        int de = area.right() + 1, ate = area.left() - 1;
        for (int x = area.left(); x <= area.right(); ++x)
            for (int y = area.top(); y <= area.bottom(); ++y)
                if (foto.pixelColor(x, y) != Fundo(foto, col, row)) {
                    de = std::min(de, x);
                    ate = std::max(ate, x);
                }
        return std::pair(de - area.left(), area.right() - ate);
    };
    EXPECT_NEAR(extremos(1, 1).first, 3, 1) << "left";
    EXPECT_NEAR(extremos(2, 1).second, 3, 1) << "right";
    const auto [esquerda, direita] = extremos(0, 1);
    EXPECT_NEAR(esquerda, direita, 2) << "centre";
    // To the pixel: two below the cell's top.
    for (int col = 0; col < 3; ++col) {
        const QRect area = grid->CellRect(col, 1);
        const QString texto = grid->GetCell(col, 1);
        const QFontMetrics medida(grid->font());
        const int sobra = area.width() - medida.horizontalAdvance(texto);
        const int x = col == 0 ? sobra / 2 : col == 1 ? 3 : sobra - 3;
        QImage esperada(foto.size(), foto.format());
        esperada.fill(Fundo(foto, col, 1));
        QPainter p(&esperada);
        p.setFont(grid->font());
        p.drawText(area.left() + x, area.top() + 2 + medida.ascent(), texto);
        p.end();
        EXPECT_EQ(foto.copy(area), esperada.copy(area)) << col;
    }
}

TEST_F(TDBClientBasFrTest, ATextThatDoesNotFitStaysInItsCell)
{
    Mostrar();
    grid->Columns(1)->SetWidth(60);
    grid->Columns(2)->SetWidth(30);
    const QImage curto = Foto();
    const QRect preco = grid->CellRect(2, 4);
    // Nothing of the long description reaches the gap between the columns.
    for (int y = preco.top(); y <= preco.bottom(); ++y)
        EXPECT_EQ(curto.pixelColor(preco.left() - 1, y), Azul) << y;
    EXPECT_TRUE(TemTexto(curto, 1, 4));
}

TEST_F(TDBClientBasFrTest, HiddenColumnsAreNotShownAndComeBackAsWideAsTheyWere)
{
    Mostrar();
    EXPECT_FALSE(grid->Columns(5)->GetVisible());
    EXPECT_TRUE(grid->CellRect(5, 1).isEmpty());
    grid->Columns(3)->SetVisible(false);
    EXPECT_EQ(grid->Columns(3)->GetWidth(), 60);
    EXPECT_EQ(grid->CellRect(4, 1).left(), grid->CellRect(2, 1).right() + 2);
    grid->Columns(3)->SetVisible(true);
    EXPECT_EQ(grid->CellRect(3, 1).width(), 60);
}

TEST_F(TDBClientBasFrTest, PreparingAColumnSetsItsWidthAndTheTitlesAlignment)
{
    int coluna = 2;
    fr->PrepGridAjustarCol(grid, coluna, 77, taRightJustify);
    EXPECT_EQ(coluna, 3);
    EXPECT_EQ(grid->Columns(2)->GetWidth(), 77);
    EXPECT_EQ(grid->Columns(2)->Title.GetAlignment(), taRightJustify);
    fr->PrepGridEsconderCol(grid, coluna);
    EXPECT_EQ(coluna, 4);
    EXPECT_FALSE(grid->Columns(3)->GetVisible());
}

TEST_F(TDBClientBasFrTest, ScrollingTellsTheDescendant)
{
    Mostrar();
    grid->setFocus();
    const int antesDe = fr->rolagens;
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(fr->rolagens, antesDe + 1);
    EXPECT_EQ(fr->CDS->RecNo(), 2);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(1, 4).center());
    EXPECT_EQ(fr->CDS->RecNo(), 4);
    EXPECT_EQ(fr->rolagens, antesDe + 2);
}

namespace
{

class TRepetidoFr : public TDBClientBasFr
{
public:
    explicit TRepetidoFr(TChave chave) : TDBClientBasFr(chave) {}
    void CriarCampos() override
    {
        AdIntegerFieldInvisivel(QStringLiteral("cod"));
        AdStringFieldInvisivel(QStringLiteral("Cod"), 5);
    }
    void PreencherDados() override {}
};

class TSemCamposFr : public TDBClientBasFr
{
public:
    explicit TSemCamposFr(TChave chave) : TDBClientBasFr(chave) {}
    void CriarCampos() override {}
    void PreencherDados() override {}
};

} // namespace

TEST(TDBClientBasFr, ItStartsWithoutTheEmptyDatesWhateverTheFieldsDeclared)
{
    class TDatasFr : public TDBClientBasFr
    {
    public:
        explicit TDatasFr(TChave chave) : TDBClientBasFr(chave) {}
        void CriarCampos() override
        {
            EXPECT_TRUE(Ascendente && Opcao && !Filtrando);
            AdIntegerFieldInvisivel(QStringLiteral("cod"));
            MostrarDataNula = true;
        }
        void PreencherDados() override {}
    };
    const std::unique_ptr<TDatasFr> fr(Criar<TDatasFr>(nullptr));
    EXPECT_FALSE(fr->MostrarDataNula);
}

TEST(TDBClientBasFr, LettersAreOf8PointsWhateverTheProgramHas)
{
    const QFont antes = QApplication::font();
    QApplication::setFont(QFont(antes.family(), 13));
    const std::unique_ptr<TProdutosFr> fr(Criar<TProdutosFr>(nullptr));
    EXPECT_EQ(fr->DBGrid1->font().pointSize(), 8) << "its rows are 18 pixels high";
    EXPECT_EQ(fr->DBGrid1->GetTitleFont().pointSize(), 8);
    QApplication::setFont(antes);
}

TEST(TDBClientBasFr, FieldsDeclaredTwiceOrNotAtAllReachTheCaller)
{
    QWidget tela;
    EXPECT_THROW(Criar<TRepetidoFr>(&tela), EDatabaseError);
    EXPECT_THROW(Criar<TSemCamposFr>(&tela), EDatabaseError);
    EXPECT_TRUE(tela.findChildren<TDBClientBasFr *>().isEmpty());
}

TEST_F(TDBClientBasFrTest, PartsMayGoFirstInAnyOrder)
{
    enum TParte { Dataset, Fonte, Grade, Frame, Tela };
    QList<TParte> ordem = {Dataset, Fonte, Grade, Frame, Tela};
    do {
        QPointer<QWidget> janela = new QWidget;
        janela->resize(541, 217);
        const QPointer<TProdutosFr> outro = Criar<TProdutosFr>(janela.data());
        janela->show();
        outro->DoShow();
        const QPointer<TClientDataSet> cds = outro->CDS;
        const QPointer<TDataSource> fonte = outro->DataSource1;
        const QPointer<TDBGrid> grade = outro->DBGrid1;
        const QList<QPointer<QObject>> partes = {cds.data(), fonte.data(), grade.data(),
                                                 outro.data(), janela.data()};
        for (const TParte parte : ordem) {
            delete partes[parte];
            EXPECT_TRUE(partes[parte].isNull()) << parte;
            if (parte == Frame || parte == Tela) {
                EXPECT_TRUE(outro.isNull());
                EXPECT_TRUE(cds.isNull() && fonte.isNull() && grade.isNull()) << "the frame's own";
            }
            if (grade) {
                QTest::keyClick(grade, Qt::Key_Down);
                QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, QPoint(30, 30));
                grade->grab();
            }
            if (cds) {
                cds->First();
                cds->Last();
                cds->AppendRecord({9});
            }
            QCoreApplication::processEvents();
        }
        for (const QPointer<QObject> &parte : partes)
            EXPECT_TRUE(parte.isNull());
    } while (std::next_permutation(ordem.begin(), ordem.end()));
}

TEST_F(TDBClientBasFrTest, AFrameMayBeGivenUpByItsOwnRowsAndDestroyedByAClickOnItsTitle)
{
    Mostrar();
    const QPointer<TProdutosFr> vivo(fr);
    QObject::connect(fr->CDS, &TDataSet::AfterScroll, fr, &QObject::deleteLater);
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(1, 3).center());
    Girar();
    EXPECT_TRUE(vivo.isNull());

    QPointer<TProdutosFr> outro = Criar<TProdutosFr>(&tela);
    outro->show();
    outro->DoShow();
    outro->DBGrid1->OnTitleClick = [&](TColumn *) { delete outro; };
    TDBGrid *grade = outro->DBGrid1;
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, grade->CellRect(1, 0).center());
    EXPECT_TRUE(outro.isNull());
}

TEST_F(TDBClientBasFrTest, TenThousandRowsScrollPaintingOnlyWhatIsInView)
{
    Mostrar();
    fr->CDS->DisableControls();
    for (int i = 0; i < 10000; ++i)
        fr->CDS->AppendRecord({i, QStringLiteral("Linha %1").arg(i)});
    fr->CDS->EnableControls();
    fr->CDS->First();
    Girar();
    fr->pintadas = 0;
    for (int i = 0; i < 100; ++i) {
        grid->verticalScrollBar()->setValue(i * 90);
        Girar();
    }
    EXPECT_LE(fr->pintadas, 101 * 12 * 5);
    EXPECT_GE(fr->CDS->RecNo(), 8911) << "the current row came along";
    EXPECT_FALSE(grid->CellRect(0, grid->GetRow()).isEmpty());
}
