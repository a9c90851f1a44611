#pragma once

#include "input/UDisplayFr.h"

namespace ficha
{

/** Shows an amount of money. The label stays as laid out until the first SetValor. */
class TDisplayFloatFr : public TDisplayFr
{
    Q_OBJECT
    /** Number pattern; "###,###,##0.00" to begin with. */
    Q_PROPERTY(QString Formato MEMBER Formato)

public:
    explicit TDisplayFloatFr(TChave chave);

    /** Keeps the amount and shows it by Formato, with a comma and the thousands' dots. */
    void SetValor(double x);

    double Valor = 0;
    QString Formato;
};

} // namespace ficha
