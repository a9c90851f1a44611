#pragma once

#include "platform/core/TDateTime.h"
#include "platform/toolkit/TFrame.h"

class QLabel;

namespace ficha
{

class TPanel;

/**
 * Root of every frame: a wait panel for slow look-ups, a simulated key press, a switch for all
 * direct children, and three hooks (DoShow, Atualizar, Preparar).
 *
 * Everything runs on the user-interface thread. AguardeExibir and AguardeEsconder pump the
 * application's pending events once: clicks and timers may be handled inside them.
 */
class TBasFr : public TFrame
{
    Q_OBJECT

public:
    explicit TBasFr(TChave chave);

    /** Loads the layouts, forgets the last refresh and runs Preparar, once. */
    void Create(QWidget *owner) override;

    /** The screen is being shown. */
    virtual void DoShow();
    /** Refresh what the frame shows. */
    virtual void Atualizar();
    /** Set the frame up; runs inside Create, before the descendant's own steps. */
    virtual void Preparar();

    /** Shows the wait panel centred, painted at once. Calls are not counted: one AguardeEsconder
     * hides it whatever number of calls came before. */
    void AguardeExibir();
    void AguardeEsconder();
    /** Enables or disables the direct children; grandchildren follow their own parent only, and a
     * window that the frame owns is no child control. */
    void ControlesHabilitados(bool habilitar);
    /** Delivers one press of a virtual key synchronously: to the control, or to the focused one
     * when it is null, or to the frame itself when nothing has the focus. */
    void SimuleTecla(int tecla, QWidget *controle);
    /** Atualizar, at most once in 100 ms. */
    void ExecuteAtualizar();

    /** Moment of the last refresh run by ExecuteAtualizar; day 0 before the first. */
    TDateTime UltimaAtualizacao;

    /** Owned by the frame through its layout, like every component. */
    TPanel *AguardePanel = nullptr;
    QLabel *AguardeImage = nullptr;
    /** The orange look, for descendants and screens that want it; never shown by the base. */
    TPanel *PanelLaranja = nullptr;
    QLabel *AguardeImageLaranja = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
