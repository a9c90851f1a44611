#include "platform/support/DBGridOrdem.h"

#include "platform/database/TClientDataSet.h"
#include "platform/support/DBGridDrawCell.h"
#include "platform/support/TDBGrid.h"

namespace ficha
{

void DBGridCriarIndices(TClientDataSet &cds)
{
    const auto definir = [&](const QString &nome, const QString &campo, unsigned opcoes) {
        if (!cds.HasIndex(nome))
            cds.AddIndex(nome, campo, opcoes);
    };
    for (int i = 0; i < cds.FieldCount(); ++i) {
        const QString &campo = cds.Fields(i)->FieldName();
        definir(u'a' + campo, campo, ixNenhuma);
        definir(u'd' + campo, campo, ixDescending);
    }
}

TOrdemDaLista DBGridTitleClick(TClientDataSet &cds, TColumn &column)
{
    return DBGridOrdenar(cds, column, cds.GetIndexName() != u'a' + column.GetFieldName());
}

TOrdemDaLista DBGridOrdenar(TClientDataSet &cds, TColumn &column, bool ascendente)
{
    const QString campo = column.GetFieldName();
    cds.SetIndexName((ascendente ? u'a' : u'd') + campo);
    DBGridTitulosNormais(*column.Grid());
    DBGridMarcarTitulo(column);
    DBGridReservarSeta(*column.Grid(), campo);
    return {campo, ascendente};
}

} // namespace ficha
