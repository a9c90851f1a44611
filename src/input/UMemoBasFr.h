#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TMemo;

/**
 * Free text of several lines, which can be required. The memo fills the frame.
 *
 * What is typed loses its accents; what is pasted or dropped keeps them. The user's own edit, never
 * the program's, starts an alteration: typing any of the usual characters, deleting, pasting,
 * dropping. Enter and the rare characters (quotes among them) do not.
 */
class TMemoBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** A blank text is acceptable; otherwise the frame is required. */
    Q_PROPERTY(bool AceitaVazio MEMBER AceitaVazio)

public:
    explicit TMemoBasFr(TChave chave);

    /** Adds phrase 1, "brigatório" (kept as it is), and phrase 2, "Máx. de caracteres". */
    void Create(QWidget *owner) override;

    /** Hands the focus on to the memo, when that can be seen. */
    void SetFocus() override;
    Variant GetValor() const override;
    /** Shows the value's text as it is, not trimmed; Null empties the memo. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and empties the memo. */
    void Zerar() override;
    /** Writes the trimmed text back (announced as a change even where nothing was trimmed), then
     * refuses a repeated value and, where a text is required, a blank one. */
    bool ValorAceitavel() override;
    /** All lines, joined with "\r\n", trimmed. */
    QString AsString() const override;
    /** The trimmed text, quoted; an empty one gives two quotes, never a null. */
    QString SQLString() const override;
    /** The inherited phrase, and "  Obrigatório" where that is so. */
    QString FraseRef() const override;

    bool AceitaVazio = true;
    TMemo *Memo1 = nullptr;

protected:
    void PegarComponentes() override;
    void FrameEnter(QObject *sender) override;
    virtual void Memo1Change(QObject *sender);
    /** Delete and Backspace start an alteration before they land. No key is swallowed. */
    virtual void Memo1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** Takes the accent off, then starts an alteration if the character is one that does. */
    virtual void Memo1KeyPress(QObject *sender, QChar &caractere);

private:
    void Calar();
    void GravarTextoAparado();

    TPedidoDeEdicao pedido{this};
    bool teclaMuda = false;
};

} // namespace ficha
