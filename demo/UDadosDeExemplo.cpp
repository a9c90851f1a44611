#include "demo/UDadosDeExemplo.h"

#include "demo/UClientesDeExemplo.h"
#include "demo/UContasDeExemplo.h"
#include "demo/UVendasDeExemplo.h"
#include "platform/core/Documentos.h"
#include "platform/core/Relogio.h"
#include "platform/database/TSQLConnection.h"
#include "platform/support/Datas.h"
#include "platform/support/Textos.h"

#include <QStringList>

using namespace ficha;

namespace comercial
{

namespace
{

struct TGrupoDeExemplo {
    const char16_t *Descricao;
    char Unidade; /**< code of the unit that the group's goods are counted in */
    const char16_t *Itens[8];
};

/** What a neighbourhood shop sells; each item comes in several sizes. */
constexpr TGrupoDeExemplo Grupos[] = {
    {u"Alimentos básicos",
     '!',
     {u"Arroz", u"Feijão carioca", u"Açúcar cristal", u"Café torrado", u"Macarrão", u"Óleo de soja",
      u"Farinha de mandioca", u"Sal refinado"}},
    {u"Bebidas",
     '$',
     {u"Água mineral", u"Guaraná", u"Suco de caju", u"Chá mate", u"Água de coco", u"Cerveja",
      u"Vinho tinto", u"Leite"}},
    {u"Limpeza",
     '$',
     {u"Detergente", u"Água sanitária", u"Sabão em pó", u"Desinfetante", u"Amaciante",
      u"Limpa-vidros", u"Álcool", u"Esponja"}},
    {u"Higiene",
     '!',
     {u"Sabonete", u"Xampu", u"Creme dental", u"Escova de dentes", u"Papel higiênico",
      u"Desodorante", u"Fio dental", u"Algodão"}},
    {u"Papelaria",
     '!',
     {u"Caderno", u"Lápis", u"Caneta azul", u"Borracha", u"Régua", u"Apontador", u"Cola branca",
      u"Papel sulfite"}},
    {u"Ferragens",
     '#',
     {u"Prego", u"Parafuso", u"Arame", u"Dobradiça", u"Cadeado", u"Corrente", u"Trinco", u"Bucha"}},
    {u"Elétrica",
     '!',
     {u"Lâmpada", u"Tomada", u"Fio flexível", u"Disjuntor", u"Extensão", u"Interruptor", u"Pilha",
      u"Soquete"}},
    {u"Hortifrúti",
     '#',
     {u"Banana", u"Maçã", u"Tomate", u"Batata", u"Cebola", u"Alface", u"Limão", u"Mamão"}},
};

constexpr const char16_t *Tamanhos[] = {u"pequeno", u"médio", u"grande", u"econômico"};

void InserirGrupo(TSQLConnection &conexao, int codigo, const TGrupoDeExemplo &grupo)
{
    conexao.Executar(QStringLiteral("insert into grupos (grupos_cod, descricao) values (%1, %2)")
                         .arg(codigo)
                         .arg(QuotedStr(QString::fromUtf16(grupo.Descricao))));
}

/** EAN-13 of an invented maker for each group. */
QString CodigoDeBarras(int codigo, int grupo)
{
    const QString corpo =
        QStringLiteral("789%1%2").arg(10310 + grupo * 37).arg(codigo, 4, 10, QChar(u'0'));
    return corpo + DigitoGTIN(corpo);
}

void InserirProduto(TSQLConnection &conexao, int codigo, int grupo, const QString &descricao,
                    char unidade)
{
    // Figures that look like a shop's, the same at every first run.
    const int centavos = 199 + codigo * 7919 % 18000;
    const int estoque = codigo * 37 % 240;
    // Registered in the course of the year before the first run.
    const TDateTime cadastro(Hoje().Dias() - codigo * 53 % 365);
    conexao.Executar(
        QStringLiteral("insert into produtos (produtos_cod, descricao, grupos_cod, preco, estoque, "
                       "unidade, ativo, cod_barras, cadastro) values (%1, %2, %3, %4)")
            .arg(QString::number(codigo), QuotedStr(descricao), QString::number(grupo),
                 QStringLiteral("%1.%2, %3, %4, %5, %6, %7")
                     .arg(QString::number(centavos / 100),
                          QStringLiteral("%1").arg(centavos % 100, 2, 10, QChar(u'0')),
                          QString::number(estoque), QuotedStr(QString(QChar::fromLatin1(unidade))),
                          QuotedStr(codigo % 17 == 0 ? QStringLiteral("N") : QStringLiteral("S")),
                          QuotedStr(CodigoDeBarras(codigo, grupo)), DataSQLFirebird(cadastro))));
}

} // namespace

void InserirDadosDeExemplo(TSQLConnection &conexao, const QString &pastaDasFotos)
{
    conexao.EmTransacao([&] {
        int grupo = 0;
        int produto = 0;
        for (const TGrupoDeExemplo &g : Grupos) {
            InserirGrupo(conexao, ++grupo, g);
            for (const char16_t *item : g.Itens) {
                for (const char16_t *tamanho : Tamanhos)
                    InserirProduto(conexao, ++produto, grupo,
                                   QString::fromUtf16(item) + u' ' + QString::fromUtf16(tamanho),
                                   g.Unidade);
            }
        }
        conexao.Executar(QStringLiteral("set generator grupos_cod_gen to %1").arg(grupo));
        conexao.Executar(QStringLiteral("set generator produtos_cod_gen to %1").arg(produto));
        InserirClientesDeExemplo(conexao, pastaDasFotos);
        InserirVendasDeExemplo(conexao);
        InserirSaldosDeExemplo(conexao);
    });
}

} // namespace comercial
