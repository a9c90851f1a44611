#include "platform/toolkit/TCustomGrid.h"

#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TCustomGridPrivado.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>

#include <algorithm>

namespace ficha
{

FICHA_REGISTRAR_ABSTRATA(TCustomGrid)

namespace
{
constexpr int AlcanceDaBorda = 3;  // pixels either side of a title's border
constexpr int MenorArrastada = 8;  // a column dragged to nothing could not be dragged back
constexpr int PassoDoArraste = 50; // milliseconds between rows while dragging outside
constexpr int MaxLinhasSujas = 64; // beyond it one repaint of everything is cheaper
constexpr int MaiorPasso = 10'000; // keeps row arithmetic far from overflow
} // namespace

TCustomGrid::TCustomGrid(QWidget *owner)
    : QAbstractScrollArea(owner), d(std::make_unique<TPrivado>(this))
{
    InstalarGradeAcessivel();
    setFocusPolicy(Qt::StrongFocus);
    viewport()->setAttribute(Qt::WA_OpaquePaintEvent);
    viewport()->setMouseTracking(true);
    for (QScrollBar *barra : {verticalScrollBar(), horizontalScrollBar()}) {
        barra->setSingleStep(1);
        barra->setTracking(false);
        barra->setRange(0, 0);
    }
}

TCustomGrid::~TCustomGrid() = default;

int TCustomGrid::GetColCount() const
{
    return d->colCount;
}

void TCustomGrid::SetColCount(int n)
{
    n = std::max(n, 1);
    if (n == d->colCount)
        return;
    VaiRedimensionar(n, d->rowCount);
    d->larguras.resize(std::size_t(n), d->larguraPadrao);
    d->colCount = n;
    d->prefixosVelhos = true;
    d->TamanhoMudou();
}

int TCustomGrid::GetRowCount() const
{
    return d->rowCount;
}

void TCustomGrid::SetRowCount(int n)
{
    n = std::max(n, 1);
    if (n == d->rowCount)
        return;
    VaiRedimensionar(d->colCount, n);
    d->rowCount = n;
    d->TamanhoMudou();
}

int TCustomGrid::GetFixedCols() const
{
    return d->fixedCols;
}

void TCustomGrid::SetFixedCols(int n)
{
    if (d->fixedColsPedidas == std::max(n, 0))
        return;
    d->fixedColsPedidas = std::max(n, 0);
    d->TamanhoMudou();
}

int TCustomGrid::GetFixedRows() const
{
    return d->fixedRows;
}

void TCustomGrid::SetFixedRows(int n)
{
    if (d->fixedRowsPedidas == std::max(n, 0))
        return;
    d->fixedRowsPedidas = std::max(n, 0);
    d->TamanhoMudou();
}

int TCustomGrid::GetDefaultColWidth() const
{
    return d->larguraPadrao;
}

void TCustomGrid::SetDefaultColWidth(int pixels)
{
    d->larguraPadrao = std::clamp(pixels, 0, MaiorPasso);
    std::fill(d->larguras.begin(), d->larguras.end(), d->larguraPadrao);
    d->prefixosVelhos = true;
    d->TamanhoMudou();
}

int TCustomGrid::GetDefaultRowHeight() const
{
    return d->alturaLinha;
}

void TCustomGrid::SetDefaultRowHeight(int pixels)
{
    pixels = std::clamp(pixels, 1, MaiorPasso);
    if (pixels == d->alturaLinha)
        return;
    d->alturaLinha = pixels;
    d->TamanhoMudou();
}

int TCustomGrid::GetColWidth(int col) const
{
    return col >= 0 && col < d->colCount ? d->larguras[std::size_t(col)] : 0;
}

void TCustomGrid::SetColWidth(int col, int pixels)
{
    pixels = std::clamp(pixels, 0, MaiorPasso);
    if (col < 0 || col >= d->colCount || d->larguras[std::size_t(col)] == pixels)
        return;
    d->larguras[std::size_t(col)] = pixels;
    d->prefixosVelhos = true;
    d->TamanhoMudou();
}

QString TCustomGrid::GetCell(int col, int row) const
{
    return CellTexto(col, row).toString();
}

int TCustomGrid::GetCol() const
{
    return d->atual.Col;
}
int TCustomGrid::GetRow() const
{
    return d->atual.Row;
}
void TCustomGrid::SetCol(int col)
{
    d->Mover({col, d->atual.Row}, false);
}
void TCustomGrid::SetRow(int row)
{
    d->Mover({d->atual.Col, row}, false);
}
void TCustomGrid::SetCelula(int col, int row)
{
    d->Mover({col, row}, false);
}
TGridRect TCustomGrid::GetSelection() const
{
    return d->Selecao();
}

void TCustomGrid::SetSelection(const TGridRect &faixa)
{
    const TGridCoord um =
        d->Limitar({std::min(faixa.Esquerda, faixa.Direita), std::min(faixa.Topo, faixa.Base)});
    const TGridCoord outro = {std::max(faixa.Esquerda, faixa.Direita),
                              std::max(faixa.Topo, faixa.Base)};
    if (d->Mover(um, false) && d->atual == um)
        d->Estender(outro);
}

int TCustomGrid::GetTopRow() const
{
    return d->topo;
}
void TCustomGrid::SetTopRow(int row)
{
    d->MudarTopo(row, d->esquerda);
}
int TCustomGrid::GetLeftCol() const
{
    return d->esquerda;
}
void TCustomGrid::SetLeftCol(int col)
{
    d->MudarTopo(d->topo, col);
}
int TCustomGrid::VisibleRowCount() const
{
    return d->LinhasInteiras(viewport()->height());
}

TGridCoord TCustomGrid::MouseToCell(QPoint ponto) const
{
    if (!viewport()->rect().contains(ponto))
        return {};
    const TGridCoord c{d->ColunaEm(ponto.x()), d->LinhaEm(ponto.y())};
    return c.Col < 0 || c.Row < 0 ? TGridCoord() : c;
}

QRect TCustomGrid::CellRect(int col, int row) const
{
    return d->CelulaExiste(col, row) ? d->RetCelula(col, row) & viewport()->rect() : QRect();
}

bool TCustomGrid::GetRangeSelect() const
{
    return d->rangeSelect;
}
void TCustomGrid::SetRangeSelect(bool v)
{
    d->rangeSelect = v;
}
bool TCustomGrid::GetRowSelect() const
{
    return d->rowSelect;
}

void TCustomGrid::SetRowSelect(bool v)
{
    d->rowSelect = v;
    d->SujarTudo();
}

bool TCustomGrid::GetThumbTracking() const
{
    return verticalScrollBar()->hasTracking();
}

void TCustomGrid::SetThumbTracking(bool v)
{
    verticalScrollBar()->setTracking(v);
    horizontalScrollBar()->setTracking(v);
}

bool TCustomGrid::GetColSizing() const
{
    return d->colSizing;
}
void TCustomGrid::SetColSizing(bool v)
{
    d->colSizing = v;
}
bool TCustomGrid::GetGridLines() const
{
    return d->gridLines;
}

void TCustomGrid::SetGridLines(bool v)
{
    if (v == d->gridLines)
        return;
    d->gridLines = v;
    d->prefixosVelhos = true;
    d->TamanhoMudou();
}

bool TCustomGrid::GetDefaultDrawing() const
{
    return d->defaultDrawing;
}

void TCustomGrid::SetDefaultDrawing(bool v)
{
    d->defaultDrawing = v;
    d->SujarTudo();
}

TColor TCustomGrid::GetColor() const
{
    return d->cor;
}

void TCustomGrid::SetColor(TColor cor)
{
    d->cor = cor;
    d->SujarTudo();
}

TColor TCustomGrid::GetFixedColor() const
{
    return d->corFixa;
}

void TCustomGrid::SetFixedColor(TColor cor)
{
    d->corFixa = cor;
    d->SujarTudo();
}

void TCustomGrid::Invalidate()
{
    d->desenhoFalhou = false;
    d->SujarTudo();
}

void TCustomGrid::InvalidarLinha(int row)
{
    if (d->CelulaExiste(0, row))
        d->CelulaMudou(row);
}

bool TCustomGrid::CelulaExiste(int col, int row) const
{
    return d->CelulaExiste(col, row);
}

void TCustomGrid::VaiRedimensionar(int, int) {}

bool TCustomGrid::PodeSelecionar(int col, int row)
{
    bool pode = true;
    const auto handler = OnSelectCell; // the grid may destroy its own handler
    if (handler)
        handler(this, col, row, pode);
    return pode;
}

void TCustomGrid::CliqueFixo(int col, int row)
{
    d->Avisar(OnFixedCellClick, col, row);
}

void TCustomGrid::RolouPelaBarra() {}

void TCustomGrid::PintarCelula(QPainter &p, const QRect &ret, int col, int row, unsigned estado)
{
    d->PintarCelula(p, ret, col, row, estado);
}

/** An error must not open a message box here, where its closing would paint and fail again. */
bool TCustomGrid::Desenhar(const std::function<void()> &pintura)
{
    if (d->desenhoFalhou)
        return false;
    try {
        pintura();
    } catch (...) {
        d->desenhoFalhou = true;
        QMetaObject::invokeMethod(
            this,
            [this, erro = std::current_exception()] {
                d->SujarTudo();
                ReportarErro(erro);
            },
            Qt::QueuedConnection);
        return false;
    }
    return true;
}

void TCustomGrid::paintEvent(QPaintEvent *e)
{
    QPainter p(viewport());
    d->tudoSujo = d->rolado = false;
    d->sujas = 0;
    d->ultimaSuja = -1;
    d->Pintar(p, PintaTudo() ? QRegion(viewport()->rect()) : e->region());
}

void TCustomGrid::resizeEvent(QResizeEvent *e)
{
    // A cell that was in view stays in view when the grid becomes smaller.
    const int antes = d->LinhasInteiras(e->oldSize().height());
    const bool via = d->atual.Row >= d->topo && d->atual.Row < d->topo + antes;
    d->AjustarBarras();
    if (via && d->mostrado)
        d->MostrarCelula(d->atual);
}

void TCustomGrid::showEvent(QShowEvent *e)
{
    QAbstractScrollArea::showEvent(e);
    d->mostrado = true;
    d->AjustarBarras();
    if (std::exchange(d->mostrarAtual, false))
        d->MostrarCelula(d->atual);
}

void TCustomGrid::scrollContentsBy(int, int)
{
    if (d->sincronizando)
        return;
    int esquerda = d->PrimeiraColuna();
    for (int i = horizontalScrollBar()->value(); i > 0; --i)
        esquerda = d->ColunaVizinha(esquerda, 1);
    if (d->MudarTopo(d->fixedRows + verticalScrollBar()->value(), esquerda))
        RolouPelaBarra();
}

void TCustomGrid::keyPressEvent(QKeyEvent *e)
{
    bool tratada = false;
    if (Protegido([&] { tratada = d->Tecla(e->key(), e->modifiers()); }))
        e->setAccepted(tratada);
}

void TCustomGrid::mousePressEvent(QMouseEvent *e)
{
    const QPointer<TCustomGrid> vivo(this);
    if (e->button() == Qt::LeftButton)
        Protegido([&] { d->Pressionar(e); });
    if (vivo && d->arraste != TPrivado::TArraste::Coluna)
        d->Avisar(OnMouseDown, e);
}

void TCustomGrid::mouseDoubleClickEvent(QMouseEvent *e)
{
    const QPointer<TCustomGrid> vivo(this);
    bool naCelula = false;
    if (e->button() == Qt::LeftButton) {
        Protegido([&] { naCelula = d->Pressionar(e); });
        if (!vivo)
            return;
        // The first press was the click.
        d->pressionada = {};
        if (naCelula && !d->Avisar(OnDblClick))
            return;
    }
    if (vivo && d->arraste != TPrivado::TArraste::Coluna)
        d->Avisar(OnMouseDown, e);
}

void TCustomGrid::mouseMoveEvent(QMouseEvent *e)
{
    const QPointer<TCustomGrid> vivo(this);
    const QPoint ponto = e->position().toPoint();
    if (!(e->buttons() & Qt::LeftButton))
        d->arraste = TPrivado::TArraste::Nada; // the button was let go over a message box
    if (d->arraste == TPrivado::TArraste::Nada)
        d->MostrarCursor(ponto);
    else
        Protegido([&] { d->Arrastar(ponto); });
    if (vivo)
        d->Avisar(OnMouseMove, e);
}

void TCustomGrid::mouseReleaseEvent(QMouseEvent *e)
{
    if (e->button() == Qt::LeftButton) {
        const auto era = std::exchange(d->arraste, TPrivado::TArraste::Nada);
        const TGridCoord onde = std::exchange(d->pressionada, {});
        d->relogio.stop();
        if (era == TPrivado::TArraste::Coluna) {
            d->MostrarCursor(e->position().toPoint());
            return;
        }
        if (era == TPrivado::TArraste::Celulas && onde.Row >= 0 && !d->Avisar(OnClick))
            return;
        if (era == TPrivado::TArraste::Titulo && onde.Row >= 0 &&
            onde == MouseToCell(e->position().toPoint())) {
            const QPointer<TCustomGrid> vivo(this);
            CliqueFixo(onde.Col, onde.Row);
            if (!vivo)
                return;
        }
    }
    d->Avisar(OnMouseUp, e);
}

void TCustomGrid::timerEvent(QTimerEvent *e)
{
    if (e->timerId() == d->relogio.timerId())
        Protegido([this] { d->RolarArrastando(); });
    else
        QAbstractScrollArea::timerEvent(e);
}

void TCustomGrid::focusInEvent(QFocusEvent *e)
{
    QAbstractScrollArea::focusInEvent(e);
    const TGridRect faixa = d->Selecao();
    d->SujarLinhas(faixa.Topo, faixa.Base);
    d->AvisarFocoAcessivel();
}

void TCustomGrid::focusOutEvent(QFocusEvent *e)
{
    QAbstractScrollArea::focusOutEvent(e);
    const TGridRect faixa = d->Selecao();
    d->SujarLinhas(faixa.Topo, faixa.Base);
}

TCustomGrid::TPrivado::TPrivado(TCustomGrid *grade)
    : q(grade), larguras(std::size_t(colCount), larguraPadrao),
      cor(TColor::DeQColor(grade->palette().color(QPalette::Base))),
      corFixa(TColor::DeQColor(grade->palette().color(QPalette::Button)))
{
}

int TCustomGrid::TPrivado::LarguraFixa() const
{
    return Prefixos()[std::size_t(fixedCols)];
}

const std::vector<int> &TCustomGrid::TPrivado::Prefixos() const
{
    if (prefixosVelhos) {
        prefixos.assign(1, 0);
        for (const int largura : larguras)
            prefixos.push_back(prefixos.back() + (largura > 0 ? largura + Linha() : 0));
        prefixosVelhos = false;
    }
    return prefixos;
}

int TCustomGrid::TPrivado::XDaColuna(int col) const
{
    const auto &soma = Prefixos();
    const int x = soma[std::size_t(col)];
    return col < fixedCols ? x : LarguraFixa() + x - soma[std::size_t(esquerda)];
}

int TCustomGrid::TPrivado::YDaLinha(int row) const
{
    return row < fixedRows ? row * Passo() : AlturaFixa() + (row - topo) * Passo();
}

/** Empty for a hidden column and for what is scrolled away before the titles. */
QRect TCustomGrid::TPrivado::RetCelula(int col, int row) const
{
    if ((col >= fixedCols && col < esquerda) || (row >= fixedRows && row < topo) ||
        row > topo + q->viewport()->height())
        return {};
    return {XDaColuna(col), YDaLinha(row), larguras[std::size_t(col)], alturaLinha};
}

int TCustomGrid::TPrivado::ColunaEm(int x) const
{
    const auto &soma = Prefixos();
    const bool fixa = x < LarguraFixa();
    const int alvo = fixa ? x : x - LarguraFixa() + soma[std::size_t(esquerda)];
    const auto i = std::upper_bound(soma.begin(), soma.end(), alvo) - soma.begin();
    return x < 0 || i > colCount ? -1 : int(i) - 1;
}

int TCustomGrid::TPrivado::LinhaEm(int y) const
{
    if (y < 0)
        return -1;
    const int row = y < AlturaFixa() ? y / Passo() : topo + (y - AlturaFixa()) / Passo();
    return row < rowCount ? row : -1;
}

/** The column whose right border in the titles is under a point, or -1. */
int TCustomGrid::TPrivado::BordaEm(QPoint ponto) const
{
    if (!colSizing || ponto.y() < 0 || ponto.y() >= AlturaFixa())
        return -1;
    const int col = ColunaEm(std::max(ponto.x() - AlcanceDaBorda, 0));
    if (col < 0)
        return -1;
    const int borda = XDaColuna(col) + larguras[std::size_t(col)];
    return std::abs(ponto.x() - borda) <= AlcanceDaBorda ? col : -1;
}

int TCustomGrid::TPrivado::LinhasInteiras(int altura) const
{
    return std::max(0, (altura - AlturaFixa() + Linha()) / Passo());
}

int TCustomGrid::TPrivado::Capacidade() const
{
    return std::max(1, LinhasInteiras(q->viewport()->height()));
}

int TCustomGrid::TPrivado::MaxTopo(int capacidade) const
{
    return std::max(fixedRows, rowCount - capacidade);
}

/** The first column of the last screenful. */
int TCustomGrid::TPrivado::MaxEsquerda(int largura) const
{
    const auto &soma = Prefixos();
    int col = UltimaColuna();
    for (int antes = ColunaVizinha(col, -1); antes != col; antes = ColunaVizinha(col, -1)) {
        if (soma.back() - soma[std::size_t(antes)] - Linha() > largura - LarguraFixa())
            break;
        col = antes;
    }
    return col;
}

bool TCustomGrid::TPrivado::LinhaVisivel(int row) const
{
    return row < fixedRows || (row >= topo && row <= topo + q->viewport()->height() / Passo());
}

bool TCustomGrid::TPrivado::CelulaExiste(int col, int row) const
{
    return col >= 0 && col < colCount && row >= 0 && row < rowCount;
}

bool TCustomGrid::TPrivado::CelulaLivre(int col, int row) const
{
    return CelulaExiste(col, row) && col >= fixedCols && row >= fixedRows;
}

TGridCoord TCustomGrid::TPrivado::Limitar(TGridCoord c) const
{
    return {std::clamp(c.Col, fixedCols, colCount - 1), std::clamp(c.Row, fixedRows, rowCount - 1)};
}

/** The next column to a side that is not hidden and may become current; col itself when none. */
int TCustomGrid::TPrivado::ColunaVizinha(int col, int sentido) const
{
    for (int c = col + sentido; c >= fixedCols && c < colCount; c += sentido)
        if (larguras[std::size_t(c)] > 0)
            return c;
    return col;
}

/** How many columns the user scrolls over to have col as the first. */
int TCustomGrid::TPrivado::ColunasAntesDe(int col) const
{
    return int(std::count_if(larguras.begin() + fixedCols, larguras.begin() + col,
                             [](int largura) { return largura > 0; }));
}

int TCustomGrid::TPrivado::PrimeiraColuna() const
{
    return larguras[std::size_t(fixedCols)] > 0 ? fixedCols : ColunaVizinha(fixedCols, 1);
}

int TCustomGrid::TPrivado::UltimaColuna() const
{
    return larguras.back() > 0 ? colCount - 1 : ColunaVizinha(colCount - 1, -1);
}

void TCustomGrid::TPrivado::CorrigirFixos()
{
    const int antesCols = std::exchange(fixedCols, std::min(fixedColsPedidas, colCount - 1));
    const int antesRows = std::exchange(fixedRows, std::min(fixedRowsPedidas, rowCount - 1));
    if (topo == antesRows)
        topo = fixedRows;
    if (esquerda == antesCols)
        esquerda = fixedCols;
}

/** Counts or widths changed: everything that refers to cells comes back inside. */
void TCustomGrid::TPrivado::TamanhoMudou()
{
    const TGridCoord antes = atual;
    CorrigirFixos();
    atual = Limitar(atual);
    ponta = Limitar(ponta);
    const int topoCerto = std::clamp(topo, fixedRows, rowCount - 1);
    const int esquerdaCerta = std::clamp(esquerda, fixedCols, colCount - 1);
    const bool rolou = topoCerto != std::exchange(topo, topoCerto) ||
                       esquerdaCerta != std::exchange(esquerda, esquerdaCerta);
    AgendarBarras();
    SujarTudo();
    const QPointer<TCustomGrid> vivo(q);
    if (rolou && !Avisar(q->OnTopLeftChanged))
        return;
    if (atual != antes)
        AvisarFocoAcessivel();
}

/** A fill changes the counts again and again; the bars follow once. */
void TCustomGrid::TPrivado::AgendarBarras()
{
    if (std::exchange(barrasAgendadas, true))
        return;
    QMetaObject::invokeMethod(
        q,
        [this] {
            if (QAccessible::isActive()) {
                QAccessibleTableModelChangeEvent evento(
                    q, QAccessibleTableModelChangeEvent::ModelReset);
                QAccessible::updateAccessibility(&evento);
            }
            AjustarBarras();
        },
        Qt::QueuedConnection);
}

void TCustomGrid::TPrivado::AjustarBarras()
{
    barrasAgendadas = false;
    if (sincronizando)
        return;
    const QSize util = TamanhoUtil();
    const int capacidade = std::max(1, LinhasInteiras(util.height()));
    const int maxTopo = MaxTopo(capacidade), maxEsquerda = MaxEsquerda(util.width());
    sincronizando = true;
    q->verticalScrollBar()->setRange(0, maxTopo - fixedRows);
    q->verticalScrollBar()->setPageStep(capacidade);
    q->horizontalScrollBar()->setRange(0, ColunasAntesDe(maxEsquerda));
    sincronizando = false;
    MudarTopo(std::min(topo, maxTopo), std::min(esquerda, maxEsquerda));
}

/** The viewport's size once the bars that the cells need are there. */
QSize TCustomGrid::TPrivado::TamanhoUtil() const
{
    const auto grossura = [](const QScrollBar *barra, Qt::ScrollBarPolicy politica, int medida) {
        Q_UNUSED(barra)
        return politica == Qt::ScrollBarAsNeeded ? medida : 0;
    };
    const QScrollBar *v = q->verticalScrollBar(), *h = q->horizontalScrollBar();
    const int larguraV = grossura(v, q->verticalScrollBarPolicy(), v->sizeHint().width());
    const int alturaH = grossura(h, q->horizontalScrollBarPolicy(), h->sizeHint().height());
    const qint64 altura = qint64(rowCount) * Passo() - Linha();
    const int largura = Prefixos().back() - Linha();
    QSize util = q->maximumViewportSize();
    bool temV = altura > util.height();
    const bool temH = largura > util.width() - (temV ? larguraV : 0);
    if (temH)
        util.rheight() -= alturaH;
    temV = altura > util.height();
    if (temV)
        util.rwidth() -= larguraV;
    return util;
}

TGridRect TCustomGrid::TPrivado::Selecao() const
{
    TGridRect faixa{std::min(atual.Col, ponta.Col), std::min(atual.Row, ponta.Row),
                    std::max(atual.Col, ponta.Col), std::max(atual.Row, ponta.Row)};
    if (rowSelect) {
        faixa.Esquerda = fixedCols;
        faixa.Direita = colCount - 1;
    }
    return faixa;
}

/** Asks, letting through what is raised. */
bool TCustomGrid::TPrivado::Perguntar(TGridCoord alvo)
{
    const QPointer<TCustomGrid> vivo(q);
    struct TGuarda {
        QPointer<TCustomGrid> vivo;
        TGridCoord antes;
        ~TGuarda()
        {
            if (vivo)
                vivo->d->perguntada = antes;
        }
    } guarda{q, std::exchange(perguntada, alvo)};
    const bool pode = q->PodeSelecionar(alvo.Col, alvo.Row);
    return vivo && pode;
}

/**
 * Makes a cell current, a range collapses to it. With sempre the handler is asked about the
 * current cell too. A handler that moves the grid to the very cell it is asked about is answered
 * by the move that is under way.
 */
bool TCustomGrid::TPrivado::Mover(TGridCoord alvo, bool sempre)
{
    alvo = Limitar(alvo);
    if (alvo == perguntada)
        return true;
    if ((sempre || alvo != atual) && !Perguntar(alvo))
        return false;
    alvo = Limitar(alvo); // the handler may have changed the counts
    Assumir(alvo, alvo);
    const QPointer<TCustomGrid> vivo(q);
    MostrarCelula(alvo);
    return !vivo.isNull();
}

void TCustomGrid::TPrivado::Assumir(TGridCoord novo, TGridCoord outraPonta)
{
    const TGridRect antes = Selecao();
    const bool mudou = novo != atual;
    atual = novo;
    ponta = outraPonta;
    const TGridRect depois = Selecao();
    if (!mudou && antes == depois)
        return;
    if (antes.Topo == antes.Base && depois.Topo == depois.Base) {
        SujarLinhas(antes.Topo, antes.Topo);
        SujarLinhas(depois.Topo, depois.Topo);
    } else {
        SujarLinhas(std::min(antes.Topo, depois.Topo), std::max(antes.Base, depois.Base));
    }
    if (mudou)
        AvisarFocoAcessivel();
}

void TCustomGrid::TPrivado::Estender(TGridCoord alvo)
{
    alvo = Limitar(alvo);
    Assumir(atual, alvo);
    MostrarCelula(alvo);
}

void TCustomGrid::TPrivado::MostrarCelula(TGridCoord c)
{
    if (!mostrado) {
        mostrarAtual = true; // there is no size yet to scroll by
        return;
    }
    int novoTopo = topo, novaEsquerda = esquerda;
    if (c.Row < topo)
        novoTopo = c.Row;
    else if (c.Row >= topo + Capacidade())
        novoTopo = c.Row - Capacidade() + 1;
    const auto &soma = Prefixos();
    const int largura = q->viewport()->width() - LarguraFixa();
    if (c.Col < esquerda && !rowSelect)
        novaEsquerda = c.Col;
    const int fim = soma[std::size_t(c.Col)] + larguras[std::size_t(c.Col)];
    while (!rowSelect && novaEsquerda < c.Col && fim - soma[std::size_t(novaEsquerda)] > largura)
        ++novaEsquerda;
    MudarTopo(novoTopo, novaEsquerda);
}

/** Scrolls to a first row and column, as far as there is something to scroll. */
bool TCustomGrid::TPrivado::MudarTopo(int novoTopo, int novaEsquerda)
{
    const int maxTopo = mostrado ? MaxTopo(Capacidade()) : rowCount - 1;
    const int maxEsquerda = mostrado ? MaxEsquerda(q->viewport()->width()) : colCount - 1;
    novoTopo = std::clamp(novoTopo, fixedRows, maxTopo);
    novaEsquerda = std::clamp(novaEsquerda, fixedCols, std::max(fixedCols, maxEsquerda));
    if (larguras[std::size_t(novaEsquerda)] == 0)
        novaEsquerda = ColunaVizinha(novaEsquerda, 1);
    const int linhas = novoTopo - std::exchange(topo, novoTopo);
    const int colunas = novaEsquerda - std::exchange(esquerda, novaEsquerda);
    sincronizando = true;
    q->verticalScrollBar()->setValue(topo - fixedRows);
    q->horizontalScrollBar()->setValue(ColunasAntesDe(esquerda));
    sincronizando = false;
    if (linhas == 0 && colunas == 0)
        return true;
    if (colunas == 0)
        RolarImagem(linhas);
    else
        SujarTudo();
    return Avisar(q->OnTopLeftChanged);
}

/**
 * Moves the painted rows, so that only those that come into view are painted. Only once between two
 * paintings: a search that runs through the rows scrolls thousands of times.
 */
void TCustomGrid::TPrivado::RolarImagem(int deLinhas)
{
    const QRect area = q->viewport()->rect().adjusted(0, AlturaFixa(), 0, 0);
    if (std::exchange(rolado, true) || tudoSujo || q->PintaTudo() ||
        std::abs(deLinhas) >= area.height() / Passo())
        SujarTudo();
    else
        q->viewport()->scroll(0, -deLinhas * Passo(), area);
}

void TCustomGrid::TPrivado::AvisarFocoAcessivel()
{
    if (!QAccessible::isActive() || !q->hasFocus())
        return;
    QAccessibleEvent evento(q, QAccessible::Focus);
    evento.setChild(atual.Row * colCount + atual.Col);
    QAccessible::updateAccessibility(&evento);
}

/** Answers whether the key is the grid's own. */
bool TCustomGrid::TPrivado::Tecla(int tecla, Qt::KeyboardModifiers estado)
{
    if (estado & (Qt::AltModifier | Qt::MetaModifier))
        return false;
    const bool ctrl = estado & Qt::ControlModifier;
    const bool estender = (estado & Qt::ShiftModifier) && rangeSelect;
    if (rowSelect && !ctrl && (tecla == Qt::Key_Left || tecla == Qt::Key_Right))
        return RolarColunas(tecla == Qt::Key_Left ? -1 : 1);
    TGridCoord destino = estender ? ponta : atual;
    if (!DestinoDaTecla(tecla, ctrl, destino))
        return false;
    destino = Limitar(destino);
    if (estender) {
        Estender(destino);
    } else {
        const TGridCoord antes = atual;
        if (Mover(destino, false) && atual != antes)
            Avisar(q->OnClick);
    }
    return true;
}

bool TCustomGrid::TPrivado::DestinoDaTecla(int tecla, bool ctrl, TGridCoord &destino) const
{
    const bool extremos = ctrl || rowSelect;
    if (tecla == Qt::Key_Home || tecla == Qt::Key_End) {
        const bool inicio = tecla == Qt::Key_Home;
        if (!rowSelect)
            destino.Col = inicio ? PrimeiraColuna() : UltimaColuna();
        if (extremos)
            destino.Row = inicio ? fixedRows : rowCount - 1;
        return true;
    }
    if (ctrl)
        return false;
    switch (tecla) {
    case Qt::Key_Up:
        --destino.Row;
        return true;
    case Qt::Key_Down:
        ++destino.Row;
        return true;
    case Qt::Key_Left:
        destino.Col = ColunaVizinha(destino.Col, -1);
        return true;
    case Qt::Key_Right:
        destino.Col = ColunaVizinha(destino.Col, 1);
        return true;
    case Qt::Key_PageUp:
        destino.Row -= Capacidade();
        return true;
    case Qt::Key_PageDown:
        destino.Row += Capacidade();
        return true;
    default:
        return false;
    }
}

bool TCustomGrid::TPrivado::RolarColunas(int sentido)
{
    MudarTopo(topo, ColunaVizinha(esquerda, sentido));
    return true;
}

/** The left button went down. Answers whether a cell under it is current now. */
bool TCustomGrid::TPrivado::Pressionar(QMouseEvent *e)
{
    const QPoint ponto = e->position().toPoint();
    ultimoPonto = ponto;
    arraste = TArraste::Nada;
    colunaArrastada = BordaEm(ponto);
    if (colunaArrastada >= 0) {
        arraste = TArraste::Coluna;
        xInicial = ponto.x();
        larguraInicial = larguras[std::size_t(colunaArrastada)];
        return false;
    }
    pressionada = q->MouseToCell(ponto);
    if (pressionada.Row < 0)
        return false;
    if (!CelulaLivre(pressionada.Col, pressionada.Row)) {
        arraste = TArraste::Titulo;
        return false;
    }
    return SelecionarComMouse(pressionada, rangeSelect && (e->modifiers() & Qt::ShiftModifier),
                              e->type() != QEvent::MouseButtonDblClick);
}

bool TCustomGrid::TPrivado::SelecionarComMouse(TGridCoord onde, bool estender, bool sempre)
{
    const QPointer<TCustomGrid> vivo(q);
    arraste = TArraste::Celulas;
    if (estender) {
        Estender(onde);
        return false;
    }
    const bool moveu = Mover(onde, sempre);
    if (vivo && !moveu) {
        arraste = TArraste::Nada; // refused: nothing to drag or to click
        pressionada = {};
    }
    return moveu;
}

void TCustomGrid::TPrivado::Arrastar(QPoint ponto)
{
    ultimoPonto = ponto;
    if (arraste == TArraste::Coluna)
        ArrastarColuna(ponto.x());
    else if (arraste == TArraste::Celulas)
        ArrastarCelulas(ponto);
}

void TCustomGrid::TPrivado::ArrastarColuna(int x)
{
    if (colunaArrastada < colCount)
        q->SetColWidth(colunaArrastada, std::max(MenorArrastada, larguraInicial + x - xInicial));
}

/** Inside, the cell under the mouse; outside, the clock goes on row by row. */
void TCustomGrid::TPrivado::ArrastarCelulas(QPoint ponto)
{
    const QRect area = q->viewport()->rect().adjusted(LarguraFixa(), AlturaFixa(), 0, 0);
    if (!area.contains(ponto)) {
        if (!relogio.isActive())
            relogio.start(PassoDoArraste, q);
        return;
    }
    relogio.stop();
    const TGridCoord onde = q->MouseToCell(ponto);
    if (!CelulaLivre(onde.Col, onde.Row) || onde == (rangeSelect ? ponta : atual))
        return;
    if (rangeSelect)
        Estender(onde);
    else
        Mover(onde, false);
}

void TCustomGrid::TPrivado::RolarArrastando()
{
    if (arraste != TArraste::Celulas) {
        relogio.stop();
        return;
    }
    TGridCoord alvo = rangeSelect ? ponta : atual;
    if (ultimoPonto.y() < AlturaFixa())
        --alvo.Row;
    else if (ultimoPonto.y() >= q->viewport()->height())
        ++alvo.Row;
    if (ultimoPonto.x() < LarguraFixa())
        alvo.Col = ColunaVizinha(alvo.Col, -1);
    else if (ultimoPonto.x() >= q->viewport()->width())
        alvo.Col = ColunaVizinha(alvo.Col, 1);
    if (rangeSelect)
        Estender(alvo);
    else
        Mover(alvo, false);
}

void TCustomGrid::TPrivado::MostrarCursor(QPoint ponto)
{
    if (!colSizing)
        return;
    if (BordaEm(ponto) >= 0)
        q->viewport()->setCursor(Qt::SplitHCursor);
    else
        q->viewport()->unsetCursor();
}

void TCustomGrid::TPrivado::SujarTudo()
{
    if (!std::exchange(tudoSujo, true))
        q->viewport()->update();
}

void TCustomGrid::TPrivado::SujarLinhas(int de, int ate)
{
    de = std::max(de, topo);
    ate = std::min(ate, topo + q->viewport()->height() / Passo());
    if (de < fixedRows || de > ate || tudoSujo)
        return;
    q->viewport()->update(0, YDaLinha(de), q->viewport()->width(), (ate - de + 1) * Passo());
}

/** Called for every cell of a fill: the common case must be a few comparisons. */
void TCustomGrid::TPrivado::CelulaMudou(int row)
{
    if (tudoSujo || row == ultimaSuja || !LinhaVisivel(row) || !q->isVisible())
        return;
    ultimaSuja = row;
    if (++sujas > MaxLinhasSujas)
        SujarTudo();
    else
        q->viewport()->update(0, YDaLinha(row), q->viewport()->width(), Passo());
}

} // namespace ficha
