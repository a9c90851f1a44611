#pragma once

#include "platform/toolkit/TLabeledEdit.h"

#include <optional>

namespace ficha
{

/**
 * Base of the edits that write separators between the characters that the user types, on every key,
 * with the caret staying at its character.
 *
 * The text is what is shown; a separator stands only between characters, so that an empty edit has
 * an empty text and there are no gaps. Typing inserts; where the number is complete and the caret
 * is not at its end, it types over. Deleting closes up and passes over separators. Separators that
 * are typed are ignored, they come by themselves, and so is what does not fit.
 *
 * A text of the program's is brought into form where it can be, else kept as it is: the user can
 * then only shorten it, until it is one of this edit's, or replace the whole of it. A pasted text
 * may have separators or not; a complete one replaces what stands there, a part is inserted, and
 * what does not fit is refused whole with a warning. Entering by Tab or from the program selects
 * everything.
 */
class TEditFormatadoBR : public TLabeledEdit
{
    Q_OBJECT
    Q_PROPERTY(bool AutoExit READ GetAutoExit WRITE SetAutoExit)

public:
    void SetText(const QString &texto) override;

    /** Typing the last character at the end moves to the next control in tab order. Default
     * false. */
    bool GetAutoExit() const { return autoExit; }
    void SetAutoExit(bool v) { autoExit = v; }

protected:
    explicit TEditFormatadoBR(QWidget *owner);

    /** A text without its separators and in capitals; none where it has characters that no text of
     * this edit's has. */
    virtual std::optional<QString> SemSeparadores(const QString &texto) const = 0;
    /** How characters without separators are shown. */
    virtual QString Formatar(const QString &nu) const = 0;
    /** Whether the edit has places for them, maxLength aside. */
    virtual bool TemLugar(const QString &nu) const = 0;
    /** Whether none is missing. */
    virtual bool Completo(const QString &nu) const = 0;
    /** Whether a text of the program's is brought into form; where not, it is kept as it is. It has
     * no characters but this edit's, and there are places for them. */
    virtual bool FormataDoPrograma(const QString &texto) const = 0;
    /** Why a text was not pasted. */
    virtual QString RecusaDaColagem(const QString &texto) const = 0;

    /** A text for a message, not all of a long one. */
    static QString Citado(const QString &texto);
    /** The characters of the text without its separators; none for one that was kept as it is. */
    std::optional<QString> Nu(const QString &exibido) const;

    bool TemMotor() const override { return true; }
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    TResposta Apagar(const TEstado &antes, TApagar modo) override;
    void AposDigitar() override;
    void TextoDeFora(const QString &texto) override;

    void focusInEvent(QFocusEvent *evento) override;

private:
    bool Cabe(const QString &nu) const;
    std::optional<TEdicao> Encaixar(const TEstado &antes, const QString &novos,
                                    TOrigem origem) const;

    /** What the last key left, when it was typed at the end and nothing is missing. */
    QString completado;
    bool autoExit = false;
};

} // namespace ficha
