#include "bench/QuadrosTela.h"

#include "bench/Processador.h"
#include "input/UComboBoxCodBasFr.h"
#include "platform/core/Erros.h"
#include "platform/database/ConexD.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TPageControl.h"

using namespace ficha;

namespace bancada
{

FICHA_REGISTRAR(TQuadrosF)

namespace
{

struct TColuna {
    const char *Nome;
    const char *Tipo;
    const char *Valor; /**< of a record, as SQL; :i is its number */
    const char *Quadro;
    int Largura = 0; /**< 0: not in the list */
};

constexpr TColuna Colunas[] = {
    {"quadros_cod", "integer not null primary key", ":i", "CodFr", 60},
    {"nome", "varchar(40)", "'Maria da Conceição ' || :i", "NomeFr", 200},
    {"fantasia", "varchar(40)", "'Padaria ' || :i", "FantasiaFr", 140},
    {"descricao", "varchar(30)", "'Pães e doces'", "DescricaoFr"},
    {"cpf", "varchar(11)", "'52998224725'", "CPFFr", 100},
    {"cnpj", "varchar(14)", "'11222333000181'", "CNPJFr"},
    {"cep", "varchar(8)", "'13010000'", "CepFr"},
    {"rua", "varchar(40)", "'Rua das Acácias'", "RuaFr"},
    {"numero", "integer", ":i * 7", "NumeroFr"},
    {"bairro", "varchar(40)", "'Centro'", "BairroFr"},
    {"cidade", "varchar(40)", "'Campinas'", "CidadeFr", 140},
    {"regiao", "integer", "1", "RegiaoFr"},
    {"rota", "integer", "2", "RotaFr"},
    {"situacao", "char(1)", "'!'", "SituacaoFr"},
    {"porte", "char(1)", "'\"'", "PorteFr"},
    {"tipo", "char(1)", "'!'", "TipoFr"},
    {"pagamento", "integer", "1", "PagamentoFr"},
    {"entrega", "integer", "2", "EntregaFr"},
    {"ativo", "char(1)", "'S'", "AtivoFr"},
    {"bloqueado", "char(1)", "'N'", "BloqueadoFr"},
    {"isento", "char(1)", "'N'", "IsentoFr"},
    {"limite", "numeric(15,2)", "1234.56", "LimiteFr", 90},
    {"renda", "numeric(15,2)", "4321.00", "RendaFr"},
    {"desconto", "numeric(15,2)", "2.50", "DescontoFr"},
    {"peso", "numeric(15,3)", "1.250", "PesoFr"},
    {"quantidade", "integer", "12", "QuantidadeFr"},
    {"parcelas", "integer", "3", "ParcelasFr"},
    {"dia", "integer", "10", "DiaFr"},
    {"barras", "varchar(20)", "'7891234567895'", "BarrasFr"},
    {"conta", "integer", "4567", "ContaFr"},
    {"agencia", "integer", "123", "AgenciaFr"},
    {"profissao", "varchar(40)", "'Comerciante'", "ProfissaoFr"},
    {"foto", "varchar(80)", "''", "FotoFr"},
    {"cep_entrega", "varchar(8)", "'13020000'", "CepEntregaFr"},
    {"cadastro", "date", "date '2024-03-15'", "CadastroFr"},
    {"observacao", "varchar(200)", "'Cliente antigo'", "ObservacaoFr"},
    {"notas", "varchar(200)", "'Paga em dia'", "NotasFr"},
    {"telefones", "varchar(200)", "'Ligar cedo'", "TelefonesFr"},
    {"nascimento", "varchar(8)", "'15031980'", "NascimentoFr"},
    {"ddd", "varchar(2)", "'19'", nullptr},
    {"fone1", "varchar(9)", "'32321010'", nullptr},
    {"fone2", "varchar(9)", "'32321011'", nullptr},
    {"fax", "varchar(9)", "'32321012'", nullptr},
    {"email", "varchar(40)", "'maria@exemplo.com.br'", nullptr},
    {"pagina", "varchar(40)", "'www.exemplo.com.br'", nullptr},
};

} // namespace

void TQuadrosF::PegarComponentes()
{
    TTabLinearBasF::PegarComponentes();
    Pegar(this, NascimentoFr, "NascimentoFr");
    Pegar(this, ContatoFr, "ContatoFr");
    for (const TColuna &coluna : Colunas)
        if (coluna.Quadro)
            Pegar(this, quadros[coluna.Quadro], coluna.Quadro);
    if (quadros.size() + 1 != 40) // the contact row keeps six columns
        throw EErro(QStringLiteral("the screen has %1 frames").arg(quadros.size() + 1));
}

void TQuadrosF::FormCreate(QObject *sender)
{
    // Opened here so that it can be told from the making of the screen; the base finds it open.
    SQLQuery1->SetSQLConnection(ConexD().SQLConnection);
    SetSQLText(QStringLiteral("select * from quadros order by quadros_cod"));
    SegundosDoBanco = CronometrarProcessador([this] { SQLQuery1->Open(); });
    TTabLinearBasF::FormCreate(sender);
    auto *abrir = new TAction(ActionList1);
    for (auto *combo : CamposTabSheet->findChildren<TComboBoxCodBasFr *>()) {
        combo->SelecionarAction = abrir;
        SegundosDoBanco += CronometrarProcessador([combo] {
            combo->SetSQLText(
                QStringLiteral("select regioes_cod, nome from regioes order by nome"));
        });
    }
    const QList<TCustomEdit *> simples = {NascimentoFr->MaskEdit1,     ContatoFr->DDDMaskEditBR,
                                          ContatoFr->Fone1EditBR,      ContatoFr->Fone2EditBR,
                                          ContatoFr->FaxEditBR,        ContatoFr->EMailLabeledEdit,
                                          ContatoFr->PaginaLabeledEdit};
    for (const TCustomEdit *edit : simples)
        Ligar(edit, &QLineEdit::textEdited, this, [this] { AposChange(); });
}

void TQuadrosF::PegarColuna(const char *coluna, QWidget *controle, int largura)
{
    TCampo *campo =
        Tab->PegarCampo(SQLQuery1->FieldByName(QLatin1String(coluna)), largura, controle);
    campo->Visivel = largura > 0;
}

void TQuadrosF::PrepararTab()
{
    Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("quadros"));
    Tab->PegarCampoChave(SQLQuery1->FieldByName("quadros_cod"), 60, Quadro("CodFr"));
    for (const TColuna &coluna : Colunas) {
        if (coluna.Quadro && &coluna != &Colunas[0] && Quadro(coluna.Quadro) != NascimentoFr)
            PegarColuna(coluna.Nome, Quadro(coluna.Quadro), coluna.Largura);
    }
    PegarColuna("nascimento", NascimentoFr->MaskEdit1);
    PegarColuna("ddd", ContatoFr->DDDMaskEditBR);
    PegarColuna("fone1", ContatoFr->Fone1EditBR);
    PegarColuna("fone2", ContatoFr->Fone2EditBR);
    PegarColuna("fax", ContatoFr->FaxEditBR);
    PegarColuna("email", ContatoFr->EMailLabeledEdit);
    PegarColuna("pagina", ContatoFr->PaginaLabeledEdit);
}

QString RoteiroDosQuadros()
{
    constexpr int Registros = 100;
    QStringList colunas, valores;
    for (const TColuna &coluna : Colunas) {
        colunas << QStringLiteral("%1 %2").arg(QLatin1String(coluna.Nome),
                                               QLatin1String(coluna.Tipo));
        valores << QString::fromUtf8(coluna.Valor);
    }
    return QStringLiteral(R"(
        create table regioes (regioes_cod integer not null primary key, nome varchar(20));
        insert into regioes values (1, 'Norte');
        insert into regioes values (2, 'Sul');
        insert into regioes values (3, 'Centro');
        create table quadros (%1);
        create generator quadros_cod_gen;
        set term ^;
        execute block as declare i integer = 1; begin
            while (i <= %2) do begin
                insert into quadros values (%3);
                i = i + 1;
            end
        end^)")
        .arg(colunas.join(u", "))
        .arg(Registros)
        .arg(valores.join(u", "));
}

} // namespace bancada
