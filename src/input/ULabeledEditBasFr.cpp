#include "input/ULabeledEditBasFr.h"

#include "input/UApoioInput.h"
#include "input/UEdicaoDoUsuario.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Foco.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

namespace ficha
{

FICHA_REGISTRAR(TLabeledEditBasFr)

TLabeledEditBasFr::TLabeledEditBasFr(TChave chave) : TDBControlBasFr(chave) {}

void TLabeledEditBasFr::Create(QWidget *owner)
{
    TDBControlBasFr::Create(owner);
    Frases.Add(QStringLiteral("Obrigatório"));
    OnEnter = [this](QObject *sender) { FrameEnter(sender); };
    AoEntrar(LabeledEdit1, [this] { LabeledEdit1Enter(LabeledEdit1); });
    AoTeclaDescer(LabeledEdit1, [this](int &tecla, Qt::KeyboardModifiers estado) {
        LabeledEdit1KeyDown(LabeledEdit1, tecla, estado);
    });
    Ligar(LabeledEdit1, &TLabeledEdit::textChanged, this,
          [this] { LabeledEdit1Change(LabeledEdit1); });
    Ligar(LabeledEdit1, &TLabeledEdit::textEdited, this,
          [this] { EditadoPeloUsuario(*this, *LabeledEdit1, pedido); });
}

void TLabeledEditBasFr::SetFocus()
{
    TDBControlBasFr::SetFocus();
    if (parentWidget() && isVisible() && LabeledEdit1->isVisible())
        LabeledEdit1->setFocus();
}

void TLabeledEditBasFr::Zerar()
{
    TDBControlBasFr::Zerar();
    LabeledEdit1->clear();
}

bool TLabeledEditBasFr::ValorAceitavel()
{
    GravarTextoAparado();
    if (!TDBControlBasFr::ValorAceitavel())
        return false;
    const bool aceito = AceitaVazio || !LabeledEdit1->text().isEmpty();
    LigarFrase(Frases, FraseObrigatorio, !aceito);
    if (!aceito)
        MensagemAviso(QStringLiteral("Campo incompleto\r\n") + RotuloDoCampo() +
                          QStringLiteral(" é um campo obrigatório\r\n (não pode ser deixado em "
                                         "branco).\r\nDigite um valor ou clique em Cancelar."),
                      0);
    return aceito;
}

QString TLabeledEditBasFr::FraseRef() const
{
    const QString frase = TDBControlBasFr::FraseRef();
    return AceitaVazio ? frase : frase + QStringLiteral("  Obrigatório");
}

bool TLabeledEditBasFr::TestarMascara()
{
    return true;
}

bool TLabeledEditBasFr::Focused() const
{
    return hasFocus() || LabeledEdit1->hasFocus();
}

void TLabeledEditBasFr::Descelecinar(int tecla)
{
    if (tecla == VK_END)
        LabeledEdit1->end(false);
    else if (tecla == VK_HOME)
        LabeledEdit1->home(false);
}

void TLabeledEditBasFr::PegarComponentes()
{
    TDBControlBasFr::PegarComponentes();
    Pegar(this, LabeledEdit1, "LabeledEdit1");
}

void TLabeledEditBasFr::FrameEnter(QObject *sender)
{
    TDBControlBasFr::FrameEnter(sender);
    LabeledEdit1->setFocus();
}

void TLabeledEditBasFr::FrameExit(QObject *sender)
{
    TDBControlBasFr::FrameExit(sender);
}

void TLabeledEditBasFr::LabeledEdit1Enter(QObject *sender)
{
    TDBControlBasFr::FrameEnter(sender);
    LabeledEdit1->setFocus();
}

void TLabeledEditBasFr::LabeledEdit1Change(QObject *)
{
    if (!AceitaVazio)
        LigarFrase(Frases, FraseObrigatorio, QStringView(LabeledEdit1->text()).trimmed().isEmpty());
    (void)TestarMascara();
    Atualizar();
}

void TLabeledEditBasFr::LabeledEdit1KeyDown(QObject *, int &tecla, Qt::KeyboardModifiers)
{
    if (tecla != VK_DELETE && tecla != VK_BACK)
        return;
    if (LabeledEdit1->isReadOnly()) {
        const QString campo = TemRotulo() ? QStringLiteral("O campo ") + RotuloDoCampo()
                                          : QStringLiteral("Este campo");
        MensagemAviso(campo + QStringLiteral(" está somente para leitura. Não pode ter seu valor "
                                             "alterado."),
                      0);
        return;
    }
    pedido.Antes();
}

void TLabeledEditBasFr::GravarTextoAparado()
{
    const QString texto = LabeledEdit1->text();
    const QString aparado = texto.trimmed();
    if (aparado != texto)
        LabeledEdit1->setText(aparado);
    else
        LabeledEdit1Change(LabeledEdit1);
}

} // namespace ficha
