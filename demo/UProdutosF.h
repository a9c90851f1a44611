#pragma once

#include "dates/UComboCodOpcionalFr.h"
#include "dates/UDatasBasFr.h"
#include "dates/UNumOpcionalFr.h"
#include "forms/UTabLinFiltroBasF.h"
#include "input/UBarCodBasFr.h"
#include "input/UCheckBoxBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDescrReduzLabeledEditTextoBasFr.h"
#include "input/UMemoBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "input/URadioGroupCharBasFr.h"
#include "platform/toolkit/TRadioGroup.h"

namespace comercial
{

/**
 * Keeps the products. The button beside the group opens the groups' screen and comes back with the
 * code chosen or inserted there.
 *
 * The filter panel chooses by group, by price, by whether they can be sold and by the days on which
 * they were registered; the line above the list says in words what it shows.
 */
class TProdutosF : public ficha::TTabLinFiltroBasF
{
    Q_OBJECT

public:
    using TTabLinFiltroBasF::TTabLinFiltroBasF;
    QString NomeJanela() const override { return QStringLiteral("Produtos"); }
    void PrepararSQL() override;
    void ZerarFiltro() override;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;

private:
    void Rotular();

    ficha::TComboCodOpcionalFr *FiltroGrupoFr = nullptr;
    ficha::TNumOpcionalFr *FiltroPrecoDeFr = nullptr;
    ficha::TNumOpcionalFr *FiltroPrecoAteFr = nullptr;
    ficha::TRadioGroup *FiltroSituacaoGroup = nullptr;
    ficha::TDatasBasFr *FiltroCadastroFr = nullptr;

    ficha::TNumEditBRCodBasFr *CodFr = nullptr;
    ficha::TDescrReduzLabeledEditTextoBasFr *DescrFr = nullptr;
    ficha::TBarCodBasFr *CodBarrasFr = nullptr;
    ficha::TComboBoxCodBasFr *GrupoFr = nullptr;
    ficha::TNumEditBRBasFr *PrecoFr = nullptr;
    ficha::TNumEditBRBasFr *EstoqueFr = nullptr;
    ficha::TRadioGroupCharBasFr *UnidadeFr = nullptr;
    ficha::TCheckBoxBasFr *AtivoFr = nullptr;
    ficha::TMemoBasFr *ObservacaoFr = nullptr;
};

} // namespace comercial
