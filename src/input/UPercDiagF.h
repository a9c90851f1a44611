#pragma once

#include "input/UNumDiagF.h"

namespace ficha
{

/** The same dialog for a percentage with one decimal place. */
class TPercDiagF : public TNumDiagF
{
    Q_OBJECT

public:
    explicit TPercDiagF(TChave chave);
};

} // namespace ficha
