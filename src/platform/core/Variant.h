#pragma once

#include "platform/core/TDateTime.h"

#include <QString>

#include <compare>
#include <cstdint>
#include <variant>

namespace ficha
{

/** Null: a known absence of a value, as a database column has it. */
struct TNulo {
    friend constexpr bool operator==(TNulo, TNulo) { return true; }
};

/**
 * The tagged value that crosses every boundary: unassigned, Null, 32-bit integer, double, text or
 * date-time.
 *
 * Comparison: numbers and date-times compare as numbers; a text that reads as a number compares
 * with a number as a number; two texts compare letter by letter. Null equals Null only, unassigned
 * equals unassigned only. A text that is no number is never equal to a number; asking which of
 * the two is greater raises EVariantError, as does ordering Null or unassigned against anything
 * but itself.
 *
 * Conversion: Null and unassigned convert to the empty text, 0, and day 0. A text converts to a
 * number when it reads as one in Brazilian notation (comma as decimal separator, no grouping,
 * blanks around it allowed); otherwise EVariantError is raised.
 */
class Variant
{
public:
    Variant() = default;
    Variant(TNulo) : valor(TNulo()) {}
    Variant(bool) = delete;
    Variant(int v) : valor(std::int32_t(v)) {}
    Variant(double v) : valor(v) {}
    Variant(QString v) : valor(std::move(v)) {}
    Variant(const char16_t *v) : valor(QString::fromUtf16(v)) {}
    Variant(const char *utf8) : valor(QString::fromUtf8(utf8)) {}
    Variant(TDateTime v) : valor(v) {}

    bool EhNaoAtribuido() const { return valor.index() == 0; }
    bool EhNulo() const { return valor.index() == 1; }
    bool EhInteiro() const { return valor.index() == 2; }
    bool EhDouble() const { return valor.index() == 3; }
    bool EhTexto() const { return valor.index() == 4; }
    bool EhDataHora() const { return valor.index() == 5; }

    /** The value as text: doubles with a comma and at most 15 significant digits, no grouping. */
    QString AsString() const;
    /** Rounded to the nearest integer, halves to even; EVariantError outside 32 bits. */
    int AsInteger() const;
    double AsFloat() const;
    /** A text must be "dd/mm/yyyy", with or without " hh:nn" or " hh:nn:ss". */
    TDateTime AsDateTime() const;

    friend bool operator==(const Variant &a, const Variant &b);
    friend std::partial_ordering operator<=>(const Variant &a, const Variant &b);

private:
    std::variant<std::monostate, TNulo, std::int32_t, double, QString, TDateTime> valor;
};

/** The Null value. */
inline const Variant Null{TNulo()};

/** Reads a number in Brazilian notation; false when the text is none. */
bool TextoParaDouble(const QString &texto, double *numero);
/** A double as text: comma, at most 15 significant digits, never an exponent, no grouping. */
QString DoubleParaTexto(double numero);

} // namespace ficha
