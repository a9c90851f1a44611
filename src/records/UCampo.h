#pragma once

#include "base/UColInfo.h"
#include "base/UControlInfo.h"
#include "platform/core/TLinhas.h"
#include "records/TRefField.h"

#include <functional>
#include <memory>

namespace ficha
{

/**
 * Ties one column of the dataset to one input: keeps the column's value of the current record,
 * shows it, restores it, empties it and renders it as text for lists.
 */
class TCampo
{
public:
    TCampo();
    /** Unbinds the frame that still points here. */
    ~TCampo();
    TCampo(const TCampo &) = delete;
    TCampo &operator=(const TCampo &) = delete;

    Variant GetValor() const { return Valor; }
    /** Nothing changes when the value is the stored one; a string column keeps the trimmed text
     * and never holds Null. */
    void SetValor(const Variant &v);
    bool EhLista() const { return Lista != nullptr; }
    /** String column: the empty string; integer and float columns: 0; others: never. It does not
     * test for the Null value itself; kept as it is. */
    bool IsNull() const;
    /** String columns give the integer that their text reads as, 0 when it is none; other than
     * string, integer and float columns give 0. EVariantError when a number does not fit 32 bits.
     */
    int AsInteger() const;
    /**
     * The value as lists show it: the list's entry, else OnAsString's text, else by Tipo.
     *
     * A list field whose value is no number (Null, an empty or other text) has no entry: empty.
     * Tipo 6 of a Null value is the text of 0 ("0", or 0 under the display format): Null converts
     * to the number 0 here as everywhere.
     */
    QString AsString() const;
    /** Takes the column's current value, and the description of a foreign key. */
    void PegarValor();
    /** Takes the column's current value alone, for rows that are only walked over. */
    void LerColuna();
    /** Whether AsString after LerColuna is TextoDaColuna, and Valor is a value that the column
     * gave: the rows may then be gone through without it. */
    bool MostraAColuna() const;
    /** The text that lists show of the column's current value; Valor stays. Valid until the rows
     * change or espaco is used again. Only where MostraAColuna says so. */
    QAnyStringView TextoDaColuna(TEspacoDeTexto &espaco) const;
    /** Shows the value in the bound input. */
    void PreencherControl();
    /** Shows the stored value again in the bound input. */
    void Undo();
    /** Whether the bound input is a coded edit whose text is not the stored value's. */
    bool CanUndo() const;
    /** Empties the stored value by column type, then gives it its default. A list field takes 32,
     * the code of a blank, and nothing more. */
    void Zerar();

    /** Column kinds told apart; everything false for a field without a column. */
    bool ColunaTexto() const;
    bool ColunaNumero() const;

    Variant Valor;
    /** When set, gives the text of a field that is no list field. */
    std::function<void(TCampo *, QString &)> OnAsString;
    /** For one-character code columns: texts with the character's code in their slots. */
    std::unique_ptr<TLinhas> ListaChar;
    /** For list columns: the value is an index into it. Not owned. */
    const TLinhas *Lista = nullptr;
    /** Reserved. */
    int Indice = -1;
    std::unique_ptr<TControlInfo> ControlInfo;
    /** The column; not owned, null once the dataset is gone. */
    TRefField Field;
    QString TextoEstrangeiro;
    /** A second column that describes a foreign key; not owned. */
    TRefField FieldEstrangeiro;
    bool Chave = false;
    bool TemEstrangeiro = false;
    const std::unique_ptr<TColInfo> ColInfo;
    bool Visivel = false;
    bool TemValorPadrao = false;
    Variant ValorPadrao;
    /** How AsString renders the value, 0 to 6. */
    unsigned char Tipo = 0;
    QString FormatoFloat;

private:
    QString TextoDaLista() const;
    QString TextoPeloTipo() const;
    QString TextoDoCaractere() const;
    QString TextoDoNumero() const;
    bool ValorEhDaColuna() const;
};

} // namespace ficha
