#include "demo/UMostruarioF.h"

#include "base/UBasFr.h"
#include "grids/UDBClientBasFr.h"
#include "input/UComboBoxBasFr.h"
#include "input/UComboBoxCodBasFr.h"
#include "input/UDisplayFloatFr.h"
#include "input/UListBoxControlBasFr.h"
#include "input/UNumDiagF.h"
#include "input/UNumEditBRBasFr.h"
#include "input/UPercDiagF.h"
#include "input/URadioGroupBasFr.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/TListBox.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioGroup.h"

#include <QLabel>
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
    {u"Grades e listas", {"TDBClientBasFr", "TGridBasFr", "TSQLGridBasFr", "TSelectBasFr"}},
    {u"Painéis, ações e botões", {"TActBasFr", "TPanelBasFr", "TBotaoFr"}},
};

bool EhDoTipo(const QWidget *frame, const TTipoDeFrame &tipo)
{
    for (const QMetaObject *meta = frame->metaObject(); meta; meta = meta->superClass()) {
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

/** Asks for a number and tells what was answered. */
template <typename TDialogo>
void Perguntar(QWidget *dono)
{
    const std::unique_ptr<TDialogo> dialogo(Criar<TDialogo>(dono));
    if (dialogo->Executar())
        MensagemInfo(QStringLiteral("Número digitado\r\n") + dialogo->NumEditBRBasFr->AsString());
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
    MostrarDialogos(lista);
    rolagem->setWidget(lista);
    auto *caixa = new QVBoxLayout(Panel1);
    caixa->setContentsMargins(0, 0, 0, 0);
    caixa->addWidget(rolagem);
}

void TMostruarioF::MostrarFrames(QWidget *lista)
{
    std::vector<QList<QWidget *>> porTipo(std::size(Tipos));
    QList<QWidget *> outros;
    QList<QWidget *> bases;
    for (const QString &classe : ClassesRegistradas()) {
        if (!ClasseRegistrada(classe)->inherits(&TBasFr::staticMetaObject))
            continue;
        QWidget *frame = CriarPeloNome(classe, lista);
        if (!frame)
            continue;
        Preencher(frame);
        const auto *tipo =
            std::ranges::find_if(Tipos, [&](const auto &t) { return EhDoTipo(frame, t); });
        if (!MostraAlgo(frame))
            bases << frame;
        else if (tipo == std::end(Tipos))
            outros << frame;
        else
            porTipo[std::size_t(tipo - Tipos)] << frame;
    }
    for (std::size_t i = 0; i < porTipo.size(); ++i)
        MostrarTipo(lista, QString::fromUtf16(Tipos[i].Titulo), porTipo[i]);
    MostrarTipo(lista, QStringLiteral("Outros"), outros);
    for (QWidget *base : bases)
        base->resize(base->width(), 1);
    MostrarTipo(lista, QStringLiteral("Bases, sem aparência própria"), bases);
}

void TMostruarioF::MostrarTipo(QWidget *lista, const QString &titulo,
                               const QList<QWidget *> &frames)
{
    if (frames.isEmpty())
        return;
    lista->layout()->addWidget(Negrito(titulo, lista, 3));
    for (QWidget *frame : frames) {
        const QString classe =
            QString::fromLatin1(frame->metaObject()->className()).section(u':', -1);
        frame->setFixedSize(frame->size());
        lista->layout()->addWidget(Negrito(classe, lista));
        lista->layout()->addWidget(frame);
    }
}

void TMostruarioF::MostrarDialogos(QWidget *lista)
{
    lista->layout()->addWidget(Negrito(QStringLiteral("Diálogos"), lista, 3));
    const auto botao = [&](const QString &classe, void (*perguntar)(QWidget *)) {
        lista->layout()->addWidget(Negrito(classe, lista));
        auto *abrir = new QPushButton(QStringLiteral("Abrir..."), lista);
        abrir->setFixedWidth(90);
        Ligar(abrir, &QPushButton::clicked, this, [this, perguntar] { perguntar(this); });
        lista->layout()->addWidget(abrir);
    };
    botao(QStringLiteral("TNumDiagF"), &Perguntar<TNumDiagF>);
    botao(QStringLiteral("TPercDiagF"), &Perguntar<TPercDiagF>);
}

} // namespace comercial
