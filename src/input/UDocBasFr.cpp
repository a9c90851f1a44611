#include "input/UDocBasFr.h"

#include "input/UApoioInput.h"
#include "input/ULabeledEditTextoBasFr.h"
#include "platform/core/Documentos.h"
#include "platform/support/Mensagens.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TGroupBox.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

#include <QPointer>

namespace ficha
{

FICHA_REGISTRAR(TDocBasFr)

namespace
{

constexpr int PessoaFisica = 0;
constexpr int PessoaJuridica = 1;

} // namespace

TDocBasFr::TDocBasFr(TChave chave) : TBasFr(chave) {}

void TDocBasFr::Create(QWidget *owner)
{
    TBasFr::Create(owner);
    SetTipoPess(PessoaJuridica);
    TLabeledEdit *primeiro = CLabeledEditTextoBasFr->LabeledEdit1;
    TLabeledEdit *segundo = ILabeledEditTextoBasFr->LabeledEdit1;
    AoTeclaDescer(primeiro, [this, primeiro](int &tecla, Qt::KeyboardModifiers estado) {
        CLabeledEditTextoBasFrLabeledEdit1KeyDown(primeiro, tecla, estado);
    });
    AoTeclaDescer(segundo, [this, segundo](int &tecla, Qt::KeyboardModifiers estado) {
        ILabeledEditTextoBasFrLabeledEdit1KeyDown(segundo, tecla, estado);
    });
}

void TDocBasFr::SetTipoPess(int t)
{
    tipoPess = t;
    const auto legendas = [this](const QString &c, const QString &i, const QString &m) {
        CLabeledEditTextoBasFr->LabeledEdit1->SetCaption(c);
        ILabeledEditTextoBasFr->LabeledEdit1->SetCaption(i);
        MLabeledEditTextoBasFr->LabeledEdit1->SetCaption(m);
    };
    if (t == PessoaFisica)
        legendas(QStringLiteral("CPF"), QStringLiteral("Identidade"),
                 QStringLiteral("Órgao Emissor"));
    else if (t == PessoaJuridica)
        legendas(QStringLiteral("CNPJ"), QStringLiteral("Inscr.Estadual"),
                 QStringLiteral("Inscr.Municipal"));
}

void TDocBasFr::Zerar()
{
    CLabeledEditTextoBasFr->LabeledEdit1->clear();
    ILabeledEditTextoBasFr->LabeledEdit1->clear();
    MLabeledEditTextoBasFr->LabeledEdit1->clear();
}

bool TDocBasFr::DocAceitavel()
{
    // The refusals are message boxes: the screen may be gone behind them.
    const QPointer<TDocBasFr> vivo(this);
    bool aceito = CLabeledEditTextoBasFr->ValorAceitavel();
    if (!vivo)
        return false;
    if (aceito && !NumeroValido()) {
        aceito = false;
        MensagemAviso(TextoDocumentoInvalido(tipoPess == PessoaFisica ? QStringLiteral("CPF")
                                                                      : QStringLiteral("CNPJ")),
                      0);
    }
    if (vivo && !aceito)
        CLabeledEditTextoBasFr->SetFocus();
    return aceito;
}

bool TDocBasFr::NumeroValido() const
{
    const QString numero = CLabeledEditTextoBasFr->AsString();
    if (numero.isEmpty())
        return true;
    if (tipoPess == PessoaFisica)
        return CPFValido(numero);
    return tipoPess != PessoaJuridica || CNPJValido(numero);
}

void TDocBasFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, GroupBox1, "GroupBox1");
    Pegar(this, CLabeledEditTextoBasFr, "CLabeledEditTextoBasFr");
    Pegar(this, ILabeledEditTextoBasFr, "ILabeledEditTextoBasFr");
    Pegar(this, MLabeledEditTextoBasFr, "MLabeledEditTextoBasFr");
}

void TDocBasFr::CLabeledEditTextoBasFrLabeledEdit1KeyDown(QObject *, int &tecla,
                                                          Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *ILabeledEditTextoBasFr->LabeledEdit1);
}

void TDocBasFr::ILabeledEditTextoBasFrLabeledEdit1KeyDown(QObject *, int &tecla,
                                                          Qt::KeyboardModifiers)
{
    AvancarComEnter(tecla, *MLabeledEditTextoBasFr->LabeledEdit1);
}

} // namespace ficha
