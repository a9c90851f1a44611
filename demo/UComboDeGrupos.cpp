#include "demo/UComboDeGrupos.h"

#include "demo/UGruposF.h"
#include "input/UComboBoxCodBasFr.h"
#include "platform/hostforms/TPrincipalMDIF.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"

using namespace ficha;

namespace comercial
{

void OferecerGrupos(TComboBoxCodBasFr *combo, TActionList *acoes)
{
    combo->SetSQLText(
        QStringLiteral("select grupos_cod, descricao from grupos order by descricao"));
    auto *abrirGrupos = new TAction(acoes);
    abrirGrupos->OnExecute = [](QObject *) { TPrincipalMDIF::Atual()->Abrir<TGruposF>(); };
    combo->SelecionarAction = abrirGrupos;
    combo->NomeFormSelecionar = QStringLiteral("GruposF");
}

} // namespace comercial
