#pragma once

// Private to this floor.

#include <QString>

namespace ficha
{

/**
 * Looks at a database file before the embedded engine does, whose own errors are vague: raises one
 * clear EDatabaseError when the folder or file is missing, when it is no Firebird database, or when
 * this user may not read and write it.
 */
void VerificarArquivoParaAbrir(const QString &arquivo);
/** The same for a file about to be made: the folder must exist and be writable, the file must not.
 */
void VerificarArquivoParaCriar(const QString &arquivo);

} // namespace ficha
