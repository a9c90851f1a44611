#pragma once

#include "platform/toolkit/Layout.h"

#include <QLayout>
#include <QPointer>

namespace ficha
{

/** Lays out the controls that stick to the sides of a container; see Alinhar. */
class TAlinhador : public QLayout
{
    Q_OBJECT

public:
    explicit TAlinhador(QWidget *conteiner);
    ~TAlinhador() override;

    void Por(QWidget *controle, TAlign lado);
    void Tirar(QWidget *controle);

    void addItem(QLayoutItem *item) override;
    int count() const override { return int(itens.size()); }
    QLayoutItem *itemAt(int indice) const override;
    QLayoutItem *takeAt(int indice) override;
    QSize sizeHint() const override;
    QSize minimumSize() const override { return {0, 0}; }
    void setGeometry(const QRect &area) override;

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    struct TItem {
        QLayoutItem *item;
        TAlign lado;
    };
    int IndiceDe(const QWidget *controle) const;
    void Dispor(TAlign lado, QRect &resto);

    std::vector<TItem> itens;
    bool dispondo = false;
};

/** Sides to which a control keeps its distance. */
enum TAncora : unsigned { akEsquerda = 1, akTopo = 2, akDireita = 4, akBase = 8 };

/** Keeps controls at their distance from the sides of a container that is resized. */
class TAncoras : public QObject
{
    Q_OBJECT

public:
    /** Anchors a control in its parent, whose present size is the one it was designed for. */
    static void Ancorar(QWidget *controle, unsigned lados);
    /** Brings the anchored controls of a container up to its size now. */
    static void Aplicar(QWidget *conteiner);

protected:
    bool eventFilter(QObject *objeto, QEvent *evento) override;

private:
    struct TItem {
        QPointer<QWidget> controle;
        unsigned lados;
    };
    explicit TAncoras(QWidget *conteiner);
    static TAncoras *De(QWidget *conteiner);
    void Mover();

    QWidget *conteiner;
    QSize ultimo;
    std::vector<TItem> itens;
};

/** Lays out what is aligned and anchored in a container, and in what that holds, at once: hidden
 * widgets get no resize events before they are shown. */
void ArrumarConteiner(QWidget *conteiner);

} // namespace ficha
