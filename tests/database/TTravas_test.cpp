#include "platform/database/TTravas.h"

#include "platform/core/Relogio.h"
#include "support/BancoTemp.h"

#include <QCoreApplication>
#include <QElapsedTimer>

using namespace ficha;

namespace
{

const QString Tabela = QStringLiteral("grupo");

class TTravasTest : public testing::Test
{
protected:
    TTravasTest()
    {
        outra.DatabaseName = banco.Arquivo();
        outra.Open();
    }
    ~TTravasTest() override { SetRelogio({}); }

    TTravas &Minhas() { return banco.Conexao().Travas(); }
    TTravas &Dela() { return outra.Travas(); }

    TBancoTemp banco;
    TSQLConnection outra;
};

} // namespace

TEST_F(TTravasTest, OneHolderAtATime)
{
    EXPECT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Dela().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("2")));
    EXPECT_TRUE(Dela().Tentar(QStringLiteral("produto"), QStringLiteral("1")));
    Minhas().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Minhas().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_EQ(Dela().Count(), 3);
}

TEST_F(TTravasTest, TwoScreensOfOneProgramAreTwoHolders)
{
    EXPECT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Minhas().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Minhas().Tentar(QStringLiteral("GRUPO"), QStringLiteral("1")));
    EXPECT_EQ(Minhas().Count(), 1);
    Minhas().Liberar(QStringLiteral("Grupo"), QStringLiteral("1"));
    EXPECT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("1")));
}

TEST_F(TTravasTest, RefusalComesAtOnce)
{
    Minhas().Tentar(Tabela, QStringLiteral("1"));
    QElapsedTimer tempo;
    tempo.start();
    EXPECT_FALSE(Dela().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_LT(tempo.elapsed(), 1000);
}

TEST_F(TTravasTest, ReleasingWhatIsNotHeldDoesNothing)
{
    Minhas().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("1")));
    Minhas().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_TRUE(Dela().Detem(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Minhas().Detem(Tabela, QStringLiteral("1")));
    Dela().Liberar(Tabela, QStringLiteral("1"));
    Dela().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_EQ(Dela().Count(), 0);
}

TEST_F(TTravasTest, HolderIsToldByNameAndMoment)
{
    const TDateTime agora(QDateTime(QDate(2024, 5, 6), QTime(7, 8, 9)));
    SetRelogio([&] { return agora; });
    EXPECT_FALSE(Dela().Dono(Tabela, QStringLiteral("1")).Conhecido);
    Minhas().Tentar(Tabela, QStringLiteral("1"));
    Minhas().Tentar(Tabela, QStringLiteral("2"));
    TDonoDaTrava dono;
    EXPECT_FALSE(Dela().Tentar(Tabela, QStringLiteral("1"), &dono));
    EXPECT_TRUE(dono.Conhecido);
    EXPECT_TRUE(dono.Quem.contains(u'@')) << dono.Quem.toStdString();
    EXPECT_TRUE(
        dono.Quem.endsWith(QStringLiteral("(%1)").arg(QCoreApplication::applicationName())));
    EXPECT_EQ(dono.Desde.DataHora(), agora.DataHora());
    TDonoDaTrava proprio;
    EXPECT_FALSE(Minhas().Tentar(Tabela, QStringLiteral("1"), &proprio));
    EXPECT_TRUE(proprio.Conhecido);
    EXPECT_EQ(proprio.Quem, dono.Quem);
    Minhas().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_FALSE(Dela().Dono(Tabela, QStringLiteral("1")).Conhecido);
    EXPECT_TRUE(Dela().Dono(Tabela, QStringLiteral("2")).Conhecido);
}

TEST_F(TTravasTest, KeysAreComparedToTheLetter)
{
    EXPECT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("a")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("A")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("a ")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QString()));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("á")));
    EXPECT_FALSE(Dela().Tentar(Tabela, QStringLiteral("a")));
}

TEST_F(TTravasTest, KeysOfAnyKindAndLength)
{
    const QString longa = QString(10000, u'x');
    for (const QString &chave :
         {longa, longa + u'y', QStringLiteral("it's; \"--|#"), QStringLiteral("5 € “”"),
          QStringLiteral("5 € „”"), QString(150, u'ç'), QString(151, u'ç')}) {
        EXPECT_TRUE(Minhas().Tentar(Tabela, chave)) << chave.left(20).toStdString();
        EXPECT_FALSE(Dela().Tentar(Tabela, chave)) << chave.left(20).toStdString();
        TDonoDaTrava dono = Dela().Dono(Tabela, chave);
        EXPECT_TRUE(dono.Conhecido);
    }
    EXPECT_EQ(Minhas().Count(), 7);
}

TEST_F(TTravasTest, HolderMayWriteTheLockedRecordAndCommit)
{
    banco.Executar(QStringLiteral("create table grupo (grupo_cod integer)"));
    EXPECT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("1")));
    banco.Executar(QStringLiteral("insert into grupo values (1)"));
    EXPECT_TRUE(Minhas().Detem(Tabela, QStringLiteral("1")));
    EXPECT_FALSE(Dela().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_EQ(banco.Valor(QStringLiteral("select count(*) from ficha_trava")), Variant(0.0));
}

TEST_F(TTravasTest, ClosingTheConnectionDropsAllLocks)
{
    Minhas().Tentar(Tabela, QStringLiteral("1"));
    Minhas().Tentar(Tabela, QStringLiteral("2"));
    banco.Conexao().Close();
    EXPECT_EQ(Minhas().Count(), 0);
    EXPECT_FALSE(Minhas().Detem(Tabela, QStringLiteral("1")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("1")));
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("2")));
    Minhas().Liberar(Tabela, QStringLiteral("1"));
    EXPECT_THROW(Minhas().Tentar(Tabela, QStringLiteral("3")), EDatabaseError);
}

TEST_F(TTravasTest, ReleaseAllAtOnce)
{
    Minhas().Tentar(Tabela, QStringLiteral("1"));
    Minhas().Tentar(Tabela, QStringLiteral("2"));
    Minhas().LiberarTodas();
    EXPECT_EQ(Minhas().Count(), 0);
    EXPECT_TRUE(Dela().Tentar(Tabela, QStringLiteral("2")));
}

TEST_F(TTravasTest, DatabaseThatWasNotPreparedIsAnErrorNotARefusal)
{
    banco.Executar(QStringLiteral("drop table ficha_trava"));
    EXPECT_THROW(Minhas().Tentar(Tabela, QStringLiteral("1")), EDatabaseError);
    EXPECT_EQ(Minhas().Count(), 0);
}

TEST_F(TTravasTest, TakenAndReleasedManyTimes)
{
    for (int i = 0; i < 200; ++i) {
        ASSERT_TRUE(Minhas().Tentar(Tabela, QStringLiteral("1"))) << i;
        Minhas().Liberar(Tabela, QStringLiteral("1"));
        ASSERT_TRUE(Dela().Tentar(Tabela, QStringLiteral("1"))) << i;
        Dela().Liberar(Tabela, QStringLiteral("1"));
    }
}
