#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

namespace ficha
{

/** One element of a layout file, with the line where it begins. */
struct TElementoUi {
    QString Nome;
    QHash<QString, QString> Atributos;
    QString Texto;
    std::vector<TElementoUi> Filhos;
    qint64 Linha = 0;

    QString Atributo(const char *nome) const { return Atributos.value(QLatin1String(nome)); }
    /** The first child element of that name; null when there is none. */
    const TElementoUi *Filho(const char *nome) const;
    /** The text of a child element; empty when there is none. */
    QString TextoDe(const char *filho) const;
};

/** Reads a layout file. A file that cannot be read or is not well formed leaves an empty element
 * and a fault "file:line: text". */
TElementoUi LerArquivoUi(const QString &arquivo, QStringList &falhas);

} // namespace ficha
