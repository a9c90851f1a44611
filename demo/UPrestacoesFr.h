#pragma once

#include "grids/UDBClientBasFr.h"

namespace comercial
{

/**
 * The instalments of a sale, computed by the program: a list without a query behind it.
 */
class TPrestacoesFr : public ficha::TDBClientBasFr
{
    Q_OBJECT

public:
    using TDBClientBasFr::TDBClientBasFr;

    void CriarCampos() override;
    /** Twelve monthly instalments of 5,400.00 at 1.99 % a month; centavos that are left over go to
     * the last one. */
    void PreencherDados() override;
    void AtualizarListas() override;
};

} // namespace comercial
