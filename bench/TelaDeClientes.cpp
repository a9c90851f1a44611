#include "bench/TelaDeClientes.h"

#include "dates/UDTPBasFr.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TPageControl.h"

using namespace ficha;

namespace bancada
{

namespace
{

template <typename T>
void Por(T *&fr, QWidget *pagina, int x, int y)
{
    fr = Criar<T>(pagina);
    fr->move(x, y);
}

} // namespace

QString TTelaDeClientes::Consulta()
{
    return QStringLiteral("select * from cliente order by cliente_cod");
}

void TTelaDeClientes::FormCreate(QObject *sender)
{
    Por(CodFr, CamposTabSheet, 16, 8);
    Por(NomeFr, CamposTabSheet, 16, 56);
    NomeFr->Tag = 1;
    NomeFr->AceitaVazio = false;
    Por(CidadeFr, CamposTabSheet, 16, 108);
    Por(LimiteFr, CamposTabSheet, 16, 160);
    Por(NascimentoFr, CamposTabSheet, 240, 160);
    Por(TipoFr, CamposTabSheet, 16, 212);
    Por(EnderecoFr, CamposTabSheet, 16, 264);
    SetSQLText(Consulta());
    TTabLinearBasF::FormCreate(sender);
}

void TTelaDeClientes::PrepararTab()
{
    const auto campo = [this](const char *nome) { return SQLQuery1->FieldByName(nome); };
    Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("cliente"));
    Tab->PegarCampoChave(campo("cliente_cod"), 60, CodFr);
    Tab->PegarCampo(campo("nome"), 220, NomeFr);
    Tab->PegarCampo(campo("cidade"), 120, CidadeFr);
    Tab->PegarCampo(campo("limite"), 90, LimiteFr)->Tipo = 4;
    Tab->PegarCampo(campo("nascimento"), 80, NascimentoFr)->Tipo = 1;
    Tab->PegarCampo(campo("tipo"), 40, TipoFr);
    Tab->PegarCampo(campo("alterado"), 130);
    Tab->PegarCampo(campo("endereco"), 220, EnderecoFr);
}

void TTelaDeClientes::AntesInserir()
{
    const QString cod = StringProxCod();
    const QStringList valores{cod,
                              NomeFr->SQLString(),
                              CidadeFr->SQLString(),
                              LimiteFr->SQLString(),
                              NascimentoFr->SQLString(),
                              TipoFr->SQLString(),
                              QStringLiteral("current_timestamp"),
                              EnderecoFr->SQLString()};
    SQLInserir = QStringLiteral("insert into cliente values (") + valores.join(u',') + u')';
    SQLUltimoInserido = QStringLiteral("select cliente_cod from cliente where cliente_cod=") + cod;
}

void TTelaDeClientes::AntesAlterar()
{
    SQLAlterar = QStringLiteral("update cliente set nome=%1, cidade=%2, limite=%3, nascimento=%4, "
                                "tipo=%5, alterado=current_timestamp, endereco=%6")
                     .arg(NomeFr->SQLString(), CidadeFr->SQLString(), LimiteFr->SQLString(),
                          NascimentoFr->SQLString(), TipoFr->SQLString(), EnderecoFr->SQLString());
}

} // namespace bancada
