#pragma once

#include "platform/core/TColor.h"

#include <QFrame>

#include <functional>

namespace ficha
{

/** A panel that holds other controls, with a caption behind them and an optional bevel. */
class TPanel : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(Qt::Alignment alignment READ GetAlignment WRITE SetAlignment)
    Q_PROPERTY(Bevel bevel READ GetBevel WRITE SetBevel)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int fontColor READ GetFontColorInt WRITE SetFontColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum Bevel {
        bvNone,
        bvLowered,
        bvRaised,
    };
    Q_ENUM(Bevel)

    explicit TPanel(QWidget *owner = nullptr);

    const QString &GetCaption() const { return caption; }
    void SetCaption(const QString &texto);
    /** Of the caption; default centred both ways. */
    Qt::Alignment GetAlignment() const { return alinhamento; }
    void SetAlignment(Qt::Alignment v);
    Bevel GetBevel() const { return bevel; }
    /** Sets frame shape, shadow and line width. Default bvNone. */
    void SetBevel(Bevel v);
    /** Until a colour is set, the parent's shows through. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }
    TColor GetFontColor() const;
    void SetFontColor(TColor cor);
    int GetFontColorInt() const { return int(GetFontColor().valor); }
    void SetFontColorInt(int cor) { SetFontColor(TColor(std::uint32_t(cor))); }

    /** A left click ended on the panel itself. */
    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    void paintEvent(QPaintEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    QString caption;
    Qt::Alignment alinhamento = Qt::AlignCenter;
    Bevel bevel = bvNone;
};

} // namespace ficha
