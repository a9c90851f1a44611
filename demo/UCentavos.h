#pragma once

namespace comercial
{

/** An amount of money rounded to whole centavos, halves away from zero. */
double EmCentavos(double valor);

} // namespace comercial
