#pragma once

#include "base/UBasFr.h"

#include <cstdint>

namespace ficha
{

class TAction;
class TActContainerF;
class TActionList;
class TPanel;
class TToolBar;
class TToolButton;

/**
 * Shows something about one code, Cod1, and can be enlarged into a window of its own: the action
 * "Ampliar" opens one modally with a new frame of the same class in it, which loads its own data.
 *
 * A class that is to be enlarged has Q_OBJECT and FICHA_REGISTRAR.
 */
class TActBasFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TActBasFr(TChave chave);

    /** Starts without a code (-1), whatever Preparar did; takes the pictures of the tool bar and
     * the actions from SisD(). */
    void Create(QWidget *owner) override;

    /** The code is new: here RelerFonte. */
    virtual void PegarUltimo();
    /**
     * Puts a copy of this frame into the window, which becomes 700 x 400: made by the registered
     * name of this frame's own class, owned by the window, its "Ampliar" disabled, and given Cod1.
     * Raises EErro for a class that is not registered.
     */
    virtual void BeforeContainerShow(TActContainerF *container);
    /** Draw what is shown anew. */
    virtual void AtualizarExibicao();
    /** Read the data source again. */
    virtual void RelerFonte();
    /** The code is about to change; Cod1 is still the old one. */
    virtual void AntesTrocarCod();

    std::int32_t GetCod1() const { return cod1; }
    /** A new value runs AntesTrocarCod, PegarUltimo, RelerFonte and AtualizarExibicao, in this
     * order; the same value does nothing. */
    void SetCod1(std::int32_t codigo);
    /** Takes the code and runs nothing. */
    void PegarCodSemProcessar(std::int32_t codigo);

    TPanel *ToolBar1Panel = nullptr;
    TToolBar *ToolBar1 = nullptr;
    TToolButton *AmplToolButton = nullptr;
    TActionList *ActionList1 = nullptr;
    TAction *AmpliarAct = nullptr;

protected:
    void PegarComponentes() override;
    /** Runs Atualizar, at idle time while the frame is visible. */
    virtual void AmpliarActUpdate(QObject *sender);
    /** Shows the enlarged copy until the user closes it, then reads and draws this frame again.
     * The window is freed in any case; the frame may be destroyed meanwhile. */
    virtual void AmpliarActExecute(QObject *sender);

private:
    TActBasFr *NovaCopia(QWidget *dono) const;

    std::int32_t cod1 = -1;
};

} // namespace ficha
