#include "forms/UTabLinearBasF.h"

#include "forms/UApoioForms.h"
#include "forms/UImpressora.h"
#include "forms/UTabLinearD.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UNumEditBRCodBasFr.h"
#include "platform/core/Erros.h"
#include "platform/core/FormasSimples.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/support/SisD.h"
#include "platform/support/StringGridDrawCell.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QApplication>
#include <QDebug>
#include <QLabel>
#include <QMouseEvent>
#include <QScopedValueRollback>
#include <QTimer>

/* The screen itself: creation, enabling rules, list, pages, search, closing. The edit cycle is in
 * UTabLinearBasFEdicao.cpp. */

namespace ficha
{

FICHA_REGISTRAR(TTabLinearBasF)

QPointer<TNumEditBRCodBasFr> TTabLinearBasF::EditCod;

namespace
{

constexpr int TagDoPrimeiro = 1;
constexpr int AlturaDoEditCod = 20;

/** The living screens in the order of their creation. */
std::vector<TTabLinearBasF *> &Telas()
{
    static std::vector<TTabLinearBasF *> telas;
    return telas;
}

void MudarVisivel(QWidget *w, bool visivel)
{
    if (EstaVisivel(w) != visivel)
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

QString TextoDosRegistros(int n)
{
    if (n == 0)
        return QStringLiteral("Nenhum registro");
    if (n == 1)
        return QStringLiteral("1 registro");
    return QString::number(n) + QStringLiteral(" registros");
}

} // namespace

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
    QString texto = TTabBasF::TextoCaption();
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
    if (!Tab) {
        TTabBasF::Reler(cod);
        return;
    }
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    if (cod == 0)
        cod = CodigoAtual();
    ReabrirLista();
    // Only the record on which the walk ends is shown; showing it once is showing it.
    const QScopedValueRollback<bool> controles(Tab->AtualizarControles,
                                               FormasSimples() && mostrarAoReler);
    PreencherStringGrid();
    IrParaCodigo(cod);
    if (mostrarAoReler)
        Tab->Campos->PreencherControls();
}

void TTabLinearBasF::PreencherStringGrid()
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->PreencherStringGrid(StringGrid1);
    ColsInfo = std::make_unique<TGridColsInfo>(*StringGrid1);
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
    RelerSeFechada();
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
    // A screen that is shown again in the middle of an edit stays as it is.
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
    // An edit that the user has agreed to abandon is not asked for its value on the way out.
    QWidget *foco = QApplication::focusWidget();
    if (acao != caNone && foco && isAncestorOf(foco))
        foco->clearFocus();
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

void TTabLinearBasF::DesfazerActionExecute(QObject *)
{
    MostrarRegistro();
}

/** A code combo disables its button while the screen that it opened is there. */
void TTabLinearBasF::LiberarBotaoDoChamador(TControlBasFr *chamador)
{
    if (auto *combo = qobject_cast<TComboBoxCodBasFr *>(chamador))
        combo->EditBitBtn->setEnabled(true);
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
    RelerSeFechada();
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
    if (AtualizarLigado && SelecaoNavega)
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
    if (objeto == ConfirmBitBtn && aperto && (ConfirmBitBtn->focusPolicy() & Qt::ClickFocus) &&
        window()->focusWidget() != ConfirmBitBtn)
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
    if (FormasSimples()) {
        Tab->First();
        while (!Tab->Fim && CodigoAtual() != cod)
            Tab->Next();
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

void TTabLinearBasF::MostrarPagina(TPagina pagina)
{
    if (Tab)
        Tab->Reservado = pagina == PaginaCampos;
    if (PageControl1->GetActivePageIndex() == pagina)
        return;
    PageControl1->SetActivePageIndex(pagina);
    if (isVisible())
        FocarPagina();
}

/** Brings the focus into the page that is shown, unless it is there already. */
void TTabLinearBasF::FocarPagina()
{
    QWidget *pagina = PageControl1->GetActivePage();
    if (FocoDentroDe(pagina))
        return;
    if (pagina == CamposTabSheet)
        FocarPrimeiroCampo();
    else if (pagina == ListaTabSheet)
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

void TTabLinearBasF::MostrarRegistro()
{
    const TFlagGuarda ligado(this, &TTabLinearBasF::AtualizarLigado, false);
    Tab->Campos->PreencherControls();
}

void TTabLinearBasF::AtualizarRegistros()
{
    const int registros = SQLQuery1->RecordCount();
    // A list that could not be read again still shows its rows.
    if (registros == registrosMostrados || !SQLQuery1->Active())
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
    if (!pode && EstaVisivel(ConfirmPanel) && FocoDentroDe(ConfirmPanel))
        FocarPagina();
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
