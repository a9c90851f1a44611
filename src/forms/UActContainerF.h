#pragma once

#include "forms/UActBasFr.h"
#include "platform/hostforms/TBasF.h"

#include <QPointer>

namespace ficha
{

/** The window of an enlarged action frame, which fills it. Esc closes it as well. */
class TActContainerF : public TBasF
{
    Q_OBJECT

public:
    explicit TActContainerF(TChave chave);

    /** Refreshes the frame, too. */
    void Atualizar() override;

    /** The copy that is shown, a child of this form; null until there is one. */
    QPointer<TActBasFr> ActFr;

protected:
    /** Fits the frame in and gives the focus to its first control. */
    void FormShow(QObject *sender) override;
    void keyPressEvent(QKeyEvent *evento) override;
};

} // namespace ficha
