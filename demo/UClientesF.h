#pragma once

#include "dates/UComboCodOpcionalFr.h"
#include "dates/UDataBasFr.h"
#include "dates/UDatasBasFr.h"
#include "dates/UNumOpcionalFr.h"
#include "forms/UTabLinFiltroBasF.h"
#include "input/UCNPJEditBRBasFr.h"
#include "input/UCPFEditBRBasFr.h"
#include "input/UCheckBoxBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UContatoBasFr.h"
#include "input/UDocBasFr.h"
#include "input/UEnderecoBasFr.h"
#include "input/UImgBasFr.h"
#include "input/UMemoBasFr.h"
#include "input/UNomeBasFr.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "input/URadioGroupCodBasFr.h"
#include "platform/toolkit/TRadioGroup.h"

namespace comercial
{

/**
 * Keeps the clients, people and companies. The model of a screen with composite frames, which bind
 * no column by themselves: each of their inputs is bound to its column like any other, the user's
 * typing in the plain ones starts an alteration here, and what a composite does beyond its inputs
 * (the defaults of a new record, the state that the address asks for) is told to it when the
 * screen's state changes.
 *
 * The filter panel chooses by group, by credit limit, by whether they may buy and by the days on
 * which they were registered; the line above the list says in words what it shows.
 */
class TClientesF : public ficha::TTabLinFiltroBasF
{
    Q_OBJECT

public:
    using TTabLinFiltroBasF::TTabLinFiltroBasF;
    QString NomeJanela() const override { return QStringLiteral("Clientes"); }
    void Atualizar() override;
    bool AtivarAlteracao() override;
    /** A new client starts in the host's area code, state and município. */
    bool AtivarInsersao() override;
    bool Inseriu() override;
    /** A birth date that is none keeps the alteration open, unlike a refusal of a value frame. */
    bool Alterou() override;
    void PrepararSQL() override;
    void ZerarFiltro() override;

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

    ficha::TComboCodOpcionalFr *FiltroGrupoFr = nullptr;
    ficha::TNumOpcionalFr *FiltroLimiteDeFr = nullptr;
    ficha::TNumOpcionalFr *FiltroLimiteAteFr = nullptr;
    ficha::TRadioGroup *FiltroSituacaoGroup = nullptr;
    ficha::TDatasBasFr *FiltroCadastroFr = nullptr;

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
    ficha::TNumEditBRBasFr *LimiteFr = nullptr;
    ficha::TCheckBoxBasFr *AtivoFr = nullptr;
    ficha::TImgBasFr *FotoFr = nullptr;
};

} // namespace comercial
