#pragma once

class QLabel;
class QWidget;

namespace ficha
{

/** Shows a dialog's title of several lines whole: the input below it moves down as far as the title
 * needs, and the dialog grows by as much. Both are children of the dialog itself. */
void AcomodarTitulo(QLabel &titulo, QWidget &abaixo);

} // namespace ficha
