#pragma once

#include "base/UDBControlBasFr.h"

class QLabel;

namespace ficha
{

class TListBox;

/**
 * A list of lines with a caption above it; its value is all the lines as one text, joined with
 * "\r\n". The user's clicks and line changes, never the program's, start an alteration.
 */
class TListBoxControlBasFr : public TDBControlBasFr
{
    Q_OBJECT
    Q_PROPERTY(QString Titulo READ GetTitulo WRITE SetTitulo)

public:
    explicit TListBoxControlBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Hands the focus on to the list, when that can be seen. */
    void SetFocus() override;
    Variant GetValor() const override;
    /** Replaces all lines by those of the value's text, untrimmed; Null empties the list. Nothing
     * is selected then. */
    void SetValor(const Variant &valor) override;
    /** Switches the phrases off and empties the list. */
    void Zerar() override;
    /** All lines as one text, trimmed at both ends. */
    QString AsString() const override;
    /** That text, quoted. */
    QString SQLString() const override;

    /** The caption above the list. */
    QString GetTitulo() const;
    void SetTitulo(const QString &texto);

    QLabel *TitLabel = nullptr;
    TListBox *ListBox1 = nullptr;

protected:
    void PegarComponentes() override;
    /** Refreshes the frame, hands the focus on to the list and selects its first line where none
     * is selected. */
    void FrameEnter(QObject *sender) override;
    /** Refreshes the frame and starts an alteration. */
    virtual void ListBox1Click(QObject *sender);
};

} // namespace ficha
