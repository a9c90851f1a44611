#pragma once

#include "forms/UTabBasF.h"

namespace ficha
{

/**
 * A table screen in a picture frame: Panel1 is hidden, the descendant's controls go on Panel5. No
 * behaviour of its own.
 */
class TTabLinBasF : public TTabBasF
{
    Q_OBJECT

public:
    explicit TTabLinBasF(TChave chave);

    /** The framed client area. */
    TPanel *Panel5 = nullptr;

protected:
    void PegarComponentes() override;
};

} // namespace ficha
