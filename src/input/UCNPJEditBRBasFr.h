#pragma once

#include "input/UDocEditBRBasFr.h"

namespace ficha
{

class TCNPJEditBR;

/**
 * Entry of a CNPJ, which must be one: the check digits are tested on leaving.
 *
 * Nothing typed is no CNPJ and is refused too, unless AceitaVazio, here false from the start, says
 * that a record may be without one. The value is marked as unique in its column, for the reference
 * phrase; accepting it does not look for it in the table.
 */
class TCNPJEditBRBasFr : public TDocEditBRBasFr
{
    Q_OBJECT

public:
    explicit TCNPJEditBRBasFr(TChave chave);

    /** Adds phrase 1, "CNPJ Inválido". */
    void Create(QWidget *owner) override;

    /** Refuses with a warning what is no CNPJ. */
    bool ValorAceitavel() override;

    TCNPJEditBR *CNPJEditBR1 = nullptr;

protected:
    TDocEditBR *Edit() const override;
    void EditMudou() override;
    void EditEntrou() override;

    void PegarComponentes() override;
    /** Refreshes the frame. */
    virtual void CNPJEditBR1Change(QObject *sender);
    virtual void CNPJEditBR1Enter(QObject *sender);
};

} // namespace ficha
