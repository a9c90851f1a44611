#include "dates/UDTPBasFr.h"

#include "input/UApoioInput.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/Teclas.h"
#include "records/UTabelaLinear.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TDTPBasFr)

TDTPBasFr::TDTPBasFr(TChave chave) : TDateControlBasFr(chave), pedido(this) {}

void TDTPBasFr::Create(QWidget *owner)
{
    TDateControlBasFr::Create(owner);
    TitLabel->setBuddy(DateTimePicker1);
    PegarDoPicker();
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    DateTimePicker1->OnChange = [this](QObject *sender) { DateTimePicker1Change(sender); };
    DateTimePicker1->OnClick = [this](QObject *sender) { DateTimePicker1Click(sender); };
    connect(
        DateTimePicker1, &TDateTimePicker::UserChanged, this,
        [this](TDateTimePicker::TMudanca como) { Protegido([&] { MudadaPeloUsuario(como); }); });
    AoTeclaDescer(DateTimePicker1, [this](int &tecla, Qt::KeyboardModifiers estado) {
        DateTimePicker1KeyDown(DateTimePicker1, tecla, estado);
    });
    AoTeclar(DateTimePicker1,
             [this](QChar &caractere) { DateTimePicker1KeyPress(DateTimePicker1, caractere); });
}

void TDTPBasFr::SetFocus()
{
    TDateControlBasFr::SetFocus();
    if (parentWidget() && !isHidden() && !DateTimePicker1->isHidden())
        DateTimePicker1->setFocus();
}

void TDTPBasFr::SetValor(const Variant &valor)
{
    TDateControlBasFr::SetValor(valor);
    DateTimePicker1->SetDate(Data);
}

void TDTPBasFr::DateTimePicker1Change(QObject *)
{
    PegarDoPicker();
    Atualizar();
}

void TDTPBasFr::DateTimePicker1Click(QObject *)
{
    PegarDoPicker();
}

void TDTPBasFr::PegarComponentes()
{
    TDateControlBasFr::PegarComponentes();
    Pegar(this, DateTimePicker1, "DateTimePicker1");
}

void TDTPBasFr::FrameEnter(QObject *sender)
{
    TDateControlBasFr::FrameEnter(sender);
    DateTimePicker1->setFocus();
}

void TDTPBasFr::DateTimePicker1KeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    if (tecla == VK_DELETE || tecla == VK_BACK)
        pedido.Antes();
}

void TDTPBasFr::DateTimePicker1KeyPress(QObject *, QChar &caractere)
{
    if (IniciaEdicao(caractere))
        pedido.Antes();
}

void TDTPBasFr::PegarDoPicker()
{
    Data = DataInteira(DateTimePicker1->GetDate());
}

/**
 * The date has landed: where no alteration is open, asks for one; a refused one brings the stored
 * date back. A screen without records starts an insertion, which empties every input: what the
 * user picked is put back.
 */
void TDTPBasFr::MudadaPeloUsuario(TDateTimePicker::TMudanca como)
{
    if (como == TDateTimePicker::mdPasso || !Tabela || Tabela->Status != TStatus::Ocioso)
        return;
    const QPointer<TDTPBasFr> vivo(this);
    const TDateTime escolhida = DateTimePicker1->GetDate();
    pedido.Depois();
    if (vivo && Tabela && Tabela->Status != TStatus::Ocioso)
        SetValor(escolhida);
}

} // namespace ficha
