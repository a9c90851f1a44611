#pragma once

#include "platform/hostforms/TChildMDIBasF.h"

namespace comercial
{

/**
 * A gallery of every frame of the library: all registered frame classes, each with its name, alive
 * and ready to be typed into, and the small dialogs behind buttons. Frames stand with their kind,
 * the bases that show nothing of their own at the end. A frame that is added to the library appears
 * here by itself.
 */
class TMostruarioF : public ficha::TChildMDIBasF
{
    Q_OBJECT

public:
    using TChildMDIBasF::TChildMDIBasF;

protected:
    void FormCreate(QObject *sender) override;

private:
    void MostrarFrames(QWidget *lista);
    void MostrarTipo(QWidget *lista, const QString &titulo, const QList<QWidget *> &frames);
    void MostrarDialogos(QWidget *lista);
};

} // namespace comercial
