#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TCheckBox;

/**
 * One criterion of a filter or report screen that the user switches on and off with the check box
 * at its top. Switched off, its panel is grey and disabled, and it contributes no condition.
 *
 * It sticks to the top of its parent, one frame under the other, from when it is first shown,
 * unless the screen has placed it otherwise (an alignment of its own, a parent with a layout). With
 * auto-size, which is on at the start, it is as high as what it holds; its width is its parent's
 * concern.
 *
 * It refreshes itself (Atualizar) when it is shown and when the box turns, by user or program.
 * Otherwise the screen calls Atualizar, as often as it likes.
 */
class TOpcionalBasFr : public TBasFr
{
    Q_OBJECT
    Q_PROPERTY(bool autoSize READ GetAutoSize WRITE SetAutoSize)
    /** The caption of the check box: the criterion's name. */
    Q_PROPERTY(QString Titulo READ GetTitulo WRITE SetTitulo)

public:
    explicit TOpcionalBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Makes the check box as wide as the frame, and the panel black and enabled, or grey and
     * disabled. Writes only what is not so already. */
    void Atualizar() override;

    bool GetAutoSize() const { return autoSize; }
    void SetAutoSize(bool v);
    QString GetTitulo() const;
    void SetTitulo(const QString &texto);

    TCheckBox *AtivoCheckBox = nullptr;
    TPanel *Panel1 = nullptr;

protected:
    void PegarComponentes() override;
    /** A click on the frame's own ground switches auto-size on. */
    virtual void FrameClick(QObject *sender);

    void showEvent(QShowEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    void Colorir();
    void AlinharNoTopo();
    void AjustarAltura();
    void AlargarCaixa();

    bool autoSize = false;
    bool mostrado = false;
};

} // namespace ficha
