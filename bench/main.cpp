#include "bench/Grupos.h"
#include "bench/Relatorio.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFont>
#include <QJsonDocument>
#include <QSaveFile>
#include <QSysInfo>
#include <QTextStream>
#include <QThread>

#include <cstdio>

namespace
{

bool Escrever(const QString &nome, const QByteArray &bytes)
{
    QSaveFile arquivo(nome);
    if (!arquivo.open(QIODevice::WriteOnly) || arquivo.write(bytes) != bytes.size() ||
        !arquivo.commit()) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(nome), qPrintable(arquivo.errorString()));
        return false;
    }
    return true;
}

/** Runs one group and leaves its figures in the folder. */
int Medir(const QString &grupo, bool verificar, const QDir &pasta)
{
    const bancada::TResultado r = bancada::ExecutarGrupo(grupo, verificar);
    if (r.Series.isEmpty()) {
        std::fprintf(stderr, "group %s measured nothing\n", qPrintable(grupo));
        return 2;
    }
    const QByteArray json = QJsonDocument(r.ParaJson()).toJson();
    return Escrever(pasta.filePath(grupo + QStringLiteral(".json")), json) ? 0 : 2;
}

/** The machine in general words: what the figures depend on. */
QString Maquina()
{
    QString memoria;
    QFile arquivo(QStringLiteral("/proc/meminfo"));
    if (arquivo.open(QIODevice::ReadOnly)) {
        const QByteArray linha = arquivo.readLine().simplified();
        memoria = QStringLiteral(", %1 GB of memory")
                      .arg(qRound(linha.split(' ').value(1).toDouble() / 1024 / 1024));
    }
    return QStringLiteral("%1 cores of a shared %2 server%3, %4, Qt %5, g++ %6, release build, "
                          "offscreen, databases in memory")
        .arg(QThread::idealThreadCount())
        .arg(QSysInfo::currentCpuArchitecture(), memoria, QSysInfo::prettyProductName(),
             QString::fromLatin1(qVersion()), QStringLiteral(__VERSION__).section(u' ', 0, 0));
}

/** Prints the table made of the groups' figures, and keeps it when a file is named. */
int Relatar(const QStringList &grupos, const QDir &pasta, bool verificar, const QString &destino)
{
    QVector<bancada::TResultado> resultados;
    for (const QString &grupo : grupos.isEmpty() ? bancada::NomesDosGrupos() : grupos) {
        QFile arquivo(pasta.filePath(grupo + QStringLiteral(".json")));
        if (!arquivo.open(QIODevice::ReadOnly)) {
            std::fprintf(stderr, "group %s has no figures\n", qPrintable(grupo));
            return 2;
        }
        resultados.append(
            bancada::TResultado::DeJson(QJsonDocument::fromJson(arquivo.readAll()).object()));
    }
    const auto linhas = bancada::Avaliar(resultados, verificar);
    const QString tabela = bancada::Tabela(linhas);
    QTextStream(stdout) << tabela;
    int faltam = 0;
    for (const auto &linha : linhas)
        faltam += linha.Atingido ? 0 : 1;
    QTextStream(stdout) << "\n" << linhas.size() - faltam << " reached, " << faltam << " missed\n";
    if (!destino.isEmpty()) {
        QFile modelo(destino);
        QString cauda;
        // What a person wrote below the mark stays.
        static const QString marca = QStringLiteral("<!-- written by hand from here -->\n");
        if (modelo.open(QIODevice::ReadOnly))
            cauda = QString::fromUtf8(modelo.readAll()).section(marca, 1);
        modelo.close();
        const QString texto =
            QStringLiteral(
                "# Performance\n\nWritten by `./bench.sh`. Everything is measured in one "
                "run, on %1. Figures are medians of interleaved repetitions; ± is half "
                "the range between the quartiles.\n\n%2\n%3%4")
                .arg(Maquina(), tabela, marca, cauda);
        if (!Escrever(destino, texto.toUtf8()))
            return 2;
    }
    return faltam == 0 ? 0 : 1;
}

} // namespace

/** The bench: --grupos lists the groups, --grupo measures one, --relatorio makes the table. */
int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    QApplication::setFont(QFont(QStringLiteral("Liberation Sans"), 8));
    QCommandLineParser opcoes;
    opcoes.addOptions(
        {{QStringLiteral("grupos"), QStringLiteral("Lists the groups.")},
         {QStringLiteral("grupo"), QStringLiteral("Measures one."), QStringLiteral("name")},
         {QStringLiteral("relatorio"), QStringLiteral("Prints the table.")},
         {QStringLiteral("escrever"), QStringLiteral("Keeps the table."), QStringLiteral("file")},
         {QStringLiteral("pasta"), QStringLiteral("Where the figures are."),
          QStringLiteral("folder"), QStringLiteral(".")},
         {QStringLiteral("check"), QStringLiteral("Small sizes.")}});
    opcoes.addPositionalArgument(QStringLiteral("groups"), QStringLiteral("What the table is of."));
    opcoes.addHelpOption();
    opcoes.process(app);
    const QDir pasta(opcoes.value(QStringLiteral("pasta")));
    const bool verificar = opcoes.isSet(QStringLiteral("check"));
    if (opcoes.isSet(QStringLiteral("grupo")))
        return Medir(opcoes.value(QStringLiteral("grupo")), verificar, pasta);
    if (opcoes.isSet(QStringLiteral("relatorio")))
        return Relatar(opcoes.positionalArguments(), pasta, verificar,
                       opcoes.value(QStringLiteral("escrever")));
    QTextStream(stdout) << bancada::NomesDosGrupos().join(u'\n') << "\n";
    return 0;
}
