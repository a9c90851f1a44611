#include "input/ULabeledEditIntegerBasFr.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <limits>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TLabeledEditIntegerBasFr
{
    Q_OBJECT
public:
    using TLabeledEditIntegerBasFr::TLabeledEditIntegerBasFr;
    void Atualizar() override
    {
        TLabeledEditIntegerBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
};

class TLabeledEditIntegerBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->LabeledEdit1;
    }
    QString Mostra(const Variant &v)
    {
        fr->SetValor(v);
        return edit->text();
    }

    TContadoFr *fr = nullptr;
    TLabeledEdit *edit = nullptr;
};

TEST_F(TLabeledEditIntegerBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(Mostrado<TLabeledEditIntegerBasFr>(),
                              QStringLiteral("TLabeledEditIntegerBasFr")));
}

TEST_F(TLabeledEditIntegerBasFrTest, Defaults)
{
    Montar();
    EXPECT_TRUE(fr->TemMinimo);
    EXPECT_FALSE(fr->TemMaximo);
    EXPECT_EQ(fr->Minimo, 0);
    EXPECT_EQ(fr->Maximo, 0);
    EXPECT_FALSE(fr->NaoRepetir);
    EXPECT_FALSE(fr->PodeDesfazer());
}

TEST_F(TLabeledEditIntegerBasFrTest, SetValorOfNullShowsZeroAndBelowTheMinimumShowsTheMinimum)
{
    Montar();
    EXPECT_EQ(Mostra(Null), QStringLiteral("0"));
    EXPECT_EQ(Mostra(-3), QStringLiteral("0"));
    fr->Minimo = 5;
    EXPECT_EQ(Mostra(Null), QStringLiteral("5"));
    EXPECT_EQ(Mostra(4), QStringLiteral("5"));
    EXPECT_EQ(Mostra(6), QStringLiteral("6"));
}

TEST_F(TLabeledEditIntegerBasFrTest, SetValorReadsTheWholeNumberOfAnyValue)
{
    Montar();
    EXPECT_EQ(Mostra(QStringLiteral(" 1.234,56 ")), QStringLiteral("1234"));
    EXPECT_EQ(Mostra(12.9), QStringLiteral("12"));
    EXPECT_EQ(Mostra(QStringLiteral("abc")), QStringLiteral("0"));
    EXPECT_EQ(Mostra(Variant()), QStringLiteral("0"));
    EXPECT_EQ(Mostra(std::numeric_limits<int>::max()), QStringLiteral("2147483647"));
    fr->TemMinimo = false;
    EXPECT_EQ(Mostra(std::numeric_limits<int>::min()), QStringLiteral("-2147483648"));
}

TEST_F(TLabeledEditIntegerBasFrTest, AboveTheMaximumIsClampedWhenSetAndRefusedWhenTyped)
{
    Montar();
    fr->TemMaximo = true;
    fr->Maximo = 10;
    EXPECT_EQ(Mostra(12), QStringLiteral("10"));
    EXPECT_EQ(avisos, QStringList());
    edit->clear();
    edit->setFocus();
    Digitar(edit, QStringLiteral("12"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Este deve estar entre 0 e 10. Ajuste o seu valor "
                                                 "ou clique em Cancelar.")});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(edit->text(), QStringLiteral("12")) << "what was typed stays";
}

TEST_F(TLabeledEditIntegerBasFrTest, WithTheLowerBoundAloneARefusalStillNamesZeroAsTheUpperBound)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    edit->setText(QStringLiteral("-1"));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral("Quantidade deve estar entre 0 e 0. Ajuste o seu "
                                                 "valor ou clique em Cancelar.")});
}

TEST_F(TLabeledEditIntegerBasFrTest, ContradictingBoundsEndAtTheUpperOne)
{
    Montar();
    fr->Minimo = 5;
    fr->TemMaximo = true;
    fr->Maximo = 0;
    EXPECT_EQ(Mostra(3), QStringLiteral("0"));
    EXPECT_EQ(Mostra(9), QStringLiteral("0"));
    EXPECT_FALSE(fr->ValorAceitavel());
}

TEST_F(TLabeledEditIntegerBasFrTest, TheValueIsATextAndAsStringADecimalNumber)
{
    Montar();
    edit->setText(QStringLiteral("  0012x"));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->GetValor(), Variant(12));
    EXPECT_EQ(fr->AsString(), QStringLiteral("12"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("12"));
    edit->clear();
    EXPECT_EQ(fr->AsString(), QStringLiteral("0"));
}

TEST_F(TLabeledEditIntegerBasFrTest, ZerarGoesToTheMinimumOrEmpties)
{
    Montar();
    fr->Minimo = 3;
    fr->SetValor(9);
    fr->Zerar();
    EXPECT_EQ(edit->text(), QStringLiteral("3"));
    fr->TemMinimo = false;
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(edit->text(), QString());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TLabeledEditIntegerBasFrTest, SQLStrCharIsTheQuotedCharacterOfTheCodePlus32)
{
    Montar();
    const auto de = [&](int n) {
        fr->SetValor(n);
        return fr->SQLStrChar();
    };
    EXPECT_EQ(de(0), QStringLiteral("' '"));
    EXPECT_EQ(de(1), QStringLiteral("'!'"));
    EXPECT_EQ(de(33), QStringLiteral("'A'"));
    EXPECT_EQ(de(7), QStringLiteral("''''"));
    EXPECT_EQ(de(223), QStringLiteral("'ÿ'"));
}

TEST_F(TLabeledEditIntegerBasFrTest, SmallNumbersGoThroughAOneCharacterColumn)
{
    AbrirTabela();
    Montar();
    for (const int n : {0, 7, 33, 95, 128, 223}) {
        fr->SetValor(n);
        banco->Executar(QStringLiteral("update testes set letra = ") + fr->SQLStrChar());
        const QString lido = banco->Valor(QStringLiteral("select letra from testes")).AsString();
        ASSERT_EQ(lido.size(), 1) << n;
        EXPECT_EQ(int(lido[0].unicode()) - 32, n);
    }
}

TEST_F(TLabeledEditIntegerBasFrTest, ANumberThat32BitsCannotHoldIsRefusedBeforeTheDatabaseIsAsked)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    fr->NaoRepetir = true;
    tabela->AltIni();
    for (const char *texto : {"2147483648", "99999999999999999999"}) {
        edit->setText(QString::fromLatin1(texto));
        EXPECT_FALSE(fr->CanExit());
    }
    const QString aviso = QStringLiteral("Quantidade deve estar entre -2147483648 e 2147483647. "
                                         "Ajuste o seu valor ou clique em Cancelar.");
    EXPECT_EQ(avisos, (QStringList{aviso, aviso}));
    edit->setText(QStringLiteral("2147483647"));
    EXPECT_TRUE(fr->CanExit());
}

TEST_F(TLabeledEditIntegerBasFrTest, ARequiredFrameIsRefusedOnceWithTheRequiredTextOnly)
{
    Montar();
    fr->AceitaVazio = false;
    fr->Minimo = 1;
    edit->clear();
    EXPECT_FALSE(fr->ValorAceitavel());
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("Campo incompleto\r\n")));
}

TEST_F(TLabeledEditIntegerBasFrTest, EachKeyRefreshesTwice)
{
    Montar();
    edit->setFocus();
    fr->atualizacoes = 0;
    Digitar(edit, QStringLiteral("12"));
    EXPECT_EQ(fr->atualizacoes, 4);
}

TEST_F(TLabeledEditIntegerBasFrTest, HostileTextsAreANumberOrRefused)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    fr->TemMinimo = false;
    tabela->AltIni();
    for (const QString &texto : TextosHostis()) {
        edit->setText(texto);
        ASSERT_TRUE(fr->ValorAceitavel()) << texto.left(40).toStdString();
        banco->Executar(QStringLiteral("update testes set quant = ") + fr->SQLString());
        EXPECT_EQ(banco->Valor(QStringLiteral("select quant from testes")),
                  Variant(fr->AsString().toInt()));
    }
}

TEST_F(TLabeledEditIntegerBasFrTest, TheValueOfTheRowIsShownWithoutAnAlteration)
{
    AbrirTabela();
    Montar();
    Prender(fr, "quant", QStringLiteral("Quantidade"));
    EXPECT_EQ(edit->text(), QStringLiteral("7"));
    EXPECT_EQ(tela.pedidos, 0);
    edit->setFocus();
    Digitar(edit, QStringLiteral("1"));
    EXPECT_EQ(tela.pedidos, 1);
}

} // namespace

#include "TLabeledEditIntegerBasFr_test.moc"
