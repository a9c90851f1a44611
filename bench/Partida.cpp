// How long a user waits for the demo program: from the start of the process to the end of the
// first painting, against a program that shows an empty window.

#include "bench/Bancada.h"
#include "support/BancoTemp.h"

#include <QProcess>
#include <QTemporaryDir>

#include <chrono>
#include <stdexcept>

using namespace ficha;

namespace
{

const QString Programa = QStringLiteral(FICHA_COMERCIAL);
const QString Vazio = QStringLiteral(FICHA_VAZIO);

double Agora()
{
    const auto agora = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration<double>(agora).count();
}

/** Runs a program that says when it was painted; answers the seconds until then. */
double AteAPintura(const QString &programa, const QStringList &argumentos)
{
    QProcess processo;
    processo.setProcessChannelMode(QProcess::SeparateChannels);
    const double inicio = Agora();
    processo.start(programa, argumentos);
    if (!processo.waitForFinished(120000) || processo.exitCode() != 0)
        throw std::runtime_error(processo.readAllStandardError().toStdString() +
                                 " the program did not run");
    const QList<QByteArray> dito = processo.readAllStandardOutput().simplified().split(' ');
    if (dito.size() != 2 || dito[0] != "pintada")
        throw std::runtime_error("the program did not say when it was painted");
    return dito[1].toDouble() / 1e9 - inicio;
}

class TCena
{
public:
    TCena() : pasta(PastaDeBancos()) { PrimeiraVez = AteAPintura(Programa, Argumentos({})); }

    /** How much longer the program takes, the middle of some pairs. */
    bancada::TMedida Medir(const QString &tela) const
    {
        QVector<double> diferencas, deles, nossos;
        for (int i = 0; i < bancada::Tamanho(3, 1); ++i) {
            deles.append(AteAPintura(Vazio, {}));
            nossos.append(AteAPintura(Programa, Argumentos(tela)));
            diferencas.append(nossos.constLast() - deles.constLast());
        }
        return {bancada::Mediana(diferencas),
                {{QStringLiteral("vazio"), bancada::Mediana(deles)},
                 {QStringLiteral("comercial"), bancada::Mediana(nossos)}}};
    }

    /** The start that makes the database. */
    double PrimeiraVez = 0;

private:
    QStringList Argumentos(const QString &tela) const
    {
        QStringList argumentos{QStringLiteral("--banco"),
                               pasta.filePath(QStringLiteral("comercial.fdb")),
                               QStringLiteral("--sair-depois-de-pintar")};
        if (!tela.isEmpty())
            argumentos << QStringLiteral("--abrir") << tela;
        return argumentos;
    }

    QTemporaryDir pasta;
};

void Linha(const std::shared_ptr<TCena> &cena, const char *numero, const QString &medida,
           const QString &tela, const QString &trabalho, const QString &nota)
{
    bancada::Medir(medida, [=] { return cena->Medir(tela); });
    bancada::Exigir({.Linha = QString::fromLatin1(numero),
                     .Trabalho = trabalho,
                     .Nosso = {medida, {}},
                     .Limite = 0.150,
                     .Nota = nota});
}

} // namespace

BANCADA_GRUPO(partida)
{
    const auto cena = std::make_shared<TCena>();
    Linha(cena, "15a", QStringLiteral("start of the demo, longer than an empty program's"), {},
          QStringLiteral("start the demo program until its window is painted, longer than an "
                         "empty Qt program takes"),
          QStringLiteral("process start to the end of the first painting, a pair of starts for "
                         "each difference; the database is open by then. The first start of all, "
                         "which makes the database with its sample data, took %1 s")
              .arg(cena->PrimeiraVez, 0, 'f', 2));
    Linha(cena, "15b", QStringLiteral("start of the demo with the clients' screen, longer"),
          QStringLiteral("clientes"),
          QStringLiteral("the same with its clients' screen open and painted"), {});
}
