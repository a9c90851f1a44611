#include "input/URadioGroupCharBasFr.h"
#include "support/Opcoes.h"

#include <QRadioButton>

using namespace ficha;
using namespace ficha::testes;

using TRadioGroupCharBasFrTest = TOpcoesTest<TRadioGroupCharBasFr>;

TEST_F(TRadioGroupCharBasFrTest, TheValueIsTheCharacterOfTheOption)
{
    auto *fr = Com(3);
    EXPECT_EQ(fr->GetValor(), Variant(u"!"));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    fr->SetValor(u"#");
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 2);
    EXPECT_EQ(fr->GetValor(), Variant(u"#"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'#'"));
    fr->RadioGroup1->SetItemIndex(-1);
    EXPECT_EQ(fr->GetValor(), Variant(u" "));
}

TEST_F(TRadioGroupCharBasFrTest, SetValorWithTheLetterZAndThreeOptionsSelectsTheLast)
{
    auto *fr = Com(3);
    fr->SetValor(u"z");
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 2);
}

TEST_F(TRadioGroupCharBasFrTest, SetValorOfNullSelectsTheFirst)
{
    auto *fr = Com(3);
    for (const Variant &v :
         {Variant(Null), Variant(u""), Variant(u" "), Variant(u"\n"), Variant()}) {
        fr->RadioGroup1->SetItemIndex(2);
        fr->SetValor(v);
        EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
    }
}

TEST_F(TRadioGroupCharBasFrTest, TheSeventhOptionIsAQuoteDoubledInSQL)
{
    auto *fr = Com(8);
    fr->SetValor(u"'");
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 6);
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''''"));
}

TEST_F(TRadioGroupCharBasFrTest, ZerarSelectsTheFirstOption)
{
    auto *fr = Com(3);
    fr->SetValor(u"#");
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(u"!"));
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
}

TEST_F(TRadioGroupCharBasFrTest, WithoutOptionsNothingIsSelected)
{
    auto *fr = Com(0);
    fr->SetValor(u"#");
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(u" "));
}

TEST_F(TRadioGroupCharBasFrTest, SetValorShowsTheControlOfTheOption)
{
    auto *fr = Com(2);
    auto *controle = new QWidget(&tela);
    fr->RadioGroup1->SetControle(1, controle);
    fr->ControlesPorItem = true;
    fr->SetValor(u"\"");
    EXPECT_TRUE(controle->isVisible());
    fr->Zerar();
    EXPECT_FALSE(controle->isVisible());
}

TEST_F(TRadioGroupCharBasFrTest, TheColumnsCharacterIsShownAndARefusedClickGivesWayToIt)
{
    AbrirTabela({QStringLiteral("1, '', 0, 0, '#', ''"), QStringLiteral("2, '', 0, 0, '!', ''")});
    auto *fr = Com(3);
    Prender(fr, "letra", QStringLiteral("Tipo"));
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 2);
    tabela->Next();
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
    EXPECT_EQ(tela.pedidos, 0);
    tela.recusa = true;
    QTest::mouseClick(fr->RadioGroup1->Botao(1), Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(fr->RadioGroup1->GetItemIndex(), 0);
}
