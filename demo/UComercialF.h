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

protected:
    void FormCreate(QObject *sender) override;

private:
    void MontarMenus();
};

} // namespace comercial
