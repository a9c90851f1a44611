#pragma once

#include <QString>

namespace ficha
{

/**
 * Tells the user why an input was refused: the host's MensagemAviso where one is installed, else
 * the library's own warning box. Modal; what the host's service raises goes to the error report.
 */
void AvisarUsuario(const QString &texto);

} // namespace ficha
