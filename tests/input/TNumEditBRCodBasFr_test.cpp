#include "input/UNumEditBRCodBasFr.h"
#include "platform/edits/TNumEditBR.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TNumEditBRCodBasFrTest : public TEntradaTest
{
};

TEST_F(TNumEditBRCodBasFrTest, LayoutIsTheGoldenOne)
{
    auto *fr = Mostrado<TNumEditBRCodBasFr>();
    fr->SetValor(12345);
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TNumEditBRCodBasFr")));
    const TNumEditBR *edit = fr->NumEditBR1;
    EXPECT_EQ(edit->GetMascEsq(), QStringLiteral("########0"));
    EXPECT_TRUE(edit->font().bold());
    EXPECT_EQ(edit->fontInfo().pixelSize(), 13);
    EXPECT_TRUE(edit->alignment().testFlag(Qt::AlignHCenter));
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_TRUE(fr->TemMinimo);
    EXPECT_EQ(fr->Minimo, 0);
}

TEST_F(TNumEditBRCodBasFrTest, CodesHaveNoThousandsSeparators)
{
    auto *fr = Mostrado<TNumEditBRCodBasFr>();
    fr->SetValor(123456);
    EXPECT_EQ(fr->AsString(), QStringLiteral("123456"));
}

TEST_F(TNumEditBRCodBasFrTest, TheColourTellsWhetherABoundCodeCanBeTyped)
{
    AbrirTabela();
    auto *fr = Mostrado<TNumEditBRCodBasFr>();
    const TColor antesDePrender = fr->NumEditBR1->GetFontColor();
    fr->Atualizar();
    EXPECT_EQ(fr->NumEditBR1->GetFontColor(), antesDePrender) << "unbound, it is left alone";
    Prender(fr, "testes_cod", QStringLiteral("Código"));
    EXPECT_EQ(fr->NumEditBR1->GetFontColor(), TColor(128));
    fr->NumEditBR1->setReadOnly(true);
    fr->Atualizar();
    EXPECT_EQ(fr->NumEditBR1->GetFontColor(), TColor::DeRGB(179, 106, 85));
    EXPECT_EQ(fr->NumEditBR1->GetFontColor(), TColor(5597875));
    fr->NumEditBR1->setReadOnly(false);
    fr->Atualizar();
    EXPECT_EQ(fr->NumEditBR1->GetFontColor(), TColor(128));
}

TEST_F(TNumEditBRCodBasFrTest, AReadOnlyCodeIsNotTypedAndStartsNothing)
{
    AbrirTabela();
    auto *fr = Mostrado<TNumEditBRCodBasFr>();
    Prender(fr, "testes_cod", QStringLiteral("Código"));
    fr->NumEditBR1->setReadOnly(true);
    fr->SetFocus();
    Digitar(fr->NumEditBR1, QStringLiteral("9"));
    EXPECT_EQ(fr->GetValor(), Variant(1));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TNumEditBRCodBasFrTest, ACodeInUseIsRefusedOnInsertion)
{
    AbrirTabela();
    auto *fr = Mostrado<TNumEditBRCodBasFr>();
    Prender(fr, "testes_cod", QStringLiteral("Código"));
    tabela->InsIni();
    fr->SetValor(1);
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos.size(), 1);
    fr->SetValor(2);
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->SetValor(0);
    EXPECT_TRUE(fr->ValorAceitavel()) << "zero never counts as repeated on insertion";
}

} // namespace
