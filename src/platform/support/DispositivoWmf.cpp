#include "platform/support/DispositivoWmf.h"

#include "platform/support/EImagemInvalida.h"
#include "platform/support/RegistrosWmf.h"

#include <QElapsedTimer>
#include <QFontMetricsF>
#include <QPainter>
#include <QPainterPath>
#include <QPolygonF>
#include <QtEndian>

#include <libwmf/api.h>
#include <libwmf/defs.h>
#include <libwmf/ipa.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <new>

namespace ficha
{

namespace
{

/** Beyond this a point is far outside any picture. */
constexpr double MaiorCoordenada = 30'000;
constexpr qreal MaiorPena = 4096;
/** Pixels of line in one drawing, and of broken line in one record, which takes ten times longer.
 */
constexpr double MaisTraco = 15e6, MaisTracejado = 1e5, CustoDoTracejado = 10;
/** Letters are measured at this size, in pixels. */
constexpr int TamanhoDeMedida = 100;

/** The ways to mix a bitmap, or a fill, with what is there; all others copy. */
enum TRop3 : quint32 {
    ropPreto = 0x00000042,
    ropSrcErase = 0x00440328,
    ropNotSrcCopy = 0x00330008,
    ropInverte = 0x00550009,
    ropPatInvert = 0x005A0049,
    ropSrcInvert = 0x00660046,
    ropSrcAnd = 0x008800C6,
    ropMergePaint = 0x00BB0226,
    ropSrcPaint = 0x00EE0086,
    ropBranco = 0x00FF0062,
};

/** The sixteen ways to mix a pen or a brush with what is there, 1 first. */
constexpr std::array<QPainter::CompositionMode, 16> Rop2 = {
    QPainter::RasterOp_ClearDestination,        QPainter::RasterOp_NotSourceAndNotDestination,
    QPainter::RasterOp_NotSourceAndDestination, QPainter::RasterOp_NotSource,
    QPainter::RasterOp_SourceAndNotDestination, QPainter::RasterOp_NotDestination,
    QPainter::RasterOp_SourceXorDestination,    QPainter::RasterOp_NotSourceOrNotDestination,
    QPainter::RasterOp_SourceAndDestination,    QPainter::RasterOp_NotSourceXorDestination,
    QPainter::CompositionMode_Destination,      QPainter::RasterOp_NotSourceOrDestination,
    QPainter::CompositionMode_SourceOver,       QPainter::RasterOp_SourceOrNotDestination,
    QPainter::RasterOp_SourceOrDestination,     QPainter::RasterOp_SetDestination,
};

QPainter::CompositionMode ModoDoRop3(quint32 rop)
{
    switch (rop) {
    case ropPreto:
        return QPainter::RasterOp_ClearDestination;
    case ropSrcErase:
        return QPainter::RasterOp_SourceAndNotDestination;
    case ropNotSrcCopy:
        return QPainter::RasterOp_NotSource;
    case ropInverte:
        return QPainter::RasterOp_NotDestination;
    case ropPatInvert:
    case ropSrcInvert:
        return QPainter::RasterOp_SourceXorDestination;
    case ropSrcAnd:
        return QPainter::RasterOp_SourceAndDestination;
    case ropMergePaint:
        return QPainter::RasterOp_NotSourceOrDestination;
    case ropSrcPaint:
        return QPainter::RasterOp_SourceOrDestination;
    case ropBranco:
        return QPainter::RasterOp_SetDestination;
    default:
        return QPainter::CompositionMode_SourceOver;
    }
}

QColor Cor(const wmfRGB &cor)
{
    return {cor.r, cor.g, cor.b};
}

/** The letters of the Western character set, of which 128 to 159 are not those of ISO8859_1. */
QString TextoOcidental(const char *bytes)
{
    static constexpr char16_t Proprios[] =
        u"\u20AC\u0081\u201A\u0192\u201E\u2026\u2020\u2021\u02C6\u2030\u0160\u2039\u0152\u008D"
        u"\u017D\u008F\u0090\u2018\u2019\u201C\u201D\u2022\u2013\u2014\u02DC\u2122\u0161\u203A"
        u"\u0153\u009D\u017E\u0178";
    constexpr char16_t Primeiro = 0x80, Ultimo = 0x9F;
    QString texto = QString::fromLatin1(bytes);
    for (QChar &c : texto) {
        if (c >= Primeiro && c <= Ultimo)
            c = Proprios[c.unicode() - Primeiro];
    }
    return texto;
}

/** The player's device: each call becomes one on a painter. Its coordinates are pixels. */
class TDispositivo
{
public:
    TDispositivo(QImage &tela, const std::vector<QImage> &figuras, int fina, int segundos)
        : pintor(&tela), bitmaps(figuras), fineza(fina), limite(qint64(segundos) * 1000)
    {
        relogio.start();
    }

    /** More time, or more lines, than a picture takes. */
    bool Passou() const { return gasto > MaisTraco || relogio.elapsed() > limite; }

    void Pixel(const wmfDrawPixel_t &d);
    void Linha(const wmfDrawLine_t &d);
    void Polilinha(const wmfPolyLine_t &d);
    void Poligono(const wmfPolyLine_t &d);
    void Poligonos(const wmfPolyPoly_t &d);
    void Retangulo(const wmfDrawRectangle_t &d);
    void Elipse(const wmfDrawArc_t &d);
    enum TArco { Aberto, Corda, Pizza };
    void Arco(const wmfDrawArc_t &d, TArco tipo);
    void Preencher(const wmfROP_Draw_t &d);
    void LerBitmap(wmfBMP_Read_t &d);
    void Bitmap(const wmfBMP_Draw_t &d);
    void Texto(const wmfDrawText_t &d);
    void Recortar(const wmfPolyRectangle_t &d);

    static float LarguraDoTexto(const wmfFont &fonte, const char *texto);

private:
    static double Limitada(double v);
    static QPointF Ponto(const wmfD_Coord &c);
    static QRectF Entre(const wmfD_Coord &a, const wmfD_Coord &b);
    static QFont Fonte(const wmfFont &fonte, int pixels);
    static QPointF Alinhado(const QFontMetricsF &medidas, const QString &texto, int alinhamento);
    QPen Pena(const wmfDC &dc) const;
    static QBrush Pincel(const wmfDC &dc);
    double Comprimento(const QPolygonF &pontos) const;
    static QPolygonF Pontos(const wmfD_Coord *pontos, int quantos);
    bool Preparar(const wmfDC &dc, double comprimento);

    QPainter pintor;
    const std::vector<QImage> &bitmaps;
    int fineza;
    qint64 limite;
    /** Pixels of line drawn so far; one record alone can hold minutes of them. */
    double gasto = 0;
    QElapsedTimer relogio;
};

double TDispositivo::Limitada(double v)
{
    return std::isfinite(v) ? std::clamp(v, -MaiorCoordenada, MaiorCoordenada) : 0;
}

QPointF TDispositivo::Ponto(const wmfD_Coord &c)
{
    return {Limitada(double(c.x)), Limitada(double(c.y))};
}

QRectF TDispositivo::Entre(const wmfD_Coord &a, const wmfD_Coord &b)
{
    return QRectF(Ponto(a), Ponto(b)).normalized();
}

QPen TDispositivo::Pena(const wmfDC &dc) const
{
    static constexpr std::array<Qt::PenStyle, 5> Estilos = {
        Qt::SolidLine, Qt::DashLine, Qt::DotLine, Qt::DashDotLine, Qt::DashDotDotLine};
    const unsigned estilo = dc.pen->lopnStyle & PS_STYLE_MASK;
    if (estilo == PS_NULL)
        return Qt::NoPen;
    const double pedida = Limitada((dc.pen->width + dc.pen->height) / 2);
    const qreal largura = std::clamp<qreal>(pedida, fineza, MaiorPena);
    // Only lines of one pixel are ever broken.
    const bool quebrada = estilo < Estilos.size() && largura <= fineza;
    return {Cor(dc.pen->lopnColor), largura, quebrada ? Estilos[estilo] : Qt::SolidLine,
            Qt::RoundCap, Qt::RoundJoin};
}

QBrush TDispositivo::Pincel(const wmfDC &dc)
{
    static constexpr std::array<Qt::BrushStyle, 6> Hachuras = {
        Qt::HorPattern,   Qt::VerPattern,   Qt::FDiagPattern,
        Qt::BDiagPattern, Qt::CrossPattern, Qt::DiagCrossPattern};
    switch (dc.brush->lbStyle) {
    case BS_NULL:
        return Qt::NoBrush;
    case BS_HATCHED:
        return {Cor(dc.brush->lbColor), dc.brush->lbHatch < Hachuras.size()
                                            ? Hachuras[dc.brush->lbHatch]
                                            : Qt::SolidPattern};
    default:
        return Cor(dc.brush->lbColor);
    }
}

QPolygonF TDispositivo::Pontos(const wmfD_Coord *pontos, int quantos)
{
    QPolygonF poligono;
    poligono.reserve(quantos);
    for (int i = 0; i < quantos; ++i)
        poligono << Ponto(pontos[i]);
    return poligono;
}

/** As far as it counts: what runs far outside the picture is cut off there. */
double TDispositivo::Comprimento(const QPolygonF &pontos) const
{
    const double longe = 2.0 * (pintor.device()->width() + pintor.device()->height());
    double soma = 0;
    for (qsizetype i = 1; i < pontos.size(); ++i)
        soma += std::min(longe, QLineF(pontos[i - 1], pontos[i]).length());
    return soma;
}

/** Takes pen and brush for a line of so many pixels; false when there were too many. */
bool TDispositivo::Preparar(const wmfDC &dc, double comprimento)
{
    QPen pena = Pena(dc);
    if (pena.style() != Qt::NoPen) {
        if (comprimento > MaisTracejado)
            pena.setStyle(Qt::SolidLine);
        gasto += comprimento * (pena.style() == Qt::SolidLine ? 1 : CustoDoTracejado);
    }
    pintor.setPen(pena);
    pintor.setBrush(Pincel(dc));
    const bool valido = dc.ROPmode >= 1 && dc.ROPmode <= Rop2.size();
    pintor.setCompositionMode(valido ? Rop2[dc.ROPmode - 1U]
                                     : QPainter::CompositionMode_SourceOver);
    return gasto <= MaisTraco;
}

void TDispositivo::Pixel(const wmfDrawPixel_t &d)
{
    pintor.setCompositionMode(QPainter::CompositionMode_SourceOver);
    const QSizeF lado(std::max<double>(fineza, Limitada(d.pixel_width)),
                      std::max<double>(fineza, Limitada(d.pixel_height)));
    pintor.fillRect(QRectF(Ponto(d.pt), lado), Cor(d.color));
}

void TDispositivo::Linha(const wmfDrawLine_t &d)
{
    const QPolygonF pontos({Ponto(d.from), Ponto(d.to)});
    if (Preparar(*d.dc, Comprimento(pontos)))
        pintor.drawPolyline(pontos);
}

void TDispositivo::Polilinha(const wmfPolyLine_t &d)
{
    const QPolygonF pontos = Pontos(d.pt, d.count);
    if (Preparar(*d.dc, Comprimento(pontos)))
        pintor.drawPolyline(pontos);
}

void TDispositivo::Poligono(const wmfPolyLine_t &d)
{
    const QPolygonF pontos = Pontos(d.pt, d.count);
    if (Preparar(*d.dc, Comprimento(pontos)))
        pintor.drawPolygon(pontos,
                           d.dc->polyfillmode == WINDING ? Qt::WindingFill : Qt::OddEvenFill);
}

void TDispositivo::Poligonos(const wmfPolyPoly_t &d)
{
    QPainterPath caminho;
    caminho.setFillRule(d.dc->polyfillmode == WINDING ? Qt::WindingFill : Qt::OddEvenFill);
    double comprimento = 0;
    for (int i = 0; i < d.npoly; ++i) {
        const QPolygonF pontos = Pontos(d.pt[i], d.count[i]);
        comprimento += Comprimento(pontos);
        caminho.addPolygon(pontos);
        caminho.closeSubpath();
    }
    if (Preparar(*d.dc, comprimento))
        pintor.drawPath(caminho);
}

void TDispositivo::Retangulo(const wmfDrawRectangle_t &d)
{
    const QRectF r = Entre(d.TL, d.BR);
    if (!Preparar(*d.dc, Comprimento(r)))
        return;
    const double rx = qAbs(Limitada(double(d.width))) / 2,
                 ry = qAbs(Limitada(double(d.height))) / 2;
    if (rx > 0 && ry > 0)
        pintor.drawRoundedRect(r, std::min(rx, r.width() / 2), std::min(ry, r.height() / 2));
    else
        pintor.drawRect(r);
}

void TDispositivo::Elipse(const wmfDrawArc_t &d)
{
    const QRectF r = Entre(d.TL, d.BR);
    if (Preparar(*d.dc, Comprimento(r)))
        pintor.drawEllipse(r);
}

/** From one ray to the other, both given as offsets from the centre. */
void TDispositivo::Arco(const wmfDrawArc_t &d, TArco tipo)
{
    const QRectF r = Entre(d.TL, d.BR);
    if (r.isEmpty() || !Preparar(*d.dc, Comprimento(r)))
        return;
    const auto angulo = [&r](const wmfD_Coord &raio) {
        return std::atan2(-Limitada(double(raio.y)) / r.height(),
                          Limitada(double(raio.x)) / r.width()) *
               180 / M_PI;
    };
    // Clockwise for the player, the other way round for the painter.
    const double de = angulo(d.end);
    double volta = angulo(d.start) - de;
    if (volta <= 0)
        volta += 360;
    constexpr int Dezesseis = 16;
    const int a = int(de * Dezesseis), v = int(volta * Dezesseis);
    if (tipo == Aberto)
        pintor.drawArc(r, a, v);
    else if (tipo == Corda)
        pintor.drawChord(r, a, v);
    else
        pintor.drawPie(r, a, v);
}

void TDispositivo::Preencher(const wmfROP_Draw_t &d)
{
    pintor.setCompositionMode(ModoDoRop3(d.ROP));
    const QRectF r = Entre(d.TL, d.BR);
    const QBrush pincel = Pincel(*d.dc);
    if (pincel.style() != Qt::NoBrush || d.ROP == ropPreto || d.ROP == ropBranco ||
        d.ROP == ropInverte)
        pintor.fillRect(r, pincel.style() == Qt::NoBrush ? QBrush(Qt::black) : pincel);
}

/** The player's bitmap of one pixel stands for one of ours, whose number it carries. */
void TDispositivo::LerBitmap(wmfBMP_Read_t &d)
{
    constexpr long Numero = 24, Cabecalho = 40;
    d.bmp.data = nullptr;
    if (!d.buffer || d.length < Cabecalho)
        return;
    const auto numero = qFromLittleEndian<quint32>(d.buffer + Numero);
    if (numero >= bitmaps.size())
        return;
    d.bmp.width = 1;
    d.bmp.height = 1;
    // The player only hands it on.
    d.bmp.data = const_cast<QImage *>(&bitmaps[numero]);
}

void TDispositivo::Bitmap(const wmfBMP_Draw_t &d)
{
    if (!d.bmp.data)
        return;
    const auto &figura = *static_cast<const QImage *>(d.bmp.data);
    const QPointF onde = Ponto(d.pt);
    const QSizeF tamanho(Limitada(d.pixel_width), Limitada(d.pixel_height));
    pintor.setCompositionMode(ModoDoRop3(d.type));
    pintor.setRenderHint(QPainter::SmoothPixmapTransform);
    pintor.drawImage(QRectF(onde, tamanho).normalized(), figura);
}

QFont TDispositivo::Fonte(const wmfFont &fonte, int pixels)
{
    constexpr int Negrito = 600;
    QFont usada(TextoOcidental(fonte.lfFaceName ? fonte.lfFaceName : ""));
    usada.setPixelSize(std::max(1, pixels));
    usada.setBold(fonte.lfWeight >= Negrito);
    usada.setItalic(fonte.lfItalic != 0);
    usada.setUnderline(fonte.lfUnderline != 0);
    usada.setStrikeOut(fonte.lfStrikeOut != 0);
    return usada;
}

float TDispositivo::LarguraDoTexto(const wmfFont &fonte, const char *texto)
{
    const QFontMetricsF medidas(Fonte(fonte, TamanhoDeMedida));
    return float(medidas.horizontalAdvance(TextoOcidental(texto)) / TamanhoDeMedida);
}

/** Where a text begins on its base line, seen from the point it was given. */
QPointF TDispositivo::Alinhado(const QFontMetricsF &medidas, const QString &texto, int alinhamento)
{
    const qreal largura = medidas.horizontalAdvance(texto);
    const int deLado = alinhamento & wmfCentro, emPe = alinhamento & wmfBase;
    return {deLado == wmfCentro    ? -largura / 2
            : deLado == wmfDireita ? -largura
                                   : 0,
            emPe == wmfBase    ? 0
            : emPe == wmfBaixo ? -medidas.descent()
                               : medidas.ascent()};
}

void TDispositivo::Texto(const wmfDrawText_t &d)
{
    constexpr int Opaco = 2, MaiorLetra = 4096;
    constexpr unsigned EnchePano = 2, Recorta = 4;
    pintor.setCompositionMode(QPainter::CompositionMode_SourceOver);
    if (d.flags & EnchePano)
        pintor.fillRect(Entre(d.TL, d.BR), Cor(d.dc->bgcolor));
    const int altura = int(std::min<double>(qAbs(Limitada(d.font_height)), MaiorLetra));
    if (altura < 1)
        return;
    const QString texto = TextoOcidental(d.str ? d.str : "");
    pintor.save();
    if (d.flags & Recorta)
        pintor.setClipRect(Entre(d.TL, d.BR), Qt::IntersectClip);
    pintor.setRenderHint(QPainter::TextAntialiasing);
    pintor.setFont(Fonte(*d.dc->font, altura));
    pintor.translate(Ponto(d.pt));
    pintor.rotate(-d.dc->font->lfEscapement / 10.0);
    const QFontMetricsF medidas(pintor.font());
    pintor.translate(Alinhado(medidas, texto, d.dc->textalign >> wmfDeslocamento));
    if (d.dc->bgmode == Opaco) {
        const QSizeF tamanho(medidas.horizontalAdvance(texto), medidas.height());
        pintor.fillRect(QRectF(QPointF(0, -medidas.ascent()), tamanho), Cor(d.dc->bgcolor));
    }
    pintor.setPen(Cor(d.dc->textcolor));
    pintor.drawText(QPointF(0, 0), texto);
    pintor.restore();
}

void TDispositivo::Recortar(const wmfPolyRectangle_t &d)
{
    if (d.count == 0) {
        pintor.setClipping(false);
        return;
    }
    QRegion regiao;
    for (unsigned i = 0; i < d.count; ++i)
        regiao += Entre(d.TL[i], d.BR[i]).toAlignedRect();
    pintor.setClipRegion(regiao);
}

/** Runs one call of the device; nothing it raises reaches the player, which is no C++. */
template <typename F>
void Chamar(wmfAPI *api, F f) noexcept
{
    auto *dispositivo = static_cast<TDispositivo *>(api->user_data);
    try {
        if (api->err == wmf_E_None && dispositivo)
            f(*dispositivo);
    } catch (const std::bad_alloc &) {
        api->err = wmf_E_InsMem;
    } catch (...) {
        api->err = wmf_E_DeviceError;
    }
}

template <auto Metodo, typename TDados>
void Repassar(wmfAPI *api, TDados *dados) noexcept
{
    Chamar(api, [dados](TDispositivo &d) { (d.*Metodo)(*dados); });
}

template <TDispositivo::TArco Tipo>
void RepassarArco(wmfAPI *api, wmfDrawArc_t *dados) noexcept
{
    Chamar(api, [dados](TDispositivo &d) { d.Arco(*dados, Tipo); });
}

void Nada(wmfAPI *) noexcept {}
template <typename TDados>
void NadaCom(wmfAPI *, TDados *) noexcept
{
}

float Largura(wmfAPI *api, wmfFont *fonte, char *texto) noexcept
{
    float largura = 0;
    Chamar(api, [&](TDispositivo &) { largura = TDispositivo::LarguraDoTexto(*fonte, texto); });
    return largura;
}

/** The player asks for its device once. */
void Ligar(wmfAPI *api) noexcept
{
    auto *f = static_cast<wmfFunctionReference *>(api->function_reference);
    f->device_open = f->device_close = f->device_begin = f->device_end = Nada;
    f->flood_interior = f->flood_exterior = NadaCom<wmfFlood_t>;
    f->draw_pixel = Repassar<&TDispositivo::Pixel, wmfDrawPixel_t>;
    f->draw_pie = RepassarArco<TDispositivo::Pizza>;
    f->draw_chord = RepassarArco<TDispositivo::Corda>;
    f->draw_arc = RepassarArco<TDispositivo::Aberto>;
    f->draw_ellipse = Repassar<&TDispositivo::Elipse, wmfDrawArc_t>;
    f->draw_line = Repassar<&TDispositivo::Linha, wmfDrawLine_t>;
    f->poly_line = Repassar<&TDispositivo::Polilinha, wmfPolyLine_t>;
    f->draw_polygon = Repassar<&TDispositivo::Poligono, wmfPolyLine_t>;
    f->draw_polypolygon = Repassar<&TDispositivo::Poligonos, wmfPolyPoly_t>;
    f->draw_rectangle = Repassar<&TDispositivo::Retangulo, wmfDrawRectangle_t>;
    f->rop_draw = Repassar<&TDispositivo::Preencher, wmfROP_Draw_t>;
    f->bmp_draw = Repassar<&TDispositivo::Bitmap, wmfBMP_Draw_t>;
    f->bmp_read = Repassar<&TDispositivo::LerBitmap, wmfBMP_Read_t>;
    f->bmp_free = NadaCom<wmfBMP>;
    f->draw_text = Repassar<&TDispositivo::Texto, wmfDrawText_t>;
    f->udata_init = f->udata_copy = f->udata_set = f->udata_free = NadaCom<wmfUserData_t>;
    f->region_frame = f->region_paint = NadaCom<wmfPolyRectangle_t>;
    f->region_clip = Repassar<&TDispositivo::Recortar, wmfPolyRectangle_t>;

    auto *fontes = static_cast<wmfFontData *>(wmf_malloc(api, sizeof(wmfFontData)));
    if (!fontes)
        return;
    fontes->map = NadaCom<wmfFont>;
    fontes->stringwidth = Largura;
    fontes->user_data = nullptr;
    api->font_data = fontes;
}

int ContarTempo(void *dispositivo, float) noexcept
{
    return static_cast<TDispositivo *>(dispositivo)->Passou() ? 1 : 0;
}

} // namespace

void TocarWmf(QByteArray arquivo, const std::vector<QImage> &bitmaps, QImage &tela, int fineza,
              int segundos)
{
    TDispositivo dispositivo(tela, bitmaps, fineza, segundos);
    wmfAPI_Options opcoes = {};
    opcoes.function = Ligar;
    wmfAPI *api = nullptr;
    constexpr unsigned long Calado = WMF_OPT_NO_ERROR | WMF_OPT_NO_DEBUG;
    wmf_error_t erro = wmf_lite_create(&api, WMF_OPT_FUNCTION | Calado, &opcoes);
    if (erro == wmf_E_None) {
        api->user_data = &dispositivo;
        wmf_status_function(api, &dispositivo, ContarTempo);
        erro = wmf_mem_open(api, reinterpret_cast<unsigned char *>(arquivo.data()),
                            long(arquivo.size()));
    }
    wmfD_Rect limites = {};
    if (erro == wmf_E_None)
        erro = wmf_scan(api, 0, &limites);
    if (erro == wmf_E_None)
        erro = wmf_play(api, 0, &limites);
    if (api) {
        wmf_mem_close(api);
        wmf_lite_destroy(api);
    }
    if (dispositivo.Passou())
        throw EImagemInvalida(QStringLiteral("o metarquivo demora demais para ser desenhado"));
    if (erro != wmf_E_None)
        throw EImagemInvalida(QStringLiteral("o metarquivo está danificado"));
}

} // namespace ficha
