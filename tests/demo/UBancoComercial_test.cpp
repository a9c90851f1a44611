#include "demo/UBancoComercial.h"

#include "platform/core/Documentos.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/database/PrepararBanco.h"
#include "support/BancoTemp.h"

#include <QDate>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <functional>

using namespace comercial;
using namespace ficha;

namespace
{

class BancoComercialTest : public testing::Test
{
protected:
    BancoComercialTest() : pasta(PastaDeBancos()), antes(ConexD().SQLConnection) {}
    ~BancoComercialTest() override { ConexD().SQLConnection = antes; }

    QString Arquivo(const char *nome) const { return pasta.filePath(QString::fromLatin1(nome)); }

    /** A database as the first version of the program made it, with something of the user's. */
    QString BancoDaPrimeiraVersao() const
    {
        QFile esquema(QStringLiteral(":/demo/schema.sql"));
        EXPECT_TRUE(esquema.open(QIODevice::ReadOnly));
        TSQLConnection velha;
        velha.DatabaseName = Arquivo("velho.fdb");
        velha.CriarBanco(QString::fromUtf8(esquema.readAll()));
        PrepararBanco(velha);
        velha.Executar(QStringLiteral("insert into grupos values (1, 'Meu grupo')"));
        velha.Executar(QStringLiteral("insert into produtos (produtos_cod, descricao, grupos_cod) "
                                      "values (7, 'Meu produto', 1)"));
        return velha.DatabaseName;
    }
    static int Numero(TSQLConnection &conexao, const QString &sql)
    {
        return ValorDoBanco(conexao, sql).AsInteger();
    }
    /** Every table and view with its columns, their types and their order. */
    static QString Estrutura(TSQLConnection &conexao)
    {
        return ValorDoBanco(
                   conexao,
                   QStringLiteral(
                       "select cast(list(trim(r.rdb$relation_name) || '.' || "
                       "trim(r.rdb$field_name) || ' ' || f.rdb$field_type || ' ' || "
                       "f.rdb$field_length || ' ' || coalesce(r.rdb$null_flag, 0), '; ') as "
                       "varchar(8000)) from (select * from rdb$relation_fields where "
                       "rdb$system_flag = 0 order by rdb$relation_name, rdb$field_position) r "
                       "join rdb$fields f on f.rdb$field_name = r.rdb$field_source"))
            .AsString();
    }
    /** Runs f for the value of the first column of each row. */
    static int ParaCada(TSQLConnection &conexao, const QString &sql,
                        const std::function<void(const QString &)> &f)
    {
        TCustomBRQuery linhas;
        linhas.Query().SetSQLConnection(&conexao);
        int n = 0;
        for (linhas.Open(sql); !linhas.Eof(); linhas.Next(), ++n)
            f(linhas.Fields(0)->AsString());
        return n;
    }

    QTemporaryDir pasta;
    TSQLConnection *antes;
};

} // namespace

TEST_F(BancoComercialTest, AnOlderDatabaseGainsWhatItLacksAndKeepsWhatItHolds)
{
    const QString arquivo = BancoDaPrimeiraVersao();
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, arquivo);
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select descricao from produtos")),
              Variant(u"Meu produto"));
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select cod_barras from produtos")),
              Variant(u""))
        << "no bar code is no Null either";
    EXPECT_EQ(
        Numero(conexao, QStringLiteral("select count(*) from produtos where cadastro is null")), 1)
        << "nobody knows on which day it was registered";
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from cep_uf")), 27);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from clientes")), 0)
        << "nobody is invented in a database that is in use";
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from vendas")), 0);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from contas")), 58);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from contas where saldo <> 0")), 0)
        << "nor is anything booked";
    conexao.Executar(
        QStringLiteral("insert into clientes (clientes_cod, nome, cpf, grupos_cod) values "
                       "(gen_id(clientes_cod_gen, 1), 'Ana', '52998224725', 1)"));
    conexao.Close();
    TSQLConnection denovo;
    AbrirBancoComercial(denovo, arquivo);
    EXPECT_EQ(ValorDoBanco(denovo, QStringLiteral("select nome from clientes")), Variant(u"Ana"));
    EXPECT_EQ(Numero(denovo, QStringLiteral("select count(*) from cep_uf")), 27);
}

TEST_F(BancoComercialTest, TheClientsOfAnOlderDatabaseMayBuyAndHaveNoCreditYet)
{
    const QString arquivo = BancoDaPrimeiraVersao();
    {
        TSQLConnection velha;
        velha.DatabaseName = arquivo;
        velha.Open();
        QFile clientes(QStringLiteral(":/demo/schema-clientes.sql"));
        ASSERT_TRUE(clientes.open(QIODevice::ReadOnly));
        velha.ExecutarScript(QString::fromUtf8(clientes.readAll()));
        velha.Executar(QStringLiteral("insert into clientes (clientes_cod, nome) values (1, "
                                      "'Ana')"));
    }
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, arquivo);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from clientes where nome = 'Ana' and "
                                             "ativo = 'S' and limite = 0 and cadastro is null")),
              1)
        << "nobody knows on which day she was registered";
}

TEST_F(BancoComercialTest, AnOlderDatabaseBecomesTheSameAsANewOne)
{
    TSQLConnection velha;
    AbrirBancoComercial(velha, BancoDaPrimeiraVersao());
    TSQLConnection nova;
    AbrirBancoComercial(nova, Arquivo("novo.fdb"));
    EXPECT_GT(Estrutura(nova).size(), 1000);
    EXPECT_EQ(Estrutura(velha), Estrutura(nova));
    const QString indices = QStringLiteral(
        "select cast(list(trim(rdb$index_name), ' ') as varchar(4000)) from (select rdb$index_name "
        "from rdb$indices where rdb$system_flag = 0 and rdb$index_name not starting with 'RDB$' "
        "order by rdb$index_name)");
    EXPECT_EQ(ValorDoBanco(velha, indices), ValorDoBanco(nova, indices));
}

TEST_F(BancoComercialTest, AStepThatFailsLeavesTheDatabaseAsItWasAndIsTriedAgain)
{
    const QString arquivo = BancoDaPrimeiraVersao();
    {
        TSQLConnection velha;
        velha.DatabaseName = arquivo;
        velha.Open();
        // In the way of the last statement of the clients' step.
        velha.Executar(QStringLiteral("alter table produtos add cod_barras integer"));
    }
    {
        TSQLConnection conexao;
        EXPECT_THROW(AbrirBancoComercial(conexao, arquivo), EDatabaseError);
        EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from rdb$relations where "
                                                 "rdb$relation_name = 'CLIENTES'")),
                  0);
        EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from rdb$generators where "
                                                 "rdb$generator_name = 'CLIENTES_COD_GEN'")),
                  0);
        conexao.Executar(QStringLiteral("alter table produtos drop cod_barras"));
    }
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, arquivo);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from clientes")), 0);
}

TEST_F(BancoComercialTest, EveryDocumentAndBarCodeOfTheSampleDataIsValid)
{
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, Arquivo("novo.fdb"));
    int comLetras = 0;
    const int cpfs =
        ParaCada(conexao, QStringLiteral("select cpf from clientes where tipo_pess = 0"),
                 [](const QString &cpf) { EXPECT_TRUE(CPFValido(cpf)) << cpf.toStdString(); });
    const int cnpjs =
        ParaCada(conexao, QStringLiteral("select cnpj from clientes where tipo_pess = 1"),
                 [&](const QString &cnpj) {
                     EXPECT_TRUE(CNPJValido(cnpj)) << cnpj.toStdString();
                     comLetras += std::any_of(cnpj.begin(), cnpj.end(),
                                              [](QChar c) { return c.isLetter(); });
                 });
    EXPECT_EQ(cpfs + cnpjs, 320);
    EXPECT_GT(cpfs, 100);
    EXPECT_GT(cnpjs, 100);
    EXPECT_GT(comLetras, 10);
    EXPECT_LT(comLetras, cnpjs / 2);
    EXPECT_EQ(ParaCada(conexao, QStringLiteral("select cod_barras from produtos"),
                       [](const QString &codigo) {
                           EXPECT_EQ(codigo.size(), 13);
                           EXPECT_TRUE(GTINValido(codigo)) << codigo.toStdString();
                       }),
              256);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(distinct cod_barras) from produtos")),
              256);
}

TEST_F(BancoComercialTest, TheSampleClientsArePlausible)
{
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, Arquivo("novo.fdb"));
    const auto nenhum = [&](const char *onde) {
        return Numero(conexao, QStringLiteral("select count(*) from clientes where ") +
                                   QString::fromUtf8(onde)) == 0;
    };
    EXPECT_TRUE(nenhum("tipo_pess = 0 and (cpf is null or cnpj is not null)"));
    EXPECT_TRUE(nenhum("tipo_pess = 1 and (cnpj is null or cpf is not null)"));
    EXPECT_TRUE(nenhum("nome = '' or nome_menor = '' or cep = '' or mun = '' or num = ''"));
    EXPECT_TRUE(nenhum("nascimento is null or nascimento > '2023-01-01'"));
    EXPECT_TRUE(nenhum("cadastro is null or cadastro > current_date"));
    EXPECT_TRUE(nenhum("ativo not in ('S', 'N') or limite < 0 or limite > 20500"));
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(*) from clientes where ativo = 'N'")),
              18);
    EXPECT_TRUE(nenhum("not exists (select 1 from cep_logr l where l.cep = clientes.cep)"));
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(distinct nome) from clientes")), 320);
    EXPECT_EQ(Numero(conexao, QStringLiteral("select count(distinct uf) from clientes")), 27);
    ParaCada(conexao, QStringLiteral("select uf || ddd from clientes"),
             [](const QString &ufDdd) { EXPECT_EQ(UFDoDDD(ufDdd.mid(2).toInt()), ufDdd.left(2)); });
    ParaCada(conexao, QStringLiteral("select fone1 from clientes"), [](const QString &fone) {
        EXPECT_NE(TipoDoFone(fone), TTipoFone::Nenhum) << fone.toStdString();
    });
    EXPECT_EQ(ParaCada(conexao, QStringLiteral("select foto from clientes where foto <> ''"),
                       [](const QString &foto) {
                           EXPECT_TRUE(QFile::exists(foto)) << foto.toStdString();
                       }),
              2);
}

TEST_F(BancoComercialTest, TheSampleSalesAndBalancesArePlausible)
{
    TSQLConnection conexao;
    AbrirBancoComercial(conexao, Arquivo("novo.fdb"));
    const auto numero = [&](const char *sql) { return Numero(conexao, QString::fromUtf8(sql)); };
    EXPECT_EQ(numero("select count(*) from vendas"), 3000);
    EXPECT_EQ(numero("select gen_id(vendas_cod_gen, 0) from rdb$database"), 3000);
    EXPECT_EQ(numero("select count(*) from vendas v where not exists (select 1 from vendas_itens i "
                     "where i.vendas_cod = v.vendas_cod)"),
              0);
    EXPECT_EQ(numero("select count(*) from vendas where data > current_date or vencimento <= data"),
              0);
    EXPECT_EQ(numero("select count(*) from vendas v where not exists (select 1 from clientes c "
                     "where c.nome = v.cliente)"),
              0);
    EXPECT_GT(numero("select count(distinct cliente) from vendas"), 250);
    EXPECT_EQ(numero("select count(*) from vendas_itens i left join produtos p on p.produtos_cod = "
                     "i.produtos_cod where p.descricao is distinct from i.descricao or i.preco <> "
                     "p.preco or i.quantidade < 1"),
              0);
    EXPECT_EQ(numero("select count(distinct produtos_cod) from vendas_itens"), 256);
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select sum(saldo) from contas where codigo "
                                                   "starting '1.'"))
                  .AsFloat(),
              308300);
    EXPECT_EQ(ValorDoBanco(conexao, QStringLiteral("select sum(saldo) from contas where codigo "
                                                   "starting '2.'"))
                  .AsFloat(),
              308300);
    EXPECT_EQ(numero("select count(*) from contas c where position('.' in codigo) > 0 and not "
                     "exists (select 1 from contas a where c.codigo starting a.codigo || '.')"),
              0)
        << "every account stands under another one";
}
