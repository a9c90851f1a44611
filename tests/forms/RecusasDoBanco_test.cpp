#include "forms/TelasDeTeste.h"
#include "platform/database/PrepararBanco.h"
#include "platform/database/TTravas.h"
#include "support/BancoFilho.h"
#include "support/ServidorFirebird.h"

#include <QElapsedTimer>

#include <cstdio>
#include <utility>

namespace ficha::testes
{

/** Confirms that the database refuses: one message, everything as typed, and a second confirm. */
class TRecusasDoBancoTest : public TTelasTest
{
protected:
    void SetUp() override
    {
        TresGrupos();
        banco.Executar(QStringLiteral("insert into tipos values (9, 'liso')"));
        tela = Abrir();
        tela->DescrFr->NaoRepetir = false; // let the database refuse
    }
    void ComecarInsersao(const QString &descr)
    {
        Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
        ASSERT_EQ(Foco(), tela->Descr());
        Digitar(descr);
    }
    void ComecarAlteracao(const QString &descr)
    {
        Tecla(Qt::Key_A, Qt::ControlModifier);
        Tecla(Qt::Key_A, Qt::ControlModifier);
        Digitar(descr);
    }
    void Confirmar() { Tecla(Qt::Key_Return, Qt::ControlModifier); }
    /** One message, beginning with this text; the edit, its inputs and the focus as they were. */
    void ConfereRecusa(const char *mensagem, TStatus status, const QString &descr)
    {
        ASSERT_EQ(erros.size(), 1);
        EXPECT_TRUE(erros[0].startsWith(QString::fromUtf8(mensagem))) << erros[0].toStdString();
        erros.clear();
        EXPECT_EQ(avisos, QStringList());
        EXPECT_EQ(tela->Tab->Status, status);
        EXPECT_EQ(tela->Descr()->text(), descr);
        EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 1);
        EXPECT_EQ(Foco(), tela->Descr());
        EXPECT_FALSE(tela->ConfirmPanel->isHidden());
        EXPECT_TRUE(tela->AtualizarLigado);
    }
    TGruposF *tela = nullptr;
};

constexpr const char *Repetida =
    "Já existe um registro com este valor: o índice \"GRUPOS_DESCR\" não aceita repetição.";
constexpr const char *Comprido = "O texto é mais longo do que o campo aceita.";
constexpr const char *SemReferencia = "O registro a que este se refere não existe";
constexpr const char *Perdida = "A conexão com o banco de dados foi perdida.";

/** The two edits that write a record. */
struct TGravacao {
    const char *nome;
    TStatus status;
    int codigo; /**< of the record that is written */
};

void PrintTo(const TGravacao &gravacao, std::ostream *em)
{
    *em << gravacao.nome;
}

class TGravacaoRecusadaTest : public TRecusasDoBancoTest,
                              public testing::WithParamInterface<TGravacao>
{
protected:
    void Comecar(const QString &descr)
    {
        if (GetParam().status == TStatus::Inserindo)
            ComecarInsersao(descr);
        else
            ComecarAlteracao(descr);
    }
};

TEST_P(TGravacaoRecusadaTest, WithARepeatedKey)
{
    Comecar(QStringLiteral("verde"));
    Confirmar();
    ConfereRecusa(Repetida, GetParam().status, QStringLiteral("verde"));
    EXPECT_EQ(Quantos(), 3);
    banco.Executar(QStringLiteral("delete from grupos where grupos_cod=2"));
    Confirmar();
    EXPECT_EQ(DescrNoBanco(GetParam().codigo), QStringLiteral("verde"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
}

TEST_P(TGravacaoRecusadaTest, WithAReferenceThatIsGone)
{
    Comecar(QStringLiteral("roxo"));
    tela->TipoFr->SetValor(9);
    banco.Executar(QStringLiteral("delete from tipos"));
    Confirmar();
    ConfereRecusa(SemReferencia, GetParam().status, QStringLiteral("roxo"));
    EXPECT_EQ(tela->TipoFr->GetValor(), Variant(9));
    banco.Executar(QStringLiteral("insert into tipos values (9, 'liso')"));
    Confirmar();
    EXPECT_EQ(banco.Valor(QStringLiteral("select tipos_cod from grupos where grupos_cod=%1")
                              .arg(GetParam().codigo)),
              Variant(9));
}

INSTANTIATE_TEST_SUITE_P(Gravacoes, TGravacaoRecusadaTest,
                         testing::Values(TGravacao{"Insertion", TStatus::Inserindo, 4},
                                         TGravacao{"Alteration", TStatus::Alterando, 1}),
                         [](const auto &gravacao) { return std::string(gravacao.param.nome); });

TEST_F(TRecusasDoBancoTest, InsertAndAlterationWithAValueThatIsTooLong)
{
    ComecarInsersao(QStringLiteral("onze letras"));
    Confirmar();
    ConfereRecusa(Comprido, TStatus::Inserindo, QStringLiteral("onze letras"));
    Tecla(Qt::Key_Backspace);
    Confirmar();
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("onze letra"));
    tela->PageControl1->MudarComoUsuario(0);
    ComecarAlteracao(QStringLiteral("doze letras!"));
    Confirmar();
    ConfereRecusa(Comprido, TStatus::Alterando, QStringLiteral("doze letras!"));
    Tecla(Qt::Key_Backspace);
    Tecla(Qt::Key_Backspace);
    Confirmar();
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("doze letra"));
}

TEST_F(TRecusasDoBancoTest, ADeletionOfARecordThatIsInUseIsToldOnce)
{
    banco.Executar(QStringLiteral("insert into itens values (1, 1)"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].startsWith(QStringLiteral("O registro é usado pela tabela \"ITENS\"")))
        << erros[0].toStdString();
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    banco.Executar(QStringLiteral("delete from itens"));
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(DescrNoBanco(1), QString());
}

/** The generator is brought up after the record is stored: a failure there is reported, and the
 * inputs show the record that is current, not the stored one under another one's key. */
TEST_F(TRecusasDoBancoTest, AFailureAfterTheInsertWasStoredLeavesInputsAndRecordTogether)
{
    ComecarInsersao(QStringLiteral("roxo"));
    tela->Tab->NomeTabela = QStringLiteral("grupos");
    tela->aoAposInserir = [this] { tela->Tab->NomeTabela = QStringLiteral("nenhuma"); };
    Confirmar();
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    tela->Tab->NomeTabela = QStringLiteral("grupos");
    EXPECT_EQ(DescrNoBanco(4), QStringLiteral("roxo"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), tela->Tab->Campos->Campos(1)->AsString());
    EXPECT_EQ(tela->Codigo(), tela->Tab->Campos->Campos(0)->AsString());
}

// ---- a list that could not be read again while browsing --------------------------------------

class TListaFechadaTest : public TRecusasDoBancoTest
{
protected:
    void SetUp() override
    {
        TRecusasDoBancoTest::SetUp();
        Tecla(Qt::Key_Down);
        banco.Conexao().Close();
        EXPECT_THROW(tela->Reler(0), EDatabaseError);
        Ocioso();
        ASSERT_FALSE(tela->SQLQuery1->Active());
        ASSERT_EQ(tela->Descr()->text(), QStringLiteral("verde"));
        banco.Conexao().Open();
    }
};

TEST_F(TListaFechadaTest, ItsRowsStayAndTheNextMoveReadsItAgain)
{
    EXPECT_EQ(tela->NRegsLabel->text(), QStringLiteral("3 registros"));
    EXPECT_EQ(tela->StringGrid1->GetRow(), 2);
    Tecla(Qt::Key_Down);
    EXPECT_TRUE(tela->SQLQuery1->Active());
    EXPECT_EQ(tela->Tab->RecNo, 3);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("lilas"));
    EXPECT_TRUE(tela->AltAction->GetEnabled());
}

TEST_F(TListaFechadaTest, ShortCutsOfTheNavigationReadItAgain)
{
    Tecla(Qt::Key_PageUp, Qt::ControlModifier);
    EXPECT_EQ(tela->Tab->RecNo, 1);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
}

TEST_F(TListaFechadaTest, TypingAltersTheRecordThatIsShown)
{
    banco.Executar(QStringLiteral("update grupos set tipos_cod=9 where grupos_cod=2"));
    tela->PageControl1->MudarComoUsuario(1);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("verdes"));
    EXPECT_EQ(tela->TipoFr->GetValor(), Variant(9)); // what others changed meanwhile is shown
    Confirmar();
    EXPECT_EQ(DescrNoBanco(2), QStringLiteral("verdes"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select tipos_cod from grupos where grupos_cod=2")),
              Variant(9));
}

TEST_F(TListaFechadaTest, TypingOverARecordThatIsGoneAltersNoOtherOne)
{
    banco.Executar(QStringLiteral("delete from grupos where grupos_cod=2"));
    tela->PageControl1->MudarComoUsuario(1);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    Ocioso();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), tela->Tab->Campos->Campos(1)->AsString());
}

// ---- on a server ------------------------------------------------------------------------------

/** The screens on a private server, which other processes and connections reach too. */
class TTelasNoServidorTest : public TTelasTest
{
protected:
    void SetUp() override
    {
        FICHA_PRECISA_DE_SERVIDOR();
        ASSERT_TRUE(servidor.Iniciar());
        conexao = servidor.Conexao(QStringLiteral("telas.fdb"));
        conexao->CriarBanco({});
        PrepararBanco(*conexao);
        conexao->ExecutarScript(EsquemaDeTeste);
        conexao->Executar(QStringLiteral("insert into grupos values (1, 'azul', null)"));
        conexao->Executar(QStringLiteral("insert into grupos values (2, 'verde', null)"));
        antes = std::exchange(ConexD().SQLConnection, conexao.get());
        tela = Abrir();
    }
    void TearDown() override
    {
        delete tela.data();
        if (antes)
            ConexD().SQLConnection = antes;
        TTelasTest::TearDown();
    }
    void Confirmar() { Tecla(Qt::Key_Return, Qt::ControlModifier); }
    void ConferePerdida(TStatus status, const QString &descr)
    {
        ASSERT_EQ(erros.size(), 1);
        EXPECT_TRUE(erros[0].startsWith(QString::fromUtf8(Perdida))) << erros[0].toStdString();
        erros.clear();
        EXPECT_EQ(avisos, QStringList());
        EXPECT_EQ(tela->Tab->Status, status);
        EXPECT_EQ(tela->Descr()->text(), descr);
        EXPECT_EQ(Foco(), tela->Descr());
    }
    QString NoServidor(int cod)
    {
        return ValorDoBanco(*conexao,
                            QStringLiteral("select descr from grupos where grupos_cod=%1").arg(cod))
            .AsString();
    }

    TServidorFirebird servidor;
    std::unique_ptr<TSQLConnection> conexao;
    TSQLConnection *antes = nullptr;
    QPointer<TGruposF> tela;
};

TEST_F(TTelasNoServidorTest, AnInsertOnALostConnectionStaysAndTheNextConfirmStoresIt)
{
    Tecla(Qt::Key_I, Qt::ControlModifier | Qt::AltModifier);
    Digitar(QStringLiteral("roxo"));
    servidor.Matar();
    Confirmar();
    ConferePerdida(TStatus::Inserindo, QStringLiteral("roxo"));
    // Still down: told again, once, and nothing is lost.
    Confirmar();
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].startsWith(QStringLiteral("Não foi possível conectar ao servidor")))
        << erros[0].toStdString();
    erros.clear();
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("roxo"));
    ASSERT_TRUE(servidor.Iniciar());
    Confirmar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoServidor(3), QStringLiteral("roxo"));
    EXPECT_EQ(tela->Tab->RecNo, 3);
}

TEST_F(TTelasNoServidorTest, AnAlterationOnALostConnectionTakesItsLockAgainBeforeItWrites)
{
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    servidor.Matar();
    Confirmar();
    ConferePerdida(TStatus::Alterando, QStringLiteral("azuls"));
    ASSERT_TRUE(servidor.Iniciar());
    // Held back from writing, the screen holds the lock again.
    tela->DescrFr->AceitaVazio = true;
    Confirmar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoServidor(1), QStringLiteral("azuls"));
    EXPECT_EQ(conexao->Travas().Count(), 0);
}

TEST_F(TTelasNoServidorTest, ARecordLockedBySomebodyElseMeanwhileIsNotWritten)
{
    Tecla(Qt::Key_A, Qt::ControlModifier);
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("s"));
    servidor.Matar();
    Confirmar();
    ConferePerdida(TStatus::Alterando, QStringLiteral("azuls"));
    ASSERT_TRUE(servidor.Iniciar());
    const auto outra = servidor.Conexao(QStringLiteral("telas.fdb"));
    outra->Open();
    ASSERT_TRUE(outra->Travas().Tentar(QStringLiteral("grupos"), QStringLiteral("1")));
    tela->ganchos.clear();
    for (int i = 0; i < 2; ++i) {
        Confirmar();
        EXPECT_EQ(erros, QStringList());
        ASSERT_EQ(avisos.size(), 1);
        EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("O registro está sendo alterado por ")));
        avisos.clear();
        EXPECT_EQ(tela->Tab->Status, TStatus::Alterando);
        EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azuls"));
        EXPECT_EQ(Foco(), tela->Descr());
        EXPECT_EQ(tela->ganchos, QStringList());
        EXPECT_TRUE(tela->AtualizarLigado);
        EXPECT_EQ(NoServidor(1), QStringLiteral("azul"));
    }
    outra->Travas().LiberarTodas();
    Confirmar();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(NoServidor(1), QStringLiteral("azuls"));
}

TEST_F(TTelasNoServidorTest, ADeletionOnALostConnectionIsToldOnceAndWorksLater)
{
    aoPerguntar = [this] { servidor.Matar(); };
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    aoPerguntar = {};
    ASSERT_EQ(erros.size(), 1);
    EXPECT_TRUE(erros[0].startsWith(QString::fromUtf8(Perdida))) << erros[0].toStdString();
    erros.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->PageControl1->GetActivePageIndex(), 0);
    EXPECT_TRUE(tela->AtualizarLigado);
    ASSERT_TRUE(servidor.Iniciar());
    Tecla(Qt::Key_Down);
    EXPECT_EQ(tela->Tab->RecNo, 2);
    Tecla(Qt::Key_Delete, Qt::ControlModifier);
    EXPECT_EQ(NoServidor(2), QString());
    EXPECT_EQ(NoServidor(1), QStringLiteral("azul"));
}

/** A colleague's program: opens the same screen, alters record 1 and is left standing there. */
FICHA_FILHO(AlterarGrupo)
{
    TServicosGuarda servicos;
    Servicos().MensagemAviso = [](const QString &texto, int) { qWarning() << texto; };
    TSQLConnection conexao;
    conexao.DatabaseName = TFilho::Argumento(0);
    conexao.UserName = QStringLiteral("SYSDBA");
    conexao.Password = QStringLiteral("masterkey");
    conexao.Open();
    ConexD().SQLConnection = &conexao;
    const TFicha biblioteca;
    TMdiArea area;
    auto *tela = Criar<TGruposF>(nullptr);
    area.addSubWindow(tela);
    area.show();
    tela->Show();
    if (!tela->AltAction->Execute() || tela->Tab->Status != TStatus::Alterando)
        return;
    tela->Descr()->setText(QStringLiteral("do colega"));
    TFilho::AvisarEEsperar();
}

TEST_F(TTelasNoServidorTest, TwoProcesses_TheSecondAlterationIsRefusedUntilTheFirstOneDies)
{
    TFilho colega(QStringLiteral("AlterarGrupo"), {servidor.Endereco(QStringLiteral("telas.fdb"))});
    ASSERT_TRUE(colega.Pronto());
    tela->PageControl1->MudarComoUsuario(1);
    Tecla(Qt::Key_End);
    QElapsedTimer relogio;
    relogio.start();
    Digitar(QStringLiteral("s"));
    const qint64 recusa = relogio.elapsed();
    EXPECT_LT(recusa, 1000);
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("O registro está sendo alterado por ")))
        << avisos[0].toStdString();
    EXPECT_TRUE(avisos[0].contains(QStringLiteral("desde"))) << avisos[0].toStdString();
    avisos.clear();
    EXPECT_EQ(tela->Tab->Status, TStatus::Ocioso);
    EXPECT_EQ(tela->Descr()->text(), QStringLiteral("azul"));
    // Another record of the same table is free all the time.
    Tecla(Qt::Key_Down, Qt::ControlModifier);
    EXPECT_TRUE(tela->AtivarAlteracao());
    tela->CancelarAction->Execute();
    Tecla(Qt::Key_Up, Qt::ControlModifier);
    colega.Matar();
    relogio.restart();
    while (!tela->AtivarAlteracao() && relogio.elapsed() < 5000)
        QTest::qWait(5);
    std::printf("refused after %lld ms; free %lld ms after the holder was killed\n",
                static_cast<long long>(recusa), static_cast<long long>(relogio.elapsed()));
    avisos.clear();
    ASSERT_EQ(tela->Tab->Status, TStatus::Alterando);
    Ocioso();
    Tecla(Qt::Key_End);
    Digitar(QStringLiteral("!"));
    Confirmar();
    EXPECT_EQ(NoServidor(1), QStringLiteral("azul!"));
}

} // namespace ficha::testes
