#pragma once

// Private to this floor.

#include "platform/core/GradeTextos.h"
#include "platform/core/Variant.h"
#include "platform/database/TField.h"

#include <memory>
#include <vector>

namespace ficha
{

/**
 * The rows of an in-memory dataset, column by column: numbers and dates in plain vectors, texts in
 * the compact cells of the grids. A row is a slot; slots are handed out in the order of insertion
 * and never change their order.
 */
class TLinhasEmMemoria
{
public:
    /** Forgets everything and takes a new set of columns. */
    void Preparar(const std::vector<TFieldType> &tipos);
    void Esvaziar();

    int Slots() const { return slots; }
    /** A new slot, every value Null. */
    int Nova();
    /** Empties a slot's values. */
    void Limpar(int slot);
    /** Keeps the slots of a rising list only, which become 0, 1, 2... */
    void Manter(const std::vector<int> &ficam);

    bool Nula(int slot, int coluna) const;
    Variant Valor(int slot, int coluna) const;
    /** The value of a text column, valid until the next text is written. */
    QAnyStringView Texto(int slot, int coluna) const;
    /** The value of any other column as a number. */
    double Numero(int slot, int coluna) const;
    bool EhTexto(int coluna) const { return colunas[size_t(coluna)].texto >= 0; }
    /** The value must be Null or of the column's kind. */
    void Gravar(int slot, int coluna, const Variant &valor);
    qint64 BytesUsados() const;

private:
    struct TColuna {
        TFieldType tipo = TFieldType::ftUnknown;
        int texto = -1; /**< number among the texts */
        std::vector<bool> tem;
        std::vector<std::int32_t> inteiros;
        std::vector<double> numeros;
    };
    static bool EhInteira(TFieldType tipo);

    std::vector<TColuna> colunas;
    std::unique_ptr<TGradeTextos> textos;
    int textosPorLinha = 0;
    int slots = 0;
};

} // namespace ficha
