#include "platform/hostforms/TChildMDIBasF.h"
#include "platform/hostforms/TDiagBasF.h"
#include "platform/hostforms/TDiagBitBtnBasF.h"
#include "platform/hostforms/TDiagMontCalendarBasF.h"
#include "platform/hostforms/TPrincipalMDIF.h"
#include "support/Layouts.h"

#include <memory>

using namespace ficha;
using testes::ConfereLayout;

namespace
{

template <typename T>
testing::AssertionResult Confere(const char *nome)
{
    const std::unique_ptr<T> form(Criar<T>(nullptr));
    return ConfereLayout(form.get(), QLatin1String(nome));
}

} // namespace

TEST(LayoutsDosFormularios, AreWhatTheyWere)
{
    EXPECT_TRUE(Confere<TBasF>("TBasF"));
    EXPECT_TRUE(Confere<TChildMDIBasF>("TChildMDIBasF"));
    EXPECT_TRUE(Confere<TDiagBasF>("TDiagBasF"));
    EXPECT_TRUE(Confere<TDiagBitBtnBasF>("TDiagBitBtnBasF"));
}
