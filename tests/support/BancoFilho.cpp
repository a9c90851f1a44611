#include "support/BancoFilho.h"

#include <QCoreApplication>

#include <csignal>
#include <cstdio>
#include <sys/prctl.h>
#include <unistd.h>

namespace ficha
{

namespace
{
constexpr const char *Separador = "\n";
constexpr const char *Aviso = "filho pronto";
} // namespace

TFilho::TFilho(const QString &nome, const QStringList &argumentos)
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("FICHA_FILHO"), argumentos.join(QLatin1String(Separador)));
    for (const char *doGtest : {"GTEST_OUTPUT", "GTEST_FILTER", "GTEST_TOTAL_SHARDS"})
        ambiente.remove(QString::fromLatin1(doGtest));
    processo.setProcessEnvironment(ambiente);
    processo.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    processo.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGKILL); });
    processo.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--filho=") + nome});
}

TFilho::~TFilho()
{
    Matar();
}

bool TFilho::Pronto()
{
    while (!processo.peek(1 << 20).contains(Aviso)) {
        if (!processo.waitForReadyRead(20000))
            return false;
    }
    return true;
}

void TFilho::Matar()
{
    if (processo.state() == QProcess::NotRunning)
        return;
    processo.kill();
    processo.waitForFinished(5000);
}

int TFilho::EsperarFim()
{
    if (!processo.waitForFinished(60000) || processo.exitStatus() != QProcess::NormalExit)
        return -1;
    return processo.exitCode();
}

QString TFilho::Argumento(int i)
{
    return qEnvironmentVariable("FICHA_FILHO").split(QLatin1String(Separador)).value(i);
}

void TFilho::AvisarEEsperar()
{
    std::puts(Aviso);
    std::fflush(stdout);
    for (;;)
        ::pause();
}

} // namespace ficha
