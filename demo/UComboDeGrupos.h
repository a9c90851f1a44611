#pragma once

namespace ficha
{
class TActionList;
class TComboBoxCodBasFr;
} // namespace ficha

namespace comercial
{

/** Offers the groups in a combo box; its button opens their screen, which hands back the group
 * chosen or inserted there. The action list, which owns the action, is that of the screen. */
void OferecerGrupos(ficha::TComboBoxCodBasFr *combo, ficha::TActionList *acoes);

} // namespace comercial
