// Two workstations on one server, and what happens when one of them or the server dies.

#include "platform/database/PrepararBanco.h"
#include "platform/database/TSQLQuery.h"
#include "platform/database/TTravas.h"
#include "support/BancoFilho.h"
#include "support/BancoTemp.h"
#include "support/ServidorFirebird.h"

#include <QElapsedTimer>
#include <QThread>

using namespace ficha;

namespace
{

const QString Grupo = QStringLiteral("grupo");

class ServidorTest : public testing::Test
{
protected:
    static std::unique_ptr<TServidorFirebird> servidor;

    static void TearDownTestSuite() { servidor.reset(); }

    void SetUp() override
    {
        FICHA_PRECISA_DE_SERVIDOR();
        if (!servidor) {
            servidor = std::make_unique<TServidorFirebird>();
            ASSERT_TRUE(servidor->Iniciar());
        }
        static int numero = 0;
        nome = QStringLiteral("base%1.fdb").arg(++numero);
        a = servidor->Conexao(nome);
        a->CriarBanco(QStringLiteral("create table grupo (cod integer primary key, n varchar(9));"
                                     "insert into grupo values (1, 'um');"));
        PrepararBanco(*a);
        b = servidor->Conexao(nome);
        b->Open();
    }

    /** The error class of an action that must fail. */
    static TErroBanco Falha(const std::function<void()> &f)
    {
        try {
            f();
        } catch (const EDatabaseError &erro) {
            mensagem = erro.Mensagem();
            return erro.Tipo;
        }
        ADD_FAILURE() << "no error";
        return TErroBanco::Outro;
    }
    static void Reiniciar()
    {
        servidor->Matar();
        ASSERT_TRUE(servidor->Iniciar());
    }
    Variant Contar(TSQLConnection &conexao)
    {
        return ValorDoBanco(conexao, QStringLiteral("select count(*) from grupo"));
    }

    static QString mensagem;
    QString nome;
    std::unique_ptr<TSQLConnection> a;
    std::unique_ptr<TSQLConnection> b;
};

std::unique_ptr<TServidorFirebird> ServidorTest::servidor;
QString ServidorTest::mensagem;

} // namespace

TEST_F(ServidorTest, ReopeningSeesWhatAnotherWorkstationCommitted)
{
    TSQLQuery lista;
    lista.SetSQLConnection(a.get());
    lista.SetSQL(QStringLiteral("select n from grupo order by cod"));
    lista.Open();
    EXPECT_EQ(lista.RecordCount(), 1);
    b->Executar(QStringLiteral("insert into grupo values (2, 'dois')"));
    b->Executar(QStringLiteral("update grupo set n = 'UM' where cod = 1"));
    lista.Close();
    lista.Open();
    EXPECT_EQ(lista.RecordCount(), 2);
    EXPECT_EQ(lista.Fields(0)->AsString(), QStringLiteral("UM"));
}

TEST_F(ServidorTest, WrongPasswordAndWrongPath)
{
    auto c = servidor->Conexao(nome);
    c->Password = QStringLiteral("errada");
    EXPECT_EQ(Falha([&] { c->Open(); }), TErroBanco::Autenticacao);
    EXPECT_TRUE(mensagem.startsWith(QStringLiteral("O usuário ou a senha")))
        << mensagem.toStdString();
    c = servidor->Conexao(QStringLiteral("nada.fdb"));
    EXPECT_EQ(Falha([&] { c->Open(); }), TErroBanco::PastaOuArquivoAusente)
        << mensagem.toStdString();
}

TEST_F(ServidorTest, NewDatabaseNeverReplacesOneOnTheServer)
{
    a->Close();
    b->Close();
    EXPECT_EQ(Falha([&] { a->CriarBanco(QString()); }), TErroBanco::Outro);
    EXPECT_TRUE(mensagem.startsWith(QStringLiteral("O arquivo já existe")))
        << mensagem.toStdString();
}

TEST_F(ServidorTest, FailedScriptLeavesNoDatabaseOnTheServer)
{
    auto c = servidor->Conexao(QStringLiteral("falha.fdb"));
    EXPECT_EQ(Falha([&] { c->CriarBanco(QStringLiteral("bobagem")); }), TErroBanco::Sintaxe);
    EXPECT_FALSE(c->Connected());
    EXPECT_EQ(Falha([&] { c->Open(); }), TErroBanco::PastaOuArquivoAusente);
}

TEST_F(ServidorTest, LocksAreSeenByOtherWorkstations)
{
    EXPECT_TRUE(a->Travas().Tentar(Grupo, QStringLiteral("1")));
    TDonoDaTrava dono;
    EXPECT_FALSE(b->Travas().Tentar(Grupo, QStringLiteral("1"), &dono));
    EXPECT_TRUE(dono.Conhecido);
    EXPECT_TRUE(dono.Quem.contains(u'@'));
    a->Travas().Liberar(Grupo, QStringLiteral("1"));
    EXPECT_TRUE(b->Travas().Tentar(Grupo, QStringLiteral("1")));
}

TEST_F(ServidorTest, KilledHolderFreesItsLock)
{
    TFilho filho(QStringLiteral("SegurarTrava"), {a->DatabaseName});
    ASSERT_TRUE(filho.Pronto());
    TDonoDaTrava dono;
    EXPECT_FALSE(a->Travas().Tentar(Grupo, QStringLiteral("1"), &dono));
    EXPECT_TRUE(dono.Conhecido);
    filho.Matar();
    QElapsedTimer tempo;
    tempo.start();
    bool livre = false;
    while (!(livre = a->Travas().Tentar(Grupo, QStringLiteral("1"))) && tempo.elapsed() < 5000)
        QThread::msleep(1);
    EXPECT_TRUE(livre);
    RecordProperty("ms_until_free", int(tempo.elapsed()));
}

TEST_F(ServidorTest, LostConnectionIsToldAndTheNextActionReconnects)
{
    TSQLQuery lista;
    lista.SetSQLConnection(a.get());
    lista.SetSQL(QStringLiteral("select n from grupo"));
    lista.Open();
    servidor->Matar();
    EXPECT_TRUE(a->Connected());
    EXPECT_EQ(Falha([&] { a->Executar(QStringLiteral("update grupo set n = 'x'")); }),
              TErroBanco::ConexaoPerdida);
    EXPECT_TRUE(mensagem.startsWith(QStringLiteral("A conexão com o banco de dados foi perdida.")))
        << mensagem.toStdString();
    EXPECT_FALSE(a->Connected());
    EXPECT_EQ(lista.Fields(0)->AsString(), QStringLiteral("um"));
    EXPECT_EQ(Falha([&] { a->Executar(QStringLiteral("update grupo set n = 'x'")); }),
              TErroBanco::ConexaoPerdida);
    EXPECT_TRUE(mensagem.startsWith(QStringLiteral("Não foi possível conectar ao servidor")))
        << mensagem.toStdString();
    ASSERT_TRUE(servidor->Iniciar());
    EXPECT_EQ(a->Executar(QStringLiteral("update grupo set n = 'volta'")), 1);
    EXPECT_TRUE(a->Connected());
    lista.Close();
    lista.Open();
    EXPECT_EQ(lista.Fields(0)->AsString(), QStringLiteral("volta"));
}

TEST_F(ServidorTest, LostConnectionFoundByAList)
{
    EXPECT_EQ(Contar(*a), Variant(1.0));
    Reiniciar();
    EXPECT_EQ(Falha([&] { Contar(*a); }), TErroBanco::ConexaoPerdida);
    EXPECT_EQ(Contar(*a), Variant(1.0));
}

TEST_F(ServidorTest, LostConnectionInAGroupCommitsNothing)
{
    EXPECT_EQ(Falha([&] {
                  a->EmTransacao([&] {
                      a->Executar(QStringLiteral("insert into grupo values (2, 'dois')"));
                      Reiniciar();
                      EXPECT_THROW(a->Executar(QStringLiteral("insert into grupo values (3, 'x')")),
                                   EDatabaseError);
                      EXPECT_THROW(a->Executar(QStringLiteral("insert into grupo values (4, 'x')")),
                                   EDatabaseError);
                  });
              }),
              TErroBanco::ConexaoPerdida);
    EXPECT_EQ(Contar(*a), Variant(1.0));
}

TEST_F(ServidorTest, ConnectionLostAtTheCommitSaysThatItIsUncertain)
{
    EXPECT_EQ(Falha([&] {
                  a->EmTransacao([&] {
                      a->Executar(QStringLiteral("insert into grupo values (2, 'dois')"));
                      Reiniciar();
                  });
              }),
              TErroBanco::ConexaoPerdida);
    EXPECT_TRUE(mensagem.contains(QStringLiteral("Confira se a gravação foi feita")))
        << mensagem.toStdString();
    EXPECT_FALSE(a->Connected());
    EXPECT_EQ(Contar(*a), Variant(1.0));
}

TEST_F(ServidorTest, LostConnectionDropsItsLocksAndDoesNotBreakTheRelease)
{
    EXPECT_TRUE(a->Travas().Tentar(Grupo, QStringLiteral("1")));
    EXPECT_TRUE(a->Travas().Tentar(Grupo, QStringLiteral("2")));
    Reiniciar();
    a->Travas().Liberar(Grupo, QStringLiteral("1"));
    EXPECT_EQ(Falha([&] { a->Travas().Tentar(Grupo, QStringLiteral("3")); }),
              TErroBanco::ConexaoPerdida);
    EXPECT_FALSE(a->Travas().Detem(Grupo, QStringLiteral("2")));
    a->Travas().Liberar(Grupo, QStringLiteral("2"));
    EXPECT_TRUE(a->Travas().Tentar(Grupo, QStringLiteral("2")));
    EXPECT_TRUE(a->Travas().Detem(Grupo, QStringLiteral("2")));
}

TEST_F(ServidorTest, ClosingALostConnectionIsQuiet)
{
    a->Travas().Tentar(Grupo, QStringLiteral("1"));
    Contar(*a);
    Reiniciar();
    a->Close();
    a->Open();
    EXPECT_EQ(Contar(*a), Variant(1.0));
    b.reset();
}

TEST_F(ServidorTest, RowsAcrossTheNetworkAreWhole)
{
    a->Executar(
        QStringLiteral("execute block as declare i integer = 2; begin while (i <= 5000) do "
                       "begin insert into grupo values (:i, 'n' || :i); i = i + 1; end end"));
    TSQLQuery lista;
    lista.SetSQLConnection(b.get());
    lista.SetSQL(QStringLiteral("select cod, n from grupo order by cod"));
    lista.Open();
    ASSERT_EQ(lista.RecordCount(), 5000);
    for (int i = 1; !lista.Eof(); lista.Next(), ++i)
        ASSERT_EQ(lista.Fields(0)->AsInteger(), i);
    EXPECT_EQ(lista.Fields(1)->AsString(), QStringLiteral("n5000"));
}

// What the second process does.

FICHA_FILHO(SegurarTrava)
{
    TSQLConnection conexao;
    conexao.DatabaseName = TFilho::Argumento(0);
    conexao.UserName = QStringLiteral("SYSDBA");
    conexao.Password = QStringLiteral("masterkey");
    conexao.Open();
    ASSERT_TRUE(conexao.Travas().Tentar(Grupo, QStringLiteral("1")));
    TFilho::AvisarEEsperar();
}
