#pragma once

#include "base/UDBControlBasFr.h"
#include "input/UPedidoDeEdicao.h"

class QLabel;

namespace ficha
{

class TComboBox;

/**
 * A choice out of a drop-down list, with a caption above it. Required until a screen says
 * otherwise. Free text never survives leaving the frame.
 *
 * The base shows and checks the choice only; its value is the contract's (the integer 0), its SQL
 * literal the bare text. What the user types, picks or opens, never what the program writes,
 * starts an alteration.
 */
class TComboBoxBasFr : public TDBControlBasFr
{
    Q_OBJECT
    /** No choice at all is acceptable; otherwise the frame is required. */
    Q_PROPERTY(bool AceitaVazio MEMBER AceitaVazio)
    Q_PROPERTY(QString Titulo READ GetTitulo WRITE SetTitulo)

public:
    explicit TComboBoxBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Hands the focus on to the list. */
    void SetFocus() override;
    /** Switches the phrases off and selects the first item without an object; nothing where every
     * item carries one. */
    void Zerar() override;
    /** Refuses a repeated value and, where a choice is required, none. A refusal puts the focus
     * into the list. */
    bool ValorAceitavel() override;
    /** The text shown, trimmed. */
    QString AsString() const override;
    /** The inherited phrase and " Escolha um item", bound or not. */
    QString FraseRef() const override;

    /** The caption above the list. */
    QString GetTitulo() const;
    void SetTitulo(const QString &texto);

    bool AceitaVazio = false;
    QLabel *TitLabel = nullptr;
    TComboBox *ComboBox1 = nullptr;

protected:
    void PegarComponentes() override;
    /** The first item with this object; -1 when there is none. */
    virtual int ItemDoObjeto(std::intptr_t objeto) const;
    /** Refreshes the frame and hands the focus on to the list. */
    void FrameEnter(QObject *sender) override;
    /**
     * Selects the item whose text was typed, letter case aside, or empties a text that is no
     * item's; then the inherited exit. Where several items have the text, the one that is selected
     * already stays, else the first is taken.
     */
    void FrameExit(QObject *sender) override;
    virtual void ComboBox1Change(QObject *sender);
    virtual void ComboBox1DropDown(QObject *sender);
    virtual void ComboBox1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    virtual void ComboBox1KeyPress(QObject *sender, QChar &caractere);

private:
    void FocarLista();
    int ItemDoTexto() const;

    TPedidoDeEdicao pedido;
};

} // namespace ficha
