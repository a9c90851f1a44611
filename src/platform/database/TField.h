#pragma once

#include "platform/core/TAlignment.h"
#include "platform/core/TEspacoDeTexto.h"
#include "platform/core/Variant.h"

#include <QAnyStringView>
#include <QString>

namespace ficha
{

class TDataSet;

/** Kinds of column. The record model tells the first four apart; all others are "other" to it. */
enum class TFieldType {
    ftString,   /**< char and varchar */
    ftSmallint, /**< 16-bit integer without scale */
    ftInteger,  /**< 32-bit integer without scale */
    ftFloat,    /**< float, double, every scaled number, and 64-bit integers */
    ftDate,
    ftTime,
    ftDateTime, /**< timestamp */
    ftBoolean,
    ftMemo,    /**< text blob */
    ftBlob,    /**< binary blob */
    ftUnknown, /**< not bound to a column yet */
};

/**
 * One column of a dataset. It lives as long as its dataset and is matched to the columns by name
 * at every opening, so that screens bind it once; the dataset owns it.
 *
 * Values are those of the dataset's current row, or of the row that is being written; on an empty
 * or closed dataset they are Null.
 */
class TField
{
public:
    TField(TDataSet *dataset, QString nome) : dataSet(dataset), fieldName(std::move(nome)) {}
    TField(const TField &) = delete;
    TField &operator=(const TField &) = delete;

    /** As the database has it (upper case unless quoted). */
    const QString &FieldName() const { return fieldName; }
    /** What users read; the field's name until a screen sets it. */
    QString DisplayLabel() const { return displayLabel.isNull() ? fieldName : displayLabel; }
    void SetDisplayLabel(QString texto) { displayLabel = std::move(texto); }
    /** The component's name, where whoever made the field gave it one. */
    const QString &Name() const { return nomeDoComponente; }
    void SetName(QString nome) { nomeDoComponente = std::move(nome); }
    /** How lists align the column; to the left until a screen sets it. */
    TAlignment Alignment() const { return alinhamento; }
    void SetAlignment(TAlignment novo) { alinhamento = novo; }
    /** Pattern for lists, of numbers ("###,###,##0.00") or dates; empty when there is none. */
    const QString &DisplayFormat() const { return displayFormat; }
    void SetDisplayFormat(QString formato) { displayFormat = std::move(formato); }
    TFieldType DataType() const { return tipo; }
    /** Longest text in characters for string columns, else 0. */
    int Size() const { return tamanho; }
    /** Decimal places of a scaled number, else 0. */
    int Escala() const { return escala; }
    TDataSet *DataSet() const { return dataSet; }

    bool IsNull() const;
    /**
     * Null, or the natural type: text, 32-bit integer, double, date-time; booleans are the integers
     * 0 and 1; a 64-bit integer is a double; a float column gives the shortest decimal that is this
     * float (0.1, not 0.100000001490116). A text column keeps its blanks: CHAR comes padded to its
     * declared width. A text blob is a text of any length; so is a binary one, a character per byte
     * (U+0000 to U+00FF).
     *
     * This and the other readers raise EDatabaseError naming the field when there is a current row
     * but the column is gone from the select.
     */
    Variant Value() const;
    /**
     * The value as text, empty for Null: dates "dd/mm/yyyy", with " hh:nn:ss" when there is a time
     * of day; times "hh:nn:ss"; numbers with a comma, no grouping and no idle zeros. Scaled numbers
     * and 64-bit integers show all their digits, also those beyond the 15 that a double keeps.
     */
    QString AsString() const;
    /** Value().AsString(), not copied where the dataset has it as a text; valid until the rows
     * change or espaco is used again. For those that go through many rows. */
    QAnyStringView TextoDoValor(TEspacoDeTexto &espaco) const;
    /** 0 for Null. */
    int AsInteger() const;
    double AsFloat() const;
    TDateTime AsDateTime() const;
    /** Whether the value is other than zero; false for Null. */
    bool AsBoolean() const { return AsFloat() != 0; }

    /**
     * Writes the value of the row that is being edited or inserted. Unassigned and Null empty it;
     * everything else is converted to the column's kind.
     *
     * Raises EDatabaseError when the dataset cannot be written, is not in an edit state, or the
     * text is longer than the column; EVariantError when the value cannot be converted.
     */
    void SetValue(const Variant &valor);
    void SetAsString(const QString &valor) { SetValue(valor); }
    void SetAsInteger(int valor) { SetValue(valor); }
    void SetAsFloat(double valor) { SetValue(valor); }
    void SetAsDateTime(TDateTime valor) { SetValue(valor); }
    void SetAsBoolean(bool valor) { SetValue(valor ? 1 : 0); }
    void Clear() { SetValue(Null); }

private:
    friend class TDataSet;
    /** The row that is read, from 0, or -1; EDatabaseError naming the field when there is one but
     * the field's column is gone. */
    int Linha() const;

    TDataSet *dataSet;
    QString fieldName;
    QString displayLabel;
    QString displayFormat;
    QString nomeDoComponente;
    TAlignment alinhamento = taLeftJustify;
    TFieldType tipo = TFieldType::ftUnknown;
    int tamanho = 0;
    int escala = 0;
    int coluna = -1; /**< index among the open columns, -1 when not matched */
};

} // namespace ficha
