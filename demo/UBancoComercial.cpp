#include "demo/UBancoComercial.h"

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

QString Esquema()
{
    QFile arquivo(QStringLiteral(":/demo/schema.sql"));
    if (!arquivo.open(QIODevice::ReadOnly))
        throw EErro(QStringLiteral("O esquema do banco não está no programa"));
    return QString::fromUtf8(arquivo.readAll());
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
        criacao.CriarBanco(Esquema());
        PrepararBanco(criacao);
        InserirGuiaDeExemplo(criacao);
        InserirDadosDeExemplo(criacao);
        criacao.Close();
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
    ConexD().SQLConnection = &conexao;
}

} // namespace comercial
