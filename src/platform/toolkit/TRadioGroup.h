#pragma once

#include <QGroupBox>
#include <QPointer>
#include <QStringList>

#include <cstdint>
#include <functional>
#include <vector>

class QButtonGroup;
class QRadioButton;

namespace ficha
{

/**
 * A box of radio buttons, one per item, filled column by column.
 *
 * Selecting another item, by user or program, has the effect of a click: OnClick and Clicked.
 * Selecting what is selected already, or nothing, has none. Arrow keys move inside; Tab enters at
 * the selected button.
 */
class TRadioGroup : public QGroupBox
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(QStringList items READ GetItems WRITE SetItems)
    Q_PROPERTY(int columns READ GetColumns WRITE SetColumns)
    Q_PROPERTY(int itemIndex READ GetItemIndex WRITE SetItemIndex USER true)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TRadioGroup(QWidget *owner = nullptr);

    QString GetCaption() const { return title(); }
    void SetCaption(const QString &texto) { setTitle(texto); }
    QStringList GetItems() const;
    /** Replaces the items, without objects. The selected index stays where it still exists, and
     * no click is announced. */
    void SetItems(const QStringList &textos);
    int AddItem(const QString &texto);
    int Count() const { return int(itens.size()); }
    /** The text of an item; empty for an index outside. */
    QString Item(int i) const;
    int GetColumns() const { return columns; }
    /** 1 or more. */
    void SetColumns(int n);
    /** The selected item, -1 for none. */
    int GetItemIndex() const;
    /** -1 selects nothing, as does an index outside, except that one set before the items come
     * (a layout's order is free) is taken up when they do. */
    void SetItemIndex(int i);

    /** An integer of the caller's, carried by an item; 0 where none was set. */
    std::intptr_t GetObjeto(int i) const;
    void SetObjeto(int i, std::intptr_t objeto);
    /** A control carried by an item, not owned; null where none was set or it was destroyed. */
    QWidget *GetControle(int i) const;
    void SetControle(int i, QWidget *controle);
    /** The button of an item, owned by the group; null for an index outside. */
    QRadioButton *Botao(int i) const;

    std::function<void(QObject *)> OnClick;

    int Tag = 0;

Q_SIGNALS:
    /** With OnClick, right after it. */
    void Clicked();

private:
    struct TItem {
        QRadioButton *Botao = nullptr;
        std::intptr_t Objeto = 0;
        QPointer<QWidget> Controle;
    };
    bool Existe(int i) const { return i >= 0 && i < Count(); }
    QRadioButton *NovoBotao(const QString &texto);
    void Encadear(QRadioButton *botao);
    void Descartar(QRadioButton *botao);
    void Arrumar();
    void Marcar(int i);
    void Marcado();
    void Indicar();

    std::vector<TItem> itens;
    QButtonGroup *grupo;
    int columns = 1;
    int pendente = -1;
    bool calado = false;
};

} // namespace ficha
