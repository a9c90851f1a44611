#pragma once

#include "platform/core/Criar.h"

#include <QFrame>

#include <functional>

namespace ficha
{

/**
 * The toolkit's plain frame: an embeddable panel whose look comes from layouts, one per class of
 * its chain, and that knows when the focus enters and leaves it as a whole.
 *
 * Made by Criar<T>(owner) or placed in a layout; owned by its parent widget.
 */
class TFrame : public QFrame
{
    Q_OBJECT
    /** Free for the screen: 1 marks the first input of a page. */
    Q_PROPERTY(int tag MEMBER Tag)

public:
    explicit TFrame(TChave);

    /** Takes the parent, loads the layouts of the whole chain, fetches the components and hooks
     * enter and exit up. */
    virtual void Create(QWidget *owner);
    /** Gives the frame itself the input focus; descendants hand it on to their input. */
    virtual void SetFocus();

    /** The focus came into the frame from outside. The sender is the frame. */
    std::function<void(QObject *)> OnEnter;
    /** The focus left the frame for another control of the same window. */
    std::function<void(QObject *)> OnExit;

    int Tag = 0;

protected:
    /** Fetches the children of this class's layout into its members; call the inherited first.
     * Runs once, after the layouts of the whole chain are loaded. */
    virtual void PegarComponentes();
};

} // namespace ficha
