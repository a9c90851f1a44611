#include "platform/support/BancoApoio.h"

#include "platform/database/ConexD.h"
#include "platform/database/TTravas.h"
#include "platform/support/Datas.h"
#include "platform/support/Mensagens.h"

namespace ficha
{

namespace
{

qint64 LerGerador(const QString &nome, int passo)
{
    TCustomBRSQL consulta(
        QStringLiteral("select GEN_ID(%1, %2) from rdb$database").arg(nome).arg(passo));
    return qint64(consulta.Fields(0)->AsFloat());
}

/** The locks of the host's connection; EDatabaseError when there is none. */
TTravas &Travas()
{
    TSQLConnection *conexao = ConexD().SQLConnection;
    if (!conexao)
        throw EDatabaseError(TErroBanco::Outro,
                             QStringLiteral("Não há conexão com o banco de dados."));
    return conexao->Travas();
}

/** What the user reads when someone else has the record. */
QString TextoDaRecusa(bool desteProcesso, const TDonoDaTrava &dono)
{
    const QString depois = QStringLiteral("\r\nTente novamente mais tarde.");
    if (desteProcesso) {
        return QStringLiteral("O registro está sendo alterado em outra janela deste programa.\r\n"
                              "Confirme ou cancele a alteração naquela janela.");
    }
    if (!dono.Conhecido)
        return QStringLiteral("O registro está sendo alterado por outro usuário.") + depois;
    return QStringLiteral("O registro está sendo alterado por %1 desde %2.")
               .arg(dono.Quem, FormatDateTime(QStringLiteral("dd/mm/yyyy hh:nn"), dono.Desde)) +
           depois;
}

bool RegistroExiste(const QString &tabela, const QString &onde)
{
    if (onde.trimmed().compare(QLatin1String("where"), Qt::CaseInsensitive) == 0 ||
        onde.trimmed().isEmpty())
        return true;
    TCustomBRQuery consulta;
    return consulta.Open(QStringLiteral("select first 1 1 from %1 %2").arg(tabela, onde.trimmed()));
}

/** Gives a lock that was just taken back, unless it is kept. */
class TTravaProvisoria
{
public:
    TTravaProvisoria(TTravas &dasTravas, const QString &daTabela, const QString &dasChaves)
        : travas(dasTravas), tabela(daTabela), chaves(dasChaves)
    {
    }
    ~TTravaProvisoria()
    {
        if (!ficou)
            travas.Liberar(tabela, chaves);
    }
    TTravaProvisoria(const TTravaProvisoria &) = delete;
    TTravaProvisoria &operator=(const TTravaProvisoria &) = delete;
    void Ficar() { ficou = true; }

private:
    TTravas &travas;
    const QString &tabela;
    const QString &chaves;
    bool ficou = false;
};

/** Takes the lock and looks for the record; the lock stays only when the record is there. */
bool TravarExistente(TTravas &travas, const QString &tabela, const QString &chaves,
                     const QString &onde)
{
    TTravaProvisoria trava(travas, tabela, chaves);
    if (!RegistroExiste(tabela, onde))
        return false;
    trava.Ficar();
    return true;
}

} // namespace

qint64 GenVal(const QString &nome)
{
    return LerGerador(nome, 0);
}

void GenSet(const QString &nome, qint64 valor)
{
    ConexD().Executar(QStringLiteral("SET GENERATOR %1 TO %2").arg(nome).arg(valor));
}

qint64 GenProximo(const QString &nome)
{
    return LerGerador(nome, 1);
}

bool FieldIsString(const TField *field)
{
    return field &&
           (field->DataType() == TFieldType::ftString || field->DataType() == TFieldType::ftMemo);
}

int NLinsDataSet(const TDataSet *dataset)
{
    return dataset ? dataset->RecordCount() : 0;
}

bool GarantiaTentar(const QString &tabela, const QString &chaves, const QString &onde)
{
    TTravas &travas = Travas();
    const bool minha = travas.Detem(tabela, chaves);
    TDonoDaTrava dono;
    if (!travas.Tentar(tabela, chaves, &dono)) {
        MensagemAviso(TextoDaRecusa(minha, dono), 0);
        return false;
    }
    // Looked for under the lock: from here on nobody who asks first deletes the record.
    if (TravarExistente(travas, tabela, chaves, onde))
        return true;
    MensagemAviso(QStringLiteral("O registro não existe mais.\r\nFoi excluído por outro usuário."),
                  0);
    return false;
}

void GarantiaLiberar(const QString &tabela, const QString &chaves)
{
    if (TSQLConnection *conexao = ConexD().SQLConnection)
        conexao->Travas().Liberar(tabela, chaves);
}

qint64 GarantiaNumero(const QString &tabela, const QString &chaves)
{
    const TSQLConnection *conexao = ConexD().SQLConnection;
    return conexao ? conexao->Travas().Numero(tabela, chaves) : 0;
}

} // namespace ficha
