#pragma once

namespace ficha
{

class TDBControlBasFr;

/**
 * Asks for an alteration on behalf of what the user does in a choice, once per gesture.
 *
 * One key can be a press, a drop-down and a change at the same time, and a click a mouse-down and
 * a turn: where the alteration is refused, the user is told once, and the change that lands
 * afterwards gives way to the stored value again.
 */
class TPedidoDeEdicao
{
public:
    /** The frame holds this object and outlives it. */
    explicit TPedidoDeEdicao(TDBControlBasFr *dono) : frame(dono) {}

    /** Before the change lands. */
    void Antes();
    /** The change has landed: asks where nobody did yet, and takes it back where it was refused. */
    void Depois();

private:
    bool Recusado() const;

    TDBControlBasFr *frame;
    /** Refused already in the gesture that is being handled. */
    bool avisado = false;
};

} // namespace ficha
