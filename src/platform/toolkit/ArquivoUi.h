#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>
#include <vector>

namespace ficha
{

/** One element of a layout file, with the line where it begins. */
struct TElementoUi {
    QString Nome;
    std::vector<std::pair<QString, QString>> Atributos; /**< in the order of the file */
    /** Its characters; blanks around child elements are dropped. */
    QString Texto;
    std::vector<TElementoUi> Filhos;
    qint64 Linha = 0;

    /** The value of an attribute; empty when there is none. */
    QString Atributo(const char *nome) const;
    bool TemAtributo(const char *nome) const;
    /** The first child element of that name; null when there is none. */
    const TElementoUi *Filho(const char *nome) const;
    /** The text of a child element; empty when there is none. */
    QString TextoDe(const char *filho) const;
};

/** Reads a layout file, as Designer writes it or compiled. A file that cannot be read or is not
 * well formed leaves an empty element and a fault "file:line: text". */
TElementoUi LerArquivoUi(const QString &arquivo, QStringList &falhas);

/** Reads the text of a layout; erro is empty for a well-formed one and else "line: text". */
TElementoUi LerUi(const QByteArray &bytes, QString &erro);

/**
 * The form in which layouts lie in the library and its programs: what LerUi gave, so that a screen
 * which opens for the first time need not parse the text of its thirty files. Made while the
 * program is built, where a text that is not well formed stops the build.
 */
QByteArray CompilarUi(const TElementoUi &raiz);
/** False when the bytes are not such a form, or a damaged one; raiz is undefined then. */
bool LerUiCompilado(const QByteArray &bytes, TElementoUi &raiz);

} // namespace ficha
