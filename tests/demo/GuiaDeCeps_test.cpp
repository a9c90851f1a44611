#include "demo/UBancoComercial.h"
#include "demo/UGuiaDeCeps.h"
#include "platform/database/ConexD.h"
#include "support/BancoTemp.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace comercial;
using namespace ficha;

namespace
{

class GuiaDeCepsTest : public testing::Test
{
protected:
    GuiaDeCepsTest() : pasta(PastaDeBancos()), antes(ConexD().SQLConnection)
    {
        AbrirBancoComercial(conexao, pasta.filePath(QStringLiteral("comercial.fdb")));
    }
    ~GuiaDeCepsTest() override { ConexD().SQLConnection = antes; }

    int Numero(const QString &sql) { return ValorDoBanco(conexao, sql).AsInteger(); }
    QString Texto(const QString &sql) { return ValorDoBanco(conexao, sql).AsString(); }

    QTemporaryDir pasta;
    TSQLConnection conexao;
    TSQLConnection *antes;
};

/** The streets with everything that they hang on. */
const QString Enderecos = QStringLiteral(
    " from cep_logr l join cep_tipologr t on t.tipologr_cod = l.tipologr_cod join cep_bai b on "
    "b.bai_cod = l.bai_cod join cep_mun m on m.mun_cod = b.mun_cod join cep_uf u on u.uf_cod = "
    "m.uf_cod");

} // namespace

TEST_F(GuiaDeCepsTest, ANewDatabaseHasTheStatesTheirCapitalsAndStreetsOfEachState)
{
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from cep_uf")), 27);
    EXPECT_EQ(Numero(QStringLiteral("select count(distinct uf_cod) from cep_mun")), 27);
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from cep_logr")), 41);
    EXPECT_EQ(Numero(QStringLiteral("select count(distinct u.sigla)") + Enderecos), 27);
    EXPECT_EQ(Texto(QStringLiteral("select t.nome || ' ' || l.nome || ', ' || b.nome || ', ' || "
                                   "m.nome || ', ' || u.sigla") +
                    Enderecos + QStringLiteral(" where l.cep = '57303807'")),
              QStringLiteral("Rua Damiana Correia de Albuquerque, Olho D'Água dos Cazuzinhas, "
                             "Arapiraca, AL"));
    EXPECT_EQ(Texto(QStringLiteral("select trim(t.nome) || '/' || l.nome") + Enderecos +
                    QStringLiteral(" where l.cep = '71020631'")),
              QStringLiteral("/QE 11 Área Especial C"))
        << "an address without a kind of street";
    EXPECT_EQ(Texto(QStringLiteral("select first 1 nome from cep_mun where uf_cod = (select uf_cod "
                                   "from cep_uf where sigla = 'SP') order by mun_cod")),
              QStringLiteral("São Paulo"))
        << "the capital is the first of its state";
}

TEST_F(GuiaDeCepsTest, NamesSortAsInADictionary)
{
    conexao.Executar(QStringLiteral("insert into cep_bai values (9001, 1, 'Água Fria')"));
    conexao.Executar(QStringLiteral("insert into cep_bai values (9002, 1, 'Aldeia')"));
    conexao.Executar(QStringLiteral("insert into cep_bai values (9003, 1, 'Zumbi')"));
    TCustomBRQuery nomes;
    nomes.Open(QStringLiteral("select nome from cep_bai where bai_cod > 9000 order by nome"));
    EXPECT_EQ(nomes.Fields(0)->AsString(), QStringLiteral("Água Fria"));
}

TEST_F(GuiaDeCepsTest, StreetsHaveACodeColumnAndAGeneratorOfTheirOwnName)
{
    EXPECT_EQ(Numero(QStringLiteral("select gen_id(logr_cod_gen, 0) from rdb$database")), 41);
    EXPECT_EQ(Numero(QStringLiteral("select max(logr_cod) from logr")), 41);
    conexao.Executar(
        QStringLiteral("insert into logr (logr_cod, bai_cod, tipologr_cod, nome, compl, cep) "
                       "values (42, 1, 'R', 'Nova', '', '69900999')"));
    EXPECT_EQ(Texto(QStringLiteral("select cep from cep_logr where nome = 'Nova'")),
              QStringLiteral("69900999"));
    EXPECT_EQ(conexao.Executar(QStringLiteral("delete from logr where logr_cod=42")), 1);
}

TEST_F(GuiaDeCepsTest, TheGeneratorAddsAsManyStreetsAsItIsAskedFor)
{
    constexpr int Ruas = 20000;
    EXPECT_EQ(GerarGuia(conexao, Ruas), Ruas);
    EXPECT_EQ(Numero(QStringLiteral("select count(*)") + Enderecos), Ruas + 41)
        << "each one has its kind, bairro, município and state";
    EXPECT_EQ(Numero(QStringLiteral("select gen_id(logr_cod_gen, 0) from rdb$database")),
              Numero(QStringLiteral("select max(logr_cod) from cep_logr")));
    EXPECT_EQ(
        Numero(QStringLiteral("select count(distinct cep) from cep_logr where logr_cod > 41")),
        Ruas);
    EXPECT_EQ(Numero(QStringLiteral("select min(n) from (select count(*) as n") + Enderecos +
                     QStringLiteral(" where l.logr_cod > 41 group by u.sigla)")),
              Ruas * 100 / 98000)
        << "the smallest states have theirs too";
    EXPECT_GT(Numero(QStringLiteral("select count(*) from cep_logr where nome = ''")), 0)
        << "towns with one CEP and no street";
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from cep_logr where nome = '' and "
                                    "tipologr_cod <> '-'")),
              0);
}

TEST_F(GuiaDeCepsTest, GeneratedCepsLieInTheirStatesRanges)
{
    GerarGuia(conexao, 20000);
    const auto fora = [&](const char *sigla, const char *faixa) {
        return Numero(QStringLiteral("select count(*)") + Enderecos +
                      QStringLiteral(" where u.sigla = '%1' and not (%2)")
                          .arg(QString::fromLatin1(sigla), QString::fromLatin1(faixa)));
    };
    EXPECT_EQ(fora("SP", "l.cep between '01000000' and '19999999'"), 0);
    EXPECT_EQ(fora("RS", "l.cep between '90000000' and '99999999'"), 0);
    EXPECT_EQ(fora("RR", "l.cep between '69300000' and '69399999'"), 0);
    EXPECT_EQ(fora("AM", "l.cep between '69000000' and '69299999' or "
                         "l.cep between '69400000' and '69899999'"),
              0);
    EXPECT_EQ(fora("GO", "l.cep between '72800000' and '72999999' or "
                         "l.cep between '73700000' and '76799999'"),
              0);
    EXPECT_GT(fora("DF", "l.cep between '70000000' and '72799999'"), 0) << "both ranges are used";
}

TEST_F(GuiaDeCepsTest, GeneratedNamesAreDifferentWithinTheirBairro)
{
    GerarGuia(conexao, 20000);
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from (select bai_cod, nome from cep_logr "
                                    "group by bai_cod, nome having count(*) > 1)")),
              0);
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from (select mun_cod, nome from cep_bai "
                                    "group by mun_cod, nome having count(*) > 1)")),
              0);
    EXPECT_EQ(Numero(QStringLiteral("select count(*) from (select uf_cod, nome from cep_mun "
                                    "group by uf_cod, nome having count(*) > 1)")),
              0);
}
