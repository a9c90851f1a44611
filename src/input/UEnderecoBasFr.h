#pragma once

#include "base/UBasFr.h"
#include "platform/database/TDataSetState.h"

#include <memory>

class QLabel;
class QTimer;

namespace ficha
{

class ITelaManutencao;
class TComboBox;
class TConsultaDoGuia;
class TCustomEdit;
class TLabeledEdit;
class TMaskEdit;

/**
 * A Brazilian postal address: CEP, state, município, bairro, street, number and complement. The
 * lists of states, municípios, bairros and streets follow one another out of a postal-code guide
 * in the database; a complete CEP fills the whole address from it, and choosing a street offers
 * its CEP.
 *
 * Not a value frame: it has no binding, and its Zerar and ValorAceitavel are its own. All texts
 * stand in capitals, items included. A text that is in no list may be typed; while typing, a list
 * is searched whatever the accents of its items. The lists all have the style's single line around
 * them, which is what a flat one, the município's, looks like.
 *
 * The items carry their codes in their object slots: the character of a state, the number of the
 * others. The guide is read on the host's connection, taken at the first reading: without one the
 * lists are empty and everything can still be typed.
 *
 * A failing database reaches the host's report (EDatabaseError where the program itself calls); the
 * list that was being filled is then empty, its text as it was, and is read again when it is
 * entered. The street list and a CEP are read behind the wait panel, which lets other events in:
 * a later reading replaces an earlier one, and the frame may be gone afterwards.
 *
 * While a CEP is typed that will be looked up, the queries of the look-up are prepared, so that
 * leaving the CEP only runs them. They are let go of when it is left, and some seconds after the
 * last key.
 */
class TEnderecoBasFr : public TBasFr
{
    Q_OBJECT
    Q_PROPERTY(bool Cascatear MEMBER Cascatear)
    Q_PROPERTY(bool SemPadrao MEMBER SemPadrao)

public:
    explicit TEnderecoBasFr(TChave chave);
    ~TEnderecoBasFr() override;

    /** Fills the lists of states and of the first state's municípios. A guide that cannot be read
     * is reported and leaves empty lists. */
    void Create(QWidget *owner) override;

    /** Reads the states, selects the first one and fills its municípios. */
    void PrepUFComboBox();
    /** Replace the items by those of a code; nothing is selected then, the text is empty. */
    void PreencherMunComboBox(QChar uf);
    void PreencherBaiComboBox(int mun);
    /** Behind the wait panel. */
    void PreencherLogrComboBox(int bai);
    /** Fills the municípios of the selected state; without one nothing happens. */
    void PrepMun();
    /** The item of a state's code; -1 when there is none. */
    int UFCodToIndex(QChar c) const;

    /**
     * Select the item of a text and run the list's change handler, so that the lists below follow.
     * The text must be the item's, letter case aside. A state that is not in the list changes
     * nothing; a município or bairro that is not is put into its box as it is, in capitals, and the
     * lists below follow that as they do a typed text.
     */
    void UFPegar(const QString &sigla);
    void MunPegar(const QString &nome);
    void BaiPegar(const QString &nome);

    /**
     * While editing or inserting: fills the address of the CEP from the guide, asking first where
     * another one is typed, and sends the focus to the number a moment later. A CEP that the guide
     * does not know changes nothing. Also copies the look-up's statement to the clipboard (kept as
     * it is).
     */
    void PreencheEnderPeloCep();

    /** The host tells the state of its dataset (see TDataSetState): a CEP fills the address only
     * while editing or inserting. */
    void PegarState(int estado);
    /** Enables the frame for true, disables it for false; deliberately so, whatever the name says.
     */
    void PegarReadOnly(bool b);

    /**
     * Empties the address. Without SemPadrao the host's default state and município are selected
     * (the first ones where the guide does not know them) and the bairros filled. Lists below an
     * empty box keep no items.
     */
    void Zerar();
    /** Always true: an address may be incomplete. */
    bool ValorAceitavel() const;
    /**
     * Asks the maintenance screen that holds the frame for an alteration, the texts of the four
     * lists surviving the switch. Also runs by itself when the user types or picks, what was just
     * entered surviving too. A screen that is not browsing, and any other owner, is left alone.
     */
    void Editar();

    /** The user has entered one of the inputs; the lists follow one another only from then on. */
    bool Tocado = false;
    int EstadoDataSet = dsInactive;
    /** The lists follow one another, and a CEP fills them. */
    bool Cascatear = true;
    /** Zerar selects neither state nor município. */
    bool SemPadrao = false;
    /** Leaving the CEP looks it up; off while the frame itself writes it. */
    bool TratarSaidaCEP = true;

    TMaskEdit *CEPMaskEdit = nullptr;
    TComboBox *UFComboBox = nullptr;
    TComboBox *MunComboBox = nullptr;
    TComboBox *BaiComboBox = nullptr;
    TComboBox *LogrComboBox = nullptr;
    TLabeledEdit *NumLabeledEdit = nullptr;
    TLabeledEdit *ComplLabeledEdit = nullptr;
    /** 150 ms, one shot: the focus goes to the number, or back to the CEP. */
    QTimer *NumFocusTimer = nullptr;
    QTimer *CEPFocusTimer = nullptr;
    /** The guide's queries; one line of each is replaced before it is opened. Closed again after
     * each reading. */
    TConsultaDoGuia *UFQ = nullptr;
    TConsultaDoGuia *MunQ = nullptr;
    TConsultaDoGuia *BaiQ = nullptr;
    TConsultaDoGuia *LogrQ = nullptr;
    TConsultaDoGuia *CEPPeloLogrCodQ = nullptr;
    TConsultaDoGuia *TestaCEPQ = nullptr;

protected:
    void PegarComponentes() override;
    virtual void CEPMaskEditEnter(QObject *sender);
    virtual void CEPMaskEditExit(QObject *sender);
    virtual void UFComboBoxChange(QObject *sender);
    virtual void UFComboBoxEnter(QObject *sender);
    virtual void UFComboBoxExit(QObject *sender);
    virtual void UFComboBoxKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void MunComboBoxChange(QObject *sender);
    virtual void MunComboBoxEnter(QObject *sender);
    virtual void MunComboBoxExit(QObject *sender);
    virtual void MunComboBoxKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void BaiComboBoxChange(QObject *sender);
    virtual void BaiComboBoxEnter(QObject *sender);
    virtual void BaiComboBoxExit(QObject *sender);
    virtual void BaiComboBoxKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void LogrComboBoxEnter(QObject *sender);
    virtual void LogrComboBoxExit(QObject *sender);
    virtual void LogrComboBoxKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void NumLabeledEditEnter(QObject *sender);
    virtual void NumLabeledEditExit(QObject *sender);
    virtual void NumLabeledEditKeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void ComplLabeledEditEnter(QObject *sender);
    virtual void ComplLabeledEditExit(QObject *sender);
    /** A character typed into any input: a capital without its accent. */
    virtual void EntradaKeyPress(QObject *sender, QChar &caractere);
    virtual void NumFocusTimerTimer(QObject *sender);
    virtual void CEPFocusTimerTimer(QObject *sender);

private:
    struct TEndereco;
    using TEvento = void (TEnderecoBasFr::*)(QObject *);
    using TTeclaDescida = void (TEnderecoBasFr::*)(QObject *, int &, Qt::KeyboardModifiers);

    void CriarConsultas();
    void LigarEntradas();
    void LigarLista(TComboBox *lista, TEvento mudar, TTeclaDescida descer);
    void LigarEdit(TCustomEdit *edit, TTeclaDescida descer);
    void LigarTeclas(QWidget *entrada, TTeclaDescida descer);
    void LigarFoco(QWidget *entrada, TEvento entrar, TEvento sair);

    template <typename F>
    void Preencher(TComboBox *lista, TConsultaDoGuia *consulta, const QString &codigo, F item);
    void LerMunicipios(QChar uf);
    void LerBairros(int mun);
    bool LerLogradouros(int bai, bool manterTexto);
    void Esvaziar(TComboBox *lista);
    void Limpar(TComboBox *lista);
    TConsultaDoGuia *ConsultaDe(const TComboBox *lista) const;
    QChar UFSelecionada(int i) const;
    void SelecionarPadrao();

    QString CepDoLogradouro(int logr);
    bool PodePreencher() const;
    void CepDigitado();
    void AdiantarConsultas();
    void SoltarConsultas();
    bool LerEnderecoDoCep(const QString &cep, TEndereco &endereco);
    bool AceitaEnderecoDoGuia(const TEndereco &guia) const;
    void MostrarEndereco(const TEndereco &guia);
    void EscreverCep(const QString &cep);

    ITelaManutencao *TelaDona() const;
    bool PedirAlteracao();
    void EditadoNoEdit(TCustomEdit *edit);

    /** Counts the readings of streets, and of CEPs: one that finds another number when it goes on
     * was replaced meanwhile. */
    int leituraLogr = 0;
    int leituraCep = 0;
    /** Preparing waits for the event loop: a key is painted before it. */
    QTimer *AdiantarTimer = nullptr;
    /** Who stops in the middle of a CEP keeps nothing of the database. */
    QTimer *SoltarTimer = nullptr;
    /** As long as this class's part lives: the inputs lose the focus while the frame dies. */
    std::shared_ptr<const char> vida = std::make_shared<const char>();
};

} // namespace ficha
