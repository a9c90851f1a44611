#pragma once

#include <QMap>
#include <QString>

class QWidget;

namespace bancada
{

/** Times of one creation in seconds, by name. */
using TTempos = QMap<QString, double>;

/** Makes the screen of forty frames and lets it go: "nossa" is its creation up to before it is
 * shown without what the database took, "banco" that. */
TTempos CriarNossa();
/** The same screen from uic's code: "par". */
TTempos CriarPar();

/** Shows a window with the common sorts of widgets and lets it go, so that Qt itself, its style and
 * its fonts are not charged to whoever comes first. */
void AquecerQt();

/** How many widgets there are inside a widget, itself included. */
int ContarWidgets(const QWidget *raiz);
/** The number of widgets of the two screens: "nossa" and "par". */
QMap<QString, int> WidgetsDasTelas();

} // namespace bancada
