#include "platform/database/PrepararBanco.h"

#include "platform/database/ConexD.h"
#include "support/BancoTemp.h"

using namespace ficha;

namespace
{

class PrepararBancoTest : public testing::Test
{
protected:
    TBancoTemp banco;
};

} // namespace

TEST_F(PrepararBancoTest, TrimsEachSide)
{
    EXPECT_EQ(banco.Valor(QStringLiteral("select ltrim('  a ') || '|' from rdb$database")),
              Variant("a |"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select rtrim('  a ') || '|' from rdb$database")),
              Variant("  a|"));
    EXPECT_EQ(banco.Valor(QStringLiteral("select ltrim(rtrim(cast(null as char(3)))) "
                                         "from rdb$database")),
              Null);
}

TEST_F(PrepararBancoTest, UniquenessQueriesOfTheScreensRun)
{
    banco.Executar(QStringLiteral("create table grupo (grupo_cod integer, nome varchar(30))"));
    banco.Executar(QStringLiteral("insert into grupo values (1, 'Ação')"));
    banco.Executar(QStringLiteral("insert into grupo values (2, '   ')"));
    TCustomBRQuery query;
    EXPECT_TRUE(query.Open(QStringLiteral("select nome from grupo where UPPER(nome)=UPPER('AÇÃO') "
                                          "collate pt_pt and ltrim(rtrim(nome))<>''")));
    EXPECT_FALSE(query.Open(QStringLiteral("select nome from grupo where UPPER(nome)=UPPER('') "
                                           "collate pt_pt and ltrim(rtrim(nome))<>''")));
    EXPECT_FALSE(query.Open(
        QStringLiteral("select nome from grupo where (upper(nome)=upper('ação') collate pt_pt) and "
                       "grupo_cod<>1 and ltrim(rtrim(nome))<>''")));
}

TEST_F(PrepararBancoTest, RunningItAgainChangesNothing)
{
    const QString objetos =
        QStringLiteral("select (select count(*) from rdb$relations) + (select count(*) from "
                       "rdb$functions) + (select count(*) from rdb$user_privileges) "
                       "from rdb$database");
    const Variant antes = banco.Valor(objetos);
    PrepararBanco(banco.Conexao());
    EXPECT_EQ(banco.Valor(objetos), antes);
}

TEST_F(PrepararBancoTest, MakesOnlyWhatIsMissing)
{
    banco.Executar(QStringLiteral("drop function ltrim"));
    PrepararBanco(banco.Conexao());
    EXPECT_EQ(banco.Valor(QStringLiteral("select ltrim(' x') from rdb$database")), Variant("x"));
}
