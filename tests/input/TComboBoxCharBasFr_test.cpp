#include "input/UComboBoxCharBasFr.h"
#include "platform/toolkit/TComboBox.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QPushButton>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TComboBoxCharBasFrTest : public TEntradaTest
{
protected:
    TComboBoxCharBasFr *Com(int itens)
    {
        auto *fr = Mostrado<TComboBoxCharBasFr>();
        for (int i = 0; i < itens; ++i)
            fr->ComboBox1->AddItem(QStringLiteral("item %1").arg(i, 2, 10, QLatin1Char('0')));
        return fr;
    }
    /** The user picks an item with the keyboard. */
    static void Escolher(TComboBoxCharBasFr *fr, int i)
    {
        fr->SetFocus();
        fr->ComboBox1->SetItemIndex(i == 0 ? 1 : i - 1);
        Teclar(fr->ComboBox1, i == 0 ? Qt::Key_Up : Qt::Key_Down);
    }
};

} // namespace

TEST_F(TComboBoxCharBasFrTest, Layout)
{
    auto *fr = Por<TComboBoxCharBasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TComboBoxCharBasFr")));
    EXPECT_EQ(fr->width(), 165);
    EXPECT_EQ(fr->EditButton->geometry(), QRect(145, 16, 20, 20));
    EXPECT_EQ(fr->EditButton->text(), QStringLiteral("..."));
    EXPECT_FALSE(fr->EditButton->focusPolicy() & Qt::TabFocus);
}

TEST_F(TComboBoxCharBasFrTest, TheValueIsTheCharacterOfTheItem)
{
    auto *fr = Com(4);
    EXPECT_EQ(fr->GetValor(), Variant(u" "));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->SQLString(), QStringLiteral("' '"));
    fr->SetValor(u"#");
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 2);
    EXPECT_EQ(fr->GetValor(), Variant(u"#"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'#'"));
    fr->SetValor(Null);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
}

TEST_F(TComboBoxCharBasFrTest, BlankEmptyAndBeyondSelectNothing)
{
    auto *fr = Com(3);
    for (const char16_t *v : {u"", u" ", u"$", u"\t", u"ÿ"}) {
        fr->ComboBox1->SetItemIndex(1);
        fr->SetValor(v);
        EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1) << Variant(v).AsString().toStdString();
    }
    fr->SetValor(u"\"resto");
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
}

TEST_F(TComboBoxCharBasFrTest, TheQuoteCharacterIsDoubledInSQL)
{
    auto *fr = Com(8);
    fr->ComboBox1->SetItemIndex(6);
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''''"));
}

TEST_F(TComboBoxCharBasFrTest, ThePickMovesToTheItemOfTheNumbersFirstDigit)
{
    auto *fr = Com(30);
    for (const auto &[pick, fica] :
         {std::pair{0, 18}, {3, 18}, {6, 18}, {7, 19}, {16, 19}, {17, 20}, {26, 20}, {27, 21}}) {
        Escolher(fr, pick);
        EXPECT_EQ(fr->ComboBox1->GetItemIndex(), fica) << pick;
    }
}

TEST_F(TComboBoxCharBasFrTest, WithFewItemsThePickEndsWithNothingSelected)
{
    auto *fr = Com(3);
    fr->AceitaVazio = true;
    Escolher(fr, 1);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
}

TEST_F(TComboBoxCharBasFrTest, TheColumnsCharacterIsShownWithoutAnAlteration)
{
    AbrirTabela({QStringLiteral("1, '', 0, 0, '\"', ''"), QStringLiteral("2, '', 0, 0, null, ''")});
    auto *fr = Com(4);
    Prender(fr, "letra", QStringLiteral("Tipo"));
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
    tabela->Next();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TComboBoxCharBasFrTest, ARefusedPickGivesWayToTheStoredCharacter)
{
    AbrirTabela({QStringLiteral("1, '', 0, 0, '\"', ''")});
    auto *fr = Com(30);
    Prender(fr, "letra", QStringLiteral("Tipo"));
    tela.recusa = true;
    fr->SetFocus();
    Teclar(fr->ComboBox1, Qt::Key_Down);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
}

TEST_F(TComboBoxCharBasFrTest, TheButtonOnlyServesTheScreen)
{
    AbrirTabela();
    auto *fr = Com(3);
    Prender(fr, "letra", QStringLiteral("Tipo"));
    fr->AceitaVazio = true;
    QTest::mouseClick(fr->EditButton, Qt::LeftButton);
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_TRUE(fr->EditButton->isEnabled());
    EXPECT_EQ(avisos, QStringList());
}
