#include "platform/support/Instalacao.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ficha::testes
{

class TInstalacaoTest : public testing::Test
{
protected:
    ~TInstalacaoTest() override
    {
        SetPastasDaInstalacao({});
        QDir::setCurrent(antes);
    }
    QString Por(const QString &relativo)
    {
        const QString arquivo = QDir::cleanPath(pasta.filePath(relativo));
        QDir().mkpath(QFileInfo(arquivo).path());
        QFile f(arquivo);
        EXPECT_TRUE(f.open(QIODevice::WriteOnly));
        return arquivo;
    }

    QTemporaryDir pasta;
    const QString antes = QDir::currentPath();
};

TEST_F(TInstalacaoTest, APathWithBackslashesIsLookedForInTheStatedOrder)
{
    QDir(pasta.path()).mkdir(QStringLiteral("trabalho"));
    QDir::setCurrent(pasta.filePath(QStringLiteral("trabalho")));
    const QString programa = QCoreApplication::applicationDirPath();
    const QStringList lugares = LugaresDoArquivo(QStringLiteral("..\\img\\a b.jpg"));
    ASSERT_EQ(lugares.size(), 4);
    EXPECT_EQ(lugares[0], QDir(pasta.path()).canonicalPath() + QStringLiteral("/img/a b.jpg"));
    EXPECT_EQ(lugares[1], QDir::cleanPath(programa + QStringLiteral("/../img/a b.jpg")));
    EXPECT_EQ(lugares[2],
              QDir::cleanPath(programa + QStringLiteral("/../share/ficha/img/a b.jpg")));
    EXPECT_TRUE(lugares[3].endsWith(QStringLiteral("/share/ficha/img/a b.jpg")));
    EXPECT_TRUE(QDir::isAbsolutePath(lugares[3]));
}

TEST_F(TInstalacaoTest, TheFirstPlaceThatHasTheFileWins)
{
    const QString primeira = pasta.filePath(QStringLiteral("um/dentro"));
    const QString segunda = pasta.filePath(QStringLiteral("dois/dentro"));
    SetPastasDaInstalacao({primeira, segunda});
    const QString caminho = QStringLiteral("..\\img\\x.jpg");
    EXPECT_EQ(ArquivoDaInstalacao(caminho), QString());
    const QString b = Por(QStringLiteral("dois/img/x.jpg"));
    EXPECT_EQ(ArquivoDaInstalacao(caminho), b);
    const QString a = Por(QStringLiteral("um/img/x.jpg"));
    EXPECT_EQ(ArquivoDaInstalacao(caminho), a);
    // A folder of that name is no file.
    QFile::remove(a);
    QDir().mkpath(a);
    EXPECT_EQ(ArquivoDaInstalacao(caminho), b);
}

TEST_F(TInstalacaoTest, TheWorkingFolderComesFirstAndIsAskedEachTime)
{
    const QString arquivo = Por(QStringLiteral("img/so daqui.jpg"));
    const QString caminho = QStringLiteral("..\\img\\so daqui.jpg");
    QDir(pasta.path()).mkdir(QStringLiteral("trabalho"));
    QDir::setCurrent(pasta.filePath(QStringLiteral("trabalho")));
    EXPECT_EQ(QFileInfo(ArquivoDaInstalacao(caminho)).canonicalFilePath(),
              QFileInfo(arquivo).canonicalFilePath());
    QDir::setCurrent(antes);
    EXPECT_EQ(ArquivoDaInstalacao(caminho), QString());
}

TEST_F(TInstalacaoTest, TheFilterPanelsPicturesLieBesideTheProgramThatWasBuilt)
{
    QDir::setCurrent(pasta.path());
    for (const char *nome :
         {"..\\img\\botoes\\filtro abrir.jpg", "..\\img\\botoes\\filtro fechar.jpg"})
        EXPECT_NE(ArquivoDaInstalacao(QString::fromLatin1(nome)), QString()) << nome;
}

} // namespace ficha::testes
