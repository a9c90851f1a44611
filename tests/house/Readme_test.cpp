#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

namespace
{

QString Ler(const QString &caminho)
{
    QFile arquivo(QStringLiteral(FICHA_FONTES "/") + caminho);
    return arquivo.open(QIODevice::ReadOnly) ? QString::fromUtf8(arquivo.readAll()) : QString();
}

} // namespace

TEST(Readme, ShowsTheGruposScreenAsItIs)
{
    const QString readme = Ler(QStringLiteral("README.md"));
    ASSERT_FALSE(readme.isEmpty());
    static const QRegularExpression bloco(QStringLiteral("<!-- (\\S+) -->\\n```\\w+\\n(.*?)```"),
                                          QRegularExpression::DotMatchesEverythingOption);
    QStringList mostrados;
    for (auto i = bloco.globalMatch(readme); i.hasNext();) {
        const auto achado = i.next();
        mostrados << achado.captured(1);
        EXPECT_EQ(achado.captured(2), Ler(achado.captured(1)))
            << achado.captured(1).toStdString() << ": run scripts/readme.sh";
    }
    EXPECT_EQ(mostrados,
              QStringList({QStringLiteral("demo/UGruposF.h"), QStringLiteral("demo/UGruposF.cpp"),
                           QStringLiteral("demo/layouts/TGruposF.ui")}));
}
