#include "demo/UCepsF.h"

#include "platform/database/ConexD.h"
#include "platform/support/SisD.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TPanel.h"

#include <algorithm>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TCepsF)

namespace
{

QString Lista(int mun)
{
    return QStringLiteral(
               "select l.logr_cod, trim(t.nome) as tipo, l.nome, l.cep, b.nome as bairro, "
               "l.compl, l.bai_cod, ascii_val(l.tipologr_cod) as tipologr from cep_bai b join "
               "cep_logr l on l.bai_cod = b.bai_cod join cep_tipologr t on t.tipologr_cod = "
               "l.tipologr_cod where b.mun_cod = %1 order by l.nome, l.cep")
        .arg(mun);
}

} // namespace

void TCepsF::Atualizar()
{
    TTabLinearBasF::Atualizar();
    const bool navegando = Tab && Tab->Status == TStatus::Ocioso;
    if (EscolhaPanel->isEnabled() != navegando)
        EscolhaPanel->setEnabled(navegando);
}

int TCepsF::SugestaoNovoCod()
{
    return MaiorCodGravado() + 1;
}

void TCepsF::MostrarMunicipio(int mun)
{
    SQLQuery1->SetSQL(Lista(mun));
    BairroFr->SetSQLText(
        QStringLiteral("select bai_cod, nome from cep_bai where mun_cod=%1 order by nome")
            .arg(mun));
    Reler(0);
}

void TCepsF::PegarComponentes()
{
    TTabLinearBasF::PegarComponentes();
    Pegar(this, EscolhaPanel, "EscolhaPanel");
    Pegar(this, UFComboBox, "UFComboBox");
    Pegar(this, MunComboBox, "MunComboBox");
    Pegar(this, CodFr, "CodFr");
    Pegar(this, BairroFr, "BairroFr");
    Pegar(this, TipoFr, "TipoFr");
    Pegar(this, NomeFr, "NomeFr");
    Pegar(this, ComplFr, "ComplFr");
    Pegar(this, CepFr, "CepFr");
}

void TCepsF::FormCreate(QObject *sender)
{
    PreencherEscolha();
    SQLQuery1->SetSQL(Lista(int(MunComboBox->GetObjeto(MunComboBox->GetItemIndex()))));
    TTabLinearBasF::FormCreate(sender);
    TipoFr->SetSQLText(QStringLiteral(
        "select ascii_val(tipologr_cod), iif(nome = '', '(nenhum)', nome) from cep_tipologr order "
        "by nome"));
    // Neither has a screen of its own.
    BairroFr->EditBitBtn->hide();
    TipoFr->EditBitBtn->hide();
    MostrarMunicipio(int(MunComboBox->GetObjeto(MunComboBox->GetItemIndex())));
    Ligar(UFComboBox, &TComboBox::UserChanged, this, [this] { PreencherMunicipios(); });
    Ligar(MunComboBox, &TComboBox::UserChanged, this, [this] {
        if (const int i = MunComboBox->GetItemIndex(); i >= 0)
            MostrarMunicipio(int(MunComboBox->GetObjeto(i)));
    });
}

void TCepsF::PreencherEscolha()
{
    TCustomBRQuery ufs;
    ufs.Open(QStringLiteral("select sigla, ascii_val(uf_cod) from cep_uf order by sigla"));
    for (; !ufs.Eof(); ufs.Next())
        UFComboBox->AddItem(ufs.Fields(0)->AsString(), ufs.Fields(1)->AsInteger());
    UFComboBox->SetItemIndex(std::max(0, UFComboBox->IndexOf(SisD().UFPadrao)));
    PreencherMunicipios();
    if (const int padrao = MunComboBox->IndexOfSemAcentos(SisD().MunicipioPadrao); padrao >= 0)
        MunComboBox->SetItemIndex(padrao);
}

/** The municípios of the chosen state, the first one chosen; its streets are listed where the
 * screen stands already. */
void TCepsF::PreencherMunicipios()
{
    TCustomBRQuery municipios;
    municipios.Open(QStringLiteral("select nome, mun_cod from cep_mun where uf_cod = '%1' order by "
                                   "nome")
                        .arg(QChar(char16_t(UFComboBox->GetObjeto(UFComboBox->GetItemIndex())))));
    MunComboBox->Clear();
    for (; !municipios.Eof(); municipios.Next())
        MunComboBox->AddItem(municipios.Fields(0)->AsString(), municipios.Fields(1)->AsInteger());
    MunComboBox->SetItemIndex(0);
    if (Tab)
        MostrarMunicipio(int(MunComboBox->GetObjeto(MunComboBox->GetItemIndex())));
}

void TCepsF::Rotular()
{
    const std::pair<const char *, const char16_t *> rotulos[] = {
        {"logr_cod", u"Código"}, {"tipo", u"Tipo"},     {"nome", u"Logradouro"},
        {"cep", u"CEP"},         {"bairro", u"Bairro"}, {"compl", u"Trecho"},
        {"bai_cod", u"Bairro"},  {"tipologr", u"Tipo"},
    };
    for (const auto &[campo, rotulo] : rotulos)
        SQLQuery1->FieldByName(campo)->SetDisplayLabel(QString::fromUtf16(rotulo));
}

void TCepsF::PrepararTab()
{
    Rotular();
    TSQLQuery *q = SQLQuery1;
    const auto descricao = [](TCampo *campo, QString &texto) { texto = campo->TextoEstrangeiro; };
    // The view that names the streets as their code column and its generator are named.
    Tab = Criar<TTabelaLinear>(q, QStringLiteral("logr"));
    Tab->PegarCampoChave(q->FieldByName("logr_cod"), 56, CodFr);
    Tab->PegarCampoChaveEstrangeira(q->FieldByName("tipologr"), q->FieldByName("tipo"), 60, TipoFr)
        ->OnAsString = descricao;
    Tab->PegarCampo(q->FieldByName("nome"), 220, NomeFr);
    Tab->PegarCampo(q->FieldByName("cep"), 70, CepFr)->OnAsString =
        [](TCampo *campo, QString &texto) { texto = CEPComMasc(campo->GetValor().AsString()); };
    Tab->PegarCampoChaveEstrangeira(q->FieldByName("bai_cod"), q->FieldByName("bairro"), 150,
                                    BairroFr)
        ->OnAsString = descricao;
    Tab->PegarCampo(q->FieldByName("compl"), 100, ComplFr);
}

void TCepsF::AntesInserir()
{
    SQLInserir =
        QStringLiteral("insert into logr (logr_cod, bai_cod, tipologr_cod, nome, compl, cep) "
                       "values (") +
        QStringList({StringProxCod(), BairroFr->SQLString(),
                     QStringLiteral("ascii_char(") + TipoFr->SQLString() + u')',
                     NomeFr->SQLString(), ComplFr->SQLString(), CepFr->SQLString()})
            .join(QStringLiteral(", ")) +
        u')';
    SQLUltimoInserido = QStringLiteral("select max(logr_cod) from logr where bai_cod=") +
                        BairroFr->SQLString() + QStringLiteral(" and cep=") + CepFr->SQLString();
}

void TCepsF::AntesAlterar()
{
    SQLAlterar = QStringLiteral("update logr set bai_cod=") + BairroFr->SQLString() +
                 QStringLiteral(", tipologr_cod=ascii_char(") + TipoFr->SQLString() +
                 QStringLiteral("), nome=") + NomeFr->SQLString() + QStringLiteral(", compl=") +
                 ComplFr->SQLString() + QStringLiteral(", cep=") + CepFr->SQLString();
}

} // namespace comercial
