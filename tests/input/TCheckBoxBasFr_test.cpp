#include "input/UCheckBoxBasFr.h"
#include "platform/toolkit/TCheckBox.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TCheckBoxBasFr
{
public:
    using TCheckBoxBasFr::TCheckBoxBasFr;
    int descidas = 0;

protected:
    void CheckBox1MouseDown(QObject *sender) override
    {
        ++descidas;
        EXPECT_EQ(sender, CheckBox1);
        TCheckBoxBasFr::CheckBox1MouseDown(sender);
    }
};

class TCheckBoxBasFrTest : public TEntradaTest
{
protected:
    /** Bound to a one-character column that holds "S" in row 1 and "N" in row 2. */
    TCheckBoxBasFr *Preso()
    {
        AbrirTabela(
            {QStringLiteral("1, '', 0, 0, 'S', ''"), QStringLiteral("2, '', 0, 0, 'N', ''")});
        auto *fr = Mostrado<TCheckBoxBasFr>();
        Prender(fr, "letra", QStringLiteral("Ativo"));
        return fr;
    }
    static void Clicar(TCheckBoxBasFr *fr)
    {
        QTest::mouseClick(fr->CheckBox1, Qt::LeftButton, {}, QPoint(8, 8));
        QCoreApplication::processEvents();
    }
};

} // namespace

TEST_F(TCheckBoxBasFrTest, Layout)
{
    auto *fr = Por<TCheckBoxBasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TCheckBoxBasFr")));
    EXPECT_EQ(fr->height(), 17);
    EXPECT_EQ(fr->CheckBox1->geometry(), QRect(0, 0, 97, 17));
    EXPECT_EQ(fr->GetTitulo(), QStringLiteral("CheckBox1"));
    EXPECT_FALSE(fr->CheckBox1->isChecked());
    EXPECT_FALSE(fr->MarcadoPadrao);
}

TEST_F(TCheckBoxBasFrTest, TheValueIsSOrN)
{
    auto *fr = Por<TCheckBoxBasFr>();
    EXPECT_EQ(fr->GetValor(), Variant(u"N"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'N'"));
    fr->SetValor(u"S");
    EXPECT_TRUE(fr->CheckBox1->isChecked());
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->GetValor(), Variant(u"S"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("S"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'S'"));
}

TEST_F(TCheckBoxBasFrTest, SetValorWithALowerCaseSUnchecks)
{
    auto *fr = Por<TCheckBoxBasFr>();
    for (const Variant &v : {Variant(u"s"), Variant(u""), Variant(u"N"), Variant(u"Sim"),
                             Variant(u" S"), Variant(1), Variant(Null), Variant()}) {
        fr->CheckBox1->setChecked(true);
        fr->SetValor(v);
        EXPECT_FALSE(fr->CheckBox1->isChecked()) << v.AsString().toStdString();
    }
}

TEST_F(TCheckBoxBasFrTest, ZerarReturnsToTheDefaultState)
{
    auto *fr = Por<TCheckBoxBasFr>();
    fr->SetValor(u"S");
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_FALSE(fr->CheckBox1->isChecked());
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    ASSERT_TRUE(fr->setProperty("MarcadoPadrao", true));
    fr->Zerar();
    EXPECT_TRUE(fr->CheckBox1->isChecked());
}

TEST_F(TCheckBoxBasFrTest, EvenARepeatedValueIsAcceptable)
{
    auto *fr = Preso();
    fr->NaoRepetir = true;
    tabela->InsIni();
    fr->SetValor(u"S");
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TCheckBoxBasFrTest, AClickStartsAnAlterationOnceAndTurnsTheBox)
{
    auto *fr = Preso();
    ASSERT_TRUE(fr->CheckBox1->isChecked());
    bool jaVirado = true;
    tela.antesDeAtivar = [&] { jaVirado = !fr->CheckBox1->isChecked(); };
    Clicar(fr);
    EXPECT_FALSE(jaVirado);
    EXPECT_FALSE(fr->CheckBox1->isChecked());
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TCheckBoxBasFrTest, TheSpaceBarStartsAnAlterationToo)
{
    auto *fr = Preso();
    fr->SetFocus();
    ASSERT_EQ(Foco(), fr->CheckBox1);
    Teclar(Foco(), Qt::Key_Space);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_FALSE(fr->CheckBox1->isChecked());
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TCheckBoxBasFrTest, TheHandlerHearsEachMouseButtonOnceAndNoKey)
{
    auto *fr = Mostrado<TContadoFr>();
    Clicar(fr);
    EXPECT_EQ(fr->descidas, 1);
    QTest::mouseClick(fr->CheckBox1, Qt::RightButton, {}, QPoint(8, 8));
    EXPECT_EQ(fr->descidas, 2);
    EXPECT_TRUE(fr->CheckBox1->isChecked());
    Teclar(fr->CheckBox1, Qt::Key_Space);
    EXPECT_EQ(fr->descidas, 2);
    EXPECT_FALSE(fr->CheckBox1->isChecked());
}

TEST_F(TCheckBoxBasFrTest, AMouseButtonDownBesideTheCaptionStartsOneWithoutTurning)
{
    auto *fr = Preso();
    fr->SetTitulo(QString());
    QTest::mouseClick(fr->CheckBox1, Qt::LeftButton, {}, QPoint(90, 8));
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_TRUE(fr->CheckBox1->isChecked());
}

TEST_F(TCheckBoxBasFrTest, TheCaptionsShortCutStartsAnAlteration)
{
    auto *fr = Preso();
    fr->SetTitulo(QStringLiteral("&Ativo"));
    Teclar(antes, Qt::Key_A, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !fr->CheckBox1->isChecked(); }, 2000));
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TCheckBoxBasFrTest, ARefusedAlterationWarnsOnceAndLeavesTheStoredValue)
{
    auto *fr = Preso();
    tela.recusa = true;
    Clicar(fr);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_TRUE(fr->CheckBox1->isChecked());
    fr->SetFocus();
    Teclar(Foco(), Qt::Key_Space);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_TRUE(fr->CheckBox1->isChecked());
}

TEST_F(TCheckBoxBasFrTest, TheProgramNeverStartsAnAlteration)
{
    auto *fr = Preso();
    tabela->Next();
    EXPECT_FALSE(fr->CheckBox1->isChecked());
    tabela->Prior();
    EXPECT_TRUE(fr->CheckBox1->isChecked());
    fr->Zerar();
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TCheckBoxBasFrTest, AnEmptyTableTurnsToInsertionAndTheClickStays)
{
    AbrirTabela(QStringList());
    auto *fr = Mostrado<TCheckBoxBasFr>();
    Prender(fr, "letra", QStringLiteral("Ativo"));
    Clicar(fr);
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_TRUE(fr->CheckBox1->isChecked());
}

TEST_F(TCheckBoxBasFrTest, AFrameDestroyedByItsOwnAlterationGoesQuietly)
{
    auto *fr = Preso();
    const QPointer<TCheckBoxBasFr> vivo = fr;
    tela.antesDeAtivar = [&] { delete fr; };
    fr->SetFocus();
    QTest::mousePress(fr->CheckBox1, Qt::LeftButton, {}, QPoint(8, 8));
    EXPECT_TRUE(vivo.isNull());
}
