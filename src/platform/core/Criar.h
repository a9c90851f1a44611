#pragma once

#include <QObject>

#include <memory>
#include <type_traits>
#include <utility>

namespace ficha
{

/**
 * Passkey of creation in two steps.
 *
 * Base classes of this system call virtual operations while they are created. C++ does not
 * dispatch to a descendant from a constructor, so constructors only initialise members and take
 * this key, and the virtual Create() that Criar() runs afterwards does the work. Only Criar() (and
 * the layout loader, for frames placed inside others) can make a key, so that nobody ends up with
 * a half-built object.
 */
class TChave
{
    TChave() = default;

    template <typename T, typename... Args>
    friend auto Criar(Args &&...args);
    template <typename T>
    friend class TFabrica;
};

/**
 * Makes a T: constructs it, then calls its virtual Create(args...).
 *
 * Widgets and other QObjects take their owner as the first argument, which is also handed to the
 * constructor; the result is a plain pointer owned by that owner (by the caller when it is null).
 * Everything else comes back as a std::unique_ptr. When Create() raises, what was built is
 * destroyed and the error goes to the caller.
 */
template <typename T, typename... Args>
auto Criar(Args &&...args)
{
    std::unique_ptr<T> novo(new T(TChave()));
    novo->Create(std::forward<Args>(args)...);
    if constexpr (std::is_base_of_v<QObject, T>)
        return novo.release();
    else
        return novo;
}

} // namespace ficha
