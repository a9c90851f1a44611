#pragma once

#include "base/UBasFr.h"

class QLabel;

namespace ficha
{

class TBitBtn;
class TCustomMaskEdit;
class TMaskEdit;

/**
 * One date, typed as bare digits or chosen in a calendar dialog. Read and written through its own
 * accessors; no value frame, and it tells the user nothing: whether what was typed is a date is
 * asked with IsValidDate or Date80.
 *
 * A year of two digits becomes one of four when the edit is left, when the date is read and when
 * it is checked (TrateTextPeloSeculo).
 */
class TDataBasFr : public TBasFr
{
    Q_OBJECT
    Q_PROPERTY(bool AceitaVazio MEMBER AceitaVazio)
    Q_PROPERTY(int SeculoBase MEMBER SeculoBase)

public:
    explicit TDataBasFr(TChave chave);

    /** Takes AceitaVazio back and lets two digits of a year mean the 80 years before this one and
     * the 19 after it. */
    void Create(QWidget *owner) override;

    /** The date in the edit; SemData (01/01/1980) for an empty text or one that is no date. */
    TDateTime GetAsDate();
    /** SemData too is written in full. */
    void SetAsDate(TDateTime dia);
    /** The date as a Firebird literal. */
    QString AsSQLFirebird();
    /** Empties the edit. */
    void Zerar();
    /** The day of the week, "seg" and "segunda-feira". */
    QString DiaSemanaAbrev();
    QString DiaSemanaExtenso();
    /** Nothing usable was entered; also for 01/01/1980 itself. */
    bool Date80();
    /** A real calendar date, or, with AceitaVazio, no text at all. */
    bool IsValidDate();
    /** Whole years between now and the date, as an age is counted. */
    int YearsBetween();
    /** Moves the date by n months, back when negative; the day stays as far as the month has it. */
    void AvancaMes(int n);
    /**
     * Writes the edit's digits anew with a year of four digits: ddmmyy by SeculoBase, ddmmyyyy as
     * it is; any other text stays. Impossible dates are written too.
     *
     * A SeculoBase below 100 is the last pair of digits of this century; from 100 on it is added to
     * the pair, and 00 counts as 100 (kept as it is).
     */
    void TrateTextPeloSeculo(TCustomMaskEdit *edit);

    bool AceitaVazio = false;
    /** Century rule for years of two digits. */
    int SeculoBase = 0;

    QLabel *Tit1Lab = nullptr;
    TMaskEdit *MaskEdit1 = nullptr;
    TBitBtn *BitBtn1 = nullptr;

protected:
    void PegarComponentes() override;
    /** Lets the user choose the date in a calendar that opens at the frame, on the date of the edit
     * or on today, inside the screen. The focus goes to the edit. */
    virtual void BitBtn1Click(QObject *sender);
    /** The edit takes the host's colour of a selected control, and gives it back on leaving. */
    virtual void MaskEdit1Enter(QObject *sender);
    virtual void MaskEdit1Exit(QObject *sender);
};

} // namespace ficha
