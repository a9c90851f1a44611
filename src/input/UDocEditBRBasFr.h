#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TDocEditBR;

/**
 * What the inputs of an identifier of fixed length (CPF, CNPJ, CEP) share. The value is the
 * widget's, a text without separators; the display text is as shown, with them.
 *
 * The user's own edit (typing, pasting, dropping, cutting), never the program's, starts an
 * alteration.
 *
 * A refused value keeps the focus. One that is not complete keeps the caret too, so that whoever
 * goes on typing completes it; a complete one is selected, to be typed over.
 */
class TDocEditBRBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** Nothing typed is acceptable. */
    Q_PROPERTY(bool AceitaVazio MEMBER AceitaVazio)

public:
    explicit TDocEditBRBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Hands the focus on to the edit, when that can be seen. */
    void SetFocus() override;
    /** A text: see TDocEditBR. */
    Variant GetValor() const override;
    /** See TDocEditBR. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and empties the edit. */
    void Zerar() override;
    /** The text as shown. */
    QString AsString() const override;
    /** The value in quotes. */
    QString SQLString() const override;
    /** The inherited phrase, and two blanks where a value is required. */
    QString FraseRef() const override;

    /** Whether the frame or its edit has the input focus. */
    bool Focused() const;

    bool AceitaVazio = true;

protected:
    /** The descendant's edit. */
    virtual TDocEditBR *Edit() const = 0;
    /** For descendants: their edit's change and enter handlers. */
    virtual void EditMudou() = 0;
    virtual void EditEntrou() = 0;

    /** Whether the edit holds a valid identifier, or nothing where AceitaVazio allows it. What is
     * refused switches phrase 1 on and is told to the user, by the identifier's name. */
    bool AceitarDocumento(const QString &documento);

    void FrameExit(QObject *sender) override;

private:
    TPedidoDeEdicao pedido{this};
};

} // namespace ficha
