#include "input/UComboBoxCodBasFr.h"
#include "platform/database/ConexD.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TComboBox.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QSignalSpy>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TContadoFr : public TComboBoxCodBasFr
{
    Q_OBJECT
public:
    using TComboBoxCodBasFr::TComboBoxCodBasFr;
    int mudancas = 0, saidas = 0;

protected:
    void ComboBox1Change(QObject *sender) override
    {
        ++mudancas;
        TComboBoxCodBasFr::ComboBox1Change(sender);
    }
    void FrameExit(QObject *sender) override
    {
        ++saidas;
        TComboBoxCodBasFr::FrameExit(sender);
    }
};

/** The maintenance screen that a code combo opens. */
class TGruposF : public TForm, public ITelaManutencao
{
    Q_OBJECT
public:
    explicit TGruposF(TChave chave) : TForm(chave) {}
    bool AtivarAlteracao() override { return false; }
    TControlBasFr *GetChamador() const override { return chamador; }
    void SetChamador(TControlBasFr *novo) override { chamador = novo; }
    TControlBasFr *chamador = nullptr;
};

class TComboBoxCodBasFrTest : public TEntradaTest
{
protected:
    /** Groups "Bebidas" 20, "Carnes" 5 and "Doces" 300, and the code that row 1 and 2 hold. */
    void AbrirGrupos(const QString &quant = QStringLiteral("5"))
    {
        AbrirTabela({QStringLiteral("1, 'um', 0, ") + quant + QStringLiteral(", 'A', ''"),
                     QStringLiteral("2, 'dois', 0, 20, 'A', ''")});
        banco->Executar(QStringLiteral("create table grupo (grupo_cod integer, nome varchar(40))"));
        NovoGrupo(5, QStringLiteral("Carnes"));
        NovoGrupo(300, QStringLiteral("  Doces "));
        NovoGrupo(20, QStringLiteral("Bebidas"));
    }
    void NovoGrupo(int cod, const QString &nome)
    {
        banco->Executar(QStringLiteral("insert into grupo values (%1, '%2')").arg(cod).arg(nome));
    }
    TContadoFr *Grupos()
    {
        AbrirGrupos();
        auto *fr = Mostrado<TContadoFr>();
        fr->SetSQLText(Select);
        QCoreApplication::processEvents();
        return fr;
    }
    /** The same, bound to the column that holds the code. */
    TContadoFr *Preso()
    {
        TContadoFr *fr = Grupos();
        Prender(fr, "quant", QStringLiteral("Grupo"));
        return fr;
    }
    /** An action that runs what it is told, as the host's screen would set it. */
    TAction *Acao(std::function<void()> executar)
    {
        auto *acao = new TAction(new TActionList(&tela));
        acao->OnExecute = [executar = std::move(executar)](QObject *) { executar(); };
        return acao;
    }
    static QStringList Itens(const TComboBoxCodBasFr *fr)
    {
        QStringList itens;
        for (int i = 0; i < fr->ComboBox1->Count(); ++i)
            itens << QStringLiteral("%1=%2")
                         .arg(fr->ComboBox1->GetObjeto(i))
                         .arg(fr->ComboBox1->Item(i));
        return itens;
    }
    static QWidget *Teclado(TComboBoxCodBasFr *fr)
    {
        return fr->ComboBox1->DroppedDown() ? fr->ComboBox1->view() : Foco();
    }
    void ClicarEditar(TComboBoxCodBasFr *fr)
    {
        QTest::mouseClick(fr->EditBitBtn, Qt::LeftButton);
        QCoreApplication::processEvents();
    }
    /** A large list: 100,000 codes 1..n, "Item 000001" and so on. */
    void AbrirCemMil()
    {
        AbrirTabela();
        banco->Executar(QStringLiteral("create table grupo (grupo_cod integer, nome varchar(40))"));
        banco->Executar(QStringLiteral(
            "execute block as declare i integer = 0; begin while (i < 100000) do begin i = i + 1; "
            "insert into grupo values (:i, 'Item ' || lpad(:i, 6, '0')); end end"));
    }

    const QString Select = QStringLiteral("select grupo_cod, nome from grupo order by trim(nome)");
};

} // namespace

TEST_F(TComboBoxCodBasFrTest, Layout)
{
    auto *fr = Por<TComboBoxCodBasFr>();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TComboBoxCodBasFr")));
    EXPECT_EQ(fr->size(), QSize(146, 48));
    EXPECT_EQ(fr->ComboBox1->geometry(), QRect(0, 15, 120, 21));
    EXPECT_EQ(fr->EditBitBtn->geometry(), QRect(119, 14, 22, 22));
    EXPECT_EQ(fr->EditBitBtn->text(), QString());
    EXPECT_FALSE(fr->EditBitBtn->icon().isNull());
    EXPECT_FALSE(fr->EditBitBtn->focusPolicy() & Qt::TabFocus);
    EXPECT_FALSE(fr->EditBitBtn->accessibleName().isEmpty());
    EXPECT_FALSE(fr->EditBitBtn->toolTip().isEmpty());
    EXPECT_EQ(fr->SQLQuery1->parent(), fr);
    EXPECT_EQ(fr->SQLQuery1->GetSQL(), QString());
}

TEST_F(TComboBoxCodBasFrTest, TheSelectFillsTheListInItsOrder)
{
    auto *fr = Grupos();
    EXPECT_EQ(Itens(fr), (QStringList{QStringLiteral("20=Bebidas"), QStringLiteral("5=Carnes"),
                                      QStringLiteral("300=Doces")}));
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
    EXPECT_EQ(fr->mudancas, 0);
    EXPECT_FALSE(fr->SQLQuery1->Active());
    EXPECT_EQ(fr->GetSQLText(), Select);
    EXPECT_EQ(fr->SQLQuery1->GetSQLConnection(), ConexD().SQLConnection);

    const QString outro = QStringLiteral("select grupo_cod, nome from grupo where grupo_cod=5");
    ASSERT_TRUE(fr->setProperty("SQLText", outro));
    EXPECT_EQ(Itens(fr), QStringList{QStringLiteral("5=Carnes")});
    fr->SetSQLText({});
    EXPECT_EQ(fr->ComboBox1->Count(), 0);
}

TEST_F(TComboBoxCodBasFrTest, AQueryOnAConnectionOfItsOwnKeepsIt)
{
    AbrirGrupos();
    auto *fr = Por<TComboBoxCodBasFr>();
    fr->SQLQuery1->SetSQLConnection(&banco->Conexao());
    ConexD().SQLConnection = nullptr;
    fr->SetSQLText(Select);
    EXPECT_EQ(fr->ComboBox1->Count(), 3);
}

TEST_F(TComboBoxCodBasFrTest, GetValorWithNothingSelectedIs0AndSQLStringIs0Unquoted)
{
    auto *fr = Grupos();
    EXPECT_EQ(fr->GetValor(), Variant(0));
    EXPECT_TRUE(fr->GetValor().EhInteiro());
    EXPECT_EQ(fr->SQLString(), QStringLiteral("0"));
    fr->SetValor(300);
    EXPECT_EQ(fr->GetValor(), Variant(300));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("300"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("Doces"));
    fr->SetValor(Null);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
}

TEST_F(TComboBoxCodBasFrTest, NegativeCodesKeepTheirSign)
{
    AbrirGrupos();
    NovoGrupo(-7, QStringLiteral("Avulsos"));
    auto *fr = Por<TComboBoxCodBasFr>();
    fr->SetSQLText(Select);
    fr->SetValor(-7);
    EXPECT_EQ(fr->GetValor(), Variant(-7));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("-7"));
}

TEST_F(TComboBoxCodBasFrTest, SetValorOfACodeThatIsNotInTheListRefillsTheListOnceBeforeGivingUp)
{
    auto *fr = Grupos();
    QSignalSpy aberturas(fr->SQLQuery1, &TDataSet::AfterOpen);
    fr->SetValor(5);
    EXPECT_EQ(aberturas.count(), 0);
    NovoGrupo(9, QStringLiteral("Queijos"));
    fr->SetValor(9);
    EXPECT_EQ(aberturas.count(), 1);
    EXPECT_EQ(fr->AsString(), QStringLiteral("Queijos"));
    fr->SetValor(12345);
    EXPECT_EQ(aberturas.count(), 2);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    fr->SetValor(Null);
    EXPECT_EQ(aberturas.count(), 2);
}

TEST_F(TComboBoxCodBasFrTest, WithoutASelectTheItemsOfTheScreenStay)
{
    AbrirGrupos();
    auto *fr = Mostrado<TContadoFr>();
    fr->ComboBox1->AddItem(QStringLiteral("um"), 1);
    fr->ComboBox1->AddItem(QStringLiteral("dois"), 2);
    fr->SetValor(7);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    fr->SetValor(2);
    EXPECT_EQ(fr->GetValor(), Variant(2));
    EXPECT_EQ(fr->ComboBox1->Count(), 2);
    EXPECT_THROW(fr->PreencherComboBox1(), EDatabaseError);
    EXPECT_EQ(fr->ComboBox1->Count(), 2);
}

TEST_F(TComboBoxCodBasFrTest, ItemsAddedAndChangedOneByOneAreFoundByTheirCodes)
{
    auto *fr = Grupos();
    fr->ComboBox1->AddItem(QStringLiteral("Outros"), 99);
    EXPECT_TRUE(fr->TemCod(99));
    fr->ComboBox1->SetObjeto(3, 98);
    EXPECT_FALSE(fr->TemCod(99));
    EXPECT_TRUE(fr->TemCod(98));
    fr->ComboBox1->removeItem(0);
    EXPECT_FALSE(fr->TemCod(20));
    fr->SetValor(98);
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), 2);
    fr->ComboBox1->Clear();
    EXPECT_FALSE(fr->TemCod(98));
    fr->ComboBox1->SetItems({QStringLiteral("x"), QStringLiteral("y")});
    EXPECT_TRUE(fr->TemCod(0));
    EXPECT_EQ(fr->ComboBox1->GetItems(), (QStringList{QStringLiteral("x"), QStringLiteral("y")}));
}

TEST_F(TComboBoxCodBasFrTest, OfTwoItemsWithOneCodeTheFirstMatches)
{
    AbrirGrupos();
    NovoGrupo(5, QStringLiteral("Aves"));
    auto *fr = Por<TComboBoxCodBasFr>();
    fr->SetSQLText(Select);
    EXPECT_TRUE(fr->TemCod(5));
    EXPECT_FALSE(fr->TemCod(6));
    fr->SetValor(5);
    EXPECT_EQ(fr->AsString(), QStringLiteral("Aves"));
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), fr->ComboBox1->IndexOfObjeto(5));
}

TEST_F(TComboBoxCodBasFrTest, AValueThatIsNoNumberCountsAsCode0)
{
    auto *fr = Grupos();
    fr->SetValor(u"cinco");
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    NovoGrupo(0, QStringLiteral("(nenhum)"));
    fr->SetValor(u"cinco");
    EXPECT_EQ(fr->AsString(), QStringLiteral("(nenhum)"));
    fr->SetValor(u"5");
    EXPECT_EQ(fr->AsString(), QStringLiteral("Carnes"));
    fr->SetValor(1e300);
    EXPECT_EQ(fr->AsString(), QStringLiteral("(nenhum)"));
}

TEST_F(TComboBoxCodBasFrTest, ZerarSelectsTheItemOfCode0WithoutAQuery)
{
    auto *fr = Grupos();
    QSignalSpy aberturas(fr->SQLQuery1, &TDataSet::AfterOpen);
    fr->SetValor(5);
    fr->Zerar();
    EXPECT_EQ(fr->ComboBox1->GetItemIndex(), -1);
    EXPECT_EQ(aberturas.count(), 0);
    fr->ComboBox1->AddItem(QStringLiteral("(nenhum)"), 0);
    fr->Zerar();
    EXPECT_EQ(fr->AsString(), QStringLiteral("(nenhum)"));
}

TEST_F(TComboBoxCodBasFrTest, ATextThatTheUserEmptiesIsCode0)
{
    auto *fr = Grupos();
    NovoGrupo(0, QStringLiteral("(nenhum)"));
    fr->SetValor(5);
    fr->SetFocus();
    fr->ComboBox1->SelectAll();
    Teclar(Teclado(fr), Qt::Key_Delete);
    EXPECT_EQ(fr->mudancas, 1);
    EXPECT_EQ(fr->AsString(), QStringLiteral("(nenhum)"));
    EXPECT_EQ(fr->GetValor(), Variant(0));
}

TEST_F(TComboBoxCodBasFrTest, EmptyingTheTextWithTheListOpenRefillsItSafely)
{
    auto *fr = Grupos();
    fr->SetFocus();
    Teclar(Teclado(fr), u'c');
    ASSERT_TRUE(fr->ComboBox1->DroppedDown());
    ASSERT_EQ(fr->GetValor(), Variant(5));
    NovoGrupo(6, QStringLiteral("Chás"));
    // The first takes the completion away, the second the letter.
    Teclar(Teclado(fr), Qt::Key_Backspace);
    Teclar(Teclado(fr), Qt::Key_Backspace);
    EXPECT_EQ(fr->ComboBox1->GetText(), QString());
    EXPECT_EQ(fr->ComboBox1->Count(), 4);
    Teclar(Teclado(fr), u'd');
    EXPECT_EQ(fr->GetValor(), Variant(300));
}

TEST_F(TComboBoxCodBasFrTest, AFailingFillReachesTheCallerAndLeavesTheOldItems)
{
    auto *fr = Grupos();
    fr->SetValor(5);
    EXPECT_THROW(fr->SetSQLText(QStringLiteral("select x from nada")), EDatabaseError);
    EXPECT_EQ(fr->ComboBox1->Count(), 3);
    EXPECT_EQ(fr->GetValor(), Variant(5));
    EXPECT_FALSE(fr->SQLQuery1->Active());
    EXPECT_THROW(fr->SetValor(77), EDatabaseError);
    EXPECT_EQ(fr->GetValor(), Variant(5));

    EXPECT_THROW(fr->SetSQLText(QStringLiteral("select nome, nome from grupo")), EErro);
    EXPECT_EQ(fr->ComboBox1->Count(), 3);
    EXPECT_FALSE(fr->SQLQuery1->Active());
    fr->SetSQLText(Select);
    EXPECT_EQ(fr->ComboBox1->Count(), 3);
}

TEST_F(TComboBoxCodBasFrTest, AFailingFillInAHandlerGoesToTheErrorReport)
{
    auto *fr = Grupos();
    fr->SetValor(5);
    fr->SQLQuery1->SetSQL(QStringLiteral("select x from nada"));
    fr->SetFocus();
    fr->ComboBox1->SelectAll();
    Teclar(Teclado(fr), Qt::Key_Delete);
    EXPECT_EQ(erros.size(), 1);
    erros.clear();
    EXPECT_EQ(fr->ComboBox1->Count(), 3);
}

TEST_F(TComboBoxCodBasFrTest, MovingTheTableShowsItsCodesAndStartsNoAlteration)
{
    auto *fr = Preso();
    EXPECT_EQ(fr->GetValor(), Variant(5));
    tabela->Next();
    EXPECT_EQ(fr->GetValor(), Variant(20));
    EXPECT_EQ(fr->AsString(), QStringLiteral("Bebidas"));
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(fr->mudancas, 0);
}

TEST_F(TComboBoxCodBasFrTest, TypingStartsAnAlterationOnceAndSelectsTheCode)
{
    auto *fr = Preso();
    fr->SetFocus();
    Teclar(Teclado(fr), u'd');
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    Teclar(Teclado(fr), Qt::Key_Tab);
    EXPECT_EQ(fr->GetValor(), Variant(300));
    EXPECT_EQ(Foco(), depois);
    tabela->AltCancel();
    tabela->Campos->Undo();
    EXPECT_EQ(fr->GetValor(), Variant(5));
}

TEST_F(TComboBoxCodBasFrTest, ARefusedAlterationWarnsOnceAndTheStoredCodeIsShownAgain)
{
    auto *fr = Preso();
    tela.recusa = true;
    fr->SetFocus();
    Teclar(Teclado(fr), u'd');
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(fr->GetValor(), Variant(5));
    EXPECT_EQ(fr->AsString(), QStringLiteral("Carnes"));
}

TEST_F(TComboBoxCodBasFrTest, LeavingARequiredComboWarnsOnceAndTheFocusReturns)
{
    auto *fr = Preso();
    fr->SetValor(Null);
    fr->SetFocus();
    const QStringList um{QStringLiteral("Campo obrigatório\r\nFaça a escolha no campo Grupo ou "
                                        "clique em Cancelar.")};
    for (const Qt::Key tecla : {Qt::Key_Tab, Qt::Key_Backtab}) {
        avisos.clear();
        Teclar(Foco(), tecla);
        EXPECT_EQ(avisos, um);
        EXPECT_EQ(Foco(), fr->ComboBox1);
    }
    avisos.clear();
    QTest::mouseClick(antes, Qt::LeftButton);
    EXPECT_EQ(avisos, um);
    EXPECT_EQ(Foco(), fr->ComboBox1);
}

TEST_F(TComboBoxCodBasFrTest, TheButtonIsDisabledThenTheAlterationStartsThenTheScreenOpens)
{
    auto *fr = Preso();
    QStringList ordem;
    tela.antesDeAtivar = [&] {
        ordem << (fr->EditBitBtn->isEnabled() ? QStringLiteral("ligado")
                                              : QStringLiteral("alterar"));
    };
    TGruposF *form = nullptr;
    fr->SelecionarAction = Acao([&] {
        ordem << QStringLiteral("abrir");
        form = Criar<TGruposF>(nullptr);
        form->setObjectName(QStringLiteral("GruposF"));
    });
    fr->NomeFormSelecionar = QStringLiteral("GruposF");
    ClicarEditar(fr);
    EXPECT_EQ(ordem, (QStringList{QStringLiteral("alterar"), QStringLiteral("abrir")}));
    EXPECT_FALSE(fr->EditBitBtn->isEnabled());
    ASSERT_NE(form, nullptr);
    EXPECT_EQ(form->chamador, fr);
    EXPECT_EQ(fr->FormSelecionar, form);
    delete fr;
    EXPECT_EQ(form->chamador, nullptr);
    delete form;
}

TEST_F(TComboBoxCodBasFrTest, AClickOnTheButtonDoesNotLeaveTheFrame)
{
    auto *fr = Preso();
    fr->SetValor(Null);
    fr->SelecionarAction = Acao([] {});
    fr->SetFocus();
    ClicarEditar(fr);
    EXPECT_EQ(fr->saidas, 0);
    EXPECT_EQ(avisos, QStringList());
    EXPECT_EQ(Foco(), fr->ComboBox1);
}

TEST_F(TComboBoxCodBasFrTest, AClickOnTheButtonFromOutsideEntersTheFrame)
{
    auto *fr = Preso();
    fr->SelecionarAction = Acao([] {});
    ASSERT_EQ(Foco(), antes);
    ClicarEditar(fr);
    EXPECT_EQ(Foco(), fr->ComboBox1);
    EXPECT_FALSE(fr->EditBitBtn->isEnabled());
    EXPECT_EQ(tela.pedidos, 1);
}

TEST_F(TComboBoxCodBasFrTest, WithoutASelectionActionTheProgrammerIsTold)
{
    QStringList simples;
    Servicos().MensagemSimples = [&](const QString &texto) { simples << texto; };
    auto *fr = Grupos();
    ClicarEditar(fr);
    EXPECT_EQ(simples, QStringList{QStringLiteral("faltou indicar SelecionarAction")});
    EXPECT_FALSE(fr->EditBitBtn->isEnabled());
}

TEST_F(TComboBoxCodBasFrTest, AFailureOnTheWayToTheScreenGivesTheButtonBack)
{
    auto *fr = Preso();
    fr->SelecionarAction = Acao([] { throw EErro(QStringLiteral("sem conexão")); });
    ClicarEditar(fr);
    EXPECT_EQ(erros, QStringList{QStringLiteral("sem conexão")});
    erros.clear();
    EXPECT_TRUE(fr->EditBitBtn->isEnabled());
}

TEST_F(TComboBoxCodBasFrTest, AFrameDestroyedByItsSelectionActionGoesQuietly)
{
    auto *fr = Preso();
    const QPointer<TComboBoxCodBasFr> vivo = fr;
    fr->SelecionarAction = Acao([&] { fr->deleteLater(); });
    ClicarEditar(fr);
    EXPECT_TRUE(QTest::qWaitFor([&] { return vivo.isNull(); }, 1000));
}

namespace
{

/** A real form with a code combo and a next control. */
class TVendasF : public TForm
{
    Q_OBJECT
public:
    explicit TVendasF(TChave chave) : TForm(chave) {}
    void Create(QWidget *owner) override
    {
        TForm::Create(owner);
        antes = new QLineEdit(this);
        fr = Criar<TComboBoxCodBasFr>(this);
        fr->move(0, 30);
        depois = new QLineEdit(this);
        depois->move(0, 100);
        resize(200, 150);
    }
    QLineEdit *antes = nullptr, *depois = nullptr;
    TComboBoxCodBasFr *fr = nullptr;
};

} // namespace

TEST_F(TComboBoxCodBasFrTest, PegueNovoRefillsSelectsAndMovesTheFocusToTheNextControl)
{
    AbrirGrupos();
    const std::unique_ptr<TVendasF> form(Criar<TVendasF>(nullptr));
    form->fr->SetSQLText(Select);
    form->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    form->fr->SetFocus();
    NovoGrupo(9, QStringLiteral("Queijos"));
    form->fr->PegueNovo(9);
    EXPECT_EQ(form->fr->AsString(), QStringLiteral("Queijos"));
    EXPECT_EQ(form->fr->ComboBox1->Count(), 4);
    EXPECT_EQ(Foco(), form->depois);
    EXPECT_EQ(avisos, QStringList());

    form->fr->SetFocus();
    NovoGrupo(10, QStringLiteral("Zebra"));
    for (const int cod : {0, -1}) {
        form->fr->PegueNovo(cod);
        EXPECT_EQ(form->fr->AsString(), QStringLiteral("Queijos"));
        EXPECT_EQ(form->fr->ComboBox1->Count(), 4);
        EXPECT_EQ(Foco(), form->fr->ComboBox1);
    }
}

TEST_F(TComboBoxCodBasFrTest, AFormDestroyedWithTheListOpenGoesQuietly)
{
    AbrirGrupos();
    std::unique_ptr<TVendasF> form(Criar<TVendasF>(nullptr));
    form->fr->SetSQLText(Select);
    form->Show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form.get()));
    form->fr->SetFocus();
    Teclar(Foco(), u'b');
    ASSERT_TRUE(form->fr->ComboBox1->DroppedDown());
    form.reset();
    QCoreApplication::processEvents();
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TComboBoxCodBasFrTest, ATableThatDiesFirstLeavesAWorkingFrame)
{
    auto *fr = Preso();
    tabela.reset();
    tela.tabela = nullptr;
    EXPECT_EQ(fr->Tabela, nullptr);
    fr->SetFocus();
    Teclar(Teclado(fr), u'd');
    EXPECT_EQ(fr->GetValor(), Variant(300));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TComboBoxCodBasFrTest, AHundredThousandRowsFillInOneResetAndTypingDoesNotLag)
{
    AbrirCemMil();
    auto *fr = Mostrado<TContadoFr>();
    QSignalSpy trocas(fr->ComboBox1->model(), &QAbstractItemModel::modelReset);
    QSignalSpy insercoes(fr->ComboBox1->model(), &QAbstractItemModel::rowsInserted);
    QElapsedTimer relogio;
    relogio.start();
    fr->SetSQLText(QStringLiteral("select grupo_cod, nome from grupo"));
    const auto encher = relogio.restart();
    EXPECT_EQ(fr->ComboBox1->Count(), 100000);
    EXPECT_EQ(trocas.count(), 1);
    EXPECT_EQ(insercoes.count(), 0);

    constexpr int Vezes = 1000;
    for (int i = 0; i < Vezes; ++i)
        fr->SetValor(100000 - i);
    const auto mostrar = relogio.restart();
    EXPECT_EQ(fr->GetValor(), Variant(100000 - Vezes + 1));

    fr->SetValor(Null);
    fr->SetFocus();
    relogio.restart();
    Teclar(Teclado(fr), u'i');
    const auto primeira = relogio.restart();
    for (const QChar c : QStringLiteral("tem 0999"))
        Teclar(Teclado(fr), c);
    const auto oito = relogio.restart();
    for (const QChar c : QStringLiteral("xyz"))
        Teclar(Teclado(fr), c);
    const auto tres = relogio.elapsed();
    EXPECT_TRUE(fr->ComboBox1->DroppedDown());
    RecordProperty("fill_ms", int(encher));
    std::cout << "fill " << encher << " ms, " << Vezes << " SetValor " << mostrar
              << " ms, first key with the list opening " << primeira << " ms, 8 keys " << oito
              << " ms, 3 keys of no item " << tres << " ms\n";
    EXPECT_LT(encher, 10000);
    EXPECT_LT(mostrar, 2000);
    EXPECT_LT(primeira, 5000);
    EXPECT_LT(oito, 8 * 1000);
    EXPECT_LT(tres, 3 * 1000);
}

#include "TComboBoxCodBasFr_test.moc"
