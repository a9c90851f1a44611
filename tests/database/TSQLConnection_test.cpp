#include "platform/database/TSQLConnection.h"

#include "platform/database/ConexD.h"
#include "platform/database/TTravas.h"
#include "support/BancoFilho.h"
#include "support/BancoTemp.h"

#include <QDir>

#include <csignal>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace ficha;

namespace
{

const QString Vendas = QStringLiteral(R"(
    create table grupo (grupo_cod integer not null primary key, nome varchar(10) not null,
        valor numeric(9,2), constraint grupo_positivo check (valor is null or valor >= 0));
    create unique index grupo_nome on grupo (nome);
    create table produto (produto_cod integer not null primary key,
        grupo_cod integer references grupo (grupo_cod));
    insert into grupo values (1, 'um', 1);
    insert into produto values (10, 1);
)");

/** The error that f raises. */
EDatabaseError Erro(const std::function<void()> &f)
{
    try {
        f();
    } catch (const EDatabaseError &erro) {
        return erro;
    }
    ADD_FAILURE() << "no error was raised";
    return {TErroBanco::Outro, {}};
}

void EsperarErro(const std::function<void()> &f, TErroBanco tipo, const QString &trecho)
{
    const EDatabaseError erro = Erro(f);
    EXPECT_EQ(int(erro.Tipo), int(tipo)) << erro.what();
    EXPECT_TRUE(erro.Mensagem().contains(trecho)) << erro.what();
}

class TSQLConnectionTest : public testing::Test
{
protected:
    void EsperarRecusa(const QString &sql, TErroBanco tipo, const QString &trecho)
    {
        const Variant antes = Contar();
        const EDatabaseError erro = Erro([&] { banco.Executar(sql); });
        EXPECT_EQ(int(erro.Tipo), int(tipo)) << erro.what();
        EXPECT_TRUE(erro.Mensagem().startsWith(trecho)) << erro.what();
        EXPECT_FALSE(erro.TextoDoBanco.isEmpty());
        EXPECT_TRUE(erro.Mensagem().endsWith(erro.TextoDoBanco));
        EXPECT_FALSE(erro.Codigos.empty());
        EXPECT_EQ(Contar(), antes);
    }
    Variant Contar() { return banco.Valor(QStringLiteral("select count(*) from grupo")); }

    TBancoTemp banco{Vendas};
};

/** Files and folders for connections that are to fail. */
class TMauComecoTest : public testing::Test
{
protected:
    QString Arquivo(const QString &nome, const QByteArray &conteudo)
    {
        QFile arquivo(pasta.filePath(nome));
        EXPECT_TRUE(arquivo.open(QIODevice::WriteOnly));
        arquivo.write(conteudo);
        return arquivo.fileName();
    }
    void EsperarAoAbrir(const QString &nome, TErroBanco tipo, const QString &trecho)
    {
        conexao.DatabaseName = nome;
        EsperarErro([&] { conexao.Open(); }, tipo, trecho);
        EXPECT_FALSE(conexao.Connected());
    }

    QTemporaryDir pasta;
    TSQLConnection conexao;
};

} // namespace

TEST_F(TSQLConnectionTest, AnswersTheRowsItChanged)
{
    EXPECT_EQ(
        banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')")),
        1);
    EXPECT_EQ(banco.Executar(QStringLiteral("update grupo set valor = 5")), 2);
    EXPECT_EQ(banco.Executar(QStringLiteral("delete from grupo where grupo_cod > 5")), 0);
    EXPECT_EQ(banco.Executar(QStringLiteral("create generator g")), 0);
    EXPECT_EQ(banco.Executar(QStringLiteral(
                  "insert into grupo (grupo_cod, nome) values (3, 'três') returning grupo_cod")),
              1);
}

TEST_F(TSQLConnectionTest, RepeatedPrimaryKeyIsRefused)
{
    EsperarRecusa(QStringLiteral("insert into grupo (grupo_cod, nome) values (1, 'x')"),
                  TErroBanco::ChaveUnica,
                  QStringLiteral("Já existe um registro com este valor: a chave \"INTEG_"));
}

TEST_F(TSQLConnectionTest, RepeatedUniqueIndexIsRefused)
{
    EsperarRecusa(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'um')"),
                  TErroBanco::ChaveUnica,
                  QStringLiteral("Já existe um registro com este valor: o índice \"GRUPO_NOME\""));
}

TEST_F(TSQLConnectionTest, MissingForeignKeyIsRefused)
{
    EsperarRecusa(QStringLiteral("insert into produto values (11, 99)"),
                  TErroBanco::ChaveEstrangeira,
                  QStringLiteral("O registro a que este se refere não existe"));
}

TEST_F(TSQLConnectionTest, DeletingAReferredRecordIsRefused)
{
    EsperarRecusa(QStringLiteral("delete from grupo where grupo_cod = 1"),
                  TErroBanco::ChaveEstrangeira,
                  QStringLiteral("O registro é usado pela tabela \"PRODUTO\""));
}

TEST_F(TSQLConnectionTest, TooLongTextIsRefused)
{
    EsperarRecusa(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, '12345678901')"),
                  TErroBanco::ValorMuitoLongo,
                  QStringLiteral("O texto é mais longo do que o campo aceita."));
}

TEST_F(TSQLConnectionTest, TooBigNumberIsRefused)
{
    EsperarRecusa(QStringLiteral("update grupo set grupo_cod = 3000000000"),
                  TErroBanco::ValorMuitoLongo,
                  QStringLiteral("O número está fora da faixa que o campo aceita."));
}

TEST_F(TSQLConnectionTest, MissingValueIsRefused)
{
    EsperarRecusa(QStringLiteral("insert into grupo (grupo_cod) values (2)"),
                  TErroBanco::CampoObrigatorio,
                  QStringLiteral("O campo \"GRUPO\".\"NOME\" é obrigatório."));
}

TEST_F(TSQLConnectionTest, CheckConstraintIsRefused)
{
    EsperarRecusa(QStringLiteral("update grupo set valor = -1"), TErroBanco::Outro,
                  QStringLiteral("O valor não atende à regra \"GRUPO_POSITIVO\" da tabela"));
}

TEST_F(TSQLConnectionTest, TextThatIsNoNumberIsRefused)
{
    EsperarRecusa(QStringLiteral("update grupo set valor = 'abc'"), TErroBanco::Outro,
                  QStringLiteral("O valor \"abc\" não pode ser convertido"));
}

TEST_F(TSQLConnectionTest, SqlThatIsNotUnderstood)
{
    EsperarRecusa(QStringLiteral("insira tudo"), TErroBanco::Sintaxe,
                  QStringLiteral("O banco de dados não entendeu o comando SQL."));
    EsperarRecusa(QStringLiteral("update nenhuma set a = 1"), TErroBanco::Sintaxe,
                  QStringLiteral("O banco de dados não entendeu o comando SQL."));
    EsperarErro([&] { banco.Executar(QStringLiteral(" \n")); }, TErroBanco::Sintaxe,
                QStringLiteral("vazio"));
}

TEST_F(TSQLConnectionTest, CharacterOutsideLatin1IsRefusedBeforeAnythingIsWritten)
{
    for (const QString &texto :
         {QStringLiteral("custa 5 €"), QStringLiteral("“aspas”"), QStringLiteral("\U0001F600")}) {
        const EDatabaseError erro = Erro(
            [&] { banco.Executar(QStringLiteral("update grupo set nome = '%1'").arg(texto)); });
        EXPECT_EQ(erro.Tipo, TErroBanco::CaractereInvalido);
        EXPECT_TRUE(erro.TextoDoBanco.isEmpty());
    }
    EsperarErro([&] { banco.Executar(QStringLiteral("update grupo set nome = '5 €'")); },
                TErroBanco::CaractereInvalido, QStringLiteral("O caractere '€' (U+20AC)"));
    EsperarErro([&] { banco.Executar(QStringLiteral("update grupo set nome = '\U0001F600'")); },
                TErroBanco::CaractereInvalido, QStringLiteral("(U+1F600)"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select nome from grupo")), Variant("um"));
}

TEST_F(TSQLConnectionTest, LongestLiteralTheEngineTakes)
{
    banco.Executar(QStringLiteral("create table memo (texto blob sub_type text)"));
    const auto inserir = [&](int n) {
        return banco.Executar(
            QStringLiteral("insert into memo values ('%1')").arg(QString(n, u'x')));
    };
    EXPECT_EQ(inserir(65535), 1);
    EXPECT_THROW(inserir(65536), EDatabaseError);
    EXPECT_EQ(banco.Valor(QStringLiteral("select max(octet_length(texto)) from memo")),
              Variant(65535));
}

TEST_F(TSQLConnectionTest, SelectsAndTransactionCommandsAreRefused)
{
    EXPECT_THROW(banco.Executar(QStringLiteral("select * from grupo")), EDatabaseError);
    EXPECT_THROW(banco.Executar(QStringLiteral("commit")), EDatabaseError);
    EXPECT_THROW(banco.Executar(QStringLiteral("rollback")), EDatabaseError);
    EXPECT_THROW(banco.Executar(QStringLiteral("set transaction")), EDatabaseError);
    EXPECT_THROW(banco.Executar(QStringLiteral("savepoint s")), EDatabaseError);
    EXPECT_EQ(Contar(), Variant(1.0));
}

TEST_F(TSQLConnectionTest, GroupCommitsAsAWhole)
{
    banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
        banco.Conexao().EmTransacao([&] {
            banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (3, 'tr')"));
        });
        TSQLConnection outra;
        outra.DatabaseName = banco.Arquivo();
        outra.Open();
        EXPECT_EQ(ValorDoBanco(outra, QStringLiteral("select count(*) from grupo")), Variant(1.0));
    });
    EXPECT_EQ(Contar(), Variant(3.0));
}

TEST_F(TSQLConnectionTest, GroupRollsBackWhenItRaises)
{
    EXPECT_THROW(banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
        throw std::runtime_error("changed my mind");
    }),
                 std::runtime_error);
    EXPECT_EQ(Contar(), Variant(1.0));
    banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
    EXPECT_EQ(Contar(), Variant(2.0));
}

TEST_F(TSQLConnectionTest, GroupNeverCommitsAfterAnErrorThatWasSwallowed)
{
    const EDatabaseError erro = Erro([&] {
        banco.Conexao().EmTransacao([&] {
            banco.Executar(
                QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
            EXPECT_THROW(banco.Executar(
                             QStringLiteral("insert into grupo (grupo_cod, nome) values (1, 'x')")),
                         EDatabaseError);
            EXPECT_THROW(banco.Executar(
                             QStringLiteral("insert into grupo (grupo_cod, nome) values (4, 'q')")),
                         EDatabaseError);
        });
    });
    EXPECT_EQ(erro.Tipo, TErroBanco::ChaveUnica);
    EXPECT_EQ(Contar(), Variant(1.0));
}

TEST_F(TSQLConnectionTest, GroupIsLostWhenItsQueryFailsOrTheConnectionCloses)
{
    TSQLQuery query;
    query.SetSQLConnection(&banco.Conexao());
    query.SetSQL(QStringLiteral("select 1/0 from rdb$database"));
    EXPECT_THROW(banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
        EXPECT_THROW(query.Open(), EDatabaseError);
    }),
                 EDatabaseError);
    EXPECT_THROW(banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
        banco.Conexao().Close();
    }),
                 EDatabaseError);
    banco.Conexao().Open();
    EXPECT_EQ(Contar(), Variant(1.0));
}

TEST_F(TSQLConnectionTest, ConflictWithAnotherTransactionIsRefusedAtOnce)
{
    TSQLConnection outra;
    outra.DatabaseName = banco.Arquivo();
    outra.Open();
    banco.Conexao().EmTransacao([&] {
        banco.Executar(QStringLiteral("update grupo set valor = 7"));
        EsperarErro([&] { outra.Executar(QStringLiteral("update grupo set valor = 8")); },
                    TErroBanco::ConflitoDeTrava,
                    QStringLiteral("O registro está sendo alterado por outro usuário."));
    });
    EXPECT_EQ(banco.Valor(QStringLiteral("select valor from grupo")), Variant(7.0));
}

TEST_F(TSQLConnectionTest, ListsSeeWhatOthersCommittedMeanwhile)
{
    TSQLQuery lista;
    lista.SetSQLConnection(&banco.Conexao());
    lista.SetSQL(QStringLiteral("select nome from grupo order by grupo_cod"));
    lista.Open();
    TSQLConnection outra;
    outra.DatabaseName = banco.Arquivo();
    outra.Open();
    outra.Executar(QStringLiteral("insert into grupo (grupo_cod, nome) values (2, 'dois')"));
    lista.Close();
    lista.Open();
    EXPECT_EQ(lista.RecordCount(), 2);
}

TEST_F(TSQLConnectionTest, ListsHoldNoGarbageCollectionBack)
{
    TSQLQuery lista;
    lista.SetSQLConnection(&banco.Conexao());
    lista.SetSQL(QStringLiteral("select * from grupo"));
    lista.Open();
    for (int i = 0; i < 20; ++i)
        banco.Executar(QStringLiteral("update grupo set valor = %1").arg(i));
    const double atraso =
        banco
            .Valor(QStringLiteral("select mon$next_transaction - mon$oldest_snapshot "
                                  "from mon$database"))
            .AsFloat();
    EXPECT_LE(atraso, 5.0);
}

TEST_F(TSQLConnectionTest, NothingOfTheEngineIsHeldBetweenActions)
{
    TSQLQuery lista;
    lista.SetSQLConnection(&banco.Conexao());
    lista.SetSQL(QStringLiteral("select * from grupo"));
    lista.Open();
    EXPECT_FALSE(lista.Plano().isEmpty());
    EXPECT_THROW(banco.Executar(QStringLiteral("insert into grupo (grupo_cod) values (1)")),
                 EDatabaseError);
    banco.Executar(QStringLiteral("update grupo set valor = 2"));
    EXPECT_TRUE(banco.Conexao().Travas().Tentar(QStringLiteral("grupo"), QStringLiteral("1")));
    banco.Conexao().Travas().Liberar(QStringLiteral("grupo"), QStringLiteral("1"));
    TSQLConnection outra;
    outra.DatabaseName = banco.Arquivo();
    outra.Open();
    const QString doOutro = QStringLiteral(" where mon$attachment_id <> current_connection and "
                                           "mon$attachment_id in (select mon$attachment_id from "
                                           "mon$attachments where mon$system_flag = 0)");
    EXPECT_EQ(ValorDoBanco(outra, QStringLiteral("select count(*) from mon$statements") + doOutro),
              Variant(0.0));
    // The long transaction that reads is the only one.
    EXPECT_EQ(
        ValorDoBanco(outra, QStringLiteral("select count(*) from mon$transactions") + doOutro),
        Variant(1.0));
}

TEST_F(TSQLConnectionTest, ClosedConnectionRefusesUntilItIsOpenedAgain)
{
    banco.Conexao().Close();
    EXPECT_FALSE(banco.Conexao().Connected());
    EsperarErro([&] { banco.Executar(QStringLiteral("delete from produto")); }, TErroBanco::Outro,
                QStringLiteral("A conexão com o banco de dados está fechada."));
    banco.Conexao().Open();
    banco.Conexao().Open();
    EXPECT_EQ(Contar(), Variant(1.0));
}

TEST_F(TSQLConnectionTest, ConexDRunsOnTheInstalledConnection)
{
    EXPECT_EQ(ConexD().Executar(QStringLiteral("update grupo set valor = 3")), 1);
    TCustomBRSQL maximo(QStringLiteral("select max(grupo_cod) from grupo"));
    EXPECT_FALSE(maximo.IsEmpty());
    EXPECT_EQ(maximo.Fields(0)->AsInteger(), 1);
    TCustomBRQuery query;
    EXPECT_TRUE(query.Open(QStringLiteral("select nome from grupo where grupo_cod = 1")));
    EXPECT_EQ(query.Fields(0)->AsString(), QStringLiteral("um"));
    query.Next();
    EXPECT_TRUE(query.Eof());
    EXPECT_FALSE(query.Open(QStringLiteral("select nome from grupo where grupo_cod = 2")));
    EXPECT_TRUE(query.IsEmpty());
    EXPECT_THROW(query.Open(QString()), EDatabaseError);
}

TEST_F(TSQLConnectionTest, ConexDForgetsAConnectionThatGoes)
{
    auto outra = std::make_unique<TSQLConnection>();
    ConexD().SQLConnection = outra.get();
    outra.reset();
    EXPECT_EQ(ConexD().SQLConnection, nullptr);
    EXPECT_THROW(ConexD().Executar(QStringLiteral("delete from grupo")), EDatabaseError);
    TCustomBRQuery query;
    EXPECT_THROW(query.Open(QStringLiteral("select 1 from rdb$database")), EDatabaseError);
}

TEST_F(TSQLConnectionTest, ScriptRunsAndAnErrorNamesItsLine)
{
    banco.Conexao().ExecutarScript(QStringLiteral(R"(
        set term ^;
        create procedure dobrar as begin update grupo set valor = valor * 2; end^
        set term ;^
        -- and now use it; once
        execute procedure dobrar;
        update grupo set nome = 'a;b--c';)"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select valor from grupo")), Variant(2.0));
    EXPECT_EQ(banco.Valor(QStringLiteral("select nome from grupo")), Variant("a;b--c"));
    const EDatabaseError erro = Erro([&] {
        banco.Conexao().ExecutarScript(
            QStringLiteral("update grupo set valor = 9;\n\nupdate nada set a = 1;"));
    });
    EXPECT_EQ(erro.Tipo, TErroBanco::Sintaxe);
    EXPECT_TRUE(erro.Mensagem().startsWith(
        QStringLiteral("Comando da linha 3 do script: O banco de dados não entendeu")))
        << erro.what();
    EXPECT_EQ(erro.Mensagem().count(erro.TextoDoBanco), 1);
    EXPECT_EQ(banco.Valor(QStringLiteral("select valor from grupo")), Variant(9.0));
}

TEST(TSQLConnection, TellsAFileFromAServer)
{
    TSQLConnection conexao;
    const auto embutido = [&](const char *nome) {
        conexao.DatabaseName = QString::fromLatin1(nome);
        return conexao.Embutido();
    };
    EXPECT_TRUE(embutido("/dados/base.fdb"));
    EXPECT_TRUE(embutido("/dados/a:b.fdb"));
    EXPECT_TRUE(embutido("base.fdb"));
    EXPECT_TRUE(embutido("./a:b.fdb"));
    EXPECT_TRUE(embutido("c:\\dados\\base.fdb"));
    EXPECT_FALSE(embutido("servidor:/dados/base.fdb"));
    EXPECT_FALSE(embutido("servidor/3051:/dados/base.fdb"));
    EXPECT_FALSE(embutido("10.0.0.1:base"));
}

TEST_F(TMauComecoTest, NoName)
{
    EsperarAoAbrir(QString(), TErroBanco::PastaOuArquivoAusente,
                   QStringLiteral("Nenhum banco de dados foi indicado."));
}

TEST_F(TMauComecoTest, ColonInTheFileName)
{
    EsperarAoAbrir(pasta.filePath(QStringLiteral("a:b.fdb")), TErroBanco::Outro,
                   QStringLiteral("O caminho do banco de dados não pode ter dois-pontos: "));
}

TEST_F(TMauComecoTest, MissingFolder)
{
    EsperarAoAbrir(pasta.filePath(QStringLiteral("nada/base.fdb")),
                   TErroBanco::PastaOuArquivoAusente,
                   QStringLiteral("A pasta do banco de dados não existe: ") +
                       pasta.filePath(QStringLiteral("nada")));
}

TEST_F(TMauComecoTest, MissingFile)
{
    EsperarAoAbrir(pasta.filePath(QStringLiteral("nada.fdb")), TErroBanco::PastaOuArquivoAusente,
                   QStringLiteral("O arquivo do banco de dados não existe: "));
    EXPECT_TRUE(QDir(pasta.path()).isEmpty());
}

TEST_F(TMauComecoTest, FolderInsteadOfAFile)
{
    EsperarAoAbrir(pasta.path(), TErroBanco::NaoEhBanco,
                   QStringLiteral("Não é um arquivo de banco de dados"));
}

TEST_F(TMauComecoTest, FilesThatAreNoDatabase)
{
    const QString mensagem = QStringLiteral("O arquivo não é um banco de dados Firebird: ");
    EsperarAoAbrir(Arquivo(QStringLiteral("vazio.fdb"), {}), TErroBanco::NaoEhBanco, mensagem);
    EsperarAoAbrir(Arquivo(QStringLiteral("carta.fdb"), QByteArray(20000, 'x')),
                   TErroBanco::NaoEhBanco, mensagem);
}

TEST_F(TMauComecoTest, TruncatedDatabase)
{
    TBancoTemp banco;
    banco.Conexao().Close();
    QFile inteiro(banco.Arquivo());
    ASSERT_TRUE(inteiro.open(QIODevice::ReadOnly));
    const QString curto = Arquivo(QStringLiteral("curto.fdb"), inteiro.read(2000));
    conexao.DatabaseName = curto;
    const EDatabaseError erro = Erro([&] { conexao.Open(); });
    EXPECT_EQ(erro.Tipo, TErroBanco::NaoEhBanco) << erro.what();
    EXPECT_FALSE(conexao.Connected());
}

TEST_F(TMauComecoTest, ReadOnlyFile)
{
    TBancoTemp banco;
    banco.Conexao().Close();
    QFile::setPermissions(banco.Arquivo(), QFile::ReadOwner | QFile::ReadGroup | QFile::ReadOther);
    QFile::setPermissions(banco.Pasta(), QFile::Permissions(0x7755));
    conexao.DatabaseName = banco.Arquivo();
    // Nothing is read-only to root: look as an ordinary user, in a process that is thrown away.
    const pid_t filho = ::fork();
    if (filho == 0) {
        if (::geteuid() == 0 &&
            (::setresgid(65534, 65534, 65534) || ::setresuid(65534, 65534, 65534)))
            ::_exit(90);
        try {
            conexao.Open();
        } catch (const EDatabaseError &erro) {
            ::_exit(erro.Mensagem().startsWith(
                        QStringLiteral("O arquivo do banco de dados só permite leitura: "))
                        ? int(erro.Tipo)
                        : 91);
        }
        ::_exit(92);
    }
    int estado = 0;
    ASSERT_EQ(::waitpid(filho, &estado, 0), filho);
    ASSERT_TRUE(WIFEXITED(estado));
    EXPECT_EQ(WEXITSTATUS(estado), int(TErroBanco::SomenteLeitura));
}

TEST_F(TMauComecoTest, DatabaseInUseByAnotherProcess)
{
    TBancoTemp banco;
    banco.Conexao().Close();
    TFilho filho(QStringLiteral("AbrirEEsperar"), {banco.Arquivo()});
    ASSERT_TRUE(filho.Pronto());
    EsperarAoAbrir(banco.Arquivo(), TErroBanco::BancoEmUso,
                   QStringLiteral("A base já está em uso por outro programa; use um servidor para "
                                  "compartilhá-la."));
    filho.Matar();
    conexao.Open();
    EXPECT_TRUE(conexao.Connected());
}

TEST_F(TMauComecoTest, NoServerAtThatAddress)
{
    conexao.UserName = QStringLiteral("SYSDBA");
    conexao.Password = QStringLiteral("x");
    EsperarAoAbrir(QStringLiteral("127.0.0.1/1:/nada.fdb"), TErroBanco::ConexaoPerdida,
                   QStringLiteral("Não foi possível conectar ao servidor do banco de dados."));
}

TEST_F(TMauComecoTest, NewDatabaseInAMissingFolder)
{
    conexao.DatabaseName = pasta.filePath(QStringLiteral("nada/base.fdb"));
    EsperarErro([&] { conexao.CriarBanco({}); }, TErroBanco::PastaOuArquivoAusente,
                QStringLiteral("A pasta do banco de dados não existe"));
}

TEST_F(TMauComecoTest, NewDatabaseNeverReplacesAFile)
{
    conexao.DatabaseName = Arquivo(QStringLiteral("carta.txt"), "importante");
    EsperarErro([&] { conexao.CriarBanco({}); }, TErroBanco::Outro,
                QStringLiteral("O arquivo já existe e não foi alterado"));
    QFile carta(conexao.DatabaseName);
    ASSERT_TRUE(carta.open(QIODevice::ReadOnly));
    EXPECT_EQ(carta.readAll(), QByteArray("importante"));
}

TEST_F(TMauComecoTest, FailedScriptLeavesNoFile)
{
    conexao.DatabaseName = pasta.filePath(QStringLiteral("base.fdb"));
    EsperarErro(
        [&] { conexao.CriarBanco(QStringLiteral("create table t (a integer);\nbobagem;")); },
        TErroBanco::Sintaxe, QStringLiteral("Comando da linha 2 do script"));
    EXPECT_TRUE(QDir(pasta.path()).isEmpty());
    EXPECT_FALSE(conexao.Connected());
    conexao.CriarBanco(QStringLiteral("create table t (a integer);"));
    EXPECT_TRUE(conexao.Connected());
    EXPECT_EQ(QDir(pasta.path()).entryList(QDir::Files), QStringList(QStringLiteral("base.fdb")));
}

TEST_F(TMauComecoTest, NewDatabaseIsLatin1WithLargePages)
{
    conexao.DatabaseName = pasta.filePath(QStringLiteral("Dados da Ação.fdb"));
    conexao.CriarBanco({});
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select trim(rdb$character_set_name) "
                                                   "from rdb$database")),
              Variant("ISO8859_1"));
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select mon$page_size from mon$database")),
              Variant(16384));
    conexao.Close();
    conexao.Open();
    EXPECT_TRUE(conexao.Connected());
}

TEST_F(TMauComecoTest, FullDiskCommitsNothing)
{
    TBancoTemp banco{Vendas};
    banco.Conexao().Close();
    TFilho filho(QStringLiteral("EncherODisco"), {banco.Arquivo()});
    EXPECT_EQ(filho.EsperarFim(), int(TErroBanco::DiscoCheio));
    banco.Conexao().Open();
    EXPECT_EQ(banco.Valor(QStringLiteral("select count(*) from grupo")), Variant(1.0));
}

// What the second processes of the tests above do.

FICHA_FILHO(AbrirEEsperar)
{
    TSQLConnection conexao;
    conexao.DatabaseName = TFilho::Argumento(0);
    conexao.Open();
    TFilho::AvisarEEsperar();
}

FICHA_FILHO(EncherODisco)
{
    TSQLConnection conexao;
    conexao.DatabaseName = TFilho::Argumento(0);
    conexao.Open();
    ::signal(SIGXFSZ, SIG_IGN);
    const auto limite = rlim_t(QFileInfo(conexao.DatabaseName).size() + 512 * 1024);
    const rlimit maximo = {limite, limite};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &maximo), 0);
    try {
        conexao.EmTransacao([&] {
            for (int i = 2; i < 200000; ++i)
                conexao.Executar(
                    QStringLiteral("insert into grupo (grupo_cod, nome) values (%1, '%1')").arg(i));
        });
    } catch (const EDatabaseError &erro) {
        ::_exit(int(erro.Tipo));
    }
    ::_exit(99);
}
