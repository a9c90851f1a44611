#pragma once

#include "platform/hostforms/TPrincipalMDIF.h"

namespace comercial
{

/** The demo's main window: its menu opens the screens. */
class TComercialF : public ficha::TPrincipalMDIF
{
    Q_OBJECT

public:
    using TPrincipalMDIF::TPrincipalMDIF;

    /** Opens a screen by the name of its menu item, letter case ignored; false when none has it. */
    bool AbrirTela(const QString &nome);

protected:
    void FormCreate(QObject *sender) override;

private:
    void MontarMenus();
};

} // namespace comercial
