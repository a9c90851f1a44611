#pragma once

#include "platform/core/Criar.h"
#include "platform/core/TColor.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class QEventLoop;
class QPushButton;
class QMdiSubWindow;

namespace ficha
{

/** What becomes of a form that closes. */
enum TCloseAction {
    caNone,     /**< stays open */
    caHide,     /**< is hidden, lives on */
    caFree,     /**< is hidden and destroyed when the event loop comes round */
    caMinimize, /**< is minimised */
};

/** Results of a modal form; 0 keeps it open. */
enum TModalResult : int {
    mrNone = 0,
    mrOk = 1,
    mrCancel = 2,
    mrAbort = 3,
    mrRetry = 4,
    mrIgnore = 5,
    mrYes = 6,
    mrNo = 7,
    mrAll = 8,
};

/**
 * The toolkit's form: a window whose look comes from layouts, one per class of its chain. It works
 * as a window of its own, as a modal dialog, as a tool window that stays on top, and inside a
 * QMdiSubWindow.
 *
 * Made by Criar<T>(owner); destroyed with its owner, by Release(), or by closing with caFree (a
 * form inside a sub window takes the sub window along). Its object name is the class name without
 * the T (TClientesF: "ClientesF") unless it has one.
 *
 * The events are virtual handlers; where Qt calls them they run Protegido. The sender is the form.
 *
 * A class that replaces FormDestroy calls Destruindo() first in its own destructor.
 */
class TForm : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(BorderStyle borderStyle READ GetBorderStyle WRITE SetBorderStyle)
    Q_PROPERTY(bool stayOnTop READ GetStayOnTop WRITE SetStayOnTop)
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    enum BorderStyle {
        bsNone,        /**< no frame, no title */
        bsSingle,      /**< a fixed size */
        bsSizeable,    /**< the ordinary window */
        bsDialog,      /**< a fixed size, only a close button */
        bsToolWindow,  /**< a small title, a fixed size */
        bsSizeToolWin, /**< a small title */
    };
    Q_ENUM(BorderStyle)

    explicit TForm(TChave);
    ~TForm() override;

    /** Takes the owner, loads the layouts of the whole chain, fetches the components, and runs
     * FormCreate last; what FormCreate raises goes to the caller. The owner may be null. */
    virtual void Create(QWidget *owner);

    QString GetCaption() const { return windowTitle(); }
    void SetCaption(const QString &texto);
    BorderStyle GetBorderStyle() const { return borda; }
    void SetBorderStyle(BorderStyle v);
    bool GetStayOnTop() const { return sobreTudo; }
    void SetStayOnTop(bool v);
    /** The background. */
    TColor GetColor() const;
    void SetColor(TColor cor);
    int GetColorInt() const { return int(GetColor().valor); }
    void SetColorInt(int cor) { SetColor(TColor(std::uint32_t(cor))); }

    /** Shows the form (with its sub window) and makes it the active one. */
    void Show();
    void Hide();
    /**
     * Asks FormCloseQuery and, when it allows, runs FormClose and does what that decided. Answers
     * whether the form closed (hidden, to be freed). A modal form ends with mrCancel instead.
     * A failing FormCloseQuery keeps the form open; a failing FormClose does not.
     */
    bool Close();
    /** Hides the form and destroys it (with its sub window) when the event loop comes round. */
    void Release();

    /**
     * Shows the form modally and answers its modal result, mrCancel when it was closed or
     * destroyed meanwhile. A result other than 0 asks FormCloseQuery and FormClose before the form
     * ends; a refusal puts the result back to 0 and the form stays.
     */
    int ShowModal();
    bool EhModal() const { return laco != nullptr; }
    int GetModalResult() const { return resultado; }
    void SetModalResult(int valor);

    /** The control that counts as active in this form; null when there is none yet. */
    QWidget *ActiveControl() const;
    /** Gives the focus to a control of the form, now or when the form becomes active. */
    void SetActiveControl(QWidget *controle);
    /**
     * Gives the focus to the next control (or the one before) in tab order that can take it. A
     * control that holds others is left as a whole. Wraps around. Answers false when there is no
     * other control.
     */
    bool SelectNext(QWidget *controle, bool paraFrente = true);

    /** Presses the default button (Enter) or the cancel button (Esc); false when there is none. */
    bool ApertarDefault();
    bool ApertarCancel();

    /** The sub window that holds the form; null when it is a window of its own. */
    QMdiSubWindow *SubJanela() const;

    /** The living forms in the order of their creation. */
    static const QList<TForm *> &Formularios();
    /** The form that is active or was last, message boxes and other programs aside. */
    static TForm *FormularioAtivo();
    /** The form that holds a control; null when none does. */
    static TForm *FormularioDe(const QWidget *controle);

    int Tag = 0;

protected:
    /** Fetches the children of this class's layout into its members; call the inherited first.
     * Runs once, after the layouts of the whole chain are loaded. */
    virtual void PegarComponentes();

    virtual void FormCreate(QObject *sender);
    /** Each time that the form goes from hidden to shown; minimising is not hiding. */
    virtual void FormShow(QObject *sender);
    virtual void FormHide(QObject *sender);
    /** The form became the active one of the program. Message boxes, pop-ups and other programs
     * do not take this from it; another form does. */
    virtual void FormActivate(QObject *sender);
    virtual void FormDeactivate(QObject *sender);
    virtual void FormCloseQuery(QObject *sender, bool &pode);
    /** acao comes in as caHide (caFree for child windows of the host's bases). */
    virtual void FormClose(QObject *sender, TCloseAction &acao);
    virtual void FormDestroy(QObject *sender);
    virtual void FormResize(QObject *sender);
    /** Runs FormDestroy once, Protegido: first thing in the destructor of a class that has one. */
    void Destruindo() noexcept;

    bool event(QEvent *evento) override;
    void showEvent(QShowEvent *evento) override;
    void hideEvent(QHideEvent *evento) override;
    void closeEvent(QCloseEvent *evento) override;
    void resizeEvent(QResizeEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;

    /** What FormClose starts from. */
    TCloseAction AcaoAoFechar = caHide;

private:
    void AplicarJanela();
    bool CedoParaDestruir();
    bool ConsultarFechamento();
    bool Fechar();
    void VerificarModal();
    bool SubJanelaMuda() const;
    void Aparecer();
    void Sumir();
    void LigarSubJanela();
    void TornarAtivo();
    void VirParaAFrente();
    QList<QWidget *> OrdemDeTabulacao() const;
    QPushButton *BotaoQue(bool cancela) const;

    BorderStyle borda = bsSizeable;
    bool sobreTudo = false;
    bool criado = false, destruido = false, liberado = false, fechando = false;
    bool mostrado = false, ativarAoMostrar = false;
    Qt::WindowStates estadoDaSub;
    int nivelAoLiberar = 0;
    int resultado = mrNone;
    QEventLoop *laco = nullptr;
    QPointer<QMdiSubWindow> ligada;
};

} // namespace ficha
