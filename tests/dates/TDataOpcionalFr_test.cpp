#include "dates/UDTPBasFr.h"
#include "dates/UDataOpcionalFr.h"
#include "dates/UDatasFr.h"
#include "input/UUpDownBRFr.h"
#include "platform/core/Relogio.h"
#include "platform/edits/TNumEditBR.h"
#include "platform/toolkit/TCheckBox.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/TUpDown.h"
#include "support/Entrada.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QLabel>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDataOpcionalFrTest : public TEntradaTest
{
protected:
    TDataOpcionalFrTest() { Em(QDate(2024, 3, 10)); }
    ~TDataOpcionalFrTest() override { SetRelogio({}); }

    /** Sets the clock to a time of that day. */
    static void Em(QDate dia)
    {
        SetRelogio([dia] { return TDateTime(QDateTime(dia, QTime(17, 45))); });
    }
    void Montar(bool ativo = true)
    {
        fr = Por<TDataOpcionalFr>();
        fr->AtivoCheckBox->setChecked(ativo);
        Mostrar();
        tela.resize(450, 400);
        depois->move(10, 350);
        modos = {fr->DiasRadioButton, fr->SemanasRadioButton, fr->MesesRadioButton,
                 fr->FaixaRadioButton};
        numeros = {fr->DiasUpDownBRFr, fr->SemanasUpDownBRFr, fr->MesesUpDownBRFr};
    }
    int Modo() const
    {
        int marcado = -1;
        for (int i = 0; i < modos.size(); ++i) {
            if (!modos[i]->isChecked())
                continue;
            EXPECT_EQ(marcado, -1) << "one at a time";
            marcado = i;
        }
        return marcado;
    }
    QString Where()
    {
        fr->Atualizar();
        return fr->WhereStr(QStringLiteral("data"));
    }
    static QString Periodo(const char *de, const char *ate)
    {
        return QStringLiteral(" data>='%1' and data<'%2'")
            .arg(QString::fromLatin1(de), QString::fromLatin1(ate));
    }
    void Faixa(QDate de, QDate ate)
    {
        fr->DatasFr1->DTPFr1->SetValor(TDateTime(de));
        fr->DatasFr1->DTPFr2->SetValor(TDateTime(ate));
        fr->FaixaRadioButton->SetChecked(true);
    }

    TDataOpcionalFr *fr = nullptr;
    QList<TRadioButton *> modos;
    QList<TUpDownBRFr *> numeros;
};

TEST_F(TDataOpcionalFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDataOpcionalFr")));
    EXPECT_TRUE(fr->DiasRadioButton->isChecked());
    EXPECT_EQ(fr->FaixaRadioButton->GetCaption(), QStringLiteral(" "));
    for (const TUpDownBRFr *numero : numeros) {
        EXPECT_EQ(numero->UpDown1->GetMin(), 1);
        EXPECT_EQ(numero->UpDown1->GetMax(), 600);
        EXPECT_EQ(numero->UpDown1->GetPosition(), 1);
        EXPECT_EQ(numero->NumEditBR1->text(), QStringLiteral("1"));
    }
    for (const auto estado : {QPalette::Active, QPalette::Disabled})
        EXPECT_EQ(fr->Label3->palette().color(estado, QPalette::WindowText),
                  fr->palette().color(QPalette::Base));
    EXPECT_TRUE(fr->Label3->font().bold());
}

TEST_F(TDataOpcionalFrTest, AFreshPeriodIsTodayWithoutAPhrase)
{
    Montar(false);
    EXPECT_EQ(fr->DataInicial, TDateTime::DeData(10, 3, 2024));
    EXPECT_EQ(fr->DataFinal, TDateTime::DeData(11, 3, 2024));
    EXPECT_EQ(fr->FaixaTexto, QString());
}

TEST_F(TDataOpcionalFrTest, AClearBoxHasNoConditionAndAGreyPanel)
{
    Montar();
    EXPECT_NE(Where(), QString());
    fr->AtivoCheckBox->setChecked(false);
    fr->DiasUpDownBRFr->SetValor(30);
    EXPECT_EQ(Where(), QString());
    EXPECT_FALSE(fr->Panel1->isEnabled());
    EXPECT_EQ(fr->Panel1->GetFontColor(), TColor::DeRGB(0x99, 0x99, 0x99));
    EXPECT_EQ(fr->DataInicial, TDateTime::DeData(10, 3, 2024)) << "the period stays";
}

TEST_F(TDataOpcionalFrTest, TheLastDayIsTodayAlone)
{
    Montar();
    EXPECT_EQ(Where(), Periodo("10.03.2024", "11.03.2024"));
    EXPECT_EQ(fr->FaixaTexto, QStringLiteral(" entre 10/03/2024 e 10/03/2024"));
    EXPECT_EQ(fr->WhereStr(QStringLiteral("v.data_venda")),
              QStringLiteral(" v.data_venda>='10.03.2024' and v.data_venda<'11.03.2024'"));
}

TEST_F(TDataOpcionalFrTest, DaysAndWeeksCountTodayIn)
{
    Montar();
    fr->DiasUpDownBRFr->SetValor(7);
    EXPECT_EQ(Where(), Periodo("04.03.2024", "11.03.2024"));
    fr->DiasUpDownBRFr->SetValor(600);
    EXPECT_EQ(Where(), Periodo("20.07.2022", "11.03.2024"));
    fr->SemanasRadioButton->SetChecked(true);
    EXPECT_EQ(Where(), Periodo("04.03.2024", "11.03.2024"));
    fr->SemanasUpDownBRFr->SetValor(4);
    EXPECT_EQ(Where(), Periodo("12.02.2024", "11.03.2024"));
    EXPECT_EQ(fr->FaixaTexto, QStringLiteral(" entre 12/02/2024 e 10/03/2024"));
}

TEST_F(TDataOpcionalFrTest, MonthsStepBackFromTomorrow)
{
    Em(QDate(2024, 3, 31));
    Montar();
    fr->MesesRadioButton->SetChecked(true);
    EXPECT_EQ(Where(), Periodo("01.03.2024", "01.04.2024"));
    fr->MesesUpDownBRFr->SetValor(3);
    EXPECT_EQ(Where(), Periodo("01.01.2024", "01.04.2024"));
    Em(QDate(2024, 3, 30));
    fr->MesesUpDownBRFr->SetValor(1);
    EXPECT_EQ(Where(), Periodo("29.02.2024", "31.03.2024"));
    fr->MesesUpDownBRFr->SetValor(2);
    EXPECT_EQ(Where(), Periodo("29.01.2024", "31.03.2024")) << "step by step, each from the last";
    fr->MesesUpDownBRFr->UpDown1->SetMin(0);
    fr->MesesUpDownBRFr->UpDown1->SetPosition(0);
    EXPECT_EQ(Where(), Periodo("31.03.2024", "31.03.2024")) << "no month is no day";
}

TEST_F(TDataOpcionalFrTest, TheRangeEndsBeforeTheDayAfterItsLast)
{
    Montar();
    Faixa(QDate(2024, 1, 5), QDate(2024, 2, 29));
    EXPECT_EQ(Where(), Periodo("05.01.2024", "01.03.2024"));
    EXPECT_EQ(fr->FaixaTexto, QStringLiteral(" entre 05/01/2024 e 29/02/2024"));
    Faixa(QDate(1980, 1, 1), QDate(1980, 1, 1));
    EXPECT_EQ(Where(), Periodo("01.01.1980", "02.01.1980")) << "a date like any other here";
    Faixa(QDate(2024, 3, 2), QDate(2024, 3, 1));
    EXPECT_EQ(Where(), Periodo("02.03.2024", "02.03.2024")) << "reversed: nothing is said";
    EXPECT_EQ(avisos, QStringList());
}

TEST_F(TDataOpcionalFrTest, ThePeriodIsTheOneOfTheLastRefresh)
{
    Montar();
    const QString anterior = Where();
    fr->DiasUpDownBRFr->SetValor(7);
    EXPECT_EQ(fr->WhereStr(QStringLiteral("data")), anterior);
    fr->AtivoCheckBox->setChecked(false);
    fr->AtivoCheckBox->setChecked(true);
    EXPECT_EQ(fr->WhereStr(QStringLiteral("data")), Periodo("04.03.2024", "11.03.2024"))
        << "turning the box on refreshes";
}

TEST_F(TDataOpcionalFrTest, SteppingANumberChecksItsMode)
{
    Montar();
    for (const int i : {1, 2, 0}) {
        QTest::mouseClick(numeros[i]->UpDown1->childAt(7, 4), Qt::LeftButton);
        EXPECT_EQ(Modo(), i);
        EXPECT_EQ(numeros[i]->UpDown1->GetPosition(), 2);
        EXPECT_EQ(numeros[i]->GetValor(), Variant(2));
    }
    numeros[2]->SetFocus();
    Teclar(numeros[2]->NumEditBR1, Qt::Key_Up);
    EXPECT_EQ(Modo(), 2) << "the keys that step, too";
    EXPECT_EQ(numeros[2]->UpDown1->GetPosition(), 3);
}

TEST_F(TDataOpcionalFrTest, ATypedNumberIsThePositionAndChecksItsMode)
{
    Montar();
    numeros[1]->SetFocus();
    EXPECT_EQ(Modo(), 0) << "going there chooses nothing";
    numeros[1]->NumEditBR1->selectAll();
    Digitar(numeros[1]->NumEditBR1, QStringLiteral("12"));
    EXPECT_EQ(numeros[1]->UpDown1->GetPosition(), 12);
    EXPECT_EQ(Modo(), 1);
    EXPECT_EQ(Where(), Periodo("18.12.2023", "11.03.2024"));
    numeros[1]->NumEditBR1->selectAll();
    Digitar(numeros[1]->NumEditBR1, QStringLiteral("2"));
    EXPECT_EQ(Where(), Periodo("26.02.2024", "11.03.2024"));
}

TEST_F(TDataOpcionalFrTest, NumbersOutside1To600AreRefused)
{
    Montar();
    for (TUpDownBRFr *numero : numeros) {
        numero->SetFocus();
        for (const char *texto : {"0", "601"}) {
            avisos.clear();
            numero->NumEditBR1->selectAll();
            Digitar(numero->NumEditBR1, QString::fromLatin1(texto));
            Teclar(numero->NumEditBR1, Qt::Key_Tab);
            EXPECT_EQ(avisos, QStringList{QStringLiteral(
                                  "Deve estar entre 1 e 600. Ajuste o seu valor ou clique em "
                                  "Cancelar.")});
            EXPECT_EQ(Foco(), numero->NumEditBR1);
        }
        numero->SetValor(1);
        QTest::mouseClick(numero->UpDown1->childAt(7, 17), Qt::LeftButton);
        EXPECT_EQ(numero->GetValor(), Variant(1)) << "no step below";
        numero->SetValor(600);
        QTest::mouseClick(numero->UpDown1->childAt(7, 4), Qt::LeftButton);
        EXPECT_EQ(numero->GetValor(), Variant(600));
        numero->SetValor(9999);
        EXPECT_EQ(numero->UpDown1->GetPosition(), 600);
        EXPECT_EQ(numero->GetValor(), Variant(600));
    }
}

TEST_F(TDataOpcionalFrTest, ChangingADateChecksTheRange)
{
    for (const bool fim : {false, true}) {
        Montar();
        auto *data = (fim ? fr->DatasFr1->DTPFr2 : fr->DatasFr1->DTPFr1)->DateTimePicker1;
        data->setFocus();
        EXPECT_EQ(Modo(), 0);
        Digitar(data, QStringLiteral("01"));
        EXPECT_EQ(Modo(), 3);
        EXPECT_EQ(Where(),
                  fim ? Periodo("10.03.2024", "02.03.2024") : Periodo("01.03.2024", "11.03.2024"))
            << "the inner frame has the date as well";
        delete fr;
        delete depois;
    }
}

TEST_F(TDataOpcionalFrTest, MerelyLookingAtADateChecksNothing)
{
    Montar();
    for (TDTPBasFr *dtp : {fr->DatasFr1->DTPFr1, fr->DatasFr1->DTPFr2}) {
        dtp->Data = TDateTime();
        QTest::mouseClick(dtp->DateTimePicker1->findChild<QLineEdit *>(), Qt::LeftButton);
        EXPECT_EQ(dtp->Data, Hoje()) << "its own handler ran";
        EXPECT_EQ(Modo(), 0);
        QTest::mouseClick(dtp->DateTimePicker1, Qt::LeftButton, {}, QPoint(84, 10));
        ASSERT_TRUE(dtp->DateTimePicker1->DroppedDown());
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        Girar();
        EXPECT_EQ(Modo(), 0);
        tela.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    }
}

TEST_F(TDataOpcionalFrTest, AClickOnATitleOfADateChecksTheRange)
{
    Montar();
    for (const TDTPBasFr *dtp : {fr->DatasFr1->DTPFr1, fr->DatasFr1->DTPFr2}) {
        QTest::mouseClick(dtp->TitLabel, Qt::RightButton);
        EXPECT_EQ(Modo(), 0);
        QTest::mouseClick(dtp->TitLabel, Qt::LeftButton);
        EXPECT_EQ(Modo(), 3);
        fr->DiasRadioButton->SetChecked(true);
    }
    fr->AtivoCheckBox->setChecked(false);
    QTest::mouseClick(fr->DatasFr1->DTPFr1->TitLabel, Qt::LeftButton);
    EXPECT_EQ(Modo(), 0) << "not while the criterion is switched off";
}

TEST_F(TDataOpcionalFrTest, ClickingAModeMovesIntoItsInput)
{
    Montar();
    const QList<QWidget *> entradas = {
        fr->DiasUpDownBRFr->NumEditBR1, fr->SemanasUpDownBRFr->NumEditBR1,
        fr->MesesUpDownBRFr->NumEditBR1, fr->DatasFr1->DTPFr1->DateTimePicker1};
    for (const int i : {1, 2, 3, 0}) {
        QTest::mouseClick(modos[i], Qt::LeftButton, {}, QPoint(7, 8));
        EXPECT_EQ(Modo(), i);
        EXPECT_EQ(Foco(), entradas[i]) << i;
    }
    EXPECT_EQ(fr->DiasUpDownBRFr->NumEditBR1->selectedText(), QStringLiteral("1"))
        << "the next digit types over it";
}

TEST_F(TDataOpcionalFrTest, TheModesAreChosenByKeysAlone)
{
    Montar();
    antes->setFocus();
    fr->DiasRadioButton->setFocus();
    QTest::keyClick(fr->DiasRadioButton, Qt::Key_Down);
    EXPECT_EQ(Modo(), 1);
    QTest::keyClick(Foco(), Qt::Key_Down);
    EXPECT_EQ(Modo(), 2);
    EXPECT_EQ(Foco(), fr->MesesRadioButton) << "checked by keys, the focus stays";
    Teclar(Foco(), Qt::Key_Tab);
    EXPECT_EQ(Foco(), fr->MesesUpDownBRFr->NumEditBR1);
}

/** The condition asked of a real table, whose column holds dates or moments. */
class TDataOpcionalNoBanco : public TDataOpcionalFrTest
{
protected:
    void Encher(const char *tipo, const QStringList &valores)
    {
        banco.emplace(QStringLiteral("create table vendas (cod integer, data %1);")
                          .arg(QString::fromLatin1(tipo)));
        for (int i = 0; i < valores.size(); ++i)
            banco->Executar(
                QStringLiteral("insert into vendas values (%1, %2)").arg(i + 1).arg(valores[i]));
    }
    /** The codes of the rows that the criterion lets through. */
    QList<int> Linhas()
    {
        const QString onde = Where();
        TSQLQuery consulta;
        consulta.SetSQLConnection(&banco->Conexao());
        consulta.SetSQL(QStringLiteral("select cod from vendas") +
                        (onde.isEmpty() ? QString() : QStringLiteral(" where") + onde) +
                        QStringLiteral(" order by cod"));
        consulta.Open();
        QList<int> linhas;
        for (; !consulta.Eof(); consulta.Next())
            linhas << consulta.Fields(0)->AsInteger();
        return linhas;
    }
};

TEST_F(TDataOpcionalNoBanco, DatesFromTheFirstToTheLastDay)
{
    Encher("date", {QStringLiteral("'2024-03-03'"), QStringLiteral("'2024-03-04'"),
                    QStringLiteral("'2024-03-10'"), QStringLiteral("'2024-03-11'"),
                    QStringLiteral("'1980-01-01'"), QStringLiteral("null")});
    Montar();
    fr->DiasUpDownBRFr->SetValor(7);
    EXPECT_EQ(Linhas(), (QList<int>{2, 3}));
    Faixa(QDate(2024, 3, 3), QDate(2024, 3, 11));
    EXPECT_EQ(Linhas(), (QList<int>{1, 2, 3, 4}));
    Faixa(QDate(1980, 1, 1), QDate(1980, 1, 1));
    EXPECT_EQ(Linhas(), (QList<int>{5}));
    Faixa(QDate(1899, 12, 30), QDate(9999, 12, 30));
    EXPECT_EQ(Linhas(), (QList<int>{1, 2, 3, 4, 5})) << "Null is in no period";
    Faixa(QDate(2024, 3, 11), QDate(2024, 3, 3));
    EXPECT_EQ(Linhas(), QList<int>()) << "reversed";
    fr->AtivoCheckBox->setChecked(false);
    EXPECT_EQ(Linhas(), (QList<int>{1, 2, 3, 4, 5, 6})) << "no condition";
}

TEST_F(TDataOpcionalNoBanco, MomentsOfTheLastDayAreIn)
{
    Encher("timestamp",
           {QStringLiteral("'2024-03-09 23:59:59.9999'"), QStringLiteral("'2024-03-10 00:00:00'"),
            QStringLiteral("'2024-03-10 12:30:00'"), QStringLiteral("'2024-03-10 23:59:59.9999'"),
            QStringLiteral("'2024-03-11 00:00:00'"), QStringLiteral("null")});
    Montar();
    EXPECT_EQ(Linhas(), (QList<int>{2, 3, 4}));
    Faixa(QDate(2024, 3, 9), QDate(2024, 3, 10));
    EXPECT_EQ(Linhas(), (QList<int>{1, 2, 3, 4}));
}

} // namespace
