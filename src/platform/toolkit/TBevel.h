#pragma once

#include <QWidget>

namespace ficha
{

/**
 * A line or a frame around a part of a screen, for the eye only: it takes no focus and no clicks,
 * and stands behind the controls that come after it.
 */
class TBevel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(Shape shape READ GetShape WRITE SetShape)
    Q_PROPERTY(Style style READ GetStyle WRITE SetStyle)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum Shape {
        bsBox,   /**< the whole area, sunken or raised */
        bsFrame, /**< an engraved or embossed line around the area */
        bsTopLine,
        bsBottomLine,
        bsLeftLine,
        bsRightLine,
        bsSpacer, /**< nothing is painted */
    };
    Q_ENUM(Shape)
    enum Style {
        bsLowered,
        bsRaised,
    };
    Q_ENUM(Style)

    explicit TBevel(QWidget *owner = nullptr);

    Shape GetShape() const { return forma; }
    void SetShape(Shape v);
    Style GetStyle() const { return estilo; }
    void SetStyle(Style v);

    int Tag = 0;

protected:
    void paintEvent(QPaintEvent *evento) override;

private:
    Shape forma = bsBox;
    Style estilo = bsLowered;
};

} // namespace ficha
