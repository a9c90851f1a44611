#pragma once

#include "platform/hostforms/TBasF.h"

#include <QPointer>

class QLabel;
class QLineEdit;

namespace ficha
{

class TBitBtn;
class TLabeledEdit;
class TRadioGroup;
class TStringGrid;

/** What the search dialog asks of a screen with a list: the screen is a TForm that also implements
 * this. */
class ITelaComGrade
{
public:
    virtual ~ITelaComGrade() = default;

    /** The list that is searched: titles in row 0, records from row 1. */
    virtual TStringGrid *GradeDaBusca() const = 0;
    /** Records in the list. */
    virtual int NRegistrosDaBusca() const = 0;
    /** False while the record that is shown must not change (an edit is open). */
    virtual bool PodeMoverNaBusca() const = 0;
    /** Makes the record of a row of the list the current one. */
    virtual void MoverParaLinha(int linha) = 0;
    /** Whether selecting a row of the list moves the table. */
    virtual bool GetSelecaoNavega() const = 0;
    virtual void SetSelecaoNavega(bool navega) = 0;
};

/**
 * The one search dialog of the process: a small tool window that stays on top and searches the list
 * of the active screen for a text in the list's current column, up or down from the current row.
 *
 * It only refers to the screen; one that dies while the dialog is open is forgotten. Only the
 * letters a to z are compared without their case: an accented letter stands for itself.
 */
class TLocalizBasF : public TBasF
{
    Q_OBJECT

public:
    explicit TLocalizBasF(TChave chave);

    /** Points the dialog at a screen, whose caption it takes. Null is none. */
    void SetTabF(TForm *form);
    /** The screen that is searched; null when there is none. */
    TForm *GetTabF() const { return TabF; }
    /** Writes "Buscando por " and the title of a column of the list. */
    void PegarCampo(const TStringGrid *grade, int coluna);

    /** Runs one search and reports a miss. Nothing while the screen's record must not change. */
    void BuscaLinear();
    /**
     * Looks for the text from the current row on, that row left out. The list is moved once, to the
     * row that was found. When the list stands at its end, asks whether to turn around; a list of
     * one row has nothing to search then.
     */
    bool Localizou();

    /** The screen whose list is searched; not owned. */
    QPointer<TForm> TabF;
    /** -1 upwards, +1 downwards. */
    int Direcao = 1;

    QLabel *CampoLabel = nullptr;
    TLabeledEdit *LocalizLabeledEdit = nullptr;
    TRadioGroup *OndeRadioGroup = nullptr;
    TRadioGroup *DirecRadioGroup = nullptr;
    TBitBtn *ExecButton = nullptr;
    TBitBtn *Button1 = nullptr;
    QLabel *Image2 = nullptr;
    TAction *LocalizAction = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    /** Empties the search text. */
    void FormClose(QObject *sender, TCloseAction &acao) override;
    virtual void LocalizActionExecute(QObject *sender);
    /** LocalizAction is enabled exactly when there is a text to look for. */
    void FecharActionUpdate(QObject *sender) override;
    virtual void DirecRadioGroupClick(QObject *sender);

private:
    ITelaComGrade *Tela() const;
    int LinhaFinal(int registros) const;
    bool PerguntarOutraDirecao();
    int LinhaQueConfere(const TStringGrid &grade, int registros) const;
    int AndarAteConferir(TStringGrid &grade, int registros) const;
};

/** The one instance of the process; null outside the life of TFicha. */
extern TLocalizBasF *LocalizBasF;

} // namespace ficha
