#include "input/UApoioInput.h"
#include "input/UMemoBasFr.h"
#include "platform/toolkit/TMemo.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QElapsedTimer>
#include <QScrollBar>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TMemoBasFr
{
    Q_OBJECT
public:
    using TMemoBasFr::TMemoBasFr;
    int mudancas = 0;

protected:
    void Memo1Change(QObject *sender) override
    {
        EXPECT_EQ(sender, Memo1);
        ++mudancas;
        TMemoBasFr::Memo1Change(sender);
    }
};

class TMemoBasFrTest : public TEntradaTest
{
protected:
    void Montar()
    {
        fr = Mostrado<TContadoFr>();
        memo = fr->Memo1;
    }
    void MontarPreso()
    {
        AbrirTabela();
        Montar();
        Prender(fr, "obs", QStringLiteral("Observações"));
        memo->setFocus();
    }

    TContadoFr *fr = nullptr;
    TMemo *memo = nullptr;
};

TEST_F(TMemoBasFrTest, LayoutIsTheGoldenOne)
{
    auto *puro = Mostrado<TMemoBasFr>();
    puro->SetValor(QStringLiteral("Primeira linha\r\nÂÇgjpqy\r\n") +
                   QStringLiteral("um texto que não cabe na largura do memo e por isso quebra"));
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TMemoBasFr")));
    puro->resize(400, 60);
    QCoreApplication::processEvents();
    EXPECT_EQ(puro->Memo1->geometry(), QRect(0, 0, 400, 60)) << "the memo fills the frame";
}

TEST_F(TMemoBasFrTest, Defaults)
{
    Montar();
    EXPECT_TRUE(fr->AceitaVazio);
    EXPECT_FALSE(fr->NaoRepetir);
    ASSERT_EQ(fr->Frases.Count(), 3);
    EXPECT_EQ(fr->Frases.Texto(1), QStringLiteral("brigatório"));
    EXPECT_EQ(fr->Frases.Texto(2), QStringLiteral("Máx. de caracteres"));
}

TEST_F(TMemoBasFrTest, TypingAnAccentedLetterStoresThePlainOneAndStartsEditing)
{
    MontarPreso();
    memo->selectAll();
    Teclar(memo, u'é');
    EXPECT_EQ(memo->GetText(), QStringLiteral("e"));
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    Digitar(memo, QStringLiteral("çÃÜ"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("ecAU"));
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TMemoBasFrTest, TypingEnterDoesNotStartEditing)
{
    MontarPreso();
    Teclar(memo, Qt::Key_Return);
    EXPECT_EQ(memo->GetText(), QStringLiteral("\r\nmemo"));
    EXPECT_EQ(tela.pedidos, 0);
    Teclar(memo, u'"');
    EXPECT_EQ(tela.pedidos, 0) << "a quote is not among the keys that start it";
    Teclar(memo, Qt::Key_Down);
    Teclar(memo, Qt::Key_End);
    EXPECT_EQ(tela.pedidos, 0);
    Teclar(memo, u'.');
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TMemoBasFrTest, TheAlterationStartsBeforeTheKeyLands)
{
    MontarPreso();
    QString antesDaTecla;
    tela.antesDeAtivar = [&] { antesDaTecla = memo->GetText(); };
    Teclar(memo, u'x');
    EXPECT_EQ(antesDaTecla, QStringLiteral("memo"));
    tabela->AltCancel();
    Teclar(memo, Qt::Key_Delete);
    EXPECT_EQ(antesDaTecla, QStringLiteral("xmemo"));
    tabela->AltCancel();
    Teclar(memo, Qt::Key_Backspace);
    EXPECT_EQ(antesDaTecla, QStringLiteral("xemo"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("emo"));
    EXPECT_EQ(tela.pedidos, 3);
}

TEST_F(TMemoBasFrTest, PastingAndDroppingStartTheAlteration)
{
    MontarPreso();
    Colar(memo, QStringLiteral("colado é\n"));
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(memo->GetText(), QStringLiteral("colado é\r\nmemo")) << "pasted accents stay";
    tabela->AltCancel();
    Soltar(memo->viewport(), QStringLiteral("solto"));
    EXPECT_EQ(tela.pedidos, 2);
    EXPECT_TRUE(memo->GetText().contains(QStringLiteral("solto")));
}

TEST_F(TMemoBasFrTest, CuttingUndoingAndRedoingStartTheAlteration)
{
    MontarPreso();
    memo->selectAll();
    Teclar(memo, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(memo->GetText(), QString());
    tabela->AltFim();
    Teclar(memo, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(tela.pedidos, 2) << "although nothing is left to be undone";
    EXPECT_EQ(memo->GetText(), QStringLiteral("memo"));
    tabela->AltFim();
    Teclar(memo, Qt::Key_Y, Qt::ControlModifier);
    EXPECT_EQ(tela.pedidos, 3);
    EXPECT_EQ(memo->GetText(), QString());
}

TEST_F(TMemoBasFrTest, TheProgramNeverStartsAnAlteration)
{
    MontarPreso();
    fr->SetValor(QStringLiteral("do programa"));
    memo->SetText(QStringLiteral(" outra vez "));
    EXPECT_TRUE(fr->ValorAceitavel());
    memo->insertPlainText(QStringLiteral("inserido"));
    memo->appendPlainText(QStringLiteral("acrescentado"));
    fr->Zerar();
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TMemoBasFrTest, ARefusedAlterationIsToldOnceAndTheStoredTextStays)
{
    MontarPreso();
    tela.recusa = true;
    Teclar(memo, u'x');
    EXPECT_EQ(avisos.size(), 1);
    EXPECT_EQ(memo->GetText(), QStringLiteral("memo"));
    Teclar(memo, Qt::Key_Delete);
    EXPECT_EQ(avisos.size(), 2);
    EXPECT_EQ(memo->GetText(), QStringLiteral("memo"));
    Colar(memo, QStringLiteral("colado"));
    EXPECT_EQ(avisos.size(), 3);
    EXPECT_EQ(memo->GetText(), QStringLiteral("memo"));
}

TEST_F(TMemoBasFrTest, TheFirstCharacterSurvivesAnInsertionThatEmptiesTheInputs)
{
    AbrirTabela({});
    Montar();
    Prender(fr, "obs", QStringLiteral("Observações"));
    memo->setFocus();
    Digitar(memo, QStringLiteral("ab"));
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(memo->GetText(), QStringLiteral("ab"));
    tabela->InsCancel();
    Colar(memo, QStringLiteral("colado"));
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    Teclar(memo, u'!');
    EXPECT_EQ(memo->GetText(), QStringLiteral("colado!")) << "the caret is behind it";
}

TEST_F(TMemoBasFrTest, ARequiredMemoIsRefusedWithItsOwnText)
{
    Montar();
    fr->AceitaVazio = false;
    memo->SetText(QStringLiteral(" \r\n  "));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(memo->GetText(), QString());
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("brigatório"));
    AbrirTabela();
    Prender(fr, "obs", QStringLiteral("Observações"));
    memo->Clear();
    EXPECT_FALSE(fr->ValorAceitavel());
    const QString resto = QStringLiteral(" é um campo obrigatório\r\n(não pode ser deixado em "
                                         "branco).\r\nDigite um valor ou clique em Cancelar.");
    EXPECT_EQ(avisos,
              (QStringList{QStringLiteral("Este") + resto, QStringLiteral("Observações") + resto}));
}

TEST_F(TMemoBasFrTest, LeavingWithARefusedValueWarnsOnceAndKeepsTheFocus)
{
    Montar();
    fr->AceitaVazio = false;
    memo->setFocus();
    Teclar(memo, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1) << "Tab";
    EXPECT_EQ(Foco(), memo);
    Teclar(memo, Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(avisos.size(), 2) << "Shift+Tab";
    EXPECT_EQ(Foco(), memo);
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos.size(), 3) << "a click elsewhere";
    EXPECT_EQ(Foco(), memo);
    Teclar(memo, u'x');
    Teclar(memo, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(avisos.size(), 3);
}

TEST_F(TMemoBasFrTest, TheTrimIsWrittenBackAndAnnouncedOnEveryCheck)
{
    Montar();
    memo->SetText(QStringLiteral("  a\r\n b  "));
    fr->mudancas = 0;
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(memo->GetText(), QStringLiteral("a\r\n b"));
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_TRUE(fr->ValorAceitavel());
    EXPECT_EQ(fr->mudancas, 2);
}

TEST_F(TMemoBasFrTest, TheMaximumLengthShowsItsPhrase)
{
    Montar();
    memo->SetMaxLength(4);
    memo->setFocus();
    Digitar(memo, QStringLiteral("abc"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
    fr->Frases.SetObjeto(FraseJaExiste, 1);
    Teclar(memo, u'd');
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Máx 4 caracs.")) << "and Já existe is off";
    Teclar(memo, Qt::Key_Backspace);
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TMemoBasFrTest, TheValueIsTheTextOfAllLinesTrimmed)
{
    Montar();
    fr->SetValor(QStringLiteral("  um\ndois\r\ntrês \r\n"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("  um\r\ndois\r\ntrês \r\n")) << "shown untrimmed";
    EXPECT_EQ(fr->AsString(), QStringLiteral("um\r\ndois\r\ntrês"));
    EXPECT_TRUE(fr->GetValor().EhTexto());
    EXPECT_EQ(fr->GetValor().AsString(), fr->AsString());
    fr->SetValor(Null);
    EXPECT_EQ(memo->GetText(), QString()) << "Null empties the memo";
    EXPECT_EQ(fr->SQLString(), QStringLiteral("''"));
}

TEST_F(TMemoBasFrTest, HostileTextsComeBackFromTheDatabaseAsTheyWentIn)
{
    MontarPreso();
    QStringList textos = TextosHostis();
    textos << QStringLiteral("linha 1\r\nlinha 2\r\n\r\nlinha 4 'fim'");
    for (const QString &texto : textos) {
        memo->selectAll();
        Colar(memo, texto);
        ASSERT_EQ(memo->GetText(), texto);
        banco->Executar(QStringLiteral("update testes set obs = ") + fr->SQLString());
        query.Close();
        query.Open();
        tabela->AltCancel();
        tabela->First();
        EXPECT_EQ(memo->GetText(), texto);
    }
}

TEST_F(TMemoBasFrTest, ACharacterThatTheDatabaseCannotHoldIsRefused)
{
    Montar();
    memo->setFocus();
    Digitar(memo, QStringLiteral("a€b"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("ab"));
    Colar(memo, QStringLiteral("x–y"));
    EXPECT_EQ(memo->GetText(), QStringLiteral("ab"));
    EXPECT_EQ(avisos.size(), 2);
}

TEST_F(TMemoBasFrTest, FraseRefAddsObrigatorio)
{
    MontarPreso();
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Observações:  [Tab]Avançar"));
    fr->AceitaVazio = false;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Observações:  [Tab]Avançar  Obrigatório"));
}

TEST_F(TMemoBasFrTest, SetFocusReachesTheMemoOnlyWhereItCanBeSeen)
{
    Montar();
    fr->SetFocus();
    EXPECT_EQ(Foco(), memo);
    antes->setFocus();
    memo->hide();
    fr->SetFocus();
    EXPECT_NE(Foco(), memo);
}

/** Nanoseconds per typed key. */
double CustoDaTecla(TMemo *memo)
{
    memo->SetText(QString(500, u'x') + QStringLiteral("\r\n").repeated(200));
    memo->setFocus();
    constexpr int Teclas = 300;
    QElapsedTimer relogio;
    relogio.start();
    for (int i = 0; i < Teclas; ++i)
        QTest::keyClick(memo, Qt::Key_A);
    return double(relogio.nsecsElapsed()) / Teclas;
}

TEST_F(TMemoBasFrTest, AKeyInALongMemoCostsMicroseconds)
{
    MontarPreso();
    auto *puro = new TMemo(&tela);
    puro->setGeometry(10, 150, 283, 98);
    puro->show();
    const double semFrame = CustoDaTecla(puro);
    const double comFrame = CustoDaTecla(memo);
    RecordProperty("ns_per_key_of_a_memo", int(semFrame));
    RecordProperty("ns_per_key_of_the_frame", int(comFrame - semFrame));
    EXPECT_LT(comFrame - semFrame, 500'000) << "ns that the frame adds to a key";
}

} // namespace

#include "TMemoBasFr_test.moc"
