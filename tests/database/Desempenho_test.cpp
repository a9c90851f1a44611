// What rows, walks and small statements cost. The figures are printed in every build; bounds are
// generous, for machines that do other things meanwhile.

#include "platform/database/TSQLQuery.h"
#include "platform/database/TTravas.h"
#include "support/BancoTemp.h"

#include <QElapsedTimer>

#include <functional>

using namespace ficha;

namespace
{

#ifdef NDEBUG
constexpr int Linhas = 200000;
#else
constexpr int Linhas = 20000;
#endif

const QString Lista = QStringLiteral("select * from cliente");

/** Eight columns filled as a register of clients is. */
QString Roteiro()
{
    return QStringLiteral(R"(
        create table cliente (cliente_cod integer not null primary key, nome varchar(40),
            cidade varchar(20), limite numeric(15,2), nascimento date, tipo char(1),
            alterado timestamp, endereco varchar(60));
        set term ^;
        execute block as declare i integer = 1; begin
            while (i <= %1) do begin
                insert into cliente values (:i, 'Maria Aparecida ' || :i, 'Campinas',
                    :i * 1.17, date '1980-01-01' + mod(:i, 9000), 'F',
                    timestamp '2024-01-01 08:00:00' + :i, 'Rua das Acácias, ' || mod(:i, 1000));
                i = i + 1;
            end
        end^)")
        .arg(Linhas);
}

class DesempenhoTest : public testing::Test
{
protected:
    DesempenhoTest()
    {
        query.SetSQLConnection(&banco.Conexao());
        query.SetSQL(Lista);
    }

    TBancoTemp banco{Roteiro()};
    TSQLQuery query;
};

double Segundos(const std::function<void()> &f)
{
    QElapsedTimer tempo;
    tempo.start();
    f();
    return double(tempo.nsecsElapsed()) / 1e9;
}

} // namespace

TEST_F(DesempenhoTest, MemoryPerRow)
{
    query.Open();
    const double porLinha = double(query.BytesUsados()) / Linhas;
    std::printf("bytes per row, its pointer included: %.1f\n", porLinha);
    EXPECT_LT(porLinha, 112.0);
    TSQLQuery uma;
    uma.SetSQLConnection(&banco.Conexao());
    uma.SetSQL(Lista + QStringLiteral(" where cliente_cod = 1"));
    uma.Open();
    EXPECT_LE(uma.BytesUsados(), 8192);
}

TEST_F(DesempenhoTest, WalkingCostsTheSameFromAnyRow)
{
    query.Open();
    constexpr int Passos = 1000000;
    const auto passear = [&](int alvo) {
        return Segundos([&] {
            for (int i = 0; i < Passos; ++i) {
                query.First();
                query.MoveBy(alvo);
            }
        });
    };
    const double perto = passear(1);
    const double longe = passear(Linhas - 1);
    EXPECT_EQ(query.RecNo(), Linhas);
    std::printf("First and MoveBy: %.1f ns near, %.1f ns far\n", perto / Passos * 1e9,
                longe / Passos * 1e9);
    EXPECT_LT(longe, 3 * perto + 0.1);
}

TEST_F(DesempenhoTest, SmallQueries)
{
    constexpr int Vezes = 500;
    TSQLQuery uma;
    uma.SetSQLConnection(&banco.Conexao());
    const double porConsulta = Segundos([&] {
                                   for (int i = 0; i < Vezes; ++i) {
                                       uma.SetSQL(QStringLiteral("select nome from cliente where "
                                                                 "cliente_cod = %1")
                                                      .arg(i + 1));
                                       uma.Open();
                                   }
                               }) /
                               Vezes;
    const double porGravacao =
        Segundos([&] {
            for (int i = 0; i < Vezes; ++i)
                banco.Executar(
                    QStringLiteral("update cliente set cidade = 'x' where cliente_cod = %1")
                        .arg(i));
        }) /
        Vezes;
    const double porTrava =
        Segundos([&] {
            for (int i = 0; i < Vezes; ++i) {
                banco.Conexao().Travas().Tentar(QStringLiteral("cliente"), QString::number(i));
                banco.Conexao().Travas().Liberar(QStringLiteral("cliente"), QString::number(i));
            }
        }) /
        Vezes;
    const double unicidade = Segundos([&] {
        uma.SetSQL(QStringLiteral("select nome from cliente where UPPER(nome)=UPPER('ninguém') "
                                  "collate pt_pt and ltrim(rtrim(nome))<>''"));
        uma.Open();
    });
    std::printf("one-row query %.3f ms, write %.3f ms, lock and release %.3f ms, uniqueness query "
                "over %d rows %.1f ms\n",
                porConsulta * 1e3, porGravacao * 1e3, porTrava * 1e3, Linhas, unicidade * 1e3);
    EXPECT_LT(porConsulta, 0.05);
}
