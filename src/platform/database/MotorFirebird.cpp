#include "platform/database/MotorFirebird.h"

#include "platform/core/Latin1.h"

#include <QDir>
#include <QFile>

#include <sys/stat.h>
#include <unistd.h>

namespace ficha::motor
{

namespace
{

/** A folder that exists, is ours and closed to others. */
bool PastaServe(const QByteArray &caminho)
{
    if (::mkdir(caminho.constData(), 0700) != 0 && errno != EEXIST)
        return false;
    struct stat s = {};
    return ::lstat(caminho.constData(), &s) == 0 && S_ISDIR(s.st_mode) && s.st_uid == ::geteuid() &&
           (s.st_mode & 0077) == 0;
}

/**
 * The embedded engine keeps its lock files in one folder for the whole machine, which an ordinary
 * user may not write; each user gets a private one. A host's own FIREBIRD_LOCK is respected.
 */
void EscolherPastaDeTravas()
{
    if (!qEnvironmentVariableIsEmpty("FIREBIRD_LOCK"))
        return;
    const QByteArray daSessao = qgetenv("XDG_RUNTIME_DIR");
    const QByteArray temporaria = QFile::encodeName(QDir::tempPath()) + "/ficha-firebird-" +
                                  QByteArray::number(qulonglong(::geteuid()));
    for (const QByteArray &pasta :
         {daSessao.isEmpty() ? QByteArray() : daSessao + "/ficha-firebird", temporaria}) {
        if (!pasta.isEmpty() && PastaServe(pasta)) {
            qputenv("FIREBIRD_LOCK", pasta);
            return;
        }
    }
    throw EDatabaseError(
        TErroBanco::PastaOuArquivoAusente,
        QStringLiteral("Não foi possível criar a pasta de trabalho do banco de dados: %1")
            .arg(QFile::decodeName(temporaria)));
}

} // namespace

const TMotor &Motor()
{
    static const TMotor motor = [] {
        EscolherPastaDeTravas();
        auto *master = Firebird::fb_get_master_interface();
        return TMotor{master, master->getDispatcher(), master->getUtilInterface()};
    }();
    return motor;
}

QByteArray ParaLatin1(const QString &texto)
{
    QString invalido;
    if (!CabeEmLatin1(texto, &invalido)) {
        throw EDatabaseError(
            TErroBanco::CaractereInvalido,
            QStringLiteral(
                "O caractere '%1' (%2) não pode ser gravado no banco de dados, que usa o "
                "conjunto ISO8859_1. Troque-o e tente novamente.")
                .arg(invalido, NomeDoCaractere(invalido)));
    }
    return texto.toLatin1();
}

} // namespace ficha::motor
