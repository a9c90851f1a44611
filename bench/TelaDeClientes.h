#pragma once

#include "forms/UTabLinearBasF.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UNumEditBRCodBasFr.h"

namespace ficha
{
class TDTPBasFr;
}

namespace bancada
{

/** A maintenance screen of the table "cliente" of RoteiroDeClientes, as a program has it: all eight
 * columns in the list, and inputs for seven of them on the fields page. */
class TTelaDeClientes : public ficha::TTabLinearBasF
{
public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Clientes"); }

    ficha::TNumEditBRCodBasFr *CodFr = nullptr;
    ficha::TLabeledEditTextoBasFr *NomeFr = nullptr;
    ficha::TLabeledEditTextoBasFr *CidadeFr = nullptr;
    ficha::TNumEditBRBasFr *LimiteFr = nullptr;
    ficha::TDTPBasFr *NascimentoFr = nullptr;
    ficha::TLabeledEditTextoBasFr *TipoFr = nullptr;
    ficha::TLabeledEditTextoBasFr *EnderecoFr = nullptr;

    /** The list's query. */
    static QString Consulta();

protected:
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;
};

} // namespace bancada
