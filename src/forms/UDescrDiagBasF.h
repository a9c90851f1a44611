#pragma once

#include "platform/hostforms/TDiagBitBtnBasF.h"

class QLabel;

namespace ficha
{

class TLabeledEditTextoBasFr;

/**
 * Modal dialog that asks for a description of one line, under a title that the caller sets in
 * TitLabel. Run with Executar(); the text is read from the frame. Without a text OK does nothing
 * but put the caret back into the edit.
 */
class TDescrDiagBasF : public TDiagBitBtnBasF
{
    Q_OBJECT

public:
    explicit TDescrDiagBasF(TChave chave);

    /** Whether there is a text, blanks aside. */
    bool PodeOk() override;

    QLabel *TitLabel = nullptr;
    TLabeledEditTextoBasFr *DescrLabeledEditTextoBasFr = nullptr;

protected:
    void PegarComponentes() override;
    /** A title of several lines pushes the edit and the bottom down. */
    void FormShow(QObject *sender) override;
    void OkClick(QObject *sender) override;
};

} // namespace ficha
