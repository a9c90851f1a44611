#pragma once

#include "platform/hostforms/TBasF.h"

namespace ficha
{

/**
 * The host's child window: it lives in the program's MDI main window (TPrincipalMDIF) when there
 * is one, else in a window of its own, and destroys itself when it is closed.
 *
 * Creating it does not show it; Show does.
 */
class TChildMDIBasF : public TBasF
{
    Q_OBJECT

public:
    explicit TChildMDIBasF(TChave chave);

    void Create(QWidget *owner) override;
    /** Stores the text in Parametro before anything else is done. */
    void Create(QWidget *owner, const QString &texto);
};

} // namespace ficha
