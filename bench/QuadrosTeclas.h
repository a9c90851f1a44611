#pragma once

#include "bench/QuadrosLaco.h"

#include <QMap>
#include <QString>
#include <QVector>

class QWidget;

namespace bancada
{

/** Types into inputs of shown windows and measures each key to the end of what follows from it. */
class TDigitador
{
public:
    /** Shows a window in front and lets it settle. */
    void Mostrar(QWidget *janela);
    /** Gives an input the focus and lets its window settle. */
    void Focar(QWidget *entrada);
    /** One key, pressed and released: the seconds until a running event loop has nothing left to
     * do. A key without a repaint of the input is an error. */
    double Teclar(QWidget *entrada, QChar tecla);
    /** Types so many keys of a text, emptying the input unmeasured whenever the text is through;
     * each key's time in seconds. */
    QVector<double> Digitar(QWidget *entrada, const QString &teclas, int quantas);
    static void Esvaziar(QWidget *entrada);
    /** Voluntary context switches while a window is left alone, the caret blinking or (0) not; and
     * how often its event loop woke up. */
    TLaco::TDespertares Largar(QWidget *entrada, int milissegundos, int piscada);

    TLaco Laco;
};

/** Forty bare line edits in a plain window of some size: "letters" and "digits", the median key in
 * seconds. */
QMap<QString, double> TeclasNoPar(QSize tamanho, int quantas);
/** Context switches in such a window that is left alone with a blinking caret. */
int TrocasNoPar(QSize tamanho, int milissegundos, int piscada);

} // namespace bancada
