#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <QString>

#include <memory>

namespace ficha
{

class TMetafile;

/** The kinds of pictures that can be shown. */
enum class TTipoDeImagem { Nenhum, Jpeg, Bitmap, Icone, Metafile };

/** The kind that a file's extension names, whatever its case: jpg, jpeg, bmp, ico or wmf. What is
 * inside the file is not asked. */
TTipoDeImagem TipoDeImagem(const QString &arquivo);

/** What tells one content of a file from the next: which file it is, its size and its times. */
struct TVersaoDoArquivo {
    quint64 volume = 0, numero = 0;
    qint64 tamanho = -1;
    /** Nanoseconds since 1970, of its content and of all that is known about it. */
    qint64 escrita = 0, mudanca = 0;

    /** False for what is missing, and for folders and devices, which are never read. */
    bool Existe() const { return tamanho >= 0; }
    /** It changed so short a time ago that another change may bear the same times. */
    bool Recente() const;
    bool operator==(const TVersaoDoArquivo &) const = default;
};

TVersaoDoArquivo VersaoDoArquivo(const QString &arquivo);

/**
 * A picture file that was read and found sound: JPEG, bitmap, icon or Windows metafile.
 *
 * Its extension alone says which: a file of another kind under that name is damaged, and so is one
 * that ends early. Photos stand upright, as their camera noted. Of the pictures in an icon the
 * largest counts. What is transparent is white.
 */
class TArquivoDeImagem
{
public:
    /** Longest side and most pixels of a picture that is read at all. */
    static constexpr int MaiorLado = 32'767;
    static constexpr qint64 MaisPixels = 256'000'000;
    static constexpr qint64 MaisBytes = 256'000'000;

    /** Reads the file. Raises EImagemInvalida, naming it, when it cannot be shown. */
    explicit TArquivoDeImagem(QString arquivo);
    ~TArquivoDeImagem();
    TArquivoDeImagem(const TArquivoDeImagem &) = delete;
    TArquivoDeImagem &operator=(const TArquivoDeImagem &) = delete;

    /** Natural size in pixels, upright; a metafile's is that at 96 dpi. */
    QSize Tamanho() const { return tamanho; }
    /** The picture stretched to a size (1 to 8192 pixels each way), smoothly. Raises
     * EImagemInvalida. */
    QImage Ler(QSize pixels) const;
    /** The picture in its natural size; one of more than 30 million pixels, or longer
     * than 8192, smaller in its proportions. */
    QImage LerNatural() const;

private:
    void LerBytes();
    void Medir();
    void MedirIcone();
    QImage Decodificar(QSize pixels) const;
    [[noreturn]] void Recusar(const QString &motivo) const;

    QString caminho;
    TTipoDeImagem tipo;
    QByteArray bytes;
    QSize tamanho;
    bool deitada = false;
    /** Of an icon's pictures, the one that counts. */
    QImage icone;
    std::unique_ptr<TMetafile> metafile;
};

} // namespace ficha
