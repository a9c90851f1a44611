#include "input/URadioGroupBasFr.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TRadioGroup.h"

#include <QAbstractButton>
#include <QButtonGroup>

namespace ficha
{

FICHA_REGISTRAR(TRadioGroupBasFr)

TRadioGroupBasFr::TRadioGroupBasFr(TChave chave) : TDBControlBasFr(chave), pedido(this) {}

void TRadioGroupBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    Ligar(RadioGroup1, &TRadioGroup::Clicked, this, [this] {
        MostrarControleDoItem();
        RadioGroup1Click(RadioGroup1);
    });
    LigarBotoes();
    RadioGroup1->SetItemIndex(0);
    for (int i = 0; i < RadioGroup1->Count(); ++i) {
        RadioGroup1->SetObjeto(i, 0);
        RadioGroup1->SetControle(i, nullptr);
    }
}

void TRadioGroupBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    RadioGroup1->setFocus();
}

void TRadioGroupBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    MostrarControleDoItem();
}

QString TRadioGroupBasFr::Selecionada() const
{
    return RadioGroup1->Item(RadioGroup1->GetItemIndex());
}

QString TRadioGroupBasFr::GetTitulo() const
{
    return RadioGroup1->GetCaption();
}

void TRadioGroupBasFr::SetTitulo(const QString &texto)
{
    RadioGroup1->SetCaption(texto);
}

void TRadioGroupBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, RadioGroup1, "RadioGroup1");
}

void TRadioGroupBasFr::RadioGroup1Click(QObject *) {}

/** The group of the buttons knows the user's presses from the program's checking, also of options
 * that come later. */
void TRadioGroupBasFr::LigarBotoes()
{
    const auto *botoes = RadioGroup1->findChild<QButtonGroup *>();
    Q_ASSERT_X(botoes, "TRadioGroupBasFr", "the radio group has no button group");
    Ligar(botoes, &QButtonGroup::buttonPressed, this, [this] { pedido.Antes(); });
    Ligar(botoes, &QButtonGroup::buttonClicked, this, [this] { pedido.Depois(); });
}

void TRadioGroupBasFr::MostrarControleDoItem()
{
    if (!ControlesPorItem)
        return;
    QWidget *escolhido = RadioGroup1->GetControle(RadioGroup1->GetItemIndex());
    for (int i = 0; i < RadioGroup1->Count(); ++i) {
        QWidget *controle = RadioGroup1->GetControle(i);
        if (controle && controle != escolhido && !controle->isHidden())
            controle->hide();
    }
    if (escolhido && escolhido->isHidden())
        escolhido->show();
}

} // namespace ficha
