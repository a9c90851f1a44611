#include "platform/core/FormasSimples.h"

namespace ficha
{

namespace
{
bool ligadas = false;
}

bool FormasSimples()
{
    return ligadas;
}

void SetFormasSimples(bool simples)
{
    ligadas = simples;
}

} // namespace ficha
