#pragma once

#include "forms/UTabLinearBasF.h"
#include "input/UCepEditBRFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "input/UNumEditBRCodBasFr.h"

namespace ficha
{
class TComboBox;
}

namespace comercial
{

/**
 * Keeps the streets of the postal-code guide, those of one município at a time: a guide has a
 * million of them. State and município are chosen above the list while no edit is open.
 */
class TCepsF : public ficha::TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("CEPs"); }
    void Atualizar() override;
    /** The next code: to look for a gap among a million would take its time. */
    int SugestaoNovoCod() override;

    /** Lists the streets of a município. */
    void MostrarMunicipio(int mun);

    /** Which streets are listed; the municípios carry their codes. */
    ficha::TComboBox *UFComboBox = nullptr;
    ficha::TComboBox *MunComboBox = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;

private:
    void PreencherEscolha();
    void PreencherMunicipios();
    void Rotular();

    ficha::TPanel *EscolhaPanel = nullptr;
    ficha::TNumEditBRCodBasFr *CodFr = nullptr;
    ficha::TComboBoxCodBasFr *BairroFr = nullptr;
    ficha::TComboBoxCodBasFr *TipoFr = nullptr;
    ficha::TLabeledEditTextoBasFr *NomeFr = nullptr;
    ficha::TLabeledEditTextoBasFr *ComplFr = nullptr;
    ficha::TCepEditBRFr *CepFr = nullptr;
};

} // namespace comercial
