#include "input/UConsultaDoGuia.h"

#include "platform/database/ConexD.h"

namespace ficha
{

namespace
{
const QString FimDeLinha = QStringLiteral("\r\n");

/** The value of a number or of a text in quotes. */
QString SemAspas(const QString &codigo)
{
    if (!codigo.startsWith(u'\''))
        return codigo;
    return codigo.mid(1, codigo.size() - 2).replace(QStringLiteral("''"), QStringLiteral("'"));
}
} // namespace

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

void TConsultaDoGuia::Adiantar()
{
    if (lugar < 0)
        return;
    TomarConexao();
    QStringList comParametro = linhas;
    comParametro[lugar] = u'?';
    TSQLQuery::Adiantar(comParametro.join(FimDeLinha));
}

void TConsultaDoGuia::Ler()
{
    Close();
    TomarConexao();
    SetValorAdiantado(SemAspas(Codigo()));
    Open();
}

void TConsultaDoGuia::TomarConexao()
{
    if (!GetSQLConnection())
        SetSQLConnection(ConexD().SQLConnection);
}

} // namespace ficha
