#pragma once

#include "platform/hostforms/TDiagBitBtnBasF.h"

class QLabel;

namespace ficha
{

class TMemo;

/**
 * Modal dialog that asks for a text of several lines, at most 300 characters (a line break counts
 * as two), without accents. Run with Executar(); the text is read from Memo1, which the caller may
 * preset.
 *
 * What the user types, composes with an input method, pastes or drops loses its accents on the way
 * in. A preset text stays as the program wrote it.
 */
class TMemoDiagBasF : public TDiagBitBtnBasF
{
    Q_OBJECT
    /** OK takes an empty text. */
    Q_PROPERTY(bool PodeVazio MEMBER PodeVazio)

public:
    explicit TMemoDiagBasF(TChave chave);

    /** With PodeVazio always; else whether there is a text, blanks and line breaks aside. Refused,
     * OK does nothing but put the caret back into the memo. */
    bool PodeOk() override;

    bool PodeVazio = true;
    QLabel *MemoTitLab = nullptr;
    TMemo *Memo1 = nullptr;

protected:
    void PegarComponentes() override;
    /** The caret goes behind a preset text. */
    void FormShow(QObject *sender) override;
    void OkClick(QObject *sender) override;
    /** Takes the accent off; an accent of its own (a combining mark) is swallowed. */
    virtual void Memo1KeyPress(QObject *sender, QChar &caractere);
};

} // namespace ficha
