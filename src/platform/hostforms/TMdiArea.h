#pragma once

#include <QMdiArea>

namespace ficha
{

/**
 * The area of the child windows. Ctrl+Tab belongs to the pages of the active child window; the
 * windows themselves are walked with Ctrl+F6.
 */
class TMdiArea : public QMdiArea
{
    Q_OBJECT

public:
    explicit TMdiArea(QWidget *owner = nullptr) : QMdiArea(owner) {}

protected:
    /** The base takes Ctrl+Tab from every widget of the program to walk the windows. */
    bool eventFilter(QObject *objeto, QEvent *evento) override;
};

} // namespace ficha
