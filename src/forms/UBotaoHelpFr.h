#pragma once

#include "forms/UBotaoFr.h"

namespace ficha
{

/** The picture button with a help symbol. */
class TBotaoHelpFr : public TBotaoFr
{
    Q_OBJECT

public:
    explicit TBotaoHelpFr(TChave chave);
};

} // namespace ficha
