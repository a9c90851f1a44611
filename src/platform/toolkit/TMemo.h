#pragma once

#include "platform/core/TColor.h"

#include <QPlainTextEdit>

#include <functional>

namespace ficha
{

/**
 * A multi-line edit of plain text.
 *
 * Tab leaves it. Only plain text is pasted. The gate of TCustomEdit holds here too: a character
 * that ISO8859_1 cannot hold is refused with one warning, a paste that has one is refused whole.
 *
 * Every change of the text, the program's too, emits textChanged and calls OnChange once; the
 * user's (keys, input methods, pasting, dropping, the menu) emits UserChanged first.
 */
class TMemo : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString text READ GetText WRITE SetText NOTIFY textChanged USER true)
    Q_PROPERTY(int maxLength READ GetMaxLength WRITE SetMaxLength)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int fontColor READ GetFontColorInt WRITE SetFontColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TMemo(QWidget *owner = nullptr);

    /** All lines, joined with "\r\n". */
    QString GetText() const;
    /** Takes "\r\n", "\n" and "\r" as line breaks; not limited by maxLength. The caret goes to the
     * beginning, the undo history starts anew. */
    void SetText(const QString &texto);
    void Clear() { SetText(QString()); }
    /** The names of QPlainTextEdit, with the meaning of SetText and Clear. */
    void setPlainText(const QString &texto) { SetText(texto); }
    void clear() { Clear(); }
    QStringList GetLinhas() const;
    void SetLinhas(const QStringList &linhas);

    /** The length of GetText, at no cost: a line break counts as two characters. */
    int GetTamanho() const;
    /** Length that the user may reach, counted as GetTamanho does; 0 is no limit. Typing beyond it
     * is ignored, a pasted text is cut to what fits. */
    int GetMaxLength() const { return maxLength; }
    void SetMaxLength(int n) { maxLength = n > 0 ? n : 0; }

    /** Background. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }
    TColor GetFontColor() const;
    void SetFontColor(TColor cor);
    int GetFontColorInt() const { return int(GetFontColor().valor); }
    void SetFontColorInt(int cor) { SetFontColor(TColor(std::uint32_t(cor))); }

    /** The text changed, by program or user. */
    std::function<void(QObject *)> OnChange;
    /** Runs on a text that the user pastes or drops, lines ended by "\n", before the memo looks
     * whether it can take it; may change it. An error refuses the text. */
    std::function<void(QString &texto)> OnPaste;

    int Tag = 0;

Q_SIGNALS:
    /** The user changed the text; the text is the new one already. */
    void UserChanged();

protected:
    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void mouseMoveEvent(QMouseEvent *evento) override;
    void dropEvent(QDropEvent *evento) override;
    void contextMenuEvent(QContextMenuEvent *evento) override;
    bool canInsertFromMimeData(const QMimeData *dados) const override;
    void insertFromMimeData(const QMimeData *dados) override;

private:
    template <typename F>
    void PeloUsuario(F &&f);
    void Teclar(QKeyEvent *evento);
    int Espaco() const;
    QString Cortar(const QString &texto) const;
    bool Recusar(const QString &texto);

    int maxLength = 0;
    /** The user's input is being taken in; what changes now is the user's. */
    bool doUsuario = false;
    bool soltando = false;
    bool soltandoDaqui = false;
};

} // namespace ficha
