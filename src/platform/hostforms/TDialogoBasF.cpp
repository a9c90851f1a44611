#include "platform/hostforms/TDialogoBasF.h"

#include "platform/toolkit/Alinhamento.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"

#include <QApplication>
#include <QPainter>
#include <QPushButton>
#include <QScreen>

namespace ficha
{

FICHA_REGISTRAR(TDialogoBasF)

TDialogoBasF::TDialogoBasF(TChave chave) : TBasF(chave) {}

bool TDialogoBasF::PodeOk()
{
    return true;
}

bool TDialogoBasF::Executar()
{
    return ShowModal() == mrOk;
}

void TDialogoBasF::PegarComponentes()
{
    TBasF::PegarComponentes();
    Pegar(this, ButPanel, "ButPanel");
    if (GetBorderStyle() == bsNone) {
        setContentsMargins(1, 1, 1, 1);
        ArrumarConteiner(this);
    }
}

void TDialogoBasF::FormShow(QObject *sender)
{
    TBasF::FormShow(sender);
    if (!testAttribute(Qt::WA_Moved))
        Centralizar();
    if (!SelecionarTag1())
        SelectNext(nullptr);
}

void TDialogoBasF::paintEvent(QPaintEvent *evento)
{
    TBasF::paintEvent(evento);
    if (GetBorderStyle() != bsNone)
        return;
    QPainter pintor(this);
    pintor.setPen(palette().color(QPalette::Shadow));
    pintor.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TDialogoBasF::OkClick(QObject *)
{
    if (PodeOk())
        SetModalResult(mrOk);
}

void TDialogoBasF::CancelClick(QObject *)
{
    SetModalResult(mrCancel);
}

void TDialogoBasF::LigarBotoes(QPushButton *ok, QPushButton *cancelar)
{
    Ligar(ok, &QPushButton::clicked, this, [this, ok] { OkClick(ok); });
    Ligar(cancelar, &QPushButton::clicked, this, [this, cancelar] { CancelClick(cancelar); });
}

void TDialogoBasF::Centralizar()
{
    const QWidget *dono = parentWidget() ? parentWidget()->window() : QApplication::activeWindow();
    const QRect area = screen()->availableGeometry();
    QRect onde = dono && dono != this && dono->isVisible() ? dono->geometry() : area;
    onde = QRect(onde.center() - QPoint(width() / 2, height() / 2), size());
    move(qBound(area.left(), onde.left(), qMax(area.left(), area.right() - width())),
         qBound(area.top(), onde.top(), qMax(area.top(), area.bottom() - height())));
    setAttribute(Qt::WA_Moved, false);
}

} // namespace ficha
