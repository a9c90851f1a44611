#include "platform/core/Relogio.h"

namespace ficha
{

namespace
{
std::function<TDateTime()> &RelogioAtual()
{
    static std::function<TDateTime()> relogio;
    return relogio;
}
} // namespace

TDateTime Agora()
{
    const auto &relogio = RelogioAtual();
    return relogio ? relogio() : TDateTime(QDateTime::currentDateTime());
}

TDateTime Hoje()
{
    return Agora().DataInteira();
}

void SetRelogio(std::function<TDateTime()> relogio)
{
    RelogioAtual() = std::move(relogio);
}

} // namespace ficha
