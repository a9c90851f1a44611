#pragma once

#include "platform/toolkit/TRadioGroup.h"
#include "support/Entrada.h"

namespace ficha::testes
{

/** Radio group frames on an active window, with as many options as a test asks for. */
template <typename TFr>
class TOpcoesTest : public TEntradaTest
{
protected:
    /** Shown, "opção 0" selected. */
    TFr *Com(int opcoes)
    {
        auto *fr = Mostrado<TFr>();
        for (int i = 0; i < opcoes; ++i)
            fr->RadioGroup1->AddItem(QStringLiteral("opção %1").arg(i));
        fr->RadioGroup1->SetItemIndex(0);
        QCoreApplication::processEvents();
        return fr;
    }
};

} // namespace ficha::testes
