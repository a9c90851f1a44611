#include "demo/UPeriodoFr.h"

#include "platform/core/Relogio.h"
#include "platform/toolkit/Evento.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TMaskEdit.h"

#include <QKeyEvent>

using namespace ficha;

namespace comercial
{

FICHA_REGISTRAR(TPeriodoFr)

namespace
{
/** Two digits of a year go back this far at most. */
constexpr int AnosParaTras = 80;
constexpr int Dias = 30;
} // namespace

void TPeriodoFr::Create(QWidget *owner)
{
    TDatasBasFr::Create(owner);
    SeculoBase = (Hoje().Data().year() - AnosParaTras) % 100;
    MaskEdit1->installEventFilter(this);
    MaskEdit2->installEventFilter(this);
    avisado = StringConfig();
}

void TPeriodoFr::UltimosTrintaDias()
{
    SetAsDate1(TDateTime(Hoje().Dias() - Dias + 1));
    SetAsDate2(Hoje());
    avisado = StringConfig();
}

void TPeriodoFr::DtSelectBitBtnClick(QObject *sender)
{
    TDatasBasFr::DtSelectBitBtnClick(sender);
    Avisar();
}

void TPeriodoFr::MaskEdit1Exit(QObject *sender)
{
    TDatasBasFr::MaskEdit1Exit(sender);
    Avisar();
}

void TPeriodoFr::MaskEdit2Exit(QObject *sender)
{
    TDatasBasFr::MaskEdit2Exit(sender);
    Avisar();
}

bool TPeriodoFr::eventFilter(QObject *objeto, QEvent *evento)
{
    if (evento->type() == QEvent::KeyPress && (objeto == MaskEdit1 || objeto == MaskEdit2)) {
        const int tecla = static_cast<QKeyEvent *>(evento)->key();
        if (tecla == Qt::Key_Return || tecla == Qt::Key_Enter) {
            Protegido([this] { Avisar(); });
            return true;
        }
    }
    return TDatasBasFr::eventFilter(objeto, evento);
}

void TPeriodoFr::Avisar()
{
    const QString agora = StringConfig();
    if (agora == avisado)
        return;
    avisado = agora;
    if (OnMudou)
        OnMudou();
}

} // namespace comercial
