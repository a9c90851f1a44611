#pragma once

#include "platform/core/TDateTime.h"

#include <functional>

namespace ficha
{

/** The present moment, local time. The only clock of the library; tests set it. */
TDateTime Agora();
/** Today, at midnight. */
TDateTime Hoje();
/** Replaces the clock; an empty function brings the machine's own back. */
void SetRelogio(std::function<TDateTime()> relogio);

} // namespace ficha
