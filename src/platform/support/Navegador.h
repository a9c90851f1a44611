#pragma once

#include <QString>

namespace ficha
{

/**
 * Opens a page in the desktop's browser, through the host's service where there is one.
 *
 * The library's own way: blanks around the address are dropped; an address without a scheme gets
 * "http://"; only http, https, ftp and mailto are opened, so that what stands in a record never
 * starts a program of this machine. An empty address, one that is none, and a desktop that does
 * not open it are each told to the user.
 */
void AbrirBrowser(const QString &endereco);

} // namespace ficha
