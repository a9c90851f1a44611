#pragma once

#include <QFont>

#include <cstdint>
#include <memory>
#include <vector>

namespace ficha
{

/** How an item is shown in its cell. */
struct TArvExibicao {
    /** Where the text starts from the cell's left and top, pixels; the indentation comes on top. */
    int DeslocHorizontal = 2;
    int DeslocVertical = 3;
    /** What it does not set comes from the grid's font. */
    QFont Font;
};

/**
 * An item of a tree: owns its children, knows its level and whether they are shown.
 *
 * Trees may be deep or wide without limit: nothing here calls itself. Changes cost next to nothing;
 * NLins counts only what changed since it was last asked. One thread: the user interface's.
 *
 * An item is destroyed before what it held: a descendant's destructor finds no children.
 */
class TArvItem
{
public:
    TArvItem();
    virtual ~TArvItem();
    TArvItem(const TArvItem &) = delete;
    TArvItem &operator=(const TArvItem &) = delete;

    /** Puts an item, with what it holds, behind the last child and takes it over; the levels of all
     * of them follow. Answers the item. Null is refused (EErro). */
    TArvItem *AddFilho(std::unique_ptr<TArvItem> item);
    template <typename T>
    T *AddFilho(std::unique_ptr<T> item)
    {
        T *novo = item.get();
        AddFilho(std::unique_ptr<TArvItem>(std::move(item)));
        return novo;
    }
    int NFilhos() const { return int(filhos.size()); }
    /** The child at an index from 0; null outside. */
    TArvItem *GetFilhos(int indice) const;
    /** Destroys the children and all that is below them. */
    void LimparFilhos();
    /** The item that owns this one; null for a root. */
    TArvItem *GetPai() const { return pai; }

    /** 0 at the root. */
    std::int32_t GetNivel() const { return nivel; }
    /** Whether the children are shown; true at first. */
    bool GetExpandido() const { return expandido; }
    void SetExpandido(bool v);
    /** Rows of a grid that shows everything below this item: one for the title and one for every
     * item whose ancestors are all expanded. 0 for an item without children. */
    int NLins() const;

    /** The item that a number carried by a grid's cell stands for; null for 0, for anything that is
     * no item, and for an item that has been destroyed. */
    static TArvItem *De(std::intptr_t objeto);
    /** The number for a grid's cell. */
    std::intptr_t Objeto() const { return reinterpret_cast<std::intptr_t>(this); }

    TArvExibicao Exibicao;

private:
    void Sujar();
    void Contar() const;
    void NivelarAbaixo();

    std::vector<std::unique_ptr<TArvItem>> filhos;
    TArvItem *pai = nullptr;
    std::int32_t nivel = 0;
    bool expandido = true;
    /** Rows of what is below, this item taken as expanded; to be counted again while sujo. While an
     * item is to be counted again, so is every ancestor that shows it. */
    mutable int abaixo = 0;
    mutable bool sujo = false;
};

} // namespace ficha
