#include "platform/edits/TCNPJEditBR.h"

#include "platform/toolkit/Layout.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct CNPJEdit : testing::Test {
    CNPJEdit() { edit = new TCNPJEditBR(&janela); }

    void Teclar(const QString &teclas) { QTest::keyClicks(edit, teclas); }
    QString Visto() const { return edit->GetText().insert(edit->cursorPosition(), u'|'); }

    TAvisos avisos;
    TJanela janela;
    TCNPJEditBR *edit;
};

} // namespace

TEST_F(CNPJEdit, TypedCharactersGetTheirSeparatorsAndBecomeCapitals)
{
    Teclar(QStringLiteral("12abc345000188"));
    EXPECT_EQ(Visto(), QStringLiteral("12.ABC.345/0001-88|"));
    EXPECT_EQ(edit->GetValor(), QStringLiteral("12ABC345000188"));
    EXPECT_EQ(edit->SQLText(), QStringLiteral("'12ABC345000188'"));
    EXPECT_TRUE(edit->Valido());
    EXPECT_EQ(edit->GetMaxLength(), 18);
    edit->Clear();
    Teclar(QStringLiteral("11.017.153/0002-49"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("11.017.153/0002-49"));
    EXPECT_TRUE(edit->Valido());
}

TEST_F(CNPJEdit, CheckDigitsTakeNoLetterAndNoPlaceTakesAnAccentedOne)
{
    Tecla(edit, 0, QStringLiteral("ç"));
    Tecla(edit, 0, QStringLiteral("Á"));
    Teclar(QStringLiteral("12abc3450001"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("12.ABC.345/0001"));
    Teclar(QStringLiteral("x8Y8z"));
    EXPECT_EQ(edit->GetText(), QStringLiteral("12.ABC.345/0001-88"));
    edit->setCursorPosition(16);
    Teclar(QStringLiteral("A"));
    EXPECT_EQ(Visto(), QStringLiteral("12.ABC.345/0001-|88"));
    Teclar(QStringLiteral("7"));
    EXPECT_EQ(Visto(), QStringLiteral("12.ABC.345/0001-7|8"));
}

TEST_F(CNPJEdit, AnInsertionThatWouldPushALetterIntoTheCheckDigitsIsIgnored)
{
    edit->SetText(QStringLiteral("12ABC345000Z"));
    edit->setCursorPosition(0);
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Visto(), QStringLiteral("|12.ABC.345/000Z")) << "nothing is lost";
    edit->SetText(QStringLiteral("12ABC3450001"));
    edit->setCursorPosition(0);
    Teclar(QStringLiteral("9"));
    EXPECT_EQ(Visto(), QStringLiteral("9|1.2AB.C34/5000-1"));
}

TEST_F(CNPJEdit, PastesMaskedAndBareOnes)
{
    for (const char *texto :
         {"12ABC345000188", "12.ABC.345/0001-88", "12abc345000188", " 12.abc.345/0001-88 "}) {
        edit->Clear();
        ColarTexto(edit, QString::fromLatin1(texto));
        EXPECT_EQ(edit->GetText(), QStringLiteral("12.ABC.345/0001-88")) << texto;
    }
    EXPECT_TRUE(avisos.textos.isEmpty());
    for (const char *ruim : {"12ABC34500018A", "12,ABC,345/0001-88", "12ABC3450001888"}) {
        avisos.textos.clear();
        ColarTexto(edit, QString::fromLatin1(ruim));
        EXPECT_EQ(edit->GetText(), QStringLiteral("12.ABC.345/0001-88")) << ruim;
        EXPECT_EQ(avisos.textos,
                  QStringList{QStringLiteral("O texto \"") + QString::fromLatin1(ruim) +
                              QStringLiteral("\" não é um CNPJ e não foi "
                                             "colado.")});
    }
}

TEST_F(CNPJEdit, AnyVariantGivesAText)
{
    const auto texto = [&](const Variant &v) {
        edit->SetValorVariant(v);
        return edit->GetText();
    };
    EXPECT_EQ(texto(QStringLiteral("12abc345000188")), QStringLiteral("12.ABC.345/0001-88"));
    EXPECT_EQ(texto(1838723000127.0), QStringLiteral("01.838.723/0001-27"));
    EXPECT_EQ(texto(11017153000249.0), QStringLiteral("11.017.153/0002-49"));
    EXPECT_EQ(texto(Null), QString());
    EXPECT_EQ(texto(QStringLiteral("ISENTO DE CNPJ!")), QStringLiteral("ISENTO DE CNPJ!"));
}

TEST_F(CNPJEdit, ValidOnesAreThoseWithTheirCheckDigits)
{
    for (const char *bom : {"11017153000249", "B1222333000103", "E1222333000174"}) {
        edit->SetText(QString::fromLatin1(bom));
        EXPECT_TRUE(edit->Valido()) << bom;
    }
    for (const char *ruim : {"", "1101715300024", "53797980000179", "00000000000000",
                             "AA345678000199", "52998224725"}) {
        edit->SetText(QString::fromLatin1(ruim));
        EXPECT_FALSE(edit->Valido()) << ruim;
    }
    EXPECT_TRUE(ClassesRegistradas().contains(QStringLiteral("TCNPJEditBR")));
}
