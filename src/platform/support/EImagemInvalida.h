#pragma once

#include "platform/core/Erros.h"

namespace ficha
{

/** A picture that cannot be shown: damaged, cut short, not of the kind that its name says, or
 * beyond the limits. */
class EImagemInvalida : public EErro
{
public:
    using EErro::EErro;
};

} // namespace ficha
