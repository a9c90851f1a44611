#pragma once

#include "platform/hostforms/TBasF.h"

#include <QPoint>

class QLabel;
class QScrollArea;

namespace ficha
{

/**
 * Shows a picture in its natural size, modally, in the middle of the screen.
 *
 * The form is as large as the picture, but never smaller than its design size nor larger than the
 * screen: what does not fit is scrolled to, with the bars, the arrows or by dragging. Esc closes.
 */
class TZoomBasF : public TBasF
{
    Q_OBJECT

public:
    explicit TZoomBasF(TChave chave);
    ~TZoomBasF() override;

    /** Loads a picture file and shows it until the user closes the form. Raises EImagemInvalida,
     * and shows nothing, when the file is damaged or of no kind that can be shown. */
    void Exibir(const QString &arquivo);

    /** As large as its picture; owned by the form, like every component. */
    QLabel *Image1 = nullptr;

protected:
    void PegarComponentes() override;
    void FormShow(QObject *sender) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

private:
    void AjustarTamanho();

    QScrollArea *rolagem = nullptr;
    /** Where the mouse was last. */
    QPoint arrastado;
};

/** The form that a frame is showing; null when none does. */
extern TZoomBasF *ZoomBasF;

} // namespace ficha
