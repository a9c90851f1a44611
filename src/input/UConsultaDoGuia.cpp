#include "input/UConsultaDoGuia.h"

#include "platform/database/ConexD.h"

namespace ficha
{

namespace
{
const QString FimDeLinha = QStringLiteral("\r\n");
}

TConsultaDoGuia::TConsultaDoGuia(QObject *owner, const char *nome, QStringList texto, int doCodigo)
    : TSQLQuery(owner), linhas(std::move(texto)), lugar(doCodigo), deProjeto(linhas.value(doCodigo))
{
    setObjectName(QString::fromLatin1(nome));
    SetSQLConnection(ConexD().SQLConnection);
    SetSQL(linhas.join(FimDeLinha));
}

QString TConsultaDoGuia::Codigo() const
{
    return linhas.value(lugar);
}

void TConsultaDoGuia::SetCodigo(const QString &codigo)
{
    linhas[lugar] = codigo;
    SetSQL(linhas.join(FimDeLinha));
}

void TConsultaDoGuia::Esquecer()
{
    SetCodigo(deProjeto);
}

void TConsultaDoGuia::Ler()
{
    Close();
    if (!GetSQLConnection())
        SetSQLConnection(ConexD().SQLConnection);
    Open();
}

} // namespace ficha
