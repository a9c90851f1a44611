#include "platform/database/ArquivoDoBanco.h"

#include "platform/database/EDatabaseError.h"

#include <QFile>
#include <QFileInfo>

#include <cstring>

namespace ficha
{

namespace
{

[[noreturn]] void Recusar(TErroBanco tipo, const QString &modelo, const QString &nome)
{
    throw EDatabaseError(tipo, modelo.arg(nome));
}

void VerificarPasta(const QFileInfo &arquivo)
{
    if (arquivo.fileName().isEmpty()) {
        throw EDatabaseError(TErroBanco::PastaOuArquivoAusente,
                             QStringLiteral("Nenhum banco de dados foi indicado."));
    }
    // The engine would take what stands before it for a server.
    if (arquivo.absoluteFilePath().indexOf(u':', 2) >= 0)
        Recusar(TErroBanco::Outro,
                QStringLiteral("O caminho do banco de dados não pode ter dois-pontos: %1"),
                arquivo.absoluteFilePath());
    if (!QFileInfo(arquivo.absolutePath()).isDir()) {
        Recusar(TErroBanco::PastaOuArquivoAusente,
                QStringLiteral("A pasta do banco de dados não existe: %1"), arquivo.absolutePath());
    }
}

/** Page 0 of every database: page type 1, and the engine's flag in the structure version. */
bool TemCabecalhoDeBanco(QFile &arquivo)
{
    constexpr qint64 Tamanho = 1024;
    constexpr quint16 MarcaDoFirebird = 0x8000;
    const QByteArray inicio = arquivo.read(Tamanho);
    if (inicio.size() < Tamanho || inicio[0] != 1)
        return false;
    quint16 versao = 0;
    std::memcpy(&versao, inicio.constData() + 18, sizeof versao);
    return versao & MarcaDoFirebird;
}

} // namespace

void VerificarArquivoParaAbrir(const QString &nome)
{
    const QFileInfo info(nome);
    VerificarPasta(info);
    if (!info.exists())
        Recusar(TErroBanco::PastaOuArquivoAusente,
                QStringLiteral("O arquivo do banco de dados não existe: %1"), nome);
    if (!info.isFile())
        Recusar(TErroBanco::NaoEhBanco, QStringLiteral("Não é um arquivo de banco de dados: %1"),
                nome);
    QFile arquivo(nome);
    if (!arquivo.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        Recusar(TErroBanco::SomenteLeitura,
                QStringLiteral("Sem permissão para ler o banco de dados: %1"), nome);
    if (!TemCabecalhoDeBanco(arquivo))
        Recusar(TErroBanco::NaoEhBanco,
                QStringLiteral("O arquivo não é um banco de dados Firebird: %1"), nome);
    // An administrator may write what nobody is allowed to; the engine will not.
    constexpr auto Gravacao = QFile::WriteOwner | QFile::WriteGroup | QFile::WriteOther;
    if (!info.isWritable() || !(info.permissions() & Gravacao))
        Recusar(TErroBanco::SomenteLeitura,
                QStringLiteral("O arquivo do banco de dados só permite leitura: %1"), nome);
}

void VerificarArquivoParaCriar(const QString &nome)
{
    const QFileInfo info(nome);
    VerificarPasta(info);
    if (info.exists())
        Recusar(TErroBanco::Outro, QStringLiteral("O arquivo já existe e não foi alterado: %1"),
                nome);
    if (!QFileInfo(info.absolutePath()).isWritable())
        Recusar(TErroBanco::SomenteLeitura,
                QStringLiteral("Sem permissão para criar o banco de dados na pasta %1"),
                info.absolutePath());
}

} // namespace ficha
