#include "input/ULabeledEditTextoBasFr.h"

#include "input/UApoioInput.h"
#include "platform/support/Textos.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TLabeledEdit.h"
#include "platform/toolkit/Teclas.h"

namespace ficha
{

FICHA_REGISTRAR(TLabeledEditTextoBasFr)

TLabeledEditTextoBasFr::TLabeledEditTextoBasFr(TChave chave) : TLabeledEditBasFr(chave) {}

void TLabeledEditTextoBasFr::Create(QWidget *owner)
{
    TLabeledEditBasFr::Create(owner);
    Frases.Add(QStringLiteral("Máx. de caracteres"));
    setMouseTracking(true);
    AoTeclar(LabeledEdit1, [this](QChar &c) { LabeledEdit1KeyPress(LabeledEdit1, c); });
}

Variant TLabeledEditTextoBasFr::GetValor() const
{
    return AsString();
}

void TLabeledEditTextoBasFr::SetValor(const Variant &valor)
{
    TLabeledEditBasFr::SetValor(valor);
    LabeledEdit1->setText(valor.AsString().trimmed());
}

QString TLabeledEditTextoBasFr::AsString() const
{
    return LabeledEdit1->text().trimmed();
}

QString TLabeledEditTextoBasFr::SQLString() const
{
    return QuotedStr(AsString());
}

void TLabeledEditTextoBasFr::FrameExit(QObject *sender)
{
    TLabeledEditBasFr::FrameExit(sender);
}

void TLabeledEditTextoBasFr::FrameMouseMove(QObject *, QMouseEvent *) {}

void TLabeledEditTextoBasFr::LabeledEdit1Change(QObject *sender)
{
    TLabeledEditBasFr::LabeledEdit1Change(sender);
    const int maximo = LabeledEdit1->GetMaxLength();
    if (maximo > 0)
        LigarFraseDoMaximo(Frases, QStringView(LabeledEdit1->text()).trimmed().size(), maximo);
    LigarFrase(Frases, FraseJaExiste, false);
    Atualizar();
}

void TLabeledEditTextoBasFr::LabeledEdit1KeyDown(QObject *sender, int &tecla,
                                                 Qt::KeyboardModifiers estado)
{
    TLabeledEditBasFr::LabeledEdit1KeyDown(sender, tecla, estado);
}

void TLabeledEditTextoBasFr::LabeledEdit1KeyPress(QObject *, QChar &) {}

void TLabeledEditTextoBasFr::mouseMoveEvent(QMouseEvent *evento)
{
    TLabeledEditBasFr::mouseMoveEvent(evento);
    Protegido([&] { FrameMouseMove(this, evento); });
}

} // namespace ficha
