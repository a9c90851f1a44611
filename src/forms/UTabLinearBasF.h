#pragma once

#include "base/UControlBasFr.h"
#include "forms/ULocalizBasF.h"
#include "forms/UTabBasF.h"
#include "platform/support/TGridColsInfo.h"
#include "platform/toolkit/Layout.h"
#include "records/UTabelaLinear.h"

#include <memory>
#include <vector>

class QLabel;
class QTimer;

namespace ficha
{

class TBitBtn;
class TDBControlBasFr;
class TNumEditBRCodBasFr;
class TPageControl;
class TStringGrid;
class TTabSheet;
class TToolButton;

/**
 * Base of every screen that maintains one linear table: one record per row, an integer code in the
 * first field. Shows the table as a list (page "Lista") and the current record's inputs (page
 * "Campos"), and drives the edit cycle: browse, insert, alter, confirm, cancel, delete, search.
 *
 * What a descendant supplies: the list's query (SQLText), its inputs on CamposTabSheet, NomeJanela,
 * PrepararTab (makes Tab and binds the inputs), and before each confirm the texts of SQLInserir,
 * SQLAlterar (without its where clause) and SQLUltimoInserido, as a rule in AntesInserir and
 * AntesAlterar.
 *
 * A failure of the database reaches the host's error report; an open edit then stays as it is, with
 * everything that was typed, and can be confirmed again. The statement of a confirm or deletion,
 * the hooks around it and the read-back of a new code run in one transaction, so that a confirm
 * that failed has written nothing.
 *
 * Insertions and the boxes of messages let other events in: what runs then may close or destroy
 * the screen.
 */
class TTabLinearBasF : public TTabBasF, public ITelaManutencao, public ITelaComGrade
{
    Q_OBJECT

public:
    explicit TTabLinearBasF(TChave chave);
    ~TTabLinearBasF() override;

    using TTabBasF::Create;
    /** The same with a text for the screen, kept in the host base's parameter. */
    void Create(QWidget *owner, const QString &parametro);

    QString TextoCaption() override;
    /** Applies every enabling rule; runs when the program falls idle. Writes only what changed. */
    void Atualizar() override;

    /** Browsing, with at least one record. */
    bool PodeLocalizar() const override;
    bool PodeImprimir() const override;
    /** An edit is open. */
    bool PodeConfirmar() const override;
    /** Reads the list again and stands on the record with this code, else on the last one; 0 means
     * the record that was current. */
    void Reler(int cod) override;

    /** Shows the suggested code in EditCod. */
    virtual void SugerirCod();
    /** The lowest free code, counted from 1. */
    virtual int SugestaoNovoCod();
    virtual void PreencherStringGrid();
    virtual void AntesInserir();
    virtual void AntesAlterar();
    virtual void AntesExcluir();
    virtual void AposInserir();
    virtual void AposAlterar();
    virtual void AposExcluir();
    virtual void SelecionarPrimeiroControl();
    /**
     * Starts an alteration of the current record, or an insertion when there is none. False when
     * the screen was not browsing, when it is itself writing into its inputs (AtualizarLigado off),
     * or when the record's lock was refused; the inputs then show the record as it now stands,
     * also what was being typed into them.
     */
    bool AtivarAlteracao() override;
    /** Starts an insertion when the screen is browsing. Always true. */
    virtual bool AtivarInsersao();
    /** Writes the new record; false when an input refuses its value. */
    virtual bool Inseriu();
    /** Writes the altered record; when an input refuses its value the alteration is abandoned. */
    virtual bool Alterou();
    /** Whether every input of the fields page accepts its value; focuses the first that does not.
     */
    virtual bool PodeInserir();
    virtual bool PodeAlterar();
    /** Whether the current record may be deleted. */
    virtual bool PodeExcluir();

    /** For descendants, when one of their own inputs changed: starts an alteration while browsing.
     * What the screen itself writes into inputs does not count. */
    void AposChange();
    /** The highest stored code; 0 for an empty table. */
    int MaiorCodGravado();
    /**
     * The SQL for a new record's code: the typed one, but never above the highest stored code plus
     * one; without a code frame, or with 0 in it, the table's generator. Empty for a Null code.
     */
    QString StringProxCod();
    /** Keeps the visible search dialog pointed at this screen and its label at the column. */
    void PegarLocaliz();
    void TrazerBotoesEsq() {}

    TControlBasFr *GetChamador() const override { return Chamador; }
    void SetChamador(TControlBasFr *chamador) override { Chamador = chamador; }

    TStringGrid *GradeDaBusca() const override { return StringGrid1; }
    int NRegistrosDaBusca() const override { return SQLQuery1->RecordCount(); }
    bool PodeMoverNaBusca() const override;
    void MoverParaLinha(int linha) override;
    bool GetSelecaoNavega() const override { return SelecaoNavega; }
    void SetSelecaoNavega(bool navega) override { SelecaoNavega = navega; }

    /** Owned; made by PrepararTab. Freed before the inputs that it is bound to. */
    std::unique_ptr<TTabelaLinear> Tab;
    /** How the list's columns are painted; made anew at every filling. */
    std::unique_ptr<TGridColsInfo> ColsInfo;
    /** While false, what changes in inputs and list is the screen's own doing. */
    bool AtualizarLigado = true;
    bool PerguntarExcluir = true;
    /** Code of the record that was inserted last. */
    int CodUltimoInserido = 0;
    int CodAlterado = 0;
    QString SQLInserir;
    /** Without its where clause. */
    QString SQLAlterar;
    QString SQLUltimoInserido;
    bool FiltroAtivo = false;
    /** Keep the list's row on the table's current record. */
    bool SincronizarLinha = true;
    /** Selecting a row of the list moves the table. */
    bool SelecaoNavega = true;
    /** 0: a deletion steps the pages back before it shows the list. */
    int ManterPagina = 0;
    /** The frame that opened the screen to create or choose a record; not owned. */
    QPointer<TControlBasFr> Chamador;
    bool Fechando = false;
    bool FecharAposChamador = false;
    /**
     * The code frame, one variable for all screens: the one of the screen created last. When that
     * screen goes, the one of the most recent screen that is left, or none. Not owned.
     */
    static QPointer<TNumEditBRCodBasFr> EditCod;

    TPageControl *PageControl1 = nullptr;
    TTabSheet *ListaTabSheet = nullptr;
    TTabSheet *CamposTabSheet = nullptr;
    TTabSheet *RelatTabSheet = nullptr;
    TTabSheet *ManuTabSheet = nullptr;
    TStringGrid *StringGrid1 = nullptr;
    TToolBar *NavToolBar = nullptr;
    TToolBar *ToolBar2 = nullptr;
    TToolButton *FiltrarToolButton = nullptr;
    TPanel *ConfirmPanel = nullptr;
    TBitBtn *ConfirmBitBtn = nullptr;
    TPanel *NRegsPanel = nullptr;
    QLabel *NRegsLabel = nullptr;
    QLabel *FiltroAtivLab = nullptr;
    /** 250 ms, not running: a descendant that wants it connects to it and starts it. */
    QTimer *const GeralTimer;
    TAction *FirstAction = nullptr;
    TAction *PriorAction = nullptr;
    TAction *NextAction = nullptr;
    TAction *LastAction = nullptr;
    TAction *ImprAction = nullptr;
    TAction *ConfigImprAction = nullptr;
    TAction *FiltrarAction = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    void FormActivate(QObject *sender) override;
    void FormDeactivate(QObject *sender) override;
    void FormCloseQuery(QObject *sender, bool &pode) override;
    void FormClose(QObject *sender, TCloseAction &acao) override;
    void FormDestroy(QObject *sender) override;
    void InsActionExecute(QObject *sender) override;
    void AltActionExecute(QObject *sender) override;
    void ExclActionExecute(QObject *sender) override;
    virtual void DesfazerActionExecute(QObject *sender);
    virtual void ConfirmActionExecute(QObject *sender);
    virtual void CancelarActionExecute(QObject *sender);
    virtual void FirstActionExecute(QObject *sender);
    virtual void PriorActionExecute(QObject *sender);
    virtual void NextActionExecute(QObject *sender);
    virtual void LastActionExecute(QObject *sender);
    virtual void ConfigImprActionExecute(QObject *sender);
    virtual void PageControl1Changing(QObject *sender, bool &pode);
    virtual void PageControl1Change(QObject *sender);
    virtual void CamposTabSheetEnter(QObject *sender);
    virtual void StringGrid1SelectCell(QObject *sender, int col, int row, bool &pode);
    virtual void StringGrid1DrawCell(QObject *sender, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado);
    virtual void StringGrid1Click(QObject *sender);
    virtual void StringGrid1DblClick(QObject *sender);
    virtual void StringGrid1TopLeftChanged(QObject *sender);
    virtual void StringGrid1MouseMove(QObject *sender, QMouseEvent *evento);

    /** The first input of the fields page, depth first, that refuses its value; null when none. */
    TDBControlBasFr *PrimeiroErrado();
    /** The code frame of this screen: the first one, depth first; null when it has none. */
    TNumEditBRCodBasFr *TemEditCod();
    /** Tells every column-bound frame of the screen that this is its screen. */
    void IndicarSeAosChild();

    bool Navegando() const;
    /** Browsing, and no edit is just being started. */
    bool PodeIniciarEdicao() const { return Navegando() && !ativando; }
    /** Shows the current record in the inputs. */
    void MostrarRegistro();
    /** The same when the event at hand is over: a key that was refused is typed all the same. */
    void MostrarRegistroDepois();
    /** The values of the fields, in their order. */
    std::vector<Variant> ValoresAtuais() const;
    /** Shows the fields that differ from these earlier values; the input that has the focus is left
     * to the user. */
    void MostrarOQueMudou(const std::vector<Variant> &antes);
    /** While false, Reler leaves the inputs as they are. */
    bool mostrarAoReler = true;

    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    enum TPagina { PaginaLista = 0, PaginaCampos = 1 };

    void LigarAcoes();
    void LigarGrade();
    int CodigoAtual() const;
    void IrParaCodigo(int cod);
    void AndarAteNaoDesfazer();
    void PararNoQueNaoDesfaz();
    bool RelerSeFechada();
    void GarantirListaAberta();
    void MostrarPagina(TPagina pagina);
    void FocarPagina();
    void FocarPrimeiroCampo();
    void FocarErrado(TDBControlBasFr *errado);
    void IniciarInsersao();
    bool IniciarAlteracao();
    bool TravarRegistro();
    void GravarInsersao();
    void LerUltimoInserido();
    void ReposicionarAposInserir();
    void ConfirmarInsersao();
    void ConfirmarAlteracao();
    bool AtenderChamador(int cod);
    void LiberarBotaoDoChamador(TControlBasFr *chamador);
    void TentarExcluir(QString &chaves);
    void TerminarExclusao(const QString &chaves);
    void Mover(void (TTabelaLinear::*mover)(), bool pode);
    void AtualizarRegistros();
    void AtualizarFiltro();
    void AtualizarAcoes();
    void SincronizarGrade();
    void AtualizarConfirmacao();
    void AtualizarEditCod();
    void EntrarNasTelas();
    void SairDasTelas();

    QPointer<TNumEditBRCodBasFr> editCodDaTela;
    /** What this screen last made of the shared code frame, so that two screens do not undo each
     * other's doing at every idle moment. */
    QPointer<TNumEditBRCodBasFr> editCodAplicado;
    bool somenteLeituraAplicado = false;
    int registrosMostrados = -1;
    bool ativando = false;
    bool confirmando = false;
    bool fechou = false;
    /** The open insertion is stored already; only the re-reading failed. */
    bool insersaoGravada = false;
    /** Takes the focus when it comes back to the fields page, instead of the first input. */
    QPointer<TDBControlBasFr> focoPrometido;
};

} // namespace ficha
