#include "demo/UClientesF.h"

#include "demo/UComboDeGrupos.h"
#include "demo/UCriterios.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/edits/TCNPJEditBR.h"
#include "platform/edits/TCPFEditBR.h"
#include "platform/edits/TFoneEditBR.h"
#include "platform/edits/TMaskEditBR.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TRadioGroup.h"

#include <QLabel>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TClientesF)

namespace
{

/** What a plain input holds, as SQL. */
QString Texto(const TCustomEdit *edit)
{
    return QuotedStr(edit->GetText().trimmed());
}

QString Texto(const TComboBox *lista)
{
    return QuotedStr(lista->GetText().trimmed());
}

QString OuNulo(bool tem, const QString &valor)
{
    return tem ? valor : QStringLiteral("null");
}

} // namespace

void TClientesF::Atualizar()
{
    TTabLinFiltroBasF::Atualizar();
    IndicarEstado();
}

bool TClientesF::AtivarAlteracao()
{
    const QPointer<TClientesF> viva(this);
    const bool ativou = TTabLinFiltroBasF::AtivarAlteracao();
    if (viva)
        IndicarEstado();
    return ativou;
}

bool TClientesF::AtivarInsersao()
{
    const bool navegava = Tab->Status == TStatus::Ocioso;
    const QPointer<TClientesF> viva(this);
    const bool ativou = TTabLinFiltroBasF::AtivarInsersao();
    if (!viva || !navegava || Tab->Status != TStatus::Inserindo)
        return ativou;
    IndicarEstado();
    EnderecoFr->Zerar();
    ContatoFr->Zerar();
    return ativou;
}

bool TClientesF::Inseriu()
{
    return NascimentoAceitavel() && TTabLinFiltroBasF::Inseriu();
}

bool TClientesF::Alterou()
{
    return NascimentoAceitavel() && TTabLinFiltroBasF::Alterou();
}

/** The list's text, from what the filter panel holds. The day of birth comes as the digits that its
 * input keeps: a bare mask edit knows no dates. */
void TClientesF::PrepararSQL()
{
    TCriterios criterios;
    criterios.JuntarGrupo(*FiltroGrupoFr, QStringLiteral("c.grupos_cod"));
    criterios.JuntarNumero(*FiltroLimiteDeFr, QStringLiteral("c.limite"), QStringLiteral(">="),
                           QStringLiteral("com limite a partir de R$ "));
    criterios.JuntarNumero(*FiltroLimiteAteFr, QStringLiteral("c.limite"), QStringLiteral("<="),
                           QStringLiteral("com limite até R$ "));
    criterios.JuntarSituacao(*FiltroSituacaoGroup, QStringLiteral("c.ativo"));
    criterios.JuntarCadastro(*FiltroCadastroFr, QStringLiteral("c.cadastro"));
    FiltroAtivo = !criterios.Vazio();
    FiltroStatusLabel->setText(criterios.Status(QStringLiteral("clientes")));
    SQLQuery1->SetSQL(
        QStringLiteral("select c.*, c.tipo_pess + 1 as opcao_pess, "
                       "lpad(extract(day from c.nascimento), 2, '0') || "
                       "lpad(extract(month from c.nascimento), 2, '0') || "
                       "lpad(extract(year from c.nascimento), 4, '0') as digitos_nasc, "
                       "c.mun || '/' || c.uf as cidade, "
                       "trim(iif(c.ddd = '' or c.fone1 = '', '', '(' || c.ddd || ') ') || c.fone1) "
                       "as telefone "
                       "from clientes c ") +
        criterios.Where() + QStringLiteral("order by c.nome"));
}

void TClientesF::ZerarFiltro()
{
    Desligar(*FiltroGrupoFr);
    Desligar(*FiltroLimiteDeFr);
    Desligar(*FiltroLimiteAteFr);
    FiltroSituacaoGroup->SetItemIndex(0);
    FiltroCadastroFr->Zerar();
}

void TClientesF::PegarComponentes()
{
    TTabLinFiltroBasF::PegarComponentes();
    Pegar(this, CodFr, "CodFr");
    Pegar(this, NomeFr, "NomeFr");
    Pegar(this, TipoPessFr, "TipoPessFr");
    Pegar(this, CPFFr, "CPFFr");
    Pegar(this, CNPJFr, "CNPJFr");
    Pegar(this, DocFr, "DocFr");
    Pegar(this, NascimentoFr, "NascimentoFr");
    Pegar(this, GrupoFr, "GrupoFr");
    Pegar(this, EnderecoFr, "EnderecoFr");
    Pegar(this, ContatoFr, "ContatoFr");
    Pegar(this, NotasFr, "NotasFr");
    Pegar(this, LimiteFr, "LimiteFr");
    Pegar(this, AtivoFr, "AtivoFr");
    Pegar(this, FotoFr, "FotoFr");
    Pegar(this, FiltroGrupoFr, "FiltroGrupoFr");
    Pegar(this, FiltroLimiteDeFr, "FiltroLimiteDeFr");
    Pegar(this, FiltroLimiteAteFr, "FiltroLimiteAteFr");
    Pegar(this, FiltroSituacaoGroup, "FiltroSituacaoGroup");
    Pegar(this, FiltroCadastroFr, "FiltroCadastroFr");
}

void TClientesF::FormCreate(QObject *sender)
{
    TTabLinFiltroBasF::FormCreate(sender);
    OferecerGrupos(GrupoFr, ActionList1);
    FiltroGrupoFr->ComboBoxCodFr->SetSQLText(GrupoFr->GetSQLText());
    LigarDocumentos();
    LigarEntradas();
}

/** The kind of person decides which number is asked for, which then is the first document. */
void TClientesF::LigarDocumentos()
{
    TipoPessFr->RadioGroup1->SetControle(0, CPFFr);
    TipoPessFr->RadioGroup1->SetControle(1, CNPJFr);
    TipoPessFr->SetValor(TipoPessFr->GetValor());
    TLabeledEdit *primeiro = DocFr->CLabeledEditTextoBasFr->LabeledEdit1;
    primeiro->setReadOnly(true);
    primeiro->setFocusPolicy(Qt::NoFocus);
    primeiro->SetColor(GetColor());
    const auto mostrar = [this] { MostrarDocumento(); };
    Ligar(TipoPessFr->RadioGroup1, &TRadioGroup::Clicked, this, mostrar);
    Ligar(CPFFr->CPFEditBR1, &QLineEdit::textChanged, this, mostrar);
    Ligar(CNPJFr->CNPJEditBR1, &QLineEdit::textChanged, this, mostrar);
    MostrarDocumento();
}

/** The value frames and the address start an alteration by themselves. */
void TClientesF::LigarEntradas()
{
    const QList<TCustomEdit *> simples = {NascimentoFr->MaskEdit1,     ContatoFr->DDDMaskEditBR,
                                          ContatoFr->Fone1EditBR,      ContatoFr->Fone2EditBR,
                                          ContatoFr->FaxEditBR,        ContatoFr->EMailLabeledEdit,
                                          ContatoFr->PaginaLabeledEdit};
    for (const TCustomEdit *edit : simples)
        Ligar(edit, &QLineEdit::textEdited, this, [this] { AposChange(); });
}

void TClientesF::PrepararTab()
{
    Tab = Criar<TTabelaLinear>(SQLQuery1, QStringLiteral("clientes"));
    PegarLista();
    PegarIdentificacao();
    PegarEndereco();
    PegarContato();
}

void TClientesF::PegarLista()
{
    TSQLQuery *q = SQLQuery1;
    const std::pair<const char *, const char16_t *> rotulos[] = {
        {"clientes_cod", u"Código"},
        {"nome", u"Nome"},
        {"doc_c", u"Documento"},
        {"cidade", u"Cidade/UF"},
        {"telefone", u"Telefone"},
        {"limite", u"Limite (R$)"},
        {"cadastro", u"Cadastro"},
        {"nome_menor", u"Nome reduzido"},
        {"cpf", u"CPF"},
        {"cnpj", u"CNPJ"},
        {"grupos_cod", u"Grupo"},
    };
    for (const auto &[campo, rotulo] : rotulos)
        q->FieldByName(campo)->SetDisplayLabel(QString::fromUtf16(rotulo));
    Tab->PegarCampoChave(q->FieldByName("clientes_cod"), 50, CodFr);
    Tab->PegarCampo(q->FieldByName("nome"), 240, NomeFr->NomeLabeledEditTextoBasFr);
    Tab->PegarCampo(q->FieldByName("doc_c"), 126, DocFr->CLabeledEditTextoBasFr);
    Tab->PegarCampo(q->FieldByName("cidade"), 180);
    Tab->PegarCampo(q->FieldByName("telefone"), 104);
    TCampo *limite = Tab->PegarCampo(q->FieldByName("limite"), 80, LimiteFr);
    limite->Tipo = 4;
    limite->FormatoFloat = QStringLiteral("###,###,##0.00");
    Tab->PegarCampo(q->FieldByName("cadastro"), 70);
}

/** An input whose column is not in the list. */
TCampo *TClientesF::PegarFora(const char *coluna, QWidget *controle)
{
    TCampo *campo = Tab->PegarCampo(SQLQuery1->FieldByName(coluna), 0, controle);
    campo->Visivel = false;
    return campo;
}

void TClientesF::PegarIdentificacao()
{
    PegarFora("nome_menor", NomeFr->MenorEditTextoBasFr);
    PegarFora("opcao_pess", TipoPessFr);
    PegarFora("cpf", CPFFr);
    PegarFora("cnpj", CNPJFr);
    PegarFora("doc_i", DocFr->ILabeledEditTextoBasFr);
    PegarFora("doc_m", DocFr->MLabeledEditTextoBasFr);
    PegarFora("digitos_nasc", NascimentoFr->MaskEdit1);
    PegarFora("grupos_cod", GrupoFr);
    PegarFora("ativo", AtivoFr);
    PegarFora("foto", FotoFr);
    PegarFora("notas", NotasFr);
}

void TClientesF::PegarEndereco()
{
    PegarFora("cep", EnderecoFr->CEPMaskEdit);
    PegarFora("uf", EnderecoFr->UFComboBox);
    PegarFora("mun", EnderecoFr->MunComboBox);
    PegarFora("bai", EnderecoFr->BaiComboBox);
    PegarFora("logr", EnderecoFr->LogrComboBox);
    PegarFora("num", EnderecoFr->NumLabeledEdit);
    PegarFora("compl", EnderecoFr->ComplLabeledEdit);
}

void TClientesF::PegarContato()
{
    PegarFora("ddd", ContatoFr->DDDMaskEditBR);
    PegarFora("fone1", ContatoFr->Fone1EditBR);
    PegarFora("fone2", ContatoFr->Fone2EditBR);
    PegarFora("fax", ContatoFr->FaxEditBR);
    PegarFora("email", ContatoFr->EMailLabeledEdit);
    PegarFora("pagina", ContatoFr->PaginaLabeledEdit);
}

/** Of the two numbers only the one of the kind of person is kept; both are unique, which finds a
 * new record again. */
void TClientesF::AntesInserir()
{
    QStringList nomes = {QStringLiteral("clientes_cod")};
    QStringList valores = {StringProxCod()};
    for (const TColuna &coluna : Colunas()) {
        nomes << coluna.Nome;
        valores << coluna.Valor;
    }
    SQLInserir = QStringLiteral("insert into clientes (%1) values (").arg(nomes.join(u", ")) +
                 valores.join(u", ") + u')';
    SQLUltimoInserido = QStringLiteral("select clientes_cod from clientes where ") +
                        (Empresa() ? QStringLiteral("cnpj=") + CNPJFr->SQLString()
                                   : QStringLiteral("cpf=") + CPFFr->SQLString());
}

void TClientesF::AntesAlterar()
{
    QStringList partes;
    for (const TColuna &coluna : Colunas())
        partes << coluna.Nome + u'=' + coluna.Valor;
    SQLAlterar = QStringLiteral("update clientes set ") + partes.join(u", ");
}

bool TClientesF::Empresa() const
{
    return TipoPessFr->RadioGroup1->GetItemIndex() == 1;
}

void TClientesF::MostrarDocumento()
{
    DocFr->SetTipoPess(int(Empresa()));
    NascimentoFr->Tit1Lab->setText(Empresa() ? QStringLiteral("Fundação")
                                             : QStringLiteral("Nascimento"));
    DocFr->CLabeledEditTextoBasFr->SetValor(Empresa() ? CNPJFr->AsString() : CPFFr->AsString());
}

/** A CEP fills the address only while a record is being edited. */
void TClientesF::IndicarEstado()
{
    const TStatus status = Tab ? Tab->Status : TStatus::Ocioso;
    EnderecoFr->PegarState(status == TStatus::Inserindo   ? dsInsert
                           : status == TStatus::Alterando ? dsEdit
                                                          : dsBrowse);
}

bool TClientesF::NascimentoAceitavel()
{
    if (NascimentoFr->IsValidDate())
        return true;
    MensagemAviso(QStringLiteral("A data não existe.\r\nCorrija-a ou deixe o campo em branco."), 0);
    NascimentoFr->MaskEdit1->setFocus();
    return false;
}

/** Asked of the text: the frame takes 01/01/1980, on which people were born, for no date. */
QString TClientesF::NascimentoSQL()
{
    return OuNulo(!NascimentoFr->MaskEdit1->GetText().trimmed().isEmpty(),
                  NascimentoFr->AsSQLFirebird());
}

QList<TClientesF::TColuna> TClientesF::Colunas()
{
    const auto coluna = [](const char *nome, const QString &valor) {
        return TColuna{QString::fromLatin1(nome), valor};
    };
    return {
        coluna("nome", NomeFr->NomeLabeledEditTextoBasFr->SQLString()),
        coluna("nome_menor", NomeFr->MenorEditTextoBasFr->SQLString()),
        coluna("tipo_pess", QString::number(int(Empresa()))),
        coluna("cpf", OuNulo(!Empresa(), CPFFr->SQLString())),
        coluna("cnpj", OuNulo(Empresa(), CNPJFr->SQLString())),
        coluna("doc_c", DocFr->CLabeledEditTextoBasFr->SQLString()),
        coluna("doc_i", DocFr->ILabeledEditTextoBasFr->SQLString()),
        coluna("doc_m", DocFr->MLabeledEditTextoBasFr->SQLString()),
        coluna("nascimento", NascimentoSQL()),
        coluna("grupos_cod", OuNulo(GrupoFr->GetValor() != Variant(0), GrupoFr->SQLString())),
        coluna("cep", Texto(EnderecoFr->CEPMaskEdit)),
        coluna("uf", Texto(EnderecoFr->UFComboBox)),
        coluna("mun", Texto(EnderecoFr->MunComboBox)),
        coluna("bai", Texto(EnderecoFr->BaiComboBox)),
        coluna("logr", Texto(EnderecoFr->LogrComboBox)),
        coluna("num", Texto(EnderecoFr->NumLabeledEdit)),
        coluna("compl", Texto(EnderecoFr->ComplLabeledEdit)),
        coluna("ddd", Texto(ContatoFr->DDDMaskEditBR)),
        coluna("fone1", Texto(ContatoFr->Fone1EditBR)),
        coluna("fone2", Texto(ContatoFr->Fone2EditBR)),
        coluna("fax", Texto(ContatoFr->FaxEditBR)),
        coluna("email", Texto(ContatoFr->EMailLabeledEdit)),
        coluna("pagina", Texto(ContatoFr->PaginaLabeledEdit)),
        coluna("foto", FotoFr->SQLString()),
        coluna("notas", NotasFr->SQLString()),
        coluna("limite", LimiteFr->SQLString()),
        coluna("ativo", AtivoFr->SQLString()),
    };
}

} // namespace comercial
