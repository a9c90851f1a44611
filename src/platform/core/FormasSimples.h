#pragma once

namespace ficha
{

/**
 * Whether work on lists is done in its simple form: every row that is walked over is read into all
 * fields and, where the walk shows its rows, shown in the inputs; every key is rendered in full;
 * every step of a search moves the list. Off at first: what nobody gets to see is left out.
 *
 * The state after an operation is the same both ways, which is what this switch is for: tests run
 * each operation both ways and compare. It is slow on long lists and nothing for a program to set.
 * Where a hook of a screen looks at what goes on during a walk it sees the difference: reading and
 * showing happen once, for the row that stays, and a row in between that cannot be shown raises
 * nothing.
 */
bool FormasSimples();
void SetFormasSimples(bool simples);

/** The simple forms while it lives. */
class TFormasSimples
{
public:
    explicit TFormasSimples(bool simples = true) : antes(FormasSimples())
    {
        SetFormasSimples(simples);
    }
    ~TFormasSimples() { SetFormasSimples(antes); }
    TFormasSimples(const TFormasSimples &) = delete;
    TFormasSimples &operator=(const TFormasSimples &) = delete;

private:
    bool antes;
};

} // namespace ficha
