#pragma once

#include "base/UBasFr.h"

namespace ficha
{

class TBitBtn;
class TDatasSelectF;
class TMaskEdit;

/**
 * A range of dates for filters and reports: two edits and a button that opens the dialog of
 * presets. Either end may be empty, which leaves it open. No value frame: it has no binding.
 *
 * An end that is no date (31/02/2024, 01/02) reads as "no date" and so counts as open; it stays in
 * its edit as it was typed, and a caller that must refuse it asks StrLimpaIsValidDate. Nothing is
 * refused here, not even a start after the end, which matches nothing.
 *
 * Leaving an edit and reading an end write the year in four digits into the edit, also while the
 * user is in it: what is read is what is shown. A screen therefore reads when it needs the range,
 * not on every key: whoever is about to type 01/02/2024 has 01/02/20 in between.
 */
class TDatasBasFr : public TBasFr
{
    Q_OBJECT
    Q_PROPERTY(int SeculoBase MEMBER SeculoBase)

public:
    explicit TDatasBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** The start and the end; SemData where there is none, or no date. */
    TDateTime GetAsDate1();
    TDateTime GetAsDate2();
    /** Written in full, SemData too: 01/01/1980 is shown, and counts as open. */
    void SetAsDate1(TDateTime dia);
    void SetAsDate2(TDateTime dia);
    /** The Firebird literals of the ends; that of SemData for an open one. */
    QString AsSQLFirebird1();
    QString AsSQLFirebird2();
    /** Whether an end is chosen. A typed 01/01/1980 is not, as an empty edit (kept as it is). */
    bool EscolheuDt1();
    bool EscolheuDt2();
    /** Whether a moment lies in the range, both ends included. The end is a midnight: of its own
     * day only that moment lies in the range, as in WhereStr. */
    bool DataNaFaixa(TDateTime momento);
    /** A condition on a column expression, in brackets, "(c>=L1 and c<=L2)"; empty when both ends
     * are open. The end includes its day for columns without a time of day only. */
    QString WhereStr(const QString &campo);
    /** The range as a phrase, its dates in a format as for FormatDateTime. */
    QString FaixaString(const QString &formato);
    /** Both ends in one text, for settings. */
    QString StringConfig();
    /** Takes over such a text. An open end comes back as SemData: see SetAsDate1. */
    void PegarStringConfig(const QString &texto);
    /** The whole month before today's. */
    void PegarMesAnterior();
    /** Empties both edits. */
    void Zerar();
    /** Writes the date of an edit with two-digit day and month and a four-digit year; a year of two
     * digits gets its century by SeculoBase, 00 among them like any other. A text that is neither
     * ddmmyy nor ddmmyyyy stays as it is. */
    void TrateTextPeloSeculo(TMaskEdit *edit);

    /** As for AnoPeloSeculo. Fresh, 1900: two digits always are of the 1900s. */
    int SeculoBase = 1900;
    QLabel *Label2 = nullptr;
    TBitBtn *DtSelectBitBtn = nullptr;
    TMaskEdit *MaskEdit2 = nullptr;
    TMaskEdit *MaskEdit1 = nullptr;

protected:
    void PegarComponentes() override;
    /** Runs the dialog on the range and takes over what the user confirms there. */
    virtual void DtSelectBitBtnClick(QObject *sender);
    virtual void MaskEdit1Exit(QObject *sender);
    virtual void MaskEdit2Exit(QObject *sender);

private:
    TDateTime Ler(TMaskEdit *edit);
    void Posicionar(TDatasSelectF &dialogo);
    void MostrarNoDialogo(TDatasSelectF &dialogo);
    void PegarDoDialogo(const TDatasSelectF &dialogo);
};

} // namespace ficha
