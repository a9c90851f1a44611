#pragma once

#include "platform/toolkit/TBoundLabel.h"
#include "platform/toolkit/TCustomEdit.h"

#include <QPointer>

namespace ficha
{

/** A single-line edit with its caption above it. */
class TLabeledEdit : public TCustomEdit
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int labelSpacing READ GetLabelSpacing WRITE SetLabelSpacing)

public:
    explicit TLabeledEdit(QWidget *owner = nullptr);
    ~TLabeledEdit() override;

    QString GetCaption() const;
    void SetCaption(const QString &texto);
    /** Pixels between caption and edit; default 1. */
    int GetLabelSpacing() const;
    void SetLabelSpacing(int pixels);

    /** The caption; owned by the edit, null only while both are being destroyed. */
    QPointer<TBoundLabel> EditLabel;
};

} // namespace ficha
