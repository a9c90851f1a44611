#include "support/ServidorFirebird.h"

#include "platform/database/MotorFirebird.h"
#include "support/BancoTemp.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QDirIterator>
#include <QFileInfo>
#include <QThread>

#include <arpa/inet.h>
#include <csignal>
#include <netinet/in.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <unistd.h>

namespace ficha
{

namespace
{

constexpr uid_t UsuarioComum = 65534; // "nobody", when the tests run as root

sockaddr_in Local(int porta)
{
    sockaddr_in endereco = {};
    endereco.sin_family = AF_INET;
    endereco.sin_port = htons(quint16(porta));
    endereco.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return endereco;
}

int PortaLivre()
{
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in endereco = Local(0);
    socklen_t tamanho = sizeof endereco;
    int porta = 0;
    if (::bind(s, reinterpret_cast<sockaddr *>(&endereco), tamanho) == 0 &&
        ::getsockname(s, reinterpret_cast<sockaddr *>(&endereco), &tamanho) == 0)
        porta = ntohs(endereco.sin_port);
    ::close(s);
    return porta;
}

bool Aceita(int porta)
{
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    const sockaddr_in endereco = Local(porta);
    const bool aceita =
        ::connect(s, reinterpret_cast<const sockaddr *>(&endereco), sizeof endereco) == 0;
    ::close(s);
    return aceita;
}

/** The engine's own folder: plugins, messages, character sets. */
QString RaizInstalada()
{
    QStringList candidatas{QStringLiteral("/opt/firebird"),
                           QStringLiteral("/usr/lib/firebird/3.0")};
    const QDir usrLib(QStringLiteral("/usr/lib"));
    for (const QString &arquitetura :
         usrLib.entryList({QStringLiteral("*-linux-gnu*")}, QDir::Dirs))
        candidatas << usrLib.filePath(arquitetura + QStringLiteral("/firebird/3.0"));
    for (const QString &raiz : candidatas) {
        if (QFileInfo::exists(raiz + QStringLiteral("/plugins")))
            return raiz;
    }
    return {};
}

void Escrever(const QString &nome, const QString &texto)
{
    QFile arquivo(nome);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(texto.toUtf8()) < 0)
        qFatal("cannot write %s", qPrintable(nome));
}

void Exigir(motor::TEstado &estado)
{
    if (estado.Falhou())
        qFatal("security database: %s", qPrintable(estado.Erro().Mensagem()));
}

} // namespace

QString TServidorFirebird::Programa()
{
    const QString depois = QStringLiteral("/firebird-server/usr/sbin/firebird");
    for (const QString &programa :
         {qEnvironmentVariable("FICHA_FIREBIRD"), QStringLiteral(FICHA_BINARIOS) + depois,
          QStringLiteral(FICHA_FONTES "/build") + depois, QStringLiteral("/usr/sbin/firebird"),
          QStringLiteral("/opt/firebird/bin/firebird")}) {
        if (!programa.isEmpty() && QFileInfo(programa).isExecutable() &&
            QFileInfo(programa).isFile())
            return programa;
    }
    return {};
}

TServidorFirebird::TServidorFirebird() : pasta(PastaDeBancos()), porta(PortaLivre())
{
    PrepararRaiz();
    CriarBancoDeSeguranca();
    EntregarAoUsuario();
}

TServidorFirebird::~TServidorFirebird()
{
    Parar();
}

void TServidorFirebird::PrepararRaiz()
{
    const QDir raiz(pasta.path());
    for (const char *nome : {"intl", "travas", "temp", "bancos"})
        raiz.mkpath(QString::fromLatin1(nome));
    const QString instalada = RaizInstalada();
    QFile::link(instalada + QStringLiteral("/plugins"), raiz.filePath(QStringLiteral("plugins")));
    for (const char *nome :
         {"firebird.msg", "plugins.conf", "intl/libfbintl.so", "intl/fbintl.conf"}) {
        const QString arquivo = QString::fromLatin1(nome);
        QFile::copy(instalada + u'/' + arquivo, raiz.filePath(arquivo));
    }
    Escrever(raiz.filePath(QStringLiteral("databases.conf")), {});
    Escrever(raiz.filePath(QStringLiteral("firebird.conf")),
             QStringLiteral("RemoteServicePort = %1\nRemoteBindAddress = 127.0.0.1\n"
                            "SecurityDatabase = %2\nDatabaseAccess = Restrict %3\n")
                 .arg(porta)
                 .arg(raiz.filePath(QStringLiteral("seguranca.fdb")),
                      raiz.filePath(QStringLiteral("bancos"))));
}

/** A database is its own security database when its configuration says so. */
void TServidorFirebird::CriarBancoDeSeguranca()
{
    const QByteArray arquivo = QFile::encodeName(pasta.filePath(QStringLiteral("seguranca.fdb")));
    const auto &motor = motor::Motor();
    motor::TEstado estado;
    auto *dpb = motor.util->getXpbBuilder(estado.Api(), Firebird::IXpbBuilder::DPB, nullptr, 0);
    dpb->insertString(estado.Api(), isc_dpb_config,
                      "Providers=Engine12\nSecurityDatabase=" + arquivo);
    dpb->insertString(estado.Api(), isc_dpb_user_name, "SYSDBA");
    motor::TRef<Firebird::IAttachment> anexo(motor.provedor->createDatabase(
        estado.Api(), arquivo.constData(), dpb->getBufferLength(estado.Api()),
        dpb->getBuffer(estado.Api())));
    dpb->dispose();
    Exigir(estado);
    motor::TRef<Firebird::ITransaction> t(anexo->startTransaction(estado.Api(), 0, nullptr));
    Exigir(estado);
    anexo->execute(estado.Api(), t.get(), 0,
                   "create user SYSDBA password 'masterkey' using plugin Srp", 3, nullptr, nullptr,
                   nullptr, nullptr);
    Exigir(estado);
    motor::Encerrar(estado, t, [](auto *objeto, auto *e) { objeto->commit(e); });
    Exigir(estado);
    motor::Encerrar(estado, anexo, [](auto *objeto, auto *e) { objeto->detach(e); });
    Exigir(estado);
}

void TServidorFirebird::EntregarAoUsuario()
{
    if (::geteuid() != 0)
        return;
    QStringList nomes{pasta.path()};
    for (QDirIterator i(pasta.path(), QDir::AllEntries | QDir::NoDotAndDotDot,
                        QDirIterator::Subdirectories);
         i.hasNext();)
        nomes << i.next();
    for (const QString &nome : nomes) {
        if (::lchown(QFile::encodeName(nome).constData(), UsuarioComum, UsuarioComum) != 0)
            qFatal("cannot hand over %s", qPrintable(nome));
    }
}

QString TServidorFirebird::ProgramaAlcancavel()
{
    const QString programa = Programa();
    bool aberto = ::geteuid() != 0;
    if (!aberto) {
        aberto = QFileInfo(programa).permissions().testFlag(QFile::ExeOther);
        for (QDir acima = QFileInfo(programa).canonicalPath(); aberto && !acima.isRoot();
             acima.cdUp())
            aberto = QFileInfo(acima.path()).permissions().testFlag(QFile::ExeOther);
    }
    if (aberto)
        return programa;
    const QString copia = pastaDoPrograma.filePath(QStringLiteral("firebird"));
    constexpr auto Todos = QFile::ReadOther | QFile::ExeOther | QFile::ReadGroup | QFile::ExeGroup |
                           QFile::ReadOwner | QFile::ExeOwner | QFile::WriteOwner;
    if (!QFile::exists(copia) && QFile::copy(programa, copia)) {
        QFile::setPermissions(copia, Todos);
        QFile::setPermissions(pastaDoPrograma.path(), Todos);
    }
    return copia;
}

bool TServidorFirebird::Iniciar()
{
    QProcessEnvironment ambiente = QProcessEnvironment::systemEnvironment();
    ambiente.insert(QStringLiteral("FIREBIRD"), pasta.path());
    ambiente.insert(QStringLiteral("FIREBIRD_LOCK"), pasta.filePath(QStringLiteral("travas")));
    ambiente.insert(QStringLiteral("FIREBIRD_TMP"), pasta.filePath(QStringLiteral("temp")));
    processo.setProcessEnvironment(ambiente);
    processo.setStandardOutputFile(QProcess::nullDevice());
    processo.setStandardErrorFile(pasta.filePath(QStringLiteral("erros.txt")));
    processo.setChildProcessModifier([] {
        if (::geteuid() == 0 && (::setresgid(UsuarioComum, UsuarioComum, UsuarioComum) != 0 ||
                                 ::setresuid(UsuarioComum, UsuarioComum, UsuarioComum) != 0))
            ::_exit(126);
        ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    });
    processo.start(ProgramaAlcancavel(), QStringList());
    return processo.waitForStarted() && Esperar();
}

bool TServidorFirebird::Esperar()
{
    for (QDeadlineTimer prazo(10000); !prazo.hasExpired(); QThread::msleep(10)) {
        if (Aceita(porta))
            return true;
        if (processo.state() == QProcess::NotRunning || processo.waitForFinished(0))
            return false;
    }
    return false;
}

void TServidorFirebird::Parar()
{
    if (processo.state() == QProcess::NotRunning)
        return;
    processo.terminate();
    if (!processo.waitForFinished(5000))
        Matar();
}

void TServidorFirebird::Matar()
{
    processo.kill();
    processo.waitForFinished(5000);
}

QString TServidorFirebird::Endereco(const QString &nome) const
{
    return QStringLiteral("127.0.0.1/%1:%2/%3")
        .arg(porta)
        .arg(pasta.filePath(QStringLiteral("bancos")), nome);
}

std::unique_ptr<TSQLConnection> TServidorFirebird::Conexao(const QString &nome) const
{
    auto conexao = std::make_unique<TSQLConnection>();
    conexao->DatabaseName = Endereco(nome);
    conexao->UserName = QStringLiteral("SYSDBA");
    conexao->Password = QStringLiteral("masterkey");
    return conexao;
}

} // namespace ficha
