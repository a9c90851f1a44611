#pragma once

#include "input/UContatoBasFr.h"

namespace ficha
{

/** The contact data of a company, narrower: the web page and its button stand on a second row, and
 * the e-mail has what they leave of the first. */
class TContatoEmprBasFr : public TContatoBasFr
{
    Q_OBJECT

public:
    explicit TContatoEmprBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** As inherited. */
    void Zerar();

protected:
    /** Does nothing; for descendants. */
    virtual void PaginaLabeledEditKeyDown(QObject *sender, int &tecla,
                                          Qt::KeyboardModifiers estado);
};

} // namespace ficha
