#pragma once

#include "forms/UTabLinearBasF.h"
#include "input/UBarCodBasFr.h"
#include "input/UCheckBoxBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDescrReduzLabeledEditTextoBasFr.h"
#include "input/UMemoBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "input/URadioGroupCharBasFr.h"

namespace comercial
{

/** Keeps the products. The button beside the group opens the groups' screen and comes back with
 * the code chosen or inserted there. */
class TProdutosF : public ficha::TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Produtos"); }

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;

private:
    void Rotular();

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
