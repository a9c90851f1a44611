#include "platform/database/PrepararBanco.h"

#include "platform/database/TSQLConnection.h"
#include "platform/database/TSQLQuery.h"

namespace ficha
{

namespace
{

bool Existe(TSQLConnection &conexao, const QString &onde)
{
    TSQLQuery query;
    query.SetSQLConnection(&conexao);
    query.SetSQL(QStringLiteral("select 1 from ") + onde);
    query.Open();
    return !query.IsEmpty();
}

/** Another workstation may be preparing the same database: losing that race is no failure. */
void CriarSeFaltar(TSQLConnection &conexao, const QString &onde, const QString &criar,
                   const QString &conceder)
{
    if (Existe(conexao, onde))
        return;
    try {
        conexao.Executar(criar);
    } catch (const EDatabaseError &) {
        if (!conexao.Connected() || !Existe(conexao, onde))
            throw;
        return;
    }
    conexao.Executar(conceder);
}

void CriarFuncao(TSQLConnection &conexao, const QString &nome, const QString &lado)
{
    CriarSeFaltar(conexao, QStringLiteral("RDB$FUNCTIONS where RDB$FUNCTION_NAME = '%1'").arg(nome),
                  QStringLiteral("create function %1 (TEXTO varchar(8191)) returns varchar(8191) "
                                 "deterministic as begin return trim(%2 from TEXTO); end")
                      .arg(nome, lado),
                  QStringLiteral("grant execute on function %1 to public").arg(nome));
}

} // namespace

void PrepararBanco(TSQLConnection &conexao)
{
    CriarFuncao(conexao, QStringLiteral("LTRIM"), QStringLiteral("leading"));
    CriarFuncao(conexao, QStringLiteral("RTRIM"), QStringLiteral("trailing"));
    CriarSeFaltar(conexao, QStringLiteral("RDB$RELATIONS where RDB$RELATION_NAME = 'FICHA_TRAVA'"),
                  QStringLiteral("create table FICHA_TRAVA ("
                                 "TABELA varchar(63) character set iso8859_1 not null, "
                                 "CHAVE varchar(200) character set iso8859_1 not null, "
                                 "primary key (TABELA, CHAVE))"),
                  QStringLiteral("grant select, insert, delete on FICHA_TRAVA to public"));
}

} // namespace ficha
