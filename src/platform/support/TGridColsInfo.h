#pragma once

#include <QAnyStringView>
#include <QString>

#include <vector>

namespace ficha
{

class TStringGrid;

/** What a column's texts are, as far as its alignment goes. */
enum class TConteudoCol { Texto, Numero, Data };

/**
 * What a cell painter wants to know of each column, found once per refill of a grid: its width and
 * what it holds.
 *
 * A column holds numbers or dates when every text of a sample does that is neither empty nor
 * marked (see StringGridDrawCell). The sample is at most 128 rows, the first 64 and others spread
 * over the rest, so that it costs the same for any list. Numbers are written the Brazilian way
 * ("1.234,56", "-3", "R$ 10,00", "5 %") or with a decimal point ("1234.56"); digits that start with
 * a needless zero and those longer than ten without separators are codes, hence texts. Dates are
 * dd/mm/yyyy or dd/mm/yy, alone or followed by a time; a time alone counts as one.
 */
class TGridColsInfo
{
public:
    /** Of no grid: every column is a text column of width 0. */
    TGridColsInfo() = default;
    explicit TGridColsInfo(const TStringGrid &grid) { Atualizar(grid); }

    /** Looks at the grid again. */
    void Atualizar(const TStringGrid &grid);

    int Count() const { return int(colunas.size()); }
    /** Pixels at the time of the refill. */
    int Largura(int col) const { return Coluna(col).largura; }
    TConteudoCol Conteudo(int col) const { return Coluna(col).conteudo; }
    bool Numerica(int col) const { return Conteudo(col) == TConteudoCol::Numero; }
    /** Horizontal: numbers right, dates centred, texts left. */
    Qt::Alignment Alinhamento(int col) const;
    /** States what a column holds, where the texts do not tell; until the next Atualizar. */
    void SetConteudo(int col, TConteudoCol conteudo);

    static bool EhNumero(QAnyStringView texto);
    static bool EhData(QAnyStringView texto);

private:
    struct TColuna {
        int largura = 0;
        TConteudoCol conteudo = TConteudoCol::Texto;
    };
    TColuna Coluna(int col) const;

    std::vector<TColuna> colunas;
};

} // namespace ficha
