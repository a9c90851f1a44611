#include "platform/toolkit/Layout.h"

#include <QDir>
#include <QFile>
#include <QMap>
#include <QMetaProperty>
#include <QRegularExpression>
#include <QSet>
#include <QXmlStreamReader>

#include <gtest/gtest.h>

using namespace ficha;

namespace
{

/** Classes of this library's own making, beside the offered ones. */
const QStringList Proprias = {QStringLiteral("TDocEditBRBasFr"),
                              QStringLiteral("TCNPJEditBRBasFr")};

/** The lines of a list of this folder, cut at the blanks; remarks left out. */
QList<QStringList> Lista(const char *nome)
{
    QFile arquivo(QStringLiteral(FICHA_FONTES "/tests/house/") + QString::fromLatin1(nome));
    QList<QStringList> linhas;
    if (!arquivo.open(QIODevice::ReadOnly))
        return linhas;
    for (const QString &linha : QString::fromUtf8(arquivo.readAll()).split(u'\n')) {
        if (!linha.startsWith(u'#') && !linha.trimmed().isEmpty())
            linhas << linha.simplified().split(u' ');
    }
    return linhas;
}

QString Nome(const QMetaObject *classe)
{
    return QString::fromLatin1(classe->className()).section(u':', -1);
}

/** What the layout of one class names; empty where it has none. */
const QSet<QString> &NomesDoLayout(const QString &classe)
{
    static QMap<QString, QSet<QString>> lidos;
    if (lidos.contains(classe))
        return lidos[classe];
    QSet<QString> &nomes = lidos[classe];
    QFile arquivo(QStringLiteral(FICHA_FONTES "/src/layouts/%1.ui").arg(classe));
    if (!arquivo.open(QIODevice::ReadOnly))
        return nomes;
    for (QXmlStreamReader xml(&arquivo); !xml.atEnd();) {
        if (xml.readNext() == QXmlStreamReader::StartElement &&
            QSet<QStringView>({u"widget", u"action", u"actiongroup", u"spacer"})
                .contains(xml.name()))
            nomes << xml.attributes().value(QStringLiteral("name")).toString();
    }
    return nomes;
}

bool NoLayout(const QMetaObject *classe, const QString &componente)
{
    for (; classe; classe = classe->superClass()) {
        if (NomesDoLayout(Nome(classe)).contains(componente))
            return true;
    }
    return false;
}

} // namespace

TEST(ClassesDaCasa, EveryWidgetClassIsRegisteredAndBringsItsLayout)
{
    const QList<QStringList> classes = Lista("classes.txt");
    ASSERT_GE(classes.size(), 68);
    for (const QStringList &linha : classes) {
        const std::string classe = linha[0].toStdString();
        const QMetaObject *meta = ClasseRegistrada(linha[0]);
        const bool visual = linha[1] != u"objeto" && linha[1] != u"modulo";
        EXPECT_EQ(meta != nullptr, visual) << classe;
        if (!meta)
            continue;
        EXPECT_EQ(Nome(meta), linha[0]);
        EXPECT_EQ(QFile::exists(QStringLiteral(":/ficha/layouts/%1.ui").arg(linha[0])),
                  linha.value(2) == u"layout")
            << classe;
    }
}

/** The list keeps up with the library: what is registered and no part of the platform is in it. */
TEST(ClassesDaCasa, TheListIsComplete)
{
    QStringList lista;
    for (const QStringList &linha : Lista("classes.txt"))
        lista << linha[0];
    static const QRegularExpression unidade(
        QStringLiteral("FICHA_REGISTRAR(?:_ABSTRATA)?\\((T\\w+)\\)"));
    int vistas = 0;
    for (const char *pasta : {"base", "records", "input", "dates", "forms", "grids"}) {
        const QDir fontes(QStringLiteral(FICHA_FONTES "/src/") + QString::fromLatin1(pasta));
        for (const QString &nome : fontes.entryList({QStringLiteral("U*.cpp")})) {
            QFile arquivo(fontes.filePath(nome));
            ASSERT_TRUE(arquivo.open(QIODevice::ReadOnly));
            for (auto i = unidade.globalMatch(QString::fromUtf8(arquivo.readAll())); i.hasNext();) {
                ++vistas;
                const QString classe = i.next().captured(1);
                EXPECT_TRUE(lista.contains(classe) || Proprias.contains(classe))
                    << classe.toStdString();
            }
        }
    }
    EXPECT_GT(vistas, 50);
}

TEST(NomesDaCasa, EveryComponentStandsInALayout)
{
    int vistos = 0;
    for (const QStringList &linha : Lista("nomes.txt")) {
        if (linha[1] != u"componentes")
            continue;
        const QMetaObject *meta = ClasseRegistrada(linha[0]);
        ASSERT_TRUE(meta) << linha[0].toStdString();
        for (const QString &nome : linha.mid(2)) {
            ++vistos;
            EXPECT_TRUE(NoLayout(meta, nome))
                << linha[0].toStdString() << " has no " << nome.toStdString();
        }
    }
    EXPECT_GT(vistos, 200);
    EXPECT_FALSE(NoLayout(ClasseRegistrada(QStringLiteral("TBasFr")), QStringLiteral("Aguarde")));
}

TEST(NomesDaCasa, EveryPropertyMayBeSetByALayout)
{
    int vistas = 0;
    for (const QStringList &linha : Lista("nomes.txt")) {
        if (linha[1] != u"propriedades")
            continue;
        const QMetaObject *meta = ClasseRegistrada(linha[0]);
        ASSERT_TRUE(meta) << linha[0].toStdString();
        for (const QString &nome : linha.mid(2)) {
            ++vistas;
            const int i = meta->indexOfProperty(nome.toLatin1().constData());
            EXPECT_TRUE(i >= 0 && meta->property(i).isWritable())
                << linha[0].toStdString() << " has no " << nome.toStdString();
        }
    }
    EXPECT_GT(vistas, 20);
}
