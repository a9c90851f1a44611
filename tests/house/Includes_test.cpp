#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>
#include <QStringList>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

/** The floors from the ground; those of one storey do not know each other. */
struct TAndar {
    const char *pasta;
    int altura;
};
constexpr TAndar Andares[] = {
    {"src/platform/core/", 0},
    {"src/platform/toolkit/", 1},
    {"src/platform/database/", 1},
    {"src/platform/support/", 2},
    {"src/platform/edits/", 3},
    {"src/platform/hostforms/", 4},
    {"src/base/", 5},
    {"src/records/", 6},
    {"src/input/", 7},
    {"src/dates/", 8},
    {"src/forms/", 9},
    {"src/grids/", 10},
    {"demo/", 11},
};

/** Upward steps that are meant, file by file: the column-bound frame asks its table, and the
 * records stand on the value frames below it only. */
const QMap<QString, QStringList> &Excecoes()
{
    static const QMap<QString, QStringList> excecoes = {
        {QStringLiteral("src/base/UDBControlBasFr.cpp"),
         {QStringLiteral("src/records/UTabelaLinear.h"), QStringLiteral("src/records/UCampo.h"),
          QStringLiteral("src/records/UCampos.h"), QStringLiteral("src/records/UTabela.h")}},
    };
    return excecoes;
}

const TAndar *AndarDe(const QString &arquivo)
{
    for (const auto &andar : Andares) {
        if (arquivo.startsWith(QLatin1String(andar.pasta)))
            return &andar;
    }
    return nullptr;
}

/** What every source file of a tree includes, and what is wrong with it. Paths are relative to the
 * tree. */
class TInclusoes
{
public:
    explicit TInclusoes(const QString &daRaiz) : raiz(daRaiz)
    {
        for (const char *pasta : {"src", "demo"}) {
            QDirIterator i(raiz.filePath(QLatin1String(pasta)),
                           {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                           QDirIterator::Subdirectories);
            while (i.hasNext())
                Ler(raiz.relativeFilePath(i.next()));
        }
    }

    int Arquivos() const { return int(inclusoes.size()); }
    /** Includes of files that do not exist. */
    const QStringList &Perdidas() const { return perdidas; }
    QStringList ForaDosAndares() const;
    QStringList ParaCima() const;
    QStringList Lacos() const;

private:
    void Ler(const QString &arquivo);
    QString Achar(const QString &deQuem, const QString &nome) const;
    void Seguir(const QString &arquivo, QStringList &caminho, QSet<QString> &vistos,
                QStringList &lacos) const;

    QDir raiz;
    QMap<QString, QStringList> inclusoes;
    QStringList perdidas;
};

void TInclusoes::Ler(const QString &arquivo)
{
    static const QRegularExpression linha(QStringLiteral("^\\s*#\\s*include\\s*\"([^\"]+)\""),
                                          QRegularExpression::MultilineOption);
    QFile f(raiz.filePath(arquivo));
    ASSERT_TRUE(f.open(QIODevice::ReadOnly)) << arquivo.toStdString();
    auto &lista = inclusoes[arquivo];
    auto i = linha.globalMatch(QString::fromUtf8(f.readAll()));
    while (i.hasNext()) {
        const QString nome = i.next().captured(1);
        // What the build generates stands in no folder of the tree.
        if (nome.endsWith(QLatin1String(".moc")) || nome.startsWith(QLatin1String("moc_")))
            continue;
        const QString achado = Achar(arquivo, nome);
        if (achado.isEmpty())
            perdidas << arquivo + QStringLiteral(" -> ") + nome;
        else
            lista << achado;
    }
}

QString TInclusoes::Achar(const QString &deQuem, const QString &nome) const
{
    const QString aoLado = deQuem.left(deQuem.lastIndexOf(u'/') + 1);
    for (const QString &pasta :
         {QStringLiteral("src/"), aoLado, QStringLiteral("demo/"), QString()}) {
        if (QFile::exists(raiz.filePath(pasta + nome)))
            return QDir::cleanPath(pasta + nome);
    }
    return {};
}

QStringList TInclusoes::ForaDosAndares() const
{
    QStringList fora;
    for (auto i = inclusoes.begin(); i != inclusoes.end(); ++i) {
        if (!AndarDe(i.key()))
            fora << i.key();
    }
    return fora;
}

QStringList TInclusoes::ParaCima() const
{
    QStringList erros;
    for (auto i = inclusoes.begin(); i != inclusoes.end(); ++i) {
        const TAndar *aqui = AndarDe(i.key());
        for (const QString &la : i.value()) {
            const TAndar *outro = AndarDe(la);
            const bool desce = aqui && outro && (outro == aqui || outro->altura < aqui->altura);
            if (!desce && !Excecoes().value(i.key()).contains(la))
                erros << i.key() + QStringLiteral(" -> ") + la;
        }
    }
    return erros;
}

QStringList TInclusoes::Lacos() const
{
    QStringList lacos;
    QSet<QString> vistos;
    for (auto i = inclusoes.begin(); i != inclusoes.end(); ++i) {
        QStringList caminho;
        Seguir(i.key(), caminho, vistos, lacos);
    }
    return lacos;
}

void TInclusoes::Seguir(const QString &arquivo, QStringList &caminho, QSet<QString> &vistos,
                        QStringList &lacos) const
{
    const qsizetype antes = caminho.indexOf(arquivo);
    if (antes >= 0) {
        lacos << (caminho.mid(antes) << arquivo).join(QStringLiteral(" -> "));
        return;
    }
    if (vistos.contains(arquivo))
        return;
    vistos << arquivo;
    caminho << arquivo;
    for (const QString &la : inclusoes.value(arquivo))
        Seguir(la, caminho, vistos, lacos);
    caminho.removeLast();
}

/** A small tree of its own, to see that the checks find what they look for. */
class Includes : public testing::Test
{
protected:
    void Escrever(const char *arquivo, const char *texto)
    {
        const QString caminho = pasta.filePath(QLatin1String(arquivo));
        ASSERT_TRUE(QDir().mkpath(QFileInfo(caminho).path()));
        QFile f(caminho);
        ASSERT_TRUE(f.open(QIODevice::WriteOnly));
        f.write(texto);
    }

    QTemporaryDir pasta;
};

const TInclusoes &DaCasa()
{
    static const TInclusoes inclusoes(QStringLiteral(FICHA_FONTES));
    return inclusoes;
}

std::string Linhas(const QStringList &textos)
{
    return textos.join(u'\n').toStdString();
}

} // namespace

TEST_F(Includes, AStepUpwardsIsFound)
{
    Escrever("src/platform/core/A.h", "#include \"platform/support/B.h\"\n");
    Escrever("src/platform/support/B.h", "#include <QString>\n");
    EXPECT_EQ(TInclusoes(pasta.path()).ParaCima(),
              QStringList(QStringLiteral("src/platform/core/A.h -> src/platform/support/B.h")));
}

TEST_F(Includes, AStepBetweenNeighboursIsFound)
{
    Escrever("src/platform/toolkit/A.cpp", "  # include \"platform/database/B.h\"\n");
    Escrever("src/platform/database/B.h", "");
    EXPECT_EQ(TInclusoes(pasta.path()).ParaCima().size(), 1);
}

TEST_F(Includes, StepsDownAndWithinAFloorAreFine)
{
    Escrever("demo/Tela.cpp", "#include \"Tela.h\"\n#include \"forms/UTabBasF.h\"\n"
                              "#include \"Tela.moc\"\n");
    Escrever("demo/Tela.h", "");
    Escrever("src/forms/UTabBasF.h", "#include \"forms/UOutro.h\"\n");
    Escrever("src/forms/UOutro.h", "");
    const TInclusoes inclusoes(pasta.path());
    EXPECT_EQ(inclusoes.Arquivos(), 4);
    EXPECT_TRUE(inclusoes.ParaCima().isEmpty());
    EXPECT_TRUE(inclusoes.Lacos().isEmpty());
    EXPECT_TRUE(inclusoes.Perdidas().isEmpty());
}

TEST_F(Includes, ALoopIsFoundWithItsWholeWay)
{
    Escrever("src/base/A.h", "#include \"base/B.h\"\n");
    Escrever("src/base/B.h", "#include \"base/C.h\"\n");
    Escrever("src/base/C.h", "#include \"base/A.h\"\n");
    EXPECT_EQ(TInclusoes(pasta.path()).Lacos(),
              QStringList(
                  QStringLiteral("src/base/A.h -> src/base/B.h -> src/base/C.h -> src/base/A.h")));
}

TEST_F(Includes, AMissingFileIsFound)
{
    Escrever("src/base/A.h", "#include \"base/Nada.h\"\n");
    EXPECT_EQ(TInclusoes(pasta.path()).Perdidas(),
              QStringList(QStringLiteral("src/base/A.h -> base/Nada.h")));
}

TEST(IncludesOfTheHouse, EveryIncludeNamesAFile)
{
    ASSERT_GT(DaCasa().Arquivos(), 30) << "the sources were not found";
    EXPECT_TRUE(DaCasa().Perdidas().isEmpty()) << Linhas(DaCasa().Perdidas());
}

TEST(IncludesOfTheHouse, EverySourceStandsOnAFloor)
{
    EXPECT_TRUE(DaCasa().ForaDosAndares().isEmpty()) << Linhas(DaCasa().ForaDosAndares());
}

TEST(IncludesOfTheHouse, NoIncludePointsUpwards)
{
    EXPECT_TRUE(DaCasa().ParaCima().isEmpty()) << Linhas(DaCasa().ParaCima());
}

TEST(IncludesOfTheHouse, NoLoops)
{
    EXPECT_TRUE(DaCasa().Lacos().isEmpty()) << Linhas(DaCasa().Lacos());
}
