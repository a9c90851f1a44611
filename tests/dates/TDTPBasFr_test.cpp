#include "dates/UDTPBasFr.h"
#include "platform/core/Relogio.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QTableView>

using namespace ficha;
using namespace ficha::testes;

namespace
{

/** Counts its refreshes and what its handlers see. */
class TDTPObservado : public TDTPBasFr
{
public:
    explicit TDTPObservado(TChave chave) : TDTPBasFr(chave) {}
    void Atualizar() override
    {
        ++atualizacoes;
        TDTPBasFr::Atualizar();
    }
    int atualizacoes = 0;
    int saidas = 0;

protected:
    void FrameExit(QObject *sender) override
    {
        ++saidas;
        TDTPBasFr::FrameExit(sender);
    }
};

/** A date control as a host might write it: without an editor. */
class TDateControlNu : public TDateControlBasFr
{
public:
    explicit TDateControlNu(TChave chave) : TDateControlBasFr(chave) {}
};

class TDTPBasFrTest : public TEntradaTest
{
protected:
    TDTPBasFrTest()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
    }
    ~TDTPBasFrTest() override { SetRelogio({}); }

    void Montar()
    {
        fr = Mostrado<TDTPObservado>();
        data = fr->DateTimePicker1;
    }
    /** Shown and bound to the column of a table with these dates. */
    void MontarPreso(const QStringList &datas = {QStringLiteral("'2026-02-15'")})
    {
        banco.emplace(QStringLiteral(
            "create table testes (testes_cod integer not null primary key, nasc date);"
            "create generator testes_cod_gen;"));
        for (int i = 0; i < datas.size(); ++i)
            banco->Executar(
                QStringLiteral("insert into testes values (%1, %2)").arg(i + 1).arg(datas[i]));
        query.SetSQLConnection(&banco->Conexao());
        query.SetSQL(QStringLiteral("select * from testes order by testes_cod"));
        query.Open();
        tabela = Criar<TTabelaLinear>(&query, QStringLiteral("testes"));
        tela.tabela = tabela.get();
        Montar();
        Prender(fr, "nasc", QStringLiteral("Nascimento"));
    }
    /** A key with Ctrl, with the control character that the desktop gives it. */
    void Comando(Qt::Key tecla, QChar caractere)
    {
        QTest::sendKeyEvent(QTest::Click, data, tecla, QString(caractere), Qt::ControlModifier);
    }
    QString Mostrada() const { return data->text(); }
    /** Drops the calendar down and picks with the keys: one week on. */
    void EscolherUmaSemanaDepois()
    {
        data->setFocus();
        QTest::keyClick(data, Qt::Key_F4);
        auto *calendario = QApplication::activePopupWidget()->findChild<TMonthCalendar *>();
        QTest::keyClick(calendario->findChild<QTableView *>(), Qt::Key_Down);
        QTest::keyClick(calendario->findChild<QTableView *>(), Qt::Key_Return);
        Girar();
        tela.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&tela));
    }

    TDTPObservado *fr = nullptr;
    TDateTimePicker *data = nullptr;
};

TEST_F(TDTPBasFrTest, LayoutIsTheGoldenOne)
{
    fr = Mostrado<TDTPObservado>();
    auto *puro = Criar<TDTPBasFr>(nullptr);
    puro->SetValor(TDateTime::DeData(28, 12, 2026));
    EXPECT_TRUE(ConfereLayout(puro, QStringLiteral("TDTPBasFr")));
    EXPECT_EQ(puro->TitLabel->buddy(), puro->DateTimePicker1);
    delete puro;
}

TEST_F(TDTPBasFrTest, TheBareDateControlHoldsADateOfItsOwn)
{
    auto *nu = Criar<TDateControlNu>(&tela);
    EXPECT_EQ(nu->TitLabel->text(), QStringLiteral("Data"));
    nu->SetValor(45361.75);
    EXPECT_EQ(nu->Data, TDateTime(45361));
    nu->Zerar();
    EXPECT_EQ(nu->Data, Hoje());
    nu->SetValor(Null);
    EXPECT_EQ(nu->AsString(), QStringLiteral("30/12/1899"));
    EXPECT_EQ(nu->SQLString(), QStringLiteral("'1899-12-30'"));
}

TEST_F(TDTPBasFrTest, TheValueIsARealNumberWithoutATimeOfDay)
{
    Montar();
    for (const Variant &v :
         {Variant(45361.75), Variant(TDateTime(45361.999)), Variant(45361), Variant(u"45361,5")}) {
        fr->SetValor(v);
        EXPECT_TRUE(fr->GetValor().EhDouble());
        EXPECT_EQ(fr->GetValor(), Variant(45361.0));
    }
    EXPECT_EQ(Mostrada(), QStringLiteral("10/03/2024"));
    EXPECT_EQ(fr->AsString(), QStringLiteral("10/03/2024"));
    EXPECT_EQ(fr->SQLString(), QStringLiteral("'2024-03-10'"));
    data->setFocus();
    Digitar(data, QStringLiteral("11"));
    EXPECT_TRUE(fr->GetValor().EhDouble());
    EXPECT_EQ(fr->GetValor(), Variant(45362.0));
}

TEST_F(TDTPBasFrTest, NullIsDayZeroAndWhatIsNoDateIsRefused)
{
    Montar();
    fr->SetValor(Null);
    EXPECT_EQ(fr->GetValor(), Variant(0.0));
    EXPECT_EQ(Mostrada(), QStringLiteral("30/12/1899"));
    fr->SetValor(Variant());
    EXPECT_EQ(fr->Data, TDateTime());
    fr->SetValor(29221);
    EXPECT_THROW(fr->SetValor(u"amanhã"), EVariantError);
    EXPECT_EQ(Mostrada(), QStringLiteral("01/01/1980"));
    EXPECT_EQ(fr->GetValor(), Variant(29221.0));
}

TEST_F(TDTPBasFrTest, AClearedInputShowsToday)
{
    Montar();
    EXPECT_EQ(fr->Data, Hoje()) << "and so does a fresh one";
    fr->SetValor(0);
    fr->Frases.SetObjeto(0, 1);
    fr->Zerar();
    EXPECT_EQ(fr->GetValor(), Variant(Hoje().Dias()));
    EXPECT_EQ(Mostrada(), QStringLiteral("20/11/2026"));
    EXPECT_EQ(fr->FrasesLigadas(), QString());
}

TEST_F(TDTPBasFrTest, AChangeRefreshesAndAClickDoesNot)
{
    Montar();
    fr->SetFocus();
    fr->atualizacoes = 0;
    Digitar(data, QStringLiteral("3"));
    EXPECT_EQ(fr->Data, TDateTime::DeData(3, 11, 2026));
    EXPECT_EQ(fr->atualizacoes, 1);
    fr->Data = TDateTime();
    QTest::mouseClick(data->findChild<QLineEdit *>(), Qt::LeftButton);
    EXPECT_EQ(fr->Data, TDateTime::DeData(3, 11, 2026)) << "taken from the picker again";
    EXPECT_EQ(fr->atualizacoes, 1);
}

TEST_F(TDTPBasFrTest, LoadingAnnouncesNothing)
{
    Montar();
    int mudancas = 0;
    QObject::connect(data, &TDateTimePicker::UserChanged, [&] { ++mudancas; });
    fr->atualizacoes = 0;
    fr->SetValor(45361);
    fr->Zerar();
    EXPECT_EQ(mudancas, 0);
    EXPECT_EQ(fr->atualizacoes, 0);
}

TEST_F(TDTPBasFrTest, EnteringHandsTheFocusOnToThePicker)
{
    Montar();
    fr->atualizacoes = 0;
    fr->setFocus();
    EXPECT_EQ(Foco(), data);
    EXPECT_EQ(fr->atualizacoes, 1) << "entering refreshes";
    antes->setFocus();
    fr->SetFocus();
    EXPECT_EQ(Foco(), data);
    antes->setFocus();
    Teclar(antes, Qt::Key_Tab);
    EXPECT_EQ(Foco(), data);
    Teclar(data, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
}

TEST_F(TDTPBasFrTest, AHiddenPickerIsGivenNoFocus)
{
    Montar();
    data->hide();
    antes->setFocus();
    fr->SetFocus();
    EXPECT_FALSE(data->hasFocus());
    data->show();
    fr->hide();
    fr->SetFocus();
    EXPECT_NE(Foco(), data);
    auto *solto = Criar<TDTPBasFr>(nullptr);
    solto->SetFocus();
    EXPECT_NE(solto->focusWidget(), solto->DateTimePicker1);
    delete solto;
}

TEST_F(TDTPBasFrTest, DeleteAndBackspaceStartAnAlteration)
{
    for (const Qt::Key tecla : {Qt::Key_Delete, Qt::Key_Backspace}) {
        MontarPreso();
        data->setFocus();
        EXPECT_EQ(tela.pedidos, 0) << "entering does not";
        Teclar(data, tecla);
        EXPECT_EQ(tela.pedidos, 1);
        EXPECT_EQ(tabela->Status, TStatus::Alterando);
        delete fr;
        delete depois;
        query.Close();
        tela.pedidos = 0;
    }
}

TEST_F(TDTPBasFrTest, ArrowsAndFunctionKeysDoNotStartOne)
{
    MontarPreso();
    data->setFocus();
    for (const Qt::Key tecla :
         {Qt::Key_Up, Qt::Key_Right, Qt::Key_Down, Qt::Key_Left, Qt::Key_PageUp, Qt::Key_PageDown,
          Qt::Key_Home, Qt::Key_End, Qt::Key_F1, Qt::Key_F2, Qt::Key_F5, Qt::Key_F12,
          Qt::Key_Escape, Qt::Key_Return, Qt::Key_Shift, Qt::Key_Control}) {
        Teclar(data, tecla);
        EXPECT_EQ(tela.pedidos, 0) << tecla;
    }
    Comando(Qt::Key_A, u'\x01');
    Comando(Qt::Key_C, u'\x03');
    EXPECT_EQ(tela.pedidos, 0);
    EXPECT_EQ(tabela->Status, TStatus::Ocioso);
    data->setFocus();
    Teclar(data, Qt::Key_Home);
    Teclar(data, Qt::Key_Up);
    EXPECT_NE(Mostrada(), QStringLiteral("15/02/2026")) << "though the date moves";
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TDTPBasFrTest, EveryCharacterOfTheListStartsAnAlterationAndOthersDoNot)
{
    MontarPreso();
    data->setFocus();
    const QString lista = QStringLiteral(
        " 1234567890!@#$%&*()QWERTYUIOPÇLKJHGFDSAZXCVBNMqwertyuiopçlkjhgfdsazxcvbnm<>,.;:/\\|?]}[{"
        "=-_+");
    ASSERT_EQ(lista.size(), 92);
    for (const QChar c : lista) {
        tela.pedidos = 0;
        tabela->Status = TStatus::Ocioso;
        QTest::sendKeyEvent(QTest::Press, data, Qt::Key_unknown, QString(c), Qt::NoModifier);
        EXPECT_EQ(tela.pedidos, 1) << qPrintable(QString(c));
        tabela->AltCancel();
    }
    tela.pedidos = 0;
    for (const QChar c : QStringLiteral("áÉ~^'\"`¨\t"))
        QTest::sendKeyEvent(QTest::Press, data, Qt::Key_unknown, QString(c), Qt::NoModifier);
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TDTPBasFrTest, TheFirstKeyOfAnAlterationIsTypedIntoTheStoredDate)
{
    MontarPreso();
    data->setFocus();
    Digitar(data, QStringLiteral("10032024"));
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(fr->GetValor(), Variant(45361.0));
    tabela->AltCancel();
    tabela->First();
    EXPECT_EQ(Mostrada(), QStringLiteral("15/02/2026")) << "the stored date is back";
}

TEST_F(TDTPBasFrTest, AnOpenAlterationIsNotStartedAgain)
{
    MontarPreso();
    tabela->AltIni();
    data->setFocus();
    Digitar(data, QStringLiteral("1"));
    Teclar(data, Qt::Key_Delete);
    EscolherUmaSemanaDepois();
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TDTPBasFrTest, ARefusedAlterationKeepsTheStoredDateAndTellsOnce)
{
    MontarPreso();
    tela.recusa = true;
    data->setFocus();
    Teclar(data, u'3');
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(Mostrada(), QStringLiteral("15/02/2026"));
    EXPECT_EQ(fr->GetValor(), Variant(TDateTime::DeData(15, 2, 2026).Dias()));
    avisos.clear();
    EscolherUmaSemanaDepois();
    EXPECT_EQ(avisos, QStringList{QStringLiteral("ocupado")});
    EXPECT_EQ(Mostrada(), QStringLiteral("15/02/2026"));
    EXPECT_EQ(fr->GetValor(), Variant(TDateTime::DeData(15, 2, 2026).Dias()));
}

TEST_F(TDTPBasFrTest, ADatePickedOrPastedStartsAnAlterationWhenItLands)
{
    MontarPreso();
    EscolherUmaSemanaDepois();
    EXPECT_EQ(fr->saidas, 0) << "the calendar is part of the frame";
    EXPECT_EQ(tela.pedidos, 1);
    EXPECT_EQ(tabela->Status, TStatus::Alterando);
    EXPECT_EQ(Mostrada(), QStringLiteral("22/02/2026"));
    EXPECT_EQ(fr->GetValor(), Variant(TDateTime::DeData(22, 2, 2026).Dias()));
    tabela->AltCancel();
    data->setFocus();
    QApplication::clipboard()->setText(QStringLiteral("10/03/2024"));
    Comando(Qt::Key_V, u'\x16');
    EXPECT_EQ(tela.pedidos, 2);
    EXPECT_EQ(fr->GetValor(), Variant(45361.0));
}

TEST_F(TDTPBasFrTest, OnAScreenWithoutRecordsTheUsersDateSurvivesTheInsertion)
{
    MontarPreso({});
    data->setFocus();
    const TDateTime antesDaEscolha = data->GetDate();
    EscolherUmaSemanaDepois();
    EXPECT_EQ(tabela->Status, TStatus::Inserindo);
    EXPECT_EQ(fr->GetValor(), Variant(antesDaEscolha.Dias() + 7));
    EXPECT_EQ(data->GetDate(), TDateTime(antesDaEscolha.Dias() + 7));
}

TEST_F(TDTPBasFrTest, MovingTheTableShowsItsDatesAndStartsNothing)
{
    MontarPreso(
        {QStringLiteral("'2024-02-29'"), QStringLiteral("null"), QStringLiteral("'1980-01-01'")});
    EXPECT_EQ(Mostrada(), QStringLiteral("29/02/2024"));
    tabela->Next();
    EXPECT_EQ(Mostrada(), QStringLiteral("30/12/1899"));
    tabela->Next();
    EXPECT_EQ(Mostrada(), QStringLiteral("01/01/1980"));
    EXPECT_EQ(tela.pedidos, 0);
}

TEST_F(TDTPBasFrTest, TheWholeDateIsInView)
{
    Montar();
    fr->SetValor(TDateTime::DeData(28, 12, 2026));
    const auto *campo = data->findChild<QLineEdit *>();
    EXPECT_GE(campo->width(), campo->fontMetrics().horizontalAdvance(campo->text()) + 4);
}

} // namespace
