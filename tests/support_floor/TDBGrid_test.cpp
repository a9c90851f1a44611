#include "platform/support/TDBGrid.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/database/TClientDataSet.h"
#include "platform/database/TSQLQuery.h"
#include "platform/support/DBGridDrawCell.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"
#include "support/Widgets.h"

#include <QAccessible>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** A list of numbered names between two edits. */
class TDBGridTest : public testing::Test
{
protected:
    TDBGridTest()
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        cds->AddField(QStringLiteral("cod"), TFieldType::ftInteger)->SetAlignment(taRightJustify);
        cds->AddField(QStringLiteral("nome"), TFieldType::ftString, 30)
            ->SetDisplayLabel(QStringLiteral("Nome"));
        cds->AddField(QStringLiteral("valor"), TFieldType::ftFloat)
            ->SetDisplayFormat(QStringLiteral("0.00"));
        cds->CreateDataSet();
        cds->Open();
        fonte->SetDataSet(cds);
        antes = new QLineEdit(&janela);
        grid = new TDBGrid(&janela);
        depois = new QLineEdit(&janela);
        grid->move(0, 30);
        grid->resize(380, 200);
        depois->move(0, 250);
        grid->SetDataSource(fonte);
    }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    void Encher(int linhas)
    {
        cds->DisableControls();
        for (int i = 1; i <= linhas; ++i)
            cds->AppendRecord({i, QStringLiteral("Nome %1").arg(i), i / 4.0});
        cds->First();
        cds->EnableControls();
    }
    void Mostrar(int linhas)
    {
        Encher(linhas);
        janela.Abrir();
        grid->setFocus();
        Girar();
    }
    void Clicar(int col, int row)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(col, row).center());
    }
    QImage Foto() { return grid->viewport()->grab().toImage(); }

    TServicosGuarda guarda;
    QStringList erros;
    QObject dono;
    QPointer<TClientDataSet> cds = new TClientDataSet(&dono);
    QPointer<TDataSource> fonte = new TDataSource(&dono);
    TJanela janela;
    QLineEdit *antes, *depois;
    QPointer<TDBGrid> grid;
};

} // namespace

TEST_F(TDBGridTest, HasAColumnForEachFieldWithItsTitleAndAlignment)
{
    ASSERT_EQ(grid->ColumnCount(), 3);
    EXPECT_EQ(grid->Columns(0)->GetFieldName(), QStringLiteral("cod"));
    EXPECT_EQ(grid->Columns(0)->Title.GetCaption(), QStringLiteral("cod"));
    EXPECT_EQ(grid->Columns(0)->GetAlignment(), taRightJustify);
    EXPECT_EQ(grid->Columns(0)->Title.GetAlignment(), taRightJustify);
    EXPECT_EQ(grid->Columns(1)->Title.GetCaption(), QStringLiteral("Nome"));
    EXPECT_EQ(grid->Columns(1)->Field(), cds->Fields(1));
    EXPECT_GT(grid->Columns(1)->GetWidth(), grid->Columns(0)->GetWidth());
    EXPECT_EQ(grid->Columns(2)->Index(), 2);
    EXPECT_EQ(grid->ColumnByField(QStringLiteral("VALOR")), grid->Columns(2));
    EXPECT_EQ(grid->ColumnByField(QStringLiteral("nada")), nullptr);
    cds->Fields(1)->SetDisplayLabel(QStringLiteral("Razão"));
    EXPECT_EQ(grid->GetCell(1, 0), QStringLiteral("Razão")) << "follows the field";
    grid->Columns(1)->Title.SetCaption(QString());
    EXPECT_EQ(grid->GetCell(1, 0), QString()) << "until it has one of its own, an empty one too";
}

TEST_F(TDBGridTest, ShowsTheRowsOfTheDatasetFormatted)
{
    EXPECT_EQ(grid->GetRowCount(), 2) << "a title and a blank row";
    EXPECT_EQ(grid->GetCell(1, 1), QString());
    Encher(3);
    EXPECT_EQ(grid->GetRowCount(), 4);
    EXPECT_EQ(grid->GetCell(0, 3), QStringLiteral("3"));
    EXPECT_EQ(grid->GetCell(1, 2), QStringLiteral("Nome 2"));
    EXPECT_EQ(grid->GetCell(2, 1), QStringLiteral("0,25"));
    EXPECT_EQ(grid->GetCell(1, 4), QString());
    EXPECT_EQ(grid->GetCell(9, 1), QString());
    EXPECT_EQ(cds->RecNo(), 1) << "reading rows moves nothing";
    cds->Close();
    EXPECT_EQ(grid->GetRowCount(), 2);
    EXPECT_EQ(grid->ColumnCount(), 3);
    cds->Open();
    EXPECT_EQ(grid->GetRowCount(), 4);
}

TEST_F(TDBGridTest, FollowsEveryChangeOfTheDataset)
{
    Mostrar(3);
    cds->Last();
    EXPECT_EQ(grid->GetRow(), 3);
    cds->AppendRecord({9, QStringLiteral("Nove"), 0.0});
    EXPECT_EQ(grid->GetRowCount(), 5);
    EXPECT_EQ(grid->GetRow(), 4);
    cds->Edit();
    cds->Fields(1)->SetAsString(QStringLiteral("Novo"));
    cds->Post();
    EXPECT_EQ(grid->GetCell(1, 4), QStringLiteral("Novo"));
    cds->AddIndex(QStringLiteral("d"), QStringLiteral("cod"), ixDescending);
    cds->SetIndexName(QStringLiteral("d"));
    EXPECT_EQ(grid->GetCell(1, 1), QStringLiteral("Novo"));
    EXPECT_EQ(grid->GetRow(), 1);
    cds->SetFilter(QStringLiteral("cod < 3"));
    cds->SetFiltered(true);
    EXPECT_EQ(grid->GetRowCount(), 3);
    EXPECT_EQ(grid->GetCell(1, 1), QStringLiteral("Nome 2"));
    cds->Delete();
    EXPECT_EQ(grid->GetRowCount(), 2);
    cds->EmptyDataSet();
    EXPECT_EQ(grid->GetRowCount(), 2);
    EXPECT_EQ(grid->GetCell(1, 1), QString());
}

TEST_F(TDBGridTest, WhileControlsAreDisabledItStaysAsItIs)
{
    Mostrar(3);
    cds->DisableControls();
    cds->Last();
    cds->AppendRecord({4, QStringLiteral("Quatro"), 1.0});
    EXPECT_EQ(grid->GetRow(), 1);
    EXPECT_EQ(grid->GetRowCount(), 4);
    cds->EmptyDataSet();
    Foto(); // rows that are gone meanwhile are painted blank
    cds->AppendRecord({5, QStringLiteral("Cinco"), 1.0});
    cds->AppendRecord({6, QStringLiteral("Seis"), 1.0});
    cds->EnableControls();
    EXPECT_EQ(grid->GetRow(), 2);
    EXPECT_EQ(grid->GetRowCount(), 3);
}

TEST_F(TDBGridTest, KeysMoveTheDataset)
{
    Mostrar(100);
    QSignalSpy rolou(cds.data(), &TDataSet::AfterScroll);
    const auto depoisDe = [&](Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier) {
        QTest::keyClick(grid, tecla, com);
        EXPECT_EQ(grid->GetRow(), cds->RecNo());
        return cds->RecNo();
    };
    EXPECT_EQ(depoisDe(Qt::Key_Down), 2);
    EXPECT_EQ(depoisDe(Qt::Key_Up), 1);
    EXPECT_EQ(depoisDe(Qt::Key_Up), 1);
    EXPECT_EQ(rolou.count(), 2);
    const int pagina = grid->VisibleRowCount();
    EXPECT_EQ(depoisDe(Qt::Key_PageDown), 1 + pagina);
    EXPECT_EQ(depoisDe(Qt::Key_End, Qt::ControlModifier), 100);
    EXPECT_EQ(depoisDe(Qt::Key_PageUp), 100 - pagina);
    EXPECT_EQ(depoisDe(Qt::Key_Home, Qt::ControlModifier), 1);
    EXPECT_EQ(depoisDe(Qt::Key_End), 1);
    EXPECT_EQ(grid->GetCol(), 2);
    EXPECT_EQ(depoisDe(Qt::Key_Home), 1);
    EXPECT_EQ(grid->GetCol(), 0);
    EXPECT_EQ(depoisDe(Qt::Key_Right), 1);
    EXPECT_EQ(grid->GetCol(), 1);
}

TEST_F(TDBGridTest, TabGoesFromCellToCellAndLeavesAtTheEnds)
{
    Mostrar(2);
    grid->Columns(1)->SetVisible(false);
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_EQ(grid->GetCol(), 2) << "past the hidden column";
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_EQ(cds->RecNo(), 2);
    EXPECT_EQ(grid->GetCol(), 0);
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(grid->hasFocus());
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(depois->hasFocus());
    grid->setFocus();
    for (int i = 0; i < 3; ++i)
        QTest::keyClick(grid, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(cds->RecNo(), 1);
    EXPECT_EQ(grid->GetCol(), 0);
    QTest::keyClick(grid, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_TRUE(antes->hasFocus());

    grid->SetOptions(TDBGrid::OpcoesPadrao & ~unsigned(dgTabs));
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(depois->hasFocus());

    grid->SetOptions(TDBGrid::OpcoesPadrao);
    cds->EmptyDataSet();
    grid->setFocus();
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(depois->hasFocus()) << "there is no cell to go to";
}

TEST_F(TDBGridTest, ShowsAQueryAsWell)
{
    TBancoTemp banco(QStringLiteral("create table t (cod integer, uf char(4), v numeric(9,2));"));
    banco.Executar(QStringLiteral("insert into t values (1, 'SP', 1.5)"));
    banco.Executar(QStringLiteral("insert into t values (2, 'RJ', null)"));
    TSQLQuery query;
    query.SetSQLConnection(&banco.Conexao());
    query.SetSQL(QStringLiteral("select * from t order by cod"));
    fonte->SetDataSet(&query);
    query.Open();
    query.FieldByName(QStringLiteral("v"))->SetDisplayFormat(QStringLiteral("0.00"));
    janela.Abrir();
    grid->setFocus();
    EXPECT_EQ(grid->ColumnCount(), 3);
    EXPECT_EQ(grid->GetCell(1, 1), QStringLiteral("SP"));
    EXPECT_EQ(grid->GetCell(2, 1), QStringLiteral("1,50"));
    EXPECT_EQ(grid->GetCell(2, 2), QString());
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(query.RecNo(), 2);
    banco.Executar(QStringLiteral("insert into t values (0, 'MG', 2)"));
    query.Close();
    query.Open();
    EXPECT_EQ(grid->GetRowCount(), 4);
    EXPECT_EQ(grid->GetRow(), 1);
    EXPECT_EQ(grid->GetCell(1, 1), QStringLiteral("MG"));
}

TEST_F(TDBGridTest, AClickMovesTheDatasetAndTheColumn)
{
    Mostrar(5);
    Clicar(2, 4);
    EXPECT_EQ(cds->RecNo(), 4);
    EXPECT_EQ(grid->GetCol(), 2);
    EXPECT_EQ(grid->GetRow(), 4);
}

TEST_F(TDBGridTest, ADatasetThatGoesElsewhereTakesTheGridAlong)
{
    Mostrar(10);
    bool desviou = false;
    QObject::connect(cds, &TDataSet::AfterScroll, grid, [&] {
        if (!std::exchange(desviou, true))
            cds->MoveBy(5);
    });
    Clicar(1, 3);
    EXPECT_EQ(cds->RecNo(), 8);
    EXPECT_EQ(grid->GetRow(), 8);
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(cds->RecNo(), 9);
    EXPECT_EQ(grid->GetRow(), 9);
}

TEST_F(TDBGridTest, AVetoKeepsTheDatasetWhereItIsButNotTheProgramsMoves)
{
    Mostrar(5);
    grid->OnSelectCell = [](QObject *, int, int, bool &pode) { pode = false; };
    Clicar(1, 3);
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(cds->RecNo(), 1);
    cds->Last();
    EXPECT_EQ(grid->GetRow(), 5);
}

TEST_F(TDBGridTest, TheBarAndTheWheelTakeTheCurrentRowAlong)
{
    Mostrar(1000);
    const int cabem = grid->VisibleRowCount();
    grid->verticalScrollBar()->setValue(500);
    EXPECT_EQ(grid->GetTopRow(), 501);
    EXPECT_EQ(cds->RecNo(), 501);
    grid->verticalScrollBar()->setValue(498);
    EXPECT_EQ(cds->RecNo(), 501) << "still in view";
    grid->verticalScrollBar()->setValue(100);
    EXPECT_EQ(cds->RecNo(), 100 + cabem);
    QWheelEvent roda(QPointF(50, 50), grid->viewport()->mapToGlobal(QPointF(50, 50)), QPoint(),
                     QPoint(0, -120 * 20), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(grid->viewport(), &roda);
    EXPECT_GT(grid->GetTopRow(), 101);
    EXPECT_GE(cds->RecNo(), grid->GetTopRow());
    EXPECT_EQ(grid->GetRow(), cds->RecNo());
}

TEST_F(TDBGridTest, ResizingMovesNoRecord)
{
    Mostrar(100);
    cds->MoveBy(50);
    QSignalSpy rolou(cds.data(), &TDataSet::AfterScroll);
    grid->resize(380, 60);
    Girar();
    EXPECT_FALSE(grid->CellRect(0, grid->GetRow()).isEmpty());
    grid->resize(380, 210);
    Girar();
    EXPECT_EQ(rolou.count(), 0);
    EXPECT_EQ(cds->RecNo(), 51);
}

TEST_F(TDBGridTest, TitlesAreClickedOnlyWherePressedAndLetGo)
{
    Mostrar(2);
    QStringList cliques;
    grid->OnTitleClick = [&](TColumn *coluna) { cliques << coluna->GetFieldName(); };
    Clicar(1, 0);
    Clicar(0, 0);
    Clicar(0, 1);
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(0, 0).center());
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(1, 0).center());
    EXPECT_EQ(cliques, (QStringList{QStringLiteral("nome"), QStringLiteral("cod")}));
    EXPECT_EQ(cds->RecNo(), 1);
    grid->OnTitleClick = [](TColumn *) { throw EErro(QStringLiteral("falhou")); };
    Clicar(1, 0);
    EXPECT_EQ(std::exchange(erros, {}), QStringList(QStringLiteral("falhou")));
}

TEST_F(TDBGridTest, TitlesAreDraggedWiderAndThatIsNoClick)
{
    Mostrar(2);
    bool clicou = false;
    grid->OnTitleClick = [&](TColumn *) { clicou = true; };
    const int antesDe = grid->Columns(0)->GetWidth();
    const QPoint borda(grid->CellRect(0, 0).right() + 1, 8);
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, borda);
    QMouseEvent move(QEvent::MouseMove, borda + QPoint(25, 0),
                     grid->viewport()->mapToGlobal(borda + QPoint(25, 0)), Qt::LeftButton,
                     Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(grid->viewport(), &move);
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, borda + QPoint(25, 0));
    EXPECT_EQ(grid->Columns(0)->GetWidth(), antesDe + 25);
    EXPECT_FALSE(clicou);
    cds->Close();
    cds->Open();
    EXPECT_EQ(grid->Columns(0)->GetWidth(), antesDe + 25) << "the same fields keep their columns";
    grid->SetOptions(TDBGrid::OpcoesPadrao & ~unsigned(dgColumnResize));
    EXPECT_FALSE(grid->GetColSizing());
}

TEST_F(TDBGridTest, DeclaredColumnsTakeThePlaceOfTheOthers)
{
    Encher(2);
    TColumn *nome = grid->AddColumn(QStringLiteral("nome"));
    grid->AddColumn(QStringLiteral("nada"));
    ASSERT_EQ(grid->ColumnCount(), 2);
    EXPECT_EQ(grid->GetCell(0, 1), QStringLiteral("Nome 1"));
    EXPECT_EQ(grid->GetCell(1, 1), QString());
    EXPECT_EQ(grid->GetCell(1, 0), QStringLiteral("nada"));
    nome->SetFieldName(QStringLiteral("cod"));
    EXPECT_EQ(grid->GetCell(0, 2), QStringLiteral("2"));
    cds->Close();
    cds->Open();
    EXPECT_EQ(grid->ColumnCount(), 2);
    grid->ClearColumns();
    EXPECT_EQ(grid->ColumnCount(), 3);
}

TEST_F(TDBGridTest, WithoutTitlesTheFirstRowIsARecord)
{
    Mostrar(3);
    grid->SetOptions(dgRowLines | dgColLines);
    EXPECT_EQ(grid->GetRowCount(), 3);
    EXPECT_EQ(grid->GetCell(1, 0), QStringLiteral("Nome 1"));
    cds->Last();
    EXPECT_EQ(grid->GetRow(), 2);
    QTest::keyClick(grid, Qt::Key_Up);
    EXPECT_EQ(cds->RecNo(), 2);
}

TEST_F(TDBGridTest, RowsAreEighteenPixelsApart)
{
    Mostrar(5);
    for (int row = 0; row < 5; ++row)
        EXPECT_EQ(grid->CellRect(0, row).top(), row * 18);
    EXPECT_EQ(grid->CellRect(0, 1).height(), 17);
}

TEST_F(TDBGridTest, TheHostPaintsEveryCellInViewWithItsRowInTheFields)
{
    Mostrar(1000);
    grid->SetDefaultDrawing(false);
    QStringList vistos;
    QList<int> escolhidas;
    grid->OnDrawColumnCell = [&](QObject *sender, QPainter &, const QRect &rect, int dataCol,
                                 TColumn *coluna, unsigned estado) {
        EXPECT_EQ(sender, grid.data());
        EXPECT_EQ(coluna->Index(), dataCol);
        EXPECT_EQ(rect.height(), 17);
        if (dataCol == 1)
            vistos << coluna->Field()->AsString();
        if (dataCol == 1 && estado & gdSelecionada)
            escolhidas << cds->FieldByName(QStringLiteral("cod"))->AsInteger();
    };
    cds->MoveBy(2);
    Foto();
    EXPECT_EQ(vistos.size(), (grid->viewport()->height() - 18 + 17) / 18)
        << "the rows in view, the last one in part";
    EXPECT_EQ(vistos.first(), QStringLiteral("Nome 1"));
    EXPECT_EQ(escolhidas, QList<int>{3});
    EXPECT_EQ(cds->RecNo(), 3);
}

TEST_F(TDBGridTest, TheHostsPaintMayReachTheTitles)
{
    Mostrar(2);
    grid->SetDefaultDrawing(false);
    grid->OnDrawColumnCell = [](QObject *, QPainter &p, const QRect &rect, int, TColumn *,
                                unsigned) { p.fillRect(rect.left() + 4, 4, 3, 3, Qt::magenta); };
    EXPECT_EQ(Foto().pixelColor(5, 5), QColor(Qt::magenta));
}

TEST_F(TDBGridTest, AnErrorWhilePaintingIsToldOnceAndTheCellsArePaintedAllTheSame)
{
    Mostrar(5);
    grid->SetDefaultDrawing(false);
    grid->OnDrawColumnCell = [](QObject *, QPainter &, const QRect &, int, TColumn *, unsigned) {
        throw EErro(QStringLiteral("sem tinta"));
    };
    grid->viewport()->repaint();
    Girar(20);
    const QImage foto = Foto();
    Girar(20);
    EXPECT_EQ(std::exchange(erros, {}), QStringList(QStringLiteral("sem tinta")));
    EXPECT_EQ(foto.pixelColor(grid->CellRect(1, 1).topRight() - QPoint(2, -2)),
              grid->palette().color(QPalette::Highlight));
}

TEST_F(TDBGridTest, TheDefaultPaintingMarksTheCurrentRow)
{
    Mostrar(3);
    cds->Next();
    const QImage foto = Foto();
    const auto fundo = [&](int row) {
        return foto.pixelColor(grid->CellRect(1, row).topRight() - QPoint(2, -2));
    };
    EXPECT_EQ(fundo(1), grid->GetColor().ParaQColor());
    EXPECT_EQ(fundo(2), grid->palette().color(QPalette::Highlight));
    EXPECT_EQ(foto.pixelColor(grid->CellRect(1, 1).bottomLeft() + QPoint(4, 1)),
              QColor(192, 192, 192));
    grid->SetOptions(TDBGrid::OpcoesPadrao & ~unsigned(dgRowLines));
    EXPECT_EQ(Foto().pixelColor(grid->CellRect(1, 1).bottomLeft() + QPoint(4, 1)),
              grid->GetColor().ParaQColor());
}

TEST_F(TDBGridTest, AssistiveToolsSeeATable)
{
    Mostrar(50);
    QAccessible::setActive(true);
    QAccessibleInterface *interface = QAccessible::queryAccessibleInterface(grid);
    ASSERT_TRUE(interface && interface->tableInterface());
    QAccessibleTableInterface *tabela = interface->tableInterface();
    EXPECT_EQ(tabela->rowCount(), 50);
    EXPECT_EQ(tabela->columnCount(), 3);
    EXPECT_EQ(tabela->columnDescription(1), QStringLiteral("Nome"));
    EXPECT_EQ(tabela->cellAt(48, 2)->text(QAccessible::Name), QStringLiteral("12,25"));
    cds->MoveBy(7);
    EXPECT_EQ(interface->focusChild()->text(QAccessible::Name), QStringLiteral("8"));
    tabela->cellAt(20, 1)->actionInterface()->doAction(
        QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(cds->RecNo(), 21) << "the dataset goes along";
    QAccessible::setActive(false);
}

TEST_F(TDBGridTest, AnotherSourceOrDatasetIsShownAtOnce)
{
    Encher(3);
    TClientDataSet outro;
    outro.AddField(QStringLiteral("sigla"), TFieldType::ftString, 2);
    outro.CreateDataSet();
    outro.Open();
    outro.AppendRecord({QStringLiteral("SP")});
    fonte->SetDataSet(&outro);
    EXPECT_EQ(grid->ColumnCount(), 1);
    EXPECT_EQ(grid->GetCell(0, 1), QStringLiteral("SP"));
    cds->Last();
    EXPECT_EQ(grid->GetRow(), 1) << "the old dataset has no say any more";
    grid->SetDataSource(nullptr);
    EXPECT_EQ(grid->ColumnCount(), 0);
    EXPECT_EQ(grid->GetCell(0, 1), QString());
    grid->SetDataSource(fonte);
    fonte->SetDataSet(cds);
    EXPECT_EQ(grid->GetRow(), 3);
}

TEST_F(TDBGridTest, DatasetSourceAndGridMayBeDestroyedInAnyOrder)
{
    QList<int> ordem = {0, 1, 2};
    do {
        auto *dados = new TClientDataSet;
        dados->AddField(QStringLiteral("a"), TFieldType::ftInteger);
        dados->CreateDataSet();
        dados->Open();
        for (int i = 0; i < 30; ++i)
            dados->AppendRecord({i});
        QPointer<TClientDataSet> d = dados;
        QPointer<TDataSource> f = new TDataSource;
        QPointer<TDBGrid> g = new TDBGrid(&janela);
        f->SetDataSet(d);
        g->SetDataSource(f);
        g->resize(200, 100);
        janela.show();
        g->show();
        for (const int qual : ordem) {
            if (qual == 0)
                delete d;
            else if (qual == 1)
                delete f;
            else
                delete g;
            if (g) {
                QTest::keyClick(g, Qt::Key_Up);
                g->grab();
                EXPECT_EQ(g->GetRowCount(), f && d ? 31 : 2);
            }
            if (d) {
                d->First();
                d->AppendRecord({1});
            }
            Girar();
        }
    } while (std::next_permutation(ordem.begin(), ordem.end()));
}

TEST(DBGridDrawCell, PlacesTextsAndTellsOddFromEven)
{
    QPixmap tela(100, 20);
    QPainter p(&tela);
    const QString texto = QStringLiteral("12,50");
    const int largura = p.fontMetrics().horizontalAdvance(texto);
    const QRect rect(10, 0, 80, 17);
    EXPECT_EQ(XDir(p, rect, texto), 90 - largura);
    EXPECT_EQ(XCentro(p, rect, texto), 10 + (80 - largura) / 2);
    EXPECT_EQ(XCentro(p, QRect(0, 0, largura + 1, 17), texto), 0);
    EXPECT_LT(XCentro(p, QRect(0, 0, largura - 1, 17), texto), 0);
    EXPECT_TRUE(NumEhImpar(1));
    EXPECT_FALSE(NumEhImpar(0));
    EXPECT_TRUE(NumEhImpar(-3));
    EXPECT_FALSE(NumEhImpar(-4));
}

TEST_F(TDBGridTest, AColumnWithoutAFieldIsNotTheSortColumnOfAnUnsortedList)
{
    TColumn *semCampo = grid->AddColumn(QString());
    QImage foto(64, 36, QImage::Format_RGB32);
    QPainter p(&foto);
    const auto fundo = [&](const QString &ordem) {
        DBGridDrawColumnCell(p, QRect(0, 18, 60, 17), *semCampo, 0, {ordem});
        return foto.pixelColor(30, 30);
    };
    EXPECT_EQ(fundo(QString()), fundo(QStringLiteral("nome")));
    DBGridReservarSeta(*grid, QString());
    EXPECT_EQ(semCampo->Title.GetRightMargin(), 0);
}
