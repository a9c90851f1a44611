#pragma once

#include "input/ULabeledEditBasFr.h"

class QMouseEvent;

namespace ficha
{

/**
 * Free text on one line, trimmed. While it is as long as the edit's own maximum length, which may
 * be none (0), a phrase says so.
 */
class TLabeledEditTextoBasFr : public TLabeledEditBasFr
{
    Q_OBJECT

public:
    explicit TLabeledEditTextoBasFr(TChave chave);

    /** Adds phrase 2, "Máx. de caracteres". */
    void Create(QWidget *owner) override;

    Variant GetValor() const override;
    /** Shows the value's text, trimmed; Null empties the edit. */
    void SetValor(const Variant &valor) override;
    /** The trimmed text. */
    QString AsString() const override;
    /** The trimmed text, quoted; an empty one gives two quotes, never a null. */
    QString SQLString() const override;

protected:
    void FrameExit(QObject *sender) override;
    /** Does nothing; for descendants. Hears moves without a button, too. */
    virtual void FrameMouseMove(QObject *sender, QMouseEvent *evento);
    void LabeledEdit1Change(QObject *sender) override;
    void LabeledEdit1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado) override;
    /** Does nothing; for descendants, which may replace or swallow (U+0000) the character. */
    virtual void LabeledEdit1KeyPress(QObject *sender, QChar &caractere);

    void mouseMoveEvent(QMouseEvent *evento) override;
};

} // namespace ficha
