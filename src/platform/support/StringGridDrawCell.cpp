#include "platform/support/StringGridDrawCell.h"

#include "platform/support/SisD.h"
#include "platform/support/TGridColsInfo.h"
#include "platform/toolkit/TStringGrid.h"

#include <QPainter>
#include <QPixmap>

namespace ficha
{

namespace
{
/** How one cell is to look. */
struct TAspecto {
    TColor fundo, texto;
    bool negrito = false;
    bool bordas = false; /**< thin lines above and below: the row of the current cell */
    bool moldura = false;
};

bool LinhaEscura(const TStringGrid &grid, int col, int row)
{
    return row == grid.GetRow() && (grid.GetRowSelect() || col == grid.GetCol());
}

TAspecto AspectoDaCelula(const TStringGrid &grid, int col, int row, unsigned estado, bool faixas,
                         bool marcada, TColor corTexto)
{
    const TCoresDaGrade &cores = CoresDaGrade();
    TAspecto a{!faixas ? grid.GetColor() : row % 2 ? cores.FaixaImpar : cores.FaixaPar, corTexto};
    if (marcada)
        a = {cores.Destaque, cores.TextoDoDestaque, true};
    if (!grid.isEnabled()) {
        a.texto = cores.TextoDesabilitado;
        return a;
    }
    if (LinhaEscura(grid, col, row)) {
        a = {cores.CelulaAtual, cores.TextoDaCelulaAtual, a.negrito};
    } else if (row == grid.GetRow()) {
        a = {SisD().CorControlSelec, corTexto, a.negrito, true};
    } else if (estado & gdSelecionada) {
        a = {cores.FaixaSelecionada, corTexto, a.negrito};
    }
    a.moldura = estado & gdFocada;
    return a;
}

constexpr int FolgaADireita = 3; // numbers would touch the text of the next column

/** Bold, unless only the plain text fits: a title is better thin than cut. */
void EscreverNegrito(QPainter &p, const QRect &area, QAnyStringView texto,
                     Qt::Alignment alinhamento, bool quebrar)
{
    const QFont normal = p.font();
    QFont negrito = normal;
    negrito.setBold(true);
    const auto cabe = [&](const QFont &fonte) {
        return QFontMetrics(fonte).horizontalAdvance(texto.toString()) <= area.width();
    };
    const bool curto = texto.size() < area.width();
    if (quebrar || !curto || cabe(negrito) || !cabe(normal))
        p.setFont(negrito);
    EscreverNaCelula(p, area, texto, alinhamento, quebrar);
    p.setFont(normal);
}

void PintarFundo(QPainter &p, const QRect &rect, const TAspecto &a)
{
    p.fillRect(rect, a.fundo.ParaQColor());
    if (a.bordas) {
        const QColor linha = a.fundo.ParaQColor().darker(125);
        p.fillRect(QRect(rect.left(), rect.top(), rect.width(), 1), linha);
        p.fillRect(QRect(rect.left(), rect.bottom(), rect.width(), 1), linha);
    }
}

/** Thin and light, inside the dark cell: tells the grid that has the keyboard from one that has
 * not. */
void PintarMoldura(QPainter &p, const QRect &rect, TColor cor)
{
    p.setPen(QPen(cor.ParaQColor(), 1, Qt::DotLine));
    p.setBrush(Qt::NoBrush);
    p.drawRect(rect.adjusted(0, 0, -1, -1));
}

/** Paints the picture at the left of an area and answers what is left for the text. */
QRect PintarFigura(QPainter &p, const QRect &area, const QPixmap &figura, int margem)
{
    const QSizeF tamanho = figura.deviceIndependentSize();
    p.drawPixmap(QPointF(area.left(), area.top() + (area.height() - tamanho.height()) / 2), figura);
    return area.adjusted(qRound(tamanho.width()) + margem, 0, 0, 0);
}

void PintarSeparador(QPainter &p, const QRect &rect, TColor cor)
{
    p.fillRect(QRect(rect.left(), rect.center().y(), rect.width(), 1), cor.ParaQColor());
}
} // namespace

TCoresDaGrade &CoresDaGrade()
{
    static TCoresDaGrade cores;
    return cores;
}

const QString &MarcadorDaGrade()
{
    static const QString marcador = QStringLiteral("%@#");
    return marcador;
}

bool EhMarcado(QAnyStringView texto, QStringView marcador)
{
    return !marcador.isEmpty() && texto.visit([marcador](auto t) {
        if constexpr (std::is_same_v<decltype(t), QUtf8StringView>)
            return t.toString().startsWith(marcador);
        else
            return t.startsWith(marcador);
    });
}

void StringGridDrawCell(TStringGrid *grid, QPainter &p, int col, int row, const QRect &rect,
                        unsigned estado, const QPixmap *figura, int colFigura, int margemX,
                        int margemY, bool faixas, const TGridColsInfo *colsInfo,
                        bool alinharPeloConteudo, bool quebrarLinhas, TColor corTexto,
                        const QString &marcador)
{
    QAnyStringView texto = grid->CellTexto(col, row);
    const bool titulo = estado & gdFixa;
    const bool marcada = !titulo && EhMarcado(texto, marcador);
    const Qt::Alignment lado =
        alinharPeloConteudo && colsInfo ? colsInfo->Alinhamento(col) : Qt::AlignLeft;
    QRect area = rect.adjusted(margemX, margemY, -margemX, -margemY);
    if (lado == Qt::AlignRight)
        area.adjust(0, 0, -FolgaADireita, 0);

    p.save();
    p.setClipRect(rect, Qt::IntersectClip);
    p.setFont(grid->font());
    TAspecto a;
    if (titulo) {
        PintarRelevo(p, rect, grid->GetFixedColor().ParaQColor());
        a.texto = grid->isEnabled() ? TColor() : CoresDaGrade().TextoDesabilitado;
        a.negrito = true;
    } else {
        a = AspectoDaCelula(*grid, col, row, estado, faixas, marcada, corTexto);
        PintarFundo(p, rect, a);
        if (figura && !figura->isNull() && col == colFigura)
            area = PintarFigura(p, area, *figura, margemX);
    }
    if (marcada)
        texto = texto.visit([&](auto t) { return QAnyStringView(t.sliced(marcador.size())); });
    p.setPen(a.texto.ParaQColor());
    if (marcada && texto.isEmpty())
        PintarSeparador(p, rect, a.texto);
    else if (a.negrito)
        EscreverNegrito(p, area, texto, lado | Qt::AlignVCenter, quebrarLinhas);
    else
        EscreverNaCelula(p, area, texto, lado | Qt::AlignVCenter, quebrarLinhas);
    if (a.moldura)
        PintarMoldura(p, rect, a.texto);
    p.restore();
}

} // namespace ficha
