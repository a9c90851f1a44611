#pragma once

class QPrinter;
class QWidget;

namespace ficha
{

/** The printer settings of the process, which reports print with. */
QPrinter &Impressora();
/**
 * Lets the user set the printer up: the host's own dialog (Servicos().ConfigurarImpressao), else
 * paper, orientation and margins of Impressora(), modally over the screen.
 */
void ConfigurarImpressao(QWidget *dono);

} // namespace ficha
