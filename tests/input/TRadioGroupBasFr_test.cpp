#include "input/URadioGroupBasFr.h"
#include "platform/toolkit/TRadioGroup.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QRadioButton>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TRadioGroupBasFr
{
    Q_OBJECT
public:
    using TRadioGroupBasFr::TRadioGroupBasFr;
    int cliques = 0, entradas = 0;

protected:
    void RadioGroup1Click(QObject *sender) override
    {
        EXPECT_EQ(sender, RadioGroup1);
        ++cliques;
        TRadioGroupBasFr::RadioGroup1Click(sender);
    }
    void FrameEnter(QObject *sender) override
    {
        ++entradas;
        TRadioGroupBasFr::FrameEnter(sender);
    }
};

/** As a screen's layout would do: the options are there before the frame's own steps. */
class TComOpcoesFr : public TRadioGroupBasFr
{
    Q_OBJECT
public:
    using TRadioGroupBasFr::TRadioGroupBasFr;
    void Preparar() override
    {
        RadioGroup1->SetItems(
            {QStringLiteral("um"), QStringLiteral("dois"), QStringLiteral("três")});
        RadioGroup1->SetItemIndex(2);
        for (int i = 0; i < 3; ++i) {
            RadioGroup1->SetObjeto(i, 40 + i);
            RadioGroup1->SetControle(i, this);
        }
    }
};

class TRadioGroupBasFrTest : public TEntradaTest
{
protected:
    template <typename T = TContadoFr>
    T *ComTres()
    {
        T *fr = Por<T>();
        fr->RadioGroup1->SetItems(
            {QStringLiteral("um"), QStringLiteral("dois"), QStringLiteral("três")});
        fr->RadioGroup1->SetItemIndex(0);
        Mostrar();
        return fr;
    }
    static void Clicar(TRadioGroupBasFr *fr, int i)
    {
        QTest::mouseClick(fr->RadioGroup1->Botao(i), Qt::LeftButton, {}, QPoint(8, 8));
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(TRadioGroupBasFrTest, Layout)
{
    auto *fr = Por<TRadioGroupBasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TRadioGroupBasFr")));
    EXPECT_EQ(fr->size(), QSize(219, 159));
    EXPECT_EQ(fr->GetTitulo(), QStringLiteral("RadioGroup1"));
}

TEST_F(TRadioGroupBasFrTest, TheGroupFillsTheFrame)
{
    auto *fr = Mostrado<TRadioGroupBasFr>();
    fr->resize(300, 90);
    QCoreApplication::processEvents();
    EXPECT_EQ(fr->RadioGroup1->geometry(), QRect(0, 0, 300, 90));
}

TEST_F(TRadioGroupBasFrTest, CreationSelectsTheFirstOptionAndClearsWhatTheOptionsCarry)
{
    auto *fr = Por<TComOpcoesFr>();
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(fr->RadioGroup1->GetObjeto(i), 0);
        EXPECT_EQ(fr->RadioGroup1->GetControle(i), nullptr);
    }
    EXPECT_FALSE(fr->ControlesPorItem);
    EXPECT_EQ(fr->GetValor(), Variant(0));
    EXPECT_EQ(fr->AsString(), QString());
}

TEST_F(TRadioGroupBasFrTest, SelecionadaIsTheTextOfTheSelectedOption)
{
    auto *fr = ComTres();
    EXPECT_EQ(fr->Selecionada(), QStringLiteral("um"));
    fr->RadioGroup1->SetItemIndex(2);
    EXPECT_EQ(fr->Selecionada(), QStringLiteral("três"));
    fr->RadioGroup1->SetItemIndex(-1);
    EXPECT_EQ(fr->Selecionada(), QString());
}

TEST_F(TRadioGroupBasFrTest, SelectingFromTheProgramHasTheEffectOfAClickButStartsNoAlteration)
{
    AbrirTabela();
    auto *fr = ComTres();
    Prender(fr, "quant", QStringLiteral("Tipo"));
    fr->cliques = 0;
    fr->RadioGroup1->SetItemIndex(1);
    EXPECT_EQ(fr->cliques, 1);
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TRadioGroupBasFrTest, AClickOnAnOptionStartsAnAlterationBeforeTheSelectionMoves)
{
    AbrirTabela();
    auto *fr = ComTres();
    Prender(fr, "quant", QStringLiteral("Tipo"));
    int naHora = -2;
    tela.antesDeAtivar = [&] { naHora = fr->RadioGroup1->GetItemIndex(); };
    Clicar(fr, 1);
    EXPECT_EQ(naHora, 0);
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 1);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TRadioGroupBasFrTest, AnArrowKeyStartsAnAlterationToo)
{
    AbrirTabela();
    auto *fr = ComTres();
    Prender(fr, "quant", QStringLiteral("Tipo"));
    fr->SetFocus();
    ASSERT_EQ(Foco(), fr->RadioGroup1->Botao(0));
    Teclar(Foco(), Qt::Key_Down);
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 1);
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TRadioGroupBasFrTest, OptionsThatComeLaterCountToo)
{
    AbrirTabela();
    auto *fr = ComTres();
    Prender(fr, "quant", QStringLiteral("Tipo"));
    fr->RadioGroup1->AddItem(QStringLiteral("quatro"));
    QCoreApplication::processEvents();
    Clicar(fr, 3);
    EXPECT_EQ(fr->Selecionada(), QStringLiteral("quatro"));
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TRadioGroupBasFrTest, TabEntersAtTheSelectedOptionAndTheFrameIsRefreshed)
{
    auto *fr = ComTres();
    fr->RadioGroup1->SetItemIndex(2);
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->RadioGroup1->Botao(2));
    EXPECT_EQ(fr->entradas, 1);
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TRadioGroupBasFrTest, OptionsThatTheScreenBringsLateKeepThePlaceOfTheFrameInTheTabOrder)
{
    auto *fr = Mostrado<TContadoFr>();
    fr->RadioGroup1->SetItems({QStringLiteral("um"), QStringLiteral("dois")});
    fr->RadioGroup1->SetItemIndex(1);
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->RadioGroup1->Botao(1));
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    Teclar(Foco(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Foco(), fr->RadioGroup1->Botao(1));
    Teclar(Foco(), Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(Foco(), antes);
}

TEST_F(TRadioGroupBasFrTest, TheControlOfTheSelectedOptionIsShownAndTheOthersHidden)
{
    auto *fr = ComTres();
    QLabel *primeiro = new QLabel(&tela), *segundo = new QLabel(&tela);
    fr->RadioGroup1->SetControle(0, primeiro);
    fr->RadioGroup1->SetControle(1, segundo);
    primeiro->show();
    segundo->show();
    fr->SetValor(Null);
    EXPECT_TRUE(segundo->isVisible()) << "the switch is off";

    ASSERT_TRUE(fr->setProperty("ControlesPorItem", true));
    fr->SetValor(Null);
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
    EXPECT_TRUE(primeiro->isVisible());
    EXPECT_FALSE(segundo->isVisible());
    Clicar(fr, 1);
    EXPECT_FALSE(primeiro->isVisible());
    EXPECT_TRUE(segundo->isVisible());
    fr->RadioGroup1->SetItemIndex(2);
    EXPECT_FALSE(segundo->isVisible());
    fr->RadioGroup1->SetItemIndex(1);
    fr->RadioGroup1->SetItemIndex(-1);
    fr->SetValor(Null);
    EXPECT_FALSE(segundo->isVisible());
}

TEST_F(TRadioGroupBasFrTest, OneControlOfTwoOptionsStaysShownWithoutFlicker)
{
    auto *fr = ComTres();
    auto *comum = new QLabel(&tela);
    comum->show();
    fr->RadioGroup1->SetControle(0, comum);
    fr->RadioGroup1->SetControle(1, comum);
    fr->ControlesPorItem = true;
    int escondidas = 0;
    struct TFiltro : QObject {
        int *n;
        bool eventFilter(QObject *, QEvent *e) override
        {
            *n += e->type() == QEvent::Hide;
            return false;
        }
    } filtro;
    filtro.n = &escondidas;
    comum->installEventFilter(&filtro);
    Clicar(fr, 1);
    EXPECT_TRUE(comum->isVisible());
    EXPECT_EQ(escondidas, 0);
    comum->removeEventFilter(&filtro);
}

TEST_F(TRadioGroupBasFrTest, AControlThatWasDestroyedIsPassedOver)
{
    auto *fr = ComTres();
    auto *controle = new QLabel(&tela);
    fr->RadioGroup1->SetControle(1, controle);
    fr->ControlesPorItem = true;
    delete controle;
    Clicar(fr, 1);
    EXPECT_EQ(fr->Selecionada(), QStringLiteral("dois"));
}

TEST_F(TRadioGroupBasFrTest, AFrameDestroyedByItsOwnAlterationGoesQuietly)
{
    AbrirTabela();
    auto *fr = ComTres();
    Prender(fr, "quant", QStringLiteral("Tipo"));
    const QPointer<TContadoFr> vivo = fr;
    tela.antesDeAtivar = [&] { delete fr; };
    QTest::mousePress(fr->RadioGroup1->Botao(1), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(vivo.isNull());
}

#include "TRadioGroupBasFr_test.moc"
