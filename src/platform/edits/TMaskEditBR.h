#pragma once

#include "platform/toolkit/TBoundLabel.h"
#include "platform/toolkit/TCustomMaskEdit.h"

#include <QPointer>

#include <functional>

namespace ficha
{

/** A mask edit with a caption that tells when its last place was typed and when it was left with
 * places still empty. */
class TMaskEditBR : public TCustomMaskEdit
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int labelSpacing READ GetLabelSpacing WRITE SetLabelSpacing)

public:
    explicit TMaskEditBR(QWidget *owner = nullptr);
    ~TMaskEditBR() override;

    QString GetCaption() const;
    void SetCaption(const QString &texto);
    int GetLabelSpacing() const;
    void SetLabelSpacing(int pixels);

    /** The user typed the last place of the mask. Pasting it is no typing. */
    std::function<void(QObject *)> OnLastType;
    /** The focus left the edit for another control of its window while some place of the mask was
     * empty, all of them included. */
    std::function<void(QObject *)> OnUncomplete;

    QPointer<TBoundLabel> EditLabel;

protected:
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    void AposDigitar() override;

private:
    bool digitouUltimo = false;
};

} // namespace ficha
