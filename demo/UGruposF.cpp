#include "demo/UGruposF.h"

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TGruposF)

void TGruposF::PegarComponentes()
{
    TTabLinearBasF::PegarComponentes();
    Pegar(this, CodFr, "CodFr");
    Pegar(this, DescrFr, "DescrFr");
}

void TGruposF::PrepararTab()
{
    SQLQuery1->FieldByName("grupos_cod")->SetDisplayLabel(QStringLiteral("Código"));
    SQLQuery1->FieldByName("descricao")->SetDisplayLabel(QStringLiteral("Descrição"));
    Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("grupos"));
    Tab->PegarCampoChave(SQLQuery1->FieldByName("grupos_cod"), 70, CodFr);
    Tab->PegarCampo(SQLQuery1->FieldByName("descricao"), 320, DescrFr);
}

void TGruposF::AntesInserir()
{
    SQLInserir = QStringLiteral("insert into grupos (grupos_cod, descricao) values (%1, %2)")
                     .arg(StringProxCod(), DescrFr->SQLString());
    SQLUltimoInserido =
        QStringLiteral("select grupos_cod from grupos where descricao=") + DescrFr->SQLString();
}

void TGruposF::AntesAlterar()
{
    SQLAlterar = QStringLiteral("update grupos set descricao=") + DescrFr->SQLString();
}

} // namespace comercial
