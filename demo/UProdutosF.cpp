#include "demo/UProdutosF.h"

#include "demo/UComboDeGrupos.h"
#include "demo/UCriterios.h"
#include "platform/edits/TNumEditBR.h"

#include <QLabel>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TProdutosF)

/** The list's text, from what the filter panel holds. */
void TProdutosF::PrepararSQL()
{
    TCriterios criterios;
    criterios.JuntarGrupo(*FiltroGrupoFr, QStringLiteral("p.grupos_cod"));
    criterios.JuntarNumero(*FiltroPrecoDeFr, QStringLiteral("p.preco"), QStringLiteral(">="),
                           QStringLiteral("a partir de R$ "));
    criterios.JuntarNumero(*FiltroPrecoAteFr, QStringLiteral("p.preco"), QStringLiteral("<="),
                           QStringLiteral("até R$ "));
    criterios.JuntarSituacao(*FiltroSituacaoGroup, QStringLiteral("p.ativo"));
    criterios.JuntarCadastro(*FiltroCadastroFr, QStringLiteral("p.cadastro"));
    FiltroAtivo = !criterios.Vazio();
    FiltroStatusLabel->setText(criterios.Status(QStringLiteral("produtos")));
    SQLQuery1->SetSQL(
        QStringLiteral("select p.produtos_cod, p.descricao, p.grupos_cod, g.descricao as grupo, "
                       "p.preco, p.estoque, p.unidade, p.ativo, p.observacao, p.cod_barras, "
                       "p.cadastro from produtos p join grupos g on g.grupos_cod = p.grupos_cod ") +
        criterios.Where() + QStringLiteral("order by p.descricao"));
}

void TProdutosF::ZerarFiltro()
{
    Desligar(*FiltroGrupoFr);
    Desligar(*FiltroPrecoDeFr);
    Desligar(*FiltroPrecoAteFr);
    FiltroSituacaoGroup->SetItemIndex(0);
    FiltroCadastroFr->Zerar();
}

void TProdutosF::PegarComponentes()
{
    TTabLinFiltroBasF::PegarComponentes();
    Pegar(this, CodFr, "CodFr");
    Pegar(this, DescrFr, "DescrFr");
    Pegar(this, CodBarrasFr, "CodBarrasFr");
    Pegar(this, GrupoFr, "GrupoFr");
    Pegar(this, PrecoFr, "PrecoFr");
    Pegar(this, EstoqueFr, "EstoqueFr");
    Pegar(this, UnidadeFr, "UnidadeFr");
    Pegar(this, AtivoFr, "AtivoFr");
    Pegar(this, ObservacaoFr, "ObservacaoFr");
    Pegar(this, FiltroGrupoFr, "FiltroGrupoFr");
    Pegar(this, FiltroPrecoDeFr, "FiltroPrecoDeFr");
    Pegar(this, FiltroPrecoAteFr, "FiltroPrecoAteFr");
    Pegar(this, FiltroSituacaoGroup, "FiltroSituacaoGroup");
    Pegar(this, FiltroCadastroFr, "FiltroCadastroFr");
}

void TProdutosF::FormCreate(QObject *sender)
{
    TTabLinFiltroBasF::FormCreate(sender);
    OferecerGrupos(GrupoFr, ActionList1);
    FiltroGrupoFr->ComboBoxCodFr->SetSQLText(GrupoFr->GetSQLText());
}

void TProdutosF::Rotular()
{
    const std::pair<const char *, const char16_t *> rotulos[] = {
        {"produtos_cod", u"Código"},   {"descricao", u"Descrição"},
        {"grupos_cod", u"Grupo"},      {"grupo", u"Grupo"},
        {"preco", u"Preço"},           {"estoque", u"Estoque"},
        {"unidade", u"Unidade"},       {"ativo", u"Ativo"},
        {"observacao", u"Observação"}, {"cod_barras", u"Código de barras"},
        {"cadastro", u"Cadastro"},
    };
    for (const auto &[campo, rotulo] : rotulos)
        SQLQuery1->FieldByName(campo)->SetDisplayLabel(QString::fromUtf16(rotulo));
}

void TProdutosF::PrepararTab()
{
    Rotular();
    TSQLQuery *q = SQLQuery1;
    Tab = Criar<TTabelaLinear>(q, QStringLiteral("produtos"));
    Tab->PegarCampoChave(q->FieldByName("produtos_cod"), 56, CodFr);
    Tab->PegarCampo(q->FieldByName("descricao"), 200, DescrFr);
    TCampo *grupo = Tab->PegarCampoChaveEstrangeira(q->FieldByName("grupos_cod"),
                                                    q->FieldByName("grupo"), 120, GrupoFr);
    grupo->OnAsString = [](TCampo *campo, QString &texto) { texto = campo->TextoEstrangeiro; };
    TCampo *preco = Tab->PegarCampo(q->FieldByName("preco"), 80, PrecoFr);
    preco->Tipo = 4;
    preco->FormatoFloat = QStringLiteral("###,###,##0.00");
    Tab->PegarCampo(q->FieldByName("estoque"), 70, EstoqueFr);
    TCampo *unidade = Tab->PegarCampo(q->FieldByName("unidade"), 80, UnidadeFr);
    unidade->Tipo = 5;
    unidade->ListaChar = std::make_unique<TLinhas>();
    const QStringList unidades = UnidadeFr->RadioGroup1->GetItems();
    for (int i = 0; i < unidades.size(); ++i)
        unidade->ListaChar->Add(unidades[i], i + 33);
    Tab->PegarCampo(q->FieldByName("ativo"), 44, AtivoFr);
    Tab->PegarCampo(q->FieldByName("cod_barras"), 100, CodBarrasFr);
    Tab->PegarCampo(q->FieldByName("cadastro"), 70);
    Tab->PegarCampo(q->FieldByName("observacao"), 0, ObservacaoFr)->Visivel = false;
}

void TProdutosF::AntesInserir()
{
    SQLInserir =
        QStringLiteral("insert into produtos (produtos_cod, descricao, grupos_cod, preco, "
                       "estoque, unidade, ativo, cod_barras, observacao) values (") +
        QStringList({StringProxCod(), DescrFr->SQLString(), GrupoFr->SQLString(),
                     PrecoFr->SQLString(), EstoqueFr->SQLString(), UnidadeFr->SQLString(),
                     AtivoFr->SQLString(), CodBarrasFr->SQLString(), ObservacaoFr->SQLString()})
            .join(QStringLiteral(", ")) +
        u')';
    SQLUltimoInserido =
        QStringLiteral("select produtos_cod from produtos where descricao=") + DescrFr->SQLString();
}

void TProdutosF::AntesAlterar()
{
    SQLAlterar = QStringLiteral("update produtos set descricao=") + DescrFr->SQLString() +
                 QStringLiteral(", grupos_cod=") + GrupoFr->SQLString() +
                 QStringLiteral(", preco=") + PrecoFr->SQLString() + QStringLiteral(", estoque=") +
                 EstoqueFr->SQLString() + QStringLiteral(", unidade=") + UnidadeFr->SQLString() +
                 QStringLiteral(", ativo=") + AtivoFr->SQLString() +
                 QStringLiteral(", cod_barras=") + CodBarrasFr->SQLString() +
                 QStringLiteral(", observacao=") + ObservacaoFr->SQLString();
}

} // namespace comercial
