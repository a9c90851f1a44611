#include "platform/core/Latin1.h"

using namespace ficha;

TEST(Latin1, HoldsEverythingUpToYWithDiaeresis)
{
    QString todos;
    for (int i = 0; i <= 0xFF; ++i)
        todos += QChar(i);
    EXPECT_TRUE(CabeEmLatin1(todos));
    EXPECT_TRUE(CabeEmLatin1(QString()));
}

TEST(Latin1, TellsTheFirstCharacterThatDoesNotFit)
{
    QString invalido = QStringLiteral("antes");
    EXPECT_TRUE(CabeEmLatin1(QStringLiteral("ação"), &invalido));
    EXPECT_EQ(invalido, QStringLiteral("antes"));
    EXPECT_FALSE(CabeEmLatin1(QStringLiteral("a–b€"), &invalido));
    EXPECT_EQ(invalido, QStringLiteral("–"));
    EXPECT_FALSE(CabeEmLatin1(QStringLiteral("x\U0001F600y"), &invalido));
    EXPECT_EQ(invalido, QStringLiteral("\U0001F600"));
    EXPECT_FALSE(CabeEmLatin1(QString(QChar(0xD83D)), &invalido));
    EXPECT_EQ(invalido, QString(QChar(0xD83D)));
}

TEST(Latin1, NamesACharacterByItsCode)
{
    EXPECT_EQ(NomeDoCaractere(QStringLiteral("–")), QStringLiteral("U+2013"));
    EXPECT_EQ(NomeDoCaractere(QStringLiteral("\U0001F600")), QStringLiteral("U+1F600"));
    EXPECT_EQ(NomeDoCaractere(QStringLiteral("é")), QStringLiteral("U+00E9"));
    EXPECT_EQ(NomeDoCaractere(QString()), QString());
}
