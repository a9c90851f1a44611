#pragma once

#include "grids/UGridBasFr.h"
#include "platform/support/TArvItem.h"

namespace ficha
{

/**
 * Shows a tree of items in a string grid: one row for each item whose ancestors are all expanded,
 * indented by its level in the first column, with a picture before those that have children. A
 * click in the first column expands or collapses the item.
 *
 * So do keys, for items with children, while the current cell is in the first column (where whole
 * rows are selected, while the first column is in view): + and Right expand, - and Left collapse.
 * What Right finds expanded it leaves to the grid, which goes on to the next column; Left on an
 * item that shows nothing below it goes to the item that holds it. With Shift, Ctrl or Alt Left and
 * Right are the grid's.
 *
 * The descendant builds the tree (ColocarFilhos, TratarFilho for each item it adds) and writes the
 * columns of each item (DadoParaGrid).
 */
class TArvGridFr : public TGridBasFr
{
    Q_OBJECT

public:
    explicit TArvGridFr(TChave chave);

    /** Build the children of an item, and what is below them. */
    virtual void ColocarFilhos(TArvItem *item);
    /** Attach search codes. */
    virtual void ColocarCodBusca(TArvItem *item);
    /** Write every column of the item into the row LinhaAtual. The row carries the item already. */
    virtual void DadoParaGrid(TArvItem *item);
    /**
     * Writes what is below an expanded item into the grid from LinhaAtual on, each item followed by
     * what is below it. Calls itself for each child; trees of more than 500 levels are walked
     * without it from there on, so that no depth exhausts the stack.
     */
    virtual void FilhosParaGrid(TArvItem *item);
    /** Sets the expanded flag of a new item as ModoExpansao says. */
    virtual void TratarFilho(TArvItem *item);

    /** Flattens the tree into the grid again. A tree without items leaves the rows as they were. */
    void AtualizarExibicao() override;
    /** Builds the tree anew; the rows that are still shown carry no item from then on. */
    void RelerFonte() override;
    /** Over the first column of an item's row, inverts the item's flag and flattens the tree. */
    void GridMouseDown(int col, int row) override;

    /** The item of a row; null when the row carries none, or something else. */
    TArvItem *ArvItem(int row) const;

    /** The invisible root; its children are the top-level rows. Owned. */
    std::unique_ptr<TArvItem> Raiz;
    /** The next row to be filled while the tree is flattened. */
    std::int32_t LinhaAtual = 1;
    /** What TratarFilho does: 0 sets ExpandirSempre, 1 expands the levels up to NivelExpandido,
     * anything else leaves the item as it is. */
    std::uint8_t ModoExpansao = 0;
    std::int32_t NivelExpandido = 1;
    bool ExpandirSempre = true;

protected:
    void PegarComponentes() override;
    void StringGrid1DrawCell(QObject *sender, int col, int row, QPainter &pintor, const QRect &area,
                             unsigned estado) override;
    /** Left and Right over an item; 0 for a key that was used. */
    virtual void StringGrid1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** + and - over an item with children; the character is used up. */
    virtual void StringGrid1KeyPress(QObject *sender, QChar &caractere);

private:
    struct TCores;
    TCores CoresDaCelula(int row) const;
    void PintarItem(const TArvItem &item, int row, QPainter &pintor, const QRect &area) const;
    void LinhaParaGrid(TArvItem *item);
    void DescendentesParaGrid(TArvItem *item);
    void SoltarItens();
    /** The item whose turn the keys are; null for none. */
    TArvItem *ItemDasTeclas() const;
    bool PodeExpandir(const TArvItem &item, bool v) const;
    void Expandir(TArvItem *item, int row, bool v);
    int LinhaDoPai(const TArvItem &item) const;

    int profundidade = 0;
};

} // namespace ficha
