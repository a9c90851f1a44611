#pragma once

#include "grids/UDBClientBasFr.h"

namespace comercial
{

/** The sales that fit some conditions, each with what it comes to; a list that the program computes
 * from the sales and their items. */
class TVendasFr : public ficha::TDBClientBasFr
{
    Q_OBJECT

public:
    using TDBClientBasFr::TDBClientBasFr;

    /** The newest sales come first. */
    void DoShow() override;
    void CriarCampos() override;
    void PreencherDados() override;
    void AtualizarListas() override;
    void CDS1AfterScroll(ficha::TDataSet *dataset) override;
    void SetFocus() override;

    /** Reads the list again; the sale that is current stays so where it is still there. */
    void Reler();
    /** Code of the current sale, 0 without one. */
    int Venda() const;
    /** False when the sale is not in the list. */
    bool IrPara(int venda);

    /** Conditions on sales (v), and on a sale's gross amount (bruto), as SQL; empty ones are left
     * out. */
    QStringList Condicoes;
    QString CondicaoDoBruto;
    /** Another sale became current; a new reading announces it once, at its end, whichever it is.
     */
    std::function<void()> OnVenda;

    /** What the list comes to. */
    int Quantas = 0;
    double Bruto = 0;
    double Descontos = 0;
    double Liquido = 0;

private:
    void LerVendas();
    QString SQL() const;
    /** Changes the list, and announces the sale that is current only then. */
    void Calado(const std::function<void()> &mudar);
    void AnunciarVenda();

    bool calado = false;
};

} // namespace comercial
