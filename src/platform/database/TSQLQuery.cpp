#include "platform/database/TSQLQuery.h"

#include "platform/database/TSQLConnectionPrivado.h"

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
    try {
        for (const TColunaLida &lida : LerSelect(con, con.ParaLer(), texto, d->linhas)) {
            colunas.push_back({lida.nome, TipoDoCampo(lida),
                               lida.texto ? int(lida.fisica.largura) : 0, lida.fisica.escala});
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
