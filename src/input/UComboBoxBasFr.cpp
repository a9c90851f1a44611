#include "input/UComboBoxBasFr.h"

#include "input/UApoioInput.h"
#include "input/UListaDoCombo.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TComboBox.h"
#include "platform/toolkit/Teclas.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TComboBoxBasFr)

TComboBoxBasFr::TComboBoxBasFr(TChave chave) : TDBControlBasFr(chave), pedido(this) {}

void TComboBoxBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    TitLabel->setBuddy(ComboBox1);
    PrepararLista(*ComboBox1);
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    AoTeclaDescer(ComboBox1, [this](int &tecla, Qt::KeyboardModifiers estado) {
        ComboBox1KeyDown(ComboBox1, tecla, estado);
    });
    AoTeclar(ComboBox1, [this](QChar &caractere) { ComboBox1KeyPress(ComboBox1, caractere); });
    ComboBox1->OnDropDown = [this](QObject *sender) { ComboBox1DropDown(sender); };
    Ligar(ComboBox1, &TComboBox::UserChanged, this, [this] {
        const QPointer<TComboBoxBasFr> vivo(this);
        Protegido([this] { ComboBox1Change(ComboBox1); });
        if (vivo)
            pedido.Depois();
    });
}

void TComboBoxBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    FocarLista();
}

void TComboBoxBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    ComboBox1->SetItemIndex(ItemDoObjeto(0));
}

bool TComboBoxBasFr::ValorAceitavel()
{
    const QPointer<TComboBoxBasFr> vivo(this);
    bool aceito = TDBControlBasFr::ValorAceitavel();
    if (aceito && !AceitaVazio && ComboBox1->GetItemIndex() < 0) {
        aceito = false;
        const QString onde =
            TemRotulo() ? QStringLiteral(" no campo ") + RotuloDoCampo() : QString();
        MensagemAviso(QStringLiteral("Campo obrigatório\r\nFaça a escolha") + onde +
                          QStringLiteral(" ou clique em Cancelar."),
                      0);
    }
    if (!aceito && vivo)
        SetFocus();
    return aceito;
}

QString TComboBoxBasFr::AsString() const
{
    return ComboBox1->GetText().trimmed();
}

QString TComboBoxBasFr::FraseRef() const
{
    return TDBControlBasFr::FraseRef() + QStringLiteral(" Escolha um item");
}

QString TComboBoxBasFr::GetTitulo() const
{
    return TitLabel->text();
}

void TComboBoxBasFr::SetTitulo(const QString &texto)
{
    TitLabel->setText(texto);
}

void TComboBoxBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, TitLabel, "TitLabel");
    Pegar(this, ComboBox1, "ComboBox1");
}

int TComboBoxBasFr::ItemDoObjeto(std::intptr_t objeto) const
{
    return ComboBox1->IndexOfObjeto(objeto);
}

void TComboBoxBasFr::FrameEnter(QObject *sender)
{
    TDBControlBasFr::FrameEnter(sender);
    FocarLista();
}

void TComboBoxBasFr::FrameExit(QObject *sender)
{
    if (!ComboBox1->GetText().isEmpty())
        ComboBox1->SetItemIndex(ItemDoTexto());
    const QPointer<TComboBoxBasFr> vivo(this);
    TDBControlBasFr::FrameExit(sender);
    if (!vivo)
        return;
    const int i = ComboBox1->GetItemIndex();
    if (i >= 0 && ComboBox1->GetText() != ComboBox1->Item(i))
        ComboBox1->SetItemIndex(i);
}

void TComboBoxBasFr::ComboBox1Change(QObject *)
{
    Atualizar();
}

void TComboBoxBasFr::ComboBox1DropDown(QObject *)
{
    const QPointer<TComboBoxBasFr> vivo(this);
    pedido.Antes();
    if (vivo)
        AlargarLista(*ComboBox1);
}

void TComboBoxBasFr::ComboBox1KeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    if (tecla == VK_DELETE || tecla == VK_BACK)
        pedido.Antes();
}

void TComboBoxBasFr::ComboBox1KeyPress(QObject *, QChar &caractere)
{
    if (IniciaEdicao(caractere))
        pedido.Antes();
}

/** As Tab does it: the text is selected, so that the next key types over it. A click that brought
 * the focus keeps its place in the text. */
void TComboBoxBasFr::FocarLista()
{
    ComboBox1->setFocus(Qt::TabFocusReason);
}

int TComboBoxBasFr::ItemDoTexto() const
{
    const QString texto = ComboBox1->GetText();
    const int atual = ComboBox1->GetItemIndex();
    if (atual >= 0 && ComboBox1->Item(atual).compare(texto, Qt::CaseInsensitive) == 0)
        return atual;
    return ComboBox1->IndexOf(texto);
}

} // namespace ficha
