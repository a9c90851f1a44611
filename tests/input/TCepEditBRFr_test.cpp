#include "input/UCepEditBRFr.h"
#include "platform/edits/TCepEditBR.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Obrigatorio =
    QStringLiteral("Este é um campo obrigatório\r\n (não pode ser deixado em branco).\r\nDigite um "
                   "valor ou clique em Cancelar.");

class TContadoFr : public TCepEditBRFr
{
    Q_OBJECT
public:
    using TCepEditBRFr::TCepEditBRFr;
    void Atualizar() override
    {
        TCepEditBRFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
    int entradas = 0;
    int entradasDoFrame = 0;

protected:
    void FrameEnter(QObject *sender) override
    {
        ++entradasDoFrame;
        TCepEditBRFr::FrameEnter(sender);
    }
    void CepEditBR1Enter(QObject *sender) override
    {
        EXPECT_EQ(sender, CepEditBR1);
        ++entradas;
        TCepEditBRFr::CepEditBR1Enter(sender);
    }
};

class TCepEditBRFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->CepEditBR1;
        fr->Zerar();
    }

    TContadoFr *fr = nullptr;
    TCepEditBR *edit = nullptr;
};

TEST_F(TCepEditBRFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Mostrado<TCepEditBRFr>();
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TCepEditBRFr")));
    EXPECT_EQ(puro->width(), 66);
    const TCepEditBR *e = puro->CepEditBR1;
    EXPECT_TRUE(e->GetAutoExit());
    EXPECT_EQ(e->GetMaxLength(), 9);
    EXPECT_TRUE(e->alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(e->GetCaption(), QStringLiteral("CEP"));
    EXPECT_EQ(e->GetText(), QStringLiteral("1")) << "until the screen empties it";
    EXPECT_EQ(puro->GetValor(), Variant(QStringLiteral("1")));
    puro->SetValor(QStringLiteral("88888888"));
    EXPECT_LE(e->fontMetrics().horizontalAdvance(e->GetText()), e->width() - 6);
    Retratar(puro, QStringLiteral("TCepEditBRFr-cheio"));
}

TEST_F(TCepEditBRFrTest, AFreshFrameIsOptional)
{
    Montar();
    EXPECT_TRUE(fr->AceitaVazio);
    EXPECT_FALSE(fr->NaoRepetir);
    EXPECT_EQ(fr->Frases.Count(), 2);
    EXPECT_EQ(fr->Frases.Texto(1), QStringLiteral("Obrigatório"));
    EXPECT_TRUE(fr->setProperty("AceitaVazio", false));
    EXPECT_FALSE(fr->AceitaVazio);
}

TEST_F(TCepEditBRFrTest, TheOptionalOneTakesAWholeCEPOrNothingAndRefusesAPartInSilence)
{
    Montar();
    fr->Frases.SetObjeto(1, 1);
    fr->SetFocus();
    Digitar(edit, QStringLiteral("01045"));
    EXPECT_EQ(edit->GetText().size(), 5);
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit) << "the focus stays";
    Digitar(edit, QStringLiteral("001"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("01045-001")) << "and what is there is completed";
    EXPECT_EQ(Foco(), depois) << "the last digit leaves";
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->Zerar();
    EXPECT_TRUE(fr->ValorAceitavel());
    fr->SetFocus();
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TCepEditBRFrTest, TheRequiredOneRefusesAPartAndNothingWithTheMessage)
{
    Montar();
    fr->AceitaVazio = false;
    fr->SetFocus();
    Digitar(edit, QStringLiteral("01045"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Obrigatório"));
    edit->selectAll();
    Teclar(edit, Qt::Key_Delete);
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList({Obrigatorio, Obrigatorio}));
    Digitar(edit, QStringLiteral("01045001"));
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TCepEditBRFrTest, TheRequiredPhraseComesWithTheRefusalOfAnUntouchedOne)
{
    Montar();
    fr->AceitaVazio = false;
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Obrigatório"));
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
}

TEST_F(TCepEditBRFrTest, ABoundFramesMessageNamesTheColumn)
{
    AbrirTabela();
    Montar();
    Prender(fr, "descr", QStringLiteral("CEP de entrega"));
    fr->AceitaVazio = false;
    fr->Zerar();
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral("CEP de entrega") + Obrigatorio.mid(4)});
}

TEST_F(TCepEditBRFrTest, TheRequiredPhraseFollowsTheLengthOnEveryKey)
{
    Montar();
    edit->SetAutoExit(false);
    Digitar(edit, QStringLiteral("0104500"));
    EXPECT_EQ(fr->FrasesLigadas(), QString()) << "not while it is optional";
    fr->AceitaVazio = false;
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Obrigatório"));
    Digitar(edit, QStringLiteral("0"));
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Obrigatório"));
    Digitar(edit, QStringLiteral("1"));
    EXPECT_EQ(edit->GetText().size(), 9);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    fr->atualizacoes = 0;
    Teclar(edit, Qt::Key_Backspace);
    EXPECT_EQ(fr->atualizacoes, 1);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Obrigatório"));
}

TEST_F(TCepEditBRFrTest, ValueIsBareTheDisplayTextMaskedAndTheSQLTextQuoted)
{
    Montar();
    const auto tres = [&](const Variant &v) {
        fr->SetValor(v);
        EXPECT_TRUE(fr->GetValor().EhTexto());
        return QStringList{fr->GetValor().AsString(), fr->AsString(), fr->SQLString()};
    };
    const QStringList inteiro{QStringLiteral("01045001"), QStringLiteral("01045-001"),
                              QStringLiteral("'01045001'")};
    EXPECT_EQ(tres(QStringLiteral("01045001")), inteiro);
    EXPECT_EQ(tres(QStringLiteral("01045-001")), inteiro);
    EXPECT_EQ(tres(QStringLiteral(" 01.045-001 ")), inteiro);
    EXPECT_EQ(tres(1045001), inteiro) << "a column of numbers lost the zero";
    EXPECT_EQ(tres(1045001.0), inteiro);
    const QStringList parte{QStringLiteral("1045001"), QStringLiteral("10450-01"),
                            QStringLiteral("'1045001'")};
    EXPECT_EQ(tres(QStringLiteral("1045001")), parte) << "a text has its zeros";
    const QStringList nada{QString(), QString(), QStringLiteral("''")};
    for (const Variant &v : {Null, Variant(), Variant(QString()), Variant(QStringLiteral("   ")),
                             Variant(0), Variant(0.0)})
        EXPECT_EQ(tres(v), nada);
}

TEST_F(TCepEditBRFrTest, ARepeatedOneIsRefusedWhenUniquenessIsAskedFor)
{
    AbrirTabela({QStringLiteral("1, '01045001', 0, 0, '', ''"),
                 QStringLiteral("2, '20040002', 0, 0, '', ''"),
                 QStringLiteral("3, '', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CEP"));
    fr->NaoRepetir = true;
    tabela->AltIni();
    EXPECT_TRUE(fr->ValorAceitavel()) << "its own";
    fr->SetValor(QStringLiteral("20040-002"));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{QStringLiteral(
                          "Repetição\r\nCEP '20040-002' já existe no sistema. Escolha outro valor, "
                          "ou clique em Cancelar.")});
    fr->Zerar();
    EXPECT_TRUE(fr->ValorAceitavel()) << "nothing is never repeated";
}

TEST_F(TCepEditBRFrTest, ReferencePhraseEndsInTwoBlanksWhereOneIsRequired)
{
    AbrirTabela();
    Montar();
    EXPECT_EQ(fr->FraseRef(), QString());
    Prender(fr, "descr", QStringLiteral("CEP"));
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" CEP:  [Tab]Avançar"));
    fr->AceitaVazio = false;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" CEP:  [Tab]Avançar  "));
}

TEST_F(TCepEditBRFrTest, TheUsersEditStartsAnAlterationTheProgramsDoesNot)
{
    AbrirTabela({QStringLiteral("1, '01045001', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CEP"));
    fr->SetValor(QStringLiteral("20040002"));
    fr->Zerar();
    EXPECT_EQ(tela.pedidos, 0);
    fr->SetFocus();
    Teclar(edit, u'1');
    EXPECT_EQ(tela.pedidos, 1);
    tabela->AltCancel();
    edit->selectAll();
    Colar(edit, QStringLiteral("01045-001"));
    EXPECT_EQ(tela.pedidos, 2);
    EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("01045001")));
}

TEST_F(TCepEditBRFrTest, EnteringRunsTheHandlerAndFocusGoesToTheEdit)
{
    Montar();
    EXPECT_FALSE(fr->Focused());
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->entradas, 1);
    EXPECT_EQ(fr->entradasDoFrame, 1);
    antes->setFocus();
    fr->SetFocus();
    EXPECT_EQ(Foco(), edit);
    EXPECT_TRUE(fr->Focused());
}

} // namespace

#include "TCepEditBRFr_test.moc"
