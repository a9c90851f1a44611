#include "demo/UCentavos.h"

#include <cmath>

namespace comercial
{

double EmCentavos(double valor)
{
    return std::round(valor * 100) / 100;
}

} // namespace comercial
