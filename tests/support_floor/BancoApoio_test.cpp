#include "platform/support/BancoApoio.h"

#include "platform/core/Relogio.h"
#include "platform/core/Servicos.h"
#include "platform/database/ConexD.h"
#include "platform/database/TTravas.h"
#include "platform/support/Datas.h"
#include "platform/support/Textos.h"
#include "support/BancoTemp.h"

#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

const char *const Esquema = R"(
create generator grupos_cod_gen;
create table grupos (grupos_cod integer not null primary key, nome varchar(30), sigla char(2),
                     obs blob sub_type text, foto blob, valor numeric(15,2), quando timestamp,
                     dia date);
insert into grupos (grupos_cod, nome, dia, quando)
    values (1, 'LIMPEZA', '2024-02-29', '2024-02-29 10:30:00');
insert into grupos (grupos_cod, nome, dia, quando)
    values (2, 'O''BRIEN', '2024-03-01', '2024-03-01 00:00:00');
)";

/** A database of its own, the host's connection to it, and the warnings that were shown. */
class BancoApoio : public testing::Test
{
protected:
    void SetUp() override
    {
        Servicos() = TServicos();
        Servicos().MensagemAviso = [this](const QString &t, int) { avisos << t; };
    }
    void TearDown() override { SetRelogio({}); }

    int Contar(const QString &onde)
    {
        return banco.Valor(QStringLiteral("select count(*) from grupos where ") + onde).AsInteger();
    }

    /** A second connection to the same database, as another workstation has it. */
    std::unique_ptr<TSQLConnection> Outra()
    {
        auto outra = std::make_unique<TSQLConnection>();
        outra->DatabaseName = banco.Arquivo();
        outra->Open();
        return outra;
    }

    TServicosGuarda guarda;
    TBancoTemp banco{QString::fromUtf8(Esquema)};
    TTravas &travas = banco.Conexao().Travas();
    QStringList avisos;
};

const QString &Tabela()
{
    static const QString nome = QStringLiteral("grupos");
    return nome;
}

QString Um()
{
    return QStringLiteral("1");
}

QString OndeUm()
{
    return QStringLiteral(" where grupos_cod=1");
}

} // namespace

TEST_F(BancoApoio, GeneratorsAreReadSetAndMoved)
{
    const QString gerador = QStringLiteral("grupos_cod_gen");
    EXPECT_EQ(GenVal(gerador), 0);
    EXPECT_EQ(GenVal(gerador), 0) << "reading does not move it";
    EXPECT_EQ(GenProximo(gerador), 1);
    EXPECT_EQ(GenProximo(gerador), 2);
    GenSet(gerador, 41);
    EXPECT_EQ(GenVal(gerador), 41);
    EXPECT_EQ(GenProximo(gerador), 42);
    GenSet(gerador, 7);
    EXPECT_EQ(GenVal(gerador), 7) << "setting may move it down";
    GenSet(gerador, 9007199254740991);
    EXPECT_EQ(GenVal(gerador), 9007199254740991);
}

TEST_F(BancoApoio, AGeneratorsNewValueIsSeenByOthersAtOnce)
{
    GenSet(QStringLiteral("grupos_cod_gen"), 123);
    const auto outra = Outra();
    ConexD().SQLConnection = outra.get();
    EXPECT_EQ(GenVal(QStringLiteral("grupos_cod_gen")), 123);
    ConexD().SQLConnection = &banco.Conexao();
}

TEST_F(BancoApoio, AMissingGeneratorIsAnErrorForTheCaller)
{
    EXPECT_THROW(GenVal(QStringLiteral("nao_existe_gen")), EDatabaseError);
    EXPECT_THROW(GenSet(QStringLiteral("nao_existe_gen"), 1), EDatabaseError);
}

TEST_F(BancoApoio, WithoutAConnectionTheGeneratorsAndLocksRaise)
{
    ConexD().SQLConnection = nullptr;
    EXPECT_THROW(GenVal(QStringLiteral("grupos_cod_gen")), EDatabaseError);
    EXPECT_THROW(GenSet(QStringLiteral("grupos_cod_gen"), 1), EDatabaseError);
    EXPECT_THROW(GarantiaTentar(Tabela(), Um(), OndeUm()), EDatabaseError);
    EXPECT_NO_THROW(GarantiaLiberar(Tabela(), Um()));
}

TEST_F(BancoApoio, FieldIsStringTellsTextFromTheRest)
{
    TCustomBRSQL consulta(QStringLiteral("select * from grupos"));
    const auto texto = [&](const char *nome) {
        return FieldIsString(consulta.Query().FieldByName(QString::fromLatin1(nome)));
    };
    EXPECT_TRUE(texto("NOME"));
    EXPECT_TRUE(texto("SIGLA"));
    EXPECT_TRUE(texto("OBS"));
    EXPECT_FALSE(texto("FOTO"));
    EXPECT_FALSE(texto("GRUPOS_COD"));
    EXPECT_FALSE(texto("VALOR"));
    EXPECT_FALSE(texto("QUANDO"));
    EXPECT_FALSE(FieldIsString(nullptr));
}

TEST_F(BancoApoio, NLinsDataSetCountsTheRows)
{
    TCustomBRSQL consulta(QStringLiteral("select * from grupos"));
    EXPECT_EQ(NLinsDataSet(&consulta.Query()), 2);
    consulta.Query().Close();
    EXPECT_EQ(NLinsDataSet(&consulta.Query()), 0);
    EXPECT_EQ(NLinsDataSet(nullptr), 0);
}

TEST_F(BancoApoio, ALockIsTakenOnceAndGivenBack)
{
    EXPECT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_TRUE(travas.Detem(Tabela(), Um()));
    EXPECT_TRUE(
        GarantiaTentar(Tabela(), QStringLiteral("2"), QStringLiteral(" where grupos_cod=2")))
        << "another record is another lock";
    EXPECT_TRUE(avisos.isEmpty());
    GarantiaLiberar(Tabela(), Um());
    EXPECT_FALSE(travas.Detem(Tabela(), Um()));
    GarantiaLiberar(Tabela(), Um());
    EXPECT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
}

TEST_F(BancoApoio, EveryLockTakenHasANumberOfItsOwn)
{
    EXPECT_EQ(GarantiaNumero(Tabela(), Um()), 0);
    ASSERT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    const qint64 numero = GarantiaNumero(Tabela(), Um());
    EXPECT_GT(numero, 0);
    EXPECT_EQ(GarantiaNumero(QStringLiteral("GRUPOS"), Um()), numero);
    GarantiaLiberar(Tabela(), Um());
    EXPECT_EQ(GarantiaNumero(Tabela(), Um()), 0);
    ASSERT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_GT(GarantiaNumero(Tabela(), Um()), numero);
    ConexD().SQLConnection = nullptr;
    EXPECT_EQ(GarantiaNumero(Tabela(), Um()), 0);
    ConexD().SQLConnection = &banco.Conexao();
    banco.Conexao().Close();
    EXPECT_EQ(GarantiaNumero(Tabela(), Um()), 0) << "a closed connection holds nothing";
    banco.Conexao().Open();
}

TEST_F(BancoApoio, ALockHeldElsewhereIsRefusedWithItsHolder)
{
    const auto outra = Outra();
    SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 15, 33))); });
    ASSERT_TRUE(outra->Travas().Tentar(Tabela(), Um()));
    SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(10, 0))); });
    EXPECT_FALSE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    ASSERT_EQ(avisos.size(), 1);
    const QRegularExpression esperado(
        QStringLiteral("^O registro está sendo alterado por .+@.+ desde 20/11/2026 09:15\\.\r\n"
                       "Tente novamente mais tarde\\.$"));
    EXPECT_TRUE(esperado.match(avisos[0]).hasMatch()) << avisos[0].toStdString();
    EXPECT_FALSE(travas.Detem(Tabela(), Um()));

    outra->Travas().Liberar(Tabela(), Um());
    EXPECT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_EQ(avisos.size(), 1);
}

TEST_F(BancoApoio, ALockOfAnotherScreenOfThisProgramSaysSo)
{
    ASSERT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_FALSE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_EQ(avisos, QStringList(QStringLiteral(
                          "O registro está sendo alterado em outra janela deste programa.\r\n"
                          "Confirme ou cancele a alteração naquela janela.")));
    EXPECT_TRUE(travas.Detem(Tabela(), Um())) << "the first screen keeps its lock";
}

TEST_F(BancoApoio, ARecordThatIsGoneIsRefusedAndNotLocked)
{
    const auto outra = Outra();
    outra->Executar(QStringLiteral("delete from grupos where grupos_cod=1"));
    EXPECT_FALSE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_EQ(avisos, QStringList(QStringLiteral("O registro não existe mais.\r\n"
                                                 "Foi excluído por outro usuário.")));
    EXPECT_EQ(travas.Count(), 0);
    EXPECT_TRUE(outra->Travas().Tentar(Tabela(), Um())) << "nobody else sees a lock either";
}

TEST_F(BancoApoio, ATableWithoutKeyLocksWithoutLookingForARecord)
{
    EXPECT_TRUE(GarantiaTentar(Tabela(), QString(), QStringLiteral(" where ")));
    EXPECT_TRUE(travas.Detem(Tabela(), QString()));
    GarantiaLiberar(Tabela(), QString());
    EXPECT_TRUE(GarantiaTentar(Tabela(), QString(), QString()));
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(BancoApoio, AFailingLookForTheRecordKeepsNoLock)
{
    EXPECT_THROW(GarantiaTentar(Tabela(), Um(), QStringLiteral(" where coluna_errada=1")),
                 EDatabaseError);
    EXPECT_EQ(travas.Count(), 0);
    EXPECT_TRUE(avisos.isEmpty());
}

TEST_F(BancoApoio, TheHolderMayChangeAndDeleteTheLockedRecord)
{
    ASSERT_TRUE(GarantiaTentar(Tabela(), Um(), OndeUm()));
    EXPECT_EQ(ConexD().Executar(QStringLiteral("update grupos set nome='X' where grupos_cod=1")),
              1);
    EXPECT_EQ(ConexD().Executar(QStringLiteral("delete from grupos where grupos_cod=1")), 1);
    GarantiaLiberar(Tabela(), Um());
}

TEST_F(BancoApoio, DateLiteralsAreReadByTheDatabase)
{
    const TDateTime bissexto = TDateTime::DeData(29, 2, 2024);
    EXPECT_EQ(Contar(QStringLiteral("dia=") + DataSQL(bissexto)), 1);
    EXPECT_EQ(Contar(QStringLiteral("dia=") + DataSQLFirebird(bissexto)), 1);
    EXPECT_EQ(Contar(QStringLiteral("dia>=") + DataSQLFirebird(bissexto)), 2);
    EXPECT_EQ(Contar(QStringLiteral("quando<") + DataSQLFirebird(TDateTime::DeData(1, 3, 2024))),
              1);
    const TDateTime momento(QDateTime(QDate(2024, 2, 29), QTime(10, 30)));
    EXPECT_EQ(Contar(QStringLiteral("quando=") + DataHoraSQLFirebird(momento)), 1);
    EXPECT_EQ(Contar(QStringLiteral("dia=") + DataSQL(momento)), 1) << "the time is dropped";
}

TEST_F(BancoApoio, EveryDateComesBackFromTheDatabaseAsItWentIn)
{
    for (const TDateTime data :
         {TDateTime(), SemData, TDateTime::DeData(1, 2, 2003), TDateTime::DeData(12, 11, 1910),
          TDateTime::DeData(31, 12, 9999), TDateTime::DeData(1, 1, 1)}) {
        for (const QString &literal : {DataSQL(data), DataSQLFirebird(data)}) {
            ConexD().Executar(QStringLiteral("update grupos set dia=") + literal +
                              QStringLiteral(" where grupos_cod=1"));
            TCustomBRSQL consulta(QStringLiteral("select dia from grupos where grupos_cod=1"));
            EXPECT_EQ(consulta.Fields(0)->AsDateTime().Dias(), data.Dias())
                << literal.toStdString();
        }
    }
}

TEST_F(BancoApoio, QuotedTextComesBackFromTheDatabaseAsItWentIn)
{
    for (const char *texto : {"O'Brien", "''", "ação; --", "\"a\" {x}"}) {
        const QString t = QString::fromUtf8(texto);
        ConexD().Executar(QStringLiteral("update grupos set nome=") + QuotedStr(t) +
                          QStringLiteral(" where grupos_cod=1"));
        TCustomBRSQL consulta(QStringLiteral("select nome from grupos where grupos_cod=1"));
        EXPECT_EQ(consulta.Fields(0)->AsString(), t);
    }
}
