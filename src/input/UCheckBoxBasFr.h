#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TCheckBox;

/**
 * A yes or no, stored as "S" or "N".
 *
 * A mouse button that goes down on the box, the space bar and the caption's own short-cut start an
 * alteration before the box turns; the program's writing never does.
 */
class TCheckBoxBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** The state that Zerar returns to. */
    Q_PROPERTY(bool MarcadoPadrao MEMBER MarcadoPadrao)
    Q_PROPERTY(QString Titulo READ GetTitulo WRITE SetTitulo)

public:
    explicit TCheckBoxBasFr(TChave chave);

    /** Unchecks the box, whatever a layout says. */
    void Create(QWidget *owner) override;

    /** Hands the focus on to the box. */
    void SetFocus() override;
    Variant GetValor() const override;
    /** Checks for exactly "S"; anything else, a small s and Null included, unchecks. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and brings the default state back. */
    void Zerar() override;
    /** Always; a value that repeats is no reason to refuse. */
    bool ValorAceitavel() override;
    QString AsString() const override;
    QString SQLString() const override;

    /** The caption of the box. */
    QString GetTitulo() const;
    void SetTitulo(const QString &texto);

    bool MarcadoPadrao = false;
    TCheckBox *CheckBox1 = nullptr;

protected:
    void PegarComponentes() override;
    /** A mouse button went down on the box: starts an alteration. */
    virtual void CheckBox1MouseDown(QObject *sender);

private:
    TPedidoDeEdicao pedido;
};

} // namespace ficha
