#pragma once

// Private to this floor.

#include "platform/core/TEspacoDeTexto.h"
#include "platform/core/Variant.h"

#include <QByteArray>

#include <cstdint>
#include <memory>
#include <vector>

namespace ficha
{

/** How the engine delivers a column in its message. */
enum class TFisico : std::uint8_t {
    Int16,
    Int32,
    Int64,
    Float,
    Double,
    Data,
    Hora,
    Momento,
    Booleano,
    Char,    /**< padded with blanks to its declared width */
    VarChar, /**< a 16-bit length and the bytes */
    Blob,    /**< read apart, handed over as bytes */
};

struct TColunaFisica {
    TFisico tipo = TFisico::Int32;
    std::uint32_t posicao = 0;     /**< in the engine's message */
    std::uint32_t posicaoNulo = 0; /**< of its 16-bit null flag there */
    std::uint32_t largura = 0;     /**< declared bytes of a text */
    int escala = 0;                /**< decimal places of an integer that stands for a number */
    bool brancos = false;          /**< CHAR whose trailing blanks are dropped and given back */
};

/**
 * Rows packed as tightly as they can be read without a search: a null bitmap, the fixed-size
 * values, the end of each text, the bytes of the texts. They lie in arenas of at most 256 KiB (the
 * first ones smaller, so that a look-up of one row costs little; those behind the first 4 MiB of
 * 2 MiB, in large pages) and are found through a vector of pointers. Nothing in a row is aligned.
 */
class TLinhasCompactas
{
public:
    /** Forgets all rows and takes a new set of columns. */
    void Preparar(std::vector<TColunaFisica> novas);
    /** Copies a row from the engine's message; blobs holds the bytes of the blob columns, by
     * column. */
    void Acrescentar(const unsigned char *mensagem, const std::vector<QByteArray> &blobs);
    /** Bytes behind the message's end that must be readable: texts are copied in blocks. */
    static constexpr std::uint32_t Folga = 16;
    /** All rows are in: gives back what the growth of the row index reserved. */
    void Concluir() { linhas.shrink_to_fit(); }
    void Limpar();

    int Count() const { return int(linhas.size()); }
    bool Nula(int linha, int coluna) const;
    Variant Valor(int linha, int coluna) const;
    QString Texto(int linha, int coluna) const;
    /** Valor(...).AsString(), not copied where the row has it; valid as long as rows and espaco
     * stay. */
    QAnyStringView TextoDoValor(int linha, int coluna, TEspacoDeTexto &espaco) const;
    qint64 BytesUsados() const;

private:
    /** Where a column's fixed value, or the end of its text, stands in a row. */
    struct TLugar {
        std::uint32_t posicao = 0;
        std::int32_t texto = -1; /**< number among the texts, -1 for a fixed value */
    };

    /** A value of fixed size, from the message to the row. */
    struct TFixo {
        std::uint32_t bytes;
        std::uint32_t origem;
        std::uint32_t destino;
    };
    struct TTexto {
        TFisico tipo;
        bool brancos;
        std::uint32_t posicao;
        std::uint32_t posicaoNulo;
        std::uint32_t largura;
        size_t coluna;
        std::uint32_t bytes; /**< in the row being copied */
    };

    struct TSoltaArena {
        size_t mapeados; /**< bytes of an arena that is a mapping of its own, else 0 */
        void operator()(unsigned char *arena) const;
    };
    using TArena = std::unique_ptr<unsigned char[], TSoltaArena>;

    static TArena NovaArena(size_t bytes);
    void Distribuir();
    size_t MedirTextos(const unsigned char *mensagem, const std::vector<QByteArray> &blobs);
    void CopiarNulos(unsigned char *linha, const unsigned char *mensagem) const;
    void CopiarFixos(unsigned char *linha, const unsigned char *mensagem) const;
    void CopiarTextos(unsigned char *linha, const unsigned char *mensagem,
                      const std::vector<QByteArray> &blobs) const;
    unsigned char *Alocar(size_t bytes);
    std::uint32_t LerFim(const unsigned char *linha, std::int32_t texto) const;
    QLatin1StringView Guardado(const unsigned char *linha, size_t i) const;
    QString TextoGuardado(const unsigned char *linha, size_t i) const;
    std::int64_t Inteiro(const unsigned char *linha, size_t i) const;

    std::vector<TColunaFisica> colunas;
    std::vector<TLugar> lugares;
    std::vector<std::uint32_t> nulos; /**< where the null flags stand in the message */
    std::vector<TFixo> fixos;
    std::vector<TTexto> textos;
    std::uint32_t inicioDosFins = 0;
    std::uint32_t inicioDosTextos = 0;
    bool finsLargos = false; /**< 32-bit ends, for rows that may exceed 64 KiB */

    std::vector<TArena> arenas;
    size_t livre = 0; /**< bytes left in the last arena */
    unsigned char *proximo = nullptr;
    size_t proximaArena = 0;
    qint64 bytesDasArenas = 0;
    std::vector<unsigned char *> linhas;
};

} // namespace ficha
