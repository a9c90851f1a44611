#include "input/UCPFEditBRBasFr.h"
#include "platform/edits/TCPFEditBR.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Recusa = QStringLiteral("CPF Inválido\r\nDigite o valor correto ou clique em "
                                      "Cancelar.");

class TContadoFr : public TCPFEditBRBasFr
{
    Q_OBJECT
public:
    using TCPFEditBRBasFr::TCPFEditBRBasFr;
    void Atualizar() override
    {
        TCPFEditBRBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0;
    int mudancas = 0;
    int entradas = 0;
    int entradasDoFrame = 0;

protected:
    void FrameEnter(QObject *sender) override
    {
        ++entradasDoFrame;
        TCPFEditBRBasFr::FrameEnter(sender);
    }
    void CPFEditBR1Change(QObject *sender) override
    {
        EXPECT_EQ(sender, CPFEditBR1);
        ++mudancas;
        TCPFEditBRBasFr::CPFEditBR1Change(sender);
    }
    void CPFEditBR1Enter(QObject *sender) override
    {
        EXPECT_EQ(sender, CPFEditBR1);
        ++entradas;
        TCPFEditBRBasFr::CPFEditBR1Enter(sender);
    }
};

class TCPFEditBRBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        edit = fr->CPFEditBR1;
    }

    TContadoFr *fr = nullptr;
    TCPFEditBR *edit = nullptr;
};

TEST_F(TCPFEditBRBasFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Mostrado<TCPFEditBRBasFr>();
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TCPFEditBRBasFr")));
    const TCPFEditBR *e = puro->CPFEditBR1;
    EXPECT_TRUE(e->GetAutoExit());
    EXPECT_EQ(e->GetMaxLength(), 14);
    EXPECT_TRUE(e->alignment().testFlag(Qt::AlignLeft));
    EXPECT_EQ(e->GetCaption(), QStringLiteral("CPF"));
    EXPECT_EQ(e->GetText(), QString());
    puro->SetValor(QStringLiteral("88888888888"));
    EXPECT_LE(e->fontMetrics().horizontalAdvance(e->GetText()), e->width() - 6);
    Retratar(puro, QStringLiteral("TCPFEditBRBasFr-cheio"));
}

TEST_F(TCPFEditBRBasFrTest, AFreshFrameIsRequiredAndUnique)
{
    Montar();
    EXPECT_FALSE(fr->AceitaVazio);
    EXPECT_TRUE(fr->NaoRepetir);
    EXPECT_EQ(fr->Frases.Count(), 2);
    EXPECT_EQ(fr->Frases.Texto(1), QStringLiteral("CPF Inválido"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_TRUE(fr->setProperty("AceitaVazio", true));
    EXPECT_TRUE(fr->AceitaVazio);
}

TEST_F(TCPFEditBRBasFrTest, ValueIsBareTheDisplayTextMaskedAndTheSQLTextQuoted)
{
    Montar();
    for (const QString &v : {QStringLiteral("52998224725"), QStringLiteral("529.982.247-25")}) {
        fr->SetValor(v);
        EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("52998224725")));
        EXPECT_TRUE(fr->GetValor().EhTexto());
        EXPECT_EQ(fr->AsString(), QStringLiteral("529.982.247-25"));
        EXPECT_EQ(fr->SQLString(), QStringLiteral("'52998224725'"));
    }
    fr->Frases.SetObjeto(1, 1);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(QString()));
    EXPECT_EQ(fr->AsString(), QString());
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TCPFEditBRBasFrTest, AValidOneIsAcceptedAndSwitchesThePhraseOff)
{
    Montar();
    fr->SetValor(QStringLiteral("52998224725"));
    fr->Frases.SetObjeto(1, 1);
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TCPFEditBRBasFrTest, AnInvalidOneIsRefusedWithTheMessageAndKeepsTheFocus)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("5299822473"));
    Teclar(edit, Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{Recusa});
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("CPF Inválido"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-3"));
    Teclar(edit, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(Foco(), edit);
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos.size(), 3);
    EXPECT_EQ(Foco(), edit);
    Digitar(edit, QStringLiteral("5"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-35")) << "typed on where it was left";
}

TEST_F(TCPFEditBRBasFrTest, TypingTheLastDigitLeavesUnlessTheCheckDigitsAreWrong)
{
    Montar();
    fr->SetFocus();
    Digitar(edit, QStringLiteral("52998224735"));
    EXPECT_EQ(avisos, QStringList{Recusa});
    EXPECT_EQ(Foco(), edit);
    // Back in, everything is selected: the right one is typed over it.
    Digitar(edit, QStringLiteral("52998224725"));
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    EXPECT_EQ(edit->selectedText(), QString()) << "nothing stays marked behind";
    EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("52998224725")));
}

TEST_F(TCPFEditBRBasFrTest, OneDigitRepeatedIsRefused)
{
    Montar();
    fr->SetValor(QString(11, u'1'));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{Recusa});
}

TEST_F(TCPFEditBRBasFrTest, AnEmptyOneIsRefusedUnlessEmptyIsAccepted)
{
    Montar();
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{Recusa});
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("CPF Inválido"));
    fr->AceitaVazio = true;
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    fr->SetValor(QStringLiteral("5"));
    EXPECT_FALSE(fr->ValorAceitavel()) << "a part of one is not empty";
    EXPECT_EQ(avisos, QStringList({Recusa, Recusa}));
}

TEST_F(TCPFEditBRBasFrTest, ARepeatedOneIsAcceptedAlthoughTheFrameIsUnique)
{
    AbrirTabela({QStringLiteral("1, '52998224725', 0, 0, '', ''"),
                 QStringLiteral("2, '15886489070', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    tabela->AltIni();
    fr->SetValor(QStringLiteral("15886489070"));
    EXPECT_TRUE(fr->Repetido());
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TCPFEditBRBasFrTest, NothingTypedIsNeverRepeated)
{
    AbrirTabela({QStringLiteral("1, '52998224725', 0, 0, '', ''"),
                 QStringLiteral("2, null, 0, 0, '', ''"), QStringLiteral("3, '', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    tabela->InsIni();
    fr->Zerar();
    EXPECT_FALSE(fr->Repetido());
    tabela->InsCancel();
    tabela->AltIni();
    fr->Zerar();
    EXPECT_FALSE(fr->Repetido());
}

TEST_F(TCPFEditBRBasFrTest, ReferencePhraseEndsInTwoBlanksWhereOneIsRequired)
{
    AbrirTabela();
    Montar();
    EXPECT_EQ(fr->FraseRef(), QStringLiteral("  ")) << "not bound";
    Prender(fr, "descr", QStringLiteral("CPF"));
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" CPF:  [Tab]Avançar  Não pode ser repetido  "));
    fr->AceitaVazio = true;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" CPF:  [Tab]Avançar  Não pode ser repetido"));
}

TEST_F(TCPFEditBRBasFrTest, EachWayOfTheUserStartsAnAlterationTheProgramDoesNot)
{
    AbrirTabela({QStringLiteral("1, '52998224725', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("529.982.247-25"));
    fr->SetValor(QStringLiteral("15886489070"));
    fr->Zerar();
    edit->SetValor(QStringLiteral("52998224725"));
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);

    const auto gesto = [&](const char *nome, const std::function<void()> &faz) {
        edit->SetValor(QStringLiteral("52998224725"));
        fr->SetFocus();
        tela.pedidos = 0;
        faz();
        EXPECT_EQ(tela.pedidos, 1) << nome;
        EXPECT_EQ(tabela->Status, TStatus::Alterando) << nome;
        tabela->AltCancel();
    };
    gesto("key", [&] { Teclar(edit, u'1'); });
    gesto("backspace", [&] { Teclar(edit, Qt::Key_Backspace); });
    gesto("delete", [&] { Teclar(edit, Qt::Key_Delete); });
    gesto("paste", [&] { Colar(edit, QStringLiteral("158.864.890-70")); });
    gesto("drop", [&] { Soltar(edit, QStringLiteral("158.864.890-70")); });
    gesto("cut", [&] {
        edit->selectAll();
        Teclar(edit, Qt::Key_X, Qt::ControlModifier);
    });
    // What changes nothing asks for nothing.
    edit->SetValor(QStringLiteral("52998224725"));
    tela.pedidos = 0;
    edit->end(false);
    Digitar(edit, QStringLiteral("x9.-"));
    Teclar(edit, Qt::Key_Left);
    Teclar(edit, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TCPFEditBRBasFrTest, TheCaretStaysWhereTheUserTypesWhenTheAlterationStarts)
{
    AbrirTabela({QStringLiteral("1, '52998224725', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    fr->SetFocus();
    edit->setCursorPosition(5);
    Teclar(edit, u'1');
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.912.247-25"));
    EXPECT_EQ(edit->cursorPosition(), 6);
}

TEST_F(TCPFEditBRBasFrTest, ARefusedAlterationShowsTheStoredOneAgainAndStaysInTheEdit)
{
    AbrirTabela({QStringLiteral("1, '52998224725', 0, 0, '', ''")});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    tela.recusa = true;
    fr->SetFocus();
    edit->setCursorPosition(13);
    Teclar(edit, u'9');
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(edit->GetText(), QStringLiteral("529.982.247-25"));
    EXPECT_EQ(Foco(), edit) << "a key that was taken back is no last digit";
}

TEST_F(TCPFEditBRBasFrTest, TheFirstDigitSurvivesAnInsertionThatEmptiesTheInputs)
{
    AbrirTabela({});
    Montar();
    Prender(fr, "descr", QStringLiteral("CPF"));
    fr->SetFocus();
    Digitar(edit, QStringLiteral("52998224725"));
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("52998224725")));
}

TEST_F(TCPFEditBRBasFrTest, AChangeRefreshesOnceAndEnteringRunsTheHandler)
{
    Montar();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), edit);
    EXPECT_EQ(fr->entradas, 1);
    EXPECT_EQ(fr->entradasDoFrame, 1);
    fr->atualizacoes = 0;
    Teclar(edit, u'1');
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_EQ(fr->atualizacoes, 1);
}

TEST_F(TCPFEditBRBasFrTest, FocusGoesToTheEditWhenItCanBeSeen)
{
    Montar();
    EXPECT_FALSE(fr->Focused());
    fr->SetFocus();
    EXPECT_EQ(Foco(), edit);
    EXPECT_TRUE(fr->Focused());
    fr->AceitaVazio = true;
    antes->setFocus();
    edit->hide();
    fr->SetFocus();
    edit->show();
    EXPECT_NE(Foco(), edit) << "nor when it is shown later";
    fr->hide();
    fr->SetFocus();
    fr->show();
    EXPECT_NE(Foco(), edit);
    fr->setFocusPolicy(Qt::ClickFocus);
    fr->setFocus();
    EXPECT_EQ(Foco(), fr);
    EXPECT_TRUE(fr->Focused()) << "the frame itself counts, too";
}

TEST_F(TCPFEditBRBasFrTest, ItsColumnGetsTheBareNumberBackAndForth)
{
    AbrirTabela();
    Montar();
    const TCampo *campo = Prender(fr, "descr", QStringLiteral("CPF"));
    for (const QString &cpf : {QStringLiteral("09090947000"), QStringLiteral("52998224725"),
                               QString(), QStringLiteral("ISENTO"), QStringLiteral("D'ÁVILA")}) {
        fr->SetValor(cpf);
        banco->Executar(QStringLiteral("update testes set descr = ") + fr->SQLString());
        query.Close();
        query.Open();
        tabela->First();
        EXPECT_EQ(campo->Field->AsString(), cpf);
        EXPECT_FALSE(campo->Field->IsNull());
        EXPECT_EQ(fr->GetValor(), Variant(cpf));
    }
}

TEST_F(TCPFEditBRBasFrTest, ANumericColumnGetsItsLeadingZerosBack)
{
    AbrirTabela({QStringLiteral("1, '', 5299822472, 0, '', ''")});
    Montar();
    Prender(fr, "num", QStringLiteral("CPF"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("052.998.224-72"));
    fr->SetValor(QStringLiteral("01588648907"));
    banco->Executar(QStringLiteral("update testes set num = ") + fr->SQLString());
    EXPECT_EQ(banco->Valor(QStringLiteral("select cast(num as bigint) from testes")).AsFloat(),
              1588648907.0);
}

TEST_F(TCPFEditBRBasFrTest, AColumnThatWantsNullForNothingGetsItFromTheSQLText)
{
    AbrirTabela();
    Montar();
    const auto gravado = [&] {
        banco->Executar(QStringLiteral("update testes set descr = nullif(") + fr->SQLString() +
                        QStringLiteral(", '')"));
        return banco->Valor(QStringLiteral("select descr from testes"));
    };
    EXPECT_EQ(gravado(), Null);
    fr->SetValor(QStringLiteral("52998224725"));
    EXPECT_EQ(gravado(), Variant(QStringLiteral("52998224725")));
}

TEST_F(TCPFEditBRBasFrTest, HostileTextsAreRefusedWhole)
{
    Montar();
    fr->SetFocus();
    edit->SetValor(QStringLiteral("52998224725"));
    for (const QString &texto : TextosHostis())
        Colar(edit, texto);
    EXPECT_EQ(fr->GetValor(), Variant(QStringLiteral("52998224725")));
    EXPECT_EQ(avisos.size(), TextosHostis().size());
    fr->SetValor(QStringLiteral("'; drop table testes; --"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'''; drop table testes; --'"));
}

} // namespace

#include "TCPFEditBRBasFr_test.moc"
