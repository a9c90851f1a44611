#pragma once

#include <QLineEdit>
#include <QPointer>
#include <QWidget>

#include <functional>

class QToolButton;

namespace ficha
{

/**
 * A spin button, two arrows one above the other, that steps the number of an edit.
 *
 * A click on an arrow, or the Up and Down keys in the edit, adds or takes Increment from the number
 * in the edit as it stands (its Valor property where the edit has one, else its text) and then
 * takes the result as Position. Setting Position from the program does not write into the edit.
 * A number outside Min..Max steps towards them only. A read-only or disabled edit is not stepped.
 */
class TUpDown : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int min READ GetMin WRITE SetMin)
    Q_PROPERTY(int max READ GetMax WRITE SetMax)
    Q_PROPERTY(int increment READ GetIncrement WRITE SetIncrement)
    Q_PROPERTY(int position READ GetPosition WRITE SetPosition USER true)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TUpDown(QWidget *owner = nullptr);

    /** The edit that is stepped; not owned, null for none. */
    void Associar(QLineEdit *novo);
    QLineEdit *Associado() const { return edit; }

    /** -32768..32767, as are all its numbers; what lies outside is taken as the nearest of these.
     * Defaults: the whole range, steps of 1, position 0. */
    int GetMin() const { return min; }
    void SetMin(int n);
    int GetMax() const { return max; }
    void SetMax(int n);
    int GetIncrement() const { return increment; }
    void SetIncrement(int n);
    int GetPosition() const { return position; }
    /** Kept inside Min..Max. */
    void SetPosition(int n);

    /** One step by the user, up or down. */
    void Passo(bool paraCima);

    /** The user stepped; the edit has its new number. */
    std::function<void(QObject *, bool paraCima)> OnClick;

    QSize sizeHint() const override;

    int Tag = 0;

protected:
    void resizeEvent(QResizeEvent *evento) override;
    bool eventFilter(QObject *alvo, QEvent *evento) override;

private:
    QToolButton *NovoBotao(bool paraCima);
    double NumeroDoEdit() const;
    void EscreverNoEdit(double numero);

    QPointer<QLineEdit> edit;
    QToolButton *cima;
    QToolButton *baixo;
    int min = -32768;
    int max = 32767;
    int increment = 1;
    int position = 0;
};

} // namespace ficha
