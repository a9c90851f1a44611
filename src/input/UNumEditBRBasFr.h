#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TNumEditBR;

/**
 * A number in Brazilian notation with an optional lower and upper bound, whole numbers both. Fresh,
 * it refuses negative numbers and has no upper bound.
 *
 * What the program sets is clamped silently before the widget sees it; what the user types is
 * refused on leaving. The user's own edit, never the program's, starts an alteration.
 */
class TNumEditBRBasFr : public TDBControlBasFr
{
    Q_OBJECT
    Q_PROPERTY(bool TemMinimo MEMBER TemMinimo)
    Q_PROPERTY(bool TemMaximo MEMBER TemMaximo)
    Q_PROPERTY(int Minimo MEMBER Minimo)
    Q_PROPERTY(int Maximo MEMBER Maximo)

public:
    explicit TNumEditBRBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Hands the focus on to the edit. */
    void SetFocus() override;
    /** Integer or double, as the widget holds it. */
    Variant GetValor() const override;
    /** Null, unassigned and a blank text are 0. Where the bounds contradict each other the upper
     * one holds. EVariantError for a text that is no number. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and shows the lower bound, or 0 where there is none. */
    void Zerar() override;
    /** Refuses a repeated number and one outside the bounds. A number is never missing. */
    bool ValorAceitavel() override;
    /** The text as shown, mask included. */
    QString AsString() const override;
    /** The widget's SQL text of its number. */
    QString SQLString() const override;

    /** The number as a one-character literal: the character of code n + 32, quoted. */
    QString SQLStrChar() const;

    bool TemMinimo = true;
    bool TemMaximo = false;
    /** Bounds, themselves included. */
    int Minimo = 0;
    int Maximo = 0;
    TNumEditBR *NumEditBR1 = nullptr;

protected:
    /** What counts as 0: Null, unassigned, a blank text. */
    static bool EhVazio(const Variant &valor);
    /** The user changed the number: starts an alteration. */
    void NumeroEditado();

    void PegarComponentes() override;
    /** Refreshes the frame. */
    virtual void NumEditBR1Change(QObject *sender);
    /** Gives the edit the focus unless it is read-only. */
    virtual void NumEditBR1Enter(QObject *sender);

private:
    TPedidoDeEdicao pedido{this};
};

} // namespace ficha
