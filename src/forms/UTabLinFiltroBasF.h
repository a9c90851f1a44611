#pragma once

#include "forms/UTabLinearBasF.h"

namespace ficha
{

class TActionList;
class TImageList;
class TScrollBox;
class TSplitter;

/**
 * A maintenance screen whose list has a filter panel at its left: it opens and closes with the
 * strip at its edge, and the bar beside it makes it wider. "Executar" applies the filter, and so
 * does Enter in one of its inputs; "Liberar" empties and applies it.
 *
 * What a descendant supplies: its inputs, placed on ScrollBox1 (above ToolBar4, or with the bar
 * moved below them); PrepararSQL, which writes the query's text from them and runs at every opening
 * of the list; ZerarFiltro, which empties them; and, as it likes, AtualizarFiltroPanel,
 * FiltroStatusLabel and FiltroAtivo, which tell what is in force. All three operations already run
 * before the list is first opened. A PrepararSQL that raises is reported to the host; the list then
 * opens with the text it had, and no edit starts. The code frame of the screen is its first
 * TNumEditBRCodBasFr, the panel's included: a filter by code uses another kind of number frame.
 *
 * Starting an insertion, alteration or deletion releases the filter first. An alteration or
 * deletion acts on the record that was current in the filtered list: it is found again by its whole
 * key, and where it is not in the released list, because somebody deleted it, or where the filtered
 * list was empty, the user is told so and nothing is altered or deleted. What the user has just
 * entered into an input, which is what asked for the alteration, stays. While an edit is open, or
 * being started, neither action does anything.
 *
 * A failure of the database while a filter is applied or released reaches the host's report; the
 * inputs keep what they hold by then, and the next operation reads the list again.
 */
class TTabLinFiltroBasF : public TTabLinearBasF
{
    Q_OBJECT

public:
    explicit TTabLinFiltroBasF(TChave chave);

    void Atualizar() override;
    bool AtivarAlteracao() override;
    bool AtivarInsersao() override;

    /** Says that the panel is open or closed and shows the strip's picture for it; the width is
     * the caller's. A picture file that is missing or damaged is reported once. */
    virtual void SetFiltroAberto(bool aberto);
    /** Writes the query's text from the filter's inputs; here nothing. */
    virtual void PrepararSQL();
    /** Shows the filter's state; here nothing. "Liberar" runs it before the inputs are emptied. */
    virtual void AtualizarFiltroPanel();
    /** Empties the filter's inputs; here nothing. */
    virtual void ZerarFiltro();
    /** Gives the list its title row and at least one row below it. */
    virtual void PrepTit();

    bool FiltroAberto = false;
    /** Pixels of the panel when the strip opens it: 190, set by the creation of every screen. */
    static int FiltroLargura;

    QLabel *FiltroStatusLabel = nullptr;
    TPanel *FiltroPanel = nullptr;
    TPanel *FiltroBotPanel = nullptr;
    QLabel *FiltroImage = nullptr;
    TPanel *Panel3 = nullptr;
    /** Holds the filter's inputs; its own container is Panel3. */
    TScrollBox *ScrollBox1 = nullptr;
    QLabel *FiltroFundoImage = nullptr;
    TToolBar *ToolBar4 = nullptr;
    TSplitter *Splitter1 = nullptr;
    TActionList *FiltroActionList = nullptr;
    TImageList *const FiltroImageList;
    /** "Liberar". */
    TAction *FiltroZerarAct = nullptr;
    /** "Executar". */
    TAction *FitroExecAct = nullptr;

protected:
    void PegarComponentes() override;
    void FormCreate(QObject *sender) override;
    void FormShow(QObject *sender) override;
    void FormClose(QObject *sender, TCloseAction &acao) override;
    void ExclActionExecute(QObject *sender) override;
    virtual void SQLQuery1BeforeOpen(QObject *sender);
    virtual void FiltroZerarActExecute(QObject *sender);
    virtual void FitroExecActExecute(QObject *sender);
    virtual void FiltroImageClick(QObject *sender);
    virtual void FiltroPanelClick(QObject *sender);
    virtual void Splitter1Moved(QObject *sender);

    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    bool LiberarMantendoRegistro();
    int LarguraFechada() const;
    void SetLarguraDoPainel(int pixels);
    void MostrarCorpo();
    void AjustarAlturaDoStatus();
    void PrepararEntradas();
    bool EnterExecuta(QObject *objeto) const;

    /** The filter was released for the edit that is being started. */
    bool liberando = false;
    /** The text with which the list was opened last is the one of the filter. */
    bool textoPreparado = true;
};

} // namespace ficha
