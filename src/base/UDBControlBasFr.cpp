#include "base/UDBControlBasFr.h"

#include "platform/database/ConexD.h"
#include "platform/support/BancoApoio.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "records/UTabelaLinear.h"

namespace ficha
{

FICHA_REGISTRAR(TDBControlBasFr)

TDBControlBasFr::TDBControlBasFr(TChave chave) : TControlBasFr(chave) {}

void TDBControlBasFr::Create(QWidget *owner)
{
    TControlBasFr::Create(owner);
    Frases.Add(QStringLiteral("Já existe"));
}

bool TDBControlBasFr::CanExit()
{
    return TControlBasFr::CanExit();
}

bool TDBControlBasFr::ValorAceitavel()
{
    if (!NaoRepetir)
        return true;
    if (!Repetido()) {
        Frases.SetObjeto(0, 0);
        return true;
    }
    Frases.SetObjeto(0, 1);
    MensagemAviso(QStringLiteral("Repetição\r\n") + RotuloDoCampo() + u' ' + QuotedStr(AsString()) +
                      QStringLiteral(" já existe no sistema. Escolha outro valor, ou clique em "
                                     "Cancelar."),
                  0);
    return false;
}

bool TDBControlBasFr::EhDeColuna() const
{
    return true;
}

void TDBControlBasFr::PegarColuna(TCampo *campo, TTabelaLinear *tabela)
{
    Campo = campo;
    Tabela = tabela;
}

void TDBControlBasFr::DesligarColuna(const TCampo *campo)
{
    if (Campo != campo)
        return;
    Campo = nullptr;
    Tabela = nullptr;
}

QString TDBControlBasFr::FraseRef() const
{
    if (!Campo)
        return {};
    QString frase = u' ' + RotuloDoCampo() + QStringLiteral(":  [Tab]Avançar");
    if (NaoRepetir)
        frase += QStringLiteral("  Não pode ser repetido");
    return frase;
}

bool TDBControlBasFr::Repetido() const
{
    if (!Tabela || Tabela->Status == TStatus::Ocioso || !Campo || !Campo->Field)
        return false;
    TCustomBRSQL consulta;
    return consulta.Open(InstrucaoRepetido());
}

/** The look-up of the value in its column. The insertion's and the alteration's text forms differ
 * in letters and parentheses; both are kept as they are. */
QString TDBControlBasFr::InstrucaoRepetido() const
{
    const QString f = Campo->Field->FieldName();
    const QString s = SQLString();
    const QString inicio =
        QStringLiteral("select ") + f + QStringLiteral(" from ") + Tabela->NomeTabela;
    const bool texto = FieldIsString(Campo->Field);
    if (Tabela->Status == TStatus::Inserindo) {
        if (texto)
            return inicio + QStringLiteral(" where UPPER(") + f + QStringLiteral(")=UPPER(") + s +
                   QStringLiteral(") collate pt_pt and ltrim(rtrim(") + f +
                   QStringLiteral("))<>''");
        return inicio + QStringLiteral(" where ") + f + u'=' + s + QStringLiteral(" and ") + f +
               QStringLiteral("<>0");
    }
    const TField *chave = Tabela->Campos->Campos(0)->Field;
    const QString outro = chave->FieldName() + QStringLiteral("<>") + chave->AsString();
    if (texto)
        return inicio + QStringLiteral(" where (upper(") + f + QStringLiteral(")=upper(") + s +
               QStringLiteral(") collate pt_pt) and ") + outro +
               QStringLiteral(" and ltrim(rtrim(") + f + QStringLiteral("))<>''");
    return inicio + QStringLiteral(" where ") + f + u'=' + s + QStringLiteral(" and ") + outro;
}

bool TDBControlBasFr::IsNull() const
{
    return !Campo || Campo->IsNull();
}

void TDBControlBasFr::Editar()
{
    if (Tabela && Tabela->Status == TStatus::Ocioso && FormTabela())
        FormTabela()->AtivarAlteracao();
}

ITelaManutencao *TDBControlBasFr::FormTabela() const
{
    return telaViva ? tela : nullptr;
}

void TDBControlBasFr::SetFormTabela(ITelaManutencao *nova)
{
    tela = nova;
    telaViva = dynamic_cast<QObject *>(nova);
}

QString TDBControlBasFr::RotuloDoCampo() const
{
    return TemRotulo() ? Campo->Field->DisplayLabel() : QStringLiteral("Este");
}

bool TDBControlBasFr::TemRotulo() const
{
    return Campo && Campo->Field;
}

void TDBControlBasFr::FrameExit(QObject *sender)
{
    TControlBasFr::FrameExit(sender);
}

void TDBControlBasFr::FrameEnter(QObject *sender)
{
    TControlBasFr::FrameEnter(sender);
}

} // namespace ficha
