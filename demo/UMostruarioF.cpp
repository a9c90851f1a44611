#include "demo/UMostruarioF.h"

#include "base/UBasFr.h"
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
}

QLabel *Nome(const QString &texto, QWidget *pai)
{
    auto *nome = new QLabel(texto, pai);
    QFont negrito = nome->font();
    negrito.setBold(true);
    nome->setFont(negrito);
    return nome;
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
    for (const QString &classe : ClassesRegistradas()) {
        const QMetaObject *meta = ClasseRegistrada(classe);
        if (!meta->inherits(&TBasFr::staticMetaObject))
            continue;
        QWidget *frame = CriarPeloNome(classe, lista);
        if (!frame)
            continue;
        frame->setFixedSize(frame->size());
        Preencher(frame);
        lista->layout()->addWidget(Nome(classe, lista));
        lista->layout()->addWidget(frame);
    }
}

void TMostruarioF::MostrarDialogos(QWidget *lista)
{
    const auto botao = [&](const QString &classe, void (*perguntar)(QWidget *)) {
        lista->layout()->addWidget(Nome(classe, lista));
        auto *abrir = new QPushButton(QStringLiteral("Abrir..."), lista);
        abrir->setFixedWidth(90);
        Ligar(abrir, &QPushButton::clicked, this, [this, perguntar] { perguntar(this); });
        lista->layout()->addWidget(abrir);
    };
    botao(QStringLiteral("TNumDiagF"), &Perguntar<TNumDiagF>);
    botao(QStringLiteral("TPercDiagF"), &Perguntar<TPercDiagF>);
}

} // namespace comercial
