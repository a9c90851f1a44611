#include "platform/support/RegistrosWmf.h"

#include "platform/support/EImagemInvalida.h"
#include "platform/support/Metafile.h"

#include <QBuffer>
#include <QImageReader>
#include <QRect>
#include <QtEndian>

#include <algorithm>
#include <initializer_list>
#include <limits>
#include <vector>

namespace ficha
{

namespace
{

/** The kinds of records that are looked at; the others are passed over. */
enum TFuncao : quint16 {
    fnFim = 0x0000,
    fnSaveDC = 0x001E,
    fnCreatePalette = 0x00F7,
    fnSetBkMode = 0x0102,
    fnSetMapMode = 0x0103,
    fnSetROP2 = 0x0104,
    fnSetPolyFillMode = 0x0106,
    fnRestoreDC = 0x0127,
    fnSelectObject = 0x012D,
    fnSetTextAlign = 0x012E,
    fnDIBCreatePatternBrush = 0x0142,
    fnDeleteObject = 0x01F0,
    fnCreatePatternBrush = 0x01F9,
    fnSetBkColor = 0x0201,
    fnSetTextColor = 0x0209,
    fnSetWindowOrg = 0x020B,
    fnSetWindowExt = 0x020C,
    fnSetViewportOrg = 0x020D,
    fnSetViewportExt = 0x020E,
    fnOffsetWindowOrg = 0x020F,
    fnLineTo = 0x0213,
    fnMoveTo = 0x0214,
    fnCreatePenIndirect = 0x02FA,
    fnCreateFontIndirect = 0x02FB,
    fnCreateBrushIndirect = 0x02FC,
    fnPolygon = 0x0324,
    fnPolyline = 0x0325,
    fnExcludeClipRect = 0x0415,
    fnIntersectClipRect = 0x0416,
    fnEllipse = 0x0418,
    fnRectangle = 0x041B,
    fnSetPixel = 0x041F,
    fnTextOut = 0x0521,
    fnPolyPolygon = 0x0538,
    fnRoundRect = 0x061C,
    fnPatBlt = 0x061D,
    fnCreateRegion = 0x06FF,
    fnArc = 0x0817,
    fnPie = 0x081A,
    fnChord = 0x0830,
    fnDIBBitBlt = 0x0940,
    fnExtTextOut = 0x0A32,
    fnDIBStretchBlt = 0x0B41,
    fnSetDIBToDev = 0x0D33,
    fnStretchDIB = 0x0F43,
};

constexpr quint32 MarcaPosicionavel = 0x9AC6CDD7;
constexpr qsizetype CabecalhoPosicionavel = 22;
constexpr qsizetype Cabecalho = 18;
constexpr quint16 PalavrasDoCabecalho = 9;
constexpr qsizetype CabecalhoDoRegistro = 6;
constexpr int MapAnisotropico = 8;
constexpr int MapPrimeiroMetrico = 2, MapUltimoMetrico = 6;
constexpr int MaisObjetos = 8192;
constexpr int MaisSalvos = 64;
constexpr int MaisExclusoes = 16;
constexpr int MaisLetras = 2000;
/** Of one record: it is drawn to its end whatever time that takes. */
constexpr int MaisPontos = 65'535;
constexpr int MaiorLadoDeBitmap = 16384;
constexpr qint64 MaisPixels = 64LL * 1024 * 1024;
constexpr qsizetype CabecalhoDoDib = 40;
constexpr int PontosPorPolegada = 96;
constexpr int OpcaoComRetangulo = 0x0006;
constexpr int EstiloHachura = 2, UltimaHachura = 5;

/** Slots of the file's objects that are not one of ours. */
constexpr int Livre = -1, SemObjeto = -2;

[[noreturn]] void Danificado()
{
    throw EImagemInvalida(QStringLiteral("o metarquivo está danificado ou incompleto"));
}

/** The parameters of one record: 16-bit words, each read within their bounds. */
class TParametros
{
public:
    TParametros(const char *inicio, qsizetype bytes) : dados(inicio), tamanho(bytes / 2) {}

    qsizetype Count() const { return tamanho; }
    void Exigir(qsizetype palavras) const
    {
        if (palavras > tamanho)
            Danificado();
    }
    quint16 U(qsizetype i) const
    {
        Exigir(i + 1);
        return qFromLittleEndian<quint16>(dados + i * 2);
    }
    qint16 S(qsizetype i) const { return qint16(U(i)); }
    quint32 Longo(qsizetype i) const { return U(i) | quint32(U(i + 1)) << 16; }
    QByteArrayView Bytes(qsizetype i, qsizetype quantos) const
    {
        Exigir(i + (quantos + 1) / 2);
        return {dados + i * 2, quantos};
    }
    QByteArrayView Resto(qsizetype i) const
    {
        Exigir(i);
        return {dados + i * 2, (tamanho - i) * 2};
    }

private:
    const char *dados;
    qsizetype tamanho;
};

void PorU16(QByteArray &em, quint16 v)
{
    em.append(char(v & 0xFF)).append(char(v >> 8));
}

void PorU32(QByteArray &em, quint32 v)
{
    PorU16(em, quint16(v & 0xFFFF));
    PorU16(em, quint16(v >> 16));
}

void PorRegistro(QByteArray &em, quint16 funcao, std::initializer_list<int> palavras,
                 QByteArrayView cauda = {})
{
    PorU32(em, quint32(3 + palavras.size() + size_t(cauda.size() + 1) / 2));
    PorU16(em, funcao);
    for (const int p : palavras)
        PorU16(em, quint16(p));
    em.append(cauda);
    if (cauda.size() % 2)
        em.append('\0');
}

/** The player sees every text on its base line from the left; how it is aligned, which it gets
 * wrong, is carried in the bits above. */
int AlinhamentoDoWmf(int alinhamento)
{
    constexpr int LinhaDeBase = 24;
    return LinhaDeBase | (alinhamento & wmfAlinhamento) << wmfDeslocamento;
}

/** The nearest number that a record holds. */
int DeRegistro(int v)
{
    return std::clamp<int>(v, std::numeric_limits<qint16>::min(),
                           std::numeric_limits<qint16>::max());
}

/** Whether a bitmap's header makes sense and its pixels are there. */
bool DibInteiro(QByteArrayView dib)
{
    enum { SemCompressao, Rle8, Rle4, Mascaras };
    if (dib.size() < CabecalhoDoDib)
        return false;
    const auto longo = [&](qsizetype i) { return qFromLittleEndian<qint32>(dib.data() + i); };
    const auto curto = [&](qsizetype i) { return qFromLittleEndian<quint16>(dib.data() + i); };
    const qint64 largura = longo(4), altura = qAbs(qint64(longo(8)));
    const qint64 bits = curto(14), compressao = longo(16), cores = quint32(longo(32));
    if (longo(0) != CabecalhoDoDib || largura < 1 || altura < 1 || largura > MaiorLadoDeBitmap ||
        altura > MaiorLadoDeBitmap || curto(12) != 1)
        return false;
    if (bits != 1 && bits != 4 && bits != 8 && bits != 16 && bits != 24 && bits != 32)
        return false;
    if (compressao < SemCompressao || compressao > Mascaras || cores > 256)
        return false;
    const qint64 paleta = bits > 8 ? cores : (cores ? cores : qint64(1) << bits);
    const qint64 mascaras = compressao == Mascaras ? 3 * 4 : 0;
    const bool comprimido = compressao == Rle8 || compressao == Rle4;
    const qint64 linha = comprimido ? 0 : (largura * bits + 31) / 32 * 4;
    return dib.size() >= CabecalhoDoDib + mascaras + paleta * 4 + linha * altura;
}

/** The picture that a device independent bitmap holds; null when it does not add up. */
QImage LerDib(QByteArrayView dib)
{
    if (!DibInteiro(dib))
        return {};
    QBuffer dados;
    dados.setData(dib.data(), int(dib.size()));
    dados.open(QIODevice::ReadOnly);
    return QImageReader(&dados, "dib").read().convertToFormat(QImage::Format_RGB32);
}

/** A bitmap of one pixel that carries a number where its resolution stands. */
QByteArray DibNumerado(int numero)
{
    QByteArray dib;
    PorU32(dib, quint32(CabecalhoDoDib));
    PorU32(dib, 1);
    PorU32(dib, 1);
    PorU16(dib, 1);
    PorU16(dib, 24);
    PorU32(dib, 0);
    PorU32(dib, 4);
    PorU32(dib, quint32(numero));
    for (int i = 0; i < 4; ++i)
        PorU32(dib, 0);
    return dib;
}

/** Walks the records of a file and writes the sound ones down. */
class TTranscricao
{
public:
    TRegistrosWmf Ler(const QByteArray &arquivo);

private:
    void LerCabecalhos(const QByteArray &arquivo);
    template <typename F>
    void Percorrer(const QByteArray &arquivo, F visita) const;
    void Registro(quint16 funcao, const TParametros &p);
    bool Plano(quint16 funcao, const TParametros &p);
    bool Estado(quint16 funcao, const TParametros &p);
    bool Objeto(quint16 funcao, const TParametros &p);
    bool Forma(quint16 funcao, const TParametros &p);
    bool Texto(quint16 funcao, const TParametros &p);
    bool Bitmap(quint16 funcao, const TParametros &p);

    void Copiar(quint16 funcao, const TParametros &p, qsizetype palavras);
    void Poligonal(quint16 funcao, const TParametros &p);
    void Poligonos(const TParametros &p);
    void Letras(const TParametros &p);
    void Restaurar(int quantos);
    void Criar(quint16 funcao, std::initializer_list<int> palavras, QByteArrayView cauda = {});
    void Ocupar(int objeto);
    void CriarFonte(const TParametros &p);
    void Escolher(int indice);
    void Apagar(int indice);
    void PorBitmap(quint32 rop, QRect de, QRect para, QByteArrayView dib);
    void Arco(quint16 funcao, const TParametros &p);
    void Ver(int x, int y);
    void VerRetangulo(const TParametros &p, qsizetype i);
    void Enquadrar(TRegistrosWmf &lido) const;

    QByteArray criacoes, saida;
    qsizetype inicio = 0;
    bool posicionavel = false;
    QRect moldura;
    int unidadesPorPolegada = PontosPorPolegada;

    std::vector<int> ranhuras;
    int objetos = 0, salvos = 0, exclusoes = 0;
    bool temOrigem = false, temExtensao = false, metrico = false, viu = false;
    /** The window's axes run leftwards, upwards. */
    bool recuaX = false, recuaY = false;
    qint64 pixels = 0;
    std::vector<QImage> bitmaps;
    QPoint origem;
    QSize extensao{0, 0};
    int esquerda = 0, topo = 0, direita = 0, baixo = 0;
};

TRegistrosWmf TTranscricao::Ler(const QByteArray &arquivo)
{
    if (arquivo.size() > TMetafile::MaiorArquivo)
        throw EImagemInvalida(QStringLiteral("o metarquivo é grande demais"));
    LerCabecalhos(arquivo);
    // A drawing without a window of its own is framed from outside, its origin too.
    Percorrer(arquivo, [this](quint16 funcao, const TParametros &p) {
        temExtensao |= funcao == fnSetWindowExt && p.S(0) != 0 && p.S(1) != 0;
    });
    Percorrer(arquivo, [this](quint16 funcao, const TParametros &p) { Registro(funcao, p); });
    TRegistrosWmf lido;
    PorRegistro(lido.bytes, fnSaveDC, {});
    lido.bytes += criacoes;
    PorRegistro(lido.bytes, fnRestoreDC, {-1});
    PorRegistro(lido.bytes, fnSetTextAlign, {AlinhamentoDoWmf(0)});
    lido.bytes += saida;
    lido.objetos = objetos;
    lido.bitmaps = std::move(bitmaps);
    Enquadrar(lido);
    return lido;
}

void TTranscricao::LerCabecalhos(const QByteArray &arquivo)
{
    if (arquivo.size() >= CabecalhoPosicionavel &&
        qFromLittleEndian<quint32>(arquivo.constData()) == MarcaPosicionavel) {
        const TParametros p(arquivo.constData(), CabecalhoPosicionavel);
        moldura = QRect(QPoint(p.S(3), p.S(4)), QSize(p.S(5) - p.S(3), p.S(6) - p.S(4)));
        posicionavel = moldura.width() != 0 && moldura.height() != 0;
        if (p.U(7) > 0)
            unidadesPorPolegada = p.U(7);
        inicio = CabecalhoPosicionavel;
    }
    if (arquivo.size() < inicio + Cabecalho)
        Danificado();
    const TParametros p(arquivo.constData() + inicio, Cabecalho);
    if (p.U(0) > 2 || p.U(1) != PalavrasDoCabecalho || (p.U(2) != 0x0100 && p.U(2) != 0x0300))
        Danificado();
    inicio += Cabecalho;
}

/** Every record up to the closing one, which must be there. */
template <typename F>
void TTranscricao::Percorrer(const QByteArray &arquivo, F visita) const
{
    int lidos = 0;
    for (qsizetype i = inicio;;) {
        if (arquivo.size() - i < CabecalhoDoRegistro)
            Danificado();
        const char *aqui = arquivo.constData() + i;
        const qint64 bytes = qint64(qFromLittleEndian<quint32>(aqui)) * 2;
        const quint16 funcao = qFromLittleEndian<quint16>(aqui + 4);
        if (funcao == fnFim)
            return;
        if (bytes < CabecalhoDoRegistro || bytes > arquivo.size() - i)
            Danificado();
        if (++lidos > TMetafile::MaisRegistros)
            throw EImagemInvalida(QStringLiteral("o metarquivo tem desenhos demais"));
        visita(funcao, TParametros(aqui + CabecalhoDoRegistro, bytes - CabecalhoDoRegistro));
        i += bytes;
    }
}

void TTranscricao::Registro(quint16 funcao, const TParametros &p)
{
    Plano(funcao, p) || Estado(funcao, p) || Objeto(funcao, p) || Forma(funcao, p) ||
        Texto(funcao, p) || Bitmap(funcao, p);
}

/** Where the drawing stands. The picture's own viewport is set by MontarWmf alone. */
bool TTranscricao::Plano(quint16 funcao, const TParametros &p)
{
    switch (funcao) {
    case fnSetMapMode:
        metrico = p.S(0) >= MapPrimeiroMetrico && p.S(0) <= MapUltimoMetrico;
        if (!temExtensao)
            recuaY = metrico;
        return true;
    case fnSetWindowOrg:
        if (!temExtensao)
            return true;
        if (!temOrigem)
            origem = QPoint(p.S(1), p.S(0));
        temOrigem = true;
        Copiar(funcao, p, 2);
        return true;
    case fnSetWindowExt:
        if (p.S(0) == 0 || p.S(1) == 0)
            return true;
        if (extensao.isNull())
            extensao = QSize(p.S(1), p.S(0));
        recuaX = p.S(1) < 0;
        recuaY = p.S(0) < 0;
        Copiar(funcao, p, 2);
        return true;
    case fnOffsetWindowOrg:
        if (temExtensao)
            Copiar(funcao, p, 2);
        return true;
    case fnIntersectClipRect:
        Copiar(funcao, p, 4);
        return true;
    case fnExcludeClipRect:
        // Each one may split every rectangle of the region into four.
        if (++exclusoes <= MaisExclusoes)
            Copiar(funcao, p, 4);
        return true;
    default:
        return false;
    }
}

bool TTranscricao::Estado(quint16 funcao, const TParametros &p)
{
    switch (funcao) {
    case fnSetBkMode:
    case fnSetPolyFillMode:
        if (p.U(0) == 1 || p.U(0) == 2)
            Copiar(funcao, p, 1);
        return true;
    case fnSetROP2:
        if (p.U(0) >= 1 && p.U(0) <= 16)
            Copiar(funcao, p, 1);
        return true;
    case fnSetTextAlign:
        PorRegistro(saida, funcao, {AlinhamentoDoWmf(p.U(0))});
        return true;
    case fnSetBkColor:
    case fnSetTextColor:
        Copiar(funcao, p, 2);
        return true;
    case fnSaveDC:
        if (salvos < MaisSalvos) {
            ++salvos;
            Copiar(funcao, p, 0);
        }
        return true;
    case fnRestoreDC:
        // Relative to the newest when negative, else the number of a level.
        Restaurar(p.S(0) < 0 ? -p.S(0) : salvos - p.S(0) + 1);
        return true;
    default:
        return false;
    }
}

void TTranscricao::Restaurar(int quantos)
{
    if (quantos < 1 || quantos > salvos)
        return;
    salvos -= quantos;
    for (int i = 0; i < quantos; ++i)
        PorRegistro(saida, fnRestoreDC, {-1});
}

bool TTranscricao::Objeto(quint16 funcao, const TParametros &p)
{
    switch (funcao) {
    case fnCreatePenIndirect:
        p.Exigir(5);
        Criar(funcao, {p.U(0), p.U(1), p.U(2), p.U(3), p.U(4)});
        return true;
    case fnCreateBrushIndirect: {
        const int estilo = p.U(0) <= EstiloHachura ? p.U(0) : 0;
        Criar(funcao, {estilo, p.U(1), p.U(2), std::min<int>(p.U(3), UltimaHachura)});
        return true;
    }
    case fnCreateFontIndirect:
        CriarFonte(p);
        return true;
    case fnDIBCreatePatternBrush:
    case fnCreatePatternBrush:
        // A pattern becomes a grey, which is what most are used for.
        Criar(fnCreateBrushIndirect, {0, 0xC0C0, 0x00C0, 0});
        return true;
    case fnCreatePalette:
    case fnCreateRegion:
        Ocupar(SemObjeto);
        return true;
    case fnSelectObject:
        Escolher(p.U(0));
        return true;
    case fnDeleteObject:
        Apagar(p.U(0));
        return true;
    default:
        return false;
    }
}

/**
 * A new object has a number of its own, which is never free again: what was selected once is never
 * gone. All are created before the drawing begins, because the player selects what it creates.
 */
void TTranscricao::Criar(quint16 funcao, std::initializer_list<int> palavras, QByteArrayView cauda)
{
    if (objetos >= MaisObjetos)
        throw EImagemInvalida(QStringLiteral("o metarquivo tem objetos demais"));
    PorRegistro(criacoes, funcao, palavras, cauda);
    Ocupar(objetos++);
}

/** A new object takes the first free slot of the file's own table. */
void TTranscricao::Ocupar(int objeto)
{
    auto livre = std::ranges::find(ranhuras, Livre);
    if (livre == ranhuras.end())
        livre = ranhuras.insert(livre, Livre);
    *livre = objeto;
    if (ranhuras.size() > size_t(MaisObjetos) * 2)
        throw EImagemInvalida(QStringLiteral("o metarquivo tem objetos demais"));
}

void TTranscricao::Escolher(int indice)
{
    if (size_t(indice) < ranhuras.size() && ranhuras[size_t(indice)] >= 0)
        PorRegistro(saida, fnSelectObject, {ranhuras[size_t(indice)]});
}

void TTranscricao::Apagar(int indice)
{
    if (size_t(indice) < ranhuras.size())
        ranhuras[size_t(indice)] = Livre;
}

void TTranscricao::CriarFonte(const TParametros &p)
{
    constexpr qsizetype ParaONome = 9, MaiorNome = 32;
    p.Exigir(ParaONome);
    QByteArrayView nome = p.Resto(ParaONome);
    nome = nome.first(std::min(nome.size(), MaiorNome - 1));
    if (const qsizetype fim = nome.indexOf('\0'); fim >= 0)
        nome = nome.first(fim);
    // A positive height is that of a whole line, the letters a tenth less.
    constexpr int AlturaPadrao = 12;
    const int altura = p.S(0);
    const int letras = altura == 0  ? -AlturaPadrao
                       : altura > 0 ? -std::max(1, altura * 9 / 10)
                                    : altura;
    QByteArray cauda = nome.toByteArray();
    cauda.append(2 - cauda.size() % 2, '\0');
    Criar(fnCreateFontIndirect,
          {letras, p.S(1), p.S(2), p.S(3), p.U(4), p.U(5), p.U(6), p.U(7), p.U(8)}, cauda);
}

bool TTranscricao::Forma(quint16 funcao, const TParametros &p)
{
    switch (funcao) {
    case fnMoveTo:
    case fnLineTo:
        Ver(p.S(1), p.S(0));
        Copiar(funcao, p, 2);
        return true;
    case fnPolygon:
    case fnPolyline:
        Poligonal(funcao, p);
        return true;
    case fnPolyPolygon:
        Poligonos(p);
        return true;
    case fnRectangle:
    case fnEllipse:
        VerRetangulo(p, 0);
        Copiar(funcao, p, 4);
        return true;
    case fnRoundRect:
        VerRetangulo(p, 2);
        Copiar(funcao, p, 6);
        return true;
    case fnArc:
    case fnPie:
    case fnChord:
        Arco(funcao, p);
        return true;
    case fnSetPixel:
        Ver(p.S(3), p.S(2));
        Copiar(funcao, p, 4);
        return true;
    case fnPatBlt:
        Ver(p.S(5), p.S(4));
        Ver(p.S(5) + p.S(3), p.S(4) + p.S(2));
        Copiar(funcao, p, 6);
        return true;
    default:
        return false;
    }
}

/** The player cuts rays off at the box, each way by itself: they are shortened to fit in it. */
void TTranscricao::Arco(quint16 funcao, const TParametros &p)
{
    VerRetangulo(p, 4);
    const double cx = (p.S(5) + p.S(7)) / 2.0, cy = (p.S(4) + p.S(6)) / 2.0;
    const double rx = qAbs(p.S(5) - p.S(7)) / 2.0, ry = qAbs(p.S(4) - p.S(6)) / 2.0;
    const auto encurtar = [&](qsizetype i) {
        const double dx = p.S(i + 1) - cx, dy = p.S(i) - cy;
        const double longe = std::max(rx > 0 ? qAbs(dx) / rx : 1, ry > 0 ? qAbs(dy) / ry : 1);
        const double fator = longe > 1 ? 1 / longe : 1;
        return QPoint(qRound(cx + dx * fator), qRound(cy + dy * fator));
    };
    const QPoint fim = encurtar(0), comeco = encurtar(2);
    PorRegistro(saida, funcao,
                {fim.y(), fim.x(), comeco.y(), comeco.x(), p.S(4), p.S(5), p.S(6), p.S(7)});
}

void TTranscricao::Poligonal(quint16 funcao, const TParametros &p)
{
    const int pontos = p.S(0);
    if (pontos < 2)
        return;
    p.Exigir(1 + qsizetype(pontos) * 2);
    for (int i = 0; i < pontos; ++i)
        Ver(p.S(1 + i * 2), p.S(2 + i * 2));
    Copiar(funcao, p, 1 + qsizetype(pontos) * 2);
}

void TTranscricao::Poligonos(const TParametros &p)
{
    const int quantos = p.U(0);
    p.Exigir(1 + quantos);
    QByteArray contagens, pontos;
    qsizetype i = 1 + quantos;
    int bons = 0, total = 0;
    for (int n = 0; n < quantos; ++n) {
        const int doPoligono = p.U(1 + n);
        total += doPoligono;
        if (total > MaisPontos)
            throw EImagemInvalida(QStringLiteral("o metarquivo tem desenhos demais"));
        p.Exigir(i + qsizetype(doPoligono) * 2);
        if (doPoligono >= 3) {
            ++bons;
            PorU16(contagens, quint16(doPoligono));
            pontos.append(p.Bytes(i, qsizetype(doPoligono) * 4));
            for (qsizetype k = 0; k < doPoligono; ++k)
                Ver(p.S(i + k * 2), p.S(i + k * 2 + 1));
        }
        i += qsizetype(doPoligono) * 2;
    }
    if (bons > 0)
        PorRegistro(saida, fnPolyPolygon, {bons}, contagens + pontos);
}

bool TTranscricao::Texto(quint16 funcao, const TParametros &p)
{
    if (funcao == fnTextOut) {
        const int letras = std::clamp<int>(p.S(0), 0, MaisLetras);
        const QByteArrayView texto = p.Bytes(1, std::max<int>(p.S(0), 0));
        const qsizetype depois = 1 + (texto.size() + 1) / 2;
        const int y = p.S(depois), x = p.S(depois + 1);
        if (letras == 0)
            return true;
        Ver(x, y);
        // The same record as below: without options it says the same.
        PorRegistro(saida, fnExtTextOut, {y, x, letras, 0}, texto.first(letras));
        return true;
    }
    if (funcao != fnExtTextOut)
        return false;
    Letras(p);
    return true;
}

void TTranscricao::Letras(const TParametros &p)
{
    const int opcoes = p.U(3) & OpcaoComRetangulo;
    const qsizetype antes = opcoes ? 8 : 4;
    p.Exigir(antes);
    const QByteArrayView texto = p.Bytes(antes, std::max<int>(p.S(2), 0));
    const int letras = std::min<int>(int(texto.size()), MaisLetras);
    Ver(p.S(1), p.S(0));
    if (letras == 0)
        return;
    if (opcoes)
        PorRegistro(saida, fnExtTextOut,
                    {p.S(0), p.S(1), letras, opcoes, p.S(4), p.S(5), p.S(6), p.S(7)},
                    texto.first(letras));
    else
        PorRegistro(saida, fnExtTextOut, {p.S(0), p.S(1), letras, 0}, texto.first(letras));
}

/** The same part of a bitmap counted from above, where a record counts from below; bitmaps stored
 * from above have a negative height and need none of it. */
QRect DeBaixo(QRect parte, QByteArrayView dib)
{
    if (dib.size() < CabecalhoDoDib)
        return {};
    const qint64 altura = qFromLittleEndian<qint32>(dib.data() + 8);
    if (altura > 0 && altura <= MaiorLadoDeBitmap)
        parte.moveTop(int(altura) - parte.y() - parte.height());
    return parte;
}

/** All kinds of copying a bitmap become one, and copying nothing becomes a fill. */
bool TTranscricao::Bitmap(quint16 funcao, const TParametros &p)
{
    // A record that ends before its bitmap tells so by its length.
    const bool semBitmap = p.Count() == (funcao >> 8);
    switch (funcao) {
    case fnDIBBitBlt:
        if (semBitmap)
            PorRegistro(saida, fnPatBlt, {p.U(0), p.U(1), p.S(5), p.S(6), p.S(7), p.S(8)});
        else
            PorBitmap(p.Longo(0), {p.S(3), p.S(2), p.S(5), p.S(4)},
                      {p.S(7), p.S(6), p.S(5), p.S(4)}, p.Resto(8));
        return true;
    case fnDIBStretchBlt:
        if (semBitmap)
            PorRegistro(saida, fnPatBlt, {p.U(0), p.U(1), p.S(7), p.S(8), p.S(9), p.S(10)});
        else
            PorBitmap(p.Longo(0), {p.S(5), p.S(4), p.S(3), p.S(2)},
                      {p.S(9), p.S(8), p.S(7), p.S(6)}, p.Resto(10));
        return true;
    case fnStretchDIB:
        if (!semBitmap)
            PorBitmap(p.Longo(0), DeBaixo({p.S(6), p.S(5), p.S(4), p.S(3)}, p.Resto(11)),
                      {p.S(10), p.S(9), p.S(8), p.S(7)}, p.Resto(11));
        return true;
    case fnSetDIBToDev: {
        constexpr quint32 Copia = 0x00CC0020;
        PorBitmap(Copia, DeBaixo({p.S(4), p.S(3), p.S(6), p.S(5)}, p.Resto(9)),
                  {p.S(8), p.S(7), p.S(6), p.S(5)}, p.Resto(9));
        return true;
    }
    default:
        return false;
    }
}

/**
 * One whole bitmap or a part of it, counted from its upper left corner; a part outside it, or a
 * bitmap that does not add up, draws nothing. The player sees a bitmap of one pixel, stretched;
 * the device puts ours in its place. A negative size mirrors, so does an axis that runs back.
 */
void TTranscricao::PorBitmap(quint32 rop, QRect de, QRect para, QByteArrayView dib)
{
    QImage figura = LerDib(dib);
    pixels += qint64(figura.width()) * figura.height();
    if (figura.isNull() || para.width() == 0 || para.height() == 0)
        return;
    if (pixels > MaisPixels)
        throw EImagemInvalida(QStringLiteral("o metarquivo tem bitmaps demais"));
    if (!de.isEmpty() && figura.rect().contains(de) && de != figura.rect())
        figura = figura.copy(de);
    const bool voltaX = recuaX != (para.width() < 0), voltaY = recuaY != (para.height() < 0);
    if (voltaX || voltaY)
        figura = figura.mirrored(voltaX, voltaY);
    const int x2 = para.x() + para.width(), y2 = para.y() + para.height();
    Ver(para.x(), para.y());
    Ver(x2, y2);
    // The corner that comes to lie at the upper left, and sizes without a sign.
    const int x = recuaX ? std::max(para.x(), x2) : std::min(para.x(), x2);
    const int y = recuaY ? std::max(para.y(), y2) : std::min(para.y(), y2);
    bitmaps.push_back(figura);
    PorRegistro(saida, fnStretchDIB,
                {int(rop & 0xFFFF), int(rop >> 16), 0, 1, 1, 0, 0, qAbs(para.height()),
                 qAbs(para.width()), DeRegistro(y), DeRegistro(x)},
                DibNumerado(int(bitmaps.size()) - 1));
}

void TTranscricao::Copiar(quint16 funcao, const TParametros &p, qsizetype palavras)
{
    PorRegistro(saida, funcao, {}, p.Bytes(0, palavras * 2));
}

/** The drawing reaches this point. */
void TTranscricao::Ver(int x, int y)
{
    if (!viu) {
        esquerda = direita = x;
        topo = baixo = y;
    }
    viu = true;
    esquerda = std::min(esquerda, x);
    direita = std::max(direita, x);
    topo = std::min(topo, y);
    baixo = std::max(baixo, y);
}

/** A rectangle as records hold it: bottom, right, top, left. */
void TTranscricao::VerRetangulo(const TParametros &p, qsizetype i)
{
    Ver(p.S(i + 1), p.S(i));
    Ver(p.S(i + 3), p.S(i + 2));
}

/** The part of the plane that the picture shows: the drawing's own window; without one what the
 * file's header frames; without that what was drawn. In the metric planes y grows upwards. */
void TTranscricao::Enquadrar(TRegistrosWmf &lido) const
{
    lido.origem = origem;
    lido.extensao = extensao;
    if (!temExtensao) {
        const QRect quadro = posicionavel ? moldura.normalized()
                                          : QRect(esquerda, topo, std::max(1, direita - esquerda),
                                                  std::max(1, baixo - topo));
        const int largura = DeRegistro(quadro.width()), altura = DeRegistro(quadro.height());
        lido.origem = QPoint(quadro.x(), metrico ? DeRegistro(quadro.y() + altura) : quadro.y());
        lido.extensao = QSize(largura, metrico ? -altura : altura);
    }
    const QSize unidades = posicionavel ? moldura.size() : lido.extensao;
    const double escala = posicionavel ? double(PontosPorPolegada) / unidadesPorPolegada : 1;
    const double maior = std::max(qAbs(unidades.width()), qAbs(unidades.height())) * escala;
    const double fator = escala * std::min(1.0, TMetafile::MaiorLado / maior);
    lido.natural = QSize(std::max(1, qRound(qAbs(unidades.width()) * fator)),
                         std::max(1, qRound(qAbs(unidades.height()) * fator)));
}

} // namespace

TRegistrosWmf LerRegistrosWmf(const QByteArray &arquivo)
{
    return TTranscricao().Ler(arquivo);
}

QByteArray MontarWmf(const QByteArray &registros, int objetos, QPoint origem, QSize extensao,
                     QSize pixels)
{
    QByteArray corpo;
    PorRegistro(corpo, fnSetMapMode, {MapAnisotropico});
    PorRegistro(corpo, fnSetViewportOrg, {0, 0});
    PorRegistro(corpo, fnSetViewportExt, {pixels.height(), pixels.width()});
    PorRegistro(corpo, fnSetWindowOrg, {origem.y(), origem.x()});
    PorRegistro(corpo, fnSetWindowExt, {extensao.height(), extensao.width()});
    corpo += registros;
    PorRegistro(corpo, fnFim, {});
    quint32 maior = 0;
    for (qsizetype i = 0; i < corpo.size();) {
        const auto palavras = qFromLittleEndian<quint32>(corpo.constData() + i);
        maior = std::max(maior, palavras);
        i += qsizetype(palavras) * 2;
    }
    QByteArray arquivo;
    PorU16(arquivo, 1);
    PorU16(arquivo, PalavrasDoCabecalho);
    PorU16(arquivo, 0x0300);
    PorU32(arquivo, quint32((Cabecalho + corpo.size()) / 2));
    PorU16(arquivo, quint16(objetos));
    PorU32(arquivo, maior);
    PorU16(arquivo, 0);
    return arquivo + corpo;
}

} // namespace ficha
