#pragma once

#include <QPixmap>
#include <QString>

namespace ficha
{

/**
 * Reads one of the filter panel's button pictures from the installation (see LugaresDoArquivo). One
 * that is missing or damaged answers an empty picture and is reported to the host, by its file's
 * name: once in the life of the program, until it has been read well again.
 */
QPixmap LerFiguraDoFiltro(const QString &caminho);

} // namespace ficha
