#pragma once

#include "base/UBasFr.h"
#include "platform/core/TColor.h"

namespace ficha
{

/**
 * Shows one value, with two titles, on a coloured ground. Read-only, and no value frame: it has
 * no binding.
 */
class TDisplayFr : public TBasFr
{
    Q_OBJECT
    /** The ground; Panel1 has it from the frame. */
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    /** Writing shows the value. Reading gives an empty text (kept as it is). */
    Q_PROPERTY(QString Dado1Str READ GetDado1Str WRITE SetDado1Str)

public:
    explicit TDisplayFr(TChave chave);

    void Preparar() override;

    /** Puts the value's right edge one pixel from the frame's. Also runs when the frame is
     * resized. */
    void Alinhar();
    QString GetDado1Str() const;
    void SetDado1Str(const QString &texto);

    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }

    TPanel *Panel1 = nullptr;
    QLabel *Dado1Lab = nullptr;
    QLabel *Tit2Lab = nullptr;
    QLabel *Tit1Lab = nullptr;

protected:
    void PegarComponentes() override;
    void resizeEvent(QResizeEvent *evento) override;
};

} // namespace ficha
