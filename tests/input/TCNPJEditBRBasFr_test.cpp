#include "input/UCNPJEditBRBasFr.h"
#include "platform/edits/TCNPJEditBR.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Recusa = QStringLiteral("CNPJ Inválido\r\nDigite o valor correto ou clique em "
                                      "Cancelar.");

class TContadoFr : public TCNPJEditBRBasFr
{
public:
    using TCNPJEditBRBasFr::TCNPJEditBRBasFr;
    void Atualizar() override
    {
        TCNPJEditBRBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
    int entradas = 0;

protected:
    void FrameEnter(QObject *sender) override
    {
        EXPECT_EQ(sender, CNPJEditBR1);
        ++entradas;
        TCNPJEditBRBasFr::FrameEnter(sender);
    }
};

class TCNPJEditBRBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->CNPJEditBR1;
    }

    TContadoFr *fr = nullptr;
    TCNPJEditBR *edit = nullptr;
};

TEST_F(TCNPJEditBRBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TCNPJEditBRBasFr")));
    EXPECT_TRUE(edit->GetAutoExit());
    EXPECT_EQ(edit->GetMaxLength(), 18);
    EXPECT_TRUE(edit->alignment().testFlag(Qt::AlignLeft));
    fr->SetValor(QStringLiteral("BBBBBBBBBBBB00"));
    EXPECT_LE(edit->fontMetrics().horizontalAdvance(edit->GetText()), edit->width() - 6);
    Retratar(fr, QStringLiteral("TCNPJEditBRBasFr-cheio"));
}

TEST_F(TCNPJEditBRBasFrTest, AFreshFrameIsRequiredAndUnique)
{
    Montar();
    EXPECT_FALSE(fr->AceitaVazio);
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_EQ(fr->Frases.Count(), 2);
    EXPECT_EQ(fr->Frases.Texto(1), QStringLiteral("CNPJ Inválido"));
}

TEST_F(TCNPJEditBRBasFrTest, ValueIsBareTheDisplayTextMaskedAndTheSQLTextQuoted)
{
    Montar();
    for (const char *v : {"12ABC345000188", "12.ABC.345/0001-88", "12abc345000188"}) {
        fr->SetValor(QString::fromLatin1(v));
        EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("12ABC345000188")));
        EXPECT_EQ(fr->AsString(), QStringLiteral("12.ABC.345/0001-88"));
        EXPECT_EQ(fr->SQLString(), QStringLiteral("'12ABC345000188'"));
        EXPECT_TRUE(fr->ValorAceitavel());
    }
    fr->SetValor(1838723000127.0);
    EXPECT_EQ(fr->AsString(), QStringLiteral("01.838.723/0001-27"));
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->Zerar();
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TCNPJEditBRBasFrTest, AnInvalidOneIsRefusedWithTheMessageAndKeepsTheFocus)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("12abc345000189"));
    EXPECT_EQ(avisos, QStringList{Recusa});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("CNPJ Inválido"));
    Digitar(edit, QStringLiteral("12abc345000188"));
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->AsString(), QStringLiteral("12.ABC.345/0001-88"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(TCNPJEditBRBasFrTest, AnEmptyOneAndAllZerosAreRefusedUnlessEmptyIsAccepted)
{
    Montar();
    EXPECT_FALSE(fr->ValorAceitavel());
    fr->SetValor(QString(14, u'0'));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList({Recusa, Recusa}));
    fr->AceitaVazio = true;
    EXPECT_FALSE(fr->ValorAceitavel());
    fr->Zerar();
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TCNPJEditBRBasFrTest, ARepeatedOneIsAcceptedAlthoughTheFrameIsUnique)
{
    AbrirTabela({QStringLiteral("1, '11017153000249', 0, 0, '', ''"),
                 QStringLiteral("2, '12ABC345000188', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CNPJ"));
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" CNPJ:  [Tab]Avançar  Não pode ser repetido  "));
    tabela->AltIni();
    fr->SetValor(QStringLiteral("12ABC345000188"));
    EXPECT_TRUE(fr->Repetido());
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TCNPJEditBRBasFrTest, TheUsersEditStartsAnAlterationTheProgramsDoesNot)
{
    AbrirTabela({QStringLiteral("1, '11017153000249', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CNPJ"));
    fr->SetValor(QStringLiteral("12ABC345000188"));
    fr->Zerar();
    EXPECT_EQ(tela.pedidos, 0);
    fr->SetFocus();
    EXPECT_TRUE(fr->Focused());
    Teclar(edit, u'b');
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(fr->AsString(), QStringLiteral("B"));
}

TEST_F(TCNPJEditBRBasFrTest, AChangeRefreshesOnceAndEnteringRunsTheHandler)
{
    Montar();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->entradas, 1);
    fr->atualizacoes = 0;
    Teclar(edit, u'1');
    EXPECT_EQ(fr->atualizacoes, 1);
}

TEST_F(TCNPJEditBRBasFrTest, AValidOneSwitchesThePhraseOff)
{
    Montar();
    fr->SetValor(QStringLiteral("12ABC345000100"));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("CNPJ Inválido"));
    fr->SetValor(QStringLiteral("12ABC345000188"));
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

} // namespace
