#include "platform/toolkit/TMonthCalendar.h"

#include "platform/core/Relogio.h"
#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QLabel>
#include <QMenu>
#include <QSpinBox>
#include <QTableView>
#include <QToolButton>
#include <QWheelEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

class MonthCalendar : public testing::Test
{
protected:
    MonthCalendar()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2024, 3, 10), QTime(14, 30))); });
        cal = new TMonthCalendar(&janela);
        cal->setGeometry(15, 15, 162, 158);
        cal->OnClick = [this](QObject *sender) {
            EXPECT_EQ(sender, cal);
            ++cliques;
        };
        cal->OnDblClick = [this](QObject *) { ++duplos; };
        grade = cal->findChild<QTableView *>();
        janela.Abrir();
        cal->setFocus();
    }
    ~MonthCalendar() override { SetRelogio({}); }

    /** The middle of a cell that shows a day; week 1 to 6, Sunday is column 0. */
    QPoint Celula(int semana, int coluna) const
    {
        return grade->visualRect(grade->model()->index(semana, coluna)).center();
    }
    void Clicar(int semana, int coluna)
    {
        QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, Celula(semana, coluna));
    }
    void ClicarDuas(int semana, int coluna, Qt::MouseButton botao = Qt::LeftButton)
    {
        QTest::mouseClick(grade->viewport(), botao, {}, Celula(semana, coluna));
        QTest::mouseDClick(grade->viewport(), botao, {}, Celula(semana, coluna));
    }
    QString Depois(Qt::Key tecla, Qt::KeyboardModifiers com = Qt::NoModifier)
    {
        QTest::keyClick(cal->focusProxy(), tecla, com);
        return cal->GetDate().TextoData();
    }
    /** Whether a cell has the frame of today. */
    bool Emoldurada(int semana, int coluna)
    {
        const QRect r = grade->visualRect(grade->model()->index(semana, coluna));
        const QImage foto = grade->viewport()->grab().toImage();
        const QColor canto = foto.pixelColor(r.topLeft());
        return canto == foto.pixelColor(r.topRight()) && canto.red() > 150 && canto.green() < 80;
    }

    TJanela janela;
    TMonthCalendar *cal = nullptr;
    QTableView *grade = nullptr;
    int cliques = 0;
    int duplos = 0;
};

TEST_F(MonthCalendar, StartsOnTheLibrarysTodayWithPortugueseNamesAndWeeksFromSunday)
{
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(10, 3, 2024)) << "without the time of day";
    EXPECT_EQ(cal->findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton"))->text(),
              QStringLiteral("março"));
    QStringList dias;
    for (int c = 0; c < 7; ++c)
        dias << grade->model()->index(0, c).data().toString().left(3);
    EXPECT_EQ(dias.join(u' '), QStringLiteral("dom seg ter qua qui sex sáb"));
    EXPECT_EQ(grade->model()->index(1, 0).data().toInt(), 25) << "25/02/2024 is a Sunday";
    EXPECT_EQ(cliques, 0);
}

TEST_F(MonthCalendar, EverythingFitsInTheSmallestDialog)
{
    for (int c = 0; c < 7; ++c) {
        const QRect r = grade->visualRect(grade->model()->index(0, c));
        const QString nome = grade->model()->index(0, c).data().toString().left(3);
        EXPECT_GE(r.width(), grade->fontMetrics().horizontalAdvance(nome)) << qPrintable(nome);
        EXPECT_GE(r.height(), grade->fontMetrics().height());
    }
    const QRect ultimo = grade->visualRect(grade->model()->index(6, 6));
    EXPECT_LE(ultimo.bottom(), grade->viewport()->height());
    EXPECT_LE(ultimo.right(), grade->viewport()->width());
    for (int mes = 1; mes <= 12; ++mes) {
        cal->SetDate(TDateTime::DeData(1, mes, 2024));
        QCoreApplication::processEvents();
        auto *botao = cal->findChild<QToolButton *>(QStringLiteral("qt_calendar_monthbutton"));
        EXPECT_GE(botao->width(), botao->fontMetrics().horizontalAdvance(botao->text()));
        auto *ano = cal->findChild<QToolButton *>(QStringLiteral("qt_calendar_yearbutton"));
        EXPECT_LE(botao->geometry().right(), ano->x());
    }
}

TEST_F(MonthCalendar, TheProgramIsNotAnnouncedAndShowsItsMonth)
{
    cal->SetDate(TDateTime(QDateTime(QDate(2021, 12, 31), QTime(23, 59))));
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(31, 12, 2021));
    EXPECT_EQ(cal->monthShown(), 12);
    EXPECT_EQ(cal->yearShown(), 2021);
    cal->setSelectedDate(QDate(2020, 2, 29));
    EXPECT_EQ(cal->GetDate(), TDateTime::DeData(29, 2, 2020));
    EXPECT_EQ(cliques, 0);
}

TEST_F(MonthCalendar, YearsGoFrom1To9999)
{
    cal->SetDate(TDateTime::DeData(31, 12, 9999));
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("31/12/9999"));
    EXPECT_EQ(Depois(Qt::Key_PageDown), QStringLiteral("31/12/9999"));
    cal->SetDate(TDateTime::DeData(1, 1, 1));
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("01/01/0001"));
    EXPECT_EQ(Depois(Qt::Key_PageUp, Qt::ControlModifier), QStringLiteral("01/01/0001"));
    cal->SetDate(TDateTime(-1e6));
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("01/01/0001"));
}

TEST_F(MonthCalendar, TheKeysMoveTheDayAndEachMoveIsAnnouncedOnce)
{
    EXPECT_EQ(Depois(Qt::Key_Left), QStringLiteral("09/03/2024"));
    EXPECT_EQ(cliques, 1);
    EXPECT_EQ(Depois(Qt::Key_Right), QStringLiteral("10/03/2024"));
    EXPECT_EQ(Depois(Qt::Key_Down), QStringLiteral("17/03/2024"));
    EXPECT_EQ(Depois(Qt::Key_Up), QStringLiteral("10/03/2024"));
    EXPECT_EQ(Depois(Qt::Key_End), QStringLiteral("31/03/2024"));
    EXPECT_EQ(Depois(Qt::Key_PageUp), QStringLiteral("29/02/2024"));
    EXPECT_EQ(Depois(Qt::Key_PageDown), QStringLiteral("29/03/2024"));
    EXPECT_EQ(Depois(Qt::Key_Home), QStringLiteral("01/03/2024"));
    EXPECT_EQ(cliques, 8);
    EXPECT_EQ(Depois(Qt::Key_Home), QStringLiteral("01/03/2024"));
    EXPECT_EQ(cliques, 8) << "nothing changed";
    EXPECT_EQ(Depois(Qt::Key_PageDown, Qt::ControlModifier), QStringLiteral("01/03/2025"));
    EXPECT_EQ(Depois(Qt::Key_PageUp, Qt::ControlModifier), QStringLiteral("01/03/2024"));
    EXPECT_EQ(cliques, 10);
    EXPECT_EQ(Depois(Qt::Key_Up), QStringLiteral("23/02/2024"));
    EXPECT_EQ(cal->monthShown(), 2);
    EXPECT_EQ(cliques, 11);
}

TEST_F(MonthCalendar, AClickSelectsADayOfThisMonthOrOfANeighbour)
{
    Clicar(2, 1);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("04/03/2024"));
    EXPECT_EQ(cliques, 1);
    Clicar(2, 1);
    EXPECT_EQ(cliques, 1) << "the same day is no change";
    Clicar(0, 3);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("04/03/2024")) << "a weekday's name";
    Clicar(1, 0);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("25/02/2024"));
    EXPECT_EQ(cal->monthShown(), 2);
    EXPECT_EQ(cliques, 2);
}

TEST_F(MonthCalendar, TurningThePageTakesTheSelectedDayAlong)
{
    cal->SetDate(TDateTime::DeData(31, 1, 2024));
    const auto botao = [this](const char *nome) {
        return cal->findChild<QToolButton *>(QLatin1String(nome));
    };
    QTest::mouseClick(botao("qt_calendar_nextmonth"), Qt::LeftButton);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("29/02/2024"));
    EXPECT_EQ(cliques, 1);
    QTest::mouseClick(botao("qt_calendar_prevmonth"), Qt::LeftButton);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("29/01/2024"));
    botao("qt_calendar_monthbutton")->menu()->actions().at(10)->trigger();
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("29/11/2024"));
    EXPECT_EQ(cliques, 3);
    const QPointF meio = grade->viewport()->rect().center();
    QWheelEvent roda(meio, grade->viewport()->mapToGlobal(meio), {}, {0, -120}, Qt::NoButton,
                     Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(grade->viewport(), &roda);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("29/12/2024"));
    EXPECT_EQ(cliques, 4);
}

TEST_F(MonthCalendar, EnterInTheYearEndsItsEditingAndNothingElse)
{
    int enters = 0;
    class TOuvinte : public QObject
    {
    public:
        explicit TOuvinte(int &n) : enters(n) {}
        bool eventFilter(QObject *, QEvent *evento) override
        {
            enters += evento->type() == QEvent::KeyPress &&
                      static_cast<QKeyEvent *>(evento)->key() == Qt::Key_Return;
            return false;
        }
        int &enters;
    } ouvinte(enters);
    janela.installEventFilter(&ouvinte);
    QTest::mouseClick(cal->findChild<QToolButton *>(QStringLiteral("qt_calendar_yearbutton")),
                      Qt::LeftButton);
    auto *ano = cal->findChild<QSpinBox *>();
    ASSERT_TRUE(ano->isVisible());
    ano->selectAll();
    QTest::keyClicks(ano, QStringLiteral("2019"));
    QTest::keyClick(ano, Qt::Key_Return);
    EXPECT_FALSE(ano->isVisible());
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("10/03/2019"));
    EXPECT_EQ(enters, 0);
    EXPECT_EQ(QApplication::focusWidget(), grade);
    QTest::keyClick(grade, Qt::Key_Return);
    EXPECT_EQ(enters, 1) << "on the days Enter is the window's";
}

TEST_F(MonthCalendar, TwoClicksOnTheSelectedDayAreAnnouncedOneIsNot)
{
    Clicar(2, 1);
    EXPECT_EQ(duplos, 0);
    ClicarDuas(3, 3);
    EXPECT_EQ(duplos, 1);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("13/03/2024"));
    ClicarDuas(1, 0);
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("25/02/2024"));
    EXPECT_EQ(duplos, 1) << "the first click turned the page";
    ClicarDuas(0, 0);
    cal->SetDate(TDateTime::DeData(10, 3, 2024));
    ClicarDuas(3, 0, Qt::RightButton);
    EXPECT_EQ(duplos, 1);
}

TEST_F(MonthCalendar, TodayIsFramedAndFollowsTheLibrarysClock)
{
    cal->SetDate(TDateTime::DeData(20, 3, 2024));
    EXPECT_TRUE(Emoldurada(3, 0));
    SetRelogio([] { return TDateTime::DeData(11, 3, 2024); });
    EXPECT_FALSE(Emoldurada(3, 0));
    EXPECT_TRUE(Emoldurada(3, 1));
}

TEST_F(MonthCalendar, DigitsAreNoCommand)
{
    QTest::keyClicks(grade, QStringLiteral("25"));
    EXPECT_EQ(cal->GetDate().TextoData(), QStringLiteral("10/03/2024"));
    EXPECT_EQ(QApplication::focusWidget(), grade);
    EXPECT_TRUE(cal->findChildren<QLabel *>().isEmpty()) << "no edit of the toolkit's opens";
}

TEST_F(MonthCalendar, TheSelectedDayIsMarkedSoftlyWithoutTheFocus)
{
    cal->SetDate(TDateTime::DeData(20, 3, 2024));
    const auto fundo = [&] {
        const QRect r = grade->visualRect(grade->currentIndex());
        return grade->viewport()->grab().toImage().pixelColor(r.topLeft() + QPoint(2, 2));
    };
    ASSERT_TRUE(grade->hasFocus());
    EXPECT_EQ(fundo(), cal->palette().color(QPalette::Highlight));
    grade->clearFocus();
    EXPECT_NE(fundo(), cal->palette().color(QPalette::Highlight));
    EXPECT_NE(fundo(), cal->palette().color(QPalette::Base)) << "but marked";
}

TEST_F(MonthCalendar, HandlersMayTakeThemselvesOut)
{
    EXPECT_TRUE(InteiroAoSair(cal->OnClick, [this] { QTest::keyClick(grade, Qt::Key_Right); }));
    // 11/03/2024 is the Monday of the third week shown.
    EXPECT_TRUE(InteiroAoSair(cal->OnDblClick, [this] { ClicarDuas(3, 1); }));
}

TEST_F(MonthCalendar, AHandlerMayDestroyTheCalendarOrFail)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    cal->OnClick = [](QObject *) { throw 1; };
    QTest::keyClick(grade, Qt::Key_Right);
    EXPECT_EQ(erros, 1);
    const QPointer<TMonthCalendar> vivo(cal);
    cal->OnClick = [this](QObject *) { cal->deleteLater(); };
    QTest::keyClick(grade, Qt::Key_Right);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(vivo.isNull());
}

} // namespace
