#pragma once

#include <functional>
#include <memory>

namespace ficha::testes
{

/**
 * Whether a handler that takes itself out of its event while it runs stays whole until its end.
 * The user's part makes the event happen; one that did not happen answers false too.
 */
template <typename... TParametros, typename F>
bool InteiroAoSair(std::function<void(TParametros...)> &evento, F &&usuario)
{
    const auto vida = std::make_shared<char>();
    bool inteiro = false;
    evento = [de = &evento, certo = &inteiro, testemunha = &vida, copia = vida](TParametros...) {
        // What it holds may be gone once it is out.
        const auto &aindaVivo = *testemunha;
        bool &resposta = *certo;
        *de = nullptr;
        resposta = aindaVivo.use_count() > 1;
    };
    usuario();
    return inteiro;
}

} // namespace ficha::testes
