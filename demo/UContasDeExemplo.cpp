#include "demo/UContasDeExemplo.h"

#include "platform/database/TSQLConnection.h"
#include "platform/support/Textos.h"

#include <QString>

using namespace ficha;

namespace comercial
{

namespace
{

struct TContaDeExemplo {
    const char *Codigo;
    const char16_t *Descricao;
    const char *Saldo; /**< null for an account that others stand under */
};

constexpr TContaDeExemplo Contas[] = {
    {"1", u"Ativo", nullptr},
    {"1.1", u"Ativo circulante", nullptr},
    {"1.1.01", u"Caixa", "4812.35"},
    {"1.1.02", u"Bancos", nullptr},
    {"1.1.02.01", u"Conta movimento", "38240.10"},
    {"1.1.02.02", u"Aplicações de liquidez imediata", "25000.00"},
    {"1.1.03", u"Clientes", nullptr},
    {"1.1.03.01", u"Duplicatas a receber", "58902.48"},
    {"1.1.03.02", u"Cheques a receber", "2475.00"},
    {"1.1.04", u"Estoques", nullptr},
    {"1.1.04.01", u"Mercadorias para revenda", "95120.30"},
    {"1.1.04.02", u"Material de consumo", "2295.50"},
    {"1.1.05", u"Impostos a recuperar", "3154.27"},
    {"1.2", u"Ativo não circulante", nullptr},
    {"1.2.01", u"Imobilizado", nullptr},
    {"1.2.01.01", u"Móveis e utensílios", "18500.00"},
    {"1.2.01.02", u"Veículos", "64000.00"},
    {"1.2.01.03", u"Computadores", "12350.00"},
    {"1.2.01.04", u"(-) Depreciação acumulada", "-21350.00"},
    {"1.2.02", u"Intangível", nullptr},
    {"1.2.02.01", u"Programas de computador", "4800.00"},
    {"2", u"Passivo e patrimônio líquido", nullptr},
    {"2.1", u"Passivo circulante", nullptr},
    {"2.1.01", u"Fornecedores", "72480.90"},
    {"2.1.02", u"Obrigações trabalhistas", nullptr},
    {"2.1.02.01", u"Salários a pagar", "21340.00"},
    {"2.1.02.02", u"FGTS a recolher", "1707.20"},
    {"2.1.02.03", u"INSS a recolher", "4268.00"},
    {"2.1.03", u"Obrigações tributárias", nullptr},
    {"2.1.03.01", u"ICMS a recolher", "9845.60"},
    {"2.1.03.02", u"Simples Nacional a recolher", "6210.30"},
    {"2.1.04", u"Empréstimos bancários", "15000.00"},
    {"2.2", u"Passivo não circulante", nullptr},
    {"2.2.01", u"Financiamentos de longo prazo", "38000.00"},
    {"2.3", u"Patrimônio líquido", nullptr},
    {"2.3.01", u"Capital social", "100000.00"},
    {"2.3.02", u"Lucros acumulados", "39448.00"},
    {"3", u"Receitas", nullptr},
    {"3.1", u"Receita de vendas", nullptr},
    {"3.1.01", u"Venda de mercadorias", "412906.75"},
    {"3.1.02", u"(-) Devoluções e abatimentos", "-6120.40"},
    {"3.2", u"Outras receitas", nullptr},
    {"3.2.01", u"Receitas financeiras", "1932.15"},
    {"3.2.02", u"Descontos obtidos", "2486.30"},
    {"4", u"Custos e despesas", nullptr},
    {"4.1", u"Custo das mercadorias", nullptr},
    {"4.1.01", u"Custo das mercadorias vendidas", "263415.20"},
    {"4.2", u"Despesas com pessoal", nullptr},
    {"4.2.01", u"Salários", "61200.00"},
    {"4.2.02", u"Encargos sociais", "17136.00"},
    {"4.3", u"Despesas gerais", nullptr},
    {"4.3.01", u"Aluguel", "18000.00"},
    {"4.3.02", u"Energia elétrica", "6412.85"},
    {"4.3.03", u"Água e esgoto", "1186.40"},
    {"4.3.04", u"Telefone e internet", "2394.00"},
    {"4.3.05", u"Material de escritório", "1871.62"},
    {"4.4", u"Despesas financeiras", nullptr},
    {"4.4.01", u"Juros e tarifas bancárias", "3274.18"},
};

} // namespace

void InserirPlanoDeContas(TSQLConnection &conexao)
{
    conexao.EmTransacao([&] {
        int codigo = 0;
        for (const TContaDeExemplo &conta : Contas) {
            conexao.Executar(QStringLiteral("insert into contas (contas_cod, codigo, descricao) "
                                            "values (%1, %2, %3)")
                                 .arg(QString::number(++codigo),
                                      QuotedStr(QString::fromLatin1(conta.Codigo)),
                                      QuotedStr(QString::fromUtf16(conta.Descricao))));
        }
        conexao.Executar(QStringLiteral("set generator contas_cod_gen to %1").arg(codigo));
    });
}

void InserirSaldosDeExemplo(TSQLConnection &conexao)
{
    for (const TContaDeExemplo &conta : Contas) {
        if (conta.Saldo)
            conexao.Executar(QStringLiteral("update contas set saldo=%1 where codigo=%2")
                                 .arg(QString::fromLatin1(conta.Saldo),
                                      QuotedStr(QString::fromLatin1(conta.Codigo))));
    }
}

} // namespace comercial
