#pragma once

#include "platform/toolkit/TCustomEdit.h"
#include "platform/toolkit/TMascara.h"

namespace ficha
{

/**
 * An edit with an edit mask (see TMascara); without a mask it is a plain edit.
 *
 * The text (GetText) follows the mask's literal rule, the shown text (GetEditText) has literals and
 * blanks. Text set by the program is kept whole: what is longer than the mask is shown behind it
 * ("01/02/2003" in "99/99/99"), its letters a little closer where the edit is too narrow for them;
 * what does not fit its places at all is shown as it is, and the user
 * can only delete from it or type over the whole of it.
 *
 * Typing fills the place at the caret, whatever it holds, and passes over literals; a literal typed
 * moves behind the next one of its kind. Backspace and Delete empty places; nothing shifts. A
 * pasted text may have its literals or not; one that does not fit is refused whole with a warning.
 * maxLength does not bind where there is a mask. Entering other than by a click, and without
 * selecting everything, puts the caret into the first empty place, or the first of all where none
 * is empty.
 */
class TCustomMaskEdit : public TCustomEdit
{
    Q_OBJECT
    Q_PROPERTY(QString editMask READ GetEditMask WRITE SetEditMask)

public:
    explicit TCustomMaskEdit(QWidget *owner = nullptr);

    QString GetText() const override;
    void SetText(const QString &texto) override;
    /** As shown: literals and blanks included. */
    QString GetEditText() const { return TextoExibido(); }
    const QString &GetEditMask() const { return editMask; }
    /** The text stays and is fitted to the new mask. */
    void SetEditMask(const QString &mascara);
    bool IsMasked() const { return !mascara.Vazia(); }
    /** Nothing is filled in. */
    bool IsEmpty() const;
    /** Every required place of the mask is filled. */
    bool IsComplete() const;
    const TMascara &Mascara() const { return mascara; }

protected:
    bool TemMotor() const override { return IsMasked(); }
    TResposta Digitar(const TEstado &antes, const QString &texto, TOrigem origem) override;
    TResposta Apagar(const TEstado &antes, TApagar modo) override;
    void TextoDeFora(const QString &texto) override;

    void keyPressEvent(QKeyEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;
    void mouseReleaseEvent(QMouseEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;

private:
    void Apertar();
    void Esvaziar(TEdicao &edicao, int inicio, int fim) const;
    bool DigitarUm(TEdicao &edicao, QChar c) const;
    bool ColarEm(TEdicao &edicao, const QString &texto) const;
    TResposta Livre(const TEstado &antes, TApagar modo) const;

    TMascara mascara;
    QString editMask;
};

} // namespace ficha
