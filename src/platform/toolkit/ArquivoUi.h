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

/** Reads a layout file. A file that cannot be read or is not well formed leaves an empty element
 * and a fault "file:line: text". */
TElementoUi LerArquivoUi(const QString &arquivo, QStringList &falhas);

/**
 * The same for the bytes of a file that is written as Designer writes them: UTF-8, plain names, no
 * document type, sections or instructions. False for every other file, sound or not, which is left
 * to the general reader; raiz is undefined then.
 */
bool LerUiSimples(const QByteArray &bytes, TElementoUi &raiz);
/** The general reader; erro is empty for a well-formed file and else "line: text". */
TElementoUi LerUiGeral(const QByteArray &bytes, QString &erro);

} // namespace ficha
