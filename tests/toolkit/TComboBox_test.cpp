#include "platform/toolkit/TComboBox.h"

#include "platform/toolkit/Teclas.h"
#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QAbstractItemView>
#include <QLineEdit>
#include <QListView>
#include <QSignalSpy>
#include <QStringListModel>
#include <QWheelEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct Combo : testing::Test {
    Combo()
    {
        combo = new TComboBox(&janela);
        combo->resize(145, 21);
        combo->AddItem(QStringLiteral("São Paulo"), 10);
        combo->AddItem(QStringLiteral("Santos"), 20);
        combo->AddItem(QStringLiteral("Campinas"), 30);
        combo->OnChange = [this](QObject *) { ++mudancas; };
        combo->OnDropDown = [this](QObject *) { ++aberturas; };
    }

    void Abrir()
    {
        janela.Abrir();
        combo->setFocus();
    }

    TAvisos avisos;
    TJanela janela;
    TComboBox *combo;
    int mudancas = 0;
    int aberturas = 0;
};

} // namespace

TEST_F(Combo, StartsWithNothingSelected)
{
    EXPECT_EQ(combo->GetItemIndex(), -1);
    EXPECT_EQ(combo->GetText(), QString());
    EXPECT_EQ(combo->Count(), 3);
    EXPECT_EQ(combo->GetObjeto(1), 20);
    EXPECT_EQ(combo->GetObjeto(9), 0);
    EXPECT_EQ(combo->GetObjeto(-1), 0);
}

TEST_F(Combo, ProgramSelectsWithoutAnnouncing)
{
    combo->SetItemIndex(2);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas"));
    combo->SetText(QStringLiteral("qualquer  "));
    EXPECT_EQ(combo->GetText(), QStringLiteral("qualquer  "));
    EXPECT_EQ(combo->GetItemIndex(), -1);
    combo->SetItemIndex(2);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas"));
    combo->SetText(QStringLiteral("Santos"));
    EXPECT_EQ(combo->GetItemIndex(), 1);
    combo->SetItemIndex(99);
    EXPECT_EQ(combo->GetItemIndex(), -1);
    EXPECT_EQ(combo->GetText(), QString());
    combo->Clear();
    EXPECT_EQ(combo->Count(), 0);
    EXPECT_EQ(mudancas, 0);
}

TEST_F(Combo, ExactSearchIgnoresCase)
{
    EXPECT_EQ(combo->IndexOf(QStringLiteral("SANTOS")), 1);
    EXPECT_EQ(combo->IndexOf(QStringLiteral("são paulo")), 0);
    EXPECT_EQ(combo->IndexOf(QStringLiteral("Sant")), -1);
    EXPECT_EQ(combo->IndexOf(QString()), -1);
    EXPECT_EQ(combo->IndexOfObjeto(30), 2);
    EXPECT_EQ(combo->IndexOfObjeto(31), -1);
}

TEST_F(Combo, EqualTextsKeepTheIndexThatWasSet)
{
    combo->AddItem(QStringLiteral("Santos"), 21);
    combo->SetItemIndex(3);
    EXPECT_EQ(combo->GetItemIndex(), 3);
    EXPECT_EQ(combo->GetObjeto(combo->GetItemIndex()), 21);
}

TEST_F(Combo, TypingCompletesAndAnnouncesOncePerKey)
{
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("ca"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas"));
    EXPECT_EQ(combo->lineEdit()->selectedText(), QStringLiteral("mpinas"));
    EXPECT_EQ(combo->GetItemIndex(), 2);
    EXPECT_EQ(mudancas, 1); // the second key changed neither text nor item
    QTest::keyClicks(combo, QStringLiteral("x"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Cax"));
    EXPECT_EQ(combo->GetItemIndex(), -1);
    EXPECT_EQ(mudancas, 2);
}

TEST_F(Combo, DeletingDoesNotComplete)
{
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("san"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Santos"));
    QTest::keyClick(combo, Qt::Key_Backspace);
    EXPECT_EQ(combo->GetText(), QStringLiteral("San"));
    EXPECT_EQ(combo->GetItemIndex(), -1);
    QTest::keyClick(combo, Qt::Key_Backspace);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Sa"));
    EXPECT_EQ(mudancas, 4); // two towns while typing, two texts while deleting
}

TEST_F(Combo, TypingInTheMiddleDoesNotComplete)
{
    Abrir();
    combo->SetText(QStringLiteral("Sntos"));
    combo->lineEdit()->setCursorPosition(1);
    QTest::keyClicks(combo, QStringLiteral("a"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Santos"));
    EXPECT_EQ(combo->lineEdit()->cursorPosition(), 2);
    EXPECT_EQ(combo->GetItemIndex(), 1);
}

TEST_F(Combo, BurstOfKeysLosesNone)
{
    Abrir();
    QString tudo;
    for (int i = 0; i < 200; ++i)
        tudo += QChar(u'b' + i % 25);
    QTest::keyClicks(combo, tudo);
    EXPECT_EQ(combo->GetText(), tudo);
    EXPECT_EQ(mudancas, 200);
}

TEST_F(Combo, BurstWithCompletionAndOpenListLosesNone)
{
    combo->AddItem(QString(200, u'z'), 1);
    combo->SetAutoDropDown(true);
    Abrir();
    QTest::keyClicks(combo, QString(199, u'z'));
    EXPECT_EQ(combo->GetText(), QString(200, u'z'));
    EXPECT_EQ(combo->lineEdit()->selectedText(), QStringLiteral("z"));
    EXPECT_EQ(aberturas, 1);
}

TEST_F(Combo, ArrowKeysPickAndAnnounceOnce)
{
    Abrir();
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(combo->GetItemIndex(), 0);
    EXPECT_EQ(mudancas, 1);
    QTest::keyClick(combo, Qt::Key_Down);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Santos"));
    EXPECT_EQ(mudancas, 2);
    QTest::keyClick(combo, Qt::Key_Return);
    EXPECT_EQ(mudancas, 2);
}

TEST_F(Combo, PickingFromTheListAnnouncesOnce)
{
    Abrir();
    QSignalSpy sinal(combo, &TComboBox::UserChanged);
    combo->showPopup();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(combo->view()->window()));
    QTest::qWait(50);
    EXPECT_TRUE(combo->DroppedDown());
    EXPECT_EQ(aberturas, 1);
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_FALSE(combo->DroppedDown());
    EXPECT_EQ(combo->GetItemIndex(), 1);
    EXPECT_EQ(mudancas, 1);
    EXPECT_EQ(sinal.count(), 1);
}

TEST_F(Combo, PickingTheSameItemAgainIsNoChange)
{
    combo->SetItemIndex(1);
    Abrir();
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(mudancas, 0);
}

TEST_F(Combo, TypingIntoTheOpenListGoesToTheEditAndTheListFollows)
{
    combo->SetAutoDropDown(true);
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("s"));
    ASSERT_TRUE(combo->DroppedDown());
    EXPECT_EQ(aberturas, 1);
    EXPECT_EQ(combo->GetText(), QStringLiteral("São Paulo"));
    QTest::keyClicks(combo->view(), QStringLiteral("an"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Santos"));
    EXPECT_EQ(combo->view()->currentIndex().row(), 1);
    QTest::keyClicks(combo->view(), QStringLiteral("q"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Sanq"));
    EXPECT_FALSE(combo->view()->currentIndex().isValid());
    QTest::keyClick(combo->view(), Qt::Key_Backspace);
    EXPECT_EQ(combo->GetText(), QStringLiteral("San"));
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_FALSE(combo->DroppedDown());
    EXPECT_EQ(combo->GetText(), QStringLiteral("San"));
}

TEST_F(Combo, TabInTheOpenListTakesTheItemAndLeaves)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    Abrir();
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Tab);
    EXPECT_FALSE(combo->DroppedDown());
    EXPECT_EQ(combo->GetItemIndex(), 0);
    EXPECT_EQ(mudancas, 1);
    EXPECT_TRUE(outro->hasFocus());
}

TEST_F(Combo, AutoCloseUpClosesOnAWholeItem)
{
    combo->SetAutoDropDown(true);
    combo->SetAutoCloseUp(true);
    combo->SetAutoComplete(false);
    int fechamentos = 0;
    combo->OnCloseUp = [&](QObject *) { ++fechamentos; };
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("santo"));
    EXPECT_TRUE(combo->DroppedDown());
    QTest::keyClicks(combo, QStringLiteral("s"));
    EXPECT_FALSE(combo->DroppedDown());
    EXPECT_EQ(fechamentos, 1);
    EXPECT_EQ(combo->GetItemIndex(), 1);
    EXPECT_EQ(combo->GetText(), QStringLiteral("santos"));
}

TEST_F(Combo, AccentsMayBeIgnoredWhereTypingSearches)
{
    combo->SetItems({QStringLiteral("SALTO"), QStringLiteral("SÃO PAULO"), QStringLiteral("ÁGUAS"),
                     QStringLiteral("SAPÉ")});
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("SAO"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("SAO")) << "not unless it is asked for";
    combo->SetIgnoraAcentos(true);
    combo->SetText({});
    QTest::keyClicks(combo, QStringLiteral("SAO"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("SÃO PAULO"));
    EXPECT_EQ(combo->GetItemIndex(), 1);
    EXPECT_EQ(combo->lineEdit()->selectedText(), QStringLiteral(" PAULO"));
    combo->SetText({});
    QTest::keyClicks(combo, QStringLiteral("ag"));
    EXPECT_EQ(combo->GetItemIndex(), 2);
    combo->AddItem(QStringLiteral("AGÁ"));
    combo->SetText({});
    QTest::keyClicks(combo, QStringLiteral("aga"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("AGÁ")) << "a new item is found too";
    combo->SetText(QStringLiteral("SAO PAULO"));
    EXPECT_EQ(combo->GetItemIndex(), -1) << "the text of an item is the one with its accents";
    EXPECT_EQ(combo->IndexOf(QStringLiteral("SAO PAULO")), -1);
    EXPECT_EQ(combo->IndexOfSemAcentos(QStringLiteral("sao paulo")), 1);
    EXPECT_EQ(combo->IndexOfSemAcentos(QStringLiteral("sao")), -1);
}

TEST_F(Combo, DropDownHandlerMayFillTheList)
{
    combo->Clear();
    combo->OnDropDown = [this](QObject *) { combo->AddItem(QStringLiteral("novo"), 1); };
    Abrir();
    combo->showPopup();
    EXPECT_TRUE(combo->DroppedDown());
    EXPECT_EQ(combo->Count(), 1);
    combo->hidePopup();
}

TEST_F(Combo, WheelNeverChangesTheValue)
{
    combo->SetItemIndex(0);
    Abrir();
    QWheelEvent roda(QPointF(5, 5), combo->mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120),
                     Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(combo, &roda);
    EXPECT_EQ(combo->GetItemIndex(), 0);
    EXPECT_FALSE(roda.isAccepted());
    EXPECT_FALSE(combo->focusPolicy() & Qt::WheelFocus & ~Qt::StrongFocus);
}

TEST_F(Combo, GateRefusesForeignCharacters)
{
    Abrir();
    Tecla(combo, 0, QStringLiteral("€"));
    EXPECT_EQ(combo->GetText(), QString());
    EXPECT_EQ(avisos.textos.size(), 1);
    ColarTexto(combo, QStringLiteral("“x”"));
    EXPECT_EQ(combo->GetText(), QString());
    EXPECT_EQ(avisos.textos.size(), 2);
    EXPECT_EQ(mudancas, 0);
    ColarTexto(combo, QStringLiteral("Santos"));
    EXPECT_EQ(combo->GetItemIndex(), 1);
    EXPECT_EQ(mudancas, 1);
    Compor(combo, QStringLiteral("é"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Santosé"));
    EXPECT_EQ(mudancas, 2);
}

TEST_F(Combo, KeyHandlersSeeEachKeyOnce)
{
    Abrir();
    QList<int> teclas;
    AoTeclaDescer(combo, [&](int &tecla, Qt::KeyboardModifiers) { teclas << tecla; });
    AoTeclar(combo, [](QChar &c) {
        if (c == u'á')
            c = u'a';
    });
    QTest::keyClick(combo, Qt::Key_Up);
    QTest::keyClick(combo, Qt::Key_Delete);
    Tecla(combo, Qt::Key_Aacute, QStringLiteral("á"));
    EXPECT_EQ(teclas, (QList<int>{VK_UP, VK_DELETE, 0}));
    EXPECT_EQ(combo->GetText(), QStringLiteral("a"));
}

TEST_F(Combo, KeyHandlersSeeKeysOfTheOpenList)
{
    combo->SetAutoDropDown(true);
    Abrir();
    QString vistos;
    AoTeclar(combo, [&](QChar &c) { vistos += c; });
    QTest::keyClicks(combo, QStringLiteral("s"));
    ASSERT_TRUE(combo->DroppedDown());
    QTest::keyClicks(combo->view(), QStringLiteral("an"));
    EXPECT_EQ(vistos, QStringLiteral("san"));
    combo->hidePopup();
}

TEST_F(Combo, TabSelectsTheText)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    combo->SetText(QStringLiteral("abc"));
    Abrir();
    outro->setFocus();
    QTest::keyClick(outro, Qt::Key_Backtab);
    EXPECT_TRUE(combo->hasFocus());
    EXPECT_EQ(combo->lineEdit()->selectedText(), QStringLiteral("abc"));
}

TEST_F(Combo, ListStyleTakesItemsOnly)
{
    combo->SetStyle(TComboBox::csDropDownList);
    Abrir();
    EXPECT_EQ(combo->GetItemIndex(), -1);
    combo->SetText(QStringLiteral("santos"));
    EXPECT_EQ(combo->GetItemIndex(), 1);
    combo->SetText(QStringLiteral("nada"));
    EXPECT_EQ(combo->GetItemIndex(), -1);
    EXPECT_EQ(combo->GetText(), QString());
    EXPECT_EQ(mudancas, 0);
    QTest::keyClicks(combo, QStringLiteral("c"));
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas"));
    EXPECT_EQ(mudancas, 1);
    combo->SetStyle(TComboBox::csDropDown);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas"));
    EXPECT_NE(combo->lineEdit(), nullptr);
}

TEST_F(Combo, FocusOutChangesNothing)
{
    auto *outro = new QLineEdit(&janela);
    outro->move(0, 100);
    Abrir();
    combo->SetItemIndex(0);
    combo->SetText(QStringLiteral("SANTOS"));
    combo->setEditText(QStringLiteral("Campinas"));
    outro->setFocus();
    EXPECT_EQ(combo->GetItemIndex(), 2);
    EXPECT_EQ(mudancas, 0);
    combo->setFocus();
    combo->SetText(QStringLiteral("SANTOS"));
    outro->setFocus();
    EXPECT_EQ(combo->GetText(), QStringLiteral("SANTOS"));
    EXPECT_EQ(combo->GetItemIndex(), 1);
    EXPECT_EQ(mudancas, 0);
}

TEST_F(Combo, RowsOfTheListHaveTheHeightThatWasSetBeforeItOpenedOrLater)
{
    const auto altura = [this] {
        return combo->view()->visualRect(combo->model()->index(1, 0)).height();
    };
    combo->SetItemHeight(31);
    Abrir();
    combo->showPopup();
    EXPECT_EQ(altura(), 31);
    combo->hidePopup();
    combo->SetItemHeight(40);
    combo->showPopup();
    EXPECT_EQ(altura(), 40);
}

TEST_F(Combo, RowsThatAreAlikeAreMeasuredOnceWhetherSaidBeforeTheListOpensOrLater)
{
    const auto iguais = [this] {
        const auto *lista = qobject_cast<QListView *>(combo->view());
        return lista->uniformItemSizes() && lista->textElideMode() == Qt::ElideRight;
    };
    EXPECT_FALSE(combo->GetLinhasIguais());
    combo->SetLinhasIguais(true);
    Abrir();
    combo->showPopup();
    EXPECT_TRUE(iguais());
    combo->SetLinhasIguais(false);
    EXPECT_FALSE(iguais());
    combo->SetLinhasIguais(true);
    EXPECT_TRUE(iguais());
}

TEST_F(Combo, ItsSizeIsNotTakenFromItsItemsUnlessTheHostSaysSo)
{
    combo->AddItem(QString(200, u'W'));
    const int largura = combo->fontMetrics().horizontalAdvance(QString(200, u'W'));
    EXPECT_LT(combo->sizeHint().width(), 100);
    EXPECT_LT(combo->minimumSizeHint().width(), 100);
    TComboBox outro;
    outro.setSizeAdjustPolicy(QComboBox::AdjustToContents);
    outro.AddItem(QString(200, u'W'));
    EXPECT_GT(outro.sizeHint().width(), largura);
    janela.Abrir();
    EXPECT_EQ(combo->width(), 145);
}

TEST_F(Combo, PropertiesForLayouts)
{
    TComboBox outro;
    outro.setProperty("items", QStringList{QStringLiteral("a"), QStringLiteral("b")});
    outro.setProperty("itemIndex", 1);
    outro.setProperty("itemHeight", 13);
    outro.setProperty("autoDropDown", true);
    outro.setProperty("autoCloseUp", true);
    outro.setProperty("maxLength", 3);
    outro.setProperty("tag", 1);
    EXPECT_EQ(outro.GetText(), QStringLiteral("b"));
    EXPECT_EQ(outro.GetItemHeight(), 13);
    EXPECT_TRUE(outro.GetAutoDropDown());
    EXPECT_TRUE(outro.GetAutoCloseUp());
    EXPECT_EQ(outro.Tag, 1);
    outro.SetText(QString());
    QTest::keyClicks(&outro, QStringLiteral("wxyz"));
    EXPECT_EQ(outro.GetText(), QStringLiteral("wxy"));
    EXPECT_STREQ(outro.metaObject()->userProperty().name(), "text");
    EXPECT_EQ(outro.property("comboStyle").toInt(), int(TComboBox::csDropDown));
}

TEST_F(Combo, ALongTextIsShownFromItsBeginning)
{
    const QString longo = QStringLiteral("Departamento de compras e de vendas, matriz");
    const QString outro = QStringLiteral("Departamento de pessoal e de cadastros, filial");
    combo->AddItem(longo);
    combo->AddItem(outro);
    auto *depois = new QLineEdit(&janela);
    depois->move(0, 100);
    Abrir();
    const auto inicio = [this] { return combo->lineEdit()->cursorPosition() == 0; };
    combo->SetItemIndex(3);
    EXPECT_TRUE(inicio()) << "an item";
    combo->SetText(longo + u'x');
    EXPECT_TRUE(inicio()) << "a text of no item";
    combo->SetText(outro);
    EXPECT_TRUE(inicio()) << "the text of an item";

    QTest::keyClick(combo, Qt::Key_Up);
    EXPECT_EQ(combo->GetText(), longo);
    EXPECT_TRUE(inicio()) << "picked with an arrow key";
    EXPECT_EQ(combo->lineEdit()->selectedText(), longo);
    combo->showPopup();
    QTest::keyClick(combo->view(), Qt::Key_Down);
    QTest::keyClick(combo->view(), Qt::Key_Return);
    EXPECT_EQ(combo->GetText(), outro);
    EXPECT_TRUE(inicio()) << "picked from the list";
    QTest::keyClick(combo, Qt::Key_C);
    EXPECT_EQ(combo->GetText(), QStringLiteral("Campinas")) << "the next key types over it";

    combo->SetText(QString());
    QTest::keyClicks(combo, outro);
    EXPECT_FALSE(inicio()) << "not under the typing user";
    depois->setFocus();
    EXPECT_EQ(combo->GetText(), outro);
    EXPECT_TRUE(inicio()) << "left";
}

TEST_F(Combo, TheSearchFollowsEveryChangeOfTheList)
{
    EXPECT_EQ(combo->IndexOf(QStringLiteral("Sumaré")), -1);
    combo->AddItem(QStringLiteral("Sumaré"));
    EXPECT_EQ(combo->IndexOf(QStringLiteral("Sumaré")), 3);
    combo->insertItem(0, QStringLiteral("Sumaré"));
    EXPECT_EQ(combo->IndexOf(QStringLiteral("SUMARÉ")), 0);
    combo->setItemText(0, QStringLiteral("Sorocaba"));
    EXPECT_EQ(combo->IndexOf(QStringLiteral("sumaré")), 4);
    combo->removeItem(4);
    EXPECT_EQ(combo->IndexOf(QStringLiteral("sumaré")), -1);
    combo->SetItems({QStringLiteral("b"), QStringLiteral("a")});
    EXPECT_EQ(combo->IndexOf(QStringLiteral("a")), 1);
    combo->model()->sort(0);
    EXPECT_EQ(combo->IndexOf(QStringLiteral("a")), 0);
    EXPECT_EQ(combo->ItemMaisLongo(), QStringLiteral("a"));
    QStringListModel outros({QStringLiteral("um"), QStringLiteral("dois")});
    combo->setModel(&outros);
    EXPECT_EQ(combo->IndexOf(QStringLiteral("dois")), 1);
    EXPECT_EQ(combo->ItemMaisLongo(), QStringLiteral("dois"));
    outros.setStringList({QStringLiteral("três"), QStringLiteral("dois"), QStringLiteral("um")});
    EXPECT_EQ(combo->IndexOf(QStringLiteral("um")), 2);
}

TEST_F(Combo, TheSearchOfAKeyIsThatOfTheWholeText)
{
    combo->SetItems({QStringLiteral("ab"), QStringLiteral("abc"), QStringLiteral("b"),
                     QStringLiteral("ABD"), QStringLiteral("a")});
    Abrir();
    QTest::keyClicks(combo, QStringLiteral("a"));
    EXPECT_EQ(combo->GetItemIndex(), 0);
    QTest::keyClicks(combo, QStringLiteral("bd"));
    EXPECT_EQ(combo->GetItemIndex(), 3) << "further down than the last find";
    QTest::keyClicks(combo, QStringLiteral("x"));
    EXPECT_EQ(combo->GetItemIndex(), -1);
    QTest::keyClick(combo, Qt::Key_Backspace);
    EXPECT_EQ(combo->GetItemIndex(), 3);
    QTest::keyClick(combo, Qt::Key_Backspace);
    EXPECT_EQ(combo->GetItemIndex(), 0) << "a shorter text searches from the top";
    QTest::keyClick(combo, Qt::Key_Backspace);
    EXPECT_EQ(combo->GetItemIndex(), 4) << "a whole item, not one that begins so";
}

TEST_F(Combo, HandlerMayDestroyTheCombo)
{
    Abrir();
    const QPointer<TComboBox> vivo(combo);
    combo->OnChange = [this](QObject *) { combo->deleteLater(); };
    QTest::keyClicks(combo, QStringLiteral("s"));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(Combo, HandlersMayTakeThemselvesOut)
{
    Abrir();
    EXPECT_TRUE(
        InteiroAoSair(combo->OnChange, [this] { QTest::keyClicks(combo, QStringLiteral("s")); }));
    EXPECT_TRUE(InteiroAoSair(combo->OnDropDown, [this] { QTest::keyClick(combo, Qt::Key_F4); }));
    ASSERT_TRUE(combo->DroppedDown());
    EXPECT_TRUE(InteiroAoSair(combo->OnCloseUp,
                              [this] { QTest::keyClick(combo->view(), Qt::Key_Escape); }));
}

TEST_F(Combo, HandlersOfTheTypedTextMayDestroyTheComboAtOnce)
{
    Abrir();
    QPointer<TComboBox> vivo(combo);
    combo->OnChange = [this](QObject *) { delete combo; };
    QTest::keyClicks(combo, QStringLiteral("s"));
    EXPECT_TRUE(vivo.isNull());
    vivo = combo = new TComboBox(&janela);
    combo->show();
    combo->setFocus();
    combo->SetAutoDropDown(true);
    combo->SetAutoCloseUp(true);
    combo->OnDropDown = [this](QObject *) { delete combo; };
    QTest::keyClicks(combo, QStringLiteral("s"));
    EXPECT_TRUE(vivo.isNull()) << "when typing opens the list";
}
