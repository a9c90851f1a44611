#include "platform/database/ConexD.h"

namespace ficha
{

int TConexD::Executar(const QString &sql)
{
    if (!SQLConnection) {
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("Não há conexão com o banco de dados."));
    }
    return SQLConnection->Executar(sql);
}

TConexD &ConexD()
{
    static TConexD conexD;
    return conexD;
}

bool TCustomBRQuery::Open(const QString &sql)
{
    query.Close();
    query.SetSQL(sql);
    query.Open();
    return !query.IsEmpty();
}

} // namespace ficha
