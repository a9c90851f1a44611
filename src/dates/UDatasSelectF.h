#pragma once

#include "platform/core/TDateTime.h"
#include "platform/hostforms/TDiagBitBtnBasF.h"

class QLabel;

namespace ficha
{

class TAction;
class TMonthCalendar;
class TRadioButton;
class TToolBar;

/**
 * A borderless dialog for a range of dates, opened beside a range frame: two month calendars, each
 * end either "Indicada" (its calendar is shown) or "Qualquer data" (it is hidden, the end is open),
 * nine presets, and a line that says what is selected.
 *
 * The opener places it, sets calendars and radio buttons (checking one has the effect of a click on
 * it), runs it, and reads MonthCalendar1, MonthCalendar2, DeQRadioButton and AteQRadioButton when
 * the user confirmed. Fresh, both ends are given, on today.
 */
class TDatasSelectF : public TDiagBitBtnBasF
{
    Q_OBJECT

public:
    explicit TDatasSelectF(TChave chave);

    /** True when the calendars hold at least one day. Asked of the calendars even when a side is
     * open: a start calendar later than the end calendar refuses OK whatever the radio buttons say
     * (kept as it is). */
    bool PodeOk() override;

    /** The start and the end calendar's date as "dd/mm/yyyy". */
    QString AsString1() const;
    QString AsString2() const;
    /** The days from start to end, both counted; below 1 when the end is before the start. */
    int DeltaDias() const;
    /** What is selected, as a phrase. With both ends given it also colours the line: maroon for a
     * reversed range, else the system's colour; an open end leaves the colour as it was (kept as
     * it is). */
    QString SelecStr();
    /** Shows the phrase. */
    void PreencherSelecStr();

    QLabel *Label1 = nullptr;
    QLabel *Label2 = nullptr;
    QLabel *Label3 = nullptr;
    QLabel *SelecStrLab = nullptr;
    TMonthCalendar *MonthCalendar1 = nullptr;
    TMonthCalendar *MonthCalendar2 = nullptr;
    TRadioButton *DeQRadioButton = nullptr;
    TRadioButton *DeIRadioButton = nullptr;
    TRadioButton *AteQRadioButton = nullptr;
    TRadioButton *AteIRadioButton = nullptr;
    /** Their pictures are those of SisD().ImageList16 at the dialog's creation. */
    TToolBar *ToolBar1 = nullptr;
    TToolBar *ToolBar2 = nullptr;
    TAction *TodasAct = nullptr;
    TAction *AnterioresAct = nullptr;
    TAction *PosterioresAct = nullptr;
    TAction *Dias1Act = nullptr;
    TAction *Dias7Act = nullptr;
    TAction *Dias4Act = nullptr;
    TAction *MesAct = nullptr;
    TAction *MesAnteriorAct = nullptr;
    TAction *MesSeguinteAct = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;

    virtual void DeQRadioButtonClick(QObject *sender);
    virtual void DeIRadioButtonClick(QObject *sender);
    virtual void AteQRadioButtonClick(QObject *sender);
    virtual void AteIRadioButtonClick(QObject *sender);
    virtual void MonthCalendar1Click(QObject *sender);
    virtual void MonthCalendar2Click(QObject *sender);
    virtual void Label3Click(QObject *sender);
    virtual void TodasActExecute(QObject *sender);
    virtual void AnterioresActExecute(QObject *sender);
    virtual void PosterioresActExecute(QObject *sender);
    virtual void Dias1ActExecute(QObject *sender);
    virtual void Dias7ActExecute(QObject *sender);
    /** One calendar month back and one day on, up to today: not 28 days (kept as it is). */
    virtual void Dias4ActExecute(QObject *sender);
    virtual void MesActExecute(QObject *sender);
    virtual void MesAnteriorActExecute(QObject *sender);
    virtual void MesSeguinteActExecute(QObject *sender);

private:
    void LigarEventos();
    void LigarAcoes();
    void InicioAberto();
    void FimAberto();
    void InicioEm(TDateTime dia);
    void FimEm(TDateTime dia);
    void MesInteiro(TDateTime dia);
};

} // namespace ficha
