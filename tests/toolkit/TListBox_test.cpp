#include "platform/toolkit/TListBox.h"

#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Lista : testing::Test {
    Lista()
    {
        lista = new TListBox(&janela);
        lista->resize(164, 119);
        lista->SetItems({QStringLiteral("a"), QStringLiteral("b"), QStringLiteral("c")});
        lista->OnClick = [this](QObject *) { ++cliques; };
    }

    QPoint Linha(int i) const { return lista->visualItemRect(lista->item(i)).center(); }

    TJanela janela;
    TListBox *lista;
    int cliques = 0;
};

} // namespace

TEST_F(Lista, LinesAsOneTextAndBack)
{
    EXPECT_EQ(lista->GetText(), QStringLiteral("a\r\nb\r\nc"));
    lista->SetText(QStringLiteral("x\r\ny\nz\r\n"));
    EXPECT_EQ(lista->GetItems(),
              (QStringList{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("z")}));
    lista->SetText(QStringLiteral("a\r\n\r\nb"));
    EXPECT_EQ(lista->Count(), 3);
    lista->SetText(QString());
    EXPECT_EQ(lista->Count(), 0);
    EXPECT_EQ(lista->GetText(), QString());
}

TEST_F(Lista, NothingIsSelectedUntilSomeoneSelects)
{
    EXPECT_EQ(lista->GetItemIndex(), -1);
    lista->SetItemIndex(1);
    EXPECT_EQ(lista->GetItemIndex(), 1);
    lista->SetItemIndex(-1);
    EXPECT_EQ(lista->GetItemIndex(), -1);
    lista->SetItemIndex(8);
    EXPECT_EQ(lista->GetItemIndex(), -1);
    EXPECT_EQ(cliques, 0);
}

TEST_F(Lista, FocusSelectsNothingByItself)
{
    janela.Abrir();
    lista->setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(lista->hasFocus());
    EXPECT_EQ(lista->GetItemIndex(), -1);
}

TEST_F(Lista, ClickAndKeyboardAnnounce)
{
    janela.Abrir();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Linha(1));
    EXPECT_EQ(lista->GetItemIndex(), 1);
    EXPECT_EQ(cliques, 1);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Linha(1));
    EXPECT_EQ(cliques, 2);
    QTest::keyClick(lista, Qt::Key_Down);
    EXPECT_EQ(lista->GetItemIndex(), 2);
    EXPECT_EQ(cliques, 3);
    QTest::keyClick(lista, Qt::Key_Down);
    EXPECT_EQ(cliques, 3);
}

TEST_F(Lista, ItemsCarryIntegers)
{
    EXPECT_EQ(lista->AddItem(QStringLiteral("d"), 40), 3);
    EXPECT_EQ(lista->GetObjeto(3), 40);
    EXPECT_EQ(lista->GetObjeto(0), 0);
    EXPECT_EQ(lista->GetObjeto(9), 0);
    EXPECT_EQ(lista->IndexOf(QStringLiteral("D")), 3);
    EXPECT_EQ(lista->Item(9), QString());
    lista->SetItem(0, QStringLiteral("A!"));
    EXPECT_EQ(lista->Item(0), QStringLiteral("A!"));
    lista->Clear();
    EXPECT_EQ(lista->Count(), 0);
}

TEST_F(Lista, PropertiesForLayouts)
{
    TListBox outra;
    outra.setProperty("items", QStringList{QStringLiteral("a"), QStringLiteral("b")});
    outra.setProperty("itemIndex", 1);
    outra.setProperty("itemHeight", 13);
    outra.setProperty("tag", 1);
    EXPECT_EQ(outra.GetItemIndex(), 1);
    EXPECT_EQ(outra.sizeHintForRow(0), 13);
    EXPECT_EQ(outra.Tag, 1);
}

TEST_F(Lista, TheHandlerMayTakeItselfOutOrDestroyTheList)
{
    janela.Abrir();
    const auto clicar = [this](int linha) {
        QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Linha(linha));
    };
    EXPECT_TRUE(InteiroAoSair(lista->OnClick, [&] { clicar(0); }));
    EXPECT_TRUE(InteiroAoSair(lista->OnClick, [&] { QTest::keyClick(lista, Qt::Key_Down); }));
    const QPointer<TListBox> vivo(lista);
    lista->OnClick = [this](QObject *) { delete lista; };
    clicar(2);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(Lista, AReleaseBesideTheLinesIsNoClick)
{
    janela.Abrir();
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, Linha(1));
    EXPECT_EQ(cliques, 1);
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, QPoint(20, 100));
    EXPECT_EQ(cliques, 1);
    QTest::mousePress(lista->viewport(), Qt::LeftButton, {}, Linha(0));
    QTest::mouseRelease(lista->viewport(), Qt::LeftButton, {}, Linha(2));
    EXPECT_EQ(cliques, 1) << "down on one line, up on another";
}
