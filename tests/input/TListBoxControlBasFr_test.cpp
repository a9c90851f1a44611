#include "input/UListBoxControlBasFr.h"
#include "platform/toolkit/TListBox.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QLabel>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TListBoxControlBasFr
{
    Q_OBJECT
public:
    using TListBoxControlBasFr::TListBoxControlBasFr;
    void Atualizar() override
    {
        TListBoxControlBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0, cliques = 0;

protected:
    void ListBox1Click(QObject *sender) override
    {
        EXPECT_EQ(sender, ListBox1);
        ++cliques;
        TListBoxControlBasFr::ListBox1Click(sender);
    }
};

class TListBoxControlBasFrTest : public TEntradaTest
{
protected:
    TContadoFr *Preso()
    {
        AbrirTabela({QStringLiteral("1, 'um\r\ndois\r\ntrês', 0, 0, '', ''"),
                     QStringLiteral("2, '', 0, 0, '', ''")});
        auto *fr = Mostrado<TContadoFr>();
        Prender(fr, "descr", QStringLiteral("Linhas"));
        QCoreApplication::processEvents();
        return fr;
    }
    static void Clicar(TListBoxControlBasFr *fr, int i)
    {
        const QRect linha = fr->ListBox1->visualItemRect(fr->ListBox1->item(i));
        QTest::mouseClick(fr->ListBox1->viewport(), Qt::LeftButton, {}, linha.center());
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(TListBoxControlBasFrTest, Layout)
{
    auto *fr = Por<TListBoxControlBasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TListBoxControlBasFr")));
    EXPECT_EQ(fr->size(), QSize(164, 119));
    EXPECT_EQ(fr->ListBox1->GetItemHeight(), 13);
    EXPECT_EQ(fr->GetTitulo(), QStringLiteral("TitLabel"));
    EXPECT_EQ(fr->TitLabel->buddy(), fr->ListBox1);
}

TEST_F(TListBoxControlBasFrTest, TheListFillsTheFrameBelowItsCaption)
{
    auto *fr = Mostrado<TListBoxControlBasFr>();
    fr->resize(200, 80);
    QCoreApplication::processEvents();
    EXPECT_EQ(fr->TitLabel->geometry().topLeft(), QPoint(0, 0));
    EXPECT_EQ(fr->TitLabel->width(), 200);
    EXPECT_EQ(fr->ListBox1->geometry(),
              QRect(0, fr->TitLabel->height(), 200, 80 - fr->TitLabel->height()));
}

TEST_F(TListBoxControlBasFrTest, TheValueIsAllTheLinesAsOneTextTrimmedAtTheEnds)
{
    auto *fr = Por<TListBoxControlBasFr>();
    EXPECT_EQ(fr->GetValor(), Variant(u""));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    fr->SetValor(u"  um \r\n O'Brien\ntrês  ");
    ASSERT_EQ(fr->ListBox1->Count(), 3);
    EXPECT_EQ(fr->ListBox1->Item(0), QStringLiteral("  um "));
    EXPECT_EQ(fr->ListBox1->Item(1), QStringLiteral(" O'Brien"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("um \r\n O'Brien\r\ntrês"));
    EXPECT_EQ(fr->GetValor(), Variant(fr->AsString()));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'um \r\n O''Brien\r\ntrês'"));
}

TEST_F(TListBoxControlBasFrTest, NullAndZerarEmptyTheList)
{
    auto *fr = Por<TListBoxControlBasFr>();
    fr->SetValor(u"um\r\ndois");
    fr->SetValor(Null);
    EXPECT_EQ(fr->ListBox1->Count(), 0);
    fr->SetValor(u"um\r\ndois");
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->ListBox1->Count(), 0);
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
}

TEST_F(TListBoxControlBasFrTest, EnteringSelectsTheFirstLineWhereNoneIs)
{
    auto *fr = Preso();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->ListBox1);
    EXPECT_EQ(fr->ListBox1->GetItemIndex(), 0);
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(fr->cliques, 0);
    fr->ListBox1->SetItemIndex(2);
    antes->setFocus();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(fr->ListBox1->GetItemIndex(), 2);
    tabela->Next();
    antes->setFocus();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(fr->ListBox1->GetItemIndex(), -1);
}

TEST_F(TListBoxControlBasFrTest, SetFocusReachesTheListOnlyWhenItCanBeSeen)
{
    auto *fr = Preso();
    fr->SetFocus();
    EXPECT_EQ(Foco(), fr->ListBox1);
    antes->setFocus();
    fr->ListBox1->hide();
    fr->SetFocus();
    EXPECT_EQ(Foco(), fr);
}

TEST_F(TListBoxControlBasFrTest, AClickRefreshesTheFrameAndStartsAnAlteration)
{
    auto *fr = Preso();
    fr->SetFocus();
    const int antesDoClique = fr->atualizacoes;
    Clicar(fr, 1);
    EXPECT_EQ(fr->cliques, 1);
    EXPECT_EQ(fr->atualizacoes, antesDoClique + 1);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->ListBox1->GetItemIndex(), 1);
}

TEST_F(TListBoxControlBasFrTest, AnArrowKeyCountsAsAClick)
{
    auto *fr = Preso();
    fr->SetFocus();
    Teclar(Foco(), Qt::Key_Down);
    EXPECT_EQ(fr->cliques, 1);
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TListBoxControlBasFrTest, TheProgramNeverStartsAnAlteration)
{
    auto *fr = Preso();
    EXPECT_EQ(fr->ListBox1->Count(), 3);
    tabela->Next();
    EXPECT_EQ(fr->ListBox1->Count(), 0);
    tabela->Prior();
    fr->ListBox1->SetItemIndex(1);
    fr->Zerar();
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(fr->cliques, 0);
}

TEST_F(TListBoxControlBasFrTest, TheReferencePhraseIsTheInheritedOne)
{
    auto *fr = Preso();
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Linhas:  [Tab]Avançar"));
}

TEST_F(TListBoxControlBasFrTest, HostileTextsSurviveTheRoundTripThroughTheDatabase)
{
    AbrirTabela();
    auto *fr = Por<TListBoxControlBasFr>();
    for (const QString &texto : TextosHostis()) {
        fr->SetValor(texto);
        banco->Executar(QStringLiteral("update testes set descr=") + fr->SQLString());
        EXPECT_EQ(banco->Valor(QStringLiteral("select descr from testes")), Variant(texto));
    }
}

TEST_F(TListBoxControlBasFrTest, AFrameDestroyedByItsOwnAlterationGoesQuietly)
{
    auto *fr = Preso();
    const QPointer<TContadoFr> vivo = fr;
    tela.antesDeAtivar = [&] { fr->deleteLater(); };
    Clicar(fr, 1);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vivo.isNull(); }, 1000));
}

#include "TListBoxControlBasFr_test.moc"
