#pragma once

#include <QPointer>
#include <QWidget>

#include <functional>

namespace ficha
{

/**
 * The bar between a control that sticks to the left of its container and what follows it: dragged
 * with the left mouse button, it makes that control wider or narrower, at once, and what lies to
 * its right gives way.
 *
 * Align it to the left, after the control whose width it changes: that one is found by its right
 * edge, which the bar touches. Takes no focus.
 */
class TSplitter : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(bool beveled READ GetBeveled WRITE SetBeveled)
    Q_PROPERTY(bool autoSnap READ GetAutoSnap WRITE SetAutoSnap)
    Q_PROPERTY(int minSize READ GetMinSize WRITE SetMinSize)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TSplitter(QWidget *owner = nullptr);

    /** Raised edges, so that it can be seen; off at the start. */
    bool GetBeveled() const { return beveled; }
    void SetBeveled(bool v);
    /** Dragged below MinSize, the control closes altogether instead of stopping there; on at the
     * start. */
    bool GetAutoSnap() const { return autoSnap; }
    void SetAutoSnap(bool v) { autoSnap = v; }
    /** Pixels that both sides keep, 30 at the start; not below 0. */
    int GetMinSize() const { return minSize; }
    void SetMinSize(int pixels);

    /** The user let the bar go, and the control's width is another one than before. */
    std::function<void(QObject *)> OnMoved;

    int Tag = 0;

protected:
    void paintEvent(QPaintEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    QWidget *Vizinho() const;
    int LarguraPara(int pedida) const;

    bool beveled = false;
    bool autoSnap = true;
    int minSize = 30;
    /** The control that is being dragged, its width and the mouse's place at the press. */
    QPointer<QWidget> arrastado;
    int larguraInicial = 0;
    int xInicial = 0;
};

} // namespace ficha
