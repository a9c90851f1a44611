#pragma once

#include "forms/UTabLinearBasF.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNumEditBRCodBasFr.h"

namespace comercial
{

/** Keeps the groups of products: a code and a description that must not repeat. */
class TGruposF : public ficha::TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Grupos"); }

protected:
    void PegarComponentes() override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;

private:
    ficha::TNumEditBRCodBasFr *CodFr = nullptr;
    ficha::TLabeledEditTextoBasFr *DescrFr = nullptr;
};

} // namespace comercial
