#include "demo/UVendasDeExemplo.h"

#include "platform/core/Relogio.h"
#include "platform/database/TSQLConnection.h"
#include "platform/support/Datas.h"

using namespace ficha;

namespace comercial
{

namespace
{

constexpr int Vendas = 3000;
constexpr int VendasPorDia = 5;

/** Made where the rows are: thousands of statements would take as long as all the rest. %1 is
 * today, %2 the number of sales, %3 the sales of a day. */
constexpr char16_t Roteiro[] = uR"(
execute block as
    declare v integer = 0;
    declare i integer;
    declare n integer;
    declare clientes integer;
    declare produtos integer;
    declare cliente varchar(60);
    declare dia date;
    declare prazo integer;
begin
    select count(*) from clientes into :clientes;
    select count(*) from produtos into :produtos;
    if (clientes = 0 or produtos = 0) then exit;
    while (v < %2) do
    begin
        v = v + 1;
        select nome from clientes where clientes_cod = 1 + mod(:v * 37, :clientes)
            into :cliente;
        dia = dateadd(-((%2 - v) / %3) day to cast(%1 as date));
        prazo = mod(v, 4) * 15;
        insert into vendas (vendas_cod, data, cliente, desconto, vencimento)
            values (:v, :dia, :cliente,
                    case mod(:v, 7) when 0 then 5 when 3 then 2.5 else 0 end,
                    case when :prazo = 0 then null else dateadd(:prazo day to :dia) end);
        n = 1 + mod(v * 7, 4);
        i = 0;
        while (i < n) do
        begin
            i = i + 1;
            insert into vendas_itens (vendas_cod, item, produtos_cod, descricao, quantidade, preco)
                select :v, :i, produtos_cod, descricao, 1 + mod(:v + :i * 3, 9), preco
                from produtos where produtos_cod = 1 + mod(:v * 31 + :i * 97, :produtos);
        end
    end
end)";

} // namespace

void InserirVendasDeExemplo(TSQLConnection &conexao)
{
    conexao.Executar(
        QString::fromUtf16(Roteiro).arg(DataSQLFirebird(Hoje())).arg(Vendas).arg(VendasPorDia));
    conexao.Executar(QStringLiteral("set generator vendas_cod_gen to %1").arg(Vendas));
}

} // namespace comercial
