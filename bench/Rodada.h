#pragma once

#include "bench/Bancada.h"

#include <deque>
#include <memory>
#include <vector>

namespace bancada
{

/**
 * Measurements that are compared with each other, taken together: every repetition of one is a
 * round of all of them, one right after the other and each round beginning with another one. What
 * else the machine is doing then slows down both sides of a comparison, however it comes and goes.
 */
class TRodada : public std::enable_shared_from_this<TRodada>
{
public:
    /** f answers the seconds of its work, without what it prepares. */
    void Medir(const QString &nome, std::function<double()> f)
    {
        const std::size_t i = itens.size();
        itens.push_back({std::move(f), {}});
        bancada::Medir(nome, [este = shared_from_this(), i] { return este->Proxima(i); });
    }

private:
    struct TItem {
        std::function<double()> f;
        std::deque<double> prontas;
    };

    TMedida Proxima(std::size_t i)
    {
        if (itens[i].prontas.empty())
            Rodar();
        const double segundos = itens[i].prontas.front();
        itens[i].prontas.pop_front();
        return {segundos, {}};
    }

    void Rodar()
    {
        for (std::size_t n = 0; n < itens.size(); ++n) {
            TItem &item = itens[(primeiro + n) % itens.size()];
            item.prontas.push_back(item.f());
        }
        ++primeiro;
    }

    std::vector<TItem> itens;
    std::size_t primeiro = 0;
};

} // namespace bancada
