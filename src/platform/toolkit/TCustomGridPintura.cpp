#include "platform/toolkit/TCustomGridPrivado.h"

#include <QFontMetrics>
#include <QPainter>
#include <QTextOption>

#include <algorithm>
#include <array>

namespace ficha
{

namespace
{
constexpr int MargemX = 2, MargemY = 1;
constexpr int MaiorGanho = 4; // pixels by which pairs that stand closer may narrow a text
const QColor CorDasLinhas(192, 192, 192);

/** Advances of the Latin-1 characters in one font, measured when first met. */
struct TAvancos {
    QFont fonte;
    std::array<short, 256> largura;
    int usadoEm = 0;
};

TAvancos &AvancosDe(const QFont &fonte)
{
    static std::array<TAvancos, 4> guardados = [] {
        std::array<TAvancos, 4> novos;
        for (TAvancos &a : novos)
            a.largura.fill(-1);
        return novos;
    }();
    static int vez = 0;
    ++vez;
    TAvancos *velho = &guardados[0];
    for (TAvancos &a : guardados) {
        if (a.usadoEm != 0 && a.fonte == fonte) {
            a.usadoEm = vez;
            return a;
        }
        if (a.usadoEm < velho->usadoEm)
            velho = &a;
    }
    velho->fonte = fonte;
    velho->largura.fill(-1);
    velho->usadoEm = vez;
    return *velho;
}

bool EhLatin1(QStringView texto)
{
    return std::all_of(texto.begin(), texto.end(), [](QChar c) { return c.unicode() < 0x100; });
}

/**
 * How many leading characters fit into a width, by their single advances (kerning only makes a
 * text narrower).
 */
qsizetype QuantosCabem(const QFontMetrics &medida, TAvancos &avancos, QStringView texto,
                       int largura)
{
    qsizetype n = 0;
    for (; n < texto.size(); ++n) {
        short &avanco = avancos.largura[texto[n].unicode()];
        if (avanco < 0)
            avanco = short(medida.horizontalAdvance(texto[n]));
        largura -= avanco;
        if (largura < 0)
            break;
    }
    return n;
}

/** The first n characters of a text, in saida. */
void Comeco(QAnyStringView texto, qsizetype n, QString &saida)
{
    saida.resize(0);
    texto.visit([&](auto t) {
        if constexpr (std::is_same_v<decltype(t), QUtf8StringView>)
            saida.append(t.toString().left(n));
        else
            saida.append(t.left(n));
    });
}

/** The text, or its beginning and an ellipsis, in saida; what is cut is never measured whole. */
void Encurtar(const QPainter &p, QAnyStringView texto, int largura, QString &saida)
{
    const QFontMetrics medida = p.fontMetrics();
    // No character is narrower than a pixel, save marks that are drawn over others.
    Comeco(texto, qsizetype(largura) * 2 + 16, saida);
    if (!EhLatin1(saida)) {
        saida = medida.elidedText(saida, Qt::ElideRight, largura);
        return;
    }
    TAvancos &avancos = AvancosDe(p.font());
    if (QuantosCabem(medida, avancos, saida, largura) == texto.size())
        return;
    if (QuantosCabem(medida, avancos, saida, largura + MaiorGanho) == texto.size() &&
        medida.horizontalAdvance(saida) <= largura)
        return;
    const QChar reticencias(0x2026);
    saida.resize(
        QuantosCabem(medida, avancos, saida, largura - medida.horizontalAdvance(reticencias)));
    saida.append(reticencias);
}
} // namespace

void EscreverNaCelula(QPainter &p, const QRect &area, QAnyStringView texto,
                      Qt::Alignment alinhamento, bool quebrar)
{
    if (texto.isEmpty() || area.width() <= 0 || area.height() <= 0)
        return;
    static QString visivel;
    if (quebrar) {
        Comeco(texto, qsizetype(area.width()) * area.height() / 8 + 16, visivel);
        QTextOption opcao(alinhamento);
        opcao.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
        p.drawText(area, visivel, opcao);
    } else {
        Encurtar(p, texto, area.width(), visivel);
        p.drawText(area, int(alinhamento) | Qt::TextSingleLine, visivel);
    }
}

void PintarRelevo(QPainter &p, const QRect &area, const QColor &fundo)
{
    p.fillRect(area, fundo);
    const QColor luz = fundo.lighter(fundo.lightness() > 200 ? 108 : 125);
    const QColor sombra = fundo.darker(125);
    p.fillRect(QRect(area.left(), area.top(), area.width(), 1), luz);
    p.fillRect(QRect(area.left(), area.top(), 1, area.height()), luz);
    p.fillRect(QRect(area.left(), area.bottom(), area.width(), 1), sombra);
    p.fillRect(QRect(area.right(), area.top(), 1, area.height()), sombra);
}

void TCustomGrid::TPrivado::Pintar(QPainter &p, const QRegion &regiao)
{
    for (const QRect &ret : regiao)
        p.fillRect(ret, cor.ParaQColor());
    p.setFont(q->font());
    for (int row = 0; row < fixedRows; ++row)
        PintarLinha(p, regiao, row);
    const int altura = q->viewport()->height();
    for (int row = topo; row < rowCount && YDaLinha(row) < altura; ++row)
        PintarLinha(p, regiao, row);
}

void TCustomGrid::TPrivado::PintarLinha(QPainter &p, const QRegion &regiao, int row)
{
    const int y = YDaLinha(row), fim = q->viewport()->width();
    if (!regiao.intersects(QRect(0, y, fim, Passo())))
        return;
    int x = 0;
    for (int col = 0; col < colCount && x < fim; ++col) {
        if (col == fixedCols)
            col = std::max(col, esquerda);
        const int largura = larguras[std::size_t(col)];
        if (largura == 0)
            continue;
        const QRect ret(x, y, largura, alturaLinha);
        if (regiao.intersects(ret.adjusted(0, 0, Linha(), Linha())))
            q->PintarCelula(p, ret, col, row, Estado(col, row));
        x += largura + Linha();
    }
}

void TCustomGrid::TPrivado::PintarCelula(QPainter &p, const QRect &ret, int col, int row,
                                         unsigned estado)
{
    if (defaultDrawing || desenhoFalhou)
        PintarPadrao(p, ret, col, row, estado);
    else if (estado & gdFixa)
        p.fillRect(ret, corFixa.ParaQColor());
    if (q->OnDrawCell) {
        p.save();
        p.setClipRect(ret, Qt::IntersectClip);
        q->Desenhar([&] { q->OnDrawCell(q, col, row, p, ret, estado); });
        p.restore();
    }
    if (gridLines) {
        const QColor linha = estado & gdFixa ? corFixa.ParaQColor().darker(150) : CorDasLinhas;
        p.fillRect(QRect(ret.right() + 1, ret.top(), 1, ret.height() + 1), linha);
        p.fillRect(QRect(ret.left(), ret.bottom() + 1, ret.width(), 1), linha);
    }
}

void TCustomGrid::TPrivado::PintarPadrao(QPainter &p, const QRect &ret, int col, int row,
                                         unsigned estado)
{
    const QPalette &paleta = q->palette();
    const bool fixa = estado & gdFixa;
    // In a stretched range the current cell is the one that is left out.
    const TGridRect faixa = Selecao();
    const bool daFaixa =
        faixa.Topo != faixa.Base || (!rowSelect && faixa.Esquerda != faixa.Direita);
    const bool corrente = col == atual.Col && row == atual.Row;
    const bool marcada = !fixa && (estado & gdSelecionada) && !(corrente && daFaixa);
    const auto grupo = !q->isEnabled() ? QPalette::Disabled
                       : q->hasFocus() ? QPalette::Active
                                       : QPalette::Inactive;
    if (fixa)
        PintarRelevo(p, ret, corFixa.ParaQColor());
    else if (marcada)
        p.fillRect(ret, paleta.color(grupo, QPalette::Highlight));
    p.setPen(paleta.color(grupo, marcada ? QPalette::HighlightedText
                                 : fixa  ? QPalette::ButtonText
                                         : QPalette::Text));
    EscreverNaCelula(p, ret.adjusted(MargemX, MargemY, -MargemX, -MargemY), q->CellTexto(col, row),
                     Qt::AlignLeft | Qt::AlignVCenter);
    if ((estado & gdFocada) && !q->OnDrawCell) {
        p.setPen(QPen(p.pen().color(), 1, Qt::DotLine));
        p.drawRect(ret.adjusted(0, 0, -1, -1));
    }
}

unsigned TCustomGrid::TPrivado::Estado(int col, int row) const
{
    if (!CelulaLivre(col, row))
        return gdFixa;
    const TGridRect faixa = Selecao();
    unsigned estado = gdNada;
    if (col >= faixa.Esquerda && col <= faixa.Direita && row >= faixa.Topo && row <= faixa.Base)
        estado |= gdSelecionada;
    if (col == atual.Col && row == atual.Row && q->hasFocus())
        estado |= gdFocada;
    return estado;
}

} // namespace ficha
