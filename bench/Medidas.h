#pragma once

#include <QJsonObject>
#include <QMap>
#include <QString>
#include <QVector>

namespace bancada
{

/** How a figure is written: seconds, bytes, or a plain count. */
enum class TUnidade { Tempo, Bytes, Numero };

/** Which way a requirement bounds: the figure (or its ratio to the peer's) from above, or how many
 * times the peer's figure is ours from below. */
enum class TSentido { NoMaximo, NoMinimo };

/** One figure of a measurement: its time, or one of its counters. */
struct TGrandeza {
    QString Medida;
    /** Empty: the time. */
    QString Contador = {};
    TUnidade Unidade = TUnidade::Tempo;
};

/** One line of the table: what must be reached. */
struct TExigencia {
    /** Number of the row, with a letter where the row has several lines: "7b". */
    QString Linha;
    /** What is done, on how much, in the words of the table. */
    QString Trabalho;
    TGrandeza Nosso;
    /** What it is held against; without a measurement the bound is absolute. */
    TGrandeza Par = {};
    TSentido Sentido = TSentido::NoMaximo;
    /** Ratio, or with no peer the figure itself in seconds, bytes or pieces. */
    double Limite = 0;
    /** The same for the short check on small sizes: generous, it only has to show a slide back.
     * Without meaning for a time without a peer, which that check leaves out. */
    double NaVerificacao = 0;
    /** One sentence on what is compared, printed below the table; may be empty. */
    QString Nota = {};
};

/** The repetitions of one measurement. */
struct TSerie {
    QVector<double> Segundos;
    QMap<QString, QVector<double>> Contadores;
};

/** What one group of measurements left: the series by name, and what is required of them. */
struct TResultado {
    QMap<QString, TSerie> Series;
    QVector<TExigencia> Exigencias;

    QJsonObject ParaJson() const;
    static TResultado DeJson(const QJsonObject &objeto);
};

/** The middle value, or the mean of the two middle ones. NaN when empty. */
double Mediana(QVector<double> valores);
/** The value below which the part p (0 to 1) of the values lies, by nearest rank. NaN when empty.
 */
double Quantil(QVector<double> valores, double p);

} // namespace bancada
