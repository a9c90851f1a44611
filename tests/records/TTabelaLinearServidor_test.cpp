// The record lock of a table on a server: two workstations, and a connection that is lost.

#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/database/PrepararBanco.h"
#include "platform/database/TTravas.h"
#include "platform/support/BancoApoio.h"
#include "records/UTabelaLinear.h"
#include "support/BancoFilho.h"
#include "support/BancoTemp.h"
#include "support/ServidorFirebird.h"

#include <QElapsedTimer>
#include <QRegularExpression>
#include <QThread>

using namespace ficha;

namespace
{

const QString Um = QStringLiteral("1");
const QString Dois = QStringLiteral("2");

QString Item()
{
    return QStringLiteral("item");
}

QString Onde(const QString &cod)
{
    return QStringLiteral(" where item_cod=") + cod;
}

class TTabelaLinearServidorTest : public testing::Test
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
        Servicos().MensagemAviso = [this](const QString &texto, int) { avisos << texto; };
        static int numero = 0;
        nome = QStringLiteral("itens%1.fdb").arg(++numero);
        conexao = servidor->Conexao(nome);
        conexao->CriarBanco(QStringLiteral(
            "create table item (item_cod integer not null primary key, nome varchar(30));"
            "insert into item values (1, 'um'); insert into item values (2, 'dois');"
            "insert into item values (3, 'tres');"));
        PrepararBanco(*conexao);
        ConexD().SQLConnection = conexao.get();
        Abrir(query);
        tab = Tabela(query);
        tab->SetRecno(2);
    }

    void Abrir(TSQLQuery &qual)
    {
        qual.SetSQLConnection(conexao.get());
        qual.SetSQL(QStringLiteral("select * from item order by item_cod"));
        qual.Open();
    }
    static std::unique_ptr<TTabelaLinear> Tabela(TSQLQuery &qual)
    {
        auto nova = Criar<TTabelaLinear>(&qual, Item());
        nova->PegarCampoChave(qual.FieldByName(QStringLiteral("item_cod")));
        return nova;
    }
    static void Reiniciar()
    {
        servidor->Matar();
        ASSERT_TRUE(servidor->Iniciar());
    }
    /** The loss is noticed by the first action, which fails. */
    void NotarAPerda()
    {
        EXPECT_THROW(conexao->Executar(QStringLiteral("update item set nome='x'")), EDatabaseError);
        ASSERT_FALSE(conexao->Connected());
    }

    TServicosGuarda guarda;
    QStringList avisos;
    QString nome;
    std::unique_ptr<TSQLConnection> conexao;
    TSQLQuery query;
    std::unique_ptr<TTabelaLinear> tab;
};

std::unique_ptr<TServidorFirebird> TTabelaLinearServidorTest::servidor;

} // namespace

// Another program that takes the lock of record 2 as a screen does, and keeps it.
FICHA_FILHO(AlterarItem)
{
    TSQLConnection conexao;
    conexao.DatabaseName = TFilho::Argumento(0);
    conexao.UserName = QStringLiteral("SYSDBA");
    conexao.Password = QStringLiteral("masterkey");
    conexao.Open();
    ConexD().SQLConnection = &conexao;
    if (GarantiaTentar(Item(), Dois, Onde(Dois)))
        TFilho::AvisarEEsperar();
}

TEST_F(TTabelaLinearServidorTest, ASecondProgramIsRefusedAtOnceAndEntersWhenTheFirstIsKilled)
{
    TFilho filho(QStringLiteral("AlterarItem"), {conexao->DatabaseName});
    ASSERT_TRUE(filho.Pronto());
    QElapsedTimer tempo;
    tempo.start();
    EXPECT_FALSE(GarantiaTentar(Item(), Dois, Onde(Dois)));
    EXPECT_LT(tempo.elapsed(), 2000) << "it never waits for the other";
    ASSERT_EQ(avisos.size(), 1);
    const QRegularExpression esperado(
        QStringLiteral("^O registro está sendo alterado por \\S+@\\S+ \\(.+\\) desde "
                       "\\d\\d/\\d\\d/\\d{4} \\d\\d:\\d\\d\\.\r\nTente novamente mais tarde\\.$"));
    EXPECT_TRUE(esperado.match(avisos[0]).hasMatch()) << avisos[0].toStdString();
    EXPECT_TRUE(GarantiaTentar(Item(), Um, Onde(Um))) << "the other records are free";

    filho.Matar();
    tempo.start();
    bool livre = false;
    while (!(livre = GarantiaTentar(Item(), Dois, Onde(Dois))) && tempo.elapsed() < 5000)
        QThread::msleep(5);
    EXPECT_TRUE(livre);
    EXPECT_EQ(conexao->Executar(QStringLiteral("update item set nome='meu' where item_cod=2")), 1);
    RecordProperty("ms_until_free", int(tempo.elapsed()));
}

TEST_F(TTabelaLinearServidorTest, ALockThatIsHeldIsKeptAndNothingIsReadAgain)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    int aberturas = 0;
    QObject::connect(&query, &TDataSet::AfterOpen, &query, [&] { ++aberturas; });
    const qint64 numero = GarantiaNumero(Item(), Dois);
    EXPECT_TRUE(tab->GarantirTrava());
    EXPECT_EQ(GarantiaNumero(Item(), Dois), numero);
    EXPECT_EQ(aberturas, 0);
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(TTabelaLinearServidorTest, ALockLostWithTheConnectionIsTakenAgain)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    Reiniciar();
    NotarAPerda();
    int aberturas = 0;
    QObject::connect(&query, &TDataSet::AfterOpen, &query, [&] { ++aberturas; });
    EXPECT_TRUE(tab->GarantirTrava());
    EXPECT_TRUE(conexao->Travas().Detem(Item(), Dois));
    EXPECT_EQ(tab->RecNo, 2);
    EXPECT_EQ(aberturas, 0);
    EXPECT_TRUE(avisos.isEmpty());
    tab->AltFim();
    EXPECT_FALSE(conexao->Travas().Detem(Item(), Dois));
}

TEST_F(TTabelaLinearServidorTest, TheLockIsTakenAgainOnTheRecordThatIsAlteredWhateverRowIsCurrent)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    Reiniciar();
    NotarAPerda();
    tab->First();
    EXPECT_TRUE(tab->GarantirTrava());
    EXPECT_TRUE(conexao->Travas().Detem(Item(), Dois));
    EXPECT_FALSE(conexao->Travas().Detem(Item(), Um));
}

TEST_F(TTabelaLinearServidorTest, ALostLockThatAnotherProgramHasByNowIsRefused)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    Reiniciar();
    NotarAPerda();
    {
        TFilho filho(QStringLiteral("AlterarItem"), {conexao->DatabaseName});
        ASSERT_TRUE(filho.Pronto());
        EXPECT_FALSE(tab->GarantirTrava());
        ASSERT_EQ(avisos.size(), 1);
        EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("O registro está sendo alterado por ")));
        EXPECT_EQ(tab->Status, TStatus::Alterando) << "the screen decides what becomes of it";
    }
    QElapsedTimer tempo;
    tempo.start();
    bool minha = false;
    while (!(minha = tab->GarantirTrava()) && tempo.elapsed() < 5000)
        QThread::msleep(5);
    EXPECT_TRUE(minha) << "a later call tries again";
}

TEST_F(TTabelaLinearServidorTest, ALockThatAnotherScreenTookSinceIsNeitherOursNorReleasedByUs)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    Reiniciar();
    NotarAPerda();
    TSQLQuery query2;
    Abrir(query2);
    auto outra = Tabela(query2);
    outra->SetRecno(2);
    ASSERT_TRUE(outra->GarantiaRegistro());
    EXPECT_FALSE(tab->GarantirTrava());
    EXPECT_EQ(avisos.size(), 1);
    tab->AltCancel();
    EXPECT_TRUE(conexao->Travas().Detem(Item(), Dois)) << "the other screen still alters it";
    EXPECT_TRUE(outra->GarantirTrava());
    outra->AltFim();
    EXPECT_FALSE(conexao->Travas().Detem(Item(), Dois));
}

TEST_F(TTabelaLinearServidorTest, ARecordDeletedWhileTheLockWasGoneIsRefused)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    Reiniciar();
    NotarAPerda();
    const auto outra = servidor->Conexao(nome);
    outra->Open();
    outra->Executar(QStringLiteral("delete from item where item_cod=2"));
    EXPECT_FALSE(tab->GarantirTrava());
    EXPECT_EQ(avisos, QStringList(QStringLiteral("O registro não existe mais.\r\n"
                                                 "Foi excluído por outro usuário.")));
    EXPECT_FALSE(conexao->Travas().Detem(Item(), Dois));
}

TEST_F(TTabelaLinearServidorTest, WhileTheServerIsAwayTheErrorReachesTheCaller)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    tab->AltIni();
    servidor->Matar();
    NotarAPerda();
    EXPECT_THROW((void)tab->GarantirTrava(), EDatabaseError);
    EXPECT_EQ(tab->Status, TStatus::Alterando);
    EXPECT_TRUE(avisos.isEmpty());
    ASSERT_TRUE(servidor->Iniciar());
    EXPECT_TRUE(tab->GarantirTrava());
    tab->AltFim();
}

TEST_F(TTabelaLinearServidorTest, WithoutALockTheCurrentRecordsIsTaken)
{
    tab->AltIni();
    EXPECT_TRUE(tab->GarantirTrava());
    EXPECT_TRUE(conexao->Travas().Detem(Item(), Dois));
    tab->AltFim();
    EXPECT_EQ(conexao->Travas().Count(), 0);
}

TEST_F(TTabelaLinearServidorTest, ATableHoldsOneLockAtATime)
{
    ASSERT_TRUE(tab->GarantiaRegistro());
    EXPECT_TRUE(tab->GarantiaRegistro()) << "its own lock is no obstacle";
    tab->SetRecno(3);
    ASSERT_TRUE(tab->GarantiaRegistro());
    EXPECT_EQ(conexao->Travas().Count(), 1) << "the one left behind was given back";
    EXPECT_TRUE(conexao->Travas().Detem(Item(), QStringLiteral("3")));
    tab->AltFim();
    EXPECT_EQ(conexao->Travas().Count(), 0);
    EXPECT_TRUE(avisos.isEmpty());
}
