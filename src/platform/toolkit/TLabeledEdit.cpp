#include "platform/toolkit/TLabeledEdit.h"

#include "platform/toolkit/Layout.h"

namespace ficha
{

FICHA_REGISTRAR_WIDGET(TLabeledEdit)

TLabeledEdit::TLabeledEdit(QWidget *owner) : TCustomEdit(owner), EditLabel(new TBoundLabel(this)) {}

TLabeledEdit::~TLabeledEdit()
{
    delete EditLabel;
}

QString TLabeledEdit::GetCaption() const
{
    return EditLabel ? EditLabel->text() : QString();
}

void TLabeledEdit::SetCaption(const QString &texto)
{
    if (EditLabel)
        EditLabel->setText(texto);
}

int TLabeledEdit::GetLabelSpacing() const
{
    return EditLabel ? EditLabel->GetEspaco() : 0;
}

void TLabeledEdit::SetLabelSpacing(int pixels)
{
    if (EditLabel)
        EditLabel->SetEspaco(pixels);
}

} // namespace ficha
