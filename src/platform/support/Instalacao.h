#pragma once

#include <QStringList>

namespace ficha
{

/*
 * Files that belong to the program's installation and are named by a path relative to the folder in
 * which the program works, as "..\img\botoes\filtro abrir.jpg". Backslashes part folders on every
 * platform.
 */

/**
 * Where such a path is looked for, in this order: from the working folder of the process, from the
 * folder of the program's executable, and in the library's own installed data, without the ".." it
 * begins with (share/ficha beside the executable's folder, then the data folder that the library
 * was built to be installed in).
 */
QStringList LugaresDoArquivo(const QString &caminho);
/** The first of these places that has the file; empty when none has. */
QString ArquivoDaInstalacao(const QString &caminho);
/** Looks for the files from these folders only, in their order; an empty list is the default
 * again. For hosts that keep them elsewhere, and for tests. */
void SetPastasDaInstalacao(const QStringList &pastas);

} // namespace ficha
