#pragma once

#include "platform/toolkit/TFrame.h"

#include <QPointer>

#include <array>

class QPainter;
class QTimer;

namespace ficha
{

class TClientManager;
class TColumn;
class TDataSet;
class TDBGrid;
class TImageList;
class TLabeledEdit;
class TPanel;
class TRadioButton;

/**
 * A list that drops under a search edit of the screen and finds a record while the user types.
 *
 * Placed hidden on the form (or page) over whose controls it has to drop, and attached to an edit
 * with PegarBuscaLabeledEdit. A text opens the list and moves it to the first row that matches
 * ("Posicionar") or leaves the matching rows only ("Filtrar"); digits alone are a code that is
 * being typed and keep the list hidden. The keys Up, Down, Page Up and Page Down open the list and
 * then move its row, Alt with Left and Right moves through its columns, Esc hides it, Enter or a
 * double click on a row chooses: OnEnviar is raised, the row chosen being the dataset's current
 * one. The focus stays in the edit all the time, a click in the list selects a row without taking
 * it; leaving the edit for another control hides the list, on whatever row it is.
 *
 * A descendant declares the fields (ClientManager1CreateFields1), lays the grid out
 * (ClientManager1PrepGrid1), puts the rows in (ClientManager1ListUpDate, after the inherited one)
 * and says what a text finds (FiltrarSoDig, PosicionarSoDig, FiltrarTexto, PosicionarTexto).
 *
 * The list is loaded when it is first needed and stays loaded while it is hidden; see
 * TClientManager::Invalidar for rows that changed. Every change of the edit's text counts, also the
 * program's, save those made while a choice is handed over (OnEnviar may write the name of what was
 * chosen into the edit). A screen that fills the edit by itself at other times clears
 * ExibirAoDigitar meanwhile. What the dataset raises goes to the host; a list that could not be
 * loaded is hidden.
 *
 * The edit is not owned. Edit, frame and list may be destroyed in any order.
 */
class TSelectFr : public TFrame
{
    Q_OBJECT
    /** A text of digits alone shows the list too; false at first. */
    Q_PROPERTY(bool SoDigMostraLista MEMBER SoDigMostraLista)
    /** The list is made as wide as the screen less 10 pixels when it is first shown, whatever of
     * that the parent can show; true at first. */
    Q_PROPERTY(bool LarguraTela MEMBER LarguraTela)
    /** A change of the search text shows the list; true at first. */
    Q_PROPERTY(bool ExibirAoDigitar MEMBER ExibirAoDigitar)

public:
    explicit TSelectFr(TChave chave);

    void Create(QWidget *owner) override;

    /** What a text finds, for texts of digits alone and for others; nothing here. Filtering is
     * switched on after the first and third, off before the others. */
    virtual void FiltrarSoDig(const QString &texto);
    /** Where no row has the code the list must be left without rows, else Enter hands over whatever
     * row it stood on; see PosicionarNoCodigo. */
    virtual void PosicionarSoDig(const QString &texto);
    virtual void FiltrarTexto(const QString &texto);
    virtual void PosicionarTexto(const QString &texto);
    /** Events of the list's dataset. They rest from ClientManager1ListUpDate until the rows are
     * there, which counts as an opening. */
    virtual void SQLDataSet1BeforeScroll(TDataSet *dataset);
    virtual void SQLDataSet1AfterOpen(TDataSet *dataset);
    virtual void SQLDataSet1AfterScroll(TDataSet *dataset);
    virtual void BuscaLabeledEditKeyPress(QObject *sender, QChar &key);
    virtual void BuscaLabeledEditClick(QObject *sender);
    /**
     * Shows the list; false when it is visible already. On the first time it is placed under the
     * edit (above it where the parent has no room below) and loaded.
     */
    virtual bool Exibir();
    /** Whether the current row may be chosen; what is refused is refused in silence. */
    virtual bool PodeEnviar();

    /** Attaches the search edit and takes its OnChange and OnClick over. An edit serves one list
     * and a list one edit: the latest attachment counts. Null detaches. */
    void PegarBuscaLabeledEdit(TLabeledEdit *edit);
    /** Posicionar or Filtrar, by the mode that is checked. */
    void Buscar(const QString &texto);
    /** Nothing while the list has no dataset. The empty text shows all rows. */
    void Filtrar(const QString &texto);
    /** Likewise. The empty text moves to the first row. */
    void Posicionar(const QString &texto);

    /** Owned, as is everything below but the edit. */
    TClientManager *ClientManager1 = nullptr;
    TPanel *FundoPanel = nullptr;
    TDBGrid *DBGrid1 = nullptr;
    TPanel *BasePanel = nullptr;
    TPanel *BusPanel = nullptr;
    TRadioButton *PosRadioButton = nullptr;
    TRadioButton *FilRadioButton = nullptr;
    TImageList *ImageList8x8 = nullptr;
    /** Runs out 333 ms after the list was opened or scrolled last: the moment for a descendant's
     * work that should not hold up the keys. */
    QTimer *ScrolllTimer = nullptr;
    /** A component of that name, for hosts that look it up. It transfers nothing. */
    QObject *IdFTP1 = nullptr;
    QPointer<TLabeledEdit> BuscaLabeledEdit;

    /** A row was chosen. The sender is the frame. */
    std::function<void(QObject *)> OnEnviar;
    bool SoDigMostraLista = false;
    bool LarguraTela = true;
    bool ExibirAoDigitar = true;
    /** An Enter is being handled: another one does nothing, and no text is searched for. */
    bool Processando = false;
    /** The list was placed. */
    bool Posicionado = false;
    /** The list was loaded. */
    bool Carregado = false;

protected:
    void PegarComponentes() override;

    virtual void BuscaLabeledEditChange(QObject *sender);
    virtual void BuscaLabeledEditKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void PressionouEnter();
    virtual void PosRadioButtonClick(QObject *sender);
    virtual void FilRadioButtonClick(QObject *sender);
    /** The grid never keeps the focus. */
    virtual void DBGrid1Enter(QObject *sender);
    virtual void DBGrid1TitleClick(TColumn *column);
    virtual void DBGrid1DrawColumnCell(QObject *sender, QPainter &p, const QRect &rect, int dataCol,
                                       TColumn *column, unsigned state);
    /** Chooses. */
    virtual void DBGrid1DblClick(QObject *sender);
    virtual void ClientManager1CreateFields1(QObject *sender);
    virtual void ClientManager1PrepGrid1(QObject *sender);
    virtual void ClientManager1ListUpDate(QObject *sender);
    virtual void ScrolllTimerTimer(QObject *sender);

    /** Bodies for the hooks of a descendant, fast enough for every key in long lists. The row with
     * that code, a number or a text; without one the list is left empty, so that Enter finds
     * nothing. */
    void PosicionarNoCodigo(const QString &campo, const QString &texto);
    /** The first row, in the order shown, whose field begins with the text, neither case nor
     * accents counting. The row stays where there is none. */
    void PosicionarNoInicio(const QString &campo, const QString &texto);
    /** The rows with the text somewhere in one of the fields (named "a;b"), compared likewise. */
    void FiltrarContendo(const QString &campos, const QString &texto);

private:
    class TLigacao;

    void CriarLista();
    void LigarGrade();
    void LigarDataSet();
    void CarregarUmaVez();
    void PorNoLugar();
    void MudarModo(void (TSelectFr::*modo)(const QString &));
    void FocarBusca();
    void SaiuDaBusca();
    void Enviar();
    bool TemDataSet() const;
    bool TemLinhas() const;
    QString TextoDaBusca() const;

    std::array<QMetaObject::Connection, 3> ligacoesDaLista;
};

} // namespace ficha
