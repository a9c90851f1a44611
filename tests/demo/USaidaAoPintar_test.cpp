// The program's own way of saying when it stands painted, which the bench measures its start by.

#include "support/BancoTemp.h"

#include <QProcess>
#include <QTemporaryDir>

#include <chrono>

#include <gtest/gtest.h>

namespace
{

qint64 Agora()
{
    const auto agora = std::chrono::steady_clock::now().time_since_epoch();
    return std::chrono::duration_cast<std::chrono::nanoseconds>(agora).count();
}

/** What the program prints when it is told to end once painted; empty unless it ended well. */
QByteArray Dito(const QStringList &argumentos)
{
    const QTemporaryDir pasta(ficha::PastaDeBancos());
    QProcess programa;
    programa.start(QStringLiteral(FICHA_COMERCIAL),
                   QStringList{QStringLiteral("--sair-depois-de-pintar"), QStringLiteral("--banco"),
                               pasta.filePath(QStringLiteral("comercial.fdb"))} +
                       argumentos);
    EXPECT_TRUE(programa.waitForFinished(120000));
    EXPECT_EQ(programa.exitCode(), 0) << programa.readAllStandardError().constData();
    return programa.readAllStandardOutput();
}

} // namespace

TEST(SaidaAoPintarTest, TheProgramEndsByItselfAndSaysWhenItWasPainted)
{
    for (const QStringList &argumentos :
         {QStringList(), QStringList{QStringLiteral("--abrir"), QStringLiteral("grupos")}}) {
        const qint64 antes = Agora();
        const QByteArray dito = Dito(argumentos);
        ASSERT_TRUE(dito.startsWith("pintada ")) << dito.constData();
        EXPECT_EQ(dito.count('\n'), 1);
        const qint64 quando = dito.trimmed().mid(8).toLongLong();
        EXPECT_GT(quando, antes);
        EXPECT_LT(quando, Agora());
    }
}
