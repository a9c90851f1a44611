#include "input/UMemoBasFr.h"

#include "input/UApoioInput.h"
#include "input/UEdicaoDoUsuario.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TMemo.h"
#include "platform/toolkit/Teclas.h"

#include <utility>

namespace ficha
{

FICHA_REGISTRAR(TMemoBasFr)

TMemoBasFr::TMemoBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TMemoBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    Frases.Add(QStringLiteral("brigatório"));
    Frases.Add(QStringLiteral("Máx. de caracteres"));
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    AoTeclaDescer(Memo1, [this](int &tecla, Qt::KeyboardModifiers estado) {
        Memo1KeyDown(Memo1, tecla, estado);
    });
    AoTeclar(Memo1, [this](QChar &caractere) { Memo1KeyPress(Memo1, caractere); });
    Ligar(Memo1, &TMemo::UserChanged, this, [this] {
        if (!std::exchange(teclaMuda, false) && EditadoPeloUsuario(*this, *Memo1, pedido))
            Memo1->moveCursor(QTextCursor::End);
    });
    Ligar(Memo1, &TMemo::textChanged, this, [this] { Memo1Change(Memo1); });
}

void TMemoBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    if (parentWidget() && isVisible() && Memo1->isVisible())
        Memo1->setFocus();
}

Variant TMemoBasFr::GetValor() const
{
    return AsString();
}

void TMemoBasFr::SetValor(const Variant &valor)
{
    TDBControlBasFr::SetValor(valor);
    Memo1->SetText(valor.AsString());
}

void TMemoBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    Memo1->SetText({});
}

bool TMemoBasFr::ValorAceitavel()
{
    GravarTextoAparado();
    if (!TDBControlBasFr::ValorAceitavel())
        return false;
    const bool aceito = AceitaVazio || !AsString().isEmpty();
    LigarFrase(Frases, FraseObrigatorio, !aceito);
    if (!aceito)
        MensagemAviso(RotuloDoCampo() +
                          QStringLiteral(" é um campo obrigatório\r\n(não pode ser deixado em "
                                         "branco).\r\nDigite um valor ou clique em Cancelar."),
                      0);
    return aceito;
}

QString TMemoBasFr::AsString() const
{
    return Memo1->GetText().trimmed();
}

QString TMemoBasFr::SQLString() const
{
    return QuotedStr(AsString());
}

QString TMemoBasFr::FraseRef() const
{
    const QString frase = TDBControlBasFr::FraseRef();
    return AceitaVazio ? frase : frase + QStringLiteral("  Obrigatório");
}

void TMemoBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, Memo1, "Memo1");
}

void TMemoBasFr::FrameEnter(QObject *sender)
{
    TDBControlBasFr::FrameEnter(sender);
    Memo1->setFocus();
}

void TMemoBasFr::Memo1Change(QObject *)
{
    const int maximo = Memo1->GetMaxLength();
    // The text of a memo is put together from its lines: asked for only where a phrase needs it.
    if (!AceitaVazio || maximo > 0) {
        const QString texto = AsString();
        if (!AceitaVazio)
            LigarFrase(Frases, FraseObrigatorio, texto.isEmpty());
        LigarFraseDoMaximo(Frases, texto.size(), maximo);
    }
    LigarFrase(Frases, FraseJaExiste, false);
    Atualizar();
}

void TMemoBasFr::Memo1KeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    teclaMuda = false;
    if (tecla == VK_DELETE || tecla == VK_BACK)
        pedido.Antes();
}

void TMemoBasFr::Memo1KeyPress(QObject *, QChar &caractere)
{
    caractere = CharSemAcento(caractere, {}, true, true);
    if (IniciaEdicao(caractere))
        pedido.Antes();
    else if (caractere.isPrint() || caractere == u'\r' || caractere == u'\n')
        Calar();
}

/** What the key that is being handled changes starts nothing. */
void TMemoBasFr::Calar()
{
    teclaMuda = true;
    QMetaObject::invokeMethod(
        this, [this] { teclaMuda = false; }, Qt::QueuedConnection);
}

void TMemoBasFr::GravarTextoAparado()
{
    const QString texto = Memo1->GetText();
    const QString aparado = texto.trimmed();
    if (aparado != texto)
        Memo1->SetText(aparado);
    else
        Memo1Change(Memo1);
}

} // namespace ficha
