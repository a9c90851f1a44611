#include "grids/USelectFr.h"

#include "grids/SelectProdutosFr.h"
#include "platform/core/Erros.h"
#include "platform/core/Servicos.h"
#include "platform/database/TSQLQuery.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioButton.h"
#include "support/BancoTemp.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QTimer>

#include <algorithm>
#include <memory>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct TProduto {
    int cod;
    const char *descr;
    double preco;
};

constexpr TProduto Produtos[] = {
    {10, "Caneta azul", 1.5},     {123, "Água mineral", 2}, {7, "ábaco de madeira", 40},
    {12, "Abajur", 99.9},         {55, "Caderno", 12.3},    {1234, "Cabo de rede", 8},
    {3, "Lápis preto", 0.9},      {4, "Lapiseira", 15},     {5, "Borracha", 1},
    {6, "Régua de 30 cm", 2.5},   {8, "Cola branca", 3},    {9, "Tesoura", 7},
    {11, "Papel sulfite A4", 22}, {13, "Grampeador", 18},   {14, "Clipe nº 2", 4},
    {15, "Agenda", 30},           {16, "Açúcar", 5},        {17, "Café", 16},
};

/** Counts what the frame is told, and refuses when asked to. */
class TListaFr : public TSelectProdutosFr
{
public:
    explicit TListaFr(TChave chave) : TSelectProdutosFr(chave)
    {
        Ler = [this](TClientDataSet &cds) {
            ++leituras;
            if (falha)
                throw EErro(QStringLiteral("sem conexão"));
            for (const TProduto &p : Produtos)
                cds.AppendRecord({p.cod, QString::fromUtf8(p.descr), p.preco});
        };
    }
    bool PodeEnviar() override
    {
        ++perguntas;
        return pode;
    }
    void SQLDataSet1BeforeScroll(TDataSet *dataset) override
    {
        eventos << QStringLiteral("vai");
        TSelectProdutosFr::SQLDataSet1BeforeScroll(dataset);
    }
    void SQLDataSet1AfterOpen(TDataSet *dataset) override
    {
        eventos << QStringLiteral("abriu");
        TSelectProdutosFr::SQLDataSet1AfterOpen(dataset);
    }
    void SQLDataSet1AfterScroll(TDataSet *dataset) override
    {
        eventos << QStringLiteral("rolou");
        TSelectProdutosFr::SQLDataSet1AfterScroll(dataset);
    }
    void FiltrarSoDig(const QString &texto) override
    {
        buscas << QStringLiteral("filtrar dígitos ") + texto;
        TSelectProdutosFr::FiltrarSoDig(texto);
    }
    void PosicionarSoDig(const QString &texto) override
    {
        buscas << QStringLiteral("posicionar dígitos ") + texto;
        TSelectProdutosFr::PosicionarSoDig(texto);
    }
    void FiltrarTexto(const QString &texto) override
    {
        buscas << QStringLiteral("filtrar texto ") + texto;
        TSelectProdutosFr::FiltrarTexto(texto);
    }
    void PosicionarTexto(const QString &texto) override
    {
        buscas << QStringLiteral("posicionar texto ") + texto;
        TSelectProdutosFr::PosicionarTexto(texto);
    }
    void BuscaLabeledEditKeyPress(QObject *sender, QChar &key) override
    {
        teclas += key;
        TSelectProdutosFr::BuscaLabeledEditKeyPress(sender, key);
    }
    void BuscaLabeledEditClick(QObject *sender) override
    {
        ++cliques;
        TSelectProdutosFr::BuscaLabeledEditClick(sender);
    }
    using TSelectFr::ClientManager1ListUpDate;

    int leituras = 0, perguntas = 0, cliques = 0;
    bool falha = false, pode = true;
    QStringList eventos, buscas;
    QString teclas;
};

class TSelectFrTest : public testing::Test
{
protected:
    TSelectFrTest()
    {
        Servicos().ReportarErro = [this](std::exception_ptr erro) { erros << TextoDoErro(erro); };
        tela.resize(600, 400);
        busca = new TLabeledEdit(&tela);
        busca->SetCaption(QStringLiteral("Produto"));
        busca->setGeometry(20, 30, 200, 21);
        abaixo = new QLineEdit(&tela);
        abaixo->setGeometry(20, 100, 200, 21);
        fr = Criar<TListaFr>(&tela);
        fr->LarguraTela = false;
        fr->PegarBuscaLabeledEdit(busca);
        fr->OnEnviar = [this](QObject *sender) {
            EXPECT_EQ(sender, fr);
            enviados << fr->Cod();
            if (aoEnviar)
                aoEnviar();
        };
    }
    void TearDown() override { EXPECT_EQ(erros, QStringList()); }

    void Mostrar()
    {
        tela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
        busca->setFocus();
        ASSERT_EQ(QApplication::focusWidget(), busca);
    }
    void Tecla(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(QApplication::focusWidget(), tecla, com);
        QCoreApplication::processEvents();
    }
    void Digitar(const QString &texto)
    {
        for (const QChar c : texto) {
            QTest::sendKeyEvent(QTest::Click, QApplication::focusWidget(),
                                Qt::Key(c.toUpper().unicode()), QString(c), Qt::NoModifier);
            QCoreApplication::processEvents();
        }
    }
    void Digitar(const char *texto) { Digitar(QString::fromUtf8(texto)); }
    TClientDataSet *Cds() { return fr->ClientManager1->CDS1; }
    QStringList Descricoes()
    {
        QStringList lista;
        for (int row = 1; row < fr->DBGrid1->GetRowCount(); ++row)
            lista << fr->DBGrid1->GetCell(1, row);
        return lista;
    }
    void ClicarNaLinha(int row)
    {
        QTest::mouseClick(fr->DBGrid1->viewport(), Qt::LeftButton, {},
                          fr->DBGrid1->CellRect(1, row).center());
        QCoreApplication::processEvents();
    }
    void ClicarNo(TRadioButton *modo)
    {
        QTest::mouseClick(modo, Qt::LeftButton, {}, QPoint(8, modo->height() / 2));
        QCoreApplication::processEvents();
    }
    bool Aberta() { return fr->isVisible(); }
    static QStringList L(const char *textos) { return QString::fromUtf8(textos).split(u'|'); }

    TServicosGuarda guarda;
    QStringList erros;
    QWidget tela;
    TLabeledEdit *busca = nullptr;
    QLineEdit *abaixo = nullptr;
    TListaFr *fr = nullptr;
    QList<int> enviados;
    std::function<void()> aoEnviar;
};

} // namespace

TEST_F(TSelectFrTest, TheEditCallsWhatADescendantMakesOfItsKeysAndClicks)
{
    Mostrar();
    Digitar("á");
    EXPECT_EQ(fr->teclas, QStringLiteral("á")) << "before the accent goes";
    QTest::mouseClick(busca, Qt::LeftButton);
    EXPECT_EQ(fr->cliques, 1);
}

TEST_F(TSelectFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TSelectFr")));
    EXPECT_TRUE(fr->isHidden());
    EXPECT_EQ(fr->FundoPanel->geometry(), fr->rect());
    EXPECT_EQ(fr->FundoPanel->frameShape(), QFrame::Box);
    EXPECT_EQ(fr->FundoPanel->frameShadow(), QFrame::Plain);
    EXPECT_EQ(fr->PosRadioButton->GetCaption(), QStringLiteral("&Posicionar"));
    EXPECT_EQ(fr->FilRadioButton->GetCaption(), QStringLiteral("&Filtrar"));
    EXPECT_TRUE(fr->PosRadioButton->GetChecked());
    EXPECT_FALSE(fr->DBGrid1->GetDefaultDrawing());
    EXPECT_EQ(fr->DBGrid1->GetOptions(),
              unsigned(dgTitles | dgColumnResize | dgColLines | dgRowLines | dgTabs |
                       dgConfirmDelete | dgCancelOnExit));
    EXPECT_EQ(fr->ScrolllTimer->interval(), 333);
    EXPECT_FALSE(fr->ScrolllTimer->isActive());
    EXPECT_EQ(fr->ImageList8x8->GetSize(), QSize(8, 8));
    EXPECT_TRUE(fr->ImageList8x8->Tem(8));
    EXPECT_TRUE(fr->ImageList8x8->Tem(9));
    for (const char *nome : {"ClientManager1", "ImageList8x8", "ScrolllTimer", "IdFTP1"})
        EXPECT_TRUE(fr->findChild<QObject *>(QString::fromLatin1(nome))) << nome;
}

TEST_F(TSelectFrTest, StartsHiddenAndUnloadedWithItsDefaults)
{
    TSelectFr *novo = Criar<TSelectFr>(&tela);
    EXPECT_TRUE(novo->isHidden());
    EXPECT_TRUE(novo->ExibirAoDigitar);
    EXPECT_TRUE(novo->LarguraTela);
    EXPECT_FALSE(novo->Posicionado);
    EXPECT_FALSE(novo->Carregado);
    EXPECT_FALSE(novo->SoDigMostraLista);
    EXPECT_FALSE(novo->Processando);
    EXPECT_TRUE(novo->PodeEnviar());
    Mostrar();
    EXPECT_TRUE(novo->isHidden()) << "the screen's own showing does not show it";
    EXPECT_EQ(fr->leituras, 0);
}

TEST_F(TSelectFrTest, DigitsKeepTheListHiddenAndEnterFindsTheCode)
{
    Mostrar();
    Digitar("123");
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(fr->leituras, 0);
    EXPECT_EQ(enviados, QList<int>());
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(fr->leituras, 1);
    EXPECT_EQ(enviados, QList<int>{123});
    EXPECT_EQ(fr->Descr(), QStringLiteral("Água mineral"));
    busca->SetText(QStringLiteral("0055"));
    Tecla(Qt::Key_Enter);
    EXPECT_EQ(enviados, (QList<int>{123, 55})) << "leading zeros; the other Enter";
    EXPECT_EQ(fr->leituras, 1) << "loaded once";
}

TEST_F(TSelectFrTest, ACodeThatNoRowHasSendsNothingInEitherMode)
{
    Mostrar();
    Digitar("999");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>());
    fr->FilRadioButton->SetChecked(true);
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>());
    busca->SetText(QStringLiteral("1234"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>{1234}) << "the next code is found all the same";
    fr->PosRadioButton->SetChecked(true);
    busca->SetText(QStringLiteral("7"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, (QList<int>{1234, 7}));
}

TEST_F(TSelectFrTest, DigitsShowTheListWhereAskedTo)
{
    fr->SoDigMostraLista = true;
    Mostrar();
    Digitar("12");
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(fr->Cod(), 12);
    ClicarNo(fr->FilRadioButton);
    EXPECT_EQ(Descricoes(), L("Abajur|Água mineral|Cabo de rede")) << "codes that begin with 12";
}

TEST_F(TSelectFrTest, ATextOpensTheListUnderTheEditAndMovesToTheFirstMatch)
{
    Mostrar();
    Digitar("c");
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(fr->pos(), QPoint(20, 30 + 21 + 1));
    EXPECT_EQ(fr->Descr(), QStringLiteral("Cabo de rede")) << "in the order of the description";
    Digitar("an");
    EXPECT_EQ(fr->Descr(), QStringLiteral("Caneta azul"));
    EXPECT_EQ(busca->GetText(), QStringLiteral("can"));
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_EQ(fr->leituras, 1);
    EXPECT_EQ(fr->buscas, L("posicionar texto c|posicionar texto ca|posicionar texto can"));
    Tecla(Qt::Key_Backspace);
    EXPECT_EQ(fr->Descr(), QStringLiteral("Cabo de rede"));
    Digitar("xyz");
    EXPECT_EQ(fr->Descr(), QStringLiteral("Cabo de rede")) << "no match moves nothing";
    busca->Clear();
    EXPECT_EQ(Cds()->RecNo(), 1) << "the empty text goes to the first row";
}

TEST_F(TSelectFrTest, NearTheBottomItOpensAboveTheEdit)
{
    busca->setGeometry(30, 330, 200, 21);
    Mostrar();
    Digitar("c");
    EXPECT_TRUE(Aberta());
    const int y = 330 + 21 + 1 - fr->height() - 21 - 10;
    EXPECT_EQ(fr->pos(), QPoint(30, y));
    EXPECT_LT(fr->geometry().bottom(), busca->y()) << "the edit stays in sight";
}

TEST_F(TSelectFrTest, ItFitsToTheLastPixelOrGoesAbove)
{
    busca->setGeometry(20, 300, 200, 21);
    tela.resize(600, 322 + fr->height());
    Mostrar();
    fr->Exibir();
    EXPECT_EQ(fr->y(), 322);
    fr->hide();
    fr->Posicionado = false;
    tela.resize(600, tela.height() - 1);
    fr->Exibir();
    EXPECT_EQ(fr->y(), 322 - fr->height() - 21 - 10);
}

TEST_F(TSelectFrTest, WithoutRoomOnEitherSideItStartsAtTheTop)
{
    tela.resize(600, 200);
    busca->move(20, 100);
    Mostrar();
    Digitar("c");
    EXPECT_EQ(fr->pos(), QPoint(20, 0));
}

TEST_F(TSelectFrTest, AnEditInsideAPanelHasItsListOverTheOtherControls)
{
    auto *painel = new TPanel(&tela);
    painel->setGeometry(100, 40, 300, 60);
    busca->setParent(painel);
    busca->move(10, 20);
    auto *vizinho = new QPushButton(QStringLiteral("Vizinho"), &tela); // made after the list
    vizinho->setGeometry(110, 90, 200, 40);
    Mostrar();
    Digitar("c");
    EXPECT_EQ(fr->pos(), QPoint(110, 40 + 20 + 21 + 1));
    EXPECT_EQ(tela.childAt(120, 110), fr->DBGrid1->viewport()) << "above what it covers";
    const QImage foto = tela.grab(fr->geometry()).toImage();
    EXPECT_EQ(foto, fr->grab().toImage()) << "nothing shines through";
}

TEST_F(TSelectFrTest, ItIsPlacedOnlyOnce)
{
    Mostrar();
    Digitar("c");
    Tecla(Qt::Key_Escape);
    const QRect antes = fr->geometry();
    busca->move(200, 200);
    Digitar("a");
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(fr->geometry(), antes);
}

TEST_F(TSelectFrTest, AsWideAsTheScreenLessTenPixels)
{
    fr->LarguraTela = true;
    Mostrar();
    const int altura = fr->height();
    Digitar("c");
    EXPECT_EQ(fr->size(), QSize(tela.screen()->geometry().width() - 10, altura));
    EXPECT_EQ(fr->DBGrid1->width(), fr->width() - 2);
    EXPECT_EQ(fr->x(), 20);
    fr->resize(300, altura);
    Tecla(Qt::Key_Escape);
    Digitar("a");
    EXPECT_EQ(fr->width(), 300) << "when first shown only";
}

TEST_F(TSelectFrTest, ArrowsAndPagesFirstOpenTheListThenMoveItsRow)
{
    for (const Qt::Key tecla : {Qt::Key_Down, Qt::Key_Up, Qt::Key_PageDown, Qt::Key_PageUp}) {
        Mostrar();
        Tecla(tecla);
        EXPECT_TRUE(Aberta()) << tecla;
        EXPECT_EQ(Cds()->RecNo(), 1) << tecla;
        EXPECT_EQ(QApplication::focusWidget(), busca);
        Tecla(Qt::Key_Escape);
    }
    busca->SetText(QStringLiteral("ca"));
    Tecla(Qt::Key_Escape);
    Cds()->First();
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Cds()->RecNo(), 1);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Cds()->RecNo(), 2);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(Cds()->RecNo(), 3);
    Tecla(Qt::Key_Up);
    EXPECT_EQ(Cds()->RecNo(), 2);
    Tecla(Qt::Key_PageDown);
    EXPECT_EQ(Cds()->RecNo(), 2 + fr->DBGrid1->VisibleRowCount());
    Tecla(Qt::Key_PageUp);
    EXPECT_EQ(Cds()->RecNo(), 2);
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_EQ(busca->GetText(), QStringLiteral("ca"));
}

TEST_F(TSelectFrTest, AltWithArrowsMovesThroughTheColumnsAndThePlainArrowsStayInTheEdit)
{
    Mostrar();
    Digitar("ca");
    EXPECT_EQ(fr->DBGrid1->GetCol(), 0);
    Tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(fr->DBGrid1->GetCol(), 1);
    Tecla(Qt::Key_Right, Qt::AltModifier);
    EXPECT_EQ(fr->DBGrid1->GetCol(), 2);
    Tecla(Qt::Key_Left, Qt::AltModifier);
    EXPECT_EQ(fr->DBGrid1->GetCol(), 1);
    EXPECT_EQ(busca->cursorPosition(), 2);
    Tecla(Qt::Key_Left);
    EXPECT_EQ(busca->cursorPosition(), 1);
    Tecla(Qt::Key_Home);
    EXPECT_EQ(busca->cursorPosition(), 0);
    Tecla(Qt::Key_End);
    EXPECT_EQ(busca->cursorPosition(), 2);
    Tecla(Qt::Key_Right, Qt::AltModifier | Qt::ControlModifier);
    EXPECT_EQ(fr->DBGrid1->GetCol(), 1) << "Alt alone";
    EXPECT_EQ(Cds()->RecNo(), fr->DBGrid1->GetRow());
}

TEST_F(TSelectFrTest, EscHidesTheListAndTheEditKeepsItsText)
{
    Mostrar();
    Digitar("ca");
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(busca->GetText(), QStringLiteral("ca"));
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_EQ(enviados, QList<int>());
}

TEST_F(TSelectFrTest, EscOfTheScreenWaitsUntilTheListIsHidden)
{
    TActionList acoes(&tela);
    TAction cancelar(&acoes);
    cancelar.SetShortCut(QKeySequence(Qt::Key_Escape));
    int cancelou = 0;
    cancelar.OnExecute = [&](QObject *) { ++cancelou; };
    Mostrar();
    Digitar("ca");
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(cancelou, 0);
    Tecla(Qt::Key_Escape);
    EXPECT_EQ(cancelou, 1);
}

TEST_F(TSelectFrTest, EnterOnTheOpenListChoosesItsRow)
{
    Mostrar();
    Digitar("ca");
    Tecla(Qt::Key_Down);
    aoEnviar = [this] {
        EXPECT_TRUE(fr->isHidden()) << "hidden first";
        EXPECT_TRUE(fr->Processando);
    };
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>{55});
    EXPECT_FALSE(fr->Processando);
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_EQ(busca->GetText(), QStringLiteral("ca"));
}

TEST_F(TSelectFrTest, EnterOnAnEmptyEditOpensTheListAndOnAHiddenOneOfTextDoesNothing)
{
    Mostrar();
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(enviados, QList<int>());
    Digitar("ca");
    Tecla(Qt::Key_Escape);
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(enviados, QList<int>());
}

TEST_F(TSelectFrTest, EnterOnAListWithoutRowsDoesNothing)
{
    Mostrar();
    Digitar("ca");
    ClicarNo(fr->FilRadioButton);
    Digitar("xyz");
    EXPECT_EQ(Cds()->RecordCount(), 0);
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(enviados, QList<int>());
    EXPECT_FALSE(fr->Processando);
}

TEST_F(TSelectFrTest, ADescendantMayRefuseTheChoiceInSilence)
{
    Mostrar();
    Digitar("ca");
    fr->pode = false;
    Tecla(Qt::Key_Return);
    EXPECT_EQ(fr->perguntas, 1);
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(enviados, QList<int>());
    fr->pode = true;
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados.size(), 1);
}

TEST_F(TSelectFrTest, AnEnterInsideAnEnterDoesNothing)
{
    Mostrar();
    Digitar("123");
    aoEnviar = [this] { Tecla(Qt::Key_Return); };
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>{123});
    EXPECT_FALSE(fr->Processando);
    aoEnviar = nullptr;
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados.size(), 2) << "the guard is gone with the Enter that set it";
}

TEST_F(TSelectFrTest, AChoiceThatFailsIsReportedAndTheNextEnterWorks)
{
    Mostrar();
    Digitar("123");
    aoEnviar = [] { throw EErro(QStringLiteral("não deu")); };
    Tecla(Qt::Key_Return);
    EXPECT_EQ(std::exchange(erros, {}), L("não deu"));
    EXPECT_FALSE(fr->Processando);
    aoEnviar = nullptr;
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados.size(), 2);
}

TEST_F(TSelectFrTest, TheChosenNameWrittenIntoTheEditSearchesNothing)
{
    Mostrar();
    Digitar("lapis");
    aoEnviar = [this] {
        busca->SetText(QStringLiteral("Abajur"));
        EXPECT_EQ(fr->Cod(), 3) << "the row chosen stays the current one";
    };
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, QList<int>{3});
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(busca->GetText(), QStringLiteral("Abajur"));
    Tecla(Qt::Key_Backspace);
    EXPECT_TRUE(Aberta()) << "the user's next key searches again";
    EXPECT_EQ(fr->Cod(), 12);
}

TEST_F(TSelectFrTest, FilteringShowsTheMatchingRowsAndTheEmptyTextAllOfThem)
{
    Mostrar();
    Digitar("de");
    ClicarNo(fr->FilRadioButton);
    EXPECT_EQ(Descricoes(), L("ábaco de madeira|Cabo de rede|Caderno|Régua de 30 cm"));
    EXPECT_EQ(QApplication::focusWidget(), busca);
    Digitar(" r");
    EXPECT_EQ(Descricoes(), L("Cabo de rede"));
    EXPECT_EQ(fr->Cod(), 1234);
    busca->Clear();
    EXPECT_EQ(Cds()->RecordCount(), int(std::size(Produtos)));
    EXPECT_FALSE(Cds()->GetFiltered());
    Digitar("a");
    EXPECT_TRUE(Cds()->GetFiltered());
    ClicarNo(fr->PosRadioButton);
    EXPECT_FALSE(Cds()->GetFiltered());
    EXPECT_EQ(Cds()->RecordCount(), int(std::size(Produtos)));
    EXPECT_EQ(fr->Descr(), QStringLiteral("ábaco de madeira"));
    EXPECT_EQ(QApplication::focusWidget(), busca);
}

TEST_F(TSelectFrTest, ChangingTheModeAppliesTheTextAgainWithTheListHiddenToo)
{
    Mostrar();
    Digitar("caf");
    Tecla(Qt::Key_Escape);
    abaixo->setFocus();
    fr->buscas.clear();
    fr->FilRadioButton->SetChecked(true);
    EXPECT_EQ(fr->buscas, L("filtrar texto caf"));
    EXPECT_EQ(QApplication::focusWidget(), abaixo) << "a hidden list takes no focus";
    fr->PosRadioButton->SetChecked(true);
    EXPECT_EQ(fr->buscas, L("filtrar texto caf|posicionar texto caf"));
}

TEST_F(TSelectFrTest, ModesHaveTheirLettersAndAClickOnTheCheckedOneGivesTheFocusBack)
{
    Mostrar();
    Digitar("ca");
    ClicarNo(fr->PosRadioButton);
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_TRUE(Aberta());
    Tecla(Qt::Key_F, Qt::AltModifier);
    Girar(200); // the button shows itself pressed for a moment
    EXPECT_TRUE(fr->FilRadioButton->GetChecked());
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_TRUE(Aberta());
}

TEST_F(TSelectFrTest, AccentsDoNotCount)
{
    Mostrar();
    Digitar("ábaco");
    EXPECT_EQ(busca->GetText(), QStringLiteral("abaco")) << "typed without";
    EXPECT_EQ(fr->Cod(), 7);
    busca->SetText(QStringLiteral("LÁPIS"));
    EXPECT_EQ(fr->Cod(), 3) << "a text that comes otherwise keeps them and finds the row too";
    ClicarNo(fr->FilRadioButton);
    busca->SetText(QStringLiteral("acucar"));
    EXPECT_EQ(Descricoes(), L("Açúcar"));
}

TEST_F(TSelectFrTest, AClickInTheListSelectsItsRowAndTheEditKeepsTheFocus)
{
    Mostrar();
    Digitar("c");
    int saidas = 0;
    const QObject ouvinte;
    QObject::connect(qApp, &QApplication::focusChanged, &ouvinte, [&] { ++saidas; });
    ClicarNaLinha(2);
    EXPECT_EQ(Cds()->RecNo(), 2);
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_EQ(saidas, 0) << "the screen's exit events do not run";
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(busca->GetText(), QStringLiteral("c"));
    QTest::mouseClick(fr->BasePanel, Qt::LeftButton, {}, QPoint(fr->BasePanel->width() - 5, 5));
    QTest::mouseClick(fr->DBGrid1->verticalScrollBar(), Qt::LeftButton);
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_TRUE(Aberta());
}

TEST_F(TSelectFrTest, TheGridNeverKeepsTheFocus)
{
    Mostrar();
    Digitar("c");
    fr->DBGrid1->setFocus();
    EXPECT_EQ(QApplication::focusWidget(), busca);
    EXPECT_TRUE(Aberta());
    Girar();
    abaixo->setFocus();
    fr->Exibir(); // by the program
    ClicarNaLinha(3);
    EXPECT_EQ(QApplication::focusWidget(), busca) << "also when it was elsewhere";
    EXPECT_EQ(Cds()->RecNo(), 3);
}

TEST_F(TSelectFrTest, TabNeverStopsAtTheGrid)
{
    Mostrar();
    Digitar("c");
    for (int i = 0; i < 6; ++i) {
        Tecla(Qt::Key_Tab);
        EXPECT_NE(QApplication::focusWidget(), fr->DBGrid1) << i;
    }
}

TEST_F(TSelectFrTest, LeavingTheEditHidesTheList)
{
    Mostrar();
    Digitar("ca");
    Tecla(Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), abaixo);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(busca->GetText(), QStringLiteral("ca"));
    EXPECT_EQ(enviados, QList<int>());
    busca->setFocus();
    EXPECT_FALSE(Aberta());
    Tecla(Qt::Key_Down);
    EXPECT_TRUE(Aberta());
    fr->FilRadioButton->setFocus();
    EXPECT_TRUE(Aberta()) << "the list's own buttons are no leaving";
    abaixo->setFocus();
    EXPECT_FALSE(Aberta());
}

TEST_F(TSelectFrTest, ADoubleClickOnARowChoosesIt)
{
    Mostrar();
    Digitar("c");
    const QPoint onde = fr->DBGrid1->CellRect(1, 4).center();
    QTest::mouseDClick(fr->DBGrid1->viewport(), Qt::LeftButton, {}, onde);
    EXPECT_EQ(enviados.size(), 1);
    EXPECT_EQ(Cds()->RecNo(), 4);
    EXPECT_EQ(enviados.value(0), fr->Cod());
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(QApplication::focusWidget(), busca);
}

TEST_F(TSelectFrTest, ADoubleClickOnATitleChoosesNothing)
{
    Mostrar();
    Digitar("c");
    QTest::mouseDClick(fr->DBGrid1->viewport(), Qt::LeftButton, {},
                       fr->DBGrid1->CellRect(1, 0).center());
    EXPECT_EQ(enviados, QList<int>());
    EXPECT_TRUE(Aberta());
}

TEST_F(TSelectFrTest, AClickInTheEditOpensTheListUnlessItIsReadOnly)
{
    Mostrar();
    busca->setReadOnly(true);
    QTest::mouseClick(busca, Qt::LeftButton);
    EXPECT_FALSE(Aberta());
    busca->setReadOnly(false);
    QTest::mouseClick(busca, Qt::LeftButton);
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(Cds()->RecNo(), 1);
}

TEST_F(TSelectFrTest, ATitleSortsTheListAndItsArrowFollows)
{
    Mostrar();
    Digitar("lapis");
    QStringList ordenadas = Descricoes();
    EXPECT_EQ(ordenadas.mid(0, 5), L("ábaco de madeira|Abajur|Açúcar|Agenda|Água mineral"));
    const auto clicar = [&](int col) {
        QTest::mouseClick(fr->DBGrid1->viewport(), Qt::LeftButton, {},
                          fr->DBGrid1->CellRect(col, 0).center());
    };
    EXPECT_EQ(fr->ClientManager1->Ordem().Campo, QStringLiteral("descr"));
    clicar(1);
    EXPECT_FALSE(fr->ClientManager1->Ordem().Ascendente);
    std::reverse(ordenadas.begin(), ordenadas.end());
    EXPECT_EQ(Descricoes(), ordenadas);
    clicar(0);
    EXPECT_EQ(fr->ClientManager1->Ordem().Campo, QStringLiteral("cod"));
    EXPECT_TRUE(fr->ClientManager1->Ordem().Ascendente);
    EXPECT_EQ(fr->DBGrid1->GetCell(0, 1), QStringLiteral("000003"));
    EXPECT_EQ(fr->Cod(), 3) << "the current row stays";
    EXPECT_EQ(QApplication::focusWidget(), busca);
    Digitar("e"); // "lapise"
    EXPECT_EQ(fr->Cod(), 4);
    busca->SetText(QStringLiteral("ca"));
    EXPECT_EQ(fr->Cod(), 10) << "the first match in the order shown";
}

TEST_F(TSelectFrTest, TheArrowIsThatOfTheFramesOwnPictures)
{
    QPixmap sobe(8, 8), desce(8, 8);
    sobe.fill(Qt::red);
    desce.fill(Qt::green);
    fr->ImageList8x8->SetIcon(8, QIcon(sobe));
    fr->ImageList8x8->SetIcon(9, QIcon(desce));
    Mostrar();
    Digitar("c");
    const auto seta = [&](int col) {
        const QRect titulo = fr->DBGrid1->CellRect(col, 0);
        const QImage foto = fr->DBGrid1->viewport()->grab().toImage();
        return foto.pixelColor(titulo.right() + 1 - 11 + 2, 3);
    };
    EXPECT_EQ(seta(1), QColor(Qt::red));
    EXPECT_NE(seta(0), QColor(Qt::red));
    QTest::mouseClick(fr->DBGrid1->viewport(), Qt::LeftButton, {},
                      fr->DBGrid1->CellRect(1, 0).center());
    EXPECT_EQ(seta(1), QColor(Qt::green));
}

TEST_F(TSelectFrTest, WhereAskedNotToATextDoesNotShowTheList)
{
    fr->ExibirAoDigitar = false;
    Mostrar();
    Digitar("ca");
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(fr->leituras, 0);
    EXPECT_EQ(fr->buscas, QStringList()) << "there is no dataset to search in";
    Tecla(Qt::Key_Down);
    EXPECT_TRUE(Aberta());
    Digitar("n");
    EXPECT_EQ(fr->Cod(), 10);
}

TEST_F(TSelectFrTest, TheListIsLoadedOnceAndReadAgainOnlyWhenItIsOutOfDate)
{
    Mostrar();
    Digitar("lapis");
    for (int i = 0; i < 3; ++i) {
        Tecla(Qt::Key_Escape);
        Tecla(Qt::Key_Down);
    }
    EXPECT_EQ(fr->leituras, 1);
    fr->ClientManager1->Invalidar();
    EXPECT_EQ(fr->leituras, 1) << "not while nobody looks";
    Tecla(Qt::Key_Escape);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(fr->leituras, 2);
    EXPECT_EQ(Cds()->RecordCount(), int(std::size(Produtos)));
    EXPECT_EQ(fr->Cod(), 3) << "on the row where it was";
    Tecla(Qt::Key_Escape);
    fr->ClientManager1->Invalidar();
    busca->SetText(QStringLiteral("12"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(fr->leituras, 3) << "a code is looked for in rows of today";
    EXPECT_EQ(enviados, QList<int>{12});
}

TEST_F(TSelectFrTest, AListThatCannotBeLoadedIsHiddenAndTheNextKeyTriesAgain)
{
    Mostrar();
    fr->falha = true;
    Digitar("c");
    EXPECT_FALSE(Aberta());
    EXPECT_FALSE(fr->Carregado);
    EXPECT_EQ(busca->GetText(), QStringLiteral("c"));
    EXPECT_EQ(std::exchange(erros, {}), L("sem conexão"));
    fr->falha = false;
    Digitar("a");
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(fr->leituras, 2);
    EXPECT_EQ(fr->pos(), QPoint(20, 52));
    EXPECT_EQ(fr->Descr(), QStringLiteral("Cabo de rede"));
}

TEST_F(TSelectFrTest, TheTimerSettlesAfterEveryOpeningAndScroll)
{
    Mostrar();
    Digitar("c");
    EXPECT_TRUE(fr->ScrolllTimer->isActive());
    Tecla(Qt::Key_Down);
    QTest::qWait(200);
    Tecla(Qt::Key_Down);
    EXPECT_GT(fr->ScrolllTimer->remainingTime(), 250) << "a scroll starts it anew";
    QTest::qWait(200);
    EXPECT_TRUE(fr->ScrolllTimer->isActive());
    QTest::qWait(200);
    EXPECT_FALSE(fr->ScrolllTimer->isActive()) << "one tick";
}

TEST_F(TSelectFrTest, EventsRestWhileTheListIsRead)
{
    Mostrar();
    fr->Exibir();
    EXPECT_EQ(fr->eventos, L("abriu")) << "not once for every row";
    Tecla(Qt::Key_Down);
    EXPECT_EQ(fr->eventos, L("abriu|vai|rolou"));
    fr->ClientManager1ListUpDate(fr->ClientManager1);
    Cds()->First();
    EXPECT_EQ(fr->eventos.size(), 3) << "detached";
}

TEST_F(TSelectFrTest, AFrameWithoutFieldsShowsAnEmptyList)
{
    TSelectFr *vazio = Criar<TSelectFr>(&tela);
    vazio->LarguraTela = false;
    int enviou = 0;
    vazio->OnEnviar = [&](QObject *) { ++enviou; };
    vazio->PegarBuscaLabeledEdit(busca);
    Mostrar();
    Digitar("ca");
    EXPECT_TRUE(vazio->isVisible());
    EXPECT_FALSE(Aberta()) << "the edit serves the latest list alone";
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_PageDown);
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(vazio->isVisible());
    QTest::mouseClick(vazio->DBGrid1->viewport(), Qt::LeftButton, {}, QPoint(20, 30));
    busca->Clear();
    vazio->FilRadioButton->SetChecked(true);
    busca->SetText(QStringLiteral("12"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviou, 0);
}

TEST_F(TSelectFrTest, WithoutAnEditItShowsAndSearchesForTheProgram)
{
    TListaFr *so = Criar<TListaFr>(&tela);
    Mostrar();
    EXPECT_TRUE(so->Exibir());
    EXPECT_FALSE(so->Exibir());
    so->Posicionar(QStringLiteral("tes"));
    EXPECT_EQ(so->Cod(), 9);
    so->FilRadioButton->SetChecked(true);
    so->Buscar(QStringLiteral("tes"));
    EXPECT_EQ(so->ClientManager1->CDS1->RecordCount(), 1);
    so->Filtrar(QString());
    EXPECT_EQ(so->ClientManager1->CDS1->RecordCount(), int(std::size(Produtos)));
}

TEST_F(TSelectFrTest, AnotherEditMayTakeTheListOverAndTheFirstOneLetsGo)
{
    auto *outra = new TLabeledEdit(&tela);
    outra->setGeometry(300, 30, 100, 21);
    fr->PegarBuscaLabeledEdit(outra);
    fr->PegarBuscaLabeledEdit(outra);
    Mostrar();
    Digitar("c");
    Tecla(Qt::Key_Down);
    Tecla(Qt::Key_Return);
    EXPECT_FALSE(Aberta());
    EXPECT_EQ(fr->leituras, 0);
    outra->setFocus();
    Digitar("c");
    EXPECT_TRUE(Aberta());
    EXPECT_EQ(fr->x(), 300);
    Tecla(Qt::Key_Down);
    EXPECT_EQ(fr->Descr(), QStringLiteral("Caderno")) << "one row for one key";
}

TEST_F(TSelectFrTest, PartsMayGoFirstInAnyOrder)
{
    enum TParte { Edit, Dataset, Frame, Form };
    QList<TParte> ordem = {Edit, Dataset, Frame, Form};
    do {
        auto janela = std::make_unique<QWidget>();
        janela->resize(500, 400);
        const QPointer<TLabeledEdit> edit = new TLabeledEdit(janela.get());
        edit->setGeometry(10, 20, 100, 21);
        const QPointer<TListaFr> lista = Criar<TListaFr>(janela.get());
        lista->PegarBuscaLabeledEdit(edit);
        janela->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela.get()));
        edit->setFocus();
        Digitar("c");
        ASSERT_TRUE(lista->isVisible());
        const QPointer<TClientDataSet> cds = lista->ClientManager1->CDS1;
        for (const TParte parte : ordem) {
            if (parte == Edit)
                delete edit;
            else if (parte == Dataset)
                delete cds;
            else if (parte == Frame)
                delete lista;
            else
                janela.reset();
            if (edit) {
                edit->setFocus();
                Digitar("a");
                Tecla(Qt::Key_Down);
                Tecla(Qt::Key_Escape);
                Tecla(Qt::Key_Return);
                QTest::mouseClick(edit, Qt::LeftButton);
            }
            if (parte == Edit && lista) {
                EXPECT_FALSE(lista->isVisible()) << "nobody could hide it any more";
            }
            if (lista) {
                lista->Exibir();
                lista->Buscar(QStringLiteral("ca"));
                lista->FilRadioButton->SetChecked(true);
                QTest::mouseClick(lista->DBGrid1->viewport(), Qt::LeftButton, {}, QPoint(30, 30));
                lista->grab();
            }
            Girar();
        }
        EXPECT_FALSE(edit || cds || lista);
    } while (std::next_permutation(ordem.begin(), ordem.end()));
}

TEST_F(TSelectFrTest, AFormMayGoInTheMiddleOfAKey)
{
    for (const bool tarde : {false, true}) {
        auto *janela = new QWidget;
        auto *edit = new TLabeledEdit(janela);
        QPointer<TListaFr> lista = Criar<TListaFr>(janela);
        lista->PegarBuscaLabeledEdit(edit);
        janela->show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(janela));
        edit->setFocus();
        Digitar("ca");
        lista->OnEnviar = [&](QObject *) {
            if (tarde)
                janela->deleteLater();
            else
                delete janela;
        };
        QTest::mouseDClick(lista->DBGrid1->viewport(), Qt::LeftButton, {},
                           lista->DBGrid1->CellRect(1, 2).center());
        Girar();
        EXPECT_TRUE(lista.isNull());
    }
    // By Enter, the list alone.
    Mostrar();
    Digitar("ca");
    const QPointer<TListaFr> vivo(fr);
    fr->OnEnviar = [&](QObject *) { delete fr; };
    Tecla(Qt::Key_Return);
    EXPECT_TRUE(vivo.isNull());
    Digitar("b");
    EXPECT_EQ(busca->GetText(), QStringLiteral("cab"));
}

TEST_F(TSelectFrTest, RowsOfAQueryAreFoundByCodeOrText)
{
    TBancoTemp banco(
        QStringLiteral("create table produtos (cod integer not null primary key, descr "
                       "varchar(60), preco numeric(15,2), obs varchar(10));"));
    for (const TProduto &p : Produtos)
        banco.Executar(QStringLiteral("insert into produtos values (%1, '%2', %3, 'x')")
                           .arg(p.cod)
                           .arg(QString::fromUtf8(p.descr))
                           .arg(p.preco));
    TSQLQuery query;
    query.SetSQLConnection(&banco.Conexao());
    query.SetSQL(QStringLiteral("select descr, obs, cod, preco from produtos"));
    fr->Ler = [&](TClientDataSet &) {
        query.Close();
        query.Open();
        fr->ClientManager1->CopiarDe(query);
    };
    Mostrar();
    Digitar("abaj");
    EXPECT_EQ(Cds()->RecordCount(), int(std::size(Produtos)));
    EXPECT_EQ(fr->DBGrid1->GetCell(2, fr->DBGrid1->GetRow()), QStringLiteral("99,90"));
    Tecla(Qt::Key_Return);
    busca->SetText(QStringLiteral("123"));
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados, (QList<int>{12, 123}));
    banco.Executar(QStringLiteral("insert into produtos values (900, 'Abajur novo', 1, null)"));
    fr->ClientManager1->Invalidar();
    busca->Clear();
    Digitar("abajur n");
    Tecla(Qt::Key_Return);
    EXPECT_EQ(enviados.last(), 900);
}
