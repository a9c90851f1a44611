#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

namespace ficha
{

class TLabeledEdit;

/**
 * Base of the one-line text inputs: an edit with a caption above it, which can be required.
 *
 * The user's own edit (typing, pasting, dropping), never the program's, starts an alteration.
 */
class TLabeledEditBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** A blank text is acceptable; otherwise the frame is required. */
    Q_PROPERTY(bool AceitaVazio MEMBER AceitaVazio)

public:
    explicit TLabeledEditBasFr(TChave chave);

    /** Adds phrase 1, "Obrigatório". */
    void Create(QWidget *owner) override;

    /** Hands the focus on to the edit, when that can be seen. */
    void SetFocus() override;
    /** Switches the phrases off and empties the edit. */
    void Zerar() override;
    /** Writes the trimmed text back (announced as a change even where nothing was trimmed), then
     * refuses a repeated value and, where a text is required, a blank one. */
    bool ValorAceitavel() override;
    /** The inherited phrase, and "  Obrigatório" where that is so. */
    QString FraseRef() const override;
    /** Hook that runs at every change of the text; its answer is ignored. */
    virtual bool TestarMascara();

    /** Whether the frame or its edit has the input focus. */
    bool Focused() const;
    /** VK_END puts the caret after the last character, VK_HOME before the first, both without a
     * selection; other keys do nothing. For screens to call. */
    void Descelecinar(int tecla);

    bool AceitaVazio = true;
    TLabeledEdit *LabeledEdit1 = nullptr;

protected:
    void PegarComponentes() override;
    /** Both enter handlers refresh the frame and hand the focus on to the edit. */
    void FrameEnter(QObject *sender) override;
    void FrameExit(QObject *sender) override;
    virtual void LabeledEdit1Enter(QObject *sender);
    virtual void LabeledEdit1Change(QObject *sender);
    /** Delete and Backspace start an alteration before they land; on a read-only edit they get a
     * warning. No key is swallowed. */
    virtual void LabeledEdit1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);

private:
    void GravarTextoAparado();

    TPedidoDeEdicao pedido{this};
};

} // namespace ficha
