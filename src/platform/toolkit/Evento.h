#pragma once

#include "platform/core/Servicos.h"

#include <QObject>

#include <functional>
#include <type_traits>
#include <utility>

namespace ficha
{

/**
 * Runs f where an error must not cross the toolkit's own code: what f raises goes to the host's
 * error report and the program goes on. Answers whether f ended without an error.
 */
template <typename F>
bool Protegido(F &&f) noexcept
{
    try {
        std::forward<F>(f)();
        return true;
    } catch (...) {
        ReportarErro(std::current_exception());
        return false;
    }
}

/**
 * Calls a handler that an object keeps for one of its events, Protegido; nothing without one. The
 * handler may set another one in its place or destroy the object (with deleteLater where the
 * toolkit's own code goes on: in a change of a text, the check of a radio button, a painting).
 * What runs is a copy, made without an allocation for captures as plain and small as two pointers;
 * what a handler changes in itself is lost with it.
 * Answers whether it ended without an error.
 */
template <typename... TParametros, typename... TArgs>
bool Disparar(const std::function<void(TParametros...)> &evento, TArgs &&...args) noexcept
{
    return !evento || Protegido([&] {
        const auto handler = evento;
        handler(std::forward<TArgs>(args)...);
    });
}

/** Connects a signal to a handler that runs Protegido; it lives as long as both objects do. */
template <typename TEmissor, typename TSinal, typename F>
QMetaObject::Connection Ligar(const TEmissor *de, TSinal sinal, const QObject *contexto, F handler)
{
    return QObject::connect(de, sinal, contexto,
                            [handler = std::move(handler)](auto &&...args) mutable {
                                Protegido([&] {
                                    if constexpr (std::is_invocable_v<F, decltype(args)...>)
                                        handler(std::forward<decltype(args)>(args)...);
                                    else
                                        handler();
                                });
                            });
}

} // namespace ficha
