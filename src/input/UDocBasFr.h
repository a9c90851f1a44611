#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TGroupBox;
class TLabeledEditTextoBasFr;

/**
 * The three documents of a person or a company, side by side, under captions that follow the kind
 * of person. No value frame: screens bind the three inputs.
 *
 * The inputs have no maximum length of their own, so that the longest document fits as people
 * write it (a CNPJ with its dots, slash and hyphen has 18 characters); a screen sets the lengths of
 * its columns. Enter in the first two goes on to the next one and is used up.
 */
class TDocBasFr : public TBasFr
{
    Q_OBJECT
    /** 0 an individual, 1 a company. */
    Q_PROPERTY(int TipoPess READ GetTipoPess WRITE SetTipoPess)

public:
    explicit TDocBasFr(TChave chave);

    /** A fresh frame is a company's. */
    void Create(QWidget *owner) override;

    int GetTipoPess() const { return tipoPess; }
    /** Any number is kept; the captions change for 0 and 1 only. */
    void SetTipoPess(int t);
    /** Clears the three edits. */
    void Zerar();

    /**
     * Whether the first document may be kept; the frame asks by itself nowhere, a screen does when
     * it confirms. First the input's own checks (required, repeated), then the number: a CPF for
     * an individual, a CNPJ, with or without letters, for a company, bare or masked. What is
     * refused was told to the user and has the focus.
     *
     * An empty document is no wrong one: whether it may be empty is the input's AceitaVazio. For
     * another kind of person every number is accepted.
     */
    bool DocAceitavel();

    TGroupBox *GroupBox1 = nullptr;
    TLabeledEditTextoBasFr *CLabeledEditTextoBasFr = nullptr;
    TLabeledEditTextoBasFr *ILabeledEditTextoBasFr = nullptr;
    TLabeledEditTextoBasFr *MLabeledEditTextoBasFr = nullptr;

protected:
    void PegarComponentes() override;
    virtual void CLabeledEditTextoBasFrLabeledEdit1KeyDown(QObject *sender, int &tecla,
                                                           Qt::KeyboardModifiers estado);
    virtual void ILabeledEditTextoBasFrLabeledEdit1KeyDown(QObject *sender, int &tecla,
                                                           Qt::KeyboardModifiers estado);

private:
    bool NumeroValido() const;

    int tipoPess = 1;
};

} // namespace ficha
