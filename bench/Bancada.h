#pragma once

#include "bench/Medidas.h"

#include <QElapsedTimer>

#include <functional>

/** The measuring bench: groups of measurements over Google Benchmark, interleaved at random, and
 * what is required of their ratios. */
namespace bancada
{

/** What one repetition gives: its time in seconds, and counters of its own. */
struct TMedida {
    double Segundos = 0;
    QMap<QString, double> Contadores;
};

/** True in the short check for the CI: small sizes, few repetitions, generous bounds. */
bool Verificando();
/** The size to work on: cheio, or pequeno in the short check. */
inline int Tamanho(int cheio, int pequeno)
{
    return Verificando() ? pequeno : cheio;
}

/** A number as the table has it: "100,000". */
QString Milhares(qint64 n);

/** The time of f in seconds. */
template <class F>
double Cronometrar(F &&f)
{
    QElapsedTimer tempo;
    tempo.start();
    f();
    return double(tempo.nsecsElapsed()) / 1e9;
}

/**
 * One measurement of the group that is being set up. vez runs once per repetition and answers what
 * it measured (what it prepares is not counted); it has run once before, unmeasured, so that
 * nothing is charged for being the first. What it throws ends the program: a failed measurement is
 * no figure. Keep what the group shares in shared pointers inside the functions. More repetitions
 * than the usual ones are for works so short that one of them lies whole in a moment in which the
 * machine is slow.
 */
void Medir(const QString &nome, std::function<TMedida()> vez, int repeticoes = 9);
/** The same where the whole of f is the work. */
void MedirTempo(const QString &nome, std::function<void()> f);

/** What must be reached by measurements of this group. */
void Exigir(const TExigencia &exigencia);

/** Times of single events in one repetition, as counters "mediana", "p99" and "pior" in seconds. */
class TAmostras
{
public:
    void Juntar(double segundos) { valores.append(segundos); }
    /** The time of a repetition made of these events is their median. */
    TMedida Medida() const;

private:
    QVector<double> valores;
};

/** Registers a group's set-up under its name; used by BANCADA_GRUPO alone. */
bool RegistrarGrupo(const char *nome, void (*preparar)());

} // namespace bancada

/** A group of measurements, run in a process of its own: BANCADA_GRUPO(leitura) { Medir(...); } */
#define BANCADA_GRUPO(nome)                                                                        \
    static void Preparar_##nome();                                                                 \
    [[maybe_unused]] static const bool registrado_##nome =                                         \
        bancada::RegistrarGrupo(#nome, Preparar_##nome);                                           \
    static void Preparar_##nome()
