#include "base/UControlBasFr.h"
#include "platform/core/Servicos.h"
#include "platform/toolkit/TActionList.h"

#include <QLineEdit>

using namespace ficha;

namespace
{

/** A value frame with an edit, which refuses "ruim". */
class TEditFr : public TControlBasFr
{
    Q_OBJECT
public:
    using TControlBasFr::TControlBasFr;
    void Create(QWidget *owner) override
    {
        TControlBasFr::Create(owner);
        edit = new QLineEdit(this);
        Frases.Add(QStringLiteral("Um"));
        Frases.Add(QStringLiteral("Dois"));
        Frases.Add(QStringLiteral("Três"));
    }
    void SetFocus() override { edit->setFocus(); }
    bool ValorAceitavel() override
    {
        ++perguntas;
        if (edit->text() != QStringLiteral("ruim"))
            return true;
        Frases.SetObjeto(1, 1);
        Servicos().MensagemAviso(QStringLiteral("não serve"), 0);
        return false;
    }
    void Atualizar() override
    {
        ++atualizacoes;
        mostrado = FrasesLigadas();
    }
    void PegueNovo(int codigo) override { novo = codigo; }

    QLineEdit *edit = nullptr;
    int perguntas = 0;
    int atualizacoes = 0;
    int novo = 0;
    QString mostrado;
};

/** A screen that can be asked for a code. */
class TTelaF : public TForm, public ITelaManutencao
{
    Q_OBJECT
public:
    using TForm::TForm;
    bool AtivarAlteracao() override { return false; }
    TControlBasFr *GetChamador() const override { return chamador; }
    void SetChamador(TControlBasFr *novo) override { chamador = novo; }
    TControlBasFr *chamador = nullptr;
};

class TControlBasFrTest : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        Servicos().MensagemSimples = [this](const QString &texto) { simples << texto; };
        fr = Criar<TEditFr>(&janela);
        outro = new QLineEdit(&janela);
        outro->move(0, 100);
        janela.resize(300, 200);
        janela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
        fr->edit->setFocus();
    }

    TServicosGuarda guarda;
    QStringList avisos;
    QStringList simples;
    QWidget janela;
    TEditFr *fr = nullptr;
    QLineEdit *outro = nullptr;
};

TEST(TControlBasFr, AFreshFrameAnswersTheContractWithNothing)
{
    QWidget janela;
    auto *fresco = Criar<TControlBasFr>(&janela);
    EXPECT_TRUE(fresco->GetValor().EhInteiro());
    EXPECT_EQ(fresco->GetValor(), Variant(0));
    EXPECT_EQ(fresco->AsString(), QString());
    EXPECT_EQ(fresco->SQLString(), QString());
    EXPECT_TRUE(fresco->ValorAceitavel());
    EXPECT_TRUE(fresco->CanExit());
    EXPECT_EQ(fresco->size(), QSize(146, 48));
    EXPECT_EQ(fresco->Frases.Count(), 0);
    EXPECT_TRUE(fresco->FormSelecionar.isNull());
}

TEST_F(TControlBasFrTest, PhrasesOtherThanOnAreSkipped)
{
    EXPECT_EQ(fr->FrasesLigadas(), QString()) << "all off compose an empty text";
    fr->Frases.SetObjeto(0, 1);
    fr->Frases.SetObjeto(1, 2);
    fr->Frases.SetObjeto(2, 1);
    EXPECT_EQ(fr->FrasesLigadas(), QStringLiteral("Um. Três"));
}

TEST_F(TControlBasFrTest, ZerarSwitchesThePhrasesOffAndKeepsTheirTexts)
{
    fr->Frases.SetObjeto(0, 1);
    fr->Frases.SetObjeto(2, 1);
    fr->Zerar();
    EXPECT_EQ(fr->Frases.Count(), 3);
    EXPECT_EQ(fr->Frases.Texto(2), QStringLiteral("Três"));
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(fr->Frases.Objeto(i), 0);
}

TEST_F(TControlBasFrTest, CanExitRefreshesWhateverTheAnswer)
{
    EXPECT_TRUE(fr->CanExit());
    EXPECT_EQ(fr->atualizacoes, 1);
    fr->edit->setText(QStringLiteral("ruim"));
    EXPECT_FALSE(fr->CanExit());
    EXPECT_EQ(fr->atualizacoes, 2);
}

TEST_F(TControlBasFrTest, LeavingAGoodValueSwitchesThePhrasesOffAndRefreshesTwice)
{
    fr->Frases.SetObjeto(0, 1);
    fr->atualizacoes = 0;
    QTest::keyClick(fr->edit, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), outro);
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    EXPECT_EQ(fr->atualizacoes, 2);
}

TEST_F(TControlBasFrTest, LeavingARefusedValueKeepsTheFocusThePhrasesAndOneMessage)
{
    fr->edit->setText(QStringLiteral("ruim"));
    const auto sair = [&](auto &&como) {
        avisos.clear();
        como();
        EXPECT_EQ(QApplication::focusWidget(), fr->edit);
        EXPECT_EQ(avisos, QStringList{QStringLiteral("não serve")});
        EXPECT_EQ(fr->Frases.Objeto(1), 1);
        EXPECT_EQ(fr->mostrado, QStringLiteral("Dois"));
    };
    sair([&] { QTest::keyClick(fr->edit, Qt::Key_Tab); });
    sair([&] { QTest::keyClick(fr->edit, Qt::Key_Tab); });
    sair([&] { QTest::keyClick(fr->edit, Qt::Key_Backtab, Qt::ShiftModifier); });
    sair([&] { QTest::mouseClick(outro, Qt::LeftButton); });
    fr->edit->setText(QStringLiteral("bom"));
    QTest::keyClick(fr->edit, Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), outro);
}

TEST_F(TControlBasFrTest, AnotherWindowOnTopIsNoExit)
{
    fr->edit->setText(QStringLiteral("ruim"));
    QWidget porCima;
    porCima.show();
    porCima.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&porCima));
    EXPECT_TRUE(avisos.isEmpty());
    EXPECT_EQ(fr->perguntas, 0);
    porCima.close();
    janela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    QTest::keyClick(fr->edit, Qt::Key_Tab);
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(TControlBasFrTest, SelecionarWithoutActionSaysSo)
{
    int chamadas = 0;
    fr->OnSelecionar = [&](QObject *) { ++chamadas; };
    fr->Selecionar();
    EXPECT_EQ(simples, QStringList{QStringLiteral("faltou indicar SelecionarAction")});
    EXPECT_EQ(chamadas, 0);
}

TEST_F(TControlBasFrTest, SelecionarLinksTheScreenThatTheActionOpened)
{
    TActionList acoes(&janela);
    TAction acao(&acoes);
    TTelaF *tela = nullptr;
    acao.OnExecute = [&](QObject *) {
        tela = Criar<TTelaF>(nullptr);
        tela->setObjectName(QStringLiteral("GruposF"));
    };
    QObject *quem = nullptr;
    fr->SelecionarAction = &acao;
    fr->NomeFormSelecionar = QStringLiteral("GruposF");
    fr->OnSelecionar = [&](QObject *sender) { quem = sender; };
    fr->Selecionar();
    ASSERT_NE(tela, nullptr);
    EXPECT_EQ(fr->FormSelecionar, tela);
    EXPECT_EQ(tela->GetChamador(), fr);
    EXPECT_EQ(quem, fr);
    delete tela;
    EXPECT_TRUE(fr->FormSelecionar.isNull());
    delete fr;
}

TEST_F(TControlBasFrTest, SelecionarWithoutAScreenOfThatNameStillNotifies)
{
    TActionList acoes(&janela);
    TAction acao(&acoes);
    int chamadas = 0;
    fr->SelecionarAction = &acao;
    fr->NomeFormSelecionar = QStringLiteral("NaoExisteF");
    fr->OnSelecionar = [&](QObject *) { ++chamadas; };
    fr->Selecionar();
    EXPECT_TRUE(fr->FormSelecionar.isNull());
    EXPECT_EQ(chamadas, 1);
}

TEST_F(TControlBasFrTest, ADestroyedFrameClearsOnlyItsOwnBackReference)
{
    std::unique_ptr<TTelaF> tela(Criar<TTelaF>(nullptr));
    auto *segundo = Criar<TEditFr>(&janela);
    fr->FormSelecionar = tela.get();
    segundo->FormSelecionar = tela.get();
    tela->SetChamador(segundo);
    delete fr;
    EXPECT_EQ(tela->GetChamador(), segundo);
    delete segundo;
    EXPECT_EQ(tela->GetChamador(), nullptr);
}

TEST_F(TControlBasFrTest, AFrameMayGoWhileItsWarningIsShown)
{
    QPointer<TEditFr> vivo = fr;
    Servicos().MensagemAviso = [&](const QString &, int) { delete vivo; };
    fr->edit->setText(QStringLiteral("ruim"));
    EXPECT_FALSE(fr->CanExit());
    EXPECT_TRUE(vivo.isNull());

    vivo = Criar<TEditFr>(&janela);
    vivo->show();
    vivo->edit->setFocus();
    vivo->edit->setText(QStringLiteral("ruim"));
    QTest::keyClick(vivo->edit, Qt::Key_Tab);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(TControlBasFrTest, AFrameWithoutParentIsNeverAskedOnExit)
{
    fr->setParent(nullptr);
    fr->edit->setText(QStringLiteral("ruim"));
    fr->perguntas = 0;
    fr->OnExit(fr);
    EXPECT_EQ(fr->perguntas, 0);
    delete fr;
}

TEST_F(TControlBasFrTest, AFrameMayGoInItsOwnSelection)
{
    TActionList acoes(&janela);
    TAction acao(&acoes);
    int chamadas = 0;
    fr->SelecionarAction = &acao;
    fr->OnSelecionar = [&](QObject *) { ++chamadas; };
    acao.OnExecute = [&](QObject *) { delete fr; };
    fr->Selecionar();
    EXPECT_EQ(chamadas, 0);
}

} // namespace

#include "TControlBasFr_test.moc"
