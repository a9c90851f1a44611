#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TRadioGroup;

/**
 * A choice out of a few options that are all in view. The base has no value of its own.
 *
 * The user's click, arrow key or short-cut on an option, never the program's selecting, starts an
 * alteration before the selection moves.
 */
class TRadioGroupBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** Options carry controls (TRadioGroup::SetControle), each shown only while its option is
     * selected. */
    Q_PROPERTY(bool ControlesPorItem MEMBER ControlesPorItem)
    Q_PROPERTY(QString Titulo READ GetTitulo WRITE SetTitulo)

public:
    explicit TRadioGroupBasFr(TChave chave);

    /** Selects option 0 and takes away whatever the options carry. */
    void Create(QWidget *owner) override;

    /** Hands the focus on to the selected option. */
    void SetFocus() override;
    /** Shows the control of the selected option only; the selection stays. */
    void SetValor(const Variant &valor) override;

    /** The text of the selected option; empty when there is none. */
    QString Selecionada() const;

    /** The caption of the group. */
    QString GetTitulo() const;
    void SetTitulo(const QString &texto);

    bool ControlesPorItem = false;
    TRadioGroup *RadioGroup1 = nullptr;

protected:
    void PegarComponentes() override;
    /** The selection moved, by user or program; for descendants. */
    virtual void RadioGroup1Click(QObject *sender);

private:
    void LigarBotoes();
    void MostrarControleDoItem();

    TPedidoDeEdicao pedido;
};

} // namespace ficha
