#pragma once

#include <QCheckBox>

#include <functional>

class QMouseEvent;

namespace ficha
{

/** A check box. OnClick runs for the user's clicks and the space bar, never for the program's
 * setChecked. */
class TCheckBox : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TCheckBox(QWidget *owner = nullptr);

    QString GetCaption() const { return text(); }
    void SetCaption(const QString &texto) { setText(texto); }

    /** A mouse button went down on the box, before it reacts. */
    std::function<void(QObject *, QMouseEvent *)> OnMouseDown;
    /** The user turned the box. */
    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    void mousePressEvent(QMouseEvent *evento) override;
};

} // namespace ficha
