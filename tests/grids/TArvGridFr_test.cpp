#include "grids/UArvGridFr.h"

#include "forms/UActContainerF.h"
#include "forms/UFicha.h"
#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QAccessible>
#include <QElapsedTimer>
#include <QPainter>
#include <QTimer>

namespace ficha::testes
{

/** An account of a plan of accounts. */
class TConta : public TArvItem
{
public:
    explicit TConta(const QString &n) : nome(n) {}
    QString nome;
};

/** The plan of accounts of a small company, or whatever a test builds. */
class TContasFr : public TArvGridFr
{
    Q_OBJECT

public:
    using TArvGridFr::TArvGridFr;
    void Create(QWidget *owner) override
    {
        TArvGridFr::Create(owner);
        StringGrid1->SetColCount(3);
        StringGrid1->SetColWidth(0, 220);
        StringGrid1->SetColWidth(1, 60);
        StringGrid1->SetCell(0, 0, QStringLiteral("Conta"));
        StringGrid1->SetCell(1, 0, QStringLiteral("Nível"));
    }
    void ColocarFilhos(TArvItem *item) override
    {
        TArvGridFr::ColocarFilhos(item);
        ganchos << QStringLiteral("ColocarFilhos");
        if (montar) {
            montar(item);
            return;
        }
        TConta *ativo = Conta(item, QStringLiteral("1 Ativo"));
        TConta *circulante = Conta(ativo, QStringLiteral("1.1 Circulante"));
        Conta(circulante, QStringLiteral("1.1.1 Caixa"));
        Conta(circulante, QStringLiteral("1.1.2 Bancos conta movimento e aplicações de liquidez "
                                         "imediata no país"));
        Conta(ativo, QStringLiteral("1.2 Imobilizado"));
        TConta *passivo = Conta(item, QStringLiteral("2 Passivo"));
        Conta(passivo, QStringLiteral("2.1 Fornecedores"));
    }
    void ColocarCodBusca(TArvItem *item) override
    {
        TArvGridFr::ColocarCodBusca(item);
        ganchos << QStringLiteral("ColocarCodBusca %1").arg(item->NFilhos());
    }
    void DadoParaGrid(TArvItem *item) override
    {
        TArvGridFr::DadoParaGrid(item);
        ++escritas;
        StringGrid1->SetCell(0, LinhaAtual, static_cast<TConta *>(item)->nome);
        StringGrid1->SetCell(1, LinhaAtual, QString::number(item->GetNivel()));
    }

    TConta *Conta(TArvItem *pai, const QString &nome)
    {
        TConta *nova = pai->AddFilho(std::make_unique<TConta>(nome));
        TratarFilho(nova);
        return nova;
    }
    void Mostrar()
    {
        RelerFonte();
        AtualizarExibicao();
    }

    std::function<void(TArvItem *)> montar;
    QStringList ganchos;
    int escritas = 0;
};

} // namespace ficha::testes

namespace ficha
{
using testes::TContasFr;
FICHA_REGISTRAR(TContasFr)
} // namespace ficha

namespace ficha::testes
{

class TArvGridFrTest : public testing::Test
{
protected:
    TArvGridFrTest() : fr(Criar<TContasFr>(&janela)), grade(fr->StringGrid1)
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        fr->resize(400, 220);
        janela.resize(420, 240);
        janela.show();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&janela));
        fr->SetFocus();
        Girar();
    }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    QStringList Linhas() const
    {
        QStringList linhas;
        for (int r = 1; r < grade->GetRowCount(); ++r)
            linhas << grade->GetCell(0, r).section(u' ', 0, 0);
        return linhas;
    }
    void Clicar(int col, int row, Qt::MouseButton botao = Qt::LeftButton)
    {
        QTest::mouseClick(grade->viewport(), botao, {}, grade->CellRect(col, row).center());
        Girar();
    }
    /** Clicks the picture itself: 18 pixels for each level, then 15 before the text. */
    void ClicarFigura(int row)
    {
        const TArvItem *item = fr->ArvItem(row);
        ASSERT_TRUE(item);
        QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, LugarDaFigura(row) + QPoint(8, 8));
        Girar();
    }
    QPoint LugarDoTexto(int row) const
    {
        const TArvItem *item = fr->ArvItem(row);
        return grade->CellRect(0, row).topLeft() +
               QPoint(item->Exibicao.DeslocHorizontal + 18 * item->GetNivel(),
                      item->Exibicao.DeslocVertical);
    }
    QPoint LugarDaFigura(int row) const { return LugarDoTexto(row) + QPoint(-15, -1); }
    QImage Imagem() const { return grade->viewport()->grab().toImage(); }
    QColor Fundo(int row) const
    {
        return Imagem().pixelColor(grade->CellRect(0, row).bottomLeft() + QPoint(1, -1));
    }
    /** The columns of a cell's pixels that have ink on a background. */
    QList<int> Tinta(int row, int deX) const
    {
        const QImage imagem = Imagem();
        const QRect celula = grade->CellRect(0, row);
        const QColor fundo = Fundo(row);
        QList<int> colunas;
        for (int x = celula.left() + deX; x <= celula.right(); ++x)
            for (int y = celula.top() + 1; y < celula.bottom(); ++y)
                if (imagem.pixelColor(x, y) != fundo) {
                    colunas << x;
                    break;
                }
        return colunas;
    }

    TServicosGuarda guarda;
    QStringList erros;
    TFicha biblioteca;
    QWidget janela;
    TContasFr *fr;
    TStringGrid *grade;
};

const QStringList TodasAbertas = {
    QStringLiteral("1"),   QStringLiteral("1.1"), QStringLiteral("1.1.1"), QStringLiteral("1.1.2"),
    QStringLiteral("1.2"), QStringLiteral("2"),   QStringLiteral("2.1")};

TEST_F(TArvGridFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TArvGridFr")));
    std::unique_ptr<TArvGridFr> puro(Criar<TArvGridFr>(nullptr));
    EXPECT_TRUE(puro->StringGrid1->GetDefaultDrawing());
    EXPECT_EQ(puro->StringGrid1->GetFixedCols(), 0);
    EXPECT_EQ(puro->ModoExpansao, 0);
    EXPECT_EQ(puro->NivelExpandido, 1);
    EXPECT_TRUE(puro->ExpandirSempre);
    EXPECT_EQ(puro->LinhaAtual, 1);
    EXPECT_EQ(puro->Raiz->NFilhos(), 0);
    puro->show();
    puro->RelerFonte();
    puro->AtualizarExibicao();
    Girar();
}

TEST_F(TArvGridFrTest, TheTreeIsFlattenedDepthFirstAndEachRowCarriesItsItem)
{
    fr->Mostrar();
    EXPECT_EQ(fr->ganchos,
              QStringList({QStringLiteral("ColocarFilhos"), QStringLiteral("ColocarCodBusca 2")}));
    EXPECT_EQ(Linhas(), TodasAbertas);
    EXPECT_EQ(fr->LinhaAtual, 8);
    EXPECT_EQ(fr->ArvItem(1), fr->Raiz->GetFilhos(0));
    EXPECT_EQ(fr->ArvItem(6), fr->Raiz->GetFilhos(1));
    EXPECT_EQ(grade->GetCell(1, 4), QStringLiteral("3"));
    EXPECT_EQ(fr->ArvItem(0), nullptr);
    EXPECT_EQ(fr->ArvItem(99), nullptr);
}

TEST_F(TArvGridFrTest, ARootWithoutChildrenLeavesTheRowsAsTheyWere)
{
    fr->Mostrar();
    fr->montar = [](TArvItem *) {};
    fr->Mostrar();
    EXPECT_EQ(fr->Raiz->NLins(), 0);
    EXPECT_EQ(Linhas(), TodasAbertas);
    // The items are gone: nothing to be clicked, nothing dangling.
    for (int r = 0; r < grade->GetRowCount(); ++r)
        EXPECT_EQ(fr->ArvItem(r), nullptr) << r;
    Clicar(0, 1);
    EXPECT_EQ(Linhas(), TodasAbertas);
    EXPECT_FALSE(Imagem().isNull());
}

TEST_F(TArvGridFrTest, CollapsingTakesAllDescendantsAwayAndExpandingShowsThemAsTheyWere)
{
    fr->Mostrar();
    ClicarFigura(2); // 1.1
    EXPECT_EQ(Linhas(),
              QStringList({QStringLiteral("1"), QStringLiteral("1.1"), QStringLiteral("1.2"),
                           QStringLiteral("2"), QStringLiteral("2.1")}));
    ClicarFigura(1); // 1
    EXPECT_EQ(Linhas(),
              QStringList({QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("2.1")}));
    EXPECT_EQ(grade->GetRowCount(), 4);
    ClicarFigura(1);
    EXPECT_EQ(Linhas(),
              QStringList({QStringLiteral("1"), QStringLiteral("1.1"), QStringLiteral("1.2"),
                           QStringLiteral("2"), QStringLiteral("2.1")}));
    ClicarFigura(2);
    EXPECT_EQ(Linhas(), TodasAbertas);
    for (int r = 1; r < grade->GetRowCount(); ++r)
        EXPECT_EQ(static_cast<TConta *>(fr->ArvItem(r))->nome, grade->GetCell(0, r));
}

TEST_F(TArvGridFrTest, TheWholeFirstColumnTogglesAndTitleOtherColumnsAndEmptyAreaDoNot)
{
    fr->Mostrar();
    Clicar(0, 0);
    Clicar(1, 1);
    Clicar(2, 2);
    Clicar(1, 0);
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, QPoint(390, 30));
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, QPoint(10, 180));
    EXPECT_EQ(Linhas(), TodasAbertas);
    Clicar(0, 2);
    EXPECT_EQ(Linhas().size(), 5);
    EXPECT_EQ(grade->GetRow(), 2) << "the click selects as well";
    // An item without children toggles unseen.
    const TArvItem *folha = fr->ArvItem(3);
    ASSERT_EQ(folha->NFilhos(), 0);
    Clicar(0, 3);
    EXPECT_FALSE(folha->GetExpandido());
    EXPECT_EQ(Linhas().size(), 5);
}

TEST_F(TArvGridFrTest, ACollapsedRootShowsNoItems)
{
    fr->Mostrar();
    fr->Raiz->SetExpandido(false);
    fr->AtualizarExibicao();
    EXPECT_EQ(grade->GetRowCount(), 1);
    fr->Raiz->SetExpandido(true);
    fr->AtualizarExibicao();
    EXPECT_EQ(Linhas(), TodasAbertas);
    EXPECT_EQ(grade->GetFixedRows(), 1);
}

TEST_F(TArvGridFrTest, ModeZeroGivesEveryNewItemTheSameFlag)
{
    fr->ExpandirSempre = false;
    fr->Mostrar();
    EXPECT_EQ(Linhas(), QStringList({QStringLiteral("1"), QStringLiteral("2")}));
    ClicarFigura(1);
    EXPECT_EQ(Linhas(), QStringList({QStringLiteral("1"), QStringLiteral("1.1"),
                                     QStringLiteral("1.2"), QStringLiteral("2")}));
}

TEST_F(TArvGridFrTest, ModeOneExpandsTheLevelsUpToTheStatedOne)
{
    fr->ModoExpansao = 1;
    fr->Mostrar();
    EXPECT_TRUE(fr->Raiz->GetFilhos(0)->GetExpandido());
    EXPECT_FALSE(fr->Raiz->GetFilhos(0)->GetFilhos(0)->GetExpandido());
    EXPECT_EQ(Linhas(),
              QStringList({QStringLiteral("1"), QStringLiteral("1.1"), QStringLiteral("1.2"),
                           QStringLiteral("2"), QStringLiteral("2.1")}));
    fr->NivelExpandido = 0;
    fr->Mostrar();
    EXPECT_EQ(Linhas(), QStringList({QStringLiteral("1"), QStringLiteral("2")}));
    fr->NivelExpandido = 2;
    fr->Mostrar();
    EXPECT_EQ(Linhas(), TodasAbertas);
}

TEST_F(TArvGridFrTest, OtherModesLeaveTheFlagAlone)
{
    fr->ModoExpansao = 2;
    fr->ExpandirSempre = false;
    fr->Mostrar();
    EXPECT_EQ(Linhas(), TodasAbertas) << "as the items were made";
    fr->Raiz->GetFilhos(0)->SetExpandido(false);
    fr->TratarFilho(fr->Raiz->GetFilhos(0));
    EXPECT_FALSE(fr->Raiz->GetFilhos(0)->GetExpandido());
}

TEST_F(TArvGridFrTest, FlagsOutliveAFlatteningAndNotAReading)
{
    fr->Mostrar();
    ClicarFigura(1);
    fr->AtualizarExibicao();
    EXPECT_EQ(Linhas().size(), 3);
    fr->Mostrar();
    EXPECT_EQ(Linhas(), TodasAbertas);
}

TEST_F(TArvGridFrTest, BetweenReadingAndFlatteningNoRowCarriesADeadItem)
{
    fr->Mostrar();
    fr->RelerFonte();
    for (int r = 1; r < grade->GetRowCount(); ++r)
        EXPECT_EQ(fr->ArvItem(r), nullptr) << r;
    Clicar(0, 1);
    fr->AtualizarExibicao();
    EXPECT_EQ(fr->ArvItem(1), fr->Raiz->GetFilhos(0));
    // A descendant that empties the tree by itself.
    fr->Raiz->LimparFilhos();
    EXPECT_EQ(fr->ArvItem(1), nullptr);
    EXPECT_FALSE(Imagem().isNull());
    Clicar(0, 1);
}

TEST_F(TArvGridFrTest, AnObjectOfAnotherClassIsNoItemAndItsCellIsNotPaintedByTheTree)
{
    fr->Mostrar();
    int outro = 0;
    grade->SetObjeto(0, 1, reinterpret_cast<std::intptr_t>(&outro));
    grade->SetCelula(1, 6);
    EXPECT_EQ(fr->ArvItem(1), nullptr);
    Clicar(0, 1);
    EXPECT_EQ(Linhas(), TodasAbertas);
    grade->SetCelula(1, 6);
    EXPECT_EQ(Fundo(1), grade->GetColor().ParaQColor()) << "the grid's own drawing only";
    fr->RelerFonte();
    EXPECT_EQ(grade->GetObjeto(0, 1), reinterpret_cast<std::intptr_t>(&outro)) << "not the tree's";
}

TEST_F(TArvGridFrTest, TheTitleIsPaintedAsATitleEvenWhereItCarriesAnItem)
{
    fr->Mostrar();
    const QRect titulo = grade->CellRect(0, 0);
    const QImage antes = Imagem().copy(titulo);
    grade->SetObjeto(0, 0, fr->ArvItem(2)->Objeto());
    grade->Invalidate();
    EXPECT_EQ(Imagem().copy(titulo), antes);
    Clicar(0, 0);
    EXPECT_EQ(Linhas(), TodasAbertas);
}

TEST_F(TArvGridFrTest, AnItemHasTheGridsFontExceptForWhatItSetsItself)
{
    fr->Mostrar();
    grade->SetCelula(2, 6);
    const auto largura = [&](int row) {
        const QList<int> tinta = Tinta(row, LugarDoTexto(row).x());
        return tinta.isEmpty() ? 0 : tinta.last() - tinta.first();
    };
    const int normal = largura(5); // 1.2 Imobilizado
    fr->ArvItem(5)->Exibicao.Font.setBold(true);
    grade->Invalidate();
    const int negrito = largura(5);
    EXPECT_GT(negrito, normal);
    QFont maior = grade->font();
    maior.setPointSize(maior.pointSize() + 3);
    grade->setFont(maior);
    EXPECT_GT(largura(5), negrito);
}

TEST_F(TArvGridFrTest, RightAndPlusExpandLeftAndMinusCollapseTheCurrentItem)
{
    fr->Mostrar();
    const QStringList semUmUm = {QStringLiteral("1"), QStringLiteral("1.1"), QStringLiteral("1.2"),
                                 QStringLiteral("2"), QStringLiteral("2.1")};
    grade->SetCelula(0, 2);
    const QList<std::pair<Qt::Key, Qt::Key>> pares = {{Qt::Key_Left, Qt::Key_Right},
                                                      {Qt::Key_Minus, Qt::Key_Plus}};
    for (const auto &[recolher, expandir] : pares) {
        QTest::keyClick(grade, recolher);
        EXPECT_EQ(Linhas(), semUmUm);
        EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({0, 2}));
        QTest::keyClick(grade, expandir);
        EXPECT_EQ(Linhas(), TodasAbertas);
        EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({0, 2}));
    }
    // A plus that is typed with Shift, and the keys of the numeric pad.
    QTest::keyClick(grade, Qt::Key_Minus, Qt::KeypadModifier);
    EXPECT_EQ(Linhas(), semUmUm);
    QTest::keyClick(grade, Qt::Key_Plus, Qt::ShiftModifier);
    EXPECT_EQ(Linhas(), TodasAbertas);
    // What is expanded stays so: nothing is inverted.
    QTest::keyClick(grade, Qt::Key_Plus);
    EXPECT_EQ(Linhas(), TodasAbertas);
}

TEST_F(TArvGridFrTest, LeftGoesOnToTheItemAboveAndRightToTheNextColumn)
{
    fr->Mostrar();
    grade->SetCelula(0, 4); // 1.1.2, a leaf
    int cliques = 0;
    const auto antes = std::exchange(grade->OnClick, [&](QObject *) { ++cliques; });
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(grade->GetRow(), 2);
    EXPECT_EQ(cliques, 1) << "like any key that moves the current cell";
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(Linhas().size(), 5) << "1.1 is collapsed first";
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(grade->GetRow(), 1);
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(Linhas().size(), 3);
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({0, 1}));
    EXPECT_EQ(Linhas().size(), 3) << "nothing is above an item of the top level";
    QTest::keyClick(grade, Qt::Key_Right);
    EXPECT_EQ(Linhas().size(), 5);
    EXPECT_EQ(grade->GetCol(), 0);
    QTest::keyClick(grade, Qt::Key_Right);
    EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({1, 1}));
    grade->SetCelula(0, 3); // 1.2, a leaf
    QTest::keyClick(grade, Qt::Key_Right);
    EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({1, 3}));
    grade->OnClick = antes;
}

TEST_F(TArvGridFrTest, KeysInOtherColumnsWithCtrlOrOverALeafAreTheGridsAndTheScreens)
{
    fr->Mostrar();
    const auto chega = [&](Qt::Key tecla, const QString &texto, Qt::KeyboardModifiers com = {}) {
        QKeyEvent evento(QEvent::KeyPress, tecla, com, texto);
        QApplication::sendEvent(grade, &evento);
        return !evento.isAccepted();
    };
    grade->SetCelula(1, 2);
    EXPECT_TRUE(chega(Qt::Key_Minus, QStringLiteral("-")));
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(TGridCoord({grade->GetCol(), grade->GetRow()}), TGridCoord({0, 2}));
    EXPECT_EQ(Linhas(), TodasAbertas);
    chega(Qt::Key_Left, {}, Qt::ControlModifier);
    chega(Qt::Key_Left, {}, Qt::ShiftModifier);
    EXPECT_TRUE(chega(Qt::Key_Left, {}, Qt::AltModifier));
    EXPECT_EQ(Linhas(), TodasAbertas);
    EXPECT_TRUE(chega(Qt::Key_Asterisk, QStringLiteral("*")));
    EXPECT_FALSE(chega(Qt::Key_Plus, QStringLiteral("+"))) << "of an item with children";
    grade->SetCelula(0, 3);
    EXPECT_TRUE(chega(Qt::Key_Minus, QStringLiteral("-")));
    EXPECT_TRUE(fr->ArvItem(3)->GetExpandido());
    // A grid that shows no item: nothing to be expanded.
    fr->Raiz->LimparFilhos();
    grade->SetCelula(0, 1);
    QTest::keyClick(grade, Qt::Key_Left);
    QTest::keyClick(grade, Qt::Key_Minus);
    EXPECT_EQ(grade->GetRowCount(), 8);
}

TEST_F(TArvGridFrTest, WhereWholeRowsAreSelectedTheKeysServeTheItemWhileItIsInView)
{
    fr->Mostrar();
    grade->SetRowSelect(true);
    Clicar(1, 2);
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(Linhas().size(), 5);
    QTest::keyClick(grade, Qt::Key_Plus);
    EXPECT_EQ(Linhas(), TodasAbertas);
    grade->SetColWidth(1, 300); // wider than the grid
    Girar();
    QTest::keyClick(grade, Qt::Key_Right);
    ASSERT_EQ(grade->GetLeftCol(), 1) << "expanded already: the columns scroll";
    QTest::keyClick(grade, Qt::Key_Minus);
    EXPECT_EQ(Linhas(), TodasAbertas);
    QTest::keyClick(grade, Qt::Key_Left);
    EXPECT_EQ(grade->GetLeftCol(), 0);
    EXPECT_EQ(Linhas(), TodasAbertas);
}

TEST_F(TArvGridFrTest, AFrameMayBeDestroyedByTheKeyThatCollapses)
{
    for (const Qt::Key tecla : {Qt::Key_Left, Qt::Key_Minus}) {
        class TSuicidaFr : public TContasFr
        {
        public:
            using TContasFr::TContasFr;
            void AtualizarExibicao() override
            {
                if (!std::exchange(primeira, false))
                    delete this;
                else
                    TContasFr::AtualizarExibicao();
            }
            bool primeira = true;
        };
        const QPointer<TSuicidaFr> outro = Criar<TSuicidaFr>(&janela);
        outro->show();
        outro->Mostrar();
        outro->StringGrid1->SetCelula(0, 2);
        QTest::keyPress(outro->StringGrid1, tecla);
        EXPECT_FALSE(outro);
    }
}

TEST_F(TArvGridFrTest, AssistiveToolsSeeWhatIsExpanded)
{
    fr->Mostrar();
    auto *tabela = QAccessible::queryAccessibleInterface(grade)->tableInterface();
    ASSERT_NE(tabela, nullptr);
    const auto estado = [&](int row, int col = 0) {
        const QAccessible::State e = tabela->cellAt(row - 1, col)->state();
        return QList<bool>{bool(e.expandable), bool(e.expanded), bool(e.collapsed)};
    };
    const QList<bool> aberta = {true, true, false}, fechada = {true, false, true},
                      folha = {false, false, false};
    EXPECT_EQ(estado(2), aberta);
    EXPECT_EQ(estado(3), folha);
    EXPECT_EQ(estado(2, 1), folha) << "the first column only";
    grade->SetCelula(0, 2);
    QTest::keyClick(grade, Qt::Key_Minus);
    EXPECT_EQ(estado(2), fechada);
    Clicar(0, 1);
    EXPECT_EQ(estado(1), fechada);
}

TEST_F(TArvGridFrTest, RowsAreBandedAndTheCurrentRowStandsOut)
{
    fr->Mostrar();
    grade->SetCelula(0, 4);
    EXPECT_EQ(Fundo(1), QColor(Qt::white));
    EXPECT_EQ(Fundo(2), QColor(0xDF, 0xEF, 0xF9));
    EXPECT_EQ(Fundo(4), QColor(0x0A, 0x24, 0x6A));
    grade->SetCelula(1, 4);
    EXPECT_EQ(Fundo(4), SisD().CorControlSelec.ParaQColor());
    const TColor antes = std::exchange(SisD().CorControlSelec, TColor::DeRGB(1, 200, 3));
    grade->Invalidate();
    EXPECT_EQ(Fundo(4), QColor(1, 200, 3));
    SisD().CorControlSelec = antes;
    grade->SetRowSelect(true);
    EXPECT_EQ(Fundo(4), QColor(0x0A, 0x24, 0x6A));
    EXPECT_EQ(Fundo(3), QColor(Qt::white));
}

TEST_F(TArvGridFrTest, TextsAreBlackAndOnDarkBlueWhite)
{
    fr->Mostrar();
    const auto tem = [&](int row, const QColor &cor) {
        const QImage imagem = Imagem();
        const QRect area = grade->CellRect(0, row).adjusted(LugarDoTexto(row).x(), 0, 0, 0);
        for (int y = area.top(); y <= area.bottom(); ++y)
            for (int x = area.left(); x <= area.right(); ++x)
                if (imagem.pixelColor(x, y) == cor)
                    return true;
        return false;
    };
    // Thin strokes are softened: a heavy font has pixels of the pure colour.
    for (int r = 1; r < grade->GetRowCount(); ++r) {
        fr->ArvItem(r)->Exibicao.Font.setBold(true);
        fr->ArvItem(r)->Exibicao.Font.setStyleStrategy(QFont::NoAntialias);
    }
    grade->SetCelula(0, 3);
    EXPECT_TRUE(tem(1, Qt::black));
    EXPECT_TRUE(tem(3, Qt::white));
    EXPECT_FALSE(tem(3, Qt::black));
    grade->SetCelula(2, 3);
    EXPECT_TRUE(tem(3, Qt::black));
}

TEST_F(TArvGridFrTest, EachLevelIsIndentedBy18PixelsAndTheItemsOffsets)
{
    fr->Mostrar();
    grade->SetCelula(2, 6);
    for (int r = 1; r < grade->GetRowCount(); ++r)
        fr->ArvItem(r)->Exibicao.Font.setStyleStrategy(QFont::NoAntialias);
    const auto comeco = [&](int row) {
        return Tinta(row, LugarDaFigura(row).x() + 16).value(0) - grade->CellRect(0, row).left();
    };
    const int um = comeco(1), dois = comeco(2), tres = comeco(3);
    EXPECT_EQ(dois - um, 18);
    EXPECT_EQ(tres - dois, 18);
    EXPECT_NEAR(um, 2 + 18, 2);
    fr->ArvItem(3)->Exibicao.DeslocHorizontal += 30;
    grade->Invalidate();
    EXPECT_EQ(comeco(3), tres + 30);
}

TEST_F(TArvGridFrTest, OnlyItemsWithChildrenHaveAPictureAndItTellsTheirState)
{
    fr->Mostrar();
    grade->SetCelula(2, 6);
    const auto figura = [&](int row) {
        return Imagem().copy(QRect(LugarDaFigura(row), QSize(14, 16)));
    };
    const auto esperada = [&](int indice, int row) {
        QImage imagem(14, 16, QImage::Format_RGB32);
        imagem.fill(Fundo(row));
        QPainter p(&imagem);
        SisD().ImageList->Draw(p, QPoint(0, 0), indice);
        return imagem;
    };
    EXPECT_EQ(figura(1).convertToFormat(QImage::Format_RGB32), esperada(26, 1));
    EXPECT_TRUE(Tinta(3, 0).value(0) >= LugarDoTexto(3).x()) << "1.1.1 has no children";
    fr->Raiz->GetFilhos(0)->SetExpandido(false);
    fr->AtualizarExibicao();
    EXPECT_EQ(figura(1).convertToFormat(QImage::Format_RGB32), esperada(25, 1));
}

TEST_F(TArvGridFrTest, ALongTextStaysInsideItsCell)
{
    fr->Mostrar();
    grade->SetCelula(2, 1);
    grade->SetCell(1, 4, QString());
    const QImage imagem = Imagem();
    const QRect vizinha = grade->CellRect(1, 4);
    for (int x = vizinha.left(); x <= vizinha.right(); ++x)
        EXPECT_EQ(imagem.pixelColor(x, vizinha.center().y()), QColor(0xDF, 0xEF, 0xF9)) << x;
    Retratar(&janela, QStringLiteral("TArvGridFr-contas"));
    grade->SetColWidth(0, 40); // the third level starts beyond
    Girar();
    EXPECT_TRUE(Tinta(4, 0).isEmpty());
}

TEST_F(TArvGridFrTest, WithoutImagesTheTreeIsPaintedWithoutPictures)
{
    fr->Mostrar();
    TImageList *lista = std::exchange(SisD().ImageList, nullptr);
    grade->SetCelula(2, 6);
    EXPECT_GE(Tinta(1, 0).value(0), LugarDoTexto(1).x());
    SisD().ImageList = lista;
}

TEST_F(TArvGridFrTest, TheEnlargedCopyHasItsOwnTree)
{
    fr->SetCod1(5);
    EXPECT_EQ(Linhas(), TodasAbertas);
    ClicarFigura(1);
    QTimer::singleShot(60, qApp, [this] {
        auto *container = qobject_cast<TActContainerF *>(TForm::FormularioAtivo());
        ASSERT_TRUE(container);
        auto *copia = qobject_cast<TContasFr *>(container->ActFr);
        ASSERT_TRUE(copia);
        Retratar(container, QStringLiteral("TArvGridFr-ampliada"));
        EXPECT_EQ(copia->StringGrid1->GetRowCount(), 8);
        EXPECT_NE(copia->ArvItem(1), fr->Raiz->GetFilhos(0));
        TStringGrid *dela = copia->StringGrid1;
        QTest::mouseClick(dela->viewport(), Qt::LeftButton, {}, dela->CellRect(0, 1).center());
        EXPECT_EQ(dela->GetRowCount(), 4);
        QTest::keyClick(dela, Qt::Key_Escape);
    });
    QTest::mouseClick(fr->AmplToolButton, Qt::LeftButton);
    EXPECT_EQ(Linhas(), TodasAbertas) << "read again";
}

TEST_F(TArvGridFrTest, AnErrorWhileTheRowsAreWrittenIsReportedAndTheNextFlatteningIsWhole)
{
    /** Fails once, deep in the walk. */
    class TFalhaFr : public TContasFr
    {
    public:
        using TContasFr::TContasFr;
        void DadoParaGrid(TArvItem *item) override
        {
            if (item->GetNivel() == 3 && std::exchange(falhar, false))
                throw EErro(QStringLiteral("linha ruim"));
            TContasFr::DadoParaGrid(item);
        }
        bool falhar = true;
    };
    auto *ruim = Criar<TFalhaFr>(&janela);
    ruim->RelerFonte();
    EXPECT_THROW(ruim->AtualizarExibicao(), EErro);
    ruim->AtualizarExibicao();
    EXPECT_EQ(ruim->StringGrid1->GetRowCount(), 8);
    EXPECT_EQ(ruim->LinhaAtual, 8);
}

TEST_F(TArvGridFrTest, AFrameDestroyedByTheClickIsLeftAlone)
{
    class TSuicidaFr : public TContasFr
    {
    public:
        using TContasFr::TContasFr;
        void GridMouseDown(int col, int row) override
        {
            delete this;
            (void)col;
            (void)row;
        }
    };
    auto *outro = Criar<TSuicidaFr>(&janela);
    outro->resize(300, 150);
    outro->show();
    outro->raise();
    outro->Mostrar();
    Girar();
    const QPointer<TSuicidaFr> vivo(outro);
    QTest::mousePress(outro->StringGrid1->viewport(), Qt::LeftButton, {},
                      outro->StringGrid1->CellRect(0, 1).center());
    EXPECT_FALSE(vivo);
}

TEST_F(TArvGridFrTest, ADescendantThatAddsRowsOfItsOwnIsAskedForEachItem)
{
    /** A total below the children of each item. */
    class TTotaisFr : public TContasFr
    {
    public:
        using TContasFr::TContasFr;
        void FilhosParaGrid(TArvItem *item) override
        {
            ++pedidos;
            TContasFr::FilhosParaGrid(item);
        }
        int pedidos = 0;
    };
    auto *comTotais = Criar<TTotaisFr>(&janela);
    comTotais->Mostrar();
    EXPECT_EQ(comTotais->pedidos, 8) << "the root and seven accounts";
}

TEST_F(TArvGridFrTest, ATreeOfAnyDepthIsShown)
{
    constexpr int Fundo = 100'000;
    fr->montar = [this](TArvItem *item) {
        for (int i = 0; i < Fundo; ++i)
            item = fr->Conta(item, QString::number(i));
    };
    fr->Mostrar();
    EXPECT_EQ(grade->GetRowCount(), Fundo + 1);
    EXPECT_EQ(grade->GetCell(0, Fundo), QString::number(Fundo - 1));
    EXPECT_EQ(fr->ArvItem(Fundo)->GetNivel(), Fundo);
    grade->SetRow(Fundo); // 1.8 million pixels of indentation
    EXPECT_FALSE(Imagem().isNull());
    grade->SetRow(1);
    Girar();
    Clicar(0, 1);
    EXPECT_EQ(grade->GetRowCount(), 2);
}

TEST_F(TArvGridFrTest, AHundredThousandItemsAreShownCollapsedAndExpandedWithoutAWait)
{
    fr->montar = [this](TArvItem *raiz) {
        for (int i = 0; i < 1000; ++i) {
            TConta *grupo = fr->Conta(raiz, QStringLiteral("Grupo %1").arg(i));
            for (int j = 0; j < 99; ++j)
                fr->Conta(grupo, QStringLiteral("Conta analítica %1.%2").arg(i).arg(j));
        }
    };
    QElapsedTimer relogio;
    QString figuras;
    const auto medir = [&](const char *oque, const std::function<void()> &fazer) {
        relogio.start();
        fazer();
        const qint64 ms = relogio.elapsed();
        figuras += QStringLiteral("%1 %2 ms, ").arg(QLatin1String(oque)).arg(ms);
        EXPECT_LT(ms, 3000) << oque;
    };
    medir("read", [&] { fr->RelerFonte(); });
    medir("show", [&] { fr->AtualizarExibicao(); });
    EXPECT_EQ(grade->GetRowCount(), 100'001);
    medir("paint", [&] { Imagem(); });
    const QPoint primeira = grade->CellRect(0, 1).center();
    const auto clicar = [&] { QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, primeira); };
    medir("collapse one", clicar);
    EXPECT_EQ(grade->GetRowCount(), 100'001 - 99);
    medir("expand one", clicar);
    EXPECT_EQ(grade->GetRowCount(), 100'001);
    for (int i = 0; i < 1000; ++i)
        fr->Raiz->GetFilhos(i)->SetExpandido(false);
    medir("collapse all", [&] { fr->AtualizarExibicao(); });
    EXPECT_EQ(grade->GetRowCount(), 1001);
    medir("read and show again", [&] { fr->Mostrar(); });
    EXPECT_EQ(grade->GetRowCount(), 100'001);
    std::printf("[ FIGURES  ] 100000 items: %s\n", qPrintable(figuras.chopped(2)));
}

} // namespace ficha::testes

#include "TArvGridFr_test.moc"
