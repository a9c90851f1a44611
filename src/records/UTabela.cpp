#include "records/UTabela.h"

#include "platform/database/ConexD.h"
#include "platform/support/BancoApoio.h"

namespace ficha
{

namespace
{
QString NomeDoGerador(const QString &tabela)
{
    return tabela + QStringLiteral("_cod_gen");
}
} // namespace

TTabela::TTabela(TChave) {}

TTabela::~TTabela() = default;

void TTabela::Create(TDataSet *dataset, const QString &nomeTabela)
{
    NomeTabela = nomeTabela;
    Campos = std::make_unique<TCampos>();
    SetDataSet(dataset);
    Status = TStatus::Ocioso;
}

void TTabela::SetDataSet(TDataSet *dataset)
{
    DataSet = dataset;
}

void TTabela::InsIni()
{
    if (Status == TStatus::Ocioso)
        Status = TStatus::Inserindo;
}

void TTabela::AltIni()
{
    if (Status == TStatus::Ocioso)
        Status = TStatus::Alterando;
}

void TTabela::ExclIni()
{
    if (Status == TStatus::Ocioso)
        Status = TStatus::Excluindo;
}

void TTabela::InsFim()
{
    Status = TStatus::Ocioso;
    GenUpDate(NomeTabela);
}

void TTabela::AltFim()
{
    Status = TStatus::Ocioso;
}

void TTabela::ExclFim()
{
    Status = TStatus::Ocioso;
}

void TTabela::InsCancel()
{
    Status = TStatus::Ocioso;
}

void TTabela::AltCancel()
{
    Status = TStatus::Ocioso;
}

void TTabela::ExclCancel()
{
    Status = TStatus::Ocioso;
}

bool TTabela::PodeInserir() const
{
    return Status == TStatus::Ocioso;
}

bool TTabela::PodeAlterar() const
{
    return Status == TStatus::Ocioso && DataSet && DataSet->RecordCount() > 0;
}

bool TTabela::PodeExcluir() const
{
    return Status == TStatus::Ocioso && DataSet && DataSet->RecordCount() > 0;
}

bool TTabela::GarantiaRegistro()
{
    return false;
}

QString TTabela::StatusStr() const
{
    switch (Status) {
    case TStatus::Inserindo:
        return QStringLiteral("Inserindo");
    case TStatus::Alterando:
        return QStringLiteral("Alterando");
    case TStatus::Excluindo:
        return QStringLiteral("Excluindo");
    case TStatus::Ocioso:
        break;
    }
    return {};
}

void TTabela::LerCamposDoDataSet(const TDataSet *dataset)
{
    for (int i = 0; i < Campos->Count(); ++i) {
        TCampo *campo = Campos->Campos(i);
        if (campo->Chave || !campo->Field)
            continue;
        campo->SetValor(dataset->FieldByName(campo->Field->FieldName())->Value());
        campo->PreencherControl();
    }
}

int TTabela::GenMaiorCod(const QString &tabela) const
{
    const TCustomBRSQL consulta(QStringLiteral("select max(") + tabela +
                                QStringLiteral("_cod) from ") + tabela);
    return consulta.Fields(0)->AsInteger();
}

int TTabela::GenVal(const QString &tabela) const
{
    return Variant(double(ficha::GenVal(NomeDoGerador(tabela)))).AsInteger();
}

void TTabela::GenSet(const QString &tabela, int valor) const
{
    ficha::GenSet(NomeDoGerador(tabela), valor);
}

void TTabela::GenUpDate(const QString &tabela) const
{
    const int maior = GenMaiorCod(tabela);
    if (maior > ficha::GenVal(NomeDoGerador(tabela)))
        GenSet(tabela, maior);
}

} // namespace ficha
