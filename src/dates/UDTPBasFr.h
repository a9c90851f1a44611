#pragma once

#include "dates/UDateControlBasFr.h"
#include "input/UPedidoDeEdicao.h"
#include "platform/toolkit/TDateTimePicker.h"

namespace ficha
{

/**
 * A date in a picker: typed part by part, stepped with the arrows or picked from a calendar.
 *
 * Typing, Delete and Backspace start an alteration before the date changes, and so does a date
 * that is picked or pasted, when it lands. Arrow and page keys change the date without one (kept
 * as it is): where the record was idle, the alteration has to be started by hand.
 */
class TDTPBasFr : public TDateControlBasFr
{
    Q_OBJECT

public:
    explicit TDTPBasFr(TChave chave);

    void Create(QWidget *owner) override;

    /** Hands the focus on to the picker, where the frame has a parent and both are to be seen. */
    void SetFocus() override;
    /** The picker shows the date. */
    void SetValor(const Variant &valor) override;

    /** The user changed the picker's date: takes it and refreshes the frame. Public, like the next:
     * screens that hold the frame put handlers of their own into the picker and call these. */
    virtual void DateTimePicker1Change(QObject *sender);
    /** A click on the picker: takes its date, without refreshing (kept as it is). */
    virtual void DateTimePicker1Click(QObject *sender);

    TDateTimePicker *DateTimePicker1 = nullptr;

protected:
    void PegarComponentes() override;
    /** Refreshes the frame and hands the focus on to the picker. */
    void FrameEnter(QObject *sender) override;
    /** Delete and Backspace start an alteration. */
    virtual void DateTimePicker1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado);
    /** A typed character does; it is passed on as it is. */
    virtual void DateTimePicker1KeyPress(QObject *sender, QChar &caractere);

private:
    void PegarDoPicker();
    void MudadaPeloUsuario(TDateTimePicker::TMudanca como);

    TPedidoDeEdicao pedido;
};

} // namespace ficha
