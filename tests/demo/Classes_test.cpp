#include "NoComercial.h"

#include "demo/UMostruarioF.h"
#include "demo/USelectProdutosFr.h"
#include "forms/ULocalizBasF.h"
#include "platform/toolkit/TForm.h"
#include "platform/toolkit/TLabeledEdit.h"

#include <QLabel>
#include <QPushButton>
#include <QScrollArea>

using namespace ficha;
using ficha::testes::Retratar;

namespace comercial::testes
{

class TMostruarioFTest : public TNoComercial
{
};

/** Of the list that the library keeps of its classes. */
TEST_F(TMostruarioFTest, EveryClassOfTheLibraryIsThereByItsName)
{
    Abrir(Qt::Key_F9);
    QStringList nomes;
    for (const QLabel *rotulo : tela->findChildren<QLabel *>())
        nomes << rotulo->text();
    QFile lista(QStringLiteral(FICHA_FONTES "/tests/house/classes.txt"));
    ASSERT_TRUE(lista.open(QIODevice::ReadOnly));
    int classes = 0;
    for (const QString &linha : QString::fromUtf8(lista.readAll()).split(u'\n')) {
        if (linha.isEmpty() || linha.startsWith(u'#'))
            continue;
        ++classes;
        const QString classe = linha.section(u' ', 0, 0);
        EXPECT_EQ(nomes.count(classe), 1) << classe.toStdString();
        EXPECT_EQ(tela->findChild<QPushButton *>(QStringLiteral("Abrir") + classe) != nullptr,
                  linha.contains(QStringLiteral(" dialogo")) ||
                      classe == QStringLiteral("TActContainerF"))
            << classe.toStdString();
    }
    EXPECT_GE(classes, 70);
}

TEST_F(TMostruarioFTest, EveryDialogOpensFromItsButtonAndClosesWithEsc)
{
    Abrir(Qt::Key_F9);
    const QList<QPushButton *> botoes = tela->findChildren<QPushButton *>();
    int abertos = 0;
    for (QPushButton *botao : botoes) {
        if (botao->text() != QStringLiteral("Abrir..."))
            continue;
        ++abertos;
        const QString classe = botao->objectName().mid(5);
        if (classe == QStringLiteral("TLocalizBasF")) {
            Clicar(botao);
            EXPECT_TRUE(LocalizBasF->isVisible());
            Retratar(LocalizBasF, QStringLiteral("TMostruarioF-") + classe);
            LocalizBasF->Close();
            continue;
        }
        NoDialogo([&](QWidget *dialogo) {
            EXPECT_EQ(QString::fromLatin1(dialogo->metaObject()->className()).section(u':', -1),
                      classe);
            Retratar(dialogo, QStringLiteral("TMostruarioF-") + classe);
        });
        const int antes = dialogos;
        Clicar(botao);
        EXPECT_EQ(dialogos, antes + 1) << classe.toStdString();
    }
    EXPECT_GE(abertos, 10);
}

TEST_F(TMostruarioFTest, TheListOfProductsDropsInTheGalleryToo)
{
    Abrir(Qt::Key_F9);
    auto *select = tela->findChild<TSelectProdutosFr *>();
    ASSERT_TRUE(select);
    tela->findChild<QScrollArea *>()->ensureWidgetVisible(select->parentWidget());
    Clicar(select->BuscaLabeledEdit);
    EXPECT_TRUE(select->isVisible());
    Digitar(QStringLiteral("vin"));
    EXPECT_EQ(select->Descricao(), QStringLiteral("Vinho tinto econômico"));
    Retratar(tela, QStringLiteral("TMostruarioF-TSelectFr"));
    Tecla(Qt::Key_Escape);
    EXPECT_FALSE(select->isVisible());
}

} // namespace comercial::testes
