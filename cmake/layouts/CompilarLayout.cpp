// Compiles a layout while the library or a program is built: its text, and where the compiled form
// goes.

#include "platform/toolkit/ArquivoUi.h"

#include <QFile>
#include <QSaveFile>

#include <cstdio>

int main(int argc, char **argv)
{
    if (argc != 3) {
        std::fprintf(stderr, "usage: %s layout.ui compiled\n", argv[0]);
        return 2;
    }
    QStringList falhas;
    const ficha::TElementoUi raiz = ficha::LerArquivoUi(QFile::decodeName(argv[1]), falhas);
    if (!falhas.isEmpty()) {
        std::fprintf(stderr, "%s\n", qPrintable(falhas.join(u'\n')));
        return 1;
    }
    const QByteArray bytes = ficha::CompilarUi(raiz);
    QSaveFile para(QFile::decodeName(argv[2]));
    if (!para.open(QIODevice::WriteOnly) || para.write(bytes) != bytes.size() || !para.commit()) {
        std::fprintf(stderr, "%s: %s\n", argv[2], qPrintable(para.errorString()));
        return 1;
    }
    return 0;
}
