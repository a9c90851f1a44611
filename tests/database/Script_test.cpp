#include "platform/database/Script.h"

using namespace ficha;

namespace
{

QStringList Comandos(const QString &script)
{
    QStringList textos;
    for (const TComandoDoScript &comando : SepararScript(script))
        textos << comando.texto;
    return textos;
}

} // namespace

TEST(Script, SplitsAtSemicolonsAndNeedsNoneAtTheEnd)
{
    EXPECT_EQ(Comandos(QStringLiteral(" select 1;\n\n select 2 ")),
              QStringList({QStringLiteral("select 1"), QStringLiteral("select 2")}));
    EXPECT_TRUE(Comandos(QStringLiteral(" ;; \n ; ")).isEmpty());
    EXPECT_TRUE(Comandos(QString()).isEmpty());
}

TEST(Script, SemicolonsInsideQuotesDoNotCount)
{
    EXPECT_EQ(Comandos(QStringLiteral("insert 'a;b''c;' \"x;y\"; q'{d;'e}'; r")),
              QStringList({QStringLiteral("insert 'a;b''c;' \"x;y\""), QStringLiteral("q'{d;'e}'"),
                           QStringLiteral("r")}));
}

TEST(Script, AlternativeQuotesAfterAWordAreOrdinaryOnes)
{
    EXPECT_EQ(Comandos(QStringLiteral("select uniq'(;'; b")),
              QStringList({QStringLiteral("select uniq'(;'"), QStringLiteral("b")}));
}

TEST(Script, CommentsAreLeftOutAlsoWithQuotesAndSemicolonsInThem)
{
    EXPECT_EQ(Comandos(QStringLiteral("-- isn't; one\na /* it's; */ b; -- c;\n/* d; */")),
              QStringList({QStringLiteral("a   b")}));
    EXPECT_EQ(Comandos(QStringLiteral("a '-- /* text' b;")),
              QStringList({QStringLiteral("a '-- /* text' b")}));
    EXPECT_TRUE(Comandos(QStringLiteral("/* never closed; ")).isEmpty());
}

TEST(Script, SetTermChangesTheTerminatorAndBack)
{
    EXPECT_EQ(Comandos(QStringLiteral("a; SET TERM ^ ;\nbegin x; y; end^\nset term ;^\nb; c")),
              QStringList({QStringLiteral("a"), QStringLiteral("begin x; y; end"),
                           QStringLiteral("b"), QStringLiteral("c")}));
    EXPECT_EQ(Comandos(QStringLiteral("set term !! ; a; b!! c!!")),
              QStringList({QStringLiteral("a; b"), QStringLiteral("c")}));
}

TEST(Script, WhatIsOnlyForTheCommandLineToolIsLeftOut)
{
    EXPECT_EQ(Comandos(QStringLiteral("set sql dialect 3; SET NAMES iso8859_1; set autoddl off; "
                                      "commit; COMMIT WORK; a")),
              QStringList({QStringLiteral("a")}));
    EXPECT_EQ(Comandos(QStringLiteral("set generator g to 3;")),
              QStringList({QStringLiteral("set generator g to 3")}));
}

TEST(Script, TellsTheLineOfEachStatement)
{
    const auto comandos = SepararScript(QStringLiteral("-- x\n\na;\n/* \n */ b\nb;\n'q\nq'; c"));
    ASSERT_EQ(comandos.size(), 4U);
    EXPECT_EQ(comandos[0].linha, 3);
    EXPECT_EQ(comandos[1].linha, 5);
    EXPECT_EQ(comandos[2].linha, 7);
    EXPECT_EQ(comandos[3].linha, 8);
}
