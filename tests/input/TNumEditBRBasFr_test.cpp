#include "input/UNumEditBRBasFr.h"
#include "platform/edits/TNumEditBR.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TNumEditBRBasFr
{
    Q_OBJECT
public:
    using TNumEditBRBasFr::TNumEditBRBasFr;
    void Atualizar() override
    {
        TNumEditBRBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
    int entradas = 0;

protected:
    void NumEditBR1Enter(QObject *sender) override
    {
        EXPECT_EQ(sender, NumEditBR1);
        ++entradas;
        TNumEditBRBasFr::NumEditBR1Enter(sender);
    }
};

class TNumEditBRBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->NumEditBR1;
    }
    Variant Guarda(const Variant &v)
    {
        fr->SetValor(v);
        return fr->GetValor();
    }

    TContadoFr *fr = nullptr;
    TNumEditBR *edit = nullptr;
};

TEST_F(TNumEditBRBasFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Mostrado<TNumEditBRBasFr>();
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TNumEditBRBasFr")));
    const TNumEditBR *e = puro->NumEditBR1;
    EXPECT_TRUE(e->GetAutoExit());
    EXPECT_EQ(e->GetNCasas(), 0);
    EXPECT_EQ(e->GetNCasasEsq(), 0);
    EXPECT_EQ(e->GetMascEsq(), QStringLiteral("###,###,##0"));
    EXPECT_TRUE(e->alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(e->text(), QStringLiteral("0"));
    puro->SetValor(1234567);
    Retratar(puro, QStringLiteral("TNumEditBRBasFr"));
}

TEST_F(TNumEditBRBasFrTest, AFreshFrameStoresZeroForANegativeNumberAndForZerar)
{
    Montar();
    EXPECT_TRUE(fr->TemMinimo);
    EXPECT_FALSE(fr->TemMaximo);
    EXPECT_EQ(fr->Minimo, 0);
    EXPECT_EQ(fr->Maximo, 0);
    EXPECT_EQ(Guarda(-3), Variant(0));
    EXPECT_EQ(Guarda(12), Variant(12));
    EXPECT_TRUE(fr->GetValor().EhInteiro());
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(0));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TNumEditBRBasFrTest, ZerarGoesToTheMinimumOrToZero)
{
    Montar();
    fr->Minimo = 5;
    fr->SetValor(9);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(5));
    fr->TemMinimo = false;
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(0));
}

TEST_F(TNumEditBRBasFrTest, AboveTheMaximumIsClampedWhenSetAndRefusedWhenTyped)
{
    Montar();
    fr->TemMaximo = true;
    fr->Maximo = 100;
    EXPECT_EQ(Guarda(250), Variant(100));
    EXPECT_EQ(avisos, QStringList());
    fr->SetFocus();
    edit->selectAll();
    Digitar(edit, QStringLiteral("250"));
    EXPECT_EQ(edit->text(), QStringLiteral("250"));
    const QString aviso =
        QStringLiteral("Deve estar entre 0 e 100. Ajuste o seu valor ou clique em Cancelar.");
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{aviso});
    EXPECT_EQ(Foco(), edit);
    Teclar(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(Foco(), edit);
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos.size(), 3);
    EXPECT_EQ(Foco(), edit);
    edit->selectAll();
    Digitar(edit, QStringLiteral("99"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 3);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TNumEditBRBasFrTest, AnUnboundFramesMessageStartsWithDeveEstarEntre)
{
    Montar();
    fr->Minimo = 2;
    fr->NumEditBR1->SetValorVariant(1);
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Deve estar entre 2 e 0. Ajuste o seu valor ou clique em Cancelar.")});
}

TEST_F(TNumEditBRBasFrTest, ABoundFramesMessageNamesTheColumn)
{
    AbrirTabela();
    Montar();
    Prender(fr, "num", QStringLiteral("Preço"));
    fr->TemMaximo = true;
    fr->Maximo = 10;
    edit->SetNCasas(2);
    edit->SetValor(10.01);
    EXPECT_FALSE(fr->ValorAceitavel()) << "whole bounds hold for decimals too";
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Preço deve estar entre 0 e 10. Ajuste o seu "
                                                 "valor ou clique em Cancelar.")});
    edit->SetValor(10);
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TNumEditBRBasFrTest, NullUnassignedAndBlankAreZero)
{
    Montar();
    for (const Variant &v : {Null, Variant(), Variant(QString()), Variant(QStringLiteral("  "))}) {
        fr->SetValor(9);
        EXPECT_EQ(Guarda(v), Variant(0));
    }
    fr->Minimo = 3;
    EXPECT_EQ(Guarda(Null), Variant(3)) << "and 0 is clamped like any number";
    EXPECT_THROW(fr->SetValor(QStringLiteral("abc")), EVariantError);
    EXPECT_EQ(fr->GetValor(), Variant(3));
}

TEST_F(TNumEditBRBasFrTest, TextsAreNumbersInBrazilianNotation)
{
    Montar();
    edit->SetNCasas(2);
    fr->SetValor(QStringLiteral("1234,5"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("1.234,50"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("1234.50"));
    EXPECT_TRUE(fr->GetValor().EhDouble());
}

TEST_F(TNumEditBRBasFrTest, MoneyKeepsEveryCentavoThroughTheDatabase)
{
    AbrirTabela();
    Montar();
    edit->SetNCasas(2);
    fr->TemMinimo = false;
    const TCampo *campo = Prender(fr, "num", QStringLiteral("Preço"));
    for (const char *texto : {"0,01", "-0,01", "1234,56", "9999999999999,99", "-9999999999999,99",
                              "4503599627370,49"}) {
        edit->SetText(QString::fromLatin1(texto));
        const QString mostrado = edit->text();
        banco->Executar(QStringLiteral("update testes set num = ") + fr->SQLString());
        query.Close();
        query.Open();
        tabela->First();
        EXPECT_EQ(edit->text(), mostrado);
        EXPECT_EQ(campo->Field->AsString(), QString::fromLatin1(texto));
    }
}

TEST_F(TNumEditBRBasFrTest, ARepeatedNumberIsRefusedWhenUniquenessIsAskedFor)
{
    AbrirTabela({QStringLiteral("1, '', 10, 7, '', ''"), QStringLiteral("2, '', 20, 8, '', ''")});
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    fr->NaoRepetir = true;
    fr->SetFocus();
    edit->selectAll();
    Digitar(edit, QStringLiteral("8"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos,
              QStringList{QStringLiteral("Repetição\r\nQuantidade '8' já existe no sistema. "
                                         "Escolha outro valor, ou clique em Cancelar.")});
    EXPECT_EQ(Foco(), edit);
}

TEST_F(TNumEditBRBasFrTest, SQLStrCharIsTheQuotedCharacterOfTheCodePlus32)
{
    Montar();
    const auto de = [&](int n) {
        fr->SetValor(n);
        return fr->SQLStrChar();
    };
    EXPECT_EQ(de(0), QStringLiteral("' '"));
    EXPECT_EQ(de(33), QStringLiteral("'A'"));
    EXPECT_EQ(de(7), QStringLiteral("''''"));
    EXPECT_EQ(de(223), QStringLiteral("'ÿ'"));
}

TEST_F(TNumEditBRBasFrTest, TypingAndPastingStartTheAlterationTheProgramDoesNot)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    fr->SetValor(5);
    fr->Zerar();
    edit->SetValor(3);
    EXPECT_EQ(tela.pedidos, 0);
    fr->SetFocus();
    Digitar(edit, QStringLiteral("12"));
    EXPECT_EQ(tela.pedidos, 1);
    tabela->AltCancel();
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(tela.pedidos, 2);
    tabela->AltCancel();
    edit->selectAll();
    Colar(edit, QStringLiteral("44"));
    EXPECT_EQ(tela.pedidos, 3);
    EXPECT_EQ(fr->GetValor(), Variant(44));
}

TEST_F(TNumEditBRBasFrTest, ARefusedAlterationShowsTheStoredNumberAgain)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    tela.recusa = true;
    fr->SetFocus();
    Teclar(edit, u'9');
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);
}

TEST_F(TNumEditBRBasFrTest, TheFirstDigitSurvivesAnInsertionThatEmptiesTheInputs)
{
    AbrirTabela({});
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    fr->SetFocus();
    Digitar(edit, QStringLiteral("42"));
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(edit->text(), QStringLiteral("42"));
}

TEST_F(TNumEditBRBasFrTest, AChangeRefreshesOnceAndEnteringRunsTheHandler)
{
    Montar();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->entradas, 1);
    fr->atualizacoes = 0;
    Teclar(edit, u'1');
    EXPECT_EQ(fr->atualizacoes, 1);
}

TEST_F(TNumEditBRBasFrTest, HostileTextsLeaveANumber)
{
    Montar();
    fr->SetFocus();
    edit->SetValor(5);
    for (const QString &texto : TextosHostis().mid(0, 6))
        Digitar(edit, texto.left(20).remove(u'1').remove(u'0').remove(u'-'));
    EXPECT_EQ(fr->GetValor(), Variant(5));
    for (const QString &texto : TextosHostis())
        Colar(edit, texto);
    EXPECT_EQ(fr->GetValor(), Variant(5));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("5"));
}

} // namespace

#include "TNumEditBRBasFr_test.moc"
