#pragma once

// Private to this floor.

#include "platform/database/LinhasEmMemoria.h"

#include <vector>

namespace ficha
{

/** What an index sorts by. */
struct TCriterio {
    std::vector<int> colunas;
    bool semCaixa = false; /**< letters of either case are equal */
    friend bool operator==(const TCriterio &, const TCriterio &) = default;
};

/** Rows in the order of a criterion, and which of them equal the one before. */
struct TOrdem {
    std::vector<int> slots;
    std::vector<bool> igual; /**< by position; slots[i] equals slots[i - 1] */

    /** The falling order; equal rows keep their order of insertion there too. */
    std::vector<int> Decrescente() const;
};

/**
 * Sorts slots that are given in their order of insertion, which equal rows keep. Nulls come first.
 * Each value's key is made once.
 */
TOrdem Ordenar(const TLinhasEmMemoria &linhas, const std::vector<int> &slots,
               const TCriterio &criterio);
/** Below, equal to or above zero, by the same rules. */
int CompararLinhas(const TLinhasEmMemoria &linhas, int a, int b, const TCriterio &criterio);

} // namespace ficha
