#pragma once

#include "dates/UOpcionalBasFr.h"

#include <QHash>

class QLabel;

namespace ficha
{

class TDatasFr;
class TRadioButton;
class TUpDownBRFr;

/**
 * A period of dates as an optional criterion: the last so many days, weeks or months, today
 * included, or the days from "De" to "Até".
 *
 * The period is the one of the last Atualizar with the box ticked; fresh, it is today. The user's
 * stepping or typing of a number, and changing a date of the range, check that mode.
 */
class TDataOpcionalFr : public TOpcionalBasFr
{
    Q_OBJECT

public:
    explicit TDataOpcionalFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Also computes the period and its phrase anew; only while the box is ticked. */
    void Atualizar() override;

    /**
     * The condition on a column, a date or a moment: " campo>=first and campo<the day after the
     * last"; empty while the box is clear. Call Atualizar first. A range whose start lies after its
     * end is not refused: it holds for no row.
     */
    QString WhereStr(const QString &campo) const;

    /** The period of each mode, from today or from the range. */
    void AjustarParaDias();
    void AjustarParaSemanas();
    /** From tomorrow one month back, as often as the number says: the last month begins on the
     * same day of the previous month. A number below 1 leaves a period of no day. */
    void AjustarParaMeses();
    void AjustarParaFaixa();

    /** First day of the period. */
    TDateTime DataInicial;
    /** The day after its last day. */
    TDateTime DataFinal;
    /** " entre dd/mm/yyyy e dd/mm/yyyy", first and last day; empty before the first Atualizar. */
    QString FaixaTexto;

    TRadioButton *DiasRadioButton = nullptr;
    TRadioButton *SemanasRadioButton = nullptr;
    TRadioButton *MesesRadioButton = nullptr;
    TRadioButton *FaixaRadioButton = nullptr;
    TUpDownBRFr *DiasUpDownBRFr = nullptr;
    TUpDownBRFr *SemanasUpDownBRFr = nullptr;
    TUpDownBRFr *MesesUpDownBRFr = nullptr;
    TDatasFr *DatasFr1 = nullptr;
    QLabel *Label3 = nullptr;

protected:
    void PegarComponentes() override;

    /** They move the focus to the mode's input. */
    virtual void DiasRadioButtonMouseUp(QObject *sender);
    virtual void SemanasRadioButtonMouseUp(QObject *sender);
    virtual void MesesRadioButtonMouseUp(QObject *sender);
    virtual void FaixaRadioButtonMouseUp(QObject *sender);
    /** They check the mode. */
    virtual void DiasUpDownBRFrUpDown1MouseUp(QObject *sender);
    virtual void SemanasUpDownBRFrUpDown1MouseUp(QObject *sender);
    virtual void MesesUpDownBRFrUpDown1MouseUp(QObject *sender);
    /** The date frame's own handler, then the range is checked. */
    virtual void DTPFr1DateTimePicker1Change(QObject *sender);
    virtual void DTPFr2DateTimePicker1Change(QObject *sender);
    /** The date frame's own handler only: looking at a date chooses nothing. */
    virtual void DTPFr1DateTimePicker1Click(QObject *sender);
    virtual void DTPFr2DateTimePicker1Click(QObject *sender);
    /** They check the range. */
    virtual void DTPFr1TitLabelClick(QObject *sender);
    virtual void DTPFr2TitLabelClick(QObject *sender);
    /** They do nothing. */
    virtual void DiasRadioButtonClick(QObject *sender);
    virtual void SemanasRadioButtonClick(QObject *sender);
    virtual void MesesRadioButtonClick(QObject *sender);
    virtual void FaixaRadioButtonClick(QObject *sender);

    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    using THandler = void (TDataOpcionalFr::*)(QObject *);
    void LigarRadios();
    void ColorirTitulo();
    void LigarFaixa();
    void LigarNumero(TUpDownBRFr *frame, THandler mudou);
    void AoSoltar(QWidget *controle, QObject *sender, THandler handler);
    static void FocarNumero(TUpDownBRFr *frame);

    struct TSolto {
        QObject *Sender = nullptr;
        THandler Handler = nullptr;
    };
    /** What a released mouse button runs, by the control that it was released on. */
    QHash<const QObject *, TSolto> soltos;
};

} // namespace ficha
