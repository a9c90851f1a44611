#pragma once

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QList>
#include <QPainter>
#include <QTemporaryDir>
#include <QtEndian>

#include <initializer_list>
#include <utility>

#include <fcntl.h>
#include <sys/stat.h>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** Writes the records of a Windows metafile by hand. */
class TGravadorWmf
{
public:
    enum TFuncao : quint16 {
        Fim = 0x0000,
        SaveDC = 0x001E,
        SetBkMode = 0x0102,
        SetMapMode = 0x0103,
        SetROP2 = 0x0104,
        RestoreDC = 0x0127,
        SelectObject = 0x012D,
        SetTextAlign = 0x012E,
        DeleteObject = 0x01F0,
        SetTextColor = 0x0209,
        SetWindowOrg = 0x020B,
        SetWindowExt = 0x020C,
        LineTo = 0x0213,
        MoveTo = 0x0214,
        CreatePenIndirect = 0x02FA,
        CreateFontIndirect = 0x02FB,
        CreateBrushIndirect = 0x02FC,
        Polygon = 0x0324,
        IntersectClipRect = 0x0416,
        Ellipse = 0x0418,
        Rectangle = 0x041B,
        TextOut = 0x0521,
        PolyPolygon = 0x0538,
        PatBlt = 0x061D,
        Pie = 0x081A,
        ExtTextOut = 0x0A32,
        DIBStretchBlt = 0x0B41,
    };
    static constexpr int SemContorno = 5;

    void Por(quint16 funcao, std::initializer_list<int> palavras = {}, QByteArray cauda = {})
    {
        if (cauda.size() % 2)
            cauda.append('\0');
        U32(registros, quint32(3 + palavras.size() + size_t(cauda.size()) / 2));
        U16(registros, funcao);
        for (const int p : palavras)
            U16(registros, p);
        registros += cauda;
    }
    /** A window from (x, y); pen and brush for filled shapes without a line. */
    void Janela(int x, int y, int largura, int altura)
    {
        Por(SetWindowOrg, {y, x});
        Por(SetWindowExt, {altura, largura});
    }
    /** Creates and selects; 0x00BBGGRR. */
    void Pincel(int cor)
    {
        Por(CreateBrushIndirect, {0, cor & 0xFFFF, cor >> 16, 0});
        Por(SelectObject, {objetos++});
    }
    void Pena(int estilo, int largura, int cor)
    {
        Por(CreatePenIndirect, {estilo, largura, 0, cor & 0xFFFF, cor >> 16});
        Por(SelectObject, {objetos++});
    }
    void Fonte(int altura, const QByteArray &nome)
    {
        QByteArray cauda(8, '\0');
        Por(CreateFontIndirect, {-altura, 0, 0, 0, 400}, cauda + nome + '\0');
        Por(SelectObject, {objetos++});
    }
    void Retangulo(int x1, int y1, int x2, int y2) { Por(Rectangle, {y2, x2, y1, x1}); }
    void Texto(int x, int y, const QByteArray &texto)
    {
        QByteArray cauda = texto;
        if (cauda.size() % 2)
            cauda.append('\0');
        U16(cauda, y);
        U16(cauda, x);
        Por(TextOut, {int(texto.size())}, cauda);
    }

    /** The whole file without the placeable header. */
    QByteArray Arquivo() const
    {
        QByteArray tudo;
        U16(tudo, 1);
        U16(tudo, 9);
        U16(tudo, 0x0300);
        U32(tudo, quint32((18 + registros.size()) / 2 + 3));
        U16(tudo, objetos);
        U32(tudo, 1000);
        U16(tudo, 0);
        tudo += registros;
        U32(tudo, 3);
        U16(tudo, Fim);
        return tudo;
    }
    QByteArray Posicionavel(int esquerda, int topo, int direita, int baixo, int porPolegada) const
    {
        QByteArray tudo;
        U32(tudo, 0x9AC6CDD7);
        for (const int p : {0, esquerda, topo, direita, baixo, porPolegada, 0, 0})
            U16(tudo, p);
        int soma = 0;
        for (qsizetype i = 0; i < tudo.size(); i += 2)
            soma ^= qFromLittleEndian<quint16>(tudo.constData() + i);
        U16(tudo, soma);
        return tudo + Arquivo();
    }

    static void U16(QByteArray &em, int v)
    {
        em.append(char(v & 0xFF)).append(char(v >> 8 & 0xFF));
    }
    static void U32(QByteArray &em, quint32 v)
    {
        U16(em, int(v & 0xFFFF));
        U16(em, int(v >> 16));
    }

    QByteArray registros;
    int objetos = 0;
};

/** A device independent bitmap of 2 x 2 pixels: red and green above, blue and black below. */
inline QByteArray DibDeQuatroCores()
{
    QByteArray dib;
    for (const quint32 v : {40U, 2U, 2U, 1U | 24U << 16, 0U, 16U, 0U, 0U, 0U, 0U})
        TGravadorWmf::U32(dib, v);
    dib += QByteArray("\xFF\0\0\0\0\0\0\0", 8);   // blue, black
    dib += QByteArray("\0\0\xFF\0\xFF\0\0\0", 8); // red, green
    return dib;
}

/** A folder of picture files made by the test. */
class TPastaDeImagens
{
public:
    QString Caminho(const QString &nome) const { return pasta.filePath(nome); }

    QString Gravar(const QString &nome, const QByteArray &bytes) const
    {
        QFile arquivo(Caminho(nome));
        EXPECT_TRUE(arquivo.open(QIODevice::WriteOnly | QIODevice::Truncate));
        EXPECT_EQ(arquivo.write(bytes), bytes.size());
        return arquivo.fileName();
    }
    QString Gravar(const QString &nome, const QImage &imagem, const char *formato) const
    {
        EXPECT_TRUE(imagem.save(Caminho(nome), formato, 95));
        return Caminho(nome);
    }
    static QByteArray Bytes(const QString &arquivo)
    {
        QFile lido(arquivo);
        EXPECT_TRUE(lido.open(QIODevice::ReadOnly));
        return lido.readAll();
    }
    /** Its content was written that many seconds ago. */
    static void Envelhecer(const QString &arquivo, int segundos)
    {
        timespec agora = {};
        clock_gettime(CLOCK_REALTIME, &agora);
        agora.tv_sec -= segundos;
        const timespec horas[2] = {agora, agora};
        ASSERT_EQ(utimensat(AT_FDCWD, QFile::encodeName(arquivo).constData(), horas, 0), 0);
    }

    static QImage Lisa(QSize tamanho, QColor cor)
    {
        QImage imagem(tamanho, QImage::Format_RGB32);
        imagem.fill(cor);
        return imagem;
    }
    /** The left half of one colour, the right half of another. */
    static QImage Metades(QSize tamanho, QColor esquerda, QColor direita)
    {
        QImage imagem = Lisa(tamanho, esquerda);
        QPainter(&imagem).fillRect(tamanho.width() / 2, 0, tamanho.width(), tamanho.height(),
                                   direita);
        return imagem;
    }
    /** A JPEG whose camera was held so that it must be turned a quarter clockwise to stand
     * upright. */
    static QByteArray Deitada(const QByteArray &jpeg)
    {
        const QByteArray exif("\xFF\xE1\x00\x22"
                              "Exif\0\0MM\0\x2A\0\0\0\x08\0\x01\x01\x12\0\x03\0\0\0\x01\0\x06\0\0"
                              "\0\0\0\0",
                              36);
        return jpeg.left(2) + exif + jpeg.mid(2);
    }

private:
    QTemporaryDir pasta;
};

/** Whether two colours are the same to the eye: JPEG and smoothing move them a little. */
inline bool Parecida(QColor a, QColor b)
{
    constexpr int Folga = 24;
    return qAbs(a.red() - b.red()) <= Folga && qAbs(a.green() - b.green()) <= Folga &&
           qAbs(a.blue() - b.blue()) <= Folga;
}

} // namespace ficha::testes
