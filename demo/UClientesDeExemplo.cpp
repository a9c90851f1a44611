#include "demo/UClientesDeExemplo.h"

#include "platform/core/Documentos.h"
#include "platform/core/Erros.h"
#include "platform/core/Relogio.h"
#include "platform/database/ConexD.h"
#include "platform/support/Datas.h"
#include "platform/support/Textos.h"

#include <QDate>
#include <QDir>
#include <QFile>

#include <vector>

using namespace ficha;

namespace comercial
{

namespace
{

constexpr int Quantos = 320;
constexpr int Grupos = 8;

const char16_t *const Femininos[] = {
    u"Adriana",   u"Aline",      u"Ana Paula", u"Antônia", u"Beatriz",  u"Camila",   u"Célia",
    u"Cláudia",   u"Daniela",    u"Débora",    u"Eliane",  u"Fernanda", u"Helena",   u"Inês",
    u"Isabela",   u"Jéssica",    u"Joana",     u"Juliana", u"Larissa",  u"Letícia",  u"Lúcia",
    u"Luíza",     u"Márcia",     u"Maria",     u"Mônica",  u"Patrícia", u"Priscila", u"Renata",
    u"Rosângela", u"Sebastiana", u"Sônia",     u"Tânia",   u"Teresa",   u"Vera",     u"Vitória",
};
const char16_t *const Masculinos[] = {
    u"Alexandre", u"André",   u"Antônio", u"Augusto",  u"Bruno",    u"Caio",    u"Carlos",
    u"César",     u"Cícero",  u"Daniel",  u"Diego",    u"Eduardo",  u"Fábio",   u"Felipe",
    u"Francisco", u"Geraldo", u"Gustavo", u"Henrique", u"Igor",     u"Jair",    u"João",
    u"Jorge",     u"José",    u"Júlio",   u"Leandro",  u"Luís",     u"Marcelo", u"Márcio",
    u"Mateus",    u"Otávio",  u"Paulo",   u"Rafael",   u"Raimundo", u"Sérgio",  u"Vítor",
};
const char16_t *const Sobrenomes[] = {
    u"Almeida",   u"Araújo",   u"Assunção",   u"Barbosa",   u"Batista",  u"Borges",   u"Cardoso",
    u"Carvalho",  u"Castro",   u"Conceição",  u"Correia",   u"Costa",    u"da Silva", u"de Souza",
    u"Dias",      u"dos Reis", u"dos Santos", u"Fernandes", u"Ferreira", u"Freitas",  u"Gomes",
    u"Gonçalves", u"Lima",     u"Lopes",      u"Machado",   u"Martins",  u"Melo",     u"Mendonça",
    u"Monteiro",  u"Moreira",  u"Nascimento", u"Oliveira",  u"Pereira",  u"Ribeiro",  u"Rocha",
    u"Simões",    u"Teixeira",
};
const char16_t *const Ramos[] = {
    u"Mercearia", u"Padaria", u"Papelaria", u"Ferragens",    u"Restaurante", u"Hotel",
    u"Farmácia",  u"Oficina", u"Livraria",  u"Floricultura", u"Armazém",     u"Confecções",
    u"Móveis",    u"Açougue", u"Pousada",   u"Quitanda",
};
const char16_t *const Fantasias[] = {
    u"São Jorge",   u"Boa Esperança", u"Três Irmãos", u"Estrela do Sul", u"Progresso",
    u"Santa Luzia", u"Bom Preço",     u"Aliança",     u"Nova Aurora",    u"do Povo",
    u"Primavera",   u"Central",       u"Dois Amigos", u"Beira-Rio",      u"Avenida",
    u"Ipê Amarelo", u"Coração",       u"Horizonte",
};
const char16_t *const Fins[] = {u"Ltda.", u"ME", u"Comércio Ltda.", u"& Filhos Ltda."};
const char16_t *const Orgaos[] = {u"SSP", u"Detran", u"IFP"};
const char16_t *const Complementos[] = {u"",       u"",       u"",        u"apto. 12",
                                        u"casa 2", u"fundos", u"sala 301"};

/** The i-th of a list, the lists walked at different paces so that they do not move in step. */
template <std::size_t N>
QString Um(const char16_t *const (&lista)[N], int i, int passo = 1)
{
    return QString::fromUtf16(lista[std::size_t(i) * std::size_t(passo) % N]);
}

/** Letters and digits that look thrown, the same for the same i and different for different ones
 * as long as modulo is a prime that does not divide the multiplier. */
int Lancado(int i, int multiplicador, int modulo)
{
    return int(qint64(i + 1) * multiplicador % modulo);
}

struct TEndereco {
    QString Cep;
    QString Uf;
    QString Mun;
    QString Bai;
    QString Logr;
};

/** In capitals, as the address frame writes them. */
std::vector<TEndereco> EnderecosDoGuia(TSQLConnection &conexao)
{
    TCustomBRQuery guia;
    guia.Query().SetSQLConnection(&conexao);
    guia.Open(QStringLiteral(
        "select l.cep, u.sigla, m.nome, b.nome, trim(trim(t.nome) || ' ' || l.nome) "
        "from cep_logr l join cep_tipologr t on t.tipologr_cod = l.tipologr_cod "
        "join cep_bai b on b.bai_cod = l.bai_cod join cep_mun m on m.mun_cod = b.mun_cod "
        "join cep_uf u on u.uf_cod = m.uf_cod order by l.logr_cod"));
    std::vector<TEndereco> enderecos;
    for (; !guia.Eof(); guia.Next()) {
        enderecos.push_back({guia.Fields(0)->AsString(), guia.Fields(1)->AsString(),
                             guia.Fields(2)->AsString().toUpper(),
                             guia.Fields(3)->AsString().toUpper(),
                             guia.Fields(4)->AsString().toUpper()});
    }
    return enderecos;
}

QString DDDDe(const QString &uf)
{
    for (int ddd = 11; ddd < 100; ++ddd)
        if (UFDoDDD(ddd) == uf)
            return QString::number(ddd);
    return {};
}

QString CPF(int i)
{
    constexpr int Primo = 899999963;
    const QString base = QString::number(100000000 + Lancado(i, 736878713, Primo));
    return base + DigitosCPF(base);
}

/** Every fifth one has letters, as new companies get them. */
QString CNPJ(int i)
{
    constexpr int Primo = 89999999;
    const int sorte = 10000000 + Lancado(i, 73687871, Primo);
    QString raiz = QString::number(sorte);
    if (i % 5 == 0)
        raiz = QString::number(qint64(sorte) * 27011, 36).toUpper().rightJustified(8, u'0');
    const QString base = raiz + QStringLiteral("%1").arg(1 + i % 3, 4, 10, QChar(u'0'));
    return base + DigitosCNPJ(base);
}

QString SemAcentos(const QString &texto)
{
    QString limpo;
    for (const QChar letra : texto)
        if (const QChar c = CharSemAcento(letra.toLower()); c.isLetter())
            limpo += c;
    return limpo;
}

struct TCliente {
    QString Nome;
    QString Menor;
    bool Empresa = false;
    QString Documento;
    QString DocI;
    QString DocM;
    QDate Nascimento;
};

TCliente Pessoa(int i)
{
    const QString nome = i % 2 ? Um(Femininos, i / 2) : Um(Masculinos, i / 2);
    const QString ultimo = Um(Sobrenomes, i, 5);
    TCliente c;
    c.Nome = nome + u' ' + Um(Sobrenomes, i + 9, 11) + u' ' + ultimo;
    c.Menor = nome + u' ' + ultimo;
    c.Documento = CPF(i);
    c.DocI = QString::number(10000000 + Lancado(i, 7919, 89999999));
    c.DocM = Um(Orgaos, i);
    c.Nascimento = QDate(1942, 1, 1).addDays(Lancado(i, 7907, 23003));
    return c;
}

TCliente Empresa(int i)
{
    TCliente c;
    c.Empresa = true;
    c.Menor = Um(Ramos, i) + u' ' + Um(Fantasias, i, 7);
    c.Nome = c.Menor + u' ' + Um(Fins, i / 16);
    c.Documento = CNPJ(i);
    c.DocI = i % 4 ? QString::number(100000000 + Lancado(i, 104729, 899999963))
                   : QStringLiteral("ISENTO");
    c.DocM = QString::number(1000000 + Lancado(i, 7919, 8999993));
    c.Nascimento = QDate(1984, 1, 1).addDays(Lancado(i, 6011, 14009));
    return c;
}

/** Reais; every ninth one pays cash. */
int Limite(bool empresa, int codigo)
{
    if (codigo % 9 == 0)
        return 0;
    return empresa ? 1000 + 500 * (codigo * 37 % 40) : 100 + 50 * (codigo * 37 % 40);
}

QString Sql(const TCliente &c, int codigo, const TEndereco &e, const QString &pastaDasFotos)
{
    const QString documento = QuotedStr(c.Documento);
    const QString mascarado = c.Empresa ? CNPJComMasc(c.Documento) : CPFComMasc(c.Documento);
    const QString dominio = SemAcentos(c.Menor);
    const QString fixo = QStringLiteral("3%1-%2")
                             .arg(Lancado(codigo, 577, 997), 3, 10, QChar(u'0'))
                             .arg(Lancado(codigo, 6029, 9973), 4, 10, QChar(u'0'));
    const QString celular = QStringLiteral("9%1-%2")
                                .arg(7000 + Lancado(codigo, 1787, 2999))
                                .arg(Lancado(codigo, 4421, 9973), 4, 10, QChar(u'0'));
    QString foto;
    if (codigo <= 2)
        foto =
            QDir(pastaDasFotos)
                .filePath(c.Empresa ? QStringLiteral("empresa.jpg") : QStringLiteral("pessoa.jpg"));
    const QStringList valores = {
        QString::number(codigo),
        QuotedStr(c.Nome),
        QuotedStr(c.Menor),
        QString::number(int(c.Empresa)),
        c.Empresa ? QStringLiteral("null") : documento,
        c.Empresa ? documento : QStringLiteral("null"),
        QuotedStr(mascarado),
        QuotedStr(c.DocI),
        QuotedStr(c.DocM),
        QuotedStr(c.Nascimento.toString(QStringLiteral("yyyy-MM-dd"))),
        QuotedStr(e.Cep),
        QuotedStr(e.Uf),
        QuotedStr(e.Mun),
        QuotedStr(e.Bai),
        QuotedStr(e.Logr),
        QuotedStr(QString::number(1 + Lancado(codigo, 773, 1999))),
        QuotedStr(Um(Complementos, codigo)),
        QuotedStr(DDDDe(e.Uf)),
        QuotedStr(c.Empresa ? fixo : celular),
        QuotedStr(c.Empresa || codigo % 3 == 0 ? celular : QString()),
        QuotedStr(QString()),
        QuotedStr(dominio.left(30) + QStringLiteral("@exemplo.com.br")),
        QuotedStr(c.Empresa ? QStringLiteral("www.%1.exemplo.com.br").arg(dominio.left(24))
                            : QString()),
        codigo % 3 ? QString::number(1 + codigo % Grupos) : QStringLiteral("null"),
        QuotedStr(foto),
        codigo % 10 ? QStringLiteral("null")
                    : QuotedStr(QStringLiteral("Prefere entregas pela manhã.\r\nAvisar antes.")),
        // Registered in the course of the three years before the first run.
        DataSQLFirebird(TDateTime(Hoje().Dias() - codigo * 53 % 1095)),
        QString::number(Limite(c.Empresa, codigo)),
        QuotedStr(codigo % 17 ? QStringLiteral("S") : QStringLiteral("N")),
    };
    return QStringLiteral("insert into clientes values (%1)")
        .arg(valores.join(QStringLiteral(", ")));
}

} // namespace

void InserirClientesDeExemplo(TSQLConnection &conexao, const QString &pastaDasFotos)
{
    const std::vector<TEndereco> enderecos = EnderecosDoGuia(conexao);
    for (int i = 0; i < Quantos; ++i) {
        const TCliente cliente = i % 3 == 1 ? Empresa(i) : Pessoa(i);
        conexao.Executar(
            Sql(cliente, i + 1, enderecos[std::size_t(i) % enderecos.size()], pastaDasFotos));
    }
    conexao.Executar(QStringLiteral("set generator clientes_cod_gen to %1").arg(Quantos));
}

void GravarFotosDeExemplo(const QString &pasta)
{
    QDir().mkpath(pasta);
    for (const QString &nome : {QStringLiteral("pessoa.jpg"), QStringLiteral("empresa.jpg")}) {
        const QString arquivo = QDir(pasta).filePath(nome);
        if (!QFile::exists(arquivo) &&
            !QFile::copy(QStringLiteral(":/demo/fotos/") + nome, arquivo))
            throw EErro(QStringLiteral("Não foi possível gravar a foto '%1'").arg(arquivo));
        QFile::setPermissions(arquivo, QFile::permissions(arquivo) | QFile::WriteOwner);
    }
}

} // namespace comercial
