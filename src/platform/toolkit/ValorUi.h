#pragma once

#include "platform/toolkit/ArquivoUi.h"

#include <QMetaProperty>
#include <QVariant>

namespace ficha
{

/** The value element of a property, attribute or the like: its first child element, or null. */
const TElementoUi *ElementoDoValor(const TElementoUi &propriedade);

/**
 * Converts a value element of a layout file to what a property takes. On a mistake the answer is
 * invalid and erro says what is wrong.
 */
QVariant LerValorUi(const TElementoUi &valor, const QMetaProperty &propriedade, QString &erro);
/** A <palette>: a QPalette in which only the stated roles are set. */
QVariant LerPaletaUi(const TElementoUi &valor, QString &erro);
/** The value of an enumeration or set, by its keys, with or without a scope. */
QVariant LerEnumUi(const QString &texto, const QMetaEnum &tipo, QString &erro);
/** Whole numbers separated by commas; anything else is an error. */
QList<int> LerNumerosUi(const QString &texto, QString &erro);

} // namespace ficha
