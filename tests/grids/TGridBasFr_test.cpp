#include "grids/UGridBasFr.h"

#include "forms/UActContainerF.h"
#include "forms/UFicha.h"
#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QPainter>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** A price list that records what the mouse does. */
class TPrecosFr : public TGridBasFr
{
public:
    using TGridBasFr::TGridBasFr;
    void PrepGrid() override
    {
        StringGrid1->SetColCount(3);
        StringGrid1->SetRowCount(9);
        const QStringList titulos = {QStringLiteral("Produto"), QStringLiteral("Desde"),
                                     QStringLiteral("Preço")};
        for (int c = 0; c < 3; ++c)
            StringGrid1->SetCell(c, 0, titulos[c]);
        for (int r = 1; r < 9; ++r) {
            StringGrid1->SetCell(0, r, QStringLiteral("Parafuso sextavado M%1 zincado").arg(r));
            StringGrid1->SetCell(1, r, QStringLiteral("0%1/03/2024").arg(r));
            StringGrid1->SetCell(2, r, QStringLiteral("%1,50").arg(r * 100));
        }
        StringGrid1->SetCell(0, 7, QStringLiteral("%@#Fora de linha"));
        StringGrid1->SetColWidth(0, 150);
        ColsInfo->Atualizar(*StringGrid1);
    }
    void GridMouseDown(int col, int row) override
    {
        TGridBasFr::GridMouseDown(col, row);
        celulas << TGridCoord{col, row};
    }
    QList<TGridCoord> celulas;
};

/** Counts the paintings of a widget. */
class TContaPinturas : public QObject
{
public:
    explicit TContaPinturas(QWidget *w) { w->installEventFilter(this); }
    /** Since the last time, everything that is pending included. */
    int Desde()
    {
        Girar(20);
        return std::exchange(pinturas, 0);
    }

protected:
    bool eventFilter(QObject *, QEvent *evento) override
    {
        pinturas += evento->type() == QEvent::Paint;
        return false;
    }

private:
    int pinturas = 0;
};

class TGridBasFrTest : public testing::Test
{
protected:
    TGridBasFrTest() : fr(Criar<TPrecosFr>(&janela)), grade(fr->StringGrid1)
    {
        fr->PrepGrid();
        fr->resize(360, 200);
        janela.resize(400, 220);
        janela.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        fr->SetFocus();
        Girar();
    }
    QPoint Centro(int col, int row) const { return grade->CellRect(col, row).center(); }
    QColor Fundo(int col, int row) const
    {
        const QImage imagem = grade->viewport()->grab().toImage();
        return imagem.pixelColor(grade->CellRect(col, row).topRight() + QPoint(-2, 3));
    }
    void Mover(QPoint onde, Qt::MouseButtons botoes)
    {
        QMouseEvent evento(QEvent::MouseMove, onde, grade->viewport()->mapToGlobal(onde),
                           Qt::NoButton, botoes, Qt::NoModifier);
        QApplication::sendEvent(grade->viewport(), &evento);
    }

    TFicha biblioteca;
    QWidget janela;
    TPrecosFr *fr;
    TStringGrid *grade;
};

} // namespace

TEST_F(TGridBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_EQ(QApplication::focusWidget(), grade);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TGridBasFr")));
    EXPECT_EQ(grade->GetFixedColor(), TColor::DeRGB(0x88, 0xCC, 0xFF));
    EXPECT_EQ(grade->GetColor().ParaQColor(), fr->palette().color(QPalette::Button));
    EXPECT_EQ(grade->GetDefaultRowHeight(), 18);
    EXPECT_FALSE(grade->GetDefaultDrawing());
    EXPECT_EQ(grade->frameShape(), QFrame::NoFrame);
    EXPECT_TRUE(grade->GetThumbTracking());
    EXPECT_FALSE(grade->GetGridLines() || grade->GetRangeSelect() || grade->GetRowSelect() ||
                 grade->GetColSizing());
    EXPECT_EQ(fr->ToolBar1Panel->geometry(), QRect(0, 176, 360, 24));
    EXPECT_EQ(grade->geometry(), QRect(0, 0, 360, 176));
    EXPECT_EQ(fr->AmpliarAct->GetHint(), QStringLiteral("Tamanho Original"));
    EXPECT_EQ(fr->AmpliarAct->GetCaption(), QStringLiteral("Ampliar"));
}

TEST_F(TGridBasFrTest, CellsArePaintedInBandsByTheColumnDescription)
{
    grade->SetCelula(1, 4);
    Girar();
    EXPECT_EQ(Fundo(0, 1), QColor(Qt::white));
    EXPECT_EQ(Fundo(0, 2), QColor(0xDF, 0xEF, 0xF9));
    EXPECT_EQ(Fundo(1, 4), QColor(0x0A, 0x24, 0x6A));
    EXPECT_EQ(Fundo(0, 4), SisD().CorControlSelec.ParaQColor());
    EXPECT_NE(Fundo(0, 7), QColor(Qt::white)) << "a marked cell";
    // Numbers stand at the right: no ink where a text would start.
    const QImage imagem = grade->viewport()->grab().toImage();
    const QRect preco = grade->CellRect(2, 1).adjusted(2, 3, 0, -3);
    for (int x = preco.left(); x < preco.left() + 10; ++x)
        EXPECT_EQ(imagem.pixelColor(x, preco.center().y()), QColor(Qt::white));
    Retratar(&janela, QStringLiteral("TGridBasFr-precos"));
}

TEST_F(TGridBasFrTest, EveryCellIsHandedToTheLibrarysPainterWithTheStatedArguments)
{
    grade->SetCelula(1, 4);
    grade->SetColWidth(0, 100); // the names need an ellipsis, or a second line
    grade->SetCell(2, 2, QStringLiteral("%@#"));
    fr->ColsInfo->SetConteudo(2, TConteudoCol::Numero);
    Girar();
    int celulas = 0;
    for (const int altura : {18, 9}) { // in low rows the upper margin shows, too
        grade->SetDefaultRowHeight(altura);
        Girar();
        const QImage vista = grade->viewport()->grab().toImage();
        for (int row = 0; row < grade->GetRowCount(); ++row)
            for (int col = 0; col < grade->GetColCount(); ++col) {
                const QRect area = grade->CellRect(col, row);
                if (area.isEmpty() || !vista.rect().contains(area))
                    continue;
                const unsigned estado = row == 0               ? gdFixa
                                        : col == 1 && row == 4 ? gdSelecionada | gdFocada
                                                               : gdNada;
                QImage esperada(vista.size(), vista.format());
                esperada.fill(grade->GetColor().ParaQColor());
                QPainter p(&esperada);
                StringGridDrawCell(grade, p, col, row, area, estado, nullptr, -1, 2, 1, true,
                                   fr->ColsInfo.get(), true, false, TColor(),
                                   QStringLiteral("%@#"));
                p.end();
                EXPECT_EQ(vista.copy(area), esperada.copy(area)) << col << ' ' << row;
                ++celulas;
            }
    }
    EXPECT_EQ(celulas, 2 * 27);
}

TEST_F(TGridBasFrTest, ANewFrameDescribesNoGridAndItsFirstRefreshPaints)
{
    auto *novo = Criar<TGridBasFr>(&janela);
    EXPECT_EQ(novo->ColsInfo->Count(), 0);
    novo->show();
    Girar();
    novo->AmpliarAct->OnUpdate = nullptr;
    auto *outro = Criar<TGridBasFr>(nullptr);
    outro->AmpliarAct->OnUpdate = nullptr;
    outro->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(outro));
    TContaPinturas pinturas(outro->StringGrid1->viewport());
    pinturas.Desde();
    outro->Atualizar();
    EXPECT_EQ(pinturas.Desde(), 1);
    delete outro;
}

TEST_F(TGridBasFrTest, RefreshingWithoutAMoveOfTheCurrentCellPaintsOnlyOnce)
{
    fr->AmpliarAct->OnUpdate = nullptr; // only the calls below
    TContaPinturas pinturas(grade->viewport());
    grade->SetCelula(1, 3);
    pinturas.Desde();
    fr->Atualizar();
    EXPECT_EQ(pinturas.Desde(), 1);
    fr->Atualizar();
    fr->Atualizar();
    EXPECT_EQ(pinturas.Desde(), 0);
    grade->SetCol(2);
    pinturas.Desde();
    fr->Atualizar();
    EXPECT_EQ(pinturas.Desde(), 1);
}

TEST_F(TGridBasFrTest, AtIdleTimeTheWholeGridFollowsTheCurrentCell)
{
    TContaPinturas pinturas(grade->viewport());
    pinturas.Desde();
    QTest::keyClick(grade, Qt::Key_Down);
    EXPECT_GE(pinturas.Desde(), 1);
    EXPECT_EQ(pinturas.Desde(), 0) << "an idle frame does not paint";
}

TEST_F(TGridBasFrTest, OnlyMovesWithTheLeftButtonHeldRepaint)
{
    TContaPinturas pinturas(grade->viewport());
    pinturas.Desde();
    Mover(Centro(1, 2), Qt::NoButton);
    Mover(Centro(1, 3), Qt::RightButton);
    EXPECT_EQ(pinturas.Desde(), 0);
    Mover(Centro(1, 2), Qt::LeftButton);
    EXPECT_EQ(pinturas.Desde(), 1);
}

TEST_F(TGridBasFrTest, AClickRepaints)
{
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    TContaPinturas pinturas(grade->viewport());
    pinturas.Desde();
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    EXPECT_GE(pinturas.Desde(), 1);
}

TEST_F(TGridBasFrTest, ClicksReachTheDescendantAsCellsAndMinusOneOutsideThem)
{
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    QTest::mouseClick(grade->viewport(), Qt::RightButton, {}, Centro(2, 5));
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, Centro(0, 0));
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, QPoint(340, 60));
    const QList<TGridCoord> esperadas = {{1, 3}, {2, 5}, {0, 0}, {-1, -1}};
    ASSERT_EQ(fr->celulas.size(), 4);
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(fr->celulas[i].Col, esperadas[i].Col) << i;
        EXPECT_EQ(fr->celulas[i].Row, esperadas[i].Row) << i;
    }
}

TEST_F(TGridBasFrTest, TheEnlargedCopyFillsItsWindow)
{
    auto *simples = Criar<TGridBasFr>(&janela);
    simples->show();
    QTimer::singleShot(60, qApp, [] {
        auto *container = qobject_cast<TActContainerF *>(TForm::FormularioAtivo());
        ASSERT_TRUE(container);
        auto *copia = qobject_cast<TGridBasFr *>(container->ActFr);
        ASSERT_TRUE(copia);
        EXPECT_EQ(copia->geometry(), QRect(0, 0, 700, 400));
        EXPECT_EQ(copia->StringGrid1->geometry(), QRect(0, 0, 700, 376));
        EXPECT_EQ(QApplication::focusWidget(), copia->StringGrid1);
        QTest::keyClick(copia->StringGrid1, Qt::Key_Escape);
    });
    simples->AmpliarAct->Execute();
}

TEST_F(TGridBasFrTest, TheFrameMayGoInAnyOrderWithItsActionListAndGrid)
{
    delete fr->ActionList1;
    Girar();
    delete fr;
    fr = Criar<TPrecosFr>(&janela);
    fr->show();
    Girar();
    QTest::mousePress(fr->StringGrid1->viewport(), Qt::LeftButton, {}, QPoint(5, 30));
    delete fr;
    Girar();
    EXPECT_TRUE(janela.findChildren<TGridBasFr *>().isEmpty());
}
