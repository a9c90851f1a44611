#pragma once

#include "platform/hostforms/TChildMDIBasF.h"

namespace ficha
{
class TBotaoHelpFr;
class TDisplayFloatFr;
class TDisplayFr;
class TLabeledEdit;
} // namespace ficha

namespace comercial
{

class TPeriodoFr;
class TPesquisaDeVendasFr;
class TSelectProdutosFr;

/**
 * Shows the sales of a range of dates, what they come to, and the items of the current one. A
 * product that is chosen narrows the list to the sales that have it.
 */
class TVendasF : public ficha::TChildMDIBasF
{
    Q_OBJECT

public:
    using TChildMDIBasF::TChildMDIBasF;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    /** The products may have been altered on their own screen meanwhile. */
    void FormActivate(QObject *sender) override;

private:
    void LigarAcoes();
    /** Gives the list the conditions that are chosen on the screen. */
    void PrepararLista();
    /** Reads the list by them. */
    void Reler();
    void MostrarTotais();
    /** Shows the sales of one product, 0 for all. */
    void EscolherProduto(int codigo);
    void PedirDesconto();
    void PedirObservacao();
    void IrParaVenda();

    int produto = 0;

    TPeriodoFr *PeriodoFr = nullptr;
    ficha::TLabeledEdit *ProdutoEdit = nullptr;
    TSelectProdutosFr *SelectFr = nullptr;
    ficha::TBotaoHelpFr *AjudaFr = nullptr;
    TPesquisaDeVendasFr *PesquisaFr = nullptr;
    ficha::TDisplayFr *QuantasFr = nullptr;
    ficha::TDisplayFloatFr *BrutoFr = nullptr;
    ficha::TDisplayFloatFr *DescontosFr = nullptr;
    ficha::TDisplayFloatFr *LiquidoFr = nullptr;
    ficha::TAction *DescontoAct = nullptr;
    ficha::TAction *ObservacaoAct = nullptr;
    ficha::TAction *IrParaAct = nullptr;
};

} // namespace comercial
