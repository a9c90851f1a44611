#pragma once

#include "platform/core/TDateTime.h"

#include <QDateEdit>
#include <QPointer>

#include <functional>
#include <memory>

namespace ficha
{

/**
 * A date, dd/mm/yyyy, typed part by part, stepped by keys or picked from a calendar that drops
 * down. It always holds a date; the years are 1 to 9999. Fresh, it stands on today.
 *
 * Digits go to the day, the month and the year in turn: "10032024" needs no other key; a part that
 * can take no more digits is complete ("5" as a month), and "/", "-", "." or "," ends one earlier.
 * What is shown counts at once, as far as it is a date: a day that the month does not have falls to
 * its last one, and comes back when a month or year that has it is typed next (29/02). Two digits
 * of a year are the one of the 80 years before or the 19 after today; one digit or three, and a
 * part that was emptied (Backspace, Delete), leave what was there before. A digit that makes no day
 * or month is ignored.
 *
 * Left, Right, Home and End go to a part. Up and Down step it by one, PgUp and PgDn by ten, days
 * through the end of the month. F4 and Alt+Down open and close the calendar. Tab leaves. The wheel
 * never changes the date.
 *
 * Only the user's changes are announced (OnChange and UserChanged), once each; the program's never.
 */
class TDateTimePicker : public QDateEdit
{
    Q_OBJECT
    Q_PROPERTY(QDate date READ date WRITE setDate USER true)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    /** How the user changed the date. */
    enum TMudanca {
        mdDigitada, /**< keys of digits, Backspace or Delete */
        mdPasso,    /**< arrow and page keys */
        mdEscolha,  /**< picked from the calendar, or pasted */
    };
    Q_ENUM(TMudanca)

    explicit TDateTimePicker(QWidget *owner = nullptr);
    ~TDateTimePicker() override;

    /** At midnight. */
    TDateTime GetDate() const { return TDateTime(date()); }
    /** The time of day is dropped; a day outside the years becomes the nearest inside. Whatever
     * part was being typed is given up. */
    void SetDate(TDateTime dia);
    /** Hides QDateEdit's, which announces. */
    void setDate(QDate dia);

    /** The calendar is open. */
    bool DroppedDown() const;
    void SetDroppedDown(bool aberto);
    /** A text as a date: dd/mm/yyyy, dd/mm/yy or bare digits, or yyyy-mm-dd; one that is none is
     * refused with a warning. The user's command. */
    void Colar(const QString &texto);

    void stepBy(int passos) override;
    QValidator::State validate(QString &texto, int &cursor) const override;

    /** The user changed the date. */
    std::function<void(QObject *)> OnChange;
    /** A left click ended on the field. The arrow that opens the calendar is no part of it. */
    std::function<void(QObject *)> OnClick;
    /** The calendar is about to open. */
    std::function<void(QObject *)> OnDropDown;
    /** The calendar was closed. What was picked is announced after it. */
    std::function<void(QObject *)> OnCloseUp;

    int Tag = 0;

Q_SIGNALS:
    /** With OnChange, right after it. */
    void UserChanged(ficha::TDateTimePicker::TMudanca como);

protected:
    StepEnabled stepEnabled() const override;
    bool focusNextPrevChild(bool seguinte) override;
    bool event(QEvent *evento) override;
    bool eventFilter(QObject *alvo, QEvent *evento) override;
    void keyPressEvent(QKeyEvent *evento) override;
    void inputMethodEvent(QInputMethodEvent *evento) override;
    void mousePressEvent(QMouseEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;
    void focusInEvent(QFocusEvent *evento) override;
    void focusOutEvent(QFocusEvent *evento) override;
    void contextMenuEvent(QContextMenuEvent *evento) override;
    void paintEvent(QPaintEvent *evento) override;

private:
    struct TRascunho;

    bool TeclaDeComando(QKeyEvent *evento);
    bool TeclaDeParte(const QKeyEvent &evento);
    void Digitar(QChar c);
    void DigitarAlgarismo(QChar c);
    void Separador();
    void Apagar(bool anterior);
    void Comecar();
    void Avancar(bool sozinho);
    void Aplicar();
    void Concluir();
    void MostrarRascunho();
    void SelecionarParte(int parte);
    bool Trocar(QDate nova);
    void Anunciar(TMudanca como);
    void Escolhido(QDate dia);
    void MudouPorFora();

    /** What is being typed; none at rest. */
    std::unique_ptr<TRascunho> rascunho;
    QPointer<QWidget> calendario;
    /** The date that everybody knows of. */
    QDate conhecida;
    bool calado = false;
};

} // namespace ficha
