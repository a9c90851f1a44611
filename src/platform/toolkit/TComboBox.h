#pragma once

#include "platform/core/TColor.h"

#include <QComboBox>
#include <QStringList>

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <vector>

namespace ficha
{

class TComboLineEdit;

/**
 * A drop-down list whose items carry an integer, with an edit (csDropDown) or without
 * (csDropDownList).
 *
 * An item counts as selected while the text is its text: ItemIndex follows what is typed, and is
 * -1 for a text that no item has (letter case aside). What is typed at the end of the text is
 * completed with the first item that begins so, the completion selected, so that the next key
 * types over it; deleting never completes. With ignoraAcentos accents make no difference there:
 * "SAO" is completed to "São Paulo".
 *
 * Only the user's typing and picking announces (OnChange and UserChanged, once per key or pick,
 * and only when text or item changed); the program's writing never does. The wheel over the
 * closed list never changes the value. The edit has the gate of TCustomEdit.
 *
 * A text longer than the edit is shown from its beginning: when the program writes it, when the
 * user picks it (all selected, so that the next key types over it) and after leaving.
 *
 * Made for lists of a hundred thousand items: their texts are read once after each change of the
 * list, and a key searches on from where the last one found something.
 */
class TComboBox : public QComboBox
{
    Q_OBJECT
    Q_PROPERTY(QString text READ GetText WRITE SetText USER true)
    Q_PROPERTY(QStringList items READ GetItems WRITE SetItems)
    Q_PROPERTY(int itemIndex READ GetItemIndex WRITE SetItemIndex)
    Q_PROPERTY(Style comboStyle READ GetStyle WRITE SetStyle)
    Q_PROPERTY(bool autoDropDown READ GetAutoDropDown WRITE SetAutoDropDown)
    Q_PROPERTY(bool autoCloseUp READ GetAutoCloseUp WRITE SetAutoCloseUp)
    Q_PROPERTY(bool autoComplete READ GetAutoComplete WRITE SetAutoComplete)
    Q_PROPERTY(bool ignoraAcentos READ GetIgnoraAcentos WRITE SetIgnoraAcentos)
    Q_PROPERTY(int itemHeight READ GetItemHeight WRITE SetItemHeight)
    Q_PROPERTY(int maxLength READ GetMaxLength WRITE SetMaxLength)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum Style {
        csDropDown,     /**< any text can be typed */
        csDropDownList, /**< only items can be chosen */
    };
    Q_ENUM(Style)

    explicit TComboBox(QWidget *owner = nullptr);

    QString GetText() const;
    /** Any text in csDropDown, kept as it is; the item that has it becomes the selected one. In
     * csDropDownList a text that no item has selects nothing. */
    void SetText(const QString &texto);
    /** The selected item, -1 for none. */
    int GetItemIndex() const;
    /** Selects and shows its text; an index outside selects nothing and empties the text. */
    void SetItemIndex(int i);

    int Count() const { return count(); }
    QStringList GetItems() const;
    /** Replaces the items, without objects; text and selection start empty. */
    void SetItems(const QStringList &textos);
    /** Appends and answers the index of the new item; selection and text stay. */
    int AddItem(const QString &texto, std::intptr_t objeto = 0);
    /** Removes the items and empties the text. */
    void Clear();
    /** The text of an item; empty for an index outside. */
    QString Item(int i) const { return itemText(i); }
    /** The text with the most characters; empty without items. */
    QString ItemMaisLongo() const;
    /** The integer of an item; 0 for an index outside. */
    std::intptr_t GetObjeto(int i) const;
    void SetObjeto(int i, std::intptr_t objeto);
    /** First item with exactly this text, letter case aside; -1 when there is none. */
    int IndexOf(const QString &texto) const;
    /** First item with this text, letter case and accents aside; -1 when there is none. */
    int IndexOfSemAcentos(const QString &texto) const;
    /** First item with this integer; -1 when there is none. */
    int IndexOfObjeto(std::intptr_t objeto) const;

    Style GetStyle() const;
    void SetStyle(Style v);
    /** Typing opens the list. Default false. */
    bool GetAutoDropDown() const { return autoDropDown; }
    void SetAutoDropDown(bool v) { autoDropDown = v; }
    /** The open list closes once the typed text is a whole item and begins no other. Default
     * false. */
    bool GetAutoCloseUp() const { return autoCloseUp; }
    void SetAutoCloseUp(bool v) { autoCloseUp = v; }
    /** Complete while typing. Default true. */
    bool GetAutoComplete() const { return autoComplete; }
    void SetAutoComplete(bool v) { autoComplete = v; }
    /** What is typed finds items whatever their accents. Default false. */
    bool GetIgnoraAcentos() const { return ignoraAcentos; }
    void SetIgnoraAcentos(bool v);
    /** Height of a row of the list, pixels; 0 lets the font decide. */
    int GetItemHeight() const { return itemHeight; }
    void SetItemHeight(int pixels);
    /** The rows of the list are alike: one is measured, not every one, and what is too long is cut
     * at its end. For lists of thousands. Default false. */
    bool GetLinhasIguais() const { return linhasIguais; }
    void SetLinhasIguais(bool v);
    /** Characters that the user may type; 0 is no limit. */
    int GetMaxLength() const { return maxLength; }
    void SetMaxLength(int n);
    /** Background. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }

    /** The list is open. */
    bool DroppedDown() const;
    void SetDroppedDown(bool aberta);
    void SelectAll();

    void setModel(QAbstractItemModel *novo) override;
    /** Of one character and the arrow, whatever the items: the layout gives a combo its width. */
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    /** Calls OnDropDown, then opens the list. */
    void showPopup() override;
    void hidePopup() override;

    /** The user changed the text or picked an item. */
    std::function<void(QObject *)> OnChange;
    /** The list is about to open; the handler may fill it. */
    std::function<void(QObject *)> OnDropDown;
    /** The open list was closed. */
    std::function<void(QObject *)> OnCloseUp;

    int Tag = 0;

Q_SIGNALS:
    /** With OnChange, right after it. */
    void UserChanged();

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;

private:
    friend class TComboLineEdit;
    struct TEstado {
        QString Texto;
        int Indice = -1;
        friend bool operator==(const TEstado &, const TEstado &) = default;
    };
    class TEscopo;

    TEstado Estado() const { return {GetText(), GetItemIndex()}; }
    void MontarEdit();
    void AnunciarSeMudou();
    void Digitado();
    void Completar();
    void MostrarInicio();
    void AcompanharModelo();
    const std::vector<QString> &Textos() const;
    QString Procurado(const QString &texto) const;
    int PrimeiroComecadoPor(const QString &texto) const;
    int ComecadoPor(const QString &texto, int desde) const;
    void AcompanharLista();
    void PrepararLista();
    void AplicarLinhasIguais();
    void DispensarItens() const;
    bool TeclaNaLista(QKeyEvent *evento);

    struct TBusca {
        QString Texto;
        int Achado = -1;
    };

    /** The items' texts, and the last search among them; none after the list changed. */
    mutable std::vector<QString> lidos;
    /** The same as they are searched: without accents where those are to be ignored. */
    mutable std::vector<QString> semAcentos;
    mutable bool lidosVelhos = true;
    mutable std::optional<TBusca> busca;
    std::array<QMetaObject::Connection, 6> doModelo;

    TEstado anunciado;
    mutable int indice = -1;
    mutable bool indiceVelho = true;
    int escopos = 0;
    int itemHeight = 0;
    int maxLength = 0;
    bool autoDropDown = false;
    bool autoCloseUp = false;
    bool autoComplete = true;
    bool ignoraAcentos = false;
    bool linhasIguais = false;
    bool listaPreparada = false;
    mutable bool itensDispensados = false;
};

} // namespace ficha
