#include "platform/edits/TCepEditBR.h"

#include "platform/support/Textos.h"
#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct CepEdit : testing::Test {
    CepEdit() { edit = new TCepEditBR(&janela); }

    TAvisos avisos;
    TJanela janela;
    TCepEditBR *edit;
};

} // namespace

TEST_F(CepEdit, TheTextIsAsLongAsWhatIsTyped)
{
    EXPECT_EQ(edit->GetText().size(), 0);
    QTest::keyClicks(edit, QStringLiteral("01045"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("01045"));
    QTest::keyClicks(edit, QStringLiteral("0"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("01045-0"));
    QTest::keyClicks(edit, QStringLiteral("019"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("01045-001"));
    EXPECT_EQ(edit->GetText().size(), 9);
    EXPECT_EQ(edit->GetMaxLength(), 9);
}

TEST_F(CepEdit, IsShownAsTheTextLibraryMasksIt)
{
    for (int n = 0; n <= 8; ++n) {
        const QString digitos = QStringLiteral("01045001").left(n);
        edit->SetValor(digitos);
        EXPECT_EQ(edit->GetText(), CEPComMasc(digitos));
        EXPECT_EQ(edit->GetValor(), digitos);
        EXPECT_EQ(edit->Valido(), n == 8);
    }
}

TEST_F(CepEdit, KeepsOddValuesAsTheyAreAndGivesNumbersTheirZerosBack)
{
    const auto texto = [&](const Variant &v) {
        edit->SetValorVariant(v);
        return edit->GetText();
    };
    EXPECT_EQ(texto(QStringLiteral("1")), QStringLiteral("1"));
    EXPECT_EQ(texto(QStringLiteral("01.045-001")), QStringLiteral("01045-001"));
    EXPECT_EQ(texto(QStringLiteral("1045001")), QStringLiteral("10450-01"));
    EXPECT_EQ(texto(1045001), QStringLiteral("01045-001"));
    EXPECT_EQ(texto(99999999), QStringLiteral("99999-999"));
    EXPECT_EQ(texto(100000000), QStringLiteral("100000000"));
    EXPECT_EQ(texto(QStringLiteral("010450012")), QStringLiteral("010450012"));
    EXPECT_EQ(texto(QStringLiteral("SW1A 1AA")), QStringLiteral("SW1A 1AA"));
    EXPECT_FALSE(edit->Valido());
}

TEST_F(CepEdit, RefusesAPasteThatIsNone)
{
    ColarTexto(edit, QStringLiteral("CEP: 01.045-001"));
    EXPECT_EQ(edit->GetText(), QString());
    EXPECT_EQ(avisos.textos, QStringList{QStringLiteral("O texto \"CEP: 01.045-001\" não é um CEP "
                                                        "e não foi colado.")});
    ColarTexto(edit, QStringLiteral("01.045-001"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("01045-001"));
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TCepEditBR")));
}
