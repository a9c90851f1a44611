#pragma once

#include <QWidget>

#include <gtest/gtest.h>

namespace ficha::testes
{

/** Every visible control of a frame lies inside it and none covers another. */
inline void ConfereNadaCoberto(const QWidget *frame)
{
    const QList<QWidget *> filhos =
        frame->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget *a : filhos) {
        if (!a->isVisible())
            continue;
        EXPECT_TRUE(frame->rect().contains(a->geometry())) << qPrintable(a->objectName());
        for (const QWidget *b : filhos)
            EXPECT_FALSE(a != b && b->isVisible() && a->geometry().intersects(b->geometry()))
                << qPrintable(a->objectName()) << " and " << qPrintable(b->objectName());
    }
}

} // namespace ficha::testes
