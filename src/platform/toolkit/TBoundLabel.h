#pragma once

#include <QLabel>
#include <QPointer>

namespace ficha
{

/**
 * The caption of an edit: a label beside it in the same parent, above its left edge, that follows
 * the edit's moves, sizes, visibility, enabled state and parent.
 *
 * The edit makes it and destroys it. While the caption is empty it is hidden. Where the edit leaves
 * too little room above itself, the label starts at the parent's top edge, does without its
 * distance to the edit and is no higher than its letters. It is the edit's buddy:
 * an "&" before a letter makes that letter a shortcut to the edit, and its text is the edit's
 * accessible name.
 */
class TBoundLabel : public QLabel
{
    Q_OBJECT

public:
    explicit TBoundLabel(QWidget *controle);

    /** Hides QLabel's: the label takes its new size at once. */
    void setText(const QString &texto);
    /** Pixels between the label's bottom and the edit's top. */
    int GetEspaco() const { return espaco; }
    void SetEspaco(int pixels);
    /** Puts the label where it belongs. Runs by itself; an edit not shown yet tells of its moves
     * only when it is shown, and this does not wait for that. */
    void Posicionar();
    /** QLabel's, measured once where QLabel measures a plain line three times. */
    QSize sizeHint() const override;

protected:
    bool eventFilter(QObject *alvo, QEvent *evento) override;
    void changeEvent(QEvent *evento) override;

private:
    void Mostrar();

    QPointer<QWidget> controle;
    int espaco = 1;
    /** What was measured last, for the many times that the label is placed anew. */
    struct TMedida {
        QString Texto;
        QFont Fonte;
        int Lado = 0;
        QSize Tamanho;
    };
    mutable TMedida medida;
};

} // namespace ficha
