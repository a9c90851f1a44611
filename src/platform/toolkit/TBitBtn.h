#pragma once

#include <QPointer>
#include <QPushButton>

#include <functional>

namespace ficha
{

class TAction;

/**
 * A push button with a picture that can stand for an action, end a modal form, and be the form's
 * default (Enter, property "default" of QPushButton) or cancel button (Esc).
 *
 * A click sets the form's modal result first, then runs the action (or OnClick), which may put the
 * result back to 0.
 */
class TBitBtn : public QPushButton
{
    Q_OBJECT
    Q_MOC_INCLUDE("platform/toolkit/TAction.h")
    Q_PROPERTY(ficha::TAction *action READ GetAction WRITE SetAction)
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(Kind kind READ GetKind WRITE SetKind)
    Q_PROPERTY(int modalResult READ GetModalResult WRITE SetModalResult)
    Q_PROPERTY(bool cancel READ GetCancel WRITE SetCancel)
    Q_PROPERTY(QString glyph READ GetGlyph WRITE SetGlyph)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum Kind {
        bkCustom,
        bkOK,     /**< "OK", default, mrOk, the confirm picture */
        bkCancel, /**< "Cancelar", cancel, mrCancel, the cancel picture */
        bkClose,  /**< "Fechar", the close picture; closes the form */
    };
    Q_ENUM(Kind)

    explicit TBitBtn(QWidget *owner = nullptr);

    /** In a layout: the name of an action of the same form or frame. */
    TAction *GetAction() const;
    void SetAction(TAction *nova);
    QString GetCaption() const { return text(); }
    void SetCaption(const QString &texto) { setText(texto); }
    Kind GetKind() const { return kind; }
    /** Sets caption, picture, result and default or cancel flag that belong to the kind. */
    void SetKind(Kind v);
    int GetModalResult() const { return modalResult; }
    void SetModalResult(int v) { modalResult = v; }
    bool GetCancel() const { return cancel; }
    void SetCancel(bool v) { cancel = v; }
    const QString &GetGlyph() const { return glyph; }
    /** A picture as for TImageList::AddSvg; empty takes it away. */
    void SetGlyph(const QString &figura);

    std::function<void(QObject *)> OnClick;

    int Tag = 0;

private:
    void Clicado();
    void Sincronizar();

    QPointer<TAction> acao;
    QMetaObject::Connection mudanca;
    Kind kind = bkCustom;
    int modalResult = 0;
    bool cancel = false, escondidoPelaAcao = false;
    QString glyph;
};

} // namespace ficha
