#pragma once

namespace ficha
{

/** Makes the short-cuts of actions work in the running program; harmless when repeated. */
void LigarAtalhos();

} // namespace ficha
