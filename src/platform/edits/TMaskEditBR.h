#pragma once

#include "platform/toolkit/TBoundLabel.h"
#include "platform/toolkit/TCustomMaskEdit.h"

#include <QPointer>

#include <functional>

namespace ficha
{

/**
 * A mask edit with a caption that tells when its last place was typed and when it was left with
 * places still empty. The mask, its keys and its texts are those of TCustomMaskEdit.
 */
class TMaskEditBR : public TCustomMaskEdit
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int labelSpacing READ GetLabelSpacing WRITE SetLabelSpacing)
    Q_PROPERTY(bool AutoExit READ GetAutoExit WRITE SetAutoExit)

public:
    explicit TMaskEditBR(QWidget *owner = nullptr);
    ~TMaskEditBR() override;

    QString GetCaption() const;
    void SetCaption(const QString &texto);
    /** Pixels between caption and edit; default 1. */
    int GetLabelSpacing() const;
    void SetLabelSpacing(int pixels);

    /** Typing the last place of the mask moves to the next control in tab order, unless OnLastType
     * sent the focus elsewhere or an earlier place is still empty. Default false. Enter is left to
     * the screen. */
    bool GetAutoExit() const { return autoExit; }
    void SetAutoExit(bool v) { autoExit = v; }

    /** The user typed the last place of the mask. Pasting it is no typing. */
    std::function<void(QObject *)> OnLastType;
    /** The focus left the edit for another control of its window while some place of the mask was
     * empty, all of them included. */
    std::function<void(QObject *)> OnUncomplete;

    /** The caption; owned by the edit, null only while both are being destroyed. */
    QPointer<TBoundLabel> EditLabel;

protected:
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    void AposDigitar() override;

private:
    bool digitouUltimo = false;
    bool autoExit = false;
};

} // namespace ficha
