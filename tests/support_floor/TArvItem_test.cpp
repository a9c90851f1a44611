#include "platform/support/TArvItem.h"

#include "platform/core/Erros.h"

#include <QElapsedTimer>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

TArvItem *Novo(TArvItem *pai)
{
    return pai->AddFilho(std::make_unique<TArvItem>());
}

/** What NLins should say, counted the plain way. */
int Contadas(const TArvItem &item)
{
    int n = 0;
    for (int i = 0; item.GetExpandido() && i < item.NFilhos(); ++i)
        n += 1 + Contadas(*item.GetFilhos(i));
    return n;
}

} // namespace

TEST(TArvItem, ChildrenAreOwnedInTheOrderInWhichTheyWereAdded)
{
    TArvItem raiz;
    EXPECT_EQ(raiz.NFilhos(), 0);
    TArvItem *a = Novo(&raiz), *b = Novo(&raiz);
    EXPECT_EQ(raiz.NFilhos(), 2);
    EXPECT_EQ(raiz.GetFilhos(0), a);
    EXPECT_EQ(raiz.GetFilhos(1), b);
    EXPECT_EQ(raiz.GetFilhos(2), nullptr);
    EXPECT_EQ(raiz.GetFilhos(-1), nullptr);
    EXPECT_EQ(b->GetPai(), &raiz);
    EXPECT_EQ(raiz.GetPai(), nullptr);
    raiz.LimparFilhos();
    EXPECT_EQ(raiz.NFilhos(), 0);
    EXPECT_EQ(raiz.GetFilhos(0), nullptr);
    EXPECT_THROW(raiz.AddFilho(std::unique_ptr<TArvItem>()), EErro);
}

TEST(TArvItem, TheLevelCountsFromTheRootAlsoOfWhatIsPutInTogether)
{
    TArvItem raiz;
    EXPECT_EQ(raiz.GetNivel(), 0);
    EXPECT_EQ(Novo(Novo(&raiz))->GetNivel(), 2);
    auto ramo = std::make_unique<TArvItem>();
    TArvItem *neto = Novo(Novo(ramo.get()));
    EXPECT_EQ(neto->GetNivel(), 2);
    raiz.GetFilhos(0)->AddFilho(std::move(ramo));
    EXPECT_EQ(neto->GetNivel(), 4);
}

TEST(TArvItem, RowsAreTheTitleAndWhatIsShownAndNoneWithoutChildren)
{
    TArvItem raiz;
    EXPECT_EQ(raiz.NLins(), 0);
    TArvItem *a = Novo(&raiz), *b = Novo(&raiz);
    TArvItem *aa = Novo(a);
    Novo(aa);
    Novo(b);
    EXPECT_EQ(raiz.NLins(), 6);
    aa->SetExpandido(false);
    EXPECT_EQ(raiz.NLins(), 5);
    a->SetExpandido(false);
    EXPECT_EQ(raiz.NLins(), 4);
    // What is added out of sight counts once it is shown.
    Novo(aa);
    Novo(a);
    EXPECT_EQ(raiz.NLins(), 4);
    a->SetExpandido(true);
    EXPECT_EQ(raiz.NLins(), 6);
    aa->SetExpandido(true);
    EXPECT_EQ(raiz.NLins(), 8);
    EXPECT_EQ(aa->NLins(), 3);
    b->LimparFilhos();
    EXPECT_EQ(raiz.NLins(), 7);
    raiz.SetExpandido(false);
    EXPECT_EQ(raiz.NLins(), 1);
    raiz.LimparFilhos();
    EXPECT_EQ(raiz.NLins(), 0);
}

TEST(TArvItem, RowsAreRightAfterAnyMixOfChanges)
{
    TArvItem raiz;
    std::vector<TArvItem *> itens{&raiz};
    unsigned acaso = 12345;
    const auto sortear = [&acaso](std::size_t n) {
        acaso = acaso * 1664525u + 1013904223u;
        return std::size_t(acaso >> 8) % n;
    };
    for (int passo = 0; passo < 3000; ++passo) {
        TArvItem *item = itens[sortear(itens.size())];
        if (sortear(3) == 0 && item != &raiz)
            item->SetExpandido(!item->GetExpandido());
        else
            itens.push_back(Novo(item));
        if (sortear(4) == 0) {
            const TArvItem *qual = itens[sortear(itens.size())];
            if (qual->NFilhos() > 0) {
                ASSERT_EQ(qual->NLins(), 1 + Contadas(*qual)) << passo;
            }
        }
        if (sortear(2) == 0) {
            ASSERT_EQ(raiz.NLins(), raiz.NFilhos() ? 1 + Contadas(raiz) : 0) << passo;
        }
    }
}

TEST(TArvItem, ANumberStandsForALivingItemOnly)
{
    std::intptr_t objeto = 0;
    {
        TArvItem raiz;
        TArvItem *a = Novo(&raiz);
        objeto = a->Objeto();
        EXPECT_EQ(TArvItem::De(objeto), a);
        raiz.LimparFilhos();
        EXPECT_EQ(TArvItem::De(objeto), nullptr);
        EXPECT_EQ(TArvItem::De(raiz.Objeto()), &raiz);
        objeto = raiz.Objeto();
    }
    EXPECT_EQ(TArvItem::De(objeto), nullptr);
    EXPECT_EQ(TArvItem::De(0), nullptr);
    int outro = 0;
    EXPECT_EQ(TArvItem::De(reinterpret_cast<std::intptr_t>(&outro)), nullptr);
}

TEST(TArvItem, DescendantsAreDestroyedOnceEach)
{
    static int vivos;
    vivos = 0;
    struct TContado : TArvItem {
        TContado() { ++vivos; }
        ~TContado() override { --vivos; }
    };
    {
        TArvItem raiz;
        TContado *a = raiz.AddFilho(std::make_unique<TContado>());
        a->AddFilho(std::make_unique<TContado>())->AddFilho(std::make_unique<TContado>());
        EXPECT_EQ(vivos, 3);
        a->LimparFilhos();
        EXPECT_EQ(vivos, 1);
        a->AddFilho(std::make_unique<TContado>());
    }
    EXPECT_EQ(vivos, 0);
}

TEST(TArvItem, ATreeOfAnyDepthIsBuiltCountedAndDestroyed)
{
    constexpr int Fundo = 300'000;
    QElapsedTimer relogio;
    relogio.start();
    auto raiz = std::make_unique<TArvItem>();
    TArvItem *item = raiz.get();
    for (int i = 0; i < Fundo; ++i)
        item = Novo(item);
    EXPECT_EQ(item->GetNivel(), Fundo);
    EXPECT_EQ(raiz->NLins(), Fundo + 1);
    auto acima = std::make_unique<TArvItem>();
    acima->AddFilho(std::move(raiz));
    EXPECT_EQ(item->GetNivel(), Fundo + 1);
    EXPECT_EQ(acima->NLins(), Fundo + 2);
    acima.reset();
    EXPECT_LT(relogio.elapsed(), 5000);
}

TEST(TArvItem, CountingAWideTreeAgainCostsOnlyWhatChanged)
{
    TArvItem raiz;
    for (int i = 0; i < 1000; ++i)
        for (TArvItem *ramo = Novo(&raiz); ramo->NFilhos() < 100;)
            Novo(ramo);
    EXPECT_EQ(raiz.NLins(), 1 + 1000 * 101);
    QElapsedTimer relogio;
    relogio.start();
    for (int i = 0; i < 1000; ++i) {
        TArvItem *ramo = raiz.GetFilhos(i);
        ramo->SetExpandido(false);
        ASSERT_EQ(raiz.NLins(), 1 + 1000 * 101 - 100 * (i + 1));
    }
    // A hundred thousand items counted a thousand times over would take seconds.
    EXPECT_LT(relogio.elapsed(), 1000);
    constexpr int Vezes = 1'000'000;
    qint64 soma = 0;
    relogio.restart();
    for (int i = 0; i < Vezes; ++i)
        soma += raiz.NLins();
    const qint64 decorridos = relogio.elapsed();
    EXPECT_EQ(soma, qint64(Vezes) * (1 + 1000));
    EXPECT_LT(decorridos, 1000);
}
