#pragma once

#include "dates/UDataBasFr.h"
#include "forms/UTabLinearBasF.h"
#include "input/UCNPJEditBRBasFr.h"
#include "input/UCPFEditBRBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UContatoBasFr.h"
#include "input/UDocBasFr.h"
#include "input/UEnderecoBasFr.h"
#include "input/UImgBasFr.h"
#include "input/UMemoBasFr.h"
#include "input/UNomeBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "input/URadioGroupCodBasFr.h"

namespace comercial
{

/**
 * Keeps the clients, people and companies. The model of a screen with composite frames, which bind
 * no column by themselves: each of their inputs is bound to its column like any other, the user's
 * typing in the plain ones starts an alteration here, and what a composite does beyond its inputs
 * (the defaults of a new record, the state that the address asks for) is told to it when the
 * screen's state changes.
 */
class TClientesF : public ficha::TTabLinearBasF
{
    Q_OBJECT

public:
    using TTabLinearBasF::TTabLinearBasF;
    QString NomeJanela() const override { return QStringLiteral("Clientes"); }
    void Atualizar() override;
    bool AtivarAlteracao() override;
    /** A new client starts in the host's area code, state and município. */
    bool AtivarInsersao() override;
    bool Inseriu() override;
    /** A birth date that is none keeps the alteration open, unlike a refusal of a value frame. */
    bool Alterou() override;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void PrepararTab() override;
    void AntesInserir() override;
    void AntesAlterar() override;

private:
    struct TColuna {
        QString Nome;
        QString Valor; /**< as SQL */
    };

    void LigarDocumentos();
    void LigarEntradas();
    void PegarLista();
    void PegarIdentificacao();
    void PegarEndereco();
    void PegarContato();
    ficha::TCampo *PegarFora(const char *coluna, QWidget *controle);
    bool Empresa() const;
    void MostrarDocumento();
    void IndicarEstado();
    bool NascimentoAceitavel();
    QString NascimentoSQL();
    QList<TColuna> Colunas();

    ficha::TNumEditBRCodBasFr *CodFr = nullptr;
    ficha::TNomeBasFr *NomeFr = nullptr;
    ficha::TRadioGroupCodBasFr *TipoPessFr = nullptr;
    ficha::TCPFEditBRBasFr *CPFFr = nullptr;
    ficha::TCNPJEditBRBasFr *CNPJFr = nullptr;
    ficha::TDocBasFr *DocFr = nullptr;
    ficha::TDataBasFr *NascimentoFr = nullptr;
    ficha::TComboBoxCodBasFr *GrupoFr = nullptr;
    ficha::TEnderecoBasFr *EnderecoFr = nullptr;
    ficha::TContatoBasFr *ContatoFr = nullptr;
    ficha::TMemoBasFr *NotasFr = nullptr;
    ficha::TImgBasFr *FotoFr = nullptr;
};

} // namespace comercial
