#pragma once

#include "demo/UContasFr.h"
#include "platform/hostforms/TChildMDIBasF.h"

namespace ficha
{
class TBotaoFr;
class TBotaoHelpFr;
class TComboBoxCodBasFr;
class TDisplayFloatFr;
class TSelectFrVelho;
} // namespace ficha

namespace comercial
{

/** Shows the chart of accounts as a tree: a branch of it or all, an account found by code or name,
 * everything opened or closed, the descriptions renamed. */
class TPlanoDeContasF : public ficha::TChildMDIBasF
{
    Q_OBJECT

public:
    using TChildMDIBasF::TChildMDIBasF;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void MostrarRamo();
    void MostrarTotais();
    void Localizar();
    /** Asks for another description of the current account and keeps it. */
    void Renomear();

    ficha::TComboBoxCodBasFr *RamoFr = nullptr;
    ficha::TSelectFrVelho *BuscaFr = nullptr;
    ficha::TBotaoFr *ExpandirFr = nullptr;
    ficha::TBotaoFr *RecolherFr = nullptr;
    ficha::TBotaoHelpFr *AjudaFr = nullptr;
    ficha::TAction *RenomearAct = nullptr;
    ficha::TDisplayFloatFr *AtivoFr = nullptr;
    ficha::TDisplayFloatFr *PassivoFr = nullptr;
    ficha::TDisplayFloatFr *ResultadoFr = nullptr;
    TContasFr *ContasFr = nullptr;
};

} // namespace comercial
