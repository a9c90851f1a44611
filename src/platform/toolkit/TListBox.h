#pragma once

#include "platform/core/TColor.h"

#include <QListWidget>
#include <QStringList>

#include <cstdint>
#include <functional>

namespace ficha
{

/**
 * A list of lines, at most one of them selected.
 *
 * OnClick runs when the user clicks a line, the selected one too, or selects another with the
 * keyboard; never for the program's own selecting.
 */
class TListBox : public QListWidget
{
    Q_OBJECT
    Q_PROPERTY(QStringList items READ GetItems WRITE SetItems)
    Q_PROPERTY(int itemIndex READ GetItemIndex WRITE SetItemIndex USER true)
    Q_PROPERTY(int itemHeight READ GetItemHeight WRITE SetItemHeight)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TListBox(QWidget *owner = nullptr);

    QStringList GetItems() const;
    void SetItems(const QStringList &linhas);
    /** All lines, joined with "\r\n". */
    QString GetText() const;
    /** Replaces all lines by those of a text, split at its line breaks ("\r\n", "\n" or "\r"); a
     * break at the very end adds no empty line. Nothing is selected. */
    void SetText(const QString &texto);
    int Count() const { return count(); }
    /** Appends and answers the index of the new line. */
    int AddItem(const QString &texto, std::intptr_t objeto = 0);
    void Clear() { clear(); }
    /** The text of a line; empty for an index outside. */
    QString Item(int i) const;
    void SetItem(int i, const QString &texto);
    std::intptr_t GetObjeto(int i) const;
    void SetObjeto(int i, std::intptr_t objeto);
    /** First line with exactly this text, letter case aside; -1 when there is none. */
    int IndexOf(const QString &texto) const;
    /** The selected line, -1 for none. */
    int GetItemIndex() const;
    void SetItemIndex(int i);

    /** Height of a row, pixels; 0 lets the font decide. */
    int GetItemHeight() const { return itemHeight; }
    void SetItemHeight(int pixels);
    /** Background. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }

    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;

private:
    int itemHeight = 0;
    /** A line was clicked by the release under way. */
    bool clicada = false;
};

} // namespace ficha
