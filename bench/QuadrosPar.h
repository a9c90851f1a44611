#pragma once

#include <QString>

class QWidget;

namespace bancada
{

/**
 * The layout of the same screen for uic: every widget of a screen as the plain Qt class that it is
 * made of, with its place, caption, font and state, and every action. Widgets that Qt's own make
 * for themselves are left out, and so are pictures. With soVisiveis also what the screen has
 * hidden.
 */
QString LayoutDoPar(const QWidget *tela, const QString &classe, bool soVisiveis);

} // namespace bancada
