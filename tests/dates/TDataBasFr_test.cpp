#include "dates/UDataBasFr.h"
#include "dates/UDataSelectF.h"
#include "platform/core/Relogio.h"
#include "platform/support/Datas.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMaskEdit.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "support/Entrada.h"
#include "support/Layouts.h"

#include <QLabel>
#include <QScreen>
#include <QTimer>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class TDataBasFrTest : public TEntradaTest
{
protected:
    TDataBasFrTest()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
    }
    ~TDataBasFrTest() override { SetRelogio({}); }

    void Montar() { fr = Mostrado<TDataBasFr>(); }
    /** Typed over whatever is there, then left by Tab. */
    QString Sair(const char *texto)
    {
        antes->setFocus();
        Teclar(antes, Qt::Key_Tab);
        EXPECT_EQ(Foco(), fr->MaskEdit1);
        Digitar(fr->MaskEdit1, QString::fromLatin1(texto));
        Teclar(fr->MaskEdit1, Qt::Key_Tab);
        EXPECT_EQ(Foco(), fr->BitBtn1);
        return fr->MaskEdit1->GetText();
    }
    void Texto(const QString &texto) { fr->MaskEdit1->SetText(texto); }
    /** Presses the calendar button; the user then acts in the dialog. */
    void ComCalendario(const std::function<void(TDataSelectF *)> &usuario)
    {
        bool abriu = false;
        QTimer::singleShot(30, &tela, [&] {
            auto *dialogo = qobject_cast<TDataSelectF *>(QApplication::activeModalWidget());
            ASSERT_TRUE(dialogo);
            abriu = true;
            usuario(dialogo);
        });
        QTest::mouseClick(fr->BitBtn1, Qt::LeftButton);
        EXPECT_TRUE(abriu);
    }

    TDataBasFr *fr = nullptr;
};

TEST_F(TDataBasFrTest, LayoutIsTheGoldenOne)
{
    Montar();
    fr->SetAsDate(TDateTime::DeData(28, 12, 2026));
    EXPECT_TRUE(ConfereLayout(fr, QStringLiteral("TDataBasFr")));
    EXPECT_EQ(fr->MaskEdit1->GetEditMask(), QStringLiteral("99/99/99;0;_"));
    EXPECT_EQ(fr->MaskEdit1->GetMaxLength(), 8);
    EXPECT_EQ(fr->SeculoBase, 46);
    EXPECT_FALSE(fr->AceitaVazio);
}

TEST_F(TDataBasFrTest, LeavingTheEditGivesTheYearItsCentury)
{
    Montar();
    EXPECT_EQ(Sair("010203"), QStringLiteral("01022003"));
    EXPECT_EQ(fr->MaskEdit1->GetEditText(), QStringLiteral("01/02/2003"));
    EXPECT_EQ(Sair("010299"), QStringLiteral("01021999"));
    EXPECT_EQ(Sair("010246"), QStringLiteral("01022046"));
    EXPECT_EQ(Sair("010247"), QStringLiteral("01021947"));
    EXPECT_EQ(Sair("310226"), QStringLiteral("31022026")) << "no check yet";
    EXPECT_FALSE(fr->IsValidDate());
    EXPECT_EQ(Sair("0102"), QStringLiteral("0102"));
    EXPECT_EQ(Sair(""), QStringLiteral("0102")) << "looked at, not touched";
}

TEST_F(TDataBasFrTest, LeavingTwiceChangesNothingMore)
{
    Montar();
    int mudancas = 0;
    Sair("010203");
    fr->MaskEdit1->OnChange = [&](QObject *) { ++mudancas; };
    EXPECT_EQ(Sair(""), QStringLiteral("01022003"));
    EXPECT_EQ(mudancas, 0) << "and announces nothing";
}

TEST_F(TDataBasFrTest, TheDefaultCenturyFollowsTheClock)
{
    SetRelogio([] { return TDateTime(QDateTime(QDate(2001, 1, 1), QTime(0, 0))); });
    Montar();
    EXPECT_EQ(fr->SeculoBase, 21);
}

TEST_F(TDataBasFrTest, WithAFixedCenturyZeroZeroCountsAsAHundred)
{
    Montar();
    fr->SeculoBase = 1900;
    EXPECT_EQ(Sair("010200"), QStringLiteral("01022000"));
    EXPECT_EQ(Sair("010205"), QStringLiteral("01021905"));
    EXPECT_EQ(Sair("010299"), QStringLiteral("01021999"));
}

TEST_F(TDataBasFrTest, OtherLengthsStayAndAreNoDate)
{
    Montar();
    for (const char *texto : {"0102203", "0102", "1", "01022"}) {
        Texto(QString::fromLatin1(texto));
        EXPECT_FALSE(fr->IsValidDate()) << texto;
        EXPECT_EQ(fr->MaskEdit1->GetText(), QString::fromLatin1(texto));
        EXPECT_EQ(fr->GetAsDate(), SemData);
        EXPECT_TRUE(fr->Date80());
    }
}

TEST_F(TDataBasFrTest, AnEmptyEditIsValidOnlyWhereItIsAccepted)
{
    Montar();
    for (const QString &texto : {QString(), QStringLiteral("      ")}) {
        Texto(texto);
        fr->AceitaVazio = true;
        EXPECT_TRUE(fr->IsValidDate());
        fr->AceitaVazio = false;
        EXPECT_FALSE(fr->IsValidDate());
        EXPECT_TRUE(fr->Date80());
        EXPECT_EQ(fr->GetAsDate(), SemData);
    }
    fr->AceitaVazio = true;
    Texto(QStringLiteral("310226"));
    EXPECT_FALSE(fr->IsValidDate()) << "what is typed must still be a date";
}

TEST_F(TDataBasFrTest, ValidatingTreatsTheYearFirst)
{
    Montar();
    fr->SeculoBase = 1800;
    Texto(QStringLiteral("290200"));
    EXPECT_FALSE(fr->IsValidDate()) << "1900 had no such day, 2000 had";
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("29021900"));
}

TEST_F(TDataBasFrTest, AReadingThatChangesNothingLeavesTheCaret)
{
    Montar();
    fr->SetAsDate(TDateTime::DeData(1, 2, 2024));
    fr->MaskEdit1->setFocus();
    fr->MaskEdit1->setCursorPosition(3);
    EXPECT_TRUE(fr->IsValidDate());
    EXPECT_EQ(fr->MaskEdit1->cursorPosition(), 3);
}

TEST_F(TDataBasFrTest, ReadingTheDateTreatsTheYearFirst)
{
    Montar();
    Texto(QStringLiteral("290224"));
    EXPECT_EQ(fr->GetAsDate(), TDateTime::DeData(29, 2, 2024));
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("29022024"));
    EXPECT_EQ(fr->AsSQLFirebird(), QStringLiteral("'29.02.2024'"));
    EXPECT_FALSE(fr->Date80());
    Texto(QStringLiteral("010180"));
    EXPECT_EQ(fr->GetAsDate(), SemData);
    EXPECT_TRUE(fr->Date80()) << "the date that means none";
    EXPECT_TRUE(fr->IsValidDate());
    Texto(QStringLiteral("290223"));
    EXPECT_EQ(fr->GetAsDate(), SemData) << "no leap year";
}

TEST_F(TDataBasFrTest, WritesEveryDateWithFourDigitsOfAYear)
{
    Montar();
    fr->SetAsDate(TDateTime(TDateTime::DeData(5, 3, 2024).Dias() + 0.9));
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("05032024"));
    EXPECT_EQ(fr->GetAsDate(), TDateTime::DeData(5, 3, 2024));
    fr->SetAsDate(SemData);
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("01011980"));
    fr->Zerar();
    EXPECT_EQ(fr->MaskEdit1->GetText(), QString());
}

TEST_F(TDataBasFrTest, TheWholeDateIsInViewInTheNarrowEdit)
{
    Montar();
    fr->SetAsDate(TDateTime::DeData(28, 12, 2026));
    const TMaskEdit *edit = fr->MaskEdit1;
    ASSERT_EQ(edit->width(), 55);
    const int texto = edit->fontMetrics().horizontalAdvance(edit->GetEditText());
    EXPECT_LE(texto, edit->width() - 2);
    EXPECT_GT(texto, 40) << "and still legible";
}

TEST_F(TDataBasFrTest, WeekdaysAgeAndMonths)
{
    Montar();
    fr->SetAsDate(TDateTime::DeData(20, 11, 2026));
    EXPECT_EQ(fr->DiaSemanaAbrev(), QStringLiteral("sex"));
    EXPECT_EQ(fr->DiaSemanaExtenso(), QStringLiteral("sexta-feira"));
    EXPECT_EQ(fr->YearsBetween(), 0);
    fr->SetAsDate(TDateTime::DeData(20, 11, 1986));
    EXPECT_EQ(fr->YearsBetween(), 40);
    fr->SetAsDate(TDateTime::DeData(21, 11, 1986));
    EXPECT_EQ(fr->YearsBetween(), 39);
    fr->SetAsDate(TDateTime::DeData(20, 11, 2027));
    EXPECT_EQ(fr->YearsBetween(), 0) << "from this morning on it is not yet a year";
    fr->SetAsDate(TDateTime::DeData(31, 1, 2024));
    fr->AvancaMes(1);
    EXPECT_EQ(fr->GetAsDate(), TDateTime::DeData(29, 2, 2024));
    fr->AvancaMes(-2);
    EXPECT_EQ(fr->GetAsDate(), TDateTime::DeData(29, 12, 2023));
    fr->Zerar();
    fr->AvancaMes(1);
    EXPECT_EQ(fr->GetAsDate(), TDateTime::DeData(1, 2, 1980)) << "from the date that means none";
}

TEST_F(TDataBasFrTest, TheEditIsColouredWhileItHasTheFocus)
{
    Montar();
    fr->MaskEdit1->setFocus();
    EXPECT_EQ(fr->MaskEdit1->GetColor(), SisD().CorControlSelec);
    fr->BitBtn1->setFocus();
    EXPECT_EQ(fr->MaskEdit1->GetColor(), SisD().CorControlDesselec);
}

TEST_F(TDataBasFrTest, TheCalendarStartsOnTheDateAndBringsTheChosenOneBack)
{
    Montar();
    fr->Tit1Lab->setText(QStringLiteral("Vencimento"));
    Texto(QStringLiteral("100324"));
    ComCalendario([&](TDataSelectF *dialogo) {
        EXPECT_EQ(dialogo->TitLab->text(), QStringLiteral("Vencimento"));
        EXPECT_EQ(dialogo->MonthCalendar1->GetDate(), TDateTime::DeData(10, 3, 2024));
        dialogo->MonthCalendar1->SetDate(TDateTime::DeData(31, 12, 2025));
        QTest::mouseClick(dialogo->OkBitBtn, Qt::LeftButton);
    });
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("31122025"));
    EXPECT_EQ(tela.focusWidget(), fr->MaskEdit1);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(tela.findChildren<TDataSelectF *>().isEmpty()) << "the dialog is gone";
}

TEST_F(TDataBasFrTest, ACancelledCalendarLeavesTheText)
{
    Montar();
    Texto(QStringLiteral("310226"));
    ComCalendario([&](TDataSelectF *dialogo) {
        EXPECT_EQ(dialogo->MonthCalendar1->GetDate(), Hoje()) << "no date to start on";
        dialogo->MonthCalendar1->SetDate(TDateTime::DeData(31, 12, 2025));
        QTest::keyClick(dialogo, Qt::Key_Escape);
    });
    EXPECT_EQ(fr->MaskEdit1->GetText(), QStringLiteral("310226"));
    EXPECT_EQ(tela.focusWidget(), fr->MaskEdit1);
}

TEST_F(TDataBasFrTest, TheCalendarOpensAtTheFrameInsideTheScreen)
{
    Montar();
    const QRect area = tela.screen()->availableGeometry();
    tela.move(area.topLeft() + QPoint(480, 100));
    const QPoint canto = fr->mapToGlobal(QPoint(fr->x() + fr->width(), fr->y() + fr->height()));
    ComCalendario([&](TDataSelectF *dialogo) {
        EXPECT_EQ(dialogo->pos(), QPoint(canto.x() - dialogo->width() - 250, canto.y() - 8));
        QTest::keyClick(dialogo, Qt::Key_Escape);
    });
    tela.move(area.topLeft() + QPoint(0, area.height() - 60));
    ComCalendario([&](TDataSelectF *dialogo) {
        EXPECT_TRUE(area.contains(dialogo->geometry())) << dialogo->y();
        QTest::keyClick(dialogo, Qt::Key_Escape);
    });
}

TEST_F(TDataBasFrTest, TheFrameMayGoWhileItsCalendarIsOpen)
{
    Montar();
    ComCalendario([&](TDataSelectF *dialogo) {
        delete fr;
        QTest::mouseClick(dialogo->OkBitBtn, Qt::LeftButton);
    });
    EXPECT_FALSE(QApplication::activeModalWidget());
}

} // namespace
