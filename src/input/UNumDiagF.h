#pragma once

#include "platform/hostforms/TDiagBasF.h"

class QLabel;

namespace ficha
{

class TNumEditBRBasFr;

/**
 * Modal dialog that asks for one number, under a title that the caller sets in TitLabel. Run with
 * Executar(); the number is read from the frame, whose bounds the caller may set. OK is refused
 * while the frame refuses the number.
 */
class TNumDiagF : public TDiagBasF
{
    Q_OBJECT

public:
    explicit TNumDiagF(TChave chave);

    /** Asks the frame, which tells the user why not. */
    bool PodeOk() override;

    QLabel *TitLabel = nullptr;
    TNumEditBRBasFr *NumEditBRBasFr = nullptr;

protected:
    void PegarComponentes() override;
    /** The number gets the focus, all selected. A title of several lines pushes the number and the
     * bottom down.
     */
    void FormShow(QObject *sender) override;
};

} // namespace ficha
