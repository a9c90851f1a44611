#include "platform/database/TSQLQuery.h"

#include "platform/database/TSQLConnectionPrivado.h"

#include <optional>

namespace ficha
{

namespace
{

TFieldType TipoDoCampo(const TColunaLida &coluna)
{
    const bool escalado = coluna.fisica.escala != 0;
    switch (coluna.fisica.tipo) {
    case TFisico::Int16:
        return escalado ? TFieldType::ftFloat : TFieldType::ftSmallint;
    case TFisico::Int32:
        return escalado ? TFieldType::ftFloat : TFieldType::ftInteger;
    case TFisico::Int64:
    case TFisico::Float:
    case TFisico::Double:
        return TFieldType::ftFloat;
    case TFisico::Data:
        return TFieldType::ftDate;
    case TFisico::Hora:
        return TFieldType::ftTime;
    case TFisico::Momento:
        return TFieldType::ftDateTime;
    case TFisico::Booleano:
        return TFieldType::ftBoolean;
    case TFisico::Blob:
        return coluna.binario ? TFieldType::ftBlob : TFieldType::ftMemo;
    default:
        return TFieldType::ftString;
    }
}

} // namespace

struct TSQLQuery::TPrivado {
    TLinhasCompactas linhas;
    /** What was prepared ahead, on which attachment, and the value to read it with. */
    std::optional<TSelectPreparado> adiantado;
    int anexacao = 0;
    QByteArray valor;

    /** Reads with what was prepared ahead. False when nothing was, or when it is of no use any
     * more: the text is then prepared as always, and what is wrong with it comes out there. */
    bool LerAdiantado(TSQLConnection::TPrivado &con)
    {
        Firebird::ITransaction *transacao = con.ParaLer();
        if (!adiantado || anexacao != con.anexacoes || valor.isNull())
            return false;
        try {
            adiantado->Ler(con, transacao, linhas, valor);
            return true;
        } catch (const EDatabaseError &) {
            adiantado.reset();
            if (con.situacao != TSQLConnection::TPrivado::TSituacao::Aberta)
                throw;
            return false;
        }
    }
};

TSQLQuery::TSQLQuery(QObject *owner) : TDataSet(owner), d(new TPrivado) {}

TSQLQuery::~TSQLQuery() = default;

TSQLConnection *TSQLQuery::GetSQLConnection() const
{
    return conexao;
}

void TSQLQuery::SetSQLConnection(TSQLConnection *nova)
{
    if (conexao != nova)
        Close();
    conexao = nova;
}

void TSQLQuery::SetSQL(const QString &texto)
{
    if (sql == texto)
        return;
    Close();
    sql = texto;
}

QString TSQLQuery::Plano()
{
    const QByteArray texto = motor::ParaLatin1(sql);
    TSQLConnection::TPrivado &con = Conexao().Privado();
    Firebird::ITransaction *transacao = con.ParaLer();
    const motor::TRef<Firebird::IStatement> comando(
        con.anexo->prepare(con.estado.Api(), transacao, unsigned(texto.size()), texto.constData(),
                           3, Firebird::IStatement::PREPARE_PREFETCH_LEGACY_PLAN));
    con.Verificar();
    const char *plano = comando->getPlan(con.estado.Api(), false);
    con.Verificar();
    return QString::fromLatin1(plano).trimmed();
}

qint64 TSQLQuery::BytesUsados() const
{
    return d->linhas.BytesUsados();
}

void TSQLQuery::Adiantar(const QString &comParametro)
{
    Soltar();
    if (!conexao || !conexao->Connected())
        return;
    TSQLConnection::TPrivado &con = conexao->Privado();
    try {
        d->adiantado.emplace(con, con.ParaLer(), motor::ParaLatin1(comParametro));
        d->adiantado->AceitarValor(con);
        d->anexacao = con.anexacoes;
    } catch (const EDatabaseError &) {
        // The opening finds the same out, and tells it to whom it concerns.
        d->adiantado.reset();
    }
}

void TSQLQuery::SetValorAdiantado(const QString &valor)
{
    const QByteArray bytes = valor.toLatin1();
    // What does not fit, or would be altered, is read by the text.
    const bool cabe =
        bytes.size() <= TSelectPreparado::MaiorValor && QString::fromLatin1(bytes) == valor;
    d->valor = cabe ? bytes : QByteArray();
}

void TSQLQuery::Soltar()
{
    d->adiantado.reset();
    d->valor = {};
}

TSQLConnection &TSQLQuery::Conexao() const
{
    if (!conexao) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("A consulta não tem conexão com o banco de dados."));
    }
    return *conexao;
}

void TSQLQuery::AbrirLinhas()
{
    const QByteArray texto = motor::ParaLatin1(sql);
    TSQLConnection::TPrivado &con = Conexao().Privado();
    std::vector<TColuna> colunas;
    const auto definir = [&](const TSelectPreparado &select) {
        for (const TColunaLida &lida : select.Colunas()) {
            colunas.push_back({lida.nome, TipoDoCampo(lida),
                               lida.texto ? int(lida.fisica.largura) : 0, lida.fisica.escala});
        }
    };
    try {
        if (d->LerAdiantado(con)) {
            definir(*d->adiantado);
        } else {
            TSelectPreparado select(con, con.ParaLer(), texto);
            select.Ler(con, con.ParaLer(), d->linhas);
            definir(select);
        }
    } catch (const EDatabaseError &erro) {
        if (con.agrupando)
            con.CondenarGrupo(erro);
        throw;
    }
    DefinirColunas(colunas);
}

void TSQLQuery::FecharLinhas()
{
    d->linhas.Limpar();
}

int TSQLQuery::ContarLinhas() const
{
    return d->linhas.Count();
}

bool TSQLQuery::CelulaNula(int linha, int coluna) const
{
    return d->linhas.Nula(linha, coluna);
}

Variant TSQLQuery::CelulaValor(int linha, int coluna) const
{
    return d->linhas.Valor(linha, coluna);
}

QString TSQLQuery::CelulaTexto(int linha, int coluna) const
{
    return d->linhas.Texto(linha, coluna);
}

QAnyStringView TSQLQuery::CelulaTextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const
{
    return d->linhas.TextoDoValor(linha, coluna, espaco);
}

} // namespace ficha
