#include "platform/toolkit/TStringGrid.h"

#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QApplication>
#include <QElapsedTimer>
#include <QHash>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTableWidget>
#include <QWheelEvent>

#include <QtTest/QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <malloc.h>

using namespace ficha;
using testing::ElementsAre;
using testing::IsEmpty;

namespace ficha
{
inline void PrintTo(const TGridCoord &c, std::ostream *saida)
{
    *saida << '(' << c.Col << ", " << c.Row << ')';
}
inline void PrintTo(const TGridRect &r, std::ostream *saida)
{
    *saida << '(' << r.Esquerda << ", " << r.Topo << ")-(" << r.Direita << ", " << r.Base << ')';
}
} // namespace ficha

namespace
{
/** A window with a grid of 6 columns and 101 rows of 18 pixels, one title row, 10 rows in view. */
class StringGridTest : public testing::Test
{
protected:
    StringGridTest()
    {
        janela.resize(600, 400);
        grid = new TStringGrid(&janela);
        grid->setFrameShape(QFrame::NoFrame);
        grid->SetDefaultRowHeight(18);
        grid->SetDefaultColWidth(80);
        grid->SetColCount(6);
        grid->SetRowCount(101);
        for (int r = 0; r < 101; ++r)
            for (int c = 0; c < 6; ++c)
                grid->SetCell(c, r, QStringLiteral("c%1 r%2").arg(c).arg(r));
        // Title row, ten rows and their lines; all columns and the bar.
        grid->setGeometry(0, 0, 6 * 81 + 30, 11 * 19);
    }

    void Mostrar()
    {
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&janela));
        janela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        grid->setFocus();
        QCoreApplication::processEvents();
    }
    TGridCoord Atual() const { return {grid->GetCol(), grid->GetRow()}; }
    QPoint Centro(int col, int row) const { return grid->CellRect(col, row).center(); }
    /** Bars appear and leave a turn of the event loop after their range. */
    static void Assentar()
    {
        for (int i = 0; i < 4; ++i)
            QCoreApplication::processEvents();
    }
    void Clicar(int col, int row, Qt::KeyboardModifiers teclas = Qt::NoModifier)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, teclas, Centro(col, row));
    }
    /** The four events of a real double click. */
    void ClicarDuasVezes(QPoint ponto)
    {
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, ponto);
        QTest::mouseDClick(grid->viewport(), Qt::LeftButton, {}, ponto);
        QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, ponto);
    }
    void Arrastar(QPoint ate, Qt::MouseButtons botoes = Qt::LeftButton)
    {
        QMouseEvent e(QEvent::MouseMove, ate, grid->viewport()->mapToGlobal(ate), Qt::NoButton,
                      botoes, Qt::NoModifier);
        QCoreApplication::sendEvent(grid->viewport(), &e);
    }
    void Rodar(int entalhes, Qt::KeyboardModifiers teclas = Qt::NoModifier)
    {
        const QPointF ponto = grid->viewport()->rect().center();
        QWheelEvent e(ponto, grid->viewport()->mapToGlobal(ponto), {}, {0, entalhes * 120},
                      Qt::NoButton, teclas, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(grid->viewport(), &e);
    }
    /** Which cells are painted, how often, from now on. */
    void ContarPintura()
    {
        grid->OnDrawCell = [this](QObject *, int c, int r, QPainter &, const QRect &, unsigned e) {
            ++pintadas[{c, r}];
            estados[{c, r}] = e;
        };
        grid->Invalidate();
        QCoreApplication::processEvents();
        pintadas.clear();
        estados.clear();
    }
    QList<int> LinhasPintadas() const
    {
        QList<int> linhas;
        for (const auto &[celula, vezes] : pintadas)
            if (!linhas.contains(celula.second))
                linhas.append(celula.second);
        std::sort(linhas.begin(), linhas.end());
        return linhas;
    }

    QWidget janela;
    QPointer<TStringGrid> grid;
    std::map<std::pair<int, int>, int> pintadas;
    std::map<std::pair<int, int>, unsigned> estados;
};

qint64 BytesEmUso()
{
    return qint64(mallinfo2().uordblks) + qint64(mallinfo2().hblkhd);
}

bool ComSanitizer()
{
#ifdef __SANITIZE_ADDRESS__
    return true;
#else
    return false;
#endif
}
} // namespace

// ---------------------------------------------------------------------------------------- cells

TEST(TStringGrid, StartsWithFiveColumnsAndRowsUnderOneTitleRow)
{
    TStringGrid grid;
    EXPECT_EQ(grid.GetColCount(), 5);
    EXPECT_EQ(grid.GetRowCount(), 5);
    EXPECT_EQ(grid.GetFixedCols(), 0);
    EXPECT_EQ(grid.GetFixedRows(), 1);
    EXPECT_EQ(grid.GetDefaultColWidth(), 64);
    EXPECT_EQ(grid.GetDefaultRowHeight(), 24);
    EXPECT_EQ(grid.GetCol(), 0);
    EXPECT_EQ(grid.GetRow(), 1);
    EXPECT_EQ(grid.GetTopRow(), 1);
    EXPECT_TRUE(grid.GetDefaultDrawing());
    EXPECT_TRUE(grid.GetGridLines());
    EXPECT_FALSE(grid.GetRangeSelect());
    EXPECT_FALSE(grid.GetRowSelect());
    EXPECT_FALSE(grid.GetThumbTracking());
    EXPECT_FALSE(grid.GetColSizing());
}

TEST(TStringGrid, KeepsTextsOfEveryKindAndLength)
{
    TStringGrid grid;
    const QStringList textos = {QString(),
                                QStringLiteral("1"),
                                QStringLiteral("1234567"),
                                QStringLiteral("12345678"),
                                QStringLiteral("João Conceição"),
                                QStringLiteral("ÀÿŸ"),
                                QStringLiteral("Łódź"),
                                QStringLiteral("50 € à vista, e mais um tanto"),
                                QStringLiteral("emoji 😀"),
                                QString(300'000, u'x'),
                                QString(300'000, u'Ł'),
                                QStringLiteral("fim")};
    grid.SetRowCount(int(textos.size()) + 1);
    for (int volta = 0; volta < 3; ++volta) {
        for (int r = 0; r < textos.size(); ++r)
            grid.SetCell(2, r, textos[(r + volta) % textos.size()]);
        for (int r = 0; r < textos.size(); ++r) {
            EXPECT_EQ(grid.GetCell(2, r), textos[(r + volta) % textos.size()]) << r << volta;
            EXPECT_TRUE(grid.GetCell(1, r).isEmpty());
        }
    }
}

TEST(TStringGrid, TakesTextsInAnyEncoding)
{
    const QString textos[] = {QStringLiteral("ação"), QStringLiteral("uma conceição mais longa"),
                              QStringLiteral("€ e um tanto mais"), QString()};
    for (const QString &texto : textos) {
        TStringGrid grid;
        const QByteArray utf8 = texto.toUtf8(), latin1 = texto.toLatin1();
        grid.SetCell(0, 1, texto);
        grid.SetCell(1, 1, QUtf8StringView(utf8));
        grid.SetCell(2, 1, QLatin1StringView(latin1));
        EXPECT_EQ(grid.GetCell(0, 1), texto);
        EXPECT_EQ(grid.GetCell(1, 1), texto);
        EXPECT_EQ(grid.GetCell(2, 1), QString::fromLatin1(latin1));
    }
}

TEST(TStringGrid, AnswersEmptyOutsideAndIgnoresWritesThere)
{
    TStringGrid grid;
    for (const auto &[c, r] : {std::pair(-1, 0), {0, -1}, {5, 0}, {0, 5}, {99, 99}}) {
        grid.SetCell(c, r, QStringLiteral("x"));
        grid.SetObjeto(c, r, 7);
        EXPECT_TRUE(grid.GetCell(c, r).isEmpty());
        EXPECT_EQ(grid.GetObjeto(c, r), 0);
        EXPECT_TRUE(grid.CellRect(c, r).isEmpty());
        EXPECT_TRUE(grid.CellTexto(c, r).isEmpty());
    }
    EXPECT_EQ(grid.GetColWidth(-1), 0);
    EXPECT_EQ(grid.GetColWidth(5), 0);
    grid.LimparLinha(-1);
    grid.LimparLinha(5);
}

TEST(TStringGrid, HandsTextsOutWithoutCopyOrIntoAStringThatIsUsedAgain)
{
    TStringGrid grid;
    grid.SetCell(0, 1, QStringLiteral("curto"));
    grid.SetCell(1, 1, QStringLiteral("um texto bem mais comprido"));
    grid.SetCell(2, 1, QStringLiteral("Łódź"));
    EXPECT_TRUE(grid.CellTexto(0, 1) == QStringLiteral("curto"));
    EXPECT_TRUE(grid.CellTexto(2, 1) == QStringLiteral("Łódź"));
    QString texto;
    texto.reserve(100);
    const QChar *memoria = texto.constData();
    grid.CellTexto(1, 1, texto);
    EXPECT_EQ(texto, QStringLiteral("um texto bem mais comprido"));
    grid.CellTexto(2, 1, texto);
    EXPECT_EQ(texto, QStringLiteral("Łódź"));
    grid.CellTexto(4, 4, texto);
    EXPECT_TRUE(texto.isEmpty());
    EXPECT_EQ(texto.constData(), memoria);
}

TEST(TStringGrid, OverwritingCellsAgainAndAgainDoesNotGrow)
{
    TStringGrid grid;
    grid.SetColCount(4);
    grid.SetRowCount(101);
    const auto encher = [&](int volta) {
        for (int r = 1; r <= 100; ++r)
            for (int c = 0; c < 4; ++c)
                grid.SetCell(c, r, QString(20 + (volta * 7 + r + c) % 40, QChar('a' + volta % 26)));
    };
    encher(0);
    const qint64 noInicio = grid.BytesDosTextos();
    for (int volta = 1; volta < 300; ++volta)
        encher(volta);
    EXPECT_LT(grid.BytesDosTextos(), noInicio + 256 * 1024);
    EXPECT_EQ(grid.GetCell(3, 100), QString(20 + (299 * 7 + 103) % 40, QChar('a' + 299 % 26)));
    for (int volta = 0; volta < 100'000; ++volta)
        grid.SetCell(0, 1, QString(volta % 2 ? 100 : 400, u'z'));
    EXPECT_LT(grid.BytesDosTextos(), noInicio + 512 * 1024);
    EXPECT_EQ(grid.GetCell(0, 1), QString(100, u'z'));
}

TEST(TStringGrid, GivesMemoryBackWhenItShrinks)
{
    TStringGrid grid;
    grid.SetRowCount(20'001);
    for (int r = 1; r <= 20'000; ++r)
        grid.SetCell(0, r, QStringLiteral("um texto qualquer de alguma extensão"));
    const qint64 cheia = grid.BytesDosTextos();
    grid.SetRowCount(2);
    grid.LimparLinha(1);
    EXPECT_LT(grid.BytesDosTextos(), cheia / 20);
}

TEST(TStringGrid, ChangingColumnsKeepsTheTextsThatRemain)
{
    TStringGrid grid;
    grid.SetRowCount(600);
    for (int r = 0; r < 600; ++r)
        for (int c = 0; c < 5; ++c)
            grid.SetCell(c, r, QStringLiteral("coluna %1 linha %2").arg(c).arg(r));
    grid.SetColCount(3);
    grid.SetColCount(8);
    for (int r = 0; r < 600; ++r) {
        for (int c = 0; c < 3; ++c)
            ASSERT_EQ(grid.GetCell(c, r), QStringLiteral("coluna %1 linha %2").arg(c).arg(r));
        for (int c = 3; c < 8; ++c)
            ASSERT_TRUE(grid.GetCell(c, r).isEmpty());
    }
    EXPECT_EQ(grid.GetColWidth(7), grid.GetDefaultColWidth());
}

TEST(TStringGrid, RowsThatWereCutOffComeBackEmpty)
{
    TStringGrid grid;
    grid.SetRowCount(700);
    grid.SetCell(1, 299, QStringLiteral("fica"));
    grid.SetCell(1, 300, QStringLiteral("um texto que vai embora"));
    grid.SetCell(1, 699, QStringLiteral("vai"));
    grid.SetRowCount(300);
    grid.SetRowCount(700);
    EXPECT_EQ(grid.GetCell(1, 299), QStringLiteral("fica"));
    EXPECT_TRUE(grid.GetCell(1, 300).isEmpty());
    EXPECT_TRUE(grid.GetCell(1, 699).isEmpty());
}

TEST(TStringGrid, CarriesObjectsAndDropsThoseCutOff)
{
    TStringGrid grid;
    grid.SetRowCount(100);
    grid.SetObjeto(0, 1, 11);
    grid.SetObjeto(4, 1, 41);
    grid.SetObjeto(0, 99, 99);
    EXPECT_EQ(grid.GetObjeto(0, 1), 11);
    EXPECT_EQ(grid.GetObjeto(1, 1), 0);
    grid.SetRowCount(50);
    grid.SetRowCount(100);
    EXPECT_EQ(grid.GetObjeto(0, 99), 0);
    grid.SetColCount(4);
    grid.SetColCount(5);
    EXPECT_EQ(grid.GetObjeto(4, 1), 0);
    EXPECT_EQ(grid.GetObjeto(0, 1), 11);
    grid.SetCell(0, 1, QStringLiteral("x"));
    grid.LimparLinha(1);
    EXPECT_EQ(grid.GetObjeto(0, 1), 0);
    EXPECT_TRUE(grid.GetCell(0, 1).isEmpty());
}

// -------------------------------------------------------------------------------- sizes, ranges

TEST(TStringGrid, TitlesGiveWayToFewRowsAndComeBack)
{
    TStringGrid grid;
    grid.SetRowCount(1);
    EXPECT_EQ(grid.GetFixedRows(), 0);
    EXPECT_EQ(grid.GetRow(), 0);
    grid.SetRowCount(10);
    EXPECT_EQ(grid.GetFixedRows(), 1);
    EXPECT_EQ(grid.GetRow(), 1);
    EXPECT_EQ(grid.GetTopRow(), 1);
    grid.SetFixedCols(2);
    grid.SetColCount(1);
    EXPECT_EQ(grid.GetFixedCols(), 0);
    grid.SetColCount(4);
    EXPECT_EQ(grid.GetFixedCols(), 2);
    EXPECT_EQ(grid.GetCol(), 2);
    EXPECT_EQ(grid.GetLeftCol(), 2);
    grid.SetRowCount(-3);
    EXPECT_EQ(grid.GetRowCount(), 1);
}

TEST_F(StringGridTest, ShrinkingKeepsCurrentCellRangeAndTopInside)
{
    Mostrar();
    grid->SetCelula(5, 100);
    grid->SetSelection({3, 90, 5, 100});
    QList<int> perguntas;
    grid->OnSelectCell = [&](QObject *, int, int r, bool &) { perguntas.append(r); };
    grid->SetRowCount(21);
    EXPECT_EQ(Atual(), (TGridCoord{3, 20}));
    EXPECT_EQ(grid->GetSelection(), (TGridRect{3, 20, 5, 20}));
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->GetTopRow(), 11);
    grid->SetColCount(2);
    EXPECT_EQ(grid->GetCol(), 1);
    grid->SetRowCount(2);
    QCoreApplication::processEvents();
    EXPECT_EQ(Atual(), (TGridCoord{1, 1}));
    EXPECT_EQ(grid->GetTopRow(), 1);
    EXPECT_THAT(perguntas, IsEmpty());
}

TEST_F(StringGridTest, ProgramMovesClampAskAndScrollIntoView)
{
    Mostrar();
    QList<TGridCoord> perguntas;
    grid->OnSelectCell = [&](QObject *quem, int c, int r, bool &) {
        EXPECT_EQ(quem, grid);
        perguntas.append({c, r});
    };
    grid->SetRow(50);
    EXPECT_EQ(Atual(), (TGridCoord{0, 50}));
    EXPECT_EQ(grid->GetTopRow(), 41);
    grid->SetRow(50);
    grid->SetRow(9999);
    EXPECT_EQ(grid->GetRow(), 100);
    EXPECT_EQ(grid->GetTopRow(), 91);
    grid->SetRow(0);
    EXPECT_EQ(grid->GetRow(), 1);
    EXPECT_EQ(grid->GetTopRow(), 1);
    grid->SetCol(77);
    EXPECT_EQ(grid->GetCol(), 5);
    EXPECT_THAT(perguntas, ElementsAre(TGridCoord{0, 50}, TGridCoord{0, 100}, TGridCoord{0, 1},
                                       TGridCoord{5, 1}));
}

TEST_F(StringGridTest, AVetoKeepsTheCellForProgramKeyboardAndMouse)
{
    Mostrar();
    grid->SetRow(5);
    int cliques = 0;
    grid->OnClick = [&](QObject *) { ++cliques; };
    grid->OnSelectCell = [](QObject *, int, int, bool &pode) { pode = false; };
    grid->SetRow(7);
    EXPECT_EQ(grid->GetRow(), 5);
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(grid->GetRow(), 5);
    Clicar(2, 8);
    EXPECT_EQ(Atual(), (TGridCoord{0, 5}));
    ClicarDuasVezes(Centro(2, 8));
    EXPECT_EQ(Atual(), (TGridCoord{0, 5}));
    grid->SetSelection({1, 6, 2, 7});
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 5, 0, 5}));
    EXPECT_EQ(cliques, 0);
}

TEST_F(StringGridTest, ASelectHandlerMayMoveTheGridItself)
{
    Mostrar();
    int perguntas = 0;
    grid->OnSelectCell = [&](QObject *, int, int r, bool &) {
        ++perguntas;
        grid->SetRow(r);
    };
    grid->SetRow(9);
    EXPECT_EQ(grid->GetRow(), 9);
    EXPECT_EQ(perguntas, 1);
    grid->OnSelectCell = [&](QObject *, int, int, bool &) { grid->SetRowCount(4); };
    grid->SetRow(50);
    EXPECT_EQ(grid->GetRow(), 3);
}

TEST_F(StringGridTest, AnErrorInTheSelectHandlerReachesTheProgramOrTheReport)
{
    TServicosGuarda guarda;
    int relatos = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++relatos; };
    Mostrar();
    grid->OnSelectCell = [](QObject *, int, int, bool &) { throw EErro(QStringLiteral("falhou")); };
    EXPECT_THROW(grid->SetRow(3), EErro);
    EXPECT_EQ(grid->GetRow(), 1);
    EXPECT_EQ(relatos, 0);
    QTest::keyClick(grid, Qt::Key_Down);
    Clicar(0, 4);
    EXPECT_EQ(relatos, 2);
    EXPECT_EQ(grid->GetRow(), 1);
    grid->OnSelectCell = nullptr;
    grid->SetRow(3);
    EXPECT_EQ(grid->GetRow(), 3);
}

TEST_F(StringGridTest, AMoveBeforeTheFirstShowIsScrolledToOnlyWhenNeeded)
{
    grid->SetRow(3);
    Mostrar();
    EXPECT_EQ(grid->GetTopRow(), 1);
    EXPECT_EQ(grid->VisibleRowCount(), 10);
}

TEST_F(StringGridTest, AMoveFarDownBeforeTheFirstShowIsInViewAfterIt)
{
    grid->SetRow(60);
    Mostrar();
    EXPECT_FALSE(grid->CellRect(0, 60).isEmpty());
}

TEST_F(StringGridTest, TheCurrentCellStaysInViewWhenTheGridBecomesSmaller)
{
    Mostrar();
    grid->SetRow(10);
    EXPECT_EQ(grid->GetTopRow(), 1);
    grid->resize(grid->width(), 6 * 19);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->GetTopRow(), 6);
    grid->SetTopRow(50);
    grid->resize(grid->width(), 5 * 19);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->GetTopRow(), 50);
}

// ------------------------------------------------------------------------------------- keyboard

TEST_F(StringGridTest, KeysMoveTheCurrentCell)
{
    Mostrar();
    int cliques = 0;
    grid->OnClick = [&](QObject *) { ++cliques; };
    const auto tecla = [&](Qt::Key t, Qt::KeyboardModifiers m = Qt::NoModifier) {
        QTest::keyClick(grid, t, m);
        return Atual();
    };
    EXPECT_EQ(tecla(Qt::Key_Up), (TGridCoord{0, 1}));
    EXPECT_EQ(tecla(Qt::Key_Left), (TGridCoord{0, 1}));
    EXPECT_EQ(cliques, 0);
    EXPECT_EQ(tecla(Qt::Key_Down), (TGridCoord{0, 2}));
    EXPECT_EQ(tecla(Qt::Key_Right), (TGridCoord{1, 2}));
    EXPECT_EQ(cliques, 2);
    EXPECT_EQ(tecla(Qt::Key_PageDown), (TGridCoord{1, 12}));
    EXPECT_EQ(tecla(Qt::Key_PageUp), (TGridCoord{1, 2}));
    EXPECT_EQ(tecla(Qt::Key_End), (TGridCoord{5, 2}));
    EXPECT_EQ(tecla(Qt::Key_Home), (TGridCoord{0, 2}));
    EXPECT_EQ(tecla(Qt::Key_End, Qt::ControlModifier), (TGridCoord{5, 100}));
    EXPECT_EQ(tecla(Qt::Key_PageDown), (TGridCoord{5, 100}));
    EXPECT_EQ(tecla(Qt::Key_Home, Qt::ControlModifier), (TGridCoord{0, 1}));
    EXPECT_EQ(tecla(Qt::Key_Down, Qt::KeypadModifier), (TGridCoord{0, 2}));
}

TEST_F(StringGridTest, CtrlArrowsAndPagesAreLeftToTheShortcutsOfTheScreen)
{
    Mostrar();
    grid->SetCelula(2, 50);
    QStringList chegaram;
    for (const char *atalho :
         {"Ctrl+Up", "Ctrl+Down", "Ctrl+PgUp", "Ctrl+PgDown", "Ctrl+Left", "Ctrl+Right", "Ctrl+Del",
          "Ctrl+Return", "Esc", "Ctrl+A", "Ctrl+Z"}) {
        auto *s = new QShortcut(QKeySequence(QString::fromLatin1(atalho)), &janela);
        QObject::connect(s, &QShortcut::activated,
                         [&, atalho] { chegaram.append(QString::fromLatin1(atalho)); });
    }
    for (const Qt::Key t :
         {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Left, Qt::Key_Right,
          Qt::Key_Delete, Qt::Key_Return, Qt::Key_A, Qt::Key_Z})
        QTest::keyClick(grid, t, Qt::ControlModifier);
    QTest::keyClick(grid, Qt::Key_Escape);
    EXPECT_EQ(chegaram.size(), 11);
    EXPECT_EQ(Atual(), (TGridCoord{2, 50}));
}

TEST_F(StringGridTest, KeysThatAreNotItsOwnReachTheScreen)
{
    struct TOuvinte : QWidget {
        void keyPressEvent(QKeyEvent *e) override
        {
            if (!e->text().isEmpty() || e->key() < Qt::Key_Shift || e->key() > Qt::Key_Alt)
                teclas.append(e->key());
        }
        QList<int> teclas;
    } tela;
    tela.resize(300, 200);
    TStringGrid dentro(&tela);
    dentro.setGeometry(0, 0, 300, 200);
    tela.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&tela));
    dentro.setFocus();
    QTest::keyClick(&dentro, Qt::Key_Down, Qt::ControlModifier);
    QTest::keyClick(&dentro, Qt::Key_Down, Qt::AltModifier);
    QTest::keyClick(&dentro, Qt::Key_Return);
    QTest::keyClick(&dentro, Qt::Key_F5);
    QTest::keyClick(&dentro, Qt::Key_Up); // its own, also at the first row
    QTest::keyClick(&dentro, Qt::Key_Down);
    EXPECT_THAT(tela.teclas, ElementsAre(Qt::Key_Down, Qt::Key_Down, Qt::Key_Return, Qt::Key_F5));
    EXPECT_EQ(dentro.GetRow(), 2);
}

TEST_F(StringGridTest, TabLeavesTheGrid)
{
    QWidget outro(&janela);
    outro.setFocusPolicy(Qt::StrongFocus);
    outro.setGeometry(0, 350, 20, 20);
    Mostrar();
    ASSERT_TRUE(grid->hasFocus());
    QTest::keyClick(grid, Qt::Key_Tab);
    EXPECT_TRUE(outro.hasFocus());
}

TEST_F(StringGridTest, ShiftAndArrowsStretchTheRangeAndLeaveTheCurrentCell)
{
    grid->SetRangeSelect(true);
    Mostrar();
    grid->SetCelula(2, 5);
    QList<TGridCoord> perguntas;
    grid->OnSelectCell = [&](QObject *, int c, int r, bool &) { perguntas.append({c, r}); };
    QTest::keyClick(grid, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(grid, Qt::Key_Down, Qt::ShiftModifier);
    QTest::keyClick(grid, Qt::Key_Left, Qt::ShiftModifier);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{1, 5, 2, 7}));
    EXPECT_EQ(Atual(), (TGridCoord{2, 5}));
    QTest::keyClick(grid, Qt::Key_End, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{2, 5, 5, 100}));
    EXPECT_EQ(grid->GetTopRow(), 91);
    EXPECT_THAT(perguntas, IsEmpty());
    QTest::keyClick(grid, Qt::Key_Up);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{2, 4, 2, 4}));
    EXPECT_EQ(grid->GetTopRow(), 4);
}

TEST_F(StringGridTest, WithoutRangeSelectShiftJustMoves)
{
    Mostrar();
    QTest::keyClick(grid, Qt::Key_Down, Qt::ShiftModifier);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 2, 0, 2}));
    EXPECT_EQ(grid->GetRow(), 2);
}

TEST_F(StringGridTest, RowSelectTakesWholeRowsAndLeftAndRightScroll)
{
    grid->SetRowSelect(true);
    grid->resize(200, grid->height());
    Mostrar();
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 1, 5, 1}));
    QTest::keyClick(grid, Qt::Key_Right);
    EXPECT_EQ(grid->GetCol(), 0);
    EXPECT_EQ(grid->GetLeftCol(), 1);
    QTest::keyClick(grid, Qt::Key_Down);
    EXPECT_EQ(grid->GetLeftCol(), 1);
    QTest::keyClick(grid, Qt::Key_End);
    EXPECT_EQ(grid->GetRow(), 100);
    QTest::keyClick(grid, Qt::Key_Home);
    EXPECT_EQ(grid->GetRow(), 1);
}

// ---------------------------------------------------------------------------------------- mouse

TEST_F(StringGridTest, AClickSelectsThenAnnounces)
{
    Mostrar();
    QStringList passos;
    grid->OnSelectCell = [&](QObject *, int c, int r, bool &) {
        passos.append(QStringLiteral("select %1 %2").arg(c).arg(r));
    };
    grid->OnMouseDown = [&](QObject *, QMouseEvent *e) {
        const TGridCoord c = grid->MouseToCell(e->pos());
        passos.append(
            QStringLiteral("down %1 %2 row %3").arg(c.Col).arg(c.Row).arg(grid->GetRow()));
    };
    grid->OnClick = [&](QObject *) { passos.append(QStringLiteral("click")); };
    grid->OnMouseUp = [&](QObject *, QMouseEvent *) { passos.append(QStringLiteral("up")); };
    Clicar(3, 6);
    EXPECT_EQ(passos, (QStringList{"select 3 6", "down 3 6 row 6", "click", "up"}));
    // The current cell is asked about again: what follows the grid may be elsewhere.
    passos.clear();
    Clicar(3, 6);
    EXPECT_EQ(passos.first(), QStringLiteral("select 3 6"));
    passos.clear();
    QTest::mouseClick(grid->viewport(), Qt::RightButton, {}, Centro(1, 2));
    EXPECT_EQ(passos, (QStringList{"down 1 2 row 6", "up"}));
}

TEST_F(StringGridTest, AClickOutsideTheCellsAnswersNoCell)
{
    grid->SetRowCount(4);
    Mostrar();
    TGridCoord onde{5, 5};
    int selecoes = 0, cliques = 0;
    grid->OnSelectCell = [&](QObject *, int, int, bool &) { ++selecoes; };
    grid->OnClick = [&](QObject *) { ++cliques; };
    grid->OnMouseDown = [&](QObject *, QMouseEvent *e) { onde = grid->MouseToCell(e->pos()); };
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, QPoint(20, 4 * 19 + 5));
    EXPECT_EQ(onde, TGridCoord());
    onde = {5, 5};
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, QPoint(6 * 81 + 2, 25));
    EXPECT_EQ(onde, TGridCoord());
    EXPECT_EQ(grid->MouseToCell({-1, 5}), TGridCoord());
    EXPECT_EQ(grid->MouseToCell({5, 5000}), TGridCoord());
    EXPECT_EQ(selecoes + cliques, 0);
}

TEST_F(StringGridTest, ATitleIsClickedNotSelected)
{
    Mostrar();
    QList<TGridCoord> titulos;
    int cliques = 0;
    grid->OnClick = [&](QObject *) { ++cliques; };
    grid->OnFixedCellClick = [&](QObject *, int c, int r) { titulos.append({c, r}); };
    Clicar(4, 0);
    EXPECT_THAT(titulos, ElementsAre(TGridCoord{4, 0}));
    EXPECT_EQ(Atual(), (TGridCoord{0, 1}));
    // Let go elsewhere: no click.
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, Centro(4, 0));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, Centro(2, 0));
    EXPECT_EQ(titulos.size(), 1);
    EXPECT_EQ(cliques, 0);
}

TEST_F(StringGridTest, ADoubleClickIsOfACellThatIsNotFixed)
{
    Mostrar();
    QStringList passos;
    grid->OnClick = [&](QObject *) { passos.append(QStringLiteral("click")); };
    grid->OnDblClick = [&](QObject *) {
        passos.append(QStringLiteral("dbl %1").arg(grid->GetRow()));
    };
    grid->OnMouseDown = [&](QObject *, QMouseEvent *) { passos.append(QStringLiteral("down")); };
    ClicarDuasVezes(Centro(1, 7));
    EXPECT_EQ(passos, (QStringList{"down", "click", "dbl 7", "down"}));
    passos.clear();
    ClicarDuasVezes(Centro(1, 0));
    EXPECT_EQ(passos, (QStringList{"down", "down"}));
    passos.clear();
    grid->SetRowCount(3);
    ClicarDuasVezes(QPoint(20, 100));
    EXPECT_EQ(passos, (QStringList{"down", "down"}));
}

TEST_F(StringGridTest, DraggingStretchesTheRange)
{
    grid->SetRangeSelect(true);
    Mostrar();
    QList<bool> comBotao;
    grid->OnMouseMove = [&](QObject *, QMouseEvent *e) {
        comBotao.append(bool(e->buttons() & Qt::LeftButton));
    };
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    Arrastar(Centro(3, 6));
    EXPECT_EQ(grid->GetSelection(), (TGridRect{1, 3, 3, 6}));
    Arrastar(Centro(0, 2));
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 2, 1, 3}));
    EXPECT_EQ(Atual(), (TGridCoord{1, 3}));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, Centro(0, 2));
    Arrastar(Centro(4, 8), Qt::NoButton);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 2, 1, 3}));
    EXPECT_THAT(comBotao, ElementsAre(true, true, false));
    Clicar(2, 5, Qt::ShiftModifier);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{1, 3, 2, 5}));
}

TEST_F(StringGridTest, WithoutRangeSelectDraggingMovesTheCurrentCell)
{
    Mostrar();
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    Arrastar(Centro(2, 6));
    EXPECT_EQ(Atual(), (TGridCoord{2, 6}));
    EXPECT_EQ(grid->GetSelection(), (TGridRect{2, 6, 2, 6}));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, Centro(2, 6));
}

TEST_F(StringGridTest, DraggingBelowTheGridScrollsOn)
{
    grid->SetRangeSelect(true);
    Mostrar();
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, Centro(1, 9));
    Arrastar(QPoint(100, grid->viewport()->height() + 20));
    EXPECT_TRUE(QTest::qWaitFor([&] { return grid->GetSelection().Base >= 13; }, 2000));
    EXPECT_GT(grid->GetTopRow(), 1);
    EXPECT_EQ(grid->GetRow(), 9);
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, QPoint(100, 500));
    const int base = grid->GetSelection().Base;
    QTest::qWait(150);
    EXPECT_EQ(grid->GetSelection().Base, base);
}

TEST_F(StringGridTest, AReleaseThatNeverCameEndsTheDrag)
{
    grid->SetRangeSelect(true);
    Mostrar();
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, Centro(1, 3));
    Arrastar(Centro(1, 5), Qt::NoButton);
    EXPECT_EQ(grid->GetSelection(), (TGridRect{1, 3, 1, 3}));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, Centro(1, 5));
}

TEST_F(StringGridTest, TitleBordersAreDraggedOnlyWithColSizing)
{
    Mostrar();
    const QPoint borda(81 * 2 - 1, 9);
    const auto puxar = [&](int dx) {
        QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, borda);
        Arrastar(borda + QPoint(dx, 0));
        QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, borda + QPoint(dx, 0));
    };
    puxar(30);
    EXPECT_EQ(grid->GetColWidth(1), 80);
    grid->SetColSizing(true);
    int titulos = 0;
    grid->OnFixedCellClick = [&](QObject *, int, int) { ++titulos; };
    Arrastar(borda, Qt::NoButton);
    EXPECT_EQ(grid->viewport()->cursor().shape(), Qt::SplitHCursor);
    puxar(30);
    EXPECT_EQ(grid->GetColWidth(1), 110);
    EXPECT_EQ(grid->GetColWidth(0), 80);
    EXPECT_EQ(titulos, 0);
    Arrastar(QPoint(40, 60), Qt::NoButton);
    EXPECT_NE(grid->viewport()->cursor().shape(), Qt::SplitHCursor);
    // Never dragged to nothing: the user could not bring it back.
    const QPoint nova(81 + 110, 9);
    QTest::mousePress(grid->viewport(), Qt::LeftButton, {}, nova);
    Arrastar(QPoint(0, 9));
    QTest::mouseRelease(grid->viewport(), Qt::LeftButton, {}, QPoint(0, 9));
    EXPECT_EQ(grid->GetColWidth(1), 8);
}

// ----------------------------------------------------------------------------- hidden, scrolling

TEST_F(StringGridTest, HiddenColumnsTakeNoRoomAndNoKey)
{
    grid->SetColWidth(1, 0);
    grid->SetColWidth(5, 0);
    Mostrar();
    EXPECT_TRUE(grid->CellRect(1, 1).isEmpty());
    EXPECT_EQ(grid->CellRect(2, 1).left(), 81);
    EXPECT_EQ(grid->MouseToCell(QPoint(85, 30)), (TGridCoord{2, 1}));
    QTest::keyClick(grid, Qt::Key_Right);
    EXPECT_EQ(grid->GetCol(), 2);
    QTest::keyClick(grid, Qt::Key_End);
    EXPECT_EQ(grid->GetCol(), 4);
    QTest::keyClick(grid, Qt::Key_Home);
    EXPECT_EQ(grid->GetCol(), 0);
    ContarPintura();
    grid->Invalidate();
    QCoreApplication::processEvents();
    EXPECT_EQ(pintadas.count({1, 1}), 0u);
    EXPECT_EQ(pintadas.count({2, 1}), 1u);
    for (int c = 0; c < 6; ++c)
        grid->SetColWidth(c, 0);
    QCoreApplication::processEvents();
    QTest::keyClick(grid, Qt::Key_Right);
    EXPECT_EQ(grid->MouseToCell(QPoint(5, 30)), TGridCoord());
}

TEST_F(StringGridTest, CellsAndPointsAgreeWithTitlesAndFixedColumns)
{
    grid->SetFixedCols(1);
    grid->resize(300, grid->height());
    Mostrar();
    grid->SetTopRow(20);
    grid->SetLeftCol(3);
    EXPECT_EQ(grid->CellRect(0, 0), QRect(0, 0, 80, 18));
    EXPECT_EQ(grid->CellRect(0, 20), QRect(0, 19, 80, 18));
    EXPECT_EQ(grid->CellRect(3, 21), QRect(81, 38, 80, 18));
    EXPECT_TRUE(grid->CellRect(2, 20).isEmpty());
    EXPECT_TRUE(grid->CellRect(3, 19).isEmpty());
    EXPECT_TRUE(grid->CellRect(3, 90).isEmpty());
    for (const auto &[c, r] : {std::pair(0, 0), {0, 25}, {3, 0}, {4, 23}})
        EXPECT_EQ(grid->MouseToCell(Centro(c, r)), (TGridCoord{c, r}));
    QTest::keyClick(grid, Qt::Key_Home, Qt::ControlModifier);
    EXPECT_EQ(Atual(), (TGridCoord{1, 1}));
    Clicar(0, 5);
    EXPECT_EQ(Atual(), (TGridCoord{1, 1}));
}

TEST_F(StringGridTest, ScrollingStopsAtTheEndsAndIsAnnouncedOnce)
{
    grid->resize(200, grid->height());
    Mostrar();
    int avisos = 0;
    grid->OnTopLeftChanged = [&](QObject *quem) {
        EXPECT_EQ(quem, grid);
        ++avisos;
    };
    grid->SetTopRow(5000);
    const int visiveis = grid->VisibleRowCount();
    EXPECT_EQ(grid->GetTopRow(), 101 - visiveis);
    EXPECT_EQ(grid->verticalScrollBar()->value(), grid->verticalScrollBar()->maximum());
    grid->SetTopRow(5000);
    EXPECT_EQ(avisos, 1);
    grid->SetTopRow(-4);
    EXPECT_EQ(grid->GetTopRow(), 1);
    grid->SetLeftCol(99);
    EXPECT_EQ(grid->GetLeftCol(), 4);
    EXPECT_EQ(avisos, 3);
    grid->verticalScrollBar()->setValue(7);
    EXPECT_EQ(grid->GetTopRow(), 8);
    grid->horizontalScrollBar()->setValue(0);
    EXPECT_EQ(grid->GetLeftCol(), 0);
    EXPECT_EQ(avisos, 5);
    EXPECT_EQ(grid->GetRow(), 1);
}

TEST_F(StringGridTest, ColumnsScrollIntoViewOneByOneAndSkipHiddenOnes)
{
    grid->resize(200, grid->height());
    grid->SetColWidth(1, 0);
    Mostrar();
    grid->SetCol(3);
    EXPECT_EQ(grid->GetLeftCol(), 2);
    EXPECT_EQ(grid->horizontalScrollBar()->value(), 1);
    grid->SetCol(0);
    EXPECT_EQ(grid->GetLeftCol(), 0);
}

TEST_F(StringGridTest, BarsAppearOnlyWhenTheCellsDoNotFit)
{
    Mostrar();
    EXPECT_TRUE(grid->verticalScrollBar()->isVisible());
    EXPECT_FALSE(grid->horizontalScrollBar()->isVisible());
    grid->SetRowCount(11);
    Assentar();
    EXPECT_FALSE(grid->verticalScrollBar()->isVisible());
    grid->SetRowCount(12);
    grid->SetColWidth(0, 200);
    Assentar();
    EXPECT_TRUE(grid->verticalScrollBar()->isVisible());
    EXPECT_TRUE(grid->horizontalScrollBar()->isVisible());
    EXPECT_EQ(grid->verticalScrollBar()->maximum(), 11 - grid->VisibleRowCount());
}

TEST_F(StringGridTest, TheWheelScrollsTheLinesThatTheSystemSays)
{
    Mostrar();
    Rodar(-1);
    EXPECT_EQ(grid->GetTopRow(), 1 + QApplication::wheelScrollLines());
    EXPECT_EQ(grid->GetRow(), 1);
    const int antes = QApplication::wheelScrollLines();
    QApplication::setWheelScrollLines(5);
    Rodar(-2);
    EXPECT_EQ(grid->GetTopRow(), 1 + antes + 10);
    QApplication::setWheelScrollLines(antes);
    for (int i = 0; i < 10; ++i)
        Rodar(1);
    EXPECT_EQ(grid->GetTopRow(), 1);
}

TEST_F(StringGridTest, ThumbTrackingScrollsWhileTheThumbIsDragged)
{
    Mostrar();
    QScrollBar *barra = grid->verticalScrollBar();
    barra->setSliderDown(true);
    barra->setSliderPosition(20);
    EXPECT_EQ(grid->GetTopRow(), 1);
    barra->setSliderDown(false);
    EXPECT_EQ(grid->GetTopRow(), 21);
    grid->SetThumbTracking(true);
    EXPECT_TRUE(grid->GetThumbTracking());
    barra->setSliderDown(true);
    barra->setSliderPosition(40);
    EXPECT_EQ(grid->GetTopRow(), 41);
    barra->setSliderDown(false);
}

// ------------------------------------------------------------------------------------- painting

TEST_F(StringGridTest, MovingTheCurrentCellRepaintsTwoRows)
{
    Mostrar();
    ContarPintura();
    grid->SetRow(4);
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), ElementsAre(1, 4));
    pintadas.clear();
    grid->SetCol(3);
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), ElementsAre(4));
    pintadas.clear();
    grid->SetRow(4);
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), IsEmpty());
}

TEST_F(StringGridTest, WritingACellRepaintsItsRowOnceAndOnlyWhenItIsInView)
{
    Mostrar();
    ContarPintura();
    grid->SetCell(2, 5, QStringLiteral("novo"));
    grid->SetCell(3, 5, QStringLiteral("novo"));
    grid->SetCell(2, 80, QStringLiteral("longe"));
    grid->SetCell(1, 6, grid->GetCell(1, 6));
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), ElementsAre(5));
    EXPECT_EQ((pintadas[{2, 5}]), 1);
    pintadas.clear();
    grid->InvalidarLinha(0);
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), ElementsAre(0));
}

TEST_F(StringGridTest, AFillIsPaintedOnceWhenTheLoopComesRound)
{
    Mostrar();
    ContarPintura();
    grid->SetRowCount(2000);
    for (int r = 1; r < 2000; ++r)
        for (int c = 0; c < 6; ++c)
            grid->SetCell(c, r, QString::number(r * c + 7));
    for (int i = 0; i < 50; ++i)
        grid->Invalidate();
    EXPECT_TRUE(pintadas.empty());
    QCoreApplication::processEvents();
    EXPECT_EQ((pintadas[{0, 1}]), 1);
    EXPECT_LE(pintadas.size(), 6u * 12u);
    EXPECT_EQ(grid->verticalScrollBar()->maximum(), 1999 - 10);
}

TEST_F(StringGridTest, ScrollingPaintsOnlyTheRowsThatComeIntoView)
{
    Mostrar();
    ContarPintura();
    grid->SetTopRow(4);
    QCoreApplication::processEvents();
    for (const int linha : LinhasPintadas())
        EXPECT_GE(linha, 11);
    EXPECT_FALSE(LinhasPintadas().isEmpty());
}

TEST_F(StringGridTest, ASearchThroughAHundredThousandRowsIsQuickAndPaintedOnce)
{
    Mostrar();
    ContarPintura();
    grid->SetRowCount(100'001);
    QCoreApplication::processEvents();
    pintadas.clear();
    QElapsedTimer t;
    t.start();
    for (int r = 1; r <= 100'000; ++r)
        grid->SetRow(r);
    const double ms = double(t.nsecsElapsed()) / 1e6;
    std::printf("[ FIGURES  ] 100,000 moves of the current row, scrolling: %.1f ms\n", ms);
    EXPECT_LT(ms, 3000);
    QCoreApplication::processEvents();
    EXPECT_EQ((pintadas[{0, 100'000}]), 1);
    EXPECT_LE(pintadas.size(), 6u * 12u);
}

TEST_F(StringGridTest, AClickTakesTheFocus)
{
    QWidget outro(&janela);
    outro.setFocusPolicy(Qt::StrongFocus);
    outro.setGeometry(0, 350, 20, 20);
    Mostrar();
    outro.setFocus();
    ASSERT_FALSE(grid->hasFocus());
    Clicar(1, 2);
    EXPECT_TRUE(grid->hasFocus());
}

TEST_F(StringGridTest, WhatIsMovedByScrollingLooksLikeWhatIsPaintedAfresh)
{
    Mostrar();
    grid->SetCell(1, 6, QStringLiteral("mudou"));
    grid->SetRow(8);
    grid->SetTopRow(4);
    QCoreApplication::processEvents();
    const QRect area(grid->mapTo(&janela, QPoint()), grid->size());
    const QImage naTela =
        janela.screen()
            ->grabWindow(janela.winId(), area.x(), area.y(), area.width(), area.height())
            .toImage()
            .convertToFormat(QImage::Format_RGB32);
    ASSERT_FALSE(naTela.isNull());
    EXPECT_EQ(naTela, grid->grab().toImage().convertToFormat(QImage::Format_RGB32));
}

TEST_F(StringGridTest, TheDrawStateTellsTitleRangeAndFocus)
{
    grid->SetRangeSelect(true);
    Mostrar();
    grid->SetSelection({1, 2, 2, 3});
    ContarPintura();
    grid->Invalidate();
    QCoreApplication::processEvents();
    EXPECT_EQ((estados[{0, 0}]), unsigned(gdFixa));
    EXPECT_EQ((estados[{0, 2}]), unsigned(gdNada));
    EXPECT_EQ((estados[{1, 2}]), unsigned(gdSelecionada | gdFocada));
    EXPECT_EQ((estados[{2, 3}]), unsigned(gdSelecionada));
    QWidget outro(&janela);
    outro.setFocusPolicy(Qt::StrongFocus);
    outro.setGeometry(0, 350, 20, 20);
    outro.show();
    Assentar();
    estados.clear();
    pintadas.clear();
    outro.setFocus();
    QCoreApplication::processEvents();
    EXPECT_THAT(LinhasPintadas(), ElementsAre(2, 3));
    EXPECT_EQ((estados[{1, 2}]), unsigned(gdSelecionada));
}

TEST_F(StringGridTest, AnOwnersPaintingStaysInsideTheCell)
{
    grid->SetDefaultDrawing(false);
    grid->SetColor(TColor(13684944));
    Mostrar();
    grid->OnDrawCell = [](QObject *, int c, int r, QPainter &p, const QRect &, unsigned) {
        if (c == 2 && r == 3)
            p.fillRect(QRect(0, 0, 5000, 5000), Qt::red);
    };
    const QImage imagem = grid->viewport()->grab().toImage();
    const QRect celula = grid->CellRect(2, 3);
    int vermelhos = 0;
    for (int y = 0; y < imagem.height(); ++y)
        for (int x = 0; x < imagem.width(); ++x)
            vermelhos += imagem.pixelColor(x, y) == QColor(Qt::red);
    EXPECT_EQ(vermelhos, celula.width() * celula.height());
    EXPECT_EQ(imagem.pixelColor(celula.center()), QColor(Qt::red));
    EXPECT_EQ(imagem.pixelColor(grid->CellRect(4, 4).center()), TColor(13684944).ParaQColor());
    EXPECT_EQ(imagem.pixelColor(grid->CellRect(4, 0).center()), grid->GetFixedColor().ParaQColor());
}

TEST_F(StringGridTest, DefaultDrawingWritesTextsInsideTheirCells)
{
    Mostrar();
    for (int c = 0; c < 6; ++c)
        for (int r = 0; r < 101; ++r)
            grid->SetCell(c, r, QString());
    grid->SetCelula(5, 10);
    const QImage vazia = grid->viewport()->grab().toImage();
    const QRect celula = grid->CellRect(2, 3);
    for (const QString &texto :
         {QString(10'000, u'W'), QString(10'000, u'Ł'), QStringLiteral("linha 1\r\nlinha 2"),
          QStringLiteral("Çgjpqy Ágil")}) {
        grid->SetCell(2, 3, texto);
        const QImage cheia = grid->viewport()->grab().toImage();
        QRect mudou;
        for (int y = 0; y < cheia.height(); ++y)
            for (int x = 0; x < cheia.width(); ++x)
                if (cheia.pixel(x, y) != vazia.pixel(x, y))
                    mudou |= QRect(x, y, 1, 1);
        EXPECT_FALSE(mudou.isEmpty());
        EXPECT_TRUE(celula.contains(mudou)) << texto.left(20).toStdString();
    }
}

TEST_F(StringGridTest, AVeryLongTextPaintsAsFastAsAShortOne)
{
    Mostrar();
    const auto pintar = [&](const QString &texto) {
        for (int r = 1; r <= 10; ++r)
            for (int c = 0; c < 6; ++c)
                grid->SetCell(c, r, texto);
        grid->viewport()->grab();
        QElapsedTimer t;
        t.start();
        for (int i = 0; i < 10; ++i)
            grid->viewport()->grab();
        return double(t.nsecsElapsed()) / 1e7;
    };
    const double curto = pintar(QStringLiteral("um texto médio"));
    const double longo = pintar(QString(10'000, u'm'));
    const double outro = pintar(QString(10'000, u'Ł'));
    std::printf("[ FIGURES  ] one full paint, 60 cells: short %.2f ms, 10,000 characters %.2f ms, "
                "10,000 beyond Latin-1 %.2f ms\n",
                curto, longo, outro);
    EXPECT_LT(longo, curto * 5 + 3);
    EXPECT_LT(outro, curto * 40 + 10);
}

TEST_F(StringGridTest, AnErrorWhilePaintingIsReportedOnceAndOutsideOfIt)
{
    TServicosGuarda guarda;
    int relatos = 0;
    bool pintando = false;
    Servicos().ReportarErro = [&](std::exception_ptr) {
        ++relatos;
        EXPECT_FALSE(pintando);
    };
    Mostrar();
    grid->OnDrawCell = [&](QObject *, int, int, QPainter &, const QRect &, unsigned) {
        pintando = true;
        struct TFim {
            bool &b;
            ~TFim() { b = false; }
        } fim{pintando};
        throw EErro(QStringLiteral("não pinta"));
    };
    grid->Invalidate();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(relatos, 1);
    grid->SetRow(5);
    QCoreApplication::processEvents();
    EXPECT_EQ(relatos, 1);
    grid->Invalidate();
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    EXPECT_EQ(relatos, 2);
}

TEST_F(StringGridTest, ADisabledGridTakesNoInputAndLooksDisabled)
{
    Mostrar();
    const QImage antes = grid->viewport()->grab().toImage();
    grid->setEnabled(false);
    EXPECT_NE(grid->viewport()->grab().toImage(), antes);
    Clicar(2, 4);
    EXPECT_EQ(Atual(), (TGridCoord{0, 1}));
}

TEST_F(StringGridTest, LinesTakeAPixelOnlyWhenTheyAreOn)
{
    Mostrar();
    EXPECT_EQ(grid->CellRect(1, 2), QRect(81, 38, 80, 18));
    grid->SetGridLines(false);
    EXPECT_EQ(grid->CellRect(1, 2), QRect(80, 36, 80, 18));
    QCoreApplication::processEvents();
    EXPECT_EQ(grid->VisibleRowCount(), 11 * 19 / 18 - 1);
}

TEST_F(StringGridTest, PropertiesOfALayoutReachTheGrid)
{
    for (const auto &[nome, valor] : {std::pair<const char *, QVariant>{"colCount", 9},
                                      {"rowCount", 30},
                                      {"fixedCols", 2},
                                      {"defaultRowHeight", 18},
                                      {"color", 13684944},
                                      {"fixedColor", 0xFFCC88},
                                      {"rangeSelect", true},
                                      {"thumbTracking", true},
                                      {"defaultDrawing", false},
                                      {"gridLines", false},
                                      {"rowSelect", true},
                                      {"colSizing", true},
                                      {"tag", 1}}) {
        EXPECT_TRUE(grid->setProperty(nome, valor)) << nome;
        EXPECT_EQ(grid->property(nome), valor) << nome;
    }
    EXPECT_EQ(grid->GetFixedColor(), TColor::DeRGB(0x88, 0xCC, 0xFF));
}

// ------------------------------------------------------------------------------------ lifetimes

TEST_F(StringGridTest, AHandlerMayDestroyTheGrid)
{
    const auto novo = [this] {
        delete grid;
        grid = new TStringGrid(&janela);
        grid->SetRangeSelect(true);
        grid->setGeometry(0, 0, 400, 200);
        grid->show();
        Mostrar();
    };
    const auto destruir = [this](auto &&...) { delete grid; };
    const auto apertar = [this](QPoint p, QEvent::Type tipo = QEvent::MouseButtonPress) {
        QWidget *alvo = grid->viewport();
        QMouseEvent e(tipo, p, alvo->mapToGlobal(p), Qt::LeftButton, Qt::LeftButton, {});
        QCoreApplication::sendEvent(alvo, &e);
    };
    novo();
    grid->OnSelectCell = destruir;
    apertar(Centro(1, 2));
    EXPECT_TRUE(grid.isNull());
    novo();
    grid->OnMouseDown = destruir;
    apertar(Centro(1, 2));
    EXPECT_TRUE(grid.isNull());
    novo();
    grid->OnDblClick = destruir;
    apertar(Centro(1, 2), QEvent::MouseButtonDblClick);
    EXPECT_TRUE(grid.isNull());
    novo();
    grid->OnClick = destruir;
    apertar(Centro(1, 2));
    apertar(Centro(1, 2), QEvent::MouseButtonRelease);
    EXPECT_TRUE(grid.isNull());
    novo();
    grid->OnFixedCellClick = destruir;
    apertar(Centro(1, 0));
    apertar(Centro(1, 0), QEvent::MouseButtonRelease);
    EXPECT_TRUE(grid.isNull());
    for (auto membro : {&TStringGrid::OnClick, &TStringGrid::OnTopLeftChanged}) {
        novo();
        grid->SetRowCount(1000);
        QCoreApplication::processEvents();
        (grid->*membro) = destruir;
        QKeyEvent e(QEvent::KeyPress, Qt::Key_PageDown, Qt::NoModifier);
        QCoreApplication::sendEvent(grid, &e);
        EXPECT_TRUE(grid.isNull());
    }
    novo();
    grid->OnSelectCell = destruir;
    grid->SetRow(3);
    EXPECT_TRUE(grid.isNull());
    novo();
    grid->SetRowCount(3); // the deferred update finds nobody
    delete grid;
    QCoreApplication::processEvents();
}

// --------------------------------------------------------------------------------- large tables

TEST_F(StringGridTest, AMillionRowsAreQuickToSetToReachAndToPaint)
{
    Mostrar();
    QElapsedTimer t;
    t.start();
    grid->SetRowCount(1'000'001);
    QCoreApplication::processEvents();
    const double fazer = double(t.nsecsElapsed()) / 1e6;
    EXPECT_LT(grid->BytesDosTextos(), 1'000'000);
    for (int r = 1; r <= 1'000'000; r += 1000)
        grid->SetCell(0, r, QString::number(r));
    t.start();
    QTest::keyClick(grid, Qt::Key_End, Qt::ControlModifier);
    grid->viewport()->grab();
    const double fim = double(t.nsecsElapsed()) / 1e6;
    EXPECT_EQ(grid->GetRow(), 1'000'000);
    EXPECT_EQ(grid->GetTopRow(), 1'000'001 - grid->VisibleRowCount());
    EXPECT_EQ(grid->MouseToCell(Centro(0, 1'000'000)), (TGridCoord{0, 1'000'000}));
    grid->SetRow(500'001);
    EXPECT_EQ(grid->GetCell(0, 500'001), QStringLiteral("500001"));
    grid->SetRowCount(2);
    EXPECT_EQ(grid->GetRow(), 1);
    std::printf("[ FIGURES  ] a million rows: set %.2f ms, go to the last and paint %.2f ms\n",
                fazer, fim);
    EXPECT_LT(fazer, 500);
    EXPECT_LT(fim, 500);
}

TEST(TStringGrid, SetsTheSameCountsForNothing)
{
    TStringGrid grid;
    grid.SetRowCount(100'000);
    grid.SetCell(0, 99'999, QStringLiteral("um texto que não cabe na célula"));
    const qint64 bytes = grid.BytesDosTextos();
    QElapsedTimer t;
    t.start();
    for (int i = 0; i < 100'000; ++i) {
        grid.SetRowCount(100'000);
        grid.SetColCount(5);
    }
    EXPECT_LT(t.elapsed(), 500);
    EXPECT_EQ(grid.BytesDosTextos(), bytes);
}

TEST(TStringGrid, FillsFasterAndSmallerThanAWidgetPerCell)
{
    constexpr int Linhas = 100'000, Colunas = 8;
    QStringList textos;
    for (int i = 0; i < 1000; ++i)
        textos.append(i % 3 == 0   ? QString::number(i)
                      : i % 3 == 1 ? QStringLiteral("Cliente número %1").arg(i)
                                   : QStringLiteral("%1/03/2024").arg(i % 28 + 1));
    const auto medir = [&](auto &&encher, double &ms, qint64 &bytes) {
        const qint64 antes = BytesEmUso();
        QElapsedTimer t;
        t.start();
        encher();
        ms = double(t.nsecsElapsed()) / 1e6;
        bytes = BytesEmUso() - antes;
    };
    double msGrid, msDeNovo, msTabela;
    qint64 bytesGrid, nada, bytesTabela;
    TStringGrid grid;
    grid.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&grid));
    const auto encherGrid = [&] {
        grid.SetColCount(Colunas);
        grid.SetRowCount(Linhas + 1);
        for (int r = 0; r < Linhas; ++r)
            for (int c = 0; c < Colunas; ++c)
                grid.SetCell(c, r + 1, textos[(r + c * 37) % 1000]);
    };
    medir(encherGrid, msGrid, bytesGrid);
    medir(encherGrid, msDeNovo, nada);
    QCoreApplication::processEvents();
    EXPECT_EQ(grid.GetCell(3, 777), textos[(776 + 111) % 1000]);

    QTableWidget tabela;
    medir(
        [&] {
            tabela.setColumnCount(Colunas);
            tabela.setRowCount(Linhas);
            for (int r = 0; r < Linhas; ++r)
                for (int c = 0; c < Colunas; ++c)
                    tabela.setItem(r, c, new QTableWidgetItem(textos[(r + c * 37) % 1000]));
        },
        msTabela, bytesTabela);
    std::printf("[ FIGURES  ] 100,000 x 8 texts: grid %.1f ms, the same again %.1f ms, %.1f MB; "
                "QTableWidget %.1f ms, %.1f MB\n",
                msGrid, msDeNovo, double(grid.BytesDosTextos()) / 1e6, msTabela,
                double(bytesTabela) / 1e6);
    // Under a sanitizer the figures mean nothing; the texts were compared above.
    if (ComSanitizer())
        return;
#ifdef NDEBUG
    EXPECT_LT(msGrid * 2, msTabela);
#else
    EXPECT_LT(msGrid, msTabela * 3);
#endif
    // Qt's strings are shared here, as nowhere in practice: the ratio is against the items alone.
    EXPECT_LT(bytesGrid * 4, bytesTabela);
    EXPECT_LE(grid.BytesDosTextos(), bytesGrid + 100'000);
}

// -------------------------------------------------------------------------------- accessibility

class StringGridAcessivelTest : public StringGridTest
{
protected:
    StringGridAcessivelTest() { grid->SetRangeSelect(true); }
    QAccessibleInterface *Face() const { return QAccessible::queryAccessibleInterface(grid); }
    QAccessibleTableInterface *Tabela() const { return Face()->tableInterface(); }
};

TEST_F(StringGridAcessivelTest, IsATableOfCellsWithTitlesAsHeaders)
{
    Mostrar();
    ASSERT_NE(Face(), nullptr);
    EXPECT_EQ(Face()->role(), QAccessible::Table);
    ASSERT_NE(Tabela(), nullptr);
    EXPECT_EQ(Tabela()->rowCount(), 100);
    EXPECT_EQ(Tabela()->columnCount(), 6);
    EXPECT_EQ(Tabela()->columnDescription(2), QStringLiteral("c2 r0"));
    QAccessibleInterface *celula = Tabela()->cellAt(4, 2);
    ASSERT_NE(celula, nullptr);
    EXPECT_EQ(celula->role(), QAccessible::Cell);
    EXPECT_EQ(celula->text(QAccessible::Name), QStringLiteral("c2 r5"));
    EXPECT_EQ(celula->parent(), Face());
    EXPECT_EQ(celula, Tabela()->cellAt(4, 2));
    EXPECT_EQ(celula->tableCellInterface()->rowIndex(), 4);
    EXPECT_EQ(celula->tableCellInterface()->columnIndex(), 2);
    EXPECT_EQ(celula->tableCellInterface()->table(), Face());
    const auto titulos = celula->tableCellInterface()->columnHeaderCells();
    ASSERT_EQ(titulos.size(), 1);
    EXPECT_EQ(titulos[0]->role(), QAccessible::ColumnHeader);
    EXPECT_EQ(titulos[0]->text(QAccessible::Name), QStringLiteral("c2 r0"));
    EXPECT_EQ(Face()->childCount(), 606);
    EXPECT_EQ(Face()->indexOfChild(celula), 5 * 6 + 2);
    EXPECT_EQ(Face()->child(5 * 6 + 2), celula);
    EXPECT_EQ(Tabela()->cellAt(100, 0), nullptr);
    EXPECT_EQ(Tabela()->cellAt(0, -1), nullptr);
    EXPECT_EQ(Face()->child(606), nullptr);
}

TEST_F(StringGridAcessivelTest, CellsTellTheirPlaceAndState)
{
    Mostrar();
    grid->SetCelula(2, 5);
    QAccessibleInterface *celula = Tabela()->cellAt(4, 2);
    const QRect ret = grid->CellRect(2, 5);
    EXPECT_EQ(celula->rect(), QRect(grid->viewport()->mapToGlobal(ret.topLeft()), ret.size()));
    EXPECT_EQ(Face()->childAt(celula->rect().center().x(), celula->rect().center().y()), celula);
    EXPECT_TRUE(celula->state().selected);
    EXPECT_TRUE(celula->state().focused);
    EXPECT_EQ(Face()->focusChild(), celula);
    EXPECT_FALSE(Tabela()->cellAt(5, 2)->state().selected);
    EXPECT_TRUE(Tabela()->cellAt(90, 2)->state().offscreen);
    QAccessibleInterface *ultima = Tabela()->cellAt(99, 2);
    grid->SetRowCount(50);
    EXPECT_FALSE(ultima->isValid());
    EXPECT_TRUE(ultima->text(QAccessible::Name).isEmpty());
    EXPECT_TRUE(ultima->rect().isEmpty());
    EXPECT_TRUE(ultima->state().invalid);
}

TEST_F(StringGridAcessivelTest, RowsColumnsAndCellsAreSelectedThroughIt)
{
    Mostrar();
    EXPECT_TRUE(Tabela()->selectRow(7));
    EXPECT_EQ(grid->GetSelection(), (TGridRect{0, 8, 5, 8}));
    EXPECT_TRUE(Tabela()->isRowSelected(7));
    EXPECT_THAT(Tabela()->selectedRows(), ElementsAre(7));
    EXPECT_EQ(Tabela()->selectedCellCount(), 6);
    EXPECT_EQ(Tabela()->selectedCells().size(), 6);
    EXPECT_TRUE(Tabela()->unselectRow(7));
    EXPECT_FALSE(Tabela()->isRowSelected(7));
    EXPECT_TRUE(Tabela()->selectColumn(3));
    EXPECT_THAT(Tabela()->selectedColumns(), ElementsAre(3));
    EXPECT_EQ(Tabela()->selectedColumnCount(), 1);
    EXPECT_EQ(Tabela()->selectedRowCount(), 0);
    EXPECT_TRUE(Tabela()->unselectColumn(3));
    EXPECT_FALSE(Tabela()->selectRow(100));
    grid->OnSelectCell = [](QObject *, int, int, bool &pode) { pode = false; };
    EXPECT_FALSE(Tabela()->selectRow(3));
    grid->OnSelectCell = nullptr;
    QAccessibleActionInterface *acao = Tabela()->cellAt(2, 1)->actionInterface();
    ASSERT_NE(acao, nullptr);
    acao->doAction(QAccessibleActionInterface::setFocusAction());
    EXPECT_EQ(Atual(), (TGridCoord{1, 3}));
}

TEST_F(StringGridAcessivelTest, TheGridMayGoBeforeItsCellsAre)
{
    Mostrar();
    const QAccessible::Id id = QAccessible::uniqueId(Tabela()->cellAt(4, 2));
    EXPECT_NE(QAccessible::accessibleInterface(id), nullptr);
    delete grid;
    EXPECT_EQ(QAccessible::accessibleInterface(id), nullptr);
}
