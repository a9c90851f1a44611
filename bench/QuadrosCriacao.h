#pragma once

#include <QMap>
#include <QString>

class QWidget;

namespace bancada
{

/** Processor times of one creation in seconds, by name. */
using TTempos = QMap<QString, double>;

/** Makes the screen of forty frames and lets it go: "nossa" is its creation up to before it is
 * shown without what the database took, "banco" that. */
TTempos CriarNossa();
/** Processor seconds for the same screen from uic's code, with or without what ours has hidden. */
double CriarPar(bool soVisiveis);

/** Shows a window with the common sorts of widgets and lets it go, so that Qt itself, its style and
 * its fonts are not charged to whoever comes first. */
void AquecerQt();

/** How many widgets there are inside a widget, itself included. */
int ContarWidgets(const QWidget *raiz);
/** The number of widgets of the screens: "nossa", "par" and "par-visiveis". */
QMap<QString, int> WidgetsDasTelas();

} // namespace bancada
