#pragma once

#include <QAnyStringView>
#include <QString>

#include <cstdint>
#include <memory>
#include <vector>

namespace ficha
{

/**
 * The texts of a grid, held compactly.
 *
 * A cell is eight bytes. Up to seven Latin-1 characters live in the cell itself; longer texts are
 * one entry in an arena, in Latin-1 bytes where every character fits and in UTF-16 where one does
 * not. Blocks of rows are made when a cell of theirs is first written, so that a tall empty table
 * costs next to nothing. Overwriting reuses the entry when the new text fits into it; what is lost
 * that way is counted, and the arena is rebuilt once the loss outweighs the texts.
 *
 * Coordinates are not checked here: the grid asks only for cells that it has.
 */
class TGradeTextos
{
public:
    TGradeTextos(int cols, int rows) : colunas(cols), linhas(rows) {}

    /** Cells that remain keep their texts. */
    void Redimensionar(int cols, int rows);
    /** Valid until the next text is written. */
    QAnyStringView Texto(int col, int row) const;
    /** Writes a text; answers whether the cell's text is another one now. */
    bool Gravar(int col, int row, QAnyStringView texto);
    /** Bytes held for cells and texts, what is reserved and not used included. */
    qint64 Bytes() const;

private:
    struct TCelula {
        unsigned char dados[7] = {};
        unsigned char tipo = 0;
    };
    struct TBlocoTextos {
        std::unique_ptr<char[]> memoria;
        std::uint32_t tamanho = 0, usado = 0;
    };
    struct TArena {
        std::vector<TBlocoTextos> blocos;
        qint64 usado = 0;
    };

    const TCelula *Celula(int col, int row) const;
    TCelula &NovaCelula(int col, int row);
    template <typename TTexto>
    bool Gravar(int col, int row, TTexto texto, bool latin1);
    bool IgualA(const TCelula &celula, QAnyStringView texto) const;
    QAnyStringView Texto(const TCelula &celula) const;
    char *Entrada(const TCelula &celula) const;
    static char *NovaEntrada(TArena &arena, TCelula &celula, std::uint32_t bytes);
    std::uint32_t TamanhoDaEntrada(const TCelula &celula) const;
    template <typename TTexto>
    void GravarCurto(TCelula &celula, TTexto texto);
    template <typename TTexto>
    void GravarLongo(TCelula &celula, TTexto texto, bool latin1);
    void Soltar(TCelula &celula);
    void SoltarLinhas(int de);
    void MudarColunas(int cols);
    void CompactarSeValer();
    void Compactar();

    int colunas, linhas;
    std::vector<std::vector<TCelula>> blocos; /**< of LinhasPorBloco rows, row after row */
    qint64 celulas = 0;                       /**< that have memory */
    TArena arena;
    qint64 vivos = 0; /**< bytes of the arena that cells still refer to */
};

} // namespace ficha
