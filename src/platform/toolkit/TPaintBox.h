#pragma once

#include <QPixmap>
#include <QWidget>

#include <exception>
#include <functional>

class QPainter;

namespace ficha
{

/**
 * A box that its owner paints. OnPaint runs each time that the box must be painted; drawing at any
 * other moment shows at once and stays until then.
 */
class TPaintBox : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TPaintBox(QWidget *owner = nullptr);

    /** Draws on the box, in its own coordinates: inside OnPaint or at any other moment. What the
     * drawing raises goes to the caller; what it had drawn by then stays. */
    void Desenhar(const std::function<void(QPainter &)> &desenho);
    /** Whether OnPaint is running. */
    bool Pintando() const { return pintando; }

    /**
     * The box must be painted; the sender is the box. What this raises goes to the host's error
     * report as soon as the paint event is over, since no message box can be opened inside it.
     */
    std::function<void(QObject *)> OnPaint;

    int Tag = 0;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    bool PrepararTela();

    QPixmap tela;
    /** Drawn on since it was last painted, and what was drawn is still to be seen. */
    bool fresca = false;
    bool pintando = false;
};

} // namespace ficha
