#pragma once

#include "input/UDocEditBRBasFr.h"

namespace ficha
{

class TCepEditBR;

/**
 * Entry of a CEP. The length of its text decides: nine characters are a whole one. Optional, unless
 * AceitaVazio is switched off; a part of a CEP is refused either way, in silence where it is
 * optional.
 */
class TCepEditBRFr : public TDocEditBRBasFr
{
    Q_OBJECT

public:
    explicit TCepEditBRFr(TChave chave);

    /** Adds phrase 1, "Obrigatório", and makes the frame 66 pixels wide. */
    void Create(QWidget *owner) override;

    /** Refuses a repeated CEP where uniqueness is asked for, and one that is not whole. */
    bool ValorAceitavel() override;

    TCepEditBR *CepEditBR1 = nullptr;

protected:
    TDocEditBR *Edit() const override;
    void EditMudou() override;
    void EditEntrou() override;

    void PegarComponentes() override;
    /** A required CEP: phrase 1 on while it is not whole. Refreshes the frame. */
    virtual void CepEditBR1Change(QObject *sender);
    virtual void CepEditBR1Enter(QObject *sender);

private:
    bool Inteiro() const;
};

} // namespace ficha
