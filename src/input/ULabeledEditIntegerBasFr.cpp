#include "input/ULabeledEditIntegerBasFr.h"

#include "input/UApoioInput.h"
#include "platform/support/Mensagens.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"

#include <limits>

namespace ficha
{

FICHA_REGISTRAR(TLabeledEditIntegerBasFr)

TLabeledEditIntegerBasFr::TLabeledEditIntegerBasFr(TChave chave) : TLabeledEditBasFr(chave) {}

Variant TLabeledEditIntegerBasFr::GetValor() const
{
    return StrToIntStr(LabeledEdit1->text());
}

void TLabeledEditIntegerBasFr::SetValor(const Variant &valor)
{
    TLabeledEditBasFr::SetValor(valor);
    LabeledEdit1->setText(StrToIntStr(valor.AsString()));
    if (AbaixoDoMinimo())
        LabeledEdit1->setText(QString::number(Minimo));
    if (AcimaDoMaximo())
        LabeledEdit1->setText(QString::number(Maximo));
}

void TLabeledEditIntegerBasFr::Zerar()
{
    if (TemMinimo)
        SetValor(Minimo);
    else
        TLabeledEditBasFr::Zerar();
}

bool TLabeledEditIntegerBasFr::ValorAceitavel()
{
    bool cabe = false;
    (void)GetValor().AsString().toInt(&cabe);
    if (!cabe) {
        MensagemAviso(TextoForaDosLimites(RotuloDoCampo(), std::numeric_limits<int>::min(),
                                          std::numeric_limits<int>::max()),
                      0);
        return false;
    }
    if (!TLabeledEditBasFr::ValorAceitavel())
        return false;
    if (!AbaixoDoMinimo() && !AcimaDoMaximo())
        return true;
    MensagemAviso(TextoForaDosLimites(RotuloDoCampo(), Minimo, Maximo), 0);
    return false;
}

QString TLabeledEditIntegerBasFr::AsString() const
{
    return QString::number(GetValor().AsInteger());
}

QString TLabeledEditIntegerBasFr::SQLStrChar() const
{
    return SQLDoCaractere(GetValor().AsInteger());
}

void TLabeledEditIntegerBasFr::LabeledEdit1Change(QObject *sender)
{
    TLabeledEditBasFr::LabeledEdit1Change(sender);
    Atualizar();
}

bool TLabeledEditIntegerBasFr::AbaixoDoMinimo() const
{
    return TemMinimo && GetValor() < Variant(Minimo);
}

bool TLabeledEditIntegerBasFr::AcimaDoMaximo() const
{
    return TemMaximo && GetValor() > Variant(Maximo);
}

} // namespace ficha
