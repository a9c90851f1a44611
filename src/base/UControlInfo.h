#pragma once

#include "platform/core/Variant.h"

#include <QPointer>
#include <QWidget>

namespace ficha
{

class TControlBasFr;

/**
 * Gives every input, a value frame or a plain widget, the three operations of the value contract.
 *
 * The kind of the control is looked at once, when it is bound: (1) the edit family, memos and mask
 * edits included; (2) a column-bound value frame; (3) a combo box; (4) anything else, which all
 * operations leave alone. A control that was destroyed counts as none.
 */
class TControlInfo
{
public:
    /** Binds a control, which is not owned; null unbinds. */
    void SetControl(QWidget *controle);
    QWidget *Control() const { return controle; }
    /** The class of the bound control, taken when the binding was made; null before. */
    const QMetaObject *Classe() const { return classe; }
    /** The bound control as a column-bound value frame; null when it is none. */
    TControlBasFr *Frame() const;

    /** Edits and combo boxes: their text; a value frame: its own value; else unassigned. */
    Variant GetValor() const;
    /** Shows a value: trimmed in the edit family, as it is in a combo box. */
    void SetValor(const Variant &valor);
    void Zerar();

private:
    enum class TTipo { Nenhum, Memo, Mascara, MascaraBR, Fone, Edit, Frame, Combo };

    void SetTexto(const QString &texto);
    QString TextoDaMascaraBR(const Variant &valor, const QString &texto) const;

    QPointer<QWidget> controle;
    const QMetaObject *classe = nullptr;
    TTipo tipo = TTipo::Nenhum;
};

} // namespace ficha
