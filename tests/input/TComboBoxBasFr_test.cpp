#include "input/UComboBoxBasFr.h"
#include "platform/toolkit/TComboBox.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Counts what the base calls. */
class TContadoFr : public TComboBoxBasFr
{
    Q_OBJECT
public:
    using TComboBoxBasFr::TComboBoxBasFr;
    void Atualizar() override
    {
        TComboBoxBasFr::Atualizar();
        ++atualizacoes;
    }
    int atualizacoes = 0, mudancas = 0, aberturas = 0, entradas = 0, saidas = 0;
    QList<int> teclas;
    QString caracteres;

protected:
    void ComboBox1Change(QObject *sender) override
    {
        EXPECT_EQ(sender, ComboBox1);
        ++mudancas;
        TComboBoxBasFr::ComboBox1Change(sender);
    }
    void ComboBox1DropDown(QObject *sender) override
    {
        EXPECT_EQ(sender, ComboBox1);
        ++aberturas;
        TComboBoxBasFr::ComboBox1DropDown(sender);
    }
    void ComboBox1KeyDown(QObject *sender, int &tecla, Qt::KeyboardModifiers estado) override
    {
        EXPECT_EQ(sender, ComboBox1);
        teclas << tecla;
        TComboBoxBasFr::ComboBox1KeyDown(sender, tecla, estado);
    }
    void ComboBox1KeyPress(QObject *sender, QChar &caractere) override
    {
        EXPECT_EQ(sender, ComboBox1);
        caracteres += caractere;
        TComboBoxBasFr::ComboBox1KeyPress(sender, caractere);
    }
    void FrameEnter(QObject *sender) override
    {
        ++entradas;
        TComboBoxBasFr::FrameEnter(sender);
    }
    void FrameExit(QObject *sender) override
    {
        ++saidas;
        TComboBoxBasFr::FrameExit(sender);
    }
};

class TComboBoxBasFrTest : public TEntradaTest
{
protected:
    /** Items without objects: "Amarelo", "Azul", "Branco". */
    template <typename T = TComboBoxBasFr>
    T *Cores()
    {
        T *fr = Mostrado<T>();
        fr->ComboBox1->SetItems(
            {QStringLiteral("Amarelo"), QStringLiteral("Azul"), QStringLiteral("Branco")});
        // The edit still has the activation of the window to handle.
        QCoreApplication::processEvents();
        return fr;
    }
    /** The widget that has the keyboard, an open list included. */
    static QWidget *Teclado(TComboBoxBasFr *fr)
    {
        return fr->ComboBox1->DroppedDown() ? fr->ComboBox1->view() : Foco();
    }
    static void Entrar(TComboBoxBasFr *fr)
    {
        fr->SetFocus();
        ASSERT_EQ(Foco(), fr->ComboBox1);
    }
    static void ClicarNaSeta(TComboBox *combo)
    {
        QTest::mouseClick(combo, Qt::LeftButton, {},
                          QPoint(combo->width() - 8, combo->height() / 2));
        QCoreApplication::processEvents();
    }
};

const QString Obrigatorio =
    QStringLiteral("Campo obrigatório\r\nFaça a escolha ou clique em Cancelar.");

} // namespace

TEST_F(TComboBoxBasFrTest, AFreshFrameIsRequiredAndHasNoValueOfItsOwn)
{
    auto *fr = Por<TComboBoxBasFr>();
    EXPECT_FALSE(fr->AceitaVazio);
    EXPECT_FALSE(fr->NaoRepetir);
    EXPECT_EQ(fr->GetTitulo(), QStringLiteral("TitLabel"));
    EXPECT_EQ(fr->TitLabel->pos(), QPoint(2, 0));
    EXPECT_EQ(fr->ComboBox1->geometry(), QRect(0, 15, 145, 21));
    EXPECT_TRUE(fr->ComboBox1->GetAutoDropDown());
    EXPECT_TRUE(fr->ComboBox1->GetAutoCloseUp());
    EXPECT_EQ(fr->ComboBox1->GetItemHeight(), 13);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_TRUE(fr->GetValor().EhInteiro());
    EXPECT_EQ(fr->GetValor(), Variant(0));
    fr->ComboBox1->SetItems({QStringLiteral("um")});
    fr->SetValor(u"um");
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
}

TEST_F(TComboBoxBasFrTest, Layout)
{
    EXPECT_TRUE(ConfereLayout(Por<TComboBoxBasFr>(), QStringLiteral("TComboBoxBasFr")));
}

TEST_F(TComboBoxBasFrTest, TheCaptionNamesTheListToAssistiveTools)
{
    auto *fr = Por<TComboBoxBasFr>();
    ASSERT_TRUE(fr->setProperty("Titulo", QStringLiteral("Cor <b>")));
    ASSERT_TRUE(fr->setProperty("AceitaVazio", true));
    EXPECT_EQ(fr->TitLabel->text(), QStringLiteral("Cor <b>"));
    EXPECT_EQ(fr->TitLabel->textFormat(), Qt::PlainText);
    EXPECT_EQ(fr->TitLabel->buddy(), fr->ComboBox1);
    EXPECT_TRUE(fr->AceitaVazio);
}

TEST_F(TComboBoxBasFrTest, TheTextIsTrimmedForDisplayAndUnquotedForSQL)
{
    auto *fr = Por<TComboBoxBasFr>();
    fr->ComboBox1->SetItems({QStringLiteral("  O'Brien ")});
    fr->ComboBox1->SetItemIndex(0);
    EXPECT_EQ(fr->AsString(), QStringLiteral("O'Brien"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("O'Brien"));
}

TEST_F(TComboBoxBasFrTest, ARequiredComboWithNothingSelectedRefusesAndTheFocusReturnsToIt)
{
    auto *fr = Cores<TContadoFr>();
    for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Backtab}) {
        Entrar(fr);
        avisos.clear();
        Teclar(Foco(), tecla);
        EXPECT_EQ(avisos, QStringList{Obrigatorio});
        EXPECT_EQ(Foco(), fr->ComboBox1);
    }
    avisos.clear();
    QTest::mouseClick(depois, Qt::LeftButton);
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_EQ(fr->saidas, 3);

    fr->AceitaVazio = true;
    avisos.clear();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TComboBoxBasFrTest, ABoundRequiredComboNamesItsColumn)
{
    AbrirTabela();
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->Zerar();
    fr->ComboBox1->SetItemIndex(-1);
    Entrar(fr);
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(avisos,
              QStringList{QStringLiteral("Campo obrigatório\r\nFaça a escolha no campo Cor ou "
                                         "clique em Cancelar.")});
}

TEST_F(TComboBoxBasFrTest, ARealMessageBoxOnLeavingAppearsOnceAndTheFocusReturns)
{
    Servicos().MensagemAviso = {};
    auto *fr = Cores();
    Entrar(fr);
    int caixas = 0;
    QTimer fechador;
    QObject::connect(&fechador, &QTimer::timeout, &fechador, [&] {
        if (auto *caixa = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
            ++caixas;
            EXPECT_TRUE(caixa->text().contains(QStringLiteral("Campo obrigatório")));
            caixa->buttons().constFirst()->click();
        }
    });
    fechador.start(20);
    QTest::keyClick(Foco(), Qt::Key_Tab);
    QTest::qWait(150);
    EXPECT_EQ(caixas, 1);
    EXPECT_TRUE(QTest::qWaitForWindowActive(&tela));
    EXPECT_EQ(Foco(), fr->ComboBox1);
}

TEST_F(TComboBoxBasFrTest, ARefusalAskedByTheScreenFocusesTheListToo)
{
    auto *fr = Cores();
    EXPECT_EQ(Foco(), antes);
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
}

TEST_F(TComboBoxBasFrTest, ATextWithoutAnItemIsNoChoice)
{
    auto *fr = Cores();
    fr->ComboBox1->SetText(QStringLiteral("Cinza"));
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
    EXPECT_EQ(fr->ComboBox1->GetText(), QStringLiteral("Cinza")) << "only leaving empties it";
    fr->ComboBox1->SetText(QStringLiteral("azul"));
    EXPECT_TRUE(fr->ValorAceitavel());
}

TEST_F(TComboBoxBasFrTest, TypingATextThatIsNoItemAndLeavingEmptiesIt)
{
    auto *fr = Cores();
    fr->AceitaVazio = true;
    fr->ComboBox1->SetItemIndex(1);
    Entrar(fr);
    Teclar(Foco(), Qt::Key_Home);
    Teclar(Foco(), u'x');
    ASSERT_EQ(fr->ComboBox1->GetText(), QStringLiteral("xAzul"));
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_FALSE(fr->ComboBox1->DroppedDown());
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
}

TEST_F(TComboBoxBasFrTest, TypingATextThatIsNoItemIntoARequiredComboWarnsOnceOnLeaving)
{
    auto *fr = Cores();
    Entrar(fr);
    Digitar(Foco(), QStringLiteral("zz"));
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
}

TEST_F(TComboBoxBasFrTest, TypingAnItemsTextAndLeavingSelectsThatItem)
{
    auto *fr = Cores();
    fr->ComboBox1->SetAutoComplete(false);
    Entrar(fr);
    for (const QChar c : QStringLiteral("Azul"))
        Teclar(Teclado(fr), c);
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TComboBoxBasFrTest, TheSearchOnLeavingIgnoresLetterCaseAndTheItemsOwnTextIsShown)
{
    auto *fr = Cores();
    fr->ComboBox1->SetItems({QStringLiteral("Amarelo"), QStringLiteral("Ação")});
    fr->ComboBox1->SetAutoComplete(false);
    Entrar(fr);
    for (const QChar c : QStringLiteral("aÇÃO"))
        Teclar(Teclado(fr), c);
    ASSERT_EQ(fr->ComboBox1->GetText(), QStringLiteral("aÇÃO"));
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QStringLiteral("Ação"));
}

TEST_F(TComboBoxBasFrTest, BlanksAroundAnItemsTextMakeItNoItem)
{
    auto *fr = Cores();
    fr->AceitaVazio = true;
    Entrar(fr);
    fr->ComboBox1->SetText(QStringLiteral(" Azul"));
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
}

TEST_F(TComboBoxBasFrTest, OfItemsWithTheSameTextTheOneThatWasPickedStaysOnLeaving)
{
    auto *fr = Cores();
    fr->ComboBox1->Clear();
    for (int i = 0; i < 3; ++i)
        fr->ComboBox1->AddItem(QStringLiteral("Santa Rita"), 10 + i);
    Entrar(fr);
    fr->ComboBox1->SetItemIndex(2);
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 2);

    Entrar(fr);
    fr->ComboBox1->SetItemIndex(-1);
    fr->ComboBox1->SetText(QStringLiteral("santa rita"));
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 0);
}

TEST_F(TComboBoxBasFrTest, EnteringTheFrameFocusesTheList)
{
    auto *fr = Cores<TContadoFr>();
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_EQ(fr->entradas, 1);
    EXPECT_EQ(fr->saidas, 0);
    EXPECT_GE(fr->atualizacoes, 1);
}

TEST_F(TComboBoxBasFrTest, TheFocusSelectsTheTextSoThatTheNextKeyTypesOverIt)
{
    auto *fr = Cores();
    fr->ComboBox1->SetItemIndex(2);
    Entrar(fr);
    EXPECT_EQ(fr->ComboBox1->lineEdit()->selectedText(), QStringLiteral("Branco"));
    Digitar(Teclado(fr), QStringLiteral("a"));
    EXPECT_EQ(fr->ComboBox1->GetText(), QStringLiteral("Amarelo"));
    EXPECT_EQ(fr->ComboBox1->lineEdit()->selectedText(), QStringLiteral("marelo"));
    Teclar(Teclado(fr), u'z');
    EXPECT_EQ(fr->ComboBox1->GetText(), QStringLiteral("Azul"));
}

TEST_F(TComboBoxBasFrTest, OnlyTheUserAnnouncesAndEachChangeRefreshesTheFrame)
{
    auto *fr = Cores<TContadoFr>();
    fr->ComboBox1->SetItemIndex(1);
    fr->ComboBox1->SetText(QStringLiteral("Branco"));
    fr->Zerar();
    EXPECT_EQ(fr->mudancas, 0);
    Entrar(fr);
    const int antesDaTecla = fr->atualizacoes;
    Teclar(Foco(), Qt::Key_Down);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_EQ(fr->atualizacoes, antesDaTecla + 1);
}

TEST_F(TComboBoxBasFrTest, TypingOpensTheListWithoutBlocking)
{
    auto *fr = Cores<TContadoFr>();
    Entrar(fr);
    Teclar(Foco(), u'b');
    EXPECT_TRUE(fr->ComboBox1->DroppedDown());
    EXPECT_EQ(fr->aberturas, 1);
    EXPECT_EQ(fr->caracteres, QStringLiteral("b"));
    EXPECT_EQ(fr->ComboBox1->GetText(), QStringLiteral("Branco"));
    EXPECT_EQ(fr->mudancas, 1);
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_FALSE(fr->ComboBox1->DroppedDown());
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 2);
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(fr->saidas, 1);
}

TEST_F(TComboBoxBasFrTest, TheOpenListIsAsWideAsItsLongestTextInsideTheScreen)
{
    auto *fr = Cores();
    const QString longo = QStringLiteral("Laticínios, queijos finos e derivados do leite");
    fr->ComboBox1->AddItem(longo);
    Entrar(fr);
    fr->ComboBox1->SetDroppedDown(true);
    QCoreApplication::processEvents();
    QAbstractItemView *lista = fr->ComboBox1->view();
    EXPECT_GT(lista->viewport()->width(), lista->fontMetrics().horizontalAdvance(longo));
    fr->ComboBox1->SetDroppedDown(false);

    fr->ComboBox1->AddItem(QString(5000, u'm'));
    fr->ComboBox1->SetDroppedDown(true);
    QCoreApplication::processEvents();
    EXPECT_TRUE(lista->screen()->availableGeometry().contains(lista->window()->frameGeometry()));
}

TEST_F(TComboBoxBasFrTest, ALongTextThatTheProgramSelectsIsShownFromItsBeginning)
{
    auto *fr = Cores();
    fr->ComboBox1->Clear();
    fr->ComboBox1->AddItem(QStringLiteral("Laticínios, queijos finos e derivados do leite"));
    fr->Zerar();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 0);
    EXPECT_EQ(fr->ComboBox1->lineEdit()->cursorPosition(), 0);
}

TEST_F(TComboBoxBasFrTest, ClickingAnItemOfTheOpenListPicksIt)
{
    AbrirTabela();
    auto *fr = Cores<TContadoFr>();
    Prender(fr, "descr", QStringLiteral("Cor"));
    Entrar(fr);
    ClicarNaSeta(fr->ComboBox1);
    ASSERT_TRUE(fr->ComboBox1->DroppedDown());
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->mudancas, 0);
    QAbstractItemView *lista = fr->ComboBox1->view();
    const QRect linha = lista->visualRect(fr->ComboBox1->model()->index(2, 0));
    // The list ignores a button that goes up at once after it opened.
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    QTest::mouseMove(lista->viewport(), linha.center());
    QTest::mouseClick(lista->viewport(), Qt::LeftButton, {}, linha.center());
    QCoreApplication::processEvents();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 2);
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(fr->saidas, 0);
}

TEST_F(TComboBoxBasFrTest, EveryCharacterOfTheListAndTheDeletingKeysStartAnAlteration)
{
    AbrirTabela();
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->ComboBox1->SetAutoDropDown(false);
    Entrar(fr);
    const QString lista = QStringLiteral(
        " 1234567890!@#$%&*()QWERTYUIOPÇLKJHGFDSAZXCVBNMqwertyuiopçlkjhgfdsazxcvbnm<>,.;:/\\|?]}["
        "{=-_+");
    ASSERT_EQ(lista.size(), 92);
    for (const QChar c : lista) {
        fr->ComboBox1->SetText({});
        tela.pedidos = 0;
        Teclar(Foco(), c);
        EXPECT_EQ(tela.pedidos, 1) << int(c.unicode());
        EXPECT_EQ(fr->ComboBox1->GetText().left(1).toLower(), QString(c).toLower());
        tabela->AltCancel();
    }
    for (const Qt::Key tecla : {Qt::Key_Delete, Qt::Key_Backspace}) {
        fr->ComboBox1->SetText({});
        tela.pedidos = 0;
        Teclar(Foco(), tecla);
        EXPECT_EQ(tela.pedidos, 1) << tecla;
        tabela->AltCancel();
    }
}

TEST_F(TComboBoxBasFrTest, AnyChangeOfTheUserStartsAnAlterationButKeysThatChangeNothingDoNot)
{
    AbrirTabela();
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->ComboBox1->SetAutoDropDown(false);
    Entrar(fr);
    for (const Qt::Key tecla : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Left, Qt::Key_F5})
        Teclar(Foco(), tecla);
    EXPECT_EQ(tela.pedidos, 0);
    Teclar(Foco(), u'é');
    EXPECT_EQ(tela.pedidos, 1);
    tabela->AltCancel();
    Teclar(Foco(), Qt::Key_Down);
    EXPECT_EQ(tela.pedidos, 2);
    tabela->AltCancel();
    Colar(Foco(), QStringLiteral("Branco"));
    EXPECT_EQ(tela.pedidos, 3);
    tabela->AltCancel();
    Teclar(Foco(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(fr->ComboBox1->DroppedDown());
    EXPECT_EQ(tela.pedidos, 4);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
}

TEST_F(TComboBoxBasFrTest, TheProgramNeverStartsAnAlteration)
{
    AbrirTabela({QStringLiteral("1, 'a', 0, 0, 'A', ''"), QStringLiteral("2, 'b', 0, 0, 'B', ''")});
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->ComboBox1->SetItemIndex(2);
    fr->ComboBox1->SetText(QStringLiteral("Azul"));
    fr->Zerar();
    tabela->Next();
    tabela->Prior();
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TComboBoxBasFrTest, ARefusedAlterationWarnsOncePerKey)
{
    AbrirTabela();
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    tela.recusa = true;
    Entrar(fr);
    Teclar(Foco(), u'b');
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    fr->ComboBox1->SetDroppedDown(false);
    QCoreApplication::processEvents();
    Teclar(Foco(), u'b');
    EXPECT_EQ(avisos.size(), 2);
}

TEST_F(TComboBoxBasFrTest, ZerarSelectsTheFirstItemWithoutAnObject)
{
    auto *fr = Por<TComboBoxBasFr>();
    fr->ComboBox1->AddItem(QStringLiteral("com"), 7);
    fr->ComboBox1->AddItem(QStringLiteral("sem"), 0);
    fr->ComboBox1->AddItem(QStringLiteral("outro sem"), 0);
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
    EXPECT_EQ(fr->Frases.Objeto(0), 0);
    fr->ComboBox1->SetObjeto(1, 8);
    fr->ComboBox1->SetObjeto(2, 9);
    fr->Zerar();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
}

TEST_F(TComboBoxBasFrTest, TheReferencePhraseEndsWithTheAdviceAlways)
{
    AbrirTabela();
    auto *fr = Por<TComboBoxBasFr>();
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Escolha um item"));
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->NaoRepetir = true;
    EXPECT_EQ(fr->FraseRef(), QStringLiteral(" Cor:  [Tab]Avançar  Não pode ser repetido Escolha "
                                             "um item"));
}

namespace
{

/** A literal fit for a text column, as a screen would derive one. */
class TTextoSQLFr : public TComboBoxBasFr
{
    Q_OBJECT
public:
    using TComboBoxBasFr::TComboBoxBasFr;
    QString SQLString() const override { return u'\'' + AsString() + u'\''; }
};

} // namespace

TEST_F(TComboBoxBasFrTest, ARepeatedValueRefusesWithOneMessageAndTheFocusReturns)
{
    AbrirTabela({QStringLiteral("1, 'Azul', 0, 0, 'A', ''")});
    auto *fr = Cores<TTextoSQLFr>();
    Prender(fr, "descr", QStringLiteral("Cor"));
    fr->NaoRepetir = true;
    tabela->InsIni();
    Entrar(fr);
    fr->ComboBox1->SetItemIndex(1);
    Teclar(Foco(), Qt::Key_Tab);
    ASSERT_EQ(avisos.size(), 1);
    EXPECT_TRUE(avisos[0].startsWith(QStringLiteral("Repetição\r\nCor 'Azul' já existe")));
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 1);
}

TEST_F(TComboBoxBasFrTest, AFrameDestroyedWithItsListOpenGoesQuietly)
{
    auto *fr = Cores();
    Entrar(fr);
    Teclar(Foco(), u'a');
    ASSERT_TRUE(fr->ComboBox1->DroppedDown());
    delete fr;
    QCoreApplication::processEvents();
    depois->setFocus();
    EXPECT_EQ(Foco(), depois);
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TComboBoxBasFrTest, AFrameDestroyedInsideItsOwnRefusalGoesQuietly)
{
    auto *fr = Cores();
    const QPointer<TComboBoxBasFr> vivo = fr;
    aoAvisar = [&] { delete fr; };
    EXPECT_FALSE(fr->ValorAceitavel());
    EXPECT_TRUE(vivo.isNull());
    EXPECT_EQ(avisos, QStringList{Obrigatorio});
}

TEST_F(TComboBoxBasFrTest, AFrameDestroyedByTheAlterationThatItAskedForGoesQuietly)
{
    AbrirTabela();
    auto *fr = Cores();
    Prender(fr, "descr", QStringLiteral("Cor"));
    const QPointer<TComboBoxBasFr> vivo = fr;
    tela.antesDeAtivar = [&] { delete fr; };
    Entrar(fr);
    Teclar(Foco(), Qt::Key_Down, Qt::AltModifier);
    EXPECT_TRUE(vivo.isNull());
}

#include "TComboBoxBasFr_test.moc"
