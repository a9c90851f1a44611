#pragma once

#include "platform/core/TLinhas.h"
#include "platform/hostforms/TDiagBitBtnBasF.h"

class QLabel;

namespace ficha
{

/**
 * Base of a filter dialog: the modal alternative to a filter panel beside the list. A descendant
 * places its inputs on Panel1 and replaces Exibir.
 */
class TFiltrarDiagF : public TDiagBitBtnBasF
{
    Q_OBJECT

public:
    explicit TFiltrarDiagF(TChave chave);

    /** Fills and shows the inputs for a screen, and answers whether the user confirmed. Here it
     * shows nothing and answers true. The list of texts is the caller's, for whatever the two agree
     * on: the criteria that were chosen, or their description. */
    virtual bool Exibir(TForm *form, TLinhas &lista);

    /** Keeps to the upper right corner. */
    QLabel *Image1 = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
};

} // namespace ficha
