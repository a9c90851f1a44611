#pragma once

#include <QFrame>
#include <QPointer>
#include <QToolButton>

#include <functional>

namespace ficha
{

class TAction;
class TImageList;
class TToolBar;

/**
 * A button of a TToolBar. Points to an action, whose caption, picture, hint and state it shows, or
 * has a caption, a picture and an OnClick of its own. Never takes the focus. Hidden while its
 * action is invisible.
 */
class TToolButton : public QToolButton
{
    Q_OBJECT
    Q_MOC_INCLUDE("platform/toolkit/TAction.h")
    Q_PROPERTY(ficha::TAction *action READ GetAction WRITE SetAction)
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(QString hint READ GetHint WRITE SetHint)
    Q_PROPERTY(int imageIndex READ GetImageIndex WRITE SetImageIndex)
    Q_PROPERTY(bool down READ GetDown WRITE SetDown)
    Q_PROPERTY(Style style READ GetStyle WRITE SetStyle)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum Style {
        tbsButton,
        tbsCheck,     /**< a click turns down on and off */
        tbsSeparator, /**< a gap as wide as the button is */
        tbsDivider,   /**< a gap with a line */
    };
    Q_ENUM(Style)

    explicit TToolButton(QWidget *owner = nullptr);

    /** In a layout: the name of an action of the same form or frame. */
    TAction *GetAction() const;
    void SetAction(TAction *nova);
    const QString &GetCaption() const { return caption; }
    void SetCaption(const QString &texto);
    QString GetHint() const { return toolTip(); }
    void SetHint(const QString &texto) { setToolTip(texto); }
    int GetImageIndex() const { return imageIndex; }
    /** Used when there is no action, or the action has none. */
    void SetImageIndex(int indice);
    bool GetDown() const { return isChecked(); }
    /** Pressed look, set by the program; clicks change it in style tbsCheck only. */
    void SetDown(bool v);
    Style GetStyle() const { return style_; }
    void SetStyle(Style v);

    /** A click, when there is no action. */
    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    void nextCheckState() override;
    void paintEvent(QPaintEvent *evento) override;
    bool event(QEvent *evento) override;

private:
    friend class TToolBar;
    void Sincronizar();
    TToolBar *Barra() const;
    QIcon Figura() const;

    QPointer<TAction> acao;
    QMetaObject::Connection mudanca;
    QString caption;
    int imageIndex = -1;
    Style style_ = tbsButton;
    bool escondidoPelaAcao = false;
};

/** A row of buttons of one size, in the order in which they were made. */
class TToolBar : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int buttonWidth READ GetButtonWidth WRITE SetButtonWidth)
    Q_PROPERTY(int buttonHeight READ GetButtonHeight WRITE SetButtonHeight)
    Q_PROPERTY(bool showCaptions READ GetShowCaptions WRITE SetShowCaptions)
    Q_PROPERTY(bool list READ GetList WRITE SetList)
    Q_PROPERTY(bool wrapable READ GetWrapable WRITE SetWrapable)
    Q_PROPERTY(int indent READ GetIndent WRITE SetIndent)
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TToolBar(QWidget *owner = nullptr);

    /** Pixels; 23 at the start. With captions it is the least width, and the width where picture
     * and caption side by side fit it. */
    int GetButtonWidth() const { return buttonWidth; }
    void SetButtonWidth(int pixels);
    /** Pixels; 22 at the start. With captions below the pictures it is the least height. */
    int GetButtonHeight() const { return buttonHeight; }
    void SetButtonHeight(int pixels);
    bool GetShowCaptions() const { return showCaptions; }
    void SetShowCaptions(bool v);
    /** Captions stand beside the pictures, not below. */
    bool GetList() const { return list; }
    void SetList(bool v);
    /** Buttons that do not fit go to a next row. */
    bool GetWrapable() const { return wrapable; }
    void SetWrapable(bool v);
    /** Free pixels before the first button. */
    int GetIndent() const { return indent; }
    void SetIndent(int pixels);
    /** The bar's title, for assistive tools; not painted. */
    QString GetCaption() const { return accessibleName(); }
    void SetCaption(const QString &texto) { setAccessibleName(texto); }
    /** Background, 0x00BBGGRR. */
    int GetColorInt() const;
    void SetColorInt(int cor);

    TImageList *GetImages() const;
    /** The pictures for the buttons' image indices; referred to, not owned. */
    void SetImages(TImageList *lista);
    TImageList *GetDisabledImages() const;
    /** The pictures of disabled buttons; without them the pale look of the others. */
    void SetDisabledImages(TImageList *lista);

    QList<TToolButton *> Buttons() const;
    /** Lays the buttons out now. Happens by itself when the event loop comes round. */
    void Ajustar();

    QSize sizeHint() const override;

    int Tag = 0;

protected:
    bool event(QEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;

private:
    friend class TToolButton;
    void AgendarAjuste();
    void SincronizarTodos();
    static int LarguraLadoALado(const TToolButton *botao);
    QSize TamanhoDe(const TToolButton *botao) const;
    QSize Dispor(int largura, bool mover) const;

    int buttonWidth = 23, buttonHeight = 22, indent = 0;
    bool showCaptions = false, list = false, wrapable = true, ajusteAgendado = false;
    QPointer<TImageList> imagens, desabilitadas;
    QMetaObject::Connection mudanca, mudancaDes;
};

} // namespace ficha
