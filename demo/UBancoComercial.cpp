#include "demo/UBancoComercial.h"

#include "demo/UClientesDeExemplo.h"
#include "demo/UContasDeExemplo.h"
#include "demo/UDadosDeExemplo.h"
#include "demo/UGuiaDeCeps.h"
#include "platform/database/ConexD.h"
#include "platform/database/PrepararBanco.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

using namespace ficha;

namespace comercial
{

namespace
{

bool EhServidor(const QString &endereco)
{
    return endereco.contains(u':') && !QFileInfo::exists(endereco);
}

QString Roteiro(const QString &nome)
{
    QFile arquivo(QStringLiteral(":/demo/") + nome);
    if (!arquivo.open(QIODevice::ReadOnly))
        throw EErro(QStringLiteral("O roteiro '%1' não está no programa").arg(nome));
    return QString::fromUtf8(arquivo.readAll());
}

/** What a database of an earlier version lacks. A step is one transaction, and is done when its
 * question has an answer. */
struct TPasso {
    const char *Feito;
    void (*Fazer)(TSQLConnection &conexao);
};

template <const char *roteiro>
void ExecutarRoteiro(TSQLConnection &conexao)
{
    conexao.EmTransacao([&] { conexao.ExecutarScript(Roteiro(QString::fromLatin1(roteiro))); });
}

constexpr char EsquemaDoGuia[] = "schema-guia.sql";
constexpr char EsquemaDosClientes[] = "schema-clientes.sql";
constexpr char EsquemaDoCadastro[] = "schema-cadastro.sql";
constexpr char EsquemaDasVendas[] = "schema-vendas.sql";
constexpr char EsquemaDasContas[] = "schema-contas.sql";
constexpr char EsquemaDoCredito[] = "schema-credito.sql";

constexpr TPasso Passos[] = {
    {"select 1 from rdb$relations where rdb$relation_name = 'CEP_UF'",
     &ExecutarRoteiro<EsquemaDoGuia>},
    {"select first 1 1 from cep_uf", &InserirGuiaDeExemplo},
    {"select 1 from rdb$relations where rdb$relation_name = 'CLIENTES'",
     &ExecutarRoteiro<EsquemaDosClientes>},
    {"select 1 from rdb$relation_fields where rdb$relation_name = 'PRODUTOS' and "
     "rdb$field_name = 'CADASTRO'",
     &ExecutarRoteiro<EsquemaDoCadastro>},
    {"select 1 from rdb$relations where rdb$relation_name = 'VENDAS'",
     &ExecutarRoteiro<EsquemaDasVendas>},
    {"select 1 from rdb$relations where rdb$relation_name = 'CONTAS'",
     &ExecutarRoteiro<EsquemaDasContas>},
    {"select first 1 1 from contas", &InserirPlanoDeContas},
    {"select 1 from rdb$relation_fields where rdb$relation_name = 'CLIENTES' and "
     "rdb$field_name = 'ATIVO'",
     &ExecutarRoteiro<EsquemaDoCredito>},
};

bool Feito(TSQLConnection &conexao, const TPasso &passo)
{
    TCustomBRQuery pergunta;
    pergunta.Query().SetSQLConnection(&conexao);
    return pergunta.Open(QString::fromLatin1(passo.Feito));
}

void TrazerAoDia(TSQLConnection &conexao)
{
    for (const TPasso &passo : Passos) {
        if (Feito(conexao, passo))
            continue;
        try {
            passo.Fazer(conexao);
        } catch (const EDatabaseError &) {
            // Another workstation may have been faster.
            if (!conexao.Connected() || !Feito(conexao, passo))
                throw;
        }
    }
}

/** Makes the database under another name and renames it when it is whole, so that a first run that
 * is cut short leaves nothing that looks like a database. */
void CriarComDados(const QString &arquivo)
{
    const QString novo = arquivo + QStringLiteral(".novo");
    QFile::remove(novo);
    TSQLConnection criacao;
    criacao.DatabaseName = novo;
    try {
        criacao.CriarBanco(Roteiro(QStringLiteral("schema.sql")));
        PrepararBanco(criacao);
        TrazerAoDia(criacao);
        const QString fotos = QFileInfo(arquivo).absoluteDir().filePath(QStringLiteral("fotos"));
        InserirDadosDeExemplo(criacao, fotos);
        criacao.Close();
        GravarFotosDeExemplo(fotos);
    } catch (...) {
        criacao.Close();
        QFile::remove(novo);
        throw;
    }
    if (!QFile::rename(novo, arquivo)) {
        QFile::remove(novo);
        throw EDatabaseError(
            TErroBanco::PastaOuArquivoAusente,
            QStringLiteral("Não foi possível gravar o banco de dados '%1'").arg(arquivo));
    }
}

} // namespace

QString ArquivoPadrao()
{
    const QString pasta = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation);
    return QDir(pasta).filePath(QStringLiteral("comercial.fdb"));
}

void AbrirBancoComercial(TSQLConnection &conexao, const QString &endereco)
{
    conexao.DatabaseName = endereco;
    if (EhServidor(endereco)) {
        conexao.UserName = qEnvironmentVariable("FICHA_USUARIO");
        conexao.Password = qEnvironmentVariable("FICHA_SENHA");
    } else {
        if (endereco.isEmpty()) {
            conexao.DatabaseName = ArquivoPadrao();
            QDir().mkpath(QFileInfo(conexao.DatabaseName).path());
        }
        if (!QFileInfo::exists(conexao.DatabaseName))
            CriarComDados(conexao.DatabaseName);
    }
    conexao.Open();
    if (!conexao.Embutido())
        PrepararBanco(conexao);
    TrazerAoDia(conexao);
    ConexD().SQLConnection = &conexao;
}

} // namespace comercial
