#include "base/UBasFr.h"

#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/Layout.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/Teclas.h"

#include <QApplication>
#include <QLabel>

namespace ficha
{

FICHA_REGISTRAR(TBasFr)

namespace
{
constexpr double DecimoDeSegundo = 1.0 / 864000;
}

TBasFr::TBasFr(TChave chave) : TFrame(chave) {}

void TBasFr::Create(QWidget *owner)
{
    TFrame::Create(owner);
    UltimaAtualizacao = TDateTime();
    Preparar();
}

void TBasFr::DoShow() {}

void TBasFr::Atualizar() {}

void TBasFr::Preparar() {}

void TBasFr::AguardeExibir()
{
    AguardePanel->move((width() - AguardePanel->width()) / 2,
                       (height() - AguardePanel->height()) / 2);
    AguardePanel->raise();
    AguardePanel->show();
    AguardePanel->repaint();
    QCoreApplication::processEvents();
}

void TBasFr::AguardeEsconder()
{
    AguardePanel->hide();
    QCoreApplication::processEvents();
}

void TBasFr::ControlesHabilitados(bool habilitar)
{
    for (QWidget *filho : findChildren<QWidget *>(Qt::FindDirectChildrenOnly)) {
        if (!filho->isWindow())
            filho->setEnabled(habilitar);
    }
}

void TBasFr::SimuleTecla(int tecla, QWidget *controle)
{
    QWidget *alvo = controle ? controle : QApplication::focusWidget();
    EnviarTecla(alvo ? alvo : this, tecla);
}

void TBasFr::ExecuteAtualizar()
{
    if (PassouTempo(UltimaAtualizacao, DecimoDeSegundo))
        return;
    UltimaAtualizacao = Agora();
    Atualizar();
}

void TBasFr::PegarComponentes()
{
    TFrame::PegarComponentes();
    Pegar(this, AguardePanel, "AguardePanel");
    Pegar(this, AguardeImage, "AguardeImage");
    Pegar(this, PanelLaranja, "PanelLaranja");
    Pegar(this, AguardeImageLaranja, "AguardeImageLaranja");
}

} // namespace ficha
