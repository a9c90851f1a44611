#pragma once

#include <QGroupBox>

namespace ficha
{

/**
 * A titled frame around controls. Its line runs through the middle of the title, in every style of
 * the desktop, so that controls may begin right below the title: with the 8-point font, 14 pixels
 * from the top edge.
 */
class TGroupBox : public QGroupBox
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TGroupBox(QWidget *owner = nullptr);

    QString GetCaption() const { return title(); }
    void SetCaption(const QString &texto) { setTitle(texto); }

    int Tag = 0;

protected:
    void paintEvent(QPaintEvent *evento) override;
};

} // namespace ficha
