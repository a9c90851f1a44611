#pragma once

#include "bench/Medidas.h"

namespace bancada
{

/** A line of the table, worked out. */
struct TLinhaDoRelatorio {
    TExigencia Exigencia;
    /** Medians; NaN where the measurement is missing. */
    double Nosso = 0;
    double Par = 0;
    /** What is held against the bound: the ratio, or with no peer the figure itself. */
    double Valor = 0;
    double Limite = 0;
    /** False too where a figure is missing. */
    bool Atingido = false;
    /** Half the range between the quartiles, as a part of the median. */
    double EspalhamentoNosso = 0;
    double EspalhamentoPar = 0;
};

/** The lines of all requirements in the order of their rows: 2 before 10, 7a before 7b. The short
 * check leaves times without a peer out: on a machine that is not known only ratios and counts say
 * anything. */
QVector<TLinhaDoRelatorio> Avaliar(const QVector<TResultado> &resultados, bool verificar);

/** The table as it is printed and kept, in Markdown. */
QString Tabela(const QVector<TLinhaDoRelatorio> &linhas);

/** A figure with its unit in three significant digits: "1.23 ms", "17.0 MB", "0". */
QString Escrito(double valor, TUnidade unidade);

} // namespace bancada
