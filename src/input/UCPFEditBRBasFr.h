#pragma once

#include "input/UDocEditBRBasFr.h"

namespace ficha
{

class TCPFEditBR;

/**
 * Entry of a CPF, which must be one: the check digits are tested on leaving.
 *
 * Nothing typed is no CPF and is refused too, unless AceitaVazio, here false from the start, says
 * that a record may be without one. The value is marked as unique in its column, for the reference
 * phrase; accepting it does not look for it in the table.
 */
class TCPFEditBRBasFr : public TDocEditBRBasFr
{
    Q_OBJECT

public:
    explicit TCPFEditBRBasFr(TChave chave);

    /** Adds phrase 1, "CPF Inválido". */
    void Create(QWidget *owner) override;

    /** Refuses with a warning what is no CPF. */
    bool ValorAceitavel() override;

    TCPFEditBR *CPFEditBR1 = nullptr;

protected:
    TDocEditBR *Edit() const override;
    void EditMudou() override;
    void EditEntrou() override;

    void PegarComponentes() override;
    /** Refreshes the frame. */
    virtual void CPFEditBR1Change(QObject *sender);
    virtual void CPFEditBR1Enter(QObject *sender);
};

} // namespace ficha
