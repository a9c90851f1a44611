#pragma once

#include <QRadioButton>

#include <functional>

namespace ficha
{

/**
 * A radio button; those of one parent exclude each other. Tab stops at the checked one only (at
 * each when none is); the arrows go to the others, and check them.
 *
 * Checking it, by user or program, has the effect of a click: OnClick, once, when the others are
 * unchecked already. Checking what is checked, and being unchecked, have none.
 */
class TRadioButton : public QRadioButton
{
    Q_OBJECT
    Q_PROPERTY(QString caption READ GetCaption WRITE SetCaption)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TRadioButton(QWidget *owner = nullptr);

    QString GetCaption() const { return text(); }
    void SetCaption(const QString &texto) { setText(texto); }
    bool GetChecked() const { return isChecked(); }
    /** False leaves none of the group checked. */
    void SetChecked(bool v);

    std::function<void(QObject *)> OnClick;

    int Tag = 0;

protected:
    bool event(QEvent *evento) override;

private:
    void Agrupar();
    void Indicar();
};

} // namespace ficha
