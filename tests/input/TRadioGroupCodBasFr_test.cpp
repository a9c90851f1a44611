#include "input/URadioGroupCodBasFr.h"
#include "platform/core/Erros.h"
#include "support/Opcoes.h"

#include <QRadioButton>

using namespace ficha;
using namespace ficha::testes;

using TRadioGroupCodBasFrTest = TOpcoesTest<TRadioGroupCodBasFr>;

TEST_F(TRadioGroupCodBasFrTest, GetValorOfTheSecondOptionIs2)
{
    auto *fr = Com(3);
    fr->RadioGroup1->SetItemIndex(1);
    EXPECT_EQ(fr->GetValor(), Variant(2));
    EXPECT_TRUE(fr->GetValor().EhInteiro());
    EXPECT_EQ(fr->SQLString(), QStringLiteral("2"));
    fr->RadioGroup1->SetItemIndex(-1);
    EXPECT_EQ(fr->GetValor(), Variant(0));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("0"));
}

TEST_F(TRadioGroupCodBasFrTest, SetValorSelectsTheOptionOneBelow)
{
    auto *fr = Com(3);
    for (const auto &[v, i] : std::vector<std::pair<Variant, int>>{{1, 0},
                                                                   {3, 2},
                                                                   {u"2", 1},
                                                                   {2.0, 1},
                                                                   {2.5, 2},
                                                                   {0, -1},
                                                                   {-5, -1},
                                                                   {4, -1},
                                                                   {Null, -1},
                                                                   {Variant(), -1}}) {
        fr->RadioGroup1->SetItemIndex(1);
        fr->SetValor(v);
        EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), i) << v.AsString().toStdString();
    }
}

TEST_F(TRadioGroupCodBasFrTest, ATextThatIsNoNumberIsTheCallersError)
{
    auto *fr = Com(3);
    EXPECT_THROW(fr->SetValor(u"dois"), EVariantError);
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
}

TEST_F(TRadioGroupCodBasFrTest, ZerarSelectsTheFirstOption)
{
    auto *fr = Com(3);
    fr->SetValor(3);
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(1));
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
}

TEST_F(TRadioGroupCodBasFrTest, MovingTheTableShowsTheColumnAndStartsNoAlteration)
{
    AbrirTabela({QStringLiteral("1, '', 0, 2, '', ''"), QStringLiteral("2, '', 0, 3, '', ''"),
                 QStringLiteral("3, '', 0, null, '', ''")});
    auto *fr = Com(3);
    Prender(fr, "quant", QStringLiteral("Tipo"));
    EXPECT_EQ(fr->GetValor(), Variant(2));
    tabela->Next();
    EXPECT_EQ(fr->GetValor(), Variant(3));
    tabela->Next();
    EXPECT_EQ(fr->GetValor(), Variant(0));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TRadioGroupCodBasFrTest, ARefusedArrowKeyWarnsOnceAndGivesWayToTheStoredValue)
{
    AbrirTabela({QStringLiteral("1, '', 0, 2, '', ''")});
    auto *fr = Com(3);
    Prender(fr, "quant", QStringLiteral("Tipo"));
    tela.recusa = true;
    fr->SetFocus();
    Teclar(Foco(), Qt::Key_Down);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(fr->GetValor(), Variant(2));
}
