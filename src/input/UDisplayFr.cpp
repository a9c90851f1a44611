#include "input/UDisplayFr.h"

#include "platform/toolkit/Cores.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"

#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TDisplayFr)

TDisplayFr::TDisplayFr(TChave chave) : TBasFr(chave) {}

void TDisplayFr::Preparar()
{
    TBasFr::Preparar();
}

void TDisplayFr::Alinhar()
{
    Dado1Lab->adjustSize();
    Dado1Lab->move(width() - (Dado1Lab->width() + 1), Dado1Lab->y());
}

QString TDisplayFr::GetDado1Str() const
{
    return {};
}

void TDisplayFr::SetDado1Str(const QString &texto)
{
    Dado1Lab->setText(texto);
    Alinhar();
}

TColor TDisplayFr::GetColor() const
{
    return CorDoWidget(*this, QPalette::Window);
}

void TDisplayFr::SetColor(TColor cor)
{
    SetCorDoWidget(*this, QPalette::Window, cor);
    setAutoFillBackground(true);
}

void TDisplayFr::PegarComponentes()
{
    TBasFr::PegarComponentes();
    Pegar(this, Panel1, "Panel1");
    Pegar(this, Dado1Lab, "Dado1Lab");
    Pegar(this, Tit2Lab, "Tit2Lab");
    Pegar(this, Tit1Lab, "Tit1Lab");
}

void TDisplayFr::resizeEvent(QResizeEvent *evento)
{
    TBasFr::resizeEvent(evento);
    if (Dado1Lab && !Dado1Lab->text().isEmpty())
        Alinhar();
}

} // namespace ficha
