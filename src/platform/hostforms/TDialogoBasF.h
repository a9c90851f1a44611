#pragma once

#include "platform/hostforms/TBasF.h"

class QPushButton;

namespace ficha
{

/**
 * What the host's dialogs share: a bottom panel for the buttons, the question before OK, and the
 * modal execution. Enter presses OK, Esc presses Cancelar.
 *
 * Opens in the middle of its owner's window unless it was placed before. One without a border
 * (bsNone in its layout) has a thin line of its own around it, one pixel inside its client area, so
 * that it stands out from the screen behind it.
 */
class TDialogoBasF : public TBasF
{
    Q_OBJECT

public:
    explicit TDialogoBasF(TChave chave);

    /** Asked when the user presses OK; false keeps the dialog open. Here true. */
    virtual bool PodeOk();
    /** Runs the dialog modally; true when the user confirmed. */
    virtual bool Executar();

    TPanel *ButPanel = nullptr;

protected:
    void PegarComponentes() override;
    void FormShow(QObject *sender) override;
    void paintEvent(QPaintEvent *evento) override;
    /** OK: asks PodeOk and ends the dialog with mrOk. */
    virtual void OkClick(QObject *sender);
    /** Cancelar: ends the dialog with mrCancel. */
    virtual void CancelClick(QObject *sender);
    /** For the descendants that bring the buttons. */
    void LigarBotoes(QPushButton *ok, QPushButton *cancelar);

private:
    void Centralizar();
};

} // namespace ficha
