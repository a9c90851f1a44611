#include "bench/Relatorio.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace bancada
{

namespace
{

QVector<double> Valores(const QVector<TResultado> &resultados, const TGrandeza &g)
{
    for (const TResultado &r : resultados) {
        const auto serie = r.Series.find(g.Medida);
        if (serie != r.Series.end())
            return g.Contador.isEmpty() ? serie->Segundos : serie->Contadores.value(g.Contador);
    }
    return {};
}

double Espalhamento(const QVector<double> &valores)
{
    const double mediana = Mediana(valores);
    if (valores.isEmpty() || qFuzzyIsNull(mediana))
        return 0;
    return (Quantil(valores, 0.75) - Quantil(valores, 0.25)) / 2 / mediana;
}

TLinhaDoRelatorio Avaliada(const TExigencia &e, const QVector<TResultado> &resultados,
                           bool verificar)
{
    const QVector<double> nosso = Valores(resultados, e.Nosso);
    const QVector<double> par = Valores(resultados, e.Par);
    TLinhaDoRelatorio linha;
    linha.Exigencia = e;
    linha.Nosso = Mediana(nosso);
    linha.Par = Mediana(par);
    linha.EspalhamentoNosso = Espalhamento(nosso);
    linha.EspalhamentoPar = Espalhamento(par);
    linha.Limite = verificar ? e.NaVerificacao : e.Limite;
    const bool maximo = e.Sentido == TSentido::NoMaximo;
    if (e.Par.Medida.isEmpty())
        linha.Valor = linha.Nosso;
    else
        linha.Valor = maximo ? linha.Nosso / linha.Par : linha.Par / linha.Nosso;
    // A missing figure is no number, and no number is within a bound.
    linha.Atingido = maximo ? linha.Valor <= linha.Limite : linha.Valor >= linha.Limite;
    return linha;
}

/** Such a figure is the machine's as much as ours. */
bool EhTempoSemPar(const TExigencia &e)
{
    return e.Par.Medida.isEmpty() && e.Nosso.Unidade == TUnidade::Tempo;
}

int Numero(const QString &linha)
{
    int n = 0;
    for (const QChar c : linha) {
        if (!c.isDigit())
            break;
        n = n * 10 + c.digitValue();
    }
    return n;
}

QString ComEspalhamento(double valor, TUnidade unidade, double espalhamento)
{
    return Escrito(valor, unidade) +
           (espalhamento > 0 ? QStringLiteral(" ±%1%").arg(qRound(espalhamento * 100)) : QString());
}

QString Vezes(double razao)
{
    return std::isnan(razao) ? QStringLiteral("missing")
                             : QString::number(razao, 'f', razao < 10 ? 2 : 0) + u'×';
}

} // namespace

QString Escrito(double valor, TUnidade unidade)
{
    if (std::isnan(valor))
        return QStringLiteral("missing");
    if (unidade == TUnidade::Numero)
        return QString::number(valor, 'g', 6);
    struct TEscala {
        double Fator;
        const char *Nome;
    };
    static constexpr TEscala tempos[] = {{1, "s"}, {1e-3, "ms"}, {1e-6, "µs"}, {1e-9, "ns"}};
    static constexpr TEscala bytes[] = {{1e6, "MB"}, {1e3, "kB"}, {1, "B"}, {1, "B"}};
    const auto &escalas = unidade == TUnidade::Tempo ? tempos : bytes;
    const TEscala *escala = std::begin(escalas);
    while (escala + 1 != std::end(escalas) && std::abs(valor) < escala->Fator)
        ++escala;
    const double n = valor / escala->Fator;
    const int casas = n >= 100 ? 0 : n >= 10 ? 1 : 2;
    return QString::number(n, 'f', casas) + u' ' + QString::fromUtf8(escala->Nome);
}

QVector<TLinhaDoRelatorio> Avaliar(const QVector<TResultado> &resultados, bool verificar)
{
    QVector<TLinhaDoRelatorio> linhas;
    for (const TResultado &r : resultados) {
        for (const TExigencia &e : r.Exigencias) {
            if (!verificar || !EhTempoSemPar(e))
                linhas.append(Avaliada(e, resultados, verificar));
        }
    }
    std::stable_sort(linhas.begin(), linhas.end(), [](const auto &a, const auto &b) {
        const QString &x = a.Exigencia.Linha;
        const QString &y = b.Exigencia.Linha;
        return Numero(x) != Numero(y) ? Numero(x) < Numero(y) : x < y;
    });
    return linhas;
}

QString Tabela(const QVector<TLinhaDoRelatorio> &linhas)
{
    QString texto = QStringLiteral("| # | work | ours | against | its figure | result | must | |\n"
                                   "|---|---|---|---|---|---|---|---|\n");
    QString notas;
    for (const TLinhaDoRelatorio &l : linhas) {
        const TExigencia &e = l.Exigencia;
        const bool par = !e.Par.Medida.isEmpty();
        const QString unidade = par ? Vezes(l.Limite) : Escrito(l.Limite, e.Nosso.Unidade);
        texto +=
            QStringLiteral("| %1 | %2 | %3 | %4 | %5 | %6 | %7 %8 | %9 |\n")
                .arg(e.Linha, e.Trabalho,
                     ComEspalhamento(l.Nosso, e.Nosso.Unidade, l.EspalhamentoNosso),
                     par ? e.Par.Medida : QStringLiteral("—"),
                     par ? ComEspalhamento(l.Par, e.Par.Unidade, l.EspalhamentoPar)
                         : QStringLiteral("—"),
                     par ? Vezes(l.Valor) : Escrito(l.Valor, e.Nosso.Unidade),
                     e.Sentido == TSentido::NoMaximo ? QStringLiteral("≤") : QStringLiteral("≥"),
                     unidade, l.Atingido ? QStringLiteral("yes") : QStringLiteral("**NO**"));
        if (!e.Nota.isEmpty())
            notas += QStringLiteral("- %1: %2\n").arg(e.Linha, e.Nota);
    }
    return notas.isEmpty() ? texto : texto + u'\n' + notas;
}

} // namespace bancada
