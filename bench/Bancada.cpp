#include "bench/Bancada.h"

#include "bench/Grupos.h"

#include <QLocale>

#include <benchmark/benchmark.h>

#include <map>
#include <memory>
#include <string>

namespace bancada
{

namespace
{

constexpr int RepeticoesDaVerificacao = 5;

bool verificando = false;
TResultado resultado;

std::map<std::string, void (*)()> &Grupos()
{
    static std::map<std::string, void (*)()> grupos;
    return grupos;
}

/** Keeps every repetition; the statistics are made from them in the report. */
class TGuardador : public benchmark::BenchmarkReporter
{
public:
    bool ReportContext(const Context &) override { return true; }

    void ReportRuns(const std::vector<Run> &vezes) override
    {
        for (const Run &vez : vezes) {
            if (vez.run_type != Run::RT_Iteration)
                continue;
            TSerie &serie = resultado.Series[QString::fromStdString(vez.run_name.function_name)];
            serie.Segundos.append(vez.real_accumulated_time / double(vez.iterations));
            for (const auto &[nome, contador] : vez.counters)
                serie.Contadores[QString::fromStdString(nome)].append(contador.value);
        }
    }
};

} // namespace

bool Verificando()
{
    return verificando;
}

QString Milhares(qint64 n)
{
    return QLocale(QLocale::English).toString(n);
}

void Medir(const QString &nome, std::function<TMedida()> vez, int repeticoes)
{
    auto aquecido = std::make_shared<bool>(false);
    const auto corpo = [vez = std::move(vez), aquecido](benchmark::State &estado) {
        if (!std::exchange(*aquecido, true))
            vez();
        for (auto _ : estado) {
            const TMedida medida = vez();
            estado.SetIterationTime(medida.Segundos);
            for (auto c = medida.Contadores.begin(); c != medida.Contadores.end(); ++c)
                estado.counters[c.key().toStdString()] = c.value();
        }
    };
    benchmark::RegisterBenchmark(nome.toUtf8().constData(), corpo)
        ->UseManualTime()
        ->Iterations(1)
        ->Repetitions(verificando ? RepeticoesDaVerificacao : repeticoes);
}

void MedirTempo(const QString &nome, std::function<void()> f)
{
    Medir(nome, [f = std::move(f)] { return TMedida{Cronometrar(f), {}}; });
}

void Exigir(const TExigencia &exigencia)
{
    resultado.Exigencias.append(exigencia);
}

TMedida TAmostras::Medida() const
{
    const double mediana = Mediana(valores);
    return {mediana,
            {{QStringLiteral("mediana"), mediana},
             {QStringLiteral("p99"), Quantil(valores, 0.99)},
             {QStringLiteral("pior"), Quantil(valores, 1)}}};
}

bool RegistrarGrupo(const char *nome, void (*preparar)())
{
    return Grupos().emplace(nome, preparar).second;
}

QStringList NomesDosGrupos()
{
    QStringList nomes;
    for (const auto &grupo : Grupos())
        nomes.append(QString::fromStdString(grupo.first));
    return nomes;
}

TResultado ExecutarGrupo(const QString &nome, bool verificar)
{
    verificando = verificar;
    resultado = {};
    const auto grupo = Grupos().find(nome.toStdString());
    if (grupo == Grupos().end())
        return {};
    std::string programa = "bancada";
    std::string intercalar = "--benchmark_enable_random_interleaving=true";
    char *argumentos[] = {programa.data(), intercalar.data(), nullptr};
    int quantos = 2;
    benchmark::Initialize(&quantos, argumentos);
    grupo->second();
    TGuardador guardador;
    benchmark::RunSpecifiedBenchmarks(&guardador);
    benchmark::Shutdown();
    // What the measurements hold goes while the application still stands.
    benchmark::ClearRegisteredBenchmarks();
    return resultado;
}

} // namespace bancada
