#include "platform/support/Textos.h"

#include <gtest/gtest.h>

#include <limits>

using namespace ficha;

TEST(Textos, SoDigKeepsOnlyTheDigits)
{
    EXPECT_EQ(SoDig(QStringLiteral("158.864.890-70")), QStringLiteral("15886489070"));
    EXPECT_EQ(SoDig(QStringLiteral("sem")), QString());
    EXPECT_EQ(SoDig(QString()), QString());
    EXPECT_EQ(SoDig(QStringLiteral("٣1²")), QStringLiteral("1"))
        << "digits of other scripts are none";
}

TEST(Textos, EhSoDigWantsAtLeastOneDigitAndNothingElse)
{
    EXPECT_TRUE(EhSoDig(QStringLiteral("0123456789")));
    EXPECT_FALSE(EhSoDig(QString()));
    EXPECT_FALSE(EhSoDig(QStringLiteral(" 1")));
    EXPECT_FALSE(EhSoDig(QStringLiteral("12a")));
    EXPECT_FALSE(EhSoDig(QStringLiteral("-1")));
}

TEST(Textos, StrToIntStrReducesATextToAWholeNumber)
{
    const struct {
        const char *texto;
        const char *inteiro;
    } casos[] = {
        {"", "0"},
        {"   ", "0"},
        {"7", "7"},
        {" 7 ", "7"},
        {"007", "7"},
        {"000", "0"},
        {"-5", "-5"},
        {"- 5", "-5"},
        {"+5", "5"},
        {"-", "0"},
        {"-0", "0"},
        {"5-", "5"},
        {"0-5", "5"},
        {"12-3", "123"},
        {"12,50", "12"},
        {",50", "0"},
        {"1.234", "1234"},
        {"R$ 1.234,56", "1234"},
        {"abc", "0"},
        {"12a3", "123"},
        {"-1.234,99", "-1234"},
        {" 1", "1"},
        {"0012", "12"},
        {"100", "100"},
        {"2147483648", "2147483648"},
        {"99999999999999999999", "99999999999999999999"},
    };
    for (const auto &caso : casos) {
        EXPECT_EQ(StrToIntStr(QString::fromUtf8(caso.texto)), QString::fromUtf8(caso.inteiro))
            << "of '" << caso.texto << "'";
    }
}

TEST(Textos, IntToStrZeroFillsUpToTheWidth)
{
    EXPECT_EQ(IntToStrZero(5, 2), QStringLiteral("05"));
    EXPECT_EQ(IntToStrZero(0, 3), QStringLiteral("000"));
    EXPECT_EQ(IntToStrZero(1234, 2), QStringLiteral("1234")) << "a longer number is not cut";
    EXPECT_EQ(IntToStrZero(-5, 3), QStringLiteral("-05"));
    EXPECT_EQ(IntToStrZero(7, 0), QStringLiteral("7"));
    EXPECT_EQ(IntToStrZero(7, -4), QStringLiteral("7"));
    EXPECT_EQ(IntToStrZero(std::numeric_limits<qint64>::min(), 4),
              QStringLiteral("-9223372036854775808"));
}

TEST(Textos, CharSemAcentoGivesThePlainLetterOfEveryPortugueseOne)
{
    const QString acentuadas = QStringLiteral("áàâãéêíóôõúçüÁÀÂÃÉÊÍÓÔÕÚÇÜñÅ");
    const QString simples = QStringLiteral("aaaaeeioooucuAAAAEEIOOOUCUnA");
    ASSERT_EQ(acentuadas.size(), simples.size());
    for (qsizetype i = 0; i < acentuadas.size(); ++i)
        EXPECT_EQ(CharSemAcento(acentuadas[i]), simples[i]) << "at " << i;
}

TEST(Textos, CharSemAcentoLeavesEverythingElse)
{
    for (const QChar c : QStringLiteral("aZ09 ªº°§«»\r\n\bß—“Ω"))
        EXPECT_EQ(CharSemAcento(c), c);
    EXPECT_EQ(CharSemAcento(QChar(13), QString(), true, true), QChar(13));
}

TEST(Textos, CharSemAcentoLeavesExceptionsAndTheCaseThatIsSwitchedOff)
{
    EXPECT_EQ(CharSemAcento(u'ç', QStringLiteral("çÇ"), true, true), QChar(u'ç'));
    EXPECT_EQ(CharSemAcento(u'ã', QStringLiteral("çÇ"), true, true), QChar(u'a'));
    EXPECT_EQ(CharSemAcento(u'ã', QString(), false, true), QChar(u'ã'));
    EXPECT_EQ(CharSemAcento(u'Ã', QString(), false, true), QChar(u'A'));
    EXPECT_EQ(CharSemAcento(u'ã', QString(), true, false), QChar(u'a'));
    EXPECT_EQ(CharSemAcento(u'Ã', QString(), true, false), QChar(u'Ã'));
}

TEST(Textos, CharSemAcentoTwiceIsTheSameAsOnce)
{
    for (char16_t c = 0; c < 0x250; ++c)
        EXPECT_EQ(CharSemAcento(CharSemAcento(c)), CharSemAcento(c)) << int(c);
}

TEST(Textos, CEPComMascUsesTheFirstEightDigits)
{
    EXPECT_EQ(CEPComMasc(QStringLiteral("16015244")), QStringLiteral("16015-244"));
    EXPECT_EQ(CEPComMasc(QStringLiteral("16015-244")), QStringLiteral("16015-244"));
    EXPECT_EQ(CEPComMasc(QStringLiteral("16015244  ")), QStringLiteral("16015-244"));
    EXPECT_EQ(CEPComMasc(QStringLiteral("160152449")), QStringLiteral("16015-244"));
    EXPECT_EQ(CEPComMasc(QStringLiteral("160152")), QStringLiteral("16015-2"));
    EXPECT_EQ(CEPComMasc(QStringLiteral("16015")), QStringLiteral("16015"));
    EXPECT_EQ(CEPComMasc(QString()), QString());
}

TEST(Textos, TextoSemAcentosTakesThemOffEveryLetter)
{
    EXPECT_EQ(TextoSemAcentos(QStringLiteral("Ação É ÀÜ, nº 1 œ")),
              QStringLiteral("Acao E AU, nº 1 œ"));
    EXPECT_EQ(TextoSemAcentos(QString()), QString());
}

TEST(Textos, QuotedStrDoublesTheQuotesInside)
{
    EXPECT_EQ(QuotedStr(QStringLiteral("O'Brien")), QStringLiteral("'O''Brien'"));
    EXPECT_EQ(QuotedStr(QStringLiteral("'")), QStringLiteral("''''"));
    EXPECT_EQ(QuotedStr(QString()), QStringLiteral("''"));
    EXPECT_EQ(QuotedStr(QStringLiteral(" ")), QStringLiteral("' '"));
}

TEST(Textos, MaiusculasASCIILeavesAccentedLettersAlone)
{
    EXPECT_EQ(MaiusculasASCII(QStringLiteral("azAZ09 ção é ß")), QStringLiteral("AZAZ09 çãO é ß"));
}
