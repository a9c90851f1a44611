#include "forms/UTabLinearBasF.h"

#include "forms/UImpressora.h"
#include "forms/UTabLinearD.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QCoreApplication>
#include <QDebug>
#include <QLabel>
#include <QMouseEvent>
#include <QScopeGuard>
#include <QScopedValueRollback>
#include <QTimer>

namespace ficha
{

FICHA_REGISTRAR(TTabLinearBasF)

QPointer<TNumEditBRCodBasFr> TTabLinearBasF::EditCod;

namespace
{

enum TPagina { PaginaLista = 0, PaginaCampos = 1 };
constexpr int TagDoPrimeiro = 1;
constexpr int AlturaDoEditCod = 20;

/** The living screens in the order of their creation. */
std::vector<TTabLinearBasF *> &Telas()
{
    static std::vector<TTabLinearBasF *> telas;
    return telas;
}

/** The widget's own switch, whatever page or window around it is hidden. */
bool Visivel(const QWidget *w)
{
    return !(w->testAttribute(Qt::WA_WState_Hidden) &&
             w->testAttribute(Qt::WA_WState_ExplicitShowHide));
}

void MudarVisivel(QWidget *w, bool visivel)
{
    if (Visivel(w) != visivel)
        w->setVisible(visivel);
}

/** Answers whether it changed. */
bool MudarEnabled(TAction *acao, bool habilitada)
{
    if (acao->GetEnabled() == habilitada)
        return false;
    acao->SetEnabled(habilitada);
    return true;
}

void Focar(QWidget *w)
{
    if (auto *frame = qobject_cast<TFrame *>(w))
        frame->SetFocus();
    else
        w->setFocus();
}

bool FocoDentroDe(const QWidget *w)
{
    const QWidget *ativo = ControleAtivo(w->window());
    return ativo && (ativo == w || w->isAncestorOf(ativo));
}

/** What a confirm writes is stored as a whole or not at all. */
void EmUmaTransacao(const std::function<void()> &f)
{
    if (TSQLConnection *conexao = ConexD().SQLConnection)
        conexao->EmTransacao(f);
    else
        f();
}

QString TextoDosRegistros(int n)
{
    if (n == 0)
        return QStringLiteral("Nenhum registro");
    if (n == 1)
        return QStringLiteral("1 registro");
    return QString::number(n) + QStringLiteral(" registros");
}

} // namespace

/** Sets a flag of a screen and brings its earlier value back, if the screen is still there. */
class TTabLinearBasF::TFlagGuarda
{
public:
    TFlagGuarda(TTabLinearBasF *daTela, bool TTabLinearBasF::*doFlag, bool valor)
        : tela(daTela), flag(doFlag), antes(daTela->*doFlag)
    {
        daTela->*flag = valor;
    }
    ~TFlagGuarda()
    {
        if (tela)
            tela->*flag = antes;
    }
    TFlagGuarda(const TFlagGuarda &) = delete;
    TFlagGuarda &operator=(const TFlagGuarda &) = delete;

private:
    QPointer<TTabLinearBasF> tela;
    bool TTabLinearBasF::*flag;
    bool antes;
};

TTabLinearBasF::TTabLinearBasF(TChave chave) : TTabBasF(chave), GeralTimer(new QTimer(this))
{
    GeralTimer->setObjectName(QStringLiteral("GeralTimer"));
    GeralTimer->setInterval(250);
}

TTabLinearBasF::~TTabLinearBasF()
{
    Destruindo();
    SairDasTelas();
    LiberarBotaoDoChamador(Chamador);
}

void TTabLinearBasF::Create(QWidget *owner, const QString &parametro)
{
    Parametro = parametro;
    Chamador = nullptr;
    CodUltimoInserido = 0;
    Create(owner);
}

QString TTabLinearBasF::TextoCaption()
{
    const QString texto = TTabBasF::TextoCaption();
    if (!Tab || Navegando())
        return texto;
    return texto + QStringLiteral(" - ") + Tab->StatusStr();
}

void TTabLinearBasF::Atualizar()
{
    TTabBasF::Atualizar();
    if (!Tab)
        return;
    AtualizarRegistros();
    AtualizarFiltro();
    AtualizarAcoes();
    SincronizarGrade();
    AtualizarConfirmacao();
    AtualizarEditCod();
}

bool TTabLinearBasF::PodeLocalizar() const
{
    return Navegando() && !SQLQuery1->IsEmpty();
}

bool TTabLinearBasF::PodeImprimir() const
{
    return Navegando() && !SQLQuery1->IsEmpty();
}

bool TTabLinearBasF::PodeConfirmar() const
{
    return Tab && !Navegando();
}

void TTabLinearBasF::Reler(int cod)
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    if (cod == 0)
        cod = CodigoAtual();
    ReabrirLista();
    PreencherStringGrid();
    // Only the record on which the walk ends is shown; showing it once is showing it.
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
    IrParaCodigo(cod);
    Tab->Campos->PreencherControls();
}

void TTabLinearBasF::SugerirCod()
{
    if (EditCod)
        EditCod->SetValor(SugestaoNovoCod());
}

int TTabLinearBasF::SugestaoNovoCod()
{
    const QString coluna = Tab->Campos->Campos(0)->Field->FieldName();
    TCustomBRSQL codigos(QStringLiteral("select ") + coluna + QStringLiteral(" from ") +
                         Tab->NomeTabela + QStringLiteral(" order by ") + coluna);
    int n = 1;
    const TField *codigo = codigos.Fields(0);
    for (; !codigos.Eof() && codigo->AsInteger() == n; codigos.Next())
        ++n;
    return n;
}

void TTabLinearBasF::PreencherStringGrid()
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->PreencherStringGrid(StringGrid1);
    ColsInfo = std::make_unique<TGridColsInfo>(*StringGrid1);
}

void TTabLinearBasF::AntesInserir() {}

void TTabLinearBasF::AntesAlterar() {}

void TTabLinearBasF::AntesExcluir() {}

void TTabLinearBasF::AposInserir() {}

void TTabLinearBasF::AposAlterar() {}

void TTabLinearBasF::AposExcluir() {}

void TTabLinearBasF::SelecionarPrimeiroControl() {}

bool TTabLinearBasF::AtivarAlteracao()
{
    if (!Navegando() || ativando)
        return false;
    GarantirListaAberta();
    if (SQLQuery1->IsEmpty())
        return AtivarInsersao();
    return IniciarAlteracao();
}

bool TTabLinearBasF::IniciarAlteracao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::ativando, true);
    bool iniciou = false;
    // The key that asked for the alteration is typed into its input after this returns.
    const auto recusada = qScopeGuard([&] {
        if (viva && !iniciou)
            MostrarRegistroDepois();
    });
    CodAlterado = 0;
    const std::vector<Variant> antes = ValoresAtuais();
    if (!TravarRegistro())
        return false;
    FecharLocaliz();
    MostrarPagina(PaginaCampos);
    Tab->AltIni();
    iniciou = true;
    MostrarOQueMudou(antes);
    return true;
}

/** Takes the lock; refused, it shows the record as it now stands. A record that is locked but that
 * the list no longer brings is refused too: another one is current by then. */
bool TTabLinearBasF::TravarRegistro()
{
    const QPointer<TTabLinearBasF> viva(this);
    const QString chaves = Tab->ChavesGarantia();
    const bool travado = Tab->GarantiaRegistro();
    if (!viva || fechou)
        return false;
    if (travado && Tab->ChavesGarantia() == chaves)
        return true;
    Tab->LiberarRegistro(chaves);
    Reler(0);
    MostrarRegistro();
    return false;
}

bool TTabLinearBasF::AtivarInsersao()
{
    if (Navegando() && !ativando)
        IniciarInsersao();
    return true;
}

void TTabLinearBasF::IniciarInsersao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::ativando, true);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    CodUltimoInserido = 0;
    insersaoGravada = false;
    MostrarPagina(PaginaCampos);
    // What the user types meanwhile waits: it belongs into the empty inputs.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    if (!viva || fechou || !Navegando())
        return;
    ReabrirLista();
    FecharLocaliz();
    SelecionarPrimeiroControl();
    Tab->InsIni();
    if (EditCod)
        SugerirCod();
}

bool TTabLinearBasF::Inseriu()
{
    if (!PodeInserir()) {
        // Also in an empty table, where a refill shows the absent record, what was typed stays.
        const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
        PreencherStringGrid();
        return false;
    }
    GravarInsersao();
    ReabrirLista();
    ReposicionarAposInserir();
    insersaoGravada = false;
    return true;
}

/** Stores the record, once: when the re-reading after it failed, the next confirm goes on from
 * there. */
void TTabLinearBasF::GravarInsersao()
{
    if (insersaoGravada)
        return;
    EmUmaTransacao([this] {
        AntesInserir();
        ConexD().Executar(SQLInserir);
        AposInserir();
        if (!SQLUltimoInserido.isEmpty())
            LerUltimoInserido();
    });
    insersaoGravada = true;
    if (SQLUltimoInserido.isEmpty()) {
        MensagemAviso(QStringLiteral("Avisar o Suporte Técnico:\r\nfaltou SQL do último inserido"),
                      0);
        LerUltimoInserido();
    }
}

void TTabLinearBasF::LerUltimoInserido()
{
    TCustomBRQuery consulta;
    if (consulta.Open(SQLUltimoInserido))
        CodUltimoInserido = consulta.Fields(0)->AsInteger();
}

void TTabLinearBasF::ReposicionarAposInserir()
{
    if (SQLQuery1->RecordCount() < 2)
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
    PararNoQueNaoDesfaz();
    PreencherStringGrid();
}

bool TTabLinearBasF::Alterou()
{
    if (!PodeAlterar()) {
        CancelarAction->Execute();
        return false;
    }
    CodAlterado = CodigoAtual();
    EmUmaTransacao([&] {
        AntesAlterar();
        ConexD().Executar(SQLAlterar + Tab->WhereStr());
        AposAlterar();
    });
    ReabrirLista();
    const TFlagGuarda sincronia(this, &TTabLinearBasF::SincronizarLinha, false);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->First();
    while (!Tab->Fim && Tab->Campos->CanUndo())
        Tab->Next();
    PreencherStringGrid();
    return true;
}

bool TTabLinearBasF::PodeInserir()
{
    const QPointer<TDBControlBasFr> errado = PrimeiroErrado();
    if (!errado)
        return true;
    FocarErrado(errado);
    if (errado)
        errado->Atualizar();
    return false;
}

bool TTabLinearBasF::PodeAlterar()
{
    TDBControlBasFr *errado = PrimeiroErrado();
    if (!errado)
        return true;
    FocarErrado(errado);
    return false;
}

bool TTabLinearBasF::PodeExcluir()
{
    return true;
}

void TTabLinearBasF::AposChange()
{
    if (AtualizarLigado && Navegando())
        AtivarAlteracao();
}

int TTabLinearBasF::MaiorCodGravado()
{
    const TCustomBRSQL consulta(QStringLiteral("select max(") +
                                Tab->Campos->Campos(0)->Field->FieldName() +
                                QStringLiteral(") from ") + Tab->NomeTabela);
    return consulta.Fields(0)->AsInteger();
}

QString TTabLinearBasF::StringProxCod()
{
    const Variant digitado = EditCod ? EditCod->GetValor() : Variant(0);
    if (digitado == Variant(0)) {
        return QStringLiteral("GEN_ID(") + Tab->Campos->Campos(0)->Field->FieldName() +
               QStringLiteral("_gen, 1)");
    }
    if (digitado.EhNulo())
        return {};
    const int proximo = MaiorCodGravado() + 1;
    return digitado > Variant(proximo) ? QString::number(proximo) : digitado.AsString();
}

void TTabLinearBasF::PegarLocaliz()
{
    if (!LocalizBasF || !LocalizBasF->isVisible())
        return;
    if (LocalizBasF->GetTabF() != this)
        LocalizBasF->SetTabF(this);
    LocalizBasF->PegarCampo(StringGrid1, StringGrid1->GetCol());
}

bool TTabLinearBasF::PodeMoverNaBusca() const
{
    return Navegando();
}

void TTabLinearBasF::MoverParaLinha(int linha)
{
    if (!Navegando())
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->SetRecno(linha);
}

void TTabLinearBasF::PegarComponentes()
{
    TTabBasF::PegarComponentes();
    Pegar(this, PageControl1, "PageControl1");
    Pegar(this, ListaTabSheet, "ListaTabSheet");
    Pegar(this, CamposTabSheet, "CamposTabSheet");
    Pegar(this, RelatTabSheet, "RelatTabSheet");
    Pegar(this, ManuTabSheet, "ManuTabSheet");
    Pegar(this, StringGrid1, "StringGrid1");
    Pegar(this, NavToolBar, "NavToolBar");
    Pegar(this, ToolBar2, "ToolBar2");
    Pegar(this, FiltrarToolButton, "FiltrarToolButton");
    Pegar(this, ConfirmPanel, "ConfirmPanel");
    Pegar(this, ConfirmBitBtn, "ConfirmBitBtn");
    Pegar(this, NRegsPanel, "NRegsPanel");
    Pegar(this, NRegsLabel, "NRegsLabel");
    Pegar(this, FiltroAtivLab, "FiltroAtivLab");
    Pegar(this, FirstAction, "FirstAction");
    Pegar(this, PriorAction, "PriorAction");
    Pegar(this, NextAction, "NextAction");
    Pegar(this, LastAction, "LastAction");
    Pegar(this, ImprAction, "ImprAction");
    Pegar(this, ConfigImprAction, "ConfigImprAction");
    Pegar(this, FiltrarAction, "FiltrarAction");
    LigarAcoes();
    LigarGrade();
}

void TTabLinearBasF::LigarAcoes()
{
    DesfazerAction->OnExecute = [this](QObject *s) { DesfazerActionExecute(s); };
    ConfirmAction->OnExecute = [this](QObject *s) { ConfirmActionExecute(s); };
    CancelarAction->OnExecute = [this](QObject *s) { CancelarActionExecute(s); };
    FirstAction->OnExecute = [this](QObject *s) { FirstActionExecute(s); };
    PriorAction->OnExecute = [this](QObject *s) { PriorActionExecute(s); };
    NextAction->OnExecute = [this](QObject *s) { NextActionExecute(s); };
    LastAction->OnExecute = [this](QObject *s) { LastActionExecute(s); };
    ConfigImprAction->OnExecute = [this](QObject *s) { ConfigImprActionExecute(s); };
    PageControl1->OnChanging = [this](QObject *s, bool &pode) { PageControl1Changing(s, pode); };
    PageControl1->OnChange = [this](QObject *s) { PageControl1Change(s); };
    PageControl1->setCornerWidget(NRegsPanel, Qt::TopRightCorner);
    AoEntrar(CamposTabSheet, [this] { CamposTabSheetEnter(CamposTabSheet); });
    ConfirmBitBtn->installEventFilter(this);
}

void TTabLinearBasF::LigarGrade()
{
    StringGrid1->OnSelectCell = [this](QObject *s, int col, int row, bool &pode) {
        StringGrid1SelectCell(s, col, row, pode);
    };
    StringGrid1->OnDrawCell = [this](QObject *s, int col, int row, QPainter &pintor,
                                     const QRect &area, unsigned estado) {
        StringGrid1DrawCell(s, col, row, pintor, area, estado);
    };
    StringGrid1->OnClick = [this](QObject *s) { StringGrid1Click(s); };
    StringGrid1->OnDblClick = [this](QObject *s) { StringGrid1DblClick(s); };
    StringGrid1->OnTopLeftChanged = [this](QObject *s) { StringGrid1TopLeftChanged(s); };
    StringGrid1->OnMouseMove = [this](QObject *s, QMouseEvent *e) { StringGrid1MouseMove(s, e); };
}

void TTabLinearBasF::FormCreate(QObject *sender)
{
    TTabBasF::FormCreate(sender);
    FiltroAtivo = false;
    if (TabLinearD) {
        NavToolBar->SetImages(TabLinearD->BarraImageList16);
        NavToolBar->SetDisabledImages(TabLinearD->BarraDisImageList16);
    }
    AtualizarLigado = true;
    PerguntarExcluir = true;
    CodUltimoInserido = 0;
    ManterPagina = 0;
    Fechando = false;
    FecharAposChamador = false;
    EntrarNasTelas();
    IndicarSeAosChild();
    SelecaoNavega = true;
    SincronizarLinha = true;
    SQLQuery1->Open();
    MostrarPagina(PaginaLista);
    if (TabLinearD)
        ActionList1->SetImages(TabLinearD->BarraImageList16);
    for (TToolBar *barra : {ToolBar1, ToolBar2}) {
        barra->SetImages(SisD().ImageList16);
        barra->SetDisabledImages(SisD().DisImageList16);
    }
    PageControl1->SetImages(SisD().ImageList16);
    PrepararTab();
}

void TTabLinearBasF::FormShow(QObject *sender)
{
    TTabBasF::FormShow(sender);
    if (!Tab)
        throw EErro(QStringLiteral("A operação PrepararTab não criou a tabela da tela."));
    fechou = false;
    // A screen that is restored in the middle of an edit stays as it is.
    if (Navegando()) {
        MostrarPagina(PaginaLista);
        PreencherStringGrid();
        MostrarRegistro();
        if (isVisible() && StringGrid1->isVisible())
            StringGrid1->setFocus();
    }
    if (EditCod)
        EditCod->NumEditBR1->resize(EditCod->NumEditBR1->width(), AlturaDoEditCod);
    AtualizarLigado = true;
    if (!FiltrarAction->OnExecute)
        FiltrarAction->SetVisible(false);
}

void TTabLinearBasF::FormActivate(QObject *sender)
{
    TTabBasF::FormActivate(sender);
    editCodAplicado = nullptr;
    PegarLocaliz();
}

void TTabLinearBasF::FormDeactivate(QObject *sender)
{
    TTabBasF::FormDeactivate(sender);
}

void TTabLinearBasF::FormCloseQuery(QObject *sender, bool &pode)
{
    TTabBasF::FormCloseQuery(sender, pode);
    if (FecharAposChamador) {
        Fechando = true;
        pode = true;
        return;
    }
    if (pode && PodeConfirmar()) {
        pode = Pergunta(QStringLiteral("Existem alterações não gravadas na janela\r\n") +
                        NomeJanela() + QStringLiteral("\r\nDeseja abandoná-las?"));
    }
}

void TTabLinearBasF::FormClose(QObject *sender, TCloseAction &acao)
{
    TTabBasF::FormClose(sender, acao);
    fechou = true;
    const QPointer<TControlBasFr> quem = Chamador;
    if (!quem)
        return;
    Chamador = nullptr;
    try {
        quem->PegueNovo(CodigoAtual());
    } catch (...) {
        // The screen closes whatever becomes of the frame's own look-up.
        qWarning().noquote() << "ficha:" << TextoDoErro(std::current_exception());
    }
    LiberarBotaoDoChamador(quem);
}

void TTabLinearBasF::FormDestroy(QObject *sender)
{
    TTabBasF::FormDestroy(sender);
    ColsInfo.reset();
    Tab.reset();
}

void TTabLinearBasF::InsActionExecute(QObject *sender)
{
    TTabBasF::InsActionExecute(sender);
    AtivarInsersao();
}

/** Nothing was typed yet: the inputs show the record as it stands under the lock. */
void TTabLinearBasF::AltActionExecute(QObject *sender)
{
    TTabBasF::AltActionExecute(sender);
    const QPointer<TTabLinearBasF> viva(this);
    const bool iniciou = AtivarAlteracao();
    if (viva && iniciou && Tab->Status == TStatus::Alterando)
        MostrarRegistro();
}

void TTabLinearBasF::ExclActionExecute(QObject *sender)
{
    TTabBasF::ExclActionExecute(sender);
    // A short-cut can be faster than the idle update that switches the action off.
    if (!Tab || !Tab->PodeExcluir())
        return;
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    std::exception_ptr falha;
    QString chaves;
    try {
        TentarExcluir(chaves);
    } catch (...) {
        falha = std::current_exception();
    }
    try {
        if (viva)
            TerminarExclusao(chaves);
    } catch (...) {
        // The first failure is the one to tell.
        if (!falha)
            throw;
    }
    if (falha)
        std::rethrow_exception(falha);
}

void TTabLinearBasF::TentarExcluir(QString &chaves)
{
    const QPointer<TTabLinearBasF> viva(this);
    Tab->ExclIni();
    if (!PodeExcluir()) {
        Tab->ExclCancel();
        return;
    }
    chaves = Tab->ChavesGarantia();
    const QString onde = Tab->WhereStr();
    const bool pode = Tab->GarantiaRegistro() && (!PerguntarExcluir || PerguntaDeletar());
    if (!viva)
        return;
    if (!pode) {
        Tab->ExclCancel();
        return;
    }
    EmUmaTransacao([&] {
        AntesExcluir();
        ConexD().Executar(QStringLiteral("delete from ") + Tab->NomeTabela + onde);
        AposExcluir();
    });
}

/** Runs whatever became of the deletion. Only a lock that this table holds is given back: when it
 * was refused, another screen of this program may have it. */
void TTabLinearBasF::TerminarExclusao(const QString &chaves)
{
    if (ManterPagina == 0)
        PageControl1->SelectNextPage(false, false);
    MostrarPagina(PaginaLista);
    Tab->ExclFim();
    Tab->LiberarRegistro(chaves);
    Reler(0);
}

void TTabLinearBasF::DesfazerActionExecute(QObject *)
{
    MostrarRegistro();
}

void TTabLinearBasF::ConfirmActionExecute(QObject *)
{
    if (confirmando || !PodeConfirmar())
        return;
    const QPointer<TTabLinearBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinearBasF::confirmando, true);
    const auto ligar = qScopeGuard([viva] {
        if (viva)
            viva->AtualizarLigado = true;
    });
    AtualizarLigado = false;
    GarantirListaAberta();
    if (Tab->Status == TStatus::Inserindo)
        ConfirmarInsersao();
    else if (Tab->Status == TStatus::Alterando)
        ConfirmarAlteracao();
}

void TTabLinearBasF::ConfirmarInsersao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const bool inseriu = Inseriu();
    if (!viva)
        return;
    if (!inseriu) {
        if (Chamador)
            Close();
        return;
    }
    Tab->InsFim();
    if (AtenderChamador(CodUltimoInserido))
        return;
    Reler(0);
    IrParaCodigo(CodUltimoInserido);
}

/** With a requesting frame AltFim is left out: the record's lock goes with the table, when the
 * screen that closes here is destroyed. */
void TTabLinearBasF::ConfirmarAlteracao()
{
    const QPointer<TTabLinearBasF> viva(this);
    const int cod = CodigoAtual();
    if (!Alterou() || !viva)
        return;
    if (AtenderChamador(CodAlterado))
        return;
    Tab->AltFim();
    Reler(cod);
}

/** Hands a code to the requesting frame and closes the screen. False when there is none, or when
 * serving it failed: the screen then goes on as if there were none. */
bool TTabLinearBasF::AtenderChamador(int cod)
{
    if (!Chamador)
        return false;
    const QPointer<TTabLinearBasF> viva(this);
    try {
        const QPointer<TControlBasFr> quem = Chamador;
        quem->PegueNovo(cod);
        if (!viva)
            return true;
        LiberarBotaoDoChamador(quem);
        Chamador = nullptr;
        FecharAposChamador = true;
        Close();
        return true;
    } catch (...) {
        qWarning().noquote() << "ficha:" << TextoDoErro(std::current_exception());
        if (viva)
            FecharAposChamador = false;
        return !viva;
    }
}

/** A code combo disables its button while the screen that it opened is there. */
void TTabLinearBasF::LiberarBotaoDoChamador(TControlBasFr *chamador)
{
    if (auto *combo = qobject_cast<TComboBoxCodBasFr *>(chamador))
        combo->EditBitBtn->setEnabled(true);
}

void TTabLinearBasF::CancelarActionExecute(QObject *)
{
    if (!Tab)
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    insersaoGravada = false;
    if (Tab->Status == TStatus::Inserindo) {
        Tab->InsCancel();
    } else if (Tab->Status == TStatus::Alterando) {
        Tab->AltCancel();
        Tab->Campos->PreencherControls();
    }
    if (Chamador)
        Close();
    else
        Reler(0);
}

void TTabLinearBasF::FirstActionExecute(QObject *)
{
    Mover(&TTabelaLinear::First, Tab && Tab->PodeFirst());
}

void TTabLinearBasF::PriorActionExecute(QObject *)
{
    Mover(&TTabelaLinear::Prior, Tab && Tab->PodePrior());
}

void TTabLinearBasF::NextActionExecute(QObject *)
{
    Mover(&TTabelaLinear::Next, Tab && Tab->PodeNext());
}

void TTabLinearBasF::LastActionExecute(QObject *)
{
    Mover(&TTabelaLinear::Last, Tab && Tab->PodeLast());
}

/** A short-cut can be faster than the idle update that switches the action off. */
void TTabLinearBasF::Mover(void (TTabelaLinear::*mover)(), bool pode)
{
    if (!pode)
        return;
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    (Tab.get()->*mover)();
}

void TTabLinearBasF::ConfigImprActionExecute(QObject *)
{
    ConfigurarImpressao(this);
}

void TTabLinearBasF::PageControl1Changing(QObject *, bool &pode)
{
    if (Tab && !Tab->PodeTabChange())
        pode = false;
}

void TTabLinearBasF::PageControl1Change(QObject *)
{
    const int pagina = PageControl1->GetActivePageIndex();
    if (pagina == PaginaLista)
        StringGrid1->setFocus();
    if (Tab)
        Tab->Reservado = pagina == PaginaCampos;
}

void TTabLinearBasF::CamposTabSheetEnter(QObject *)
{
    if (focoPrometido) {
        TDBControlBasFr *frame = focoPrometido;
        focoPrometido = nullptr;
        frame->SetFocus();
        return;
    }
    FocarPrimeiroCampo();
}

void TTabLinearBasF::StringGrid1SelectCell(QObject *, int col, int row, bool &)
{
    if (SelecaoNavega)
        MoverParaLinha(row);
    PegarLocaliz();
    // The grid still stands in the column that it is about to leave.
    if (LocalizApontaAqui())
        LocalizBasF->PegarCampo(StringGrid1, col);
}

void TTabLinearBasF::StringGrid1DrawCell(QObject *, int col, int row, QPainter &pintor,
                                         const QRect &area, unsigned estado)
{
    StringGridDrawCell(StringGrid1, pintor, col, row, area, estado, nullptr, -1, 2, 1, true,
                       ColsInfo.get(), true, false, TColor(), MarcadorDaGrade());
}

void TTabLinearBasF::StringGrid1Click(QObject *)
{
    StringGrid1->Invalidate();
}

void TTabLinearBasF::StringGrid1DblClick(QObject *)
{
    AltAction->Execute();
}

void TTabLinearBasF::StringGrid1TopLeftChanged(QObject *)
{
    StringGrid1->Invalidate();
}

void TTabLinearBasF::StringGrid1MouseMove(QObject *, QMouseEvent *evento)
{
    if (evento->buttons() & Qt::LeftButton)
        StringGrid1->Invalidate();
}

TDBControlBasFr *TTabLinearBasF::PrimeiroErrado()
{
    QPointer<TDBControlBasFr> errado;
    PercorrerFilhos(CamposTabSheet, [&errado](QWidget *w) {
        if (errado || !Visivel(w))
            return false;
        auto *frame = qobject_cast<TDBControlBasFr *>(w);
        const QPointer<QWidget> vivo(w);
        if (frame && !frame->ValorAceitavel()) {
            errado = vivo ? frame : nullptr;
            return false;
        }
        return !vivo.isNull();
    });
    return errado;
}

TNumEditBRCodBasFr *TTabLinearBasF::TemEditCod()
{
    TNumEditBRCodBasFr *achado = nullptr;
    PercorrerFilhos(this, [&achado](QWidget *w) {
        if (!achado)
            achado = qobject_cast<TNumEditBRCodBasFr *>(w);
        return !achado;
    });
    return achado;
}

void TTabLinearBasF::IndicarSeAosChild()
{
    PercorrerFilhos(this, [this](QWidget *w) {
        if (auto *frame = qobject_cast<TDBControlBasFr *>(w)) {
            frame->SetFormTabela(this);
            return false;
        }
        return !qobject_cast<TFrame *>(w) || qobject_cast<TBasFr *>(w);
    });
}

/**
 * A press on the confirm button takes the focus away from the input that has it, which may refuse
 * its value and take the focus back. That press must not confirm as well: the user has just been
 * told to correct the value, and an alteration would be abandoned.
 */
bool TTabLinearBasF::eventFilter(QObject *objeto, QEvent *evento)
{
    const bool aperto =
        evento->type() == QEvent::MouseButtonPress || evento->type() == QEvent::MouseButtonDblClick;
    if (objeto == ConfirmBitBtn && aperto && FocoDentroDe(CamposTabSheet))
        return true;
    return TTabBasF::eventFilter(objeto, evento);
}

bool TTabLinearBasF::Navegando() const
{
    return Tab && Tab->Status == TStatus::Ocioso;
}

int TTabLinearBasF::CodigoAtual() const
{
    return Tab && Tab->Campos->Count() > 0 ? Tab->Campos->Campos(0)->AsInteger() : 0;
}

/**
 * Stands on the first record with a code, or past the last one: what walking forward from the first
 * record with Next comes to, without taking and showing every record on the way.
 */
void TTabLinearBasF::IrParaCodigo(int cod)
{
    const int registros = SQLQuery1->RecordCount();
    if (registros == 0 || Tab->Campos->Count() == 0) {
        Tab->First();
        return;
    }
    TCampo *codigo = Tab->Campos->Campos(0);
    SQLQuery1->First();
    for (int n = 1; n <= registros; ++n) {
        codigo->PegarValor();
        if (codigo->AsInteger() == cod) {
            Tab->SetRecno(n);
            return;
        }
        SQLQuery1->MoveBy(1);
    }
    Tab->Last();
    Tab->Fim = true;
}

/** Stands on the first record for which no input could undo anything, or past the last one; only
 * the fields that can be undone are looked at on the way. */
void TTabLinearBasF::PararNoQueNaoDesfaz()
{
    std::vector<TCampo *> campos;
    for (int i = 0; i < Tab->Campos->Count(); ++i) {
        TCampo *campo = Tab->Campos->Campos(i);
        const TControlBasFr *frame = campo->ControlInfo ? campo->ControlInfo->Frame() : nullptr;
        if (frame && frame->PodeDesfazer())
            campos.push_back(campo);
    }
    const int registros = SQLQuery1->RecordCount();
    SQLQuery1->First();
    for (int n = 1; n <= registros; ++n) {
        bool desfaz = false;
        for (TCampo *campo : campos) {
            campo->PegarValor();
            desfaz = desfaz || campo->CanUndo();
        }
        if (!desfaz) {
            Tab->SetRecno(n);
            return;
        }
        SQLQuery1->MoveBy(1);
    }
    Tab->Last();
    Tab->Fim = true;
}

/** After a failed re-reading the list is closed: opens it again, on the same record. */
void TTabLinearBasF::GarantirListaAberta()
{
    if (SQLQuery1->Active())
        return;
    const QString chaves = Tab->ChavesGarantia();
    ReabrirLista();
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
    Tab->LocalizarPelaChave(chaves);
    if (Tab->Status == TStatus::Alterando && Tab->ChavesGarantia() != chaves)
        throw EErro(QStringLiteral("O registro em alteração não está mais na lista."));
}

/** The focus of the page that goes is handed on, so that the keyboard goes on with the page that
 * comes. */
void TTabLinearBasF::MostrarPagina(int indice)
{
    if (Tab)
        Tab->Reservado = indice == PaginaCampos;
    const bool tinhaFoco = FocoDentroDe(PageControl1);
    PageControl1->SetActivePageIndex(indice);
    QWidget *pagina = PageControl1->GetActivePage();
    if (!isVisible() || (tinhaFoco && FocoDentroDe(pagina)))
        return;
    if (indice == PaginaCampos)
        FocarPrimeiroCampo();
    else if (tinhaFoco)
        StringGrid1->setFocus();
}

void TTabLinearBasF::FocarPrimeiroCampo()
{
    QWidget *primeiro = nullptr;
    PercorrerFilhos(CamposTabSheet, [&primeiro](QWidget *w) {
        if (!primeiro && w->property("tag").toInt() == TagDoPrimeiro && !qobject_cast<QLabel *>(w))
            primeiro = w;
        return !primeiro;
    });
    if (primeiro)
        Focar(primeiro);
}

/** Gives the focus to an input that refuses its value, past the page's own choice of input. */
void TTabLinearBasF::FocarErrado(TDBControlBasFr *errado)
{
    if (!FocoDentroDe(CamposTabSheet))
        focoPrometido = errado;
    errado->SetFocus();
}

void TTabLinearBasF::MostrarRegistroDepois()
{
    QMetaObject::invokeMethod(
        this,
        [this] {
            Protegido([this] {
                if (Navegando())
                    MostrarRegistro();
            });
        },
        Qt::QueuedConnection);
}

void TTabLinearBasF::MostrarRegistro()
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->Campos->PreencherControls();
}

std::vector<Variant> TTabLinearBasF::ValoresAtuais() const
{
    std::vector<Variant> valores;
    for (int i = 0; i < Tab->Campos->Count(); ++i)
        valores.push_back(Tab->Campos->Campos(i)->Valor);
    return valores;
}

/** Shows what others changed in the record since it was last read, or this alteration would write
 * the old values back. The input in which the user is typing stays. */
void TTabLinearBasF::MostrarOQueMudou(const std::vector<Variant> &antes)
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    for (int i = 0; i < Tab->Campos->Count(); ++i) {
        TCampo *campo = Tab->Campos->Campos(i);
        const QWidget *controle = campo->ControlInfo ? campo->ControlInfo->Control() : nullptr;
        if (controle && !(campo->Valor == antes[size_t(i)]) && !FocoDentroDe(controle))
            campo->PreencherControl();
    }
}

void TTabLinearBasF::AtualizarRegistros()
{
    const int registros = SQLQuery1->RecordCount();
    if (registros == registrosMostrados)
        return;
    registrosMostrados = registros;
    NRegsLabel->setText(TextoDosRegistros(registros));
}

void TTabLinearBasF::AtualizarFiltro()
{
    MudarVisivel(FiltroAtivLab, FiltroAtivo);
    if (FiltrarToolButton->GetDown() != FiltroAtivo)
        FiltrarToolButton->SetDown(FiltroAtivo);
}

void TTabLinearBasF::AtualizarAcoes()
{
    bool mudou = MudarEnabled(LocalizAction, PodeLocalizar());
    mudou |= MudarEnabled(ImprAction, PodeImprimir());
    mudou |= MudarEnabled(InsAction, Tab->PodeInserir());
    mudou |= MudarEnabled(AltAction, Tab->PodeAlterar());
    mudou |= MudarEnabled(ExclAction, Tab->PodeExcluir());
    mudou |=
        MudarEnabled(DesfazerAction, Tab->Status != TStatus::Inserindo && Tab->Campos->CanUndo());
    mudou |= MudarEnabled(FirstAction, Tab->PodeFirst());
    mudou |= MudarEnabled(PriorAction, Tab->PodePrior());
    mudou |= MudarEnabled(NextAction, Tab->PodeNext());
    mudou |= MudarEnabled(LastAction, Tab->PodeLast());
    if (mudou)
        ToolBar1->Ajustar();
}

/** The table stands where it should: the grid follows without moving it, which would show the
 * record again over what is being typed. */
void TTabLinearBasF::SincronizarGrade()
{
    if (!SincronizarLinha)
        return;
    const int linha = Tab->RecNo == -1 ? 1 : Tab->RecNo;
    if (StringGrid1->GetRow() == linha)
        return;
    const TFlagGuarda parada(this, &TTabLinearBasF::SelecaoNavega, false);
    StringGrid1->SetRow(linha);
}

void TTabLinearBasF::AtualizarConfirmacao()
{
    const bool pode = PodeConfirmar();
    MudarVisivel(ConfirmPanel, pode);
    if (CancelarAction->GetVisible() != pode)
        CancelarAction->SetVisible(pode);
}

void TTabLinearBasF::AtualizarEditCod()
{
    if (Fechando || !EditCod)
        return;
    const bool somenteLeitura = Tab->Status != TStatus::Inserindo;
    if (EditCod == editCodAplicado && somenteLeitura == somenteLeituraAplicado)
        return;
    editCodAplicado = EditCod;
    somenteLeituraAplicado = somenteLeitura;
    if (EditCod->NumEditBR1->isReadOnly() == somenteLeitura)
        return;
    EditCod->NumEditBR1->setReadOnly(somenteLeitura);
    EditCod->Atualizar();
}

void TTabLinearBasF::EntrarNasTelas()
{
    Telas().push_back(this);
    editCodDaTela = TemEditCod();
    EditCod = editCodDaTela;
}

void TTabLinearBasF::SairDasTelas()
{
    std::vector<TTabLinearBasF *> &telas = Telas();
    const bool ultima = !telas.empty() && telas.back() == this;
    std::erase(telas, this);
    if (ultima)
        EditCod = telas.empty() ? nullptr : telas.back()->editCodDaTela.data();
}

} // namespace ficha
