#pragma once

#include <QFrame>
#include <QPointer>

namespace ficha
{

/**
 * A page of controls that may be higher than the room it has. It fills its container, and where
 * what it holds does not fit, it is moved up and down in it: by the mouse wheel, and by itself when
 * a control that cannot be seen gets the focus. There are no scroll bars.
 *
 * Its parent must be a container of its own. Controls that let the mouse through (a background
 * picture) are no reason to grow.
 */
class TScrollBox : public QFrame
{
    Q_OBJECT
    Q_PROPERTY(int color READ GetColorInt WRITE SetColorInt)
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TScrollBox(QWidget *owner = nullptr);

    /** 0x00BBGGRR. */
    int GetColorInt() const;
    void SetColorInt(int cor);

    /** Pixels by which the page is moved up; from 0 to what does not fit. */
    int GetPosition() const { return posicao; }
    void SetPosition(int pixels);
    /** Brings a control on the page into view, its top first. */
    void Mostrar(const QWidget *controle);

    int Tag = 0;

protected:
    bool event(QEvent *evento) override;
    bool eventFilter(QObject *objeto, QEvent *evento) override;
    void wheelEvent(QWheelEvent *evento) override;

private:
    int AlturaDoConteudo() const;
    void Ajustar();
    void AgendarAjuste();

    QPointer<QWidget> conteiner;
    int posicao = 0;
    bool agendado = false;
};

} // namespace ficha
