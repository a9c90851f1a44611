#include "demo/UGuiaDeCeps.h"

#include "platform/database/ConexD.h"
#include "platform/support/Textos.h"

#include <QFile>

#include <algorithm>

using namespace ficha;

namespace comercial
{

namespace
{

/** The first five digits of a state's CEPs, from and to. */
struct TFaixaDeCeps {
    const char *Sigla;
    int De;
    int Ate;
};

/** A state's second range follows its first. */
constexpr TFaixaDeCeps Faixas[] = {
    {"AC", 69900, 69999}, {"AL", 57000, 57999}, {"AM", 69000, 69299}, {"AM", 69400, 69899},
    {"AP", 68900, 68999}, {"BA", 40000, 48999}, {"CE", 60000, 63999}, {"DF", 70000, 72799},
    {"DF", 73000, 73699}, {"ES", 29000, 29999}, {"GO", 72800, 72999}, {"GO", 73700, 76799},
    {"MA", 65000, 65999}, {"MG", 30000, 39999}, {"MS", 79000, 79999}, {"MT", 78000, 78899},
    {"PA", 66000, 68899}, {"PB", 58000, 58999}, {"PE", 50000, 56999}, {"PI", 64000, 64999},
    {"PR", 80000, 87999}, {"RJ", 20000, 28999}, {"RN", 59000, 59999}, {"RO", 76800, 76999},
    {"RR", 69300, 69399}, {"RS", 90000, 99999}, {"SC", 88000, 89999}, {"SE", 49000, 49999},
    {"SP", 1000, 19999},  {"TO", 77000, 77999},
};

constexpr int CepsPorPrefixo = 1000;

const char16_t *const Nomes[] = {
    u"Abelardo", u"Adelaide", u"Afonso",  u"Alfredo",  u"Amélia",   u"Américo",   u"Anita",
    u"Antônio",  u"Aurora",   u"Beatriz", u"Benedito", u"Carlos",   u"Carolina",  u"Cecília",
    u"César",    u"Clara",    u"Conrado", u"Davi",     u"Dolores",  u"Domingos",  u"Eduardo",
    u"Emília",   u"Ernesto",  u"Eugênia", u"Fernando", u"Flávio",   u"Francisca", u"Gaspar",
    u"Glória",   u"Gonçalo",  u"Heitor",  u"Helena",   u"Hermínia", u"Inácio",    u"Inês",
    u"Isabel",   u"Ítalo",    u"Jacinto", u"Joana",    u"Joaquim",  u"Jorge",     u"José",
    u"Júlia",    u"Laura",    u"Leonel",  u"Luísa",    u"Manoel",   u"Marcos",    u"Matilde",
    u"Nélson",   u"Olívia",   u"Otávio",  u"Pedro",    u"Quitéria", u"Raul",      u"Rosália",
    u"Sílvio",   u"Teresa",   u"Úrsula",  u"Vicente",
};
const char16_t *const Sobrenomes[] = {
    u"Abreu",    u"Albuquerque", u"Almeida",   u"Amaral",     u"Andrade",     u"Aragão",
    u"Araújo",   u"Assis",       u"Azevedo",   u"Barbosa",    u"Barros",      u"Bastos",
    u"Borges",   u"Braga",       u"Brandão",   u"Brito",      u"Camargo",     u"Campos",
    u"Cardoso",  u"Carneiro",    u"Castro",    u"Cavalcanti", u"Chaves",      u"Coelho",
    u"Cordeiro", u"Couto",       u"Cunha",     u"D'Ávila",    u"Dantas",      u"Dias",
    u"Duarte",   u"Falcão",      u"Farias",    u"Figueira",   u"Fonseca",     u"Freire",
    u"Furtado",  u"Gouveia",     u"Guimarães", u"Lacerda",    u"Leitão",      u"Lemos",
    u"Linhares", u"Lobato",      u"Macedo",    u"Machado",    u"Magalhães",   u"Meireles",
    u"Moraes",   u"Nóbrega",     u"Pacheco",   u"Peixoto",    u"Pinheiro",    u"Queiroz",
    u"Ramalho",  u"Sampaio",     u"Tavares",   u"Teixeira",   u"Vasconcelos", u"Xavier",
};
const char16_t *const Lugares[] = {
    u"América",     u"Aurora",    u"Bela Vista", u"Boa Vista",  u"Cachoeira",   u"Colina",
    u"Esperança",   u"Europa",    u"Figueira",   u"Flores",     u"Fonte",       u"Glória",
    u"Guarani",     u"Horizonte", u"Ipê",        u"Itália",     u"Jacarandá",   u"Lagoa",
    u"Laranjeiras", u"Liberdade", u"Mangueira",  u"Marajó",     u"Miramar",     u"Operária",
    u"Palmeira",    u"Paraíso",   u"Pinheiros",  u"Planalto",   u"Primavera",   u"Progresso",
    u"Recreio",     u"Redentor",  u"Ribeirão",   u"Santa Cruz", u"Santa Luzia", u"São Bento",
    u"São Jorge",   u"Serrana",   u"Tropical",   u"União",
};
const char16_t *const Cidades[] = {
    u"Água",     u"Alto",        u"Barra",   u"Belo",        u"Boa",     u"Bom Jesus",
    u"Campo",    u"Capela",      u"Cruz",    u"Dois Irmãos", u"Estrela", u"Formosa",
    u"Guarani",  u"Itá",         u"Lagoa",   u"Mata",        u"Monte",   u"Morro",
    u"Nova",     u"Olho d'Água", u"Paraíso", u"Pedra",       u"Pinhal",  u"Porto",
    u"Riacho",   u"Rio",         u"Salto",   u"Santa Rita",  u"Santana", u"São João",
    u"São José", u"Serra",       u"Terra",   u"Três Barras", u"Vale",    u"Várzea",
};
const char16_t *const Complementos[] = {
    u"Alegre",     u"Azul",       u"Bonita",      u"da Boa Vista", u"da Mata",  u"da Serra",
    u"das Flores", u"das Pedras", u"de Minas",    u"do Campo",     u"do Leste", u"do Meio",
    u"do Norte",   u"do Oeste",   u"do Rio",      u"do Sertão",    u"do Sul",   u"do Vale",
    u"dos Campos", u"dos Ipês",   u"dos Pinhais", u"Dourada",      u"Feliz",    u"Formosa",
    u"Grande",     u"Imperial",   u"Nova",        u"Paulista",     u"Real",     u"Rica",
    u"Santa",      u"Serena",     u"Verde",       u"Velha",        u"Vermelha", u"Vitória",
};
const char16_t *const TiposDeBairro[] = {u"Jardim",   u"Vila",    u"Parque",
                                         u"Conjunto", u"Chácara", u"Alto"};

/** A list as one text of equal pieces, from which the engine cuts the i-th without searching. */
template <std::size_t N>
QString EmPedacos(const char16_t *const (&lista)[N])
{
    constexpr int Pedaco = 14;
    QString texto;
    for (const char16_t *item : lista)
        texto += QString::fromUtf16(item).leftJustified(Pedaco, u' ');
    return QuotedStr(texto);
}

/** What a state gets. */
struct TParte {
    QString Sigla;
    int Logradouros = 0;
    int Ceps = 0;       /**< codes that the state has to give */
    int Primeira = 0;   /**< of these in its first range */
    int DePrimeira = 0; /**< first code of each range */
    int DeSegunda = 0;
};

std::vector<TParte> Repartir(int logradouros)
{
    std::vector<TParte> partes;
    qint64 todos = 0;
    for (const TFaixaDeCeps &faixa : Faixas) {
        const int ceps = (faixa.Ate - faixa.De + 1) * CepsPorPrefixo;
        const QString sigla = QString::fromLatin1(faixa.Sigla);
        todos += ceps;
        if (!partes.empty() && partes.back().Sigla == sigla) {
            partes.back().DeSegunda = faixa.De * CepsPorPrefixo;
            partes.back().Ceps += ceps;
        } else {
            const int de = faixa.De * CepsPorPrefixo;
            partes.push_back({sigla, 0, ceps, ceps, de, 0});
        }
    }
    // Rounded on the running sum, so that the parts make up the whole.
    qint64 dados = 0;
    qint64 ate = 0;
    for (TParte &parte : partes) {
        ate += parte.Ceps;
        parte.Logradouros = int(qint64(logradouros) * ate / todos - dados);
        dados += parte.Logradouros;
    }
    return partes;
}

/** One state, made by the engine itself: municípios of some 180 streets after a capital that has
 * the tenth part of the state, bairros of some 30; every ninth município has one CEP for all. */
QString BlocoDoEstado(const TParte &parte)
{
    static const QString modelo = QStringLiteral(R"(
execute block as
  declare uf char(1);
  declare mun integer; declare bai integer; declare logr integer;
  declare m integer = 0; declare b integer; declare i integer;
  declare n bigint = 0; declare nestemun integer; declare k bigint; declare cep bigint;
  declare ruas integer = %1;
  declare nomes varchar(2000) = %2; declare sobrenomes varchar(2000) = %3;
  declare lugares varchar(2000) = %4; declare cidades varchar(2000) = %5;
  declare complementos varchar(2000) = %6; declare tipos varchar(200) = %7;
begin
  select uf_cod from cep_uf where sigla = '%8' into uf;
  select coalesce(max(bai_cod), 0) from cep_bai into bai;
  select coalesce(max(logr_cod), 0) from cep_logr into logr;
  while (n < ruas) do begin
    if (m = 0) then begin
      select min(mun_cod) from cep_mun where uf_cod = :uf into mun;
      nestemun = maxvalue(30, ruas / 10);
    end else begin
      if (m = 1) then select max(mun_cod) from cep_mun into mun;
      mun = mun + 1;
      insert into cep_mun values (:mun, :uf,
        trim(substring(:cidades from 1 + 14 * mod(:m, 36) for 14)) || ' ' ||
        trim(substring(:complementos from 1 + 14 * mod(:m / 36, 36) for 14)));
      nestemun = iif(mod(m, 9) = 8, 1, 120 + mod(m * 37, 120));
    end
    -- The capitals have their centre already.
    i = 0; b = iif(m = 0, 1, 0);
    while (i < nestemun and n < ruas) do begin
      if (mod(i, 30) = 0) then begin
        bai = bai + 1;
        insert into cep_bai values (:bai, :mun,
          iif(:b = 0, 'Centro', trim(substring(:tipos from 1 + 14 * mod(:b, 6) for 14)) || ' ' ||
          trim(substring(:lugares from 1 + 14 * mod(:b / 6, 40) for 14)) ||
          iif(:b < 240, '', ' ' || (:b / 240 + 1))));
        b = b + 1;
      end
      k = mod(n * 7919, 216000);
      cep = n * %9 / ruas;
      cep = iif(cep < %10, %11 + cep, %12 + cep - %10);
      logr = logr + 1;
      insert into cep_logr (logr_cod, bai_cod, tipologr_cod, nome, cep) values (:logr, :bai,
        iif(:nestemun = 1, '-',
            substring('RRRRRRRRRRRRRARRRATRRATRRLEPRG' from mod(:i, 30) + 1 for 1)),
        iif(:nestemun = 1, '', trim(substring(:nomes from 1 + 14 * mod(:k, 60) for 14)) || ' ' ||
            trim(substring(:sobrenomes from 1 + 14 * mod(:k / 60, 60) for 14)) || ' ' ||
            trim(substring(:sobrenomes from 1 + 14 * mod(:k / 3600, 60) for 14))),
        lpad(:cep, 8, '0'));
      n = n + 1;
      i = i + 1;
    end
    m = m + 1;
  end
end)");
    QString bloco = modelo;
    const QStringList valores = {QString::number(parte.Logradouros),
                                 EmPedacos(Nomes),
                                 EmPedacos(Sobrenomes),
                                 EmPedacos(Lugares),
                                 EmPedacos(Cidades),
                                 EmPedacos(Complementos),
                                 EmPedacos(TiposDeBairro),
                                 parte.Sigla,
                                 QString::number(parte.Ceps),
                                 QString::number(parte.Primeira),
                                 QString::number(parte.DePrimeira),
                                 QString::number(parte.DeSegunda)};
    // From the last on, for %1 begins %10 too.
    for (int i = int(valores.size()); i > 0; --i)
        bloco.replace(u'%' + QString::number(i), valores[i - 1]);
    return bloco;
}

/** The engine chooses its plans by what it last counted. */
void ContarIndices(TSQLConnection &conexao)
{
    TCustomBRQuery indices;
    indices.Query().SetSQLConnection(&conexao);
    indices.Open(QStringLiteral("select trim(rdb$index_name) from rdb$indices where "
                                "rdb$relation_name starting with 'CEP_'"));
    for (; !indices.Eof(); indices.Next())
        conexao.Executar(QStringLiteral("set statistics index ") + indices.Fields(0)->AsString());
}

int NumeroDoBanco(TSQLConnection &conexao, const QString &sql)
{
    TCustomBRQuery consulta;
    consulta.Query().SetSQLConnection(&conexao);
    consulta.Open(sql);
    return consulta.Fields(0)->AsInteger();
}

} // namespace

void InserirGuiaDeExemplo(TSQLConnection &conexao)
{
    QFile arquivo(QStringLiteral(":/demo/guia.sql"));
    if (!arquivo.open(QIODevice::ReadOnly))
        throw EErro(QStringLiteral("O guia de CEPs não está no programa"));
    const QString roteiro = QString::fromUtf8(arquivo.readAll());
    conexao.EmTransacao([&] { conexao.ExecutarScript(roteiro); });
    ContarIndices(conexao);
}

int GerarGuia(TSQLConnection &conexao, int logradouros)
{
    const QString contar = QStringLiteral("select count(*) from cep_logr");
    const int antes = NumeroDoBanco(conexao, contar);
    // Built once over all rows is faster than row by row.
    conexao.Executar(QStringLiteral("alter index ix_cep_logr_cep inactive"));
    const auto religar = [&] {
        conexao.Executar(QStringLiteral("alter index ix_cep_logr_cep active"));
    };
    try {
        for (const TParte &parte : Repartir(logradouros))
            conexao.Executar(BlocoDoEstado(parte));
    } catch (...) {
        religar();
        throw;
    }
    religar();
    const int maior = NumeroDoBanco(conexao, QStringLiteral("select max(logr_cod) from cep_logr"));
    conexao.Executar(QStringLiteral("set generator logr_cod_gen to %1").arg(maior));
    ContarIndices(conexao);
    return NumeroDoBanco(conexao, contar) - antes;
}

} // namespace comercial
