#pragma once

#include "forms/UPanelBasFr.h"

namespace ficha
{
class TComboCodOpcionalFr;
class TDataOpcionalFr;
class TBitBtn;
class TLabeledEditTextoBasFr;
class TNumOpcionalFr;
class TSelectCodBasFr;
} // namespace ficha

namespace comercial
{

class TItensDaVendaFr;
class TVendasFr;

/** The list of sales and the items of the current one, with a side panel of further criteria. */
class TPesquisaDeVendasFr : public ficha::TPanelBasFr
{
    Q_OBJECT

public:
    using TPanelBasFr::TPanelBasFr;

    void ResetFiltro() override;
    /** The criteria as conditions on sales (v); empty without any. */
    QStringList Condicoes();
    /** The criterion of the gross amount, ">=100.00"; empty without. */
    QString CondicaoDoBruto() const;

    /** "Executar", or Enter in an input of the panel. */
    std::function<void()> OnExecutar;

    TVendasFr *ListaFr = nullptr;
    TItensDaVendaFr *ItensFr = nullptr;
    /** The product that is added to the current sale. */
    ficha::TSelectCodBasFr *NovoItemFr = nullptr;
    ficha::TBitBtn *NovoItemBitBtn = nullptr;
    ficha::TLabeledEditTextoBasFr *ClienteFr = nullptr;
    ficha::TNumOpcionalFr *ValorFr = nullptr;
    ficha::TComboCodOpcionalFr *GrupoFr = nullptr;
    ficha::TDataOpcionalFr *VencimentoFr = nullptr;
    ficha::TAction *LimparAct = nullptr;

protected:
    void PegarComponentes() override;
    void keyPressEvent(QKeyEvent *evento) override;
    void showEvent(QShowEvent *evento) override;

private:
    void Executar();
    /** Finds the product of a condition. */
    static bool AcharProduto(const QString &condicao, std::int32_t &codigo, QString &descricao);
};

} // namespace comercial
