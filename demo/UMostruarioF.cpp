#include "demo/UMostruarioF.h"

#include "base/UBasFr.h"
#include "forms/UActBasFr.h"
#include "forms/UActContainerF.h"
#include "forms/ULocalizBasF.h"
#include "grids/UDBClientBasFr.h"
#include "grids/USelectFr.h"
#include "input/UComboBoxBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDisplayFloatFr.h"
#include "input/UListBoxControlBasFr.h"
#include "input/URadioGroupBasFr.h"
#include "input/UZoomBasF.h"
#include "platform/database/ConexD.h"
#include "platform/hostforms/TDialogoBasF.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/TListBox.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioGroup.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMap>
#include <QPushButton>
#include <QScrollArea>
#include <QVBoxLayout>

#include <algorithm>
#include <memory>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TMostruarioF)

namespace
{

const QStringList Itens = {QStringLiteral("Primeiro"), QStringLiteral("Segundo"),
                           QStringLiteral("Terceiro"), QStringLiteral("Última opção")};

/** This program's frames that stand for those that need something of a program. */
QString Representante(const QString &classe)
{
    static const QMap<QString, QString> quem = {
        {QStringLiteral("TDBClientBasFr"), QStringLiteral("TPrestacoesFr")},
        {QStringLiteral("TArvGridFr"), QStringLiteral("TContasFr")},
        {QStringLiteral("TSelectFr"), QStringLiteral("TSelectProdutosFr")},
    };
    return quem.value(classe, classe);
}

/** Classes of the library, by their root, without this program's own. */
QStringList ClassesDe(const QMetaObject &raiz)
{
    QStringList classes;
    for (const QString &classe : ClassesRegistradas()) {
        const QMetaObject *meta = ClasseRegistrada(classe);
        if (meta->inherits(&raiz) && QByteArray(meta->className()).startsWith("ficha::"))
            classes << classe;
    }
    return classes;
}

/** A list that drops needs an edit to drop from, and room below it. */
QWidget *ComEdit(TSelectFr *select, QWidget *lista)
{
    auto *caixa = new QWidget(lista);
    auto *edit = new TLabeledEdit(caixa);
    edit->SetCaption(QStringLiteral("Digite um produto"));
    edit->setGeometry(0, 16, 300, 21);
    select->setParent(caixa);
    select->hide();
    select->LarguraTela = false;
    select->PegarBuscaLabeledEdit(edit);
    caixa->resize(select->width() + 2, edit->geometry().bottom() + 3 + select->height());
    return caixa;
}

/** Something to choose from, where a screen would supply it. */
void Preencher(QWidget *frame)
{
    if (auto *comCodigo = qobject_cast<TComboBoxCodBasFr *>(frame))
        comCodigo->SetSQLText(
            QStringLiteral("select grupos_cod, descricao from grupos order by descricao"));
    else if (auto *combo = qobject_cast<TComboBoxBasFr *>(frame))
        combo->ComboBox1->SetItems(Itens);
    else if (auto *radio = qobject_cast<TRadioGroupBasFr *>(frame))
        radio->RadioGroup1->SetItems(Itens);
    else if (auto *lista = qobject_cast<TListBoxControlBasFr *>(frame))
        lista->ListBox1->SetItems(Itens);
    else if (auto *valor = qobject_cast<TDisplayFloatFr *>(frame))
        valor->SetValor(1234.5);
    else if (auto *grade = qobject_cast<TDBClientBasFr *>(frame))
        grade->DoShow();
    else if (auto *acao = qobject_cast<TActBasFr *>(frame))
        acao->SetCod1(0);
}

QLabel *Negrito(const QString &texto, QWidget *pai, int maior = 0)
{
    auto *nome = new QLabel(texto, pai);
    QFont negrito = nome->font();
    negrito.setBold(true);
    negrito.setPointSize(negrito.pointSize() + maior);
    nome->setFont(negrito);
    return nome;
}

/** A kind of frame, and the classes that it takes with all that derive from them. */
struct TTipoDeFrame {
    const char16_t *Titulo;
    std::initializer_list<const char *> Classes;
};

/** In the order of the gallery; the first kind that takes a class has it. */
const TTipoDeFrame Tipos[] = {
    {u"Documentos, endereço e contato",
     {"TDocEditBRBasFr", "TBarCodBasFr", "TDocBasFr", "TNomeBasFr", "TEnderecoBasFr",
      "TContatoBasFr"}},
    {u"Textos", {"TLabeledEditBasFr", "TMemoBasFr"}},
    {u"Números", {"TNumEditBRBasFr", "TUpDownBRFr", "TDisplayFr", "TDisplayFloatFr"}},
    {u"Escolhas", {"TComboBoxBasFr", "TCheckBoxBasFr", "TRadioGroupBasFr", "TListBoxControlBasFr"}},
    {u"Datas", {"TDataBasFr", "TDateControlBasFr", "TDatasBasFr", "TDatasFr"}},
    {u"Filtros opcionais", {"TOpcionalBasFr"}},
    {u"Imagens", {"TImgBasFr"}},
    {u"Grades e listas",
     {"TDBClientBasFr", "TGridBasFr", "TSQLGridBasFr", "TSelectBasFr", "TSelectFr",
      "TSelectFrVelho"}},
    {u"Painéis, ações e botões", {"TActBasFr", "TPanelBasFr", "TBotaoFr"}},
};

bool EhDoTipo(const QMetaObject *meta, const TTipoDeFrame &tipo)
{
    for (; meta; meta = meta->superClass()) {
        const QByteArray classe = QByteArray(meta->className()).split(':').last();
        if (std::ranges::any_of(tipo.Classes, [&](const char *c) { return classe == c; }))
            return true;
    }
    return false;
}

/** Bases show nothing of their own. */
bool MostraAlgo(const QWidget *frame)
{
    const QList<QWidget *> filhos =
        frame->findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly);
    return std::ranges::any_of(filhos, [](const QWidget *w) { return !w->isHidden(); });
}

/** The objects of the library that are not seen, and where they work. */
constexpr std::pair<const char *, const char16_t *> Objetos[] = {
    {"TTabelaLinear", u"a tabela de cada tela de cadastro (Tab)"},
    {"TTabela", u"base da tabela: o estado da edição e os geradores"},
    {"TCampos", u"os campos da tabela (Tab->Campos)"},
    {"TCampo", u"um campo: o valor, a coluna e a entrada"},
    {"TControlInfo", u"a ligação de um campo com sua entrada"},
    {"TColInfo", u"a largura de um campo na lista"},
    {"TTabLinearD", u"as figuras das barras das telas (TabLinearD)"},
    {"TImg16D", u"as figuras dos quadros com lista (Img16D)"},
};

void Acrescentar(QWidget *lista, const QString &classe, const QString &observacao = {})
{
    auto *linha = new QWidget(lista);
    auto *caixa = new QHBoxLayout(linha);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->addWidget(Negrito(classe, linha));
    if (!observacao.isEmpty())
        caixa->addWidget(new QLabel(observacao, linha));
    caixa->addStretch();
    lista->layout()->addWidget(linha);
}

} // namespace

void TMostruarioF::FormCreate(QObject *sender)
{
    TChildMDIBasF::FormCreate(sender);
    SetCaption(QStringLiteral("Mostruário"));
    resize(640, 480);
    auto *rolagem = new QScrollArea(Panel1);
    rolagem->setWidgetResizable(true);
    auto *lista = new QWidget;
    new QVBoxLayout(lista);
    MostrarFrames(lista);
    MostrarJanelas(lista);
    MostrarObjetos(lista);
    rolagem->setWidget(lista);
    auto *caixa = new QVBoxLayout(Panel1);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->addWidget(rolagem);
}

TMostruarioF::TAmostra TMostruarioF::Amostra(const QString &classe, QWidget *lista)
{
    TAmostra amostra{classe, nullptr, {}};
    const QString representante = Representante(classe);
    amostra.Frame = CriarPeloNome(representante, lista);
    if (!amostra.Frame) {
        amostra.Observacao = QStringLiteral("base abstrata");
        return amostra;
    }
    if (representante != classe)
        amostra.Observacao = QStringLiteral("aqui um derivado, ") + representante;
    Preencher(amostra.Frame);
    if (auto *select = qobject_cast<TSelectFr *>(amostra.Frame))
        amostra.Frame = ComEdit(select, lista);
    if (!MostraAlgo(amostra.Frame)) {
        amostra.Observacao = QStringLiteral("base, sem aparência própria");
        amostra.Frame->resize(amostra.Frame->width(), 1);
    }
    return amostra;
}

void TMostruarioF::MostrarFrames(QWidget *lista)
{
    std::vector<QList<TAmostra>> porTipo(std::size(Tipos));
    QList<TAmostra> outros;
    QList<TAmostra> bases;
    for (const QString &classe : ClassesDe(TFrame::staticMetaObject)) {
        const TAmostra amostra = Amostra(classe, lista);
        const QMetaObject *meta = ClasseRegistrada(classe);
        const auto *tipo =
            std::ranges::find_if(Tipos, [&](const auto &t) { return EhDoTipo(meta, t); });
        if (!amostra.Frame || amostra.Frame->height() == 1)
            bases << amostra;
        else if (tipo == std::end(Tipos))
            outros << amostra;
        else
            porTipo[std::size_t(tipo - Tipos)] << amostra;
    }
    for (std::size_t i = 0; i < porTipo.size(); ++i)
        MostrarTipo(lista, QString::fromUtf16(Tipos[i].Titulo), porTipo[i]);
    MostrarTipo(lista, QStringLiteral("Outros"), outros);
    MostrarTipo(lista, QStringLiteral("Bases, sem aparência própria"), bases);
}

void TMostruarioF::MostrarTipo(QWidget *lista, const QString &titulo,
                               const QList<TAmostra> &amostras)
{
    if (amostras.isEmpty())
        return;
    lista->layout()->addWidget(Negrito(titulo, lista, 3));
    for (const TAmostra &amostra : amostras) {
        Acrescentar(lista, amostra.Classe, amostra.Observacao);
        if (amostra.Frame) {
            amostra.Frame->setFixedSize(amostra.Frame->size());
            lista->layout()->addWidget(amostra.Frame);
        }
    }
}

/** A dialog, the search and the windows of frames open; the other forms are bases of screens. */
void TMostruarioF::MostrarJanelas(QWidget *lista)
{
    lista->layout()->addWidget(Negrito(QStringLiteral("Diálogos e janelas"), lista, 3));
    QStringList telas;
    for (const QString &classe : ClassesDe(TForm::staticMetaObject)) {
        const QMetaObject *meta = ClasseRegistrada(classe);
        // The base of the dialogs has no button that would close it.
        const bool abre = (meta->inherits(&TDialogoBasF::staticMetaObject) &&
                           meta != &TDialogoBasF::staticMetaObject) ||
                          meta == &TZoomBasF::staticMetaObject ||
                          meta == &TLocalizBasF::staticMetaObject ||
                          meta == &TActContainerF::staticMetaObject;
        if (!abre) {
            telas << classe;
            continue;
        }
        Acrescentar(lista, classe);
        auto *abrir = new QPushButton(QStringLiteral("Abrir..."), lista);
        abrir->setObjectName(QStringLiteral("Abrir") + classe);
        abrir->setFixedWidth(90);
        Ligar(abrir, &QPushButton::clicked, this, [this, classe] { AbrirJanela(classe); });
        lista->layout()->addWidget(abrir);
    }
    lista->layout()->addWidget(Negrito(QStringLiteral("Bases de telas"), lista, 3));
    for (const QString &classe : telas)
        Acrescentar(lista, classe);
}

void TMostruarioF::MostrarObjetos(QWidget *lista)
{
    lista->layout()->addWidget(Negrito(QStringLiteral("Objetos que não se veem"), lista, 3));
    for (const auto &[classe, onde] : Objetos)
        Acrescentar(lista, QString::fromLatin1(classe), QString::fromUtf16(onde));
}

void TMostruarioF::AbrirJanela(const QString &classe)
{
    // Two of them show something of somebody else's, one is the process's own.
    if (classe == QStringLiteral("TActContainerF")) {
        findChild<TActBasFr *>()->AmpliarAct->Execute();
        return;
    }
    if (classe == QStringLiteral("TLocalizBasF")) {
        LocalizBasF->Show();
        return;
    }
    const std::unique_ptr<QWidget> nova(CriarPeloNome(classe, this));
    if (auto *zoom = qobject_cast<TZoomBasF *>(nova.get())) {
        const TCustomBRSQL foto(
            QStringLiteral("select first 1 foto from clientes where foto <> ''"));
        if (foto.IsEmpty())
            MensagemInfo(QStringLiteral("Nenhum cliente tem uma foto"));
        else
            zoom->Exibir(foto.Fields(0)->AsString());
        return;
    }
    static_cast<TForm *>(nova.get())->ShowModal();
}

} // namespace comercial
