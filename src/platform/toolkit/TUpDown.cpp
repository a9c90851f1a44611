#include "platform/toolkit/TUpDown.h"

#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"

#include <QKeyEvent>
#include <QResizeEvent>
#include <QToolButton>

#include <algorithm>
#include <cmath>

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TUpDown)

namespace
{

int Em16Bits(int n)
{
    return std::clamp(n, -32768, 32767);
}

} // namespace

TUpDown::TUpDown(QWidget *owner) : QWidget(owner), cima(NovoBotao(true)), baixo(NovoBotao(false))
{
    resize(sizeHint());
}

void TUpDown::Associar(QLineEdit *novo)
{
    if (edit)
        edit->removeEventFilter(this);
    edit = novo;
    if (edit)
        edit->installEventFilter(this);
}

void TUpDown::SetMin(int n)
{
    min = Em16Bits(n);
    SetPosition(position);
}

void TUpDown::SetMax(int n)
{
    max = Em16Bits(n);
    SetPosition(position);
}

void TUpDown::SetIncrement(int n)
{
    increment = std::max(1, Em16Bits(n));
}

void TUpDown::SetPosition(int n)
{
    position = std::min(std::max(Em16Bits(n), min), max);
}

void TUpDown::Passo(bool paraCima)
{
    if (edit && (edit->isReadOnly() || !edit->isEnabled()))
        return;
    const double antes = edit ? NumeroDoEdit() : position;
    double depois = antes + (paraCima ? increment : -increment);
    if (paraCima && depois > max)
        depois = std::max(antes, double(max));
    else if (!paraCima && depois < min)
        depois = std::min(antes, double(min));
    const QPointer<TUpDown> vivo(this);
    if (edit && depois != antes)
        EscreverNoEdit(depois);
    if (!vivo)
        return;
    SetPosition(int(std::clamp(depois, -32768.0, 32767.0)));
    Disparar(OnClick, this, paraCima);
}

QSize TUpDown::sizeHint() const
{
    return {15, 21};
}

void TUpDown::resizeEvent(QResizeEvent *evento)
{
    const int metade = height() / 2;
    cima->setGeometry(0, 0, width(), metade);
    baixo->setGeometry(0, metade, width(), height() - metade);
    QWidget::resizeEvent(evento);
}

bool TUpDown::eventFilter(QObject *alvo, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress && alvo == edit) {
        const auto *tecla = static_cast<QKeyEvent *>(evento);
        const bool puro = !(tecla->modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier));
        if (puro && (tecla->key() == Qt::Key_Up || tecla->key() == Qt::Key_Down)) {
            Passo(tecla->key() == Qt::Key_Up);
            return true;
        }
    }
    return QWidget::eventFilter(alvo, evento);
}

QToolButton *TUpDown::NovoBotao(bool paraCima)
{
    auto *botao = new QToolButton(this);
    botao->setArrowType(paraCima ? Qt::UpArrow : Qt::DownArrow);
    botao->setAutoRepeat(true);
    botao->setFocusPolicy(Qt::NoFocus);
    botao->setAccessibleName(paraCima ? QStringLiteral("Aumentar") : QStringLiteral("Diminuir"));
    Ligar(botao, &QToolButton::clicked, this, [this, paraCima] { Passo(paraCima); });
    return botao;
}

double TUpDown::NumeroDoEdit() const
{
    const QVariant valor = edit->property("Valor");
    if (valor.isValid())
        return valor.toDouble();
    return std::trunc(edit->text().trimmed().toDouble());
}

void TUpDown::EscreverNoEdit(double numero)
{
    if (edit->property("Valor").isValid())
        edit->setProperty("Valor", numero);
    else
        edit->setText(QString::number(qlonglong(numero)));
}

} // namespace ficha
