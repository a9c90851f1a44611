#pragma once

#include "grids/USelectBasFr.h"

namespace ficha
{

class TNumEditBR;

/**
 * A description with its code of six digits before it. Enter in either of them asks the screen for
 * the other one.
 *
 * A code that was found leaves Enter to the edit, which goes on to the next control; one that was
 * not found uses it up, as the search button has taken the focus elsewhere.
 */
class TSelectCodBasFr : public TSelectBasFr
{
    Q_OBJECT

public:
    explicit TSelectCodBasFr(TChave chave);

    /** Asks what a code stands for, the description being empty; otherwise as OnBuscarDescr. */
    TBuscar OnBuscarCod;

    TNumEditBR *CodNumEditBR = nullptr;

protected:
    void PegarComponentes() override;
    virtual void CodNumEditBRKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    void MostrarAchado(const QString &descr) override;
};

} // namespace ficha
