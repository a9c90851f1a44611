#include "forms/UTabLinFiltroBasF.h"

#include "forms/UApoioForms.h"
#include "forms/UFiguraDoFiltro.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TMemo.h"
#include "platform/toolkit/TPageControl.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TScrollBox.h"
#include "platform/toolkit/TSplitter.h"
#include "platform/toolkit/TStringGrid.h"
#include "platform/toolkit/TToolBar.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QScopedValueRollback>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR(TTabLinFiltroBasF)

int TTabLinFiltroBasF::FiltroLargura = 190;

namespace
{

constexpr int LarguraAoAbrir = 190;
/** What a closed panel shows besides its strip. */
constexpr int MargensFechado = 4;
constexpr int AlturaMinimaDoStatus = 19;

QString FiguraDoFiltro(bool aberto)
{
    return aberto ? QStringLiteral("..\\img\\botoes\\filtro fechar.jpg")
                  : QStringLiteral("..\\img\\botoes\\filtro abrir.jpg");
}

bool EhEnter(const QEvent *evento)
{
    if (evento->type() != QEvent::KeyPress)
        return false;
    const auto *tecla = static_cast<const QKeyEvent *>(evento);
    const bool enter = tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter;
    return enter && (tecla->modifiers() & ~Qt::KeypadModifier) == 0;
}

bool SoltouDentro(const QWidget *w, const QEvent *evento)
{
    if (evento->type() != QEvent::MouseButtonRelease)
        return false;
    const auto *mouse = static_cast<const QMouseEvent *>(evento);
    return mouse->button() == Qt::LeftButton && w->rect().contains(mouse->pos());
}

} // namespace

TTabLinFiltroBasF::TTabLinFiltroBasF(TChave chave)
    : TTabLinearBasF(chave), FiltroImageList(new TImageList(this))
{
    FiltroImageList->setObjectName(QStringLiteral("FiltroImageList"));
    FiltroImageList->AddSvg(0, QStringLiteral("filtro-zerar"));
    FiltroImageList->AddSvg(1, QStringLiteral("filtro"));
    Ligar(SQLQuery1, &TDataSet::BeforeOpen, this, [this] {
        textoPreparado = false;
        SQLQuery1BeforeOpen(SQLQuery1);
        textoPreparado = true;
    });
}

void TTabLinFiltroBasF::Atualizar()
{
    TTabLinearBasF::Atualizar();
    AjustarAlturaDoStatus();
}

bool TTabLinFiltroBasF::AtivarAlteracao()
{
    // What the screen itself writes into its inputs asks too, and must not undo the filter.
    if (!PodeIniciarEdicao() || liberando || !AtualizarLigado)
        return TTabLinearBasF::AtivarAlteracao();
    const QPointer<TTabLinFiltroBasF> viva(this);
    const TFlagGuarda guarda(this, &TTabLinFiltroBasF::liberando, true);
    return LiberarMantendoRegistro() && viva && TTabLinearBasF::AtivarAlteracao();
}

bool TTabLinFiltroBasF::AtivarInsersao()
{
    if (PodeIniciarEdicao() && !liberando) {
        const QPointer<TTabLinFiltroBasF> viva(this);
        const TFlagGuarda guarda(this, &TTabLinFiltroBasF::liberando, true);
        FiltroZerarAct->Execute();
        if (!viva || !textoPreparado)
            return true;
    }
    return TTabLinearBasF::AtivarInsersao();
}

void TTabLinFiltroBasF::SetFiltroAberto(bool aberto)
{
    FiltroAberto = aberto;
    FiltroImage->setToolTip(aberto ? QStringLiteral("Fechar o filtro")
                                   : QStringLiteral("Abrir o filtro"));
    const QPixmap figura = LerFiguraDoFiltro(FiguraDoFiltro(aberto));
    if (figura.isNull())
        FiltroImage->setText(aberto ? QStringLiteral("<") : QStringLiteral(">"));
    else
        FiltroImage->setPixmap(figura);
    StringGrid1->Invalidate();
}

void TTabLinFiltroBasF::PrepararSQL() {}

void TTabLinFiltroBasF::AtualizarFiltroPanel() {}

void TTabLinFiltroBasF::ZerarFiltro() {}

void TTabLinFiltroBasF::PrepTit()
{
    if (StringGrid1->GetRowCount() < 2)
        StringGrid1->SetRowCount(2);
}

void TTabLinFiltroBasF::PegarComponentes()
{
    TTabLinearBasF::PegarComponentes();
    Pegar(this, FiltroStatusLabel, "FiltroStatusLabel");
    Pegar(this, FiltroPanel, "FiltroPanel");
    Pegar(this, FiltroBotPanel, "FiltroBotPanel");
    Pegar(this, FiltroImage, "FiltroImage");
    Pegar(this, Panel3, "Panel3");
    Pegar(this, ScrollBox1, "ScrollBox1");
    Pegar(this, FiltroFundoImage, "FiltroFundoImage");
    Pegar(this, ToolBar4, "ToolBar4");
    Pegar(this, Splitter1, "Splitter1");
    Pegar(this, FiltroActionList, "FiltroActionList");
    Pegar(this, FiltroZerarAct, "FiltroZerarAct");
    Pegar(this, FitroExecAct, "FitroExecAct");
    FiltroActionList->SetImages(FiltroImageList);
    ToolBar4->SetImages(FiltroImageList);
    FiltroZerarAct->OnExecute = [this](QObject *s) { FiltroZerarActExecute(s); };
    FitroExecAct->OnExecute = [this](QObject *s) { FitroExecActExecute(s); };
    FiltroPanel->OnClick = [this](QObject *s) { FiltroPanelClick(s); };
    Splitter1->OnMoved = [this](QObject *s) { Splitter1Moved(s); };
    FiltroBotPanel->setCursor(Qt::PointingHandCursor);
    FiltroFundoImage->setAttribute(Qt::WA_TransparentForMouseEvents);
    for (QWidget *w : {static_cast<QWidget *>(FiltroImage), static_cast<QWidget *>(FiltroPanel),
                       static_cast<QWidget *>(ScrollBox1)})
        w->installEventFilter(this);
}

void TTabLinFiltroBasF::FormCreate(QObject *sender)
{
    FiltroLargura = LarguraAoAbrir;
    AtualizarFiltroPanel();
    ZerarFiltro();
    TTabLinearBasF::FormCreate(sender);
    SetFiltroAberto(true);
    PrepTit();
}

void TTabLinFiltroBasF::FormShow(QObject *sender)
{
    TTabLinearBasF::FormShow(sender);
    FiltroFundoImage->lower();
    PrepararEntradas();
}

void TTabLinFiltroBasF::FormClose(QObject *sender, TCloseAction &acao)
{
    TTabLinearBasF::FormClose(sender, acao);
}

void TTabLinFiltroBasF::ExclActionExecute(QObject *sender)
{
    const QPointer<TTabLinFiltroBasF> viva(this);
    if (PodeIniciarEdicao() && !liberando) {
        const TFlagGuarda guarda(this, &TTabLinFiltroBasF::liberando, true);
        if (!LiberarMantendoRegistro() || !viva)
            return;
        // The question is about the record as it now stands.
        MostrarRegistro();
    }
    TTabLinearBasF::ExclActionExecute(sender);
}

void TTabLinFiltroBasF::SQLQuery1BeforeOpen(QObject *)
{
    PrepararSQL();
}

void TTabLinFiltroBasF::FiltroZerarActExecute(QObject *)
{
    if (!PodeIniciarEdicao())
        return;
    // The descendant's steps may let in what closes the screen.
    const QPointer<TTabLinFiltroBasF> viva(this);
    AtualizarFiltroPanel();
    if (viva)
        ZerarFiltro();
    if (viva)
        FitroExecAct->Execute();
}

void TTabLinFiltroBasF::FitroExecActExecute(QObject *)
{
    if (!PodeIniciarEdicao())
        return;
    const TFlagGuarda ligado(static_cast<TTabLinearBasF *>(this), &TTabLinearBasF::AtualizarLigado,
                             false);
    ReabrirLista();
    Reler(0);
}

void TTabLinFiltroBasF::FiltroImageClick(QObject *)
{
    SetFiltroAberto(!FiltroAberto);
    SetLarguraDoPainel(FiltroAberto ? FiltroLargura : LarguraFechada());
    StringGrid1->Invalidate();
}

void TTabLinFiltroBasF::FiltroPanelClick(QObject *)
{
    SetFiltroAberto(true);
}

void TTabLinFiltroBasF::Splitter1Moved(QObject *)
{
    SetFiltroAberto(true);
    const int menor = 2 * LarguraFechada();
    if (menor > FiltroPanel->width())
        SetLarguraDoPainel(menor);
}

bool TTabLinFiltroBasF::eventFilter(QObject *objeto, QEvent *evento)
{
    if (objeto == FiltroImage && SoltouDentro(FiltroImage, evento)) {
        Protegido([this] { FiltroImageClick(FiltroImage); });
        return true;
    }
    if (EhEnter(evento) && EnterExecuta(objeto)) {
        Protegido([this] { FitroExecAct->Execute(); });
        return true;
    }
    if (objeto == FiltroPanel && evento->type() == QEvent::Resize)
        MostrarCorpo();
    return TTabLinearBasF::eventFilter(objeto, evento);
}

/**
 * Executes "Liberar" and stands on the same record again: the re-reading looks for its code only,
 * and stops at the list's last record when that is gone. Answers false, and the user is told, when
 * another record would be current. The inputs keep what the user has entered; the others show what
 * somebody changed in the record meanwhile.
 */
bool TTabLinFiltroBasF::LiberarMantendoRegistro()
{
    const QPointer<TTabLinFiltroBasF> viva(this);
    auto recusada = qScopeGuard([viva] {
        if (viva)
            viva->MostrarRegistroDepois();
    });
    const bool tinha = Tab->RecNo != -1;
    const QString chaves = tinha ? Tab->ChavesGarantia() : QString();
    const std::vector<Variant> antes = ValoresAtuais();
    {
        const TFlagGuarda manter(static_cast<TTabLinearBasF *>(this),
                                 &TTabLinFiltroBasF::mostrarAoReler, false);
        FiltroZerarAct->Execute();
    }
    if (!viva || !PodeIniciarEdicao() || !textoPreparado)
        return false;
    if (tinha && Tab->ChavesGarantia() != chaves) {
        const QScopedValueRollback<bool> controles(Tab->AtualizarControles, false);
        Tab->LocalizarPelaChave(chaves);
    }
    const bool tem = Tab->RecNo != -1;
    if (tem == tinha && (!tinha || Tab->ChavesGarantia() == chaves)) {
        MostrarOQueMudou(antes);
        recusada.dismiss();
        return true;
    }
    MostrarRegistro();
    MensagemAviso(tinha ? QStringLiteral("O registro não está mais na lista.\r\n"
                                         "O filtro foi liberado: escolha outro registro.")
                        : QStringLiteral("Nenhum registro estava escolhido.\r\n"
                                         "O filtro foi liberado: escolha o registro na lista."),
                  0);
    return false;
}

int TTabLinFiltroBasF::LarguraFechada() const
{
    return FiltroBotPanel->width() + MargensFechado;
}

void TTabLinFiltroBasF::SetLarguraDoPainel(int pixels)
{
    FiltroPanel->resize(pixels, FiltroPanel->height());
}

/** The inputs of a closed panel cannot be seen: Tab must not lead to them. */
void TTabLinFiltroBasF::MostrarCorpo()
{
    const bool cabe = FiltroPanel->width() > LarguraFechada();
    if (cabe == EstaVisivel(Panel3))
        return;
    if (!cabe && FocoDentroDe(Panel3))
        StringGrid1->setFocus();
    Panel3->setVisible(cabe);
}

void TTabLinFiltroBasF::AjustarAlturaDoStatus()
{
    const int precisa = std::max(AlturaMinimaDoStatus,
                                 FiltroStatusLabel->heightForWidth(FiltroStatusLabel->width()));
    if (FiltroStatusLabel->isVisible() && FiltroStatusLabel->height() != precisa)
        FiltroStatusLabel->resize(FiltroStatusLabel->width(), precisa);
}

/** Tab leads through the filter's inputs, in their own order, and from the last one to the list at
 * their right. Enter is looked at before the input has it: a number frame would only go on to the
 * next one. */
void TTabLinFiltroBasF::PrepararEntradas()
{
    QWidgetList paradas;
    for (QWidget *w = nextInFocusChain(); w && w != this; w = w->nextInFocusChain()) {
        if (!ScrollBox1->isAncestorOf(w) || !(w->focusPolicy() & Qt::TabFocus))
            continue;
        paradas << w;
        w->installEventFilter(this);
    }
    paradas << StringGrid1;
    for (qsizetype i = 1; i < paradas.size(); ++i)
        setTabOrder(paradas[i - 1], paradas[i]);
}

/** Where Enter has a meaning of its own, it keeps it: a new line, a press of the button. */
bool TTabLinFiltroBasF::EnterExecuta(QObject *objeto) const
{
    const auto *w = qobject_cast<QWidget *>(objeto);
    return w && (w == ScrollBox1 || ScrollBox1->isAncestorOf(w)) &&
           !qobject_cast<const TMemo *>(w) && !qobject_cast<const QPushButton *>(w);
}

} // namespace ficha
