#include "grids/USelectFr.h"

#include "platform/edits/TClientManager.h"
#include "platform/support/TDBGrid.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/Teclas.h"

#include <QApplication>
#include <QScreen>
#include <QTimer>

#include <algorithm>
#include <utility>

namespace ficha
{

FICHA_REGISTRAR(TSelectFr)

namespace
{

constexpr int EsperaDaRolagem = 333; // milliseconds
constexpr int FolgaDaTela = 10;
constexpr int FolgaAbaixo = 1, FolgaAcima = 10;
constexpr QChar Enter(u'\r'), Escape(u'\x1b');

} // namespace

/** What an edit tells the list that it searches in. Its child; made once for each edit, as handlers
 * of keys cannot be taken back. */
class TSelectFr::TLigacao : public QObject
{
public:
    static TLigacao *De(TLabeledEdit *edit)
    {
        for (QObject *filho : edit->children()) {
            if (auto *ligacao = dynamic_cast<TLigacao *>(filho))
                return ligacao;
        }
        return new TLigacao(edit);
    }

    ~TLigacao() override
    {
        if (lista)
            lista->hide(); // nobody could hide it any more
    }

    QPointer<TSelectFr> lista;

private:
    explicit TLigacao(TLabeledEdit *edit) : QObject(edit)
    {
        AoTeclaDescer(edit, [this, edit](int &tecla, Qt::KeyboardModifiers estado) {
            if (lista)
                lista->BuscaLabeledEditKeyDown(edit, tecla, estado);
        });
        AoTeclar(edit, [this, edit](QChar &key) {
            if (lista)
                lista->BuscaLabeledEditKeyPress(edit, key);
        });
        AoSair(edit, [this] {
            if (lista)
                lista->SaiuDaBusca();
        });
        TomarEsc(edit);
    }

    /** Esc of the screen (a maintenance screen gives the whole alteration up with it) waits until
     * the list is hidden: the nearest short-cut wins. */
    void TomarEsc(TLabeledEdit *edit)
    {
        auto *acao = new TAction(new TActionList(edit));
        acao->SetShortCut(QKeySequence(Qt::Key_Escape));
        acao->OnUpdate = [this, acao](QObject *) { acao->SetEnabled(lista && !lista->isHidden()); };
        acao->OnExecute = [this, edit](QObject *) {
            QChar esc = Escape;
            if (lista)
                lista->BuscaLabeledEditKeyPress(edit, esc);
        };
    }
};

TSelectFr::TSelectFr(TChave chave) : TFrame(chave) {}

void TSelectFr::Create(QWidget *owner)
{
    TFrame::Create(owner);
    hide();
    // A click on any part of the list gives the focus to the edit, or leaves it there.
    setFocusPolicy(Qt::ClickFocus);
    ExibirAoDigitar = true;
    Posicionado = false;
    Carregado = false;
    SoDigMostraLista = false;
    LarguraTela = true;
    Processando = false;
}

void TSelectFr::FiltrarSoDig(const QString &) {}

void TSelectFr::PosicionarSoDig(const QString &) {}

void TSelectFr::FiltrarTexto(const QString &) {}

void TSelectFr::PosicionarTexto(const QString &) {}

void TSelectFr::SQLDataSet1BeforeScroll(TDataSet *) {}

void TSelectFr::SQLDataSet1AfterOpen(TDataSet *)
{
    ScrolllTimer->start();
}

void TSelectFr::SQLDataSet1AfterScroll(TDataSet *)
{
    ScrolllTimer->start();
}

void TSelectFr::BuscaLabeledEditKeyPress(QObject *, QChar &key)
{
    key = CharSemAcento(key);
    if (key == Escape && !isHidden()) {
        key = QChar();
        hide();
    } else if (key == Enter) {
        key = QChar();
        PressionouEnter();
    } else {
        key = CharSemAcento(key); // a second time, deliberately: a plain letter stays as it is
    }
}

void TSelectFr::BuscaLabeledEditClick(QObject *)
{
    if (BuscaLabeledEdit && !BuscaLabeledEdit->isReadOnly())
        Exibir();
}

bool TSelectFr::Exibir()
{
    if (!isHidden())
        return false;
    show();
    const QPointer<TSelectFr> vivo(this);
    try {
        if (Posicionado) {
            ClientManager1->Atualizar();
        } else {
            PorNoLugar();
            CarregarUmaVez();
            if (vivo && LarguraTela)
                resize(screen()->geometry().width() - FolgaDaTela, height());
            if (vivo)
                Posicionado = true;
        }
    } catch (...) {
        // Without its rows it would only be in the way; the next key tries again.
        if (vivo)
            hide();
        throw;
    }
    if (vivo)
        raise();
    return true;
}

bool TSelectFr::PodeEnviar()
{
    return true;
}

void TSelectFr::PegarBuscaLabeledEdit(TLabeledEdit *edit)
{
    if (BuscaLabeledEdit && BuscaLabeledEdit != edit)
        TLigacao::De(BuscaLabeledEdit)->lista = nullptr;
    BuscaLabeledEdit = edit;
    setFocusProxy(edit);
    if (!edit)
        return;
    TLigacao *ligacao = TLigacao::De(edit);
    if (ligacao->lista && ligacao->lista != this)
        ligacao->lista->PegarBuscaLabeledEdit(nullptr);
    ligacao->lista = this;
    edit->OnChange = [ligacao](QObject *sender) {
        if (ligacao->lista)
            ligacao->lista->BuscaLabeledEditChange(sender);
    };
    edit->OnClick = [ligacao](QObject *sender) {
        if (ligacao->lista)
            ligacao->lista->BuscaLabeledEditClick(sender);
    };
}

void TSelectFr::Buscar(const QString &texto)
{
    if (PosRadioButton->GetChecked())
        Posicionar(texto);
    else
        Filtrar(texto);
}

void TSelectFr::Filtrar(const QString &texto)
{
    if (!TemDataSet())
        return;
    if (texto.isEmpty()) {
        ClientManager1->CDS1->SetFiltered(false);
        return;
    }
    const QPointer<TSelectFr> vivo(this);
    if (EhSoDig(texto))
        FiltrarSoDig(texto);
    else
        FiltrarTexto(texto);
    if (vivo && TemDataSet())
        ClientManager1->CDS1->SetFiltered(true);
}

void TSelectFr::Posicionar(const QString &texto)
{
    if (!TemDataSet())
        return;
    const QPointer<TSelectFr> vivo(this);
    ClientManager1->CDS1->SetFiltered(false);
    if (!vivo || !TemDataSet())
        return;
    if (texto.isEmpty())
        ClientManager1->CDS1->First();
    else if (EhSoDig(texto))
        PosicionarSoDig(texto);
    else
        PosicionarTexto(texto);
}

void TSelectFr::PegarComponentes()
{
    TFrame::PegarComponentes();
    Pegar(this, FundoPanel, "FundoPanel");
    Pegar(this, DBGrid1, "DBGrid1");
    Pegar(this, BasePanel, "BasePanel");
    Pegar(this, BusPanel, "BusPanel");
    Pegar(this, PosRadioButton, "PosRadioButton");
    Pegar(this, FilRadioButton, "FilRadioButton");
    ImageList8x8 = new TImageList(this, QSize(8, 8));
    ImageList8x8->setObjectName(QStringLiteral("ImageList8x8"));
    ImageList8x8->AddSvg(8, QStringLiteral("seta-crescente"));
    ImageList8x8->AddSvg(9, QStringLiteral("seta-decrescente"));
    ScrolllTimer = new QTimer(this);
    ScrolllTimer->setObjectName(QStringLiteral("ScrolllTimer"));
    ScrolllTimer->setInterval(EsperaDaRolagem);
    Ligar(ScrolllTimer, &QTimer::timeout, this, [this] { ScrolllTimerTimer(ScrolllTimer); });
    IdFTP1 = new QObject(this);
    IdFTP1->setObjectName(QStringLiteral("IdFTP1"));
    CriarLista();
    LigarGrade();
    for (TRadioButton *modo : {PosRadioButton, FilRadioButton}) {
        // A click on the mode that is checked already changes nothing and gives the focus back too.
        Ligar(modo, &QAbstractButton::clicked, this, [this] {
            if (!isHidden())
                FocarBusca();
        });
    }
    PosRadioButton->OnClick = [this](QObject *sender) { PosRadioButtonClick(sender); };
    FilRadioButton->OnClick = [this](QObject *sender) { FilRadioButtonClick(sender); };
    AoSair(this, [this] { SaiuDaBusca(); });
}

void TSelectFr::BuscaLabeledEditChange(QObject *)
{
    if (Processando)
        return;
    const QString texto = TextoDaBusca();
    if (EhSoDig(texto) && !SoDigMostraLista) {
        hide();
        return;
    }
    const QPointer<TSelectFr> vivo(this);
    if (ExibirAoDigitar)
        Exibir();
    if (vivo)
        Buscar(texto);
}

void TSelectFr::BuscaLabeledEditKeyDown(QObject *, int &tecla, Qt::KeyboardModifiers estado)
{
    const bool soAlt = (estado & ~Qt::KeypadModifier) == Qt::AltModifier;
    const bool linha = tecla == VK_PRIOR || tecla == VK_NEXT || tecla == VK_UP || tecla == VK_DOWN;
    const bool coluna = soAlt && (tecla == VK_LEFT || tecla == VK_RIGHT);
    if (!linha && !coluna)
        return;
    const int daGrade = std::exchange(tecla, 0);
    const QPointer<TDBGrid> grid(DBGrid1);
    if (coluna || !Exibir())
        EnviarTecla(grid, daGrade);
}

void TSelectFr::PressionouEnter()
{
    const QPointer<TSelectFr> vivo(this);
    if (Processando || !PodeEnviar() || !vivo)
        return;
    struct TGuarda {
        QPointer<TSelectFr> lista;
        ~TGuarda()
        {
            if (lista)
                lista->Processando = false;
        }
    } const guarda{this};
    Processando = true;
    FocarBusca();
    if (!vivo)
        return;
    const QString texto = TextoDaBusca();
    if (!isHidden()) {
        if (TemLinhas()) {
            hide();
            Enviar();
        }
    } else if (texto.isEmpty()) {
        Exibir();
    } else if (EhSoDig(texto)) {
        CarregarUmaVez();
        if (vivo)
            Buscar(texto);
        if (vivo && TemLinhas())
            Enviar();
    }
}

void TSelectFr::PosRadioButtonClick(QObject *)
{
    MudarModo(&TSelectFr::Posicionar);
}

void TSelectFr::FilRadioButtonClick(QObject *)
{
    MudarModo(&TSelectFr::Filtrar);
}

void TSelectFr::DBGrid1Enter(QObject *)
{
    if (!isHidden())
        FocarBusca();
}

void TSelectFr::DBGrid1TitleClick(TColumn *column)
{
    ClientManager1->TitleClick(DBGrid1, column);
}

void TSelectFr::DBGrid1DrawColumnCell(QObject *, QPainter &p, const QRect &rect, int,
                                      TColumn *column, unsigned state)
{
    ClientManager1->DrawColumnCell(p, rect, column, state);
}

void TSelectFr::DBGrid1DblClick(QObject *)
{
    PressionouEnter();
}

void TSelectFr::ClientManager1CreateFields1(QObject *) {}

void TSelectFr::ClientManager1PrepGrid1(QObject *) {}

void TSelectFr::ClientManager1ListUpDate(QObject *)
{
    for (QMetaObject::Connection &ligacao : ligacoesDaLista)
        disconnect(std::exchange(ligacao, {}));
}

void TSelectFr::ScrolllTimerTimer(QObject *)
{
    ScrolllTimer->stop();
}

void TSelectFr::PosicionarNoCodigo(const QString &campo, const QString &texto)
{
    TClientDataSet *cds = ClientManager1->CDS1;
    if (cds->Locate(campo, {texto}))
        return;
    cds->SetFilterText(campo, texto, loNenhuma);
    cds->SetFiltered(true);
}

void TSelectFr::PosicionarNoInicio(const QString &campo, const QString &texto)
{
    ClientManager1->CDS1->Locate(campo, {texto}, loCaseInsensitive | loPartialKey);
}

void TSelectFr::FiltrarContendo(const QString &campos, const QString &texto)
{
    ClientManager1->CDS1->SetFilterText(campos, texto, loCaseInsensitive | loContains);
}

void TSelectFr::LigarGrade()
{
    // Neither Tab nor a click stops at the grid; see the focus proxy.
    DBGrid1->setFocusPolicy(Qt::NoFocus);
    ClientManager1->SetDBGrid1(DBGrid1);
    AoEntrar(DBGrid1, [this] { DBGrid1Enter(DBGrid1); });
    DBGrid1->OnTitleClick = [this](TColumn *column) { DBGrid1TitleClick(column); };
    DBGrid1->OnDblClick = [this](QObject *sender) { DBGrid1DblClick(sender); };
    DBGrid1->OnDrawColumnCell = [this](QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                                       TColumn *column, unsigned state) {
        DBGrid1DrawColumnCell(sender, p, rect, dataCol, column, state);
    };
}

void TSelectFr::CriarLista()
{
    ClientManager1 = new TClientManager(this);
    ClientManager1->setObjectName(QStringLiteral("ClientManager1"));
    ClientManager1->ImageList8x8 = ImageList8x8;
    ClientManager1->OnCreateFields1 = [this](QObject *o) { ClientManager1CreateFields1(o); };
    ClientManager1->OnPrepGrid1 = [this](QObject *o) { ClientManager1PrepGrid1(o); };
    ClientManager1->OnListUpDate = [this](QObject *o) { ClientManager1ListUpDate(o); };
    Ligar(ClientManager1, &TClientManager::Carregou, this, [this] { LigarDataSet(); });
}

/** The rows are there: the list's events act from now on. */
void TSelectFr::LigarDataSet()
{
    TClientDataSet *cds = ClientManager1->CDS1;
    ligacoesDaLista = {
        Ligar(cds, &TDataSet::AfterOpen, this, [this, cds] { SQLDataSet1AfterOpen(cds); }),
        Ligar(cds, &TDataSet::BeforeScroll, this, [this, cds] { SQLDataSet1BeforeScroll(cds); }),
        Ligar(cds, &TDataSet::AfterScroll, this, [this, cds] { SQLDataSet1AfterScroll(cds); })};
    SQLDataSet1AfterOpen(cds);
}

/** Once; a list that is loaded is only brought up to date. */
void TSelectFr::CarregarUmaVez()
{
    if (Carregado) {
        ClientManager1->Atualizar();
        return;
    }
    const QPointer<TSelectFr> vivo(this);
    ClientManager1->Carregar();
    if (vivo)
        Carregado = true;
}

void TSelectFr::PorNoLugar()
{
    const QWidget *pai = parentWidget();
    const QWidget *paiDoEdit = BuscaLabeledEdit ? BuscaLabeledEdit->parentWidget() : nullptr;
    if (!pai || !paiDoEdit)
        return;
    const QRect edit = BuscaLabeledEdit->geometry();
    const QPoint abaixo(edit.left(), edit.top() + edit.height() + FolgaAbaixo);
    QPoint onde = pai->mapFromGlobal(paiDoEdit->mapToGlobal(abaixo));
    if (pai->height() - height() < onde.y())
        onde.ry() -= height() + edit.height() + FolgaAcima;
    move(onde.x(), std::max(onde.y(), 0));
}

void TSelectFr::MudarModo(void (TSelectFr::*modo)(const QString &))
{
    const QPointer<TSelectFr> vivo(this);
    if (!isHidden())
        FocarBusca();
    if (vivo)
        (this->*modo)(TextoDaBusca());
    if (vivo && !isHidden())
        FocarBusca();
}

void TSelectFr::FocarBusca()
{
    if (BuscaLabeledEdit)
        BuscaLabeledEdit->setFocus();
}

/** An open list that nobody types into would only cover the screen. */
void TSelectFr::SaiuDaBusca()
{
    const QWidget *foco = QApplication::focusWidget();
    if (!foco || (foco != BuscaLabeledEdit && !isAncestorOf(foco)))
        hide();
}

void TSelectFr::Enviar()
{
    const auto handler = OnEnviar; // the frame may be destroyed while it runs
    if (handler)
        handler(this);
}

bool TSelectFr::TemDataSet() const
{
    return ClientManager1->CDS1 && ClientManager1->CDS1->Active();
}

bool TSelectFr::TemLinhas() const
{
    return TemDataSet() && !ClientManager1->CDS1->IsEmpty();
}

QString TSelectFr::TextoDaBusca() const
{
    return BuscaLabeledEdit ? BuscaLabeledEdit->GetText() : QString();
}

} // namespace ficha
