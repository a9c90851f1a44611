#include "platform/support/IntegridadeDeImagem.h"

#include <QtEndian>

#include <cstring>

namespace ficha
{

namespace
{

/** Markers of a JPEG file, the byte behind 0xFF. */
enum TMarca : quint8 {
    mkNada = 0x00,
    mkTemporario = 0x01,
    mkProgressivo = 0xC2,
    mkReinicio0 = 0xD0,
    mkReinicio7 = 0xD7,
    mkInicio = 0xD8,
    mkFim = 0xD9,
    mkVarredura = 0xDA,
    mkMarca = 0xFF,
};

constexpr qint64 MaisPixelsProgressivos = 64'000'000;

quint8 Byte(const QByteArray &bytes, qsizetype i)
{
    return quint8(bytes[i]);
}

bool SemTamanho(quint8 marca)
{
    return marca == mkTemporario || (marca >= mkReinicio0 && marca <= mkReinicio7);
}

/** The first marker at or behind a place in the coded pixels: no stuffed zero and no restart. */
qsizetype ProximaMarca(const QByteArray &bytes, qsizetype i)
{
    while (i + 1 < bytes.size()) {
        const void *ff = std::memchr(bytes.constData() + i, mkMarca, size_t(bytes.size() - 1 - i));
        if (!ff)
            break;
        i = static_cast<const char *>(ff) - bytes.constData();
        const quint8 marca = Byte(bytes, i + 1);
        if (marca != mkNada && marca != mkMarca && !SemTamanho(marca))
            return i;
        i += marca == mkMarca ? 1 : 2;
    }
    return bytes.size();
}

bool ProgressivoGrandeDemais(const QByteArray &bytes, qsizetype segmento)
{
    const qint64 altura = qFromBigEndian<quint16>(bytes.constData() + segmento + 3);
    const qint64 largura = qFromBigEndian<quint16>(bytes.constData() + segmento + 5);
    return altura * largura > MaisPixelsProgressivos;
}

} // namespace

bool JpegInteiro(const QByteArray &bytes)
{
    constexpr qsizetype MenorQuadro = 8;
    if (bytes.size() < 4 || Byte(bytes, 0) != mkMarca || Byte(bytes, 1) != mkInicio)
        return false;
    bool varrida = false;
    for (qsizetype i = 2; i + 1 < bytes.size();) {
        if (Byte(bytes, i) != mkMarca)
            return false;
        const quint8 marca = Byte(bytes, i + 1);
        if (marca == mkFim)
            return varrida;
        if (marca == mkMarca || SemTamanho(marca)) {
            i += marca == mkMarca ? 1 : 2;
            continue;
        }
        if (i + 3 >= bytes.size())
            return false;
        const qsizetype segmento = i + 2;
        const qsizetype tamanho = qFromBigEndian<quint16>(bytes.constData() + segmento);
        if (tamanho < 2 || tamanho > bytes.size() - segmento)
            return false;
        if (marca == mkProgressivo &&
            (tamanho < MenorQuadro || ProgressivoGrandeDemais(bytes, segmento)))
            return false;
        i = segmento + tamanho;
        if (marca == mkVarredura) {
            varrida = true;
            i = ProximaMarca(bytes, i);
        }
    }
    return false;
}

bool BitmapInteiro(const QByteArray &bytes)
{
    constexpr qsizetype CabecalhoDoArquivo = 14, Antigo = 12, Moderno = 40;
    constexpr quint32 Rle8 = 1, Rle4 = 2;
    if (bytes.size() < CabecalhoDoArquivo + Antigo || !bytes.startsWith("BM"))
        return false;
    const char *b = bytes.constData();
    const qint64 inicio = qFromLittleEndian<quint32>(b + 10);
    const quint32 cabecalho = qFromLittleEndian<quint32>(b + 14);
    qint64 largura = 0, altura = 0, bits = 0;
    if (cabecalho == Antigo) {
        largura = qFromLittleEndian<quint16>(b + 18);
        altura = qFromLittleEndian<quint16>(b + 20);
        bits = qFromLittleEndian<quint16>(b + 24);
    } else {
        if (cabecalho < Moderno || bytes.size() < CabecalhoDoArquivo + Moderno)
            return false;
        const quint32 compressao = qFromLittleEndian<quint32>(b + 30);
        if (compressao == Rle8 || compressao == Rle4)
            return true;
        largura = qFromLittleEndian<qint32>(b + 18);
        altura = qAbs(qint64(qFromLittleEndian<qint32>(b + 22)));
        bits = qFromLittleEndian<quint16>(b + 28);
    }
    if (largura < 1 || altura < 1 || bits > 32)
        return false;
    return inicio + (largura * bits + 31) / 32 * 4 * altura <= bytes.size();
}

bool IconeInteiro(const QByteArray &bytes)
{
    constexpr qsizetype Cabecalho = 6, Entrada = 16;
    if (bytes.size() < Cabecalho || !bytes.startsWith(QByteArray("\0\0\1\0", 4)))
        return false;
    const qsizetype quantos = qFromLittleEndian<quint16>(bytes.constData() + 4);
    if (quantos == 0 || bytes.size() < Cabecalho + quantos * Entrada)
        return false;
    for (qsizetype i = 0; i < quantos; ++i) {
        const char *entrada = bytes.constData() + Cabecalho + i * Entrada;
        const qint64 tamanho = qFromLittleEndian<quint32>(entrada + 8);
        const qint64 onde = qFromLittleEndian<quint32>(entrada + 12);
        if (tamanho == 0 || onde + tamanho > bytes.size())
            return false;
    }
    return true;
}

} // namespace ficha
