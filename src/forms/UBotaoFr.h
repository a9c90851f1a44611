#pragma once

#include "base/UBasFr.h"

class QLabel;

namespace ficha
{

/** A picture that serves as a button. It takes no focus. */
class TBotaoFr : public TBasFr
{
    Q_OBJECT

public:
    explicit TBotaoFr(TChave chave);

    /** A left click ended on the picture. The sender is the frame. */
    std::function<void(QObject *)> OnClick;

    /** As large as its picture, also when another one is put in. */
    QLabel *Image1 = nullptr;

protected:
    void PegarComponentes() override;
    bool event(QEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
};

} // namespace ficha
