#pragma once

#include "platform/core/Variant.h"

#include <QDebug>
#include <QString>
#include <QStringList>

#include <ostream>

/** Readable values in the messages of failed tests. */
QT_BEGIN_NAMESPACE
inline void PrintTo(const QString &texto, std::ostream *saida)
{
    *saida << '"' << texto.toStdString() << '"';
}
inline void PrintTo(const QStringList &textos, std::ostream *saida)
{
    *saida << QDebug::toString(textos).toStdString();
}
QT_END_NAMESPACE

namespace ficha
{
inline void PrintTo(const Variant &valor, std::ostream *saida)
{
    *saida << (valor.EhNaoAtribuido() ? "(unassigned)"
               : valor.EhNulo()       ? "(Null)"
               : valor.EhTexto()      ? "text '" + valor.AsString().toStdString() + "'"
                                      : valor.AsString().toStdString());
}
} // namespace ficha
