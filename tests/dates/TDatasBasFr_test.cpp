#include "dates/UDatasBasFr.h"
#include "dates/UDatasSelectF.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TRadioButton.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"
#include "support/NoDialogo.h"

#include <QLabel>
#include <QScreen>

using namespace ficha;
using namespace ficha::testes;

namespace
{

const QString Formato = QStringLiteral("dd/mm/yyyy");

TDateTime Dia(int dia, int mes, int ano)
{
    return TDateTime::DeData(dia, mes, ano);
}

TDateTime As(int dia, int mes, int ano, int hora, int minuto, int segundo = 0)
{
    return TDateTime(QDateTime(QDate(ano, mes, dia), QTime(hora, minuto, segundo)));
}

class TDatasBasFrTest : public TEntradaTest
{
protected:
    void SetUp() override
    {
        HojeE(10, 3, 2024);
        fr = Mostrado<TDatasBasFr>();
    }
    void TearDown() override
    {
        SetRelogio({});
        TEntradaTest::TearDown();
    }
    static void HojeE(int dia, int mes, int ano)
    {
        SetRelogio([=] { return As(dia, mes, ano, 17, 45); });
    }
    /** Both edits as bare digits. */
    void Digitos(const char *inicio, const char *fim)
    {
        fr->MaskEdit1->SetText(QString::fromLatin1(inicio));
        fr->MaskEdit2->SetText(QString::fromLatin1(fim));
    }
    QString Textos() const { return fr->MaskEdit1->GetText() + u' ' + fr->MaskEdit2->GetText(); }
    /** Clicks on the range button; the user does this in the dialog. */
    void NoDialogo(const std::function<void(TDatasSelectF &)> &usuario)
    {
        const TNoDialogo<TDatasSelectF> noDialogo(usuario);
        QTest::mouseClick(fr->DtSelectBitBtn, Qt::LeftButton);
        EXPECT_TRUE(noDialogo.Aberto());
        Girar();
        EXPECT_TRUE(tela.findChildren<TDatasSelectF *>().isEmpty()) << "the dialog is gone";
    }
    static void Ok(const TDatasSelectF &d) { QTest::mouseClick(d.OkBitBtn, Qt::LeftButton); }
    static void Cancelar(const TDatasSelectF &d)
    {
        QTest::mouseClick(d.CancelBitBtn, Qt::LeftButton);
    }

    TDatasBasFr *fr = nullptr;
};

TEST_F(TDatasBasFrTest, LayoutIsTheGoldenOne)
{
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDatasBasFr")));
    EXPECT_EQ(fr->size(), QSize(179, 24));
    EXPECT_EQ(fr->MaskEdit1->geometry(), QRect(1, 1, 67, 21));
    EXPECT_EQ(fr->MaskEdit2->geometry(), QRect(90, 1, 67, 21));
    EXPECT_EQ(fr->DtSelectBitBtn->geometry(), QRect(158, 1, 19, 21));
    EXPECT_EQ(fr->Label2->pos(), QPoint(70, 7));
    EXPECT_EQ(fr->Label2->text(), QStringLiteral("até"));
    for (const TMaskEdit *edit : {fr->MaskEdit1, fr->MaskEdit2}) {
        EXPECT_EQ(edit->GetEditMask(), QStringLiteral("99/99/9999;0;_"));
        EXPECT_EQ(edit->GetMaxLength(), 10);
    }
    EXPECT_FALSE(fr->DtSelectBitBtn->icon().isNull());
    EXPECT_EQ(fr->SeculoBase, 1900);
    Digitos("28082028", "30122030");
    Retratar(fr, QStringLiteral("TDatasBasFr_cheio"));
    for (const TMaskEdit *edit : {fr->MaskEdit1, fr->MaskEdit2})
        EXPECT_GE(edit->width(), edit->fontMetrics().horizontalAdvance(edit->GetEditText()) + 6);
    EXPECT_GE(fr->Label2->width(), fr->Label2->sizeHint().width());
}

TEST_F(TDatasBasFrTest, BothEditsEmptyAreAllDates)
{
    EXPECT_EQ(fr->WhereStr(QStringLiteral("v.data")), QString());
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("Todas as datas"));
    for (const TDateTime d : {Dia(1, 1, 1), TDateTime(), SemData, Dia(31, 12, 9999)})
        EXPECT_TRUE(fr->DataNaFaixa(d));
    EXPECT_FALSE(fr->EscolheuDt1());
    EXPECT_FALSE(fr->EscolheuDt2());
    EXPECT_EQ(fr->GetAsDate1(), SemData);
    EXPECT_EQ(Textos(), QStringLiteral(" ")) << "asking writes nothing";
}

TEST_F(TDatasBasFrTest, OnlyTheEndFilled)
{
    fr->SetAsDate2(Dia(31, 3, 2024));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("data")), QStringLiteral("(data<='31.03.2024')"));
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("31/03/2024 e anteriores"));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(1, 1, 1900)));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(31, 3, 2024)));
    EXPECT_FALSE(fr->DataNaFaixa(Dia(1, 4, 2024)));
}

TEST_F(TDatasBasFrTest, OnlyTheStartFilled)
{
    fr->SetAsDate1(Dia(1, 3, 2024));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("data")), QStringLiteral("(data>='01.03.2024')"));
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("01/03/2024 e posteriores"));
    EXPECT_FALSE(fr->DataNaFaixa(Dia(29, 2, 2024)));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(1, 3, 2024)));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(31, 12, 9999)));
}

TEST_F(TDatasBasFrTest, BothEndsFilled)
{
    fr->SetAsDate1(Dia(1, 3, 2024));
    fr->SetAsDate2(Dia(31, 3, 2024));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("cast(v.quando as date)")),
              QStringLiteral("(cast(v.quando as date)>='01.03.2024' and "
                             "cast(v.quando as date)<='31.03.2024')"));
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("De 01/03/2024 ate 31/03/2024"))
        << "without the accent";
    EXPECT_EQ(fr->FaixaString(QStringLiteral("d mmm")), QStringLiteral("De 1 mar ate 31 mar"));
    EXPECT_EQ(fr->AsSQLFirebird1(), QStringLiteral("'01.03.2024'"));
    EXPECT_EQ(fr->AsSQLFirebird2(), QStringLiteral("'31.03.2024'"));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(1, 3, 2024)));
    EXPECT_TRUE(fr->DataNaFaixa(As(30, 3, 2024, 23, 59)));
    EXPECT_TRUE(fr->DataNaFaixa(Dia(31, 3, 2024)));
    EXPECT_FALSE(fr->DataNaFaixa(As(31, 3, 2024, 0, 1))) << "no day is added to the end";
    EXPECT_FALSE(fr->DataNaFaixa(As(29, 2, 2024, 23, 59)));
}

TEST_F(TDatasBasFrTest, AStartAfterTheEndIsNotRefusedAndMatchesNothing)
{
    fr->SetAsDate1(Dia(2, 3, 2024));
    fr->SetAsDate2(Dia(1, 3, 2024));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")),
              QStringLiteral("(c>='02.03.2024' and c<='01.03.2024')"));
    EXPECT_FALSE(fr->DataNaFaixa(Dia(1, 3, 2024)));
    EXPECT_FALSE(fr->DataNaFaixa(Dia(2, 3, 2024)));
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDatasBasFrTest, ATypedNoDateCountsAsAnEmptyEnd)
{
    Digitos("01011980", "");
    EXPECT_FALSE(fr->EscolheuDt1());
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QString());
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("Todas as datas"));
    Digitos("010180", "31032024");
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QStringLiteral("(c<='31.03.2024')"));
    EXPECT_EQ(Textos(), QStringLiteral("01011980 31032024"));
}

TEST_F(TDatasBasFrTest, AnImpossibleOrUnfinishedDateIsAnOpenEndAndStaysInTheEdit)
{
    for (const char *texto : {"31022024", "0103", "0103202", "00000000"}) {
        Digitos(texto, "31032024");
        EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QStringLiteral("(c<='31.03.2024')")) << texto;
        EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("31/03/2024 e anteriores"));
        EXPECT_TRUE(fr->DataNaFaixa(Dia(1, 1, 1)));
        EXPECT_EQ(fr->MaskEdit1->GetText(), QString::fromLatin1(texto));
        EXPECT_FALSE(StrLimpaIsValidDate(fr->MaskEdit1->GetText())) << "so a caller can refuse it";
    }
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDatasBasFrTest, PegarMesAnteriorFillsThePreviousMonth)
{
    fr->PegarMesAnterior();
    EXPECT_EQ(Textos(), QStringLiteral("01022024 29022024"));
    HojeE(31, 1, 2024);
    fr->PegarMesAnterior();
    EXPECT_EQ(Textos(), QStringLiteral("01122023 31122023")) << "of the previous year in January";
    HojeE(31, 3, 2023);
    fr->PegarMesAnterior();
    EXPECT_EQ(Textos(), QStringLiteral("01022023 28022023"));
}

TEST_F(TDatasBasFrTest, TwoDigitYearsAreOfThe1900sUnlessTheHostSaysOtherwise)
{
    Digitos("010205", "010200");
    EXPECT_EQ(fr->GetAsDate1(), Dia(1, 2, 1905));
    EXPECT_EQ(fr->GetAsDate2(), Dia(1, 2, 1900)) << "00 is no special case here";
    EXPECT_EQ(Textos(), QStringLiteral("01021905 01021900"));
    fr->setProperty("SeculoBase", 46);
    Digitos("010246", "010247");
    EXPECT_EQ(fr->GetAsDate1(), Dia(1, 2, 2046));
    EXPECT_EQ(fr->GetAsDate2(), Dia(1, 2, 1947));
    Digitos("010200", "010299");
    EXPECT_EQ(fr->StringConfig(), QStringLiteral("01022000;01021999"));
}

TEST_F(TDatasBasFrTest, TrateTextPeloSeculoTreatsTheGivenEditOnly)
{
    Digitos(" 5 32024", "010205");
    fr->TrateTextPeloSeculo(fr->MaskEdit1);
    EXPECT_EQ(Textos(), QStringLiteral("05032024 010205"));
}

TEST_F(TDatasBasFrTest, ZerarEmptiesBothEdits)
{
    fr->PegarMesAnterior();
    fr->Zerar();
    EXPECT_EQ(Textos(), QStringLiteral(" "));
}

TEST_F(TDatasBasFrTest, TheConfigurationTextBringsTheRangeBack)
{
    fr->SetAsDate1(Dia(1, 3, 2024));
    fr->SetAsDate2(Dia(31, 3, 2024));
    const QString cheia = fr->StringConfig();
    fr->Zerar();
    const QString vazia = fr->StringConfig();
    fr->PegarStringConfig(cheia);
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("De 01/03/2024 ate 31/03/2024"));
    fr->PegarStringConfig(vazia);
    EXPECT_EQ(fr->FaixaString(Formato), QStringLiteral("Todas as datas"));
    EXPECT_EQ(Textos(), QStringLiteral("01011980 01011980")) << "written in full, and still open";
    fr->PegarStringConfig(QStringLiteral(";31032024"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QStringLiteral("(c<='31.03.2024')"));
    fr->PegarStringConfig(QStringLiteral("não é nada"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QString());
}

TEST_F(TDatasBasFrTest, TabGoesFromStartToEndToTheButtonAndLeavingTreatsTheYear)
{
    Teclar(antes, Qt::Key_Tab);
    ASSERT_EQ(Foco(), fr->MaskEdit1);
    Digitar(fr->MaskEdit1, QStringLiteral("010205"));
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("010205"));
    Teclar(fr->MaskEdit1, Qt::Key_Tab);
    EXPECT_EQ(fr->MaskEdit1->GetEditText(), QStringLiteral("01/02/1905"));
    ASSERT_EQ(Foco(), fr->MaskEdit2);
    Digitar(fr->MaskEdit2, QStringLiteral("31/12/2024"));
    Teclar(fr->MaskEdit2, Qt::Key_Tab);
    EXPECT_EQ(fr->MaskEdit2->GetEditText(), QStringLiteral("31/12/2024"));
    ASSERT_EQ(Foco(), fr->DtSelectBitBtn);
    Teclar(fr->DtSelectBitBtn, Qt::Key_Tab);
    EXPECT_EQ(Foco(), depois);
    QTest::mouseClick(fr->MaskEdit2, Qt::LeftButton);
    fr->MaskEdit2->selectAll();
    Digitar(fr->MaskEdit2, QStringLiteral("311299"));
    QTest::mouseClick(antes, Qt::LeftButton);
    EXPECT_EQ(fr->MaskEdit2->GetText(), QStringLiteral("31121999"));
}

TEST_F(TDatasBasFrTest, TypedTextThatIsNoDateStaysToBeSeenAndMended)
{
    fr->MaskEdit1->setFocus();
    Digitar(fr->MaskEdit1, QStringLiteral("31022024"));
    Teclar(fr->MaskEdit1, Qt::Key_Tab);
    EXPECT_EQ(fr->MaskEdit1->GetEditText(), QStringLiteral("31/02/2024"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QString());
    Digitar(fr->MaskEdit2, QStringLiteral("3103"));
    Teclar(fr->MaskEdit2, Qt::Key_Tab);
    EXPECT_EQ(fr->MaskEdit2->GetEditText(), QStringLiteral("31/03/____"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QString());
    EXPECT_EQ(Textos(), QStringLiteral("31022024 3103"));
}

TEST_F(TDatasBasFrTest, AReadingWritesTheYearAlsoWhileTheUserIsInTheEdit)
{
    fr->MaskEdit1->setFocus();
    Digitar(fr->MaskEdit1, QStringLiteral("010205"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("c")), QStringLiteral("(c>='01.02.1905')"));
    EXPECT_EQ(Foco(), fr->MaskEdit1);
    EXPECT_EQ(fr->MaskEdit1->GetEditText(), QStringLiteral("01/02/1905"))
        << "what was read is shown";
    fr->MaskEdit2->setFocus();
    Digitar(fr->MaskEdit2, QStringLiteral("01022"));
    EXPECT_FALSE(fr->EscolheuDt2());
    EXPECT_EQ(fr->MaskEdit2->GetText(), QStringLiteral("01022")) << "no date yet: stays as typed";
}

TEST_F(TDatasBasFrTest, AReadingThatChangesNothingLeavesTheCaret)
{
    fr->SetAsDate1(Dia(1, 2, 2024));
    fr->MaskEdit1->setFocus();
    fr->MaskEdit1->setCursorPosition(3);
    EXPECT_EQ(fr->GetAsDate1(), Dia(1, 2, 2024));
    EXPECT_EQ(fr->MaskEdit1->cursorPosition(), 3);
}

TEST_F(TDatasBasFrTest, TheDialogStartsOnTheRangeAndOkBringsItsChoice)
{
    Digitos("010324", "310324");
    fr->SeculoBase = 1950;
    NoDialogo([&](TDatasSelectF &d) {
        EXPECT_EQ(d.AsString1(), QStringLiteral("01/03/1974"));
        EXPECT_EQ(d.AsString2(), QStringLiteral("31/03/1974"));
        Cancelar(d);
    });
    fr->SeculoBase = 1900;
    Digitos("010324", "31032024");
    NoDialogo([&](TDatasSelectF &d) {
        EXPECT_EQ(Textos(), QStringLiteral("01031924 31032024"));
        EXPECT_TRUE(d.DeIRadioButton->isChecked());
        EXPECT_TRUE(d.AteIRadioButton->isChecked());
        EXPECT_EQ(d.AsString1(), QStringLiteral("01/03/1924"));
        EXPECT_EQ(d.AsString2(), QStringLiteral("31/03/2024"));
        EXPECT_EQ(d.SelecStrLab->text(), d.SelecStr());
        d.Dias7Act->Execute();
        Ok(d);
    });
    EXPECT_EQ(Textos(), QStringLiteral("04032024 10032024"));
    EXPECT_EQ(Foco(), fr->DtSelectBitBtn);
}

TEST_F(TDatasBasFrTest, OpenEndsAreOpenInTheDialogAndComeBackEmpty)
{
    Digitos("", "31022024");
    NoDialogo([&](TDatasSelectF &d) {
        EXPECT_TRUE(d.DeQRadioButton->isChecked());
        EXPECT_TRUE(d.AteQRadioButton->isChecked()) << "no date";
        EXPECT_TRUE(d.MonthCalendar1->isHidden());
        EXPECT_EQ(d.AsString1(), QStringLiteral("10/03/2024")) << "the calendar keeps its own date";
        EXPECT_EQ(d.SelecStrLab->text(), QStringLiteral("Todas as datas"));
        d.AnterioresAct->Execute();
        Ok(d);
    });
    EXPECT_EQ(Textos(), QStringLiteral(" 10032024"));
    NoDialogo([&](TDatasSelectF &d) {
        EXPECT_TRUE(d.AteIRadioButton->isChecked());
        d.TodasAct->Execute();
        Ok(d);
    });
    EXPECT_EQ(Textos(), QStringLiteral(" "));
}

TEST_F(TDatasBasFrTest, CancellingTheDialogLeavesWhatWasTyped)
{
    Digitos("31022024", "0103");
    NoDialogo([&](TDatasSelectF &d) {
        d.MesAct->Execute();
        Cancelar(d);
    });
    EXPECT_EQ(Textos(), QStringLiteral("31022024 0103"));
    NoDialogo([&](TDatasSelectF &d) { QTest::keyClick(&d, Qt::Key_Escape); });
    EXPECT_EQ(Textos(), QStringLiteral("31022024 0103"));
}

TEST_F(TDatasBasFrTest, TheButtonWorksByKeyAndEnterConfirms)
{
    fr->DtSelectBitBtn->setFocus();
    const TNoDialogo<TDatasSelectF> noDialogo([](TDatasSelectF &d) {
        d.MesAnteriorAct->Execute();
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    });
    Teclar(fr->DtSelectBitBtn, Qt::Key_Space);
    EXPECT_EQ(Textos(), QStringLiteral("01022024 29022024"));
}

TEST_F(TDatasBasFrTest, TheDialogOpensBelowTheButtonAndInsideTheWorkArea)
{
    const QRect area = tela.screen()->availableGeometry();
    const auto abrir = [&](QPoint janela) {
        tela.move(janela);
        Girar();
        QRect onde;
        NoDialogo([&](TDatasSelectF &d) {
            onde = d.geometry();
            Cancelar(d);
        });
        EXPECT_TRUE(area.contains(onde)) << onde.x() << ',' << onde.y();
        return onde;
    };
    const auto canto = [&] { return fr->mapToGlobal(QPoint(158 + 19, 1 + 21)); };
    const QRect folgado = abrir(area.topLeft() + QPoint(310, 20));
    EXPECT_EQ(folgado.topLeft(), canto() - QPoint(475, 0));
    EXPECT_EQ(folgado.size(), QSize(475, 315));
    const QRect esquerda = abrir(area.topLeft() + QPoint(30, 20));
    EXPECT_EQ(esquerda.topLeft(), QPoint(area.left(), canto().y()));
    const QRect embaixo = abrir(QPoint(area.left() + 310, area.bottom() - 100));
    EXPECT_EQ(embaixo.bottom(), area.bottom());
    const QRect direita = abrir(QPoint(area.right() - 100, area.top() + 20));
    EXPECT_EQ(direita.right(), area.right());
}

TEST_F(TDatasBasFrTest, AFrameThatIsDestroyedWhileItsDialogIsOpenTakesItAlong)
{
    QPointer<TDatasSelectF> dialogo;
    const TNoDialogo<TDatasSelectF> noDialogo([&](TDatasSelectF &d) {
        dialogo = &d;
        delete fr;
    });
    fr->DtSelectBitBtn->OnClick(fr->DtSelectBitBtn);
    EXPECT_TRUE(noDialogo.Aberto());
    EXPECT_TRUE(dialogo.isNull());
    EXPECT_TRUE(tela.findChildren<TDatasSelectF *>().isEmpty());
}

/** The fragments against a real table: a date column, and one with a time of day. */
class TDatasWhereTest : public TDatasBasFrTest
{
protected:
    void SetUp() override
    {
        TDatasBasFrTest::SetUp();
        banco.emplace(QStringLiteral("create table vendas (cod integer not null primary key, "
                                     "dia date, quando timestamp);"));
        const char *linhas[] = {
            "1, null, null",
            "2, '01.01.1980', '01.01.1980 00:00:00'",
            "3, '29.02.2024', '29.02.2024 23:59:59'",
            "4, '01.03.2024', '01.03.2024 00:00:00'",
            "5, '15.03.2024', '15.03.2024 12:00:00'",
            "6, '31.03.2024', '31.03.2024 00:00:00'",
            "7, '31.03.2024', '31.03.2024 00:00:01'",
            "8, '01.04.2024', '01.04.2024 00:00:00'",
        };
        for (const char *linha : linhas)
            banco->Executar(
                QStringLiteral("insert into vendas values (%1)").arg(QString::fromLatin1(linha)));
        query.SetSQLConnection(&banco->Conexao());
    }
    /** The codes of the rows that the range finds in a column. */
    QString Achados(const char *coluna)
    {
        const QString condicao = fr->WhereStr(QString::fromLatin1(coluna));
        query.SetSQL(QStringLiteral("select cod from vendas") +
                     (condicao.isEmpty() ? QString() : QStringLiteral(" where ") + condicao) +
                     QStringLiteral(" order by cod"));
        query.Open();
        QString achados;
        for (query.First(); !query.Eof(); query.Next())
            achados += query.FieldByName(QStringLiteral("cod"))->AsString();
        query.Close();
        return achados;
    }
    QString Achados() { return Achados("dia") + u' ' + Achados("quando"); }
};

TEST_F(TDatasWhereTest, EachShapeFindsItsRowsAndNoOthers)
{
    EXPECT_EQ(Achados(), QStringLiteral("12345678 12345678")) << "no condition, Null too";
    fr->SetAsDate1(Dia(1, 3, 2024));
    EXPECT_EQ(Achados(), QStringLiteral("45678 45678"));
    fr->SetAsDate2(Dia(31, 3, 2024));
    EXPECT_EQ(Achados(), QStringLiteral("4567 456"))
        << "with a time of day only the midnight of the end's day";
    EXPECT_EQ(Achados("cast(quando as date)"), QStringLiteral("4567"));
    fr->MaskEdit1->Clear();
    EXPECT_EQ(Achados(), QStringLiteral("234567 23456"));
    fr->SetAsDate1(Dia(1, 4, 2024));
    EXPECT_EQ(Achados(), QStringLiteral(" ")) << "reversed";
    fr->SetAsDate1(Dia(31, 3, 2024));
    EXPECT_EQ(Achados(), QStringLiteral("67 6")) << "one day";
}

TEST_F(TDatasWhereTest, TheDay01011980IsFoundOnlyInsideARangeThatIsNotIt)
{
    Digitos("01011980", "01011980");
    EXPECT_EQ(Achados(), QStringLiteral("12345678 12345678")) << "both ends open";
    Digitos("31121979", "02011980");
    EXPECT_EQ(Achados(), QStringLiteral("2 2"));
    Digitos("31022024", "02011980");
    EXPECT_EQ(Achados(), QStringLiteral("2 2")) << "no date is an open end";
}

TEST_F(TDatasWhereTest, TheFragmentJoinsWithOthers)
{
    fr->SetAsDate2(Dia(1, 3, 2024));
    query.SetSQL(QStringLiteral("select count(*) as n from vendas where cod>2 and ") +
                 fr->WhereStr(QStringLiteral("dia")) + QStringLiteral(" or cod=8"));
    query.Open();
    EXPECT_EQ(query.FieldByName(QStringLiteral("n"))->AsString(), QStringLiteral("3"));
}

} // namespace
