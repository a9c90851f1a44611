#include "platform/toolkit/TDateTimePicker.h"

#include "platform/core/Relogio.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/Teclas.h"
#include "support/Girar.h"
#include "support/TrocaDeHandler.h"
#include "support/Widgets.h"

#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QTableView>
#include <QWheelEvent>

using namespace ficha;
using namespace ficha::testes;

namespace
{

struct DateTimePicker : testing::Test {
    DateTimePicker()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2026, 11, 20), QTime(9, 30))); });
        antes = new QLineEdit(&janela);
        antes->setGeometry(10, 10, 90, 21);
        data = new TDateTimePicker(&janela);
        data->setGeometry(10, 40, 90, 21);
        depois = new QLineEdit(&janela);
        depois->setGeometry(10, 70, 90, 21);
        QObject::connect(data, &TDateTimePicker::UserChanged,
                         [this](TDateTimePicker::TMudanca como) { mudancas << como; });
        data->OnChange = [this](QObject *sender) {
            EXPECT_EQ(sender, data);
            vistas << data->GetDate().TextoData();
        };
    }
    ~DateTimePicker() override { SetRelogio({}); }

    /** Shown on a date, the focus come by Tab. */
    void Abrir(QDate dia = QDate(2026, 2, 15))
    {
        data->setDate(dia);
        janela.Abrir();
        antes->setFocus();
        QTest::keyClick(antes, Qt::Key_Tab);
        ASSERT_TRUE(data->hasFocus());
    }
    void Digitar(const char *texto)
    {
        for (const char *c = texto; *c; ++c)
            QTest::keyClick(data, *c);
    }
    QString Texto() const { return data->text(); }
    QString Data() const { return data->GetDate().TextoData(); }
    static QFrame *Calendario()
    {
        return qobject_cast<QFrame *>(QApplication::activePopupWidget());
    }
    static TMonthCalendar *Mes() { return Calendario()->findChild<TMonthCalendar *>(); }
    void ClicarSeta() { QTest::mouseClick(data, Qt::LeftButton, {}, QPoint(84, 10)); }

    TJanela janela;
    QLineEdit *antes = nullptr, *depois = nullptr;
    TDateTimePicker *data = nullptr;
    QList<TDateTimePicker::TMudanca> mudancas;
    QStringList vistas;
};

struct TDigitacao {
    const char *nome;
    QDate antes;
    const char *teclas;
    const char *data;
};

struct DateTimePickerDigitacao : DateTimePicker, testing::WithParamInterface<TDigitacao> {
};

TEST_P(DateTimePickerDigitacao, EndsOnTheDateThatWasTyped)
{
    Abrir(GetParam().antes);
    Digitar(GetParam().teclas);
    QTest::keyClick(data, Qt::Key_Tab);
    EXPECT_TRUE(depois->hasFocus()) << "Tab leaves, from whatever part";
    EXPECT_EQ(Texto(), QString::fromLatin1(GetParam().data));
    EXPECT_EQ(Data(), QString::fromLatin1(GetParam().data)) << "what is shown is what is held";
}

INSTANTIATE_TEST_SUITE_P(
    Datas, DateTimePickerDigitacao,
    testing::Values(
        TDigitacao{"StraightThrough", QDate(2026, 2, 15), "10032024", "10/03/2024"},
        TDigitacao{"ADayTheOldMonthLacks", QDate(2026, 2, 15), "31122024", "31/12/2024"},
        TDigitacao{"ALeapDayFromACommonYear", QDate(2026, 1, 31), "29022024", "29/02/2024"},
        TDigitacao{"TheSameDateAgain", QDate(2024, 3, 10), "10032024", "10/03/2024"},
        TDigitacao{"NoDate", QDate(2026, 5, 31), "01011980", "01/01/1980"},
        TDigitacao{"DayZero", QDate(2026, 5, 31), "30121899", "30/12/1899"},
        TDigitacao{"TheFirstYear", QDate(2026, 5, 31), "01010001", "01/01/0001"},
        TDigitacao{"TheLastYear", QDate(2026, 5, 31), "31129999", "31/12/9999"},
        TDigitacao{"WithSlashes", QDate(2026, 2, 15), "10/03/2024", "10/03/2024"},
        TDigitacao{"ShortWithSlashes", QDate(2026, 2, 15), "1/3/2024", "01/03/2024"},
        TDigitacao{"WithDots", QDate(2026, 2, 15), "1.3.24", "01/03/2024"},
        TDigitacao{"DigitsThatCanOnlyBeOne", QDate(2026, 2, 15), "452024", "04/05/2024"},
        TDigitacao{"TwoDigitsOfAYear", QDate(2026, 2, 15), "100324", "10/03/2024"},
        TDigitacao{"TheLastYearAhead", QDate(2026, 2, 15), "010246", "01/02/2046"},
        TDigitacao{"TheFirstYearBack", QDate(2026, 2, 15), "010247", "01/02/1947"},
        TDigitacao{"YearZeroZero", QDate(2026, 2, 15), "010200", "01/02/2000"},
        TDigitacao{"OneDigitIsNoYear", QDate(2026, 2, 15), "10032", "10/03/2026"},
        TDigitacao{"ThreeDigitsAreNoYear", QDate(2026, 2, 15), "1003201", "10/03/2026"},
        TDigitacao{"YearZeroIsNoYear", QDate(2026, 2, 15), "10030000", "10/03/2026"},
        TDigitacao{"TheDayAlone", QDate(2026, 2, 15), "3", "03/02/2026"},
        TDigitacao{"DayAndMonth", QDate(2026, 2, 15), "3101", "31/01/2026"},
        TDigitacao{"ADigitThatMakesNoDay", QDate(2026, 2, 15), "35", "03/02/2026"},
        TDigitacao{"DayZeroZero", QDate(2026, 2, 15), "00", "15/02/2026"},
        TDigitacao{"AMonthThatIsNone", QDate(2026, 2, 15), "1015", "10/01/2026"},
        TDigitacao{"ADayThatTheMonthLacks", QDate(2026, 5, 31), "31042025", "30/04/2025"},
        TDigitacao{"ALeapDayThatIsNone", QDate(2026, 2, 28), "29022026", "28/02/2026"},
        TDigitacao{"LettersAreNoDigits", QDate(2026, 2, 15), "a1b0x03 2024", "10/03/2024"},
        TDigitacao{"OverSlashesOnly", QDate(2026, 2, 15), "//2024", "15/02/2024"}),
    [](const auto &caso) { return caso.param.nome; });

TEST_F(DateTimePicker, StandsOnTodayWhenFreshAndHoldsTheWholeCalendar)
{
    EXPECT_EQ(Data(), QStringLiteral("20/11/2026"));
    for (const double dia : {0.0, 1.0, 29221.0, 45361.0, -600.0}) {
        data->SetDate(TDateTime(dia + 0.75));
        EXPECT_EQ(data->GetDate().Dias(), dia) << "without its time of day";
    }
    data->SetDate(TDateTime(1e7));
    EXPECT_EQ(Data(), QStringLiteral("31/12/9999"));
    data->SetDate(TDateTime(-1e7));
    EXPECT_EQ(Data(), QStringLiteral("01/01/0001"));
    EXPECT_EQ(vistas, QStringList()) << "the program's writing is not announced";
    EXPECT_TRUE(mudancas.isEmpty());
}

TEST_F(DateTimePicker, ShowsTheDigitsBeingTypedAndCountsThemAtOnce)
{
    Abrir();
    Digitar("3");
    EXPECT_EQ(Texto(), QStringLiteral("3_/02/2026"));
    EXPECT_EQ(Data(), QStringLiteral("03/02/2026"));
    Digitar("1");
    EXPECT_EQ(Texto(), QStringLiteral("31/02/2026"));
    EXPECT_EQ(Data(), QStringLiteral("28/02/2026")) << "a day that the month lacks is its last";
    Digitar("12");
    EXPECT_EQ(Data(), QStringLiteral("31/12/2026"));
    Digitar("2");
    EXPECT_EQ(Texto(), QStringLiteral("31/12/2___"));
    EXPECT_EQ(Data(), QStringLiteral("31/12/2026"));
    Digitar("4");
    EXPECT_EQ(Texto(), QStringLiteral("31/12/24__"));
    EXPECT_EQ(Data(), QStringLiteral("31/12/2024")) << "a button without focus may ask now";
}

TEST_F(DateTimePicker, EachChangeIsAnnouncedOnce)
{
    Abrir(QDate(2026, 2, 10));
    Digitar("10");
    EXPECT_EQ(vistas, (QStringList{QStringLiteral("01/02/2026"), QStringLiteral("10/02/2026")}));
    vistas.clear();
    Digitar("02");
    EXPECT_EQ(vistas, QStringList()) << "the month that it is already";
    QTest::keyClick(data, Qt::Key_Tab);
    EXPECT_EQ(vistas, QStringList()) << "leaving changes nothing";
    EXPECT_EQ(mudancas, QList<TDateTimePicker::TMudanca>(2, TDateTimePicker::TMudanca::mdDigitada));
}

TEST_F(DateTimePicker, EnterChangesNothingAndIsTheForms)
{
    Abrir();
    QTest::keyClick(data, Qt::Key_Up);
    vistas.clear();
    Digitar("2");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QApplication::sendEvent(data, &enter);
    EXPECT_FALSE(enter.isAccepted());
    EXPECT_EQ(Texto(), QStringLiteral("02/02/2026")) << "what was typed is taken in";
    EXPECT_EQ(vistas, QStringList{QStringLiteral("02/02/2026")});
}

TEST_F(DateTimePicker, AToolThatWritesIntoTheFieldIsTheUser)
{
    Abrir();
    data->findChild<QLineEdit *>()->setText(QStringLiteral("16/02/2026"));
    EXPECT_EQ(Data(), QStringLiteral("16/02/2026"));
    EXPECT_EQ(vistas, QStringList{QStringLiteral("16/02/2026")});
}

TEST_F(DateTimePicker, BackspaceMendsADigitAndAnEmptiedPartKeepsItsNumber)
{
    Abrir();
    Digitar("13");
    QTest::keyClick(data, Qt::Key_Backspace);
    EXPECT_EQ(Texto(), QStringLiteral("__/02/2026")) << "back to the part just completed";
    Digitar("14");
    EXPECT_EQ(Data(), QStringLiteral("14/02/2026"));
    Digitar("1");
    QTest::keyClick(data, Qt::Key_Backspace);
    EXPECT_EQ(Texto(), QStringLiteral("14/__/2026"));
    EXPECT_EQ(Data(), QStringLiteral("14/02/2026"));
    Digitar("03");
    QTest::keyClick(data, Qt::Key_Delete);
    EXPECT_EQ(Texto(), QStringLiteral("14/03/____"));
    QTest::keyClick(data, Qt::Key_Tab);
    EXPECT_EQ(Texto(), QStringLiteral("14/03/2026"));
}

TEST_F(DateTimePicker, ArrowsWalkTheCalendar)
{
    Abrir(QDate(2026, 1, 31));
    QTest::keyClick(data, Qt::Key_Up);
    EXPECT_EQ(Data(), QStringLiteral("01/02/2026")) << "through the end of the month";
    QTest::keyClick(data, Qt::Key_Down);
    QTest::keyClick(data, Qt::Key_Right);
    QTest::keyClick(data, Qt::Key_Up);
    EXPECT_EQ(Data(), QStringLiteral("28/02/2026")) << "the month, its last day";
    QTest::keyClick(data, Qt::Key_Right);
    QTest::keyClick(data, Qt::Key_Down);
    EXPECT_EQ(Data(), QStringLiteral("28/02/2025"));
    QTest::keyClick(data, Qt::Key_PageUp);
    EXPECT_EQ(Data(), QStringLiteral("28/02/2035"));
    EXPECT_EQ(mudancas, QList<TDateTimePicker::TMudanca>(5, TDateTimePicker::TMudanca::mdPasso));
    data->SetDate(TDateTime::DeData(31, 12, 9999));
    vistas.clear();
    QTest::keyClick(data, Qt::Key_Up);
    EXPECT_EQ(vistas, QStringList()) << "no step beyond the last day, and no announcement";
}

TEST_F(DateTimePicker, ArrowsMoveBetweenThePartsAndDigitsGoThere)
{
    Abrir();
    QTest::keyClick(data, Qt::Key_Right);
    Digitar("7");
    EXPECT_EQ(Data(), QStringLiteral("15/07/2026"));
    QTest::keyClick(data, Qt::Key_Left);
    QTest::keyClick(data, Qt::Key_Left);
    Digitar("8");
    EXPECT_EQ(Data(), QStringLiteral("08/07/2026"));
    QTest::keyClick(data, Qt::Key_A, Qt::ControlModifier);
    Digitar("010320");
    EXPECT_EQ(Data(), QStringLiteral("01/03/2020")) << "over everything, from the day on";
}

TEST_F(DateTimePicker, AShiftInTheMiddleOfADateDoesNotEndIt)
{
    Abrir(QDate(2026, 1, 15));
    Digitar("2902");
    QTest::keyClick(data, Qt::Key_Shift);
    Digitar("2024");
    EXPECT_EQ(Data(), QStringLiteral("29/02/2024"));
}

TEST_F(DateTimePicker, ComingBackStartsAtTheDay)
{
    Abrir();
    Digitar("1012");
    QTest::keyClick(data, Qt::Key_Tab);
    QTest::keyClick(depois, Qt::Key_Backtab);
    ASSERT_TRUE(data->hasFocus());
    EXPECT_EQ(data->findChild<QLineEdit *>()->selectedText(), QStringLiteral("10"));
    Digitar("5");
    EXPECT_EQ(Data(), QStringLiteral("05/12/2026"));
}

TEST_F(DateTimePicker, TheWheelChangesNothing)
{
    Abrir();
    EXPECT_EQ(data->focusPolicy(), Qt::StrongFocus) << "nor does it bring the focus here";
    for (const bool comFoco : {true, false}) {
        if (!comFoco)
            antes->setFocus();
        QWheelEvent roda(QPointF(20, 10), data->mapToGlobal(QPointF(20, 10)), {}, {0, 120},
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(data, &roda);
        EXPECT_FALSE(roda.isAccepted()) << "the screen scrolls";
        EXPECT_EQ(Data(), QStringLiteral("15/02/2026"));
    }
}

TEST_F(DateTimePicker, AClickSelectsThePartAndIsToldTheArrowIsNot)
{
    Abrir();
    int cliques = 0;
    data->OnClick = [&](QObject *sender) {
        EXPECT_EQ(sender, data);
        ++cliques;
    };
    auto *campo = data->findChild<QLineEdit *>();
    const int mes = campo->fontMetrics().horizontalAdvance(QStringLiteral("15/0")) + 3;
    QTest::mouseClick(campo, Qt::LeftButton, {}, QPoint(mes, 10));
    EXPECT_EQ(cliques, 1);
    EXPECT_EQ(campo->selectedText(), QStringLiteral("02"));
    Digitar("9");
    EXPECT_EQ(Data(), QStringLiteral("15/09/2026"));
    QTest::mouseClick(campo, Qt::RightButton, {}, QPoint(10, 10));
    ClicarSeta();
    ASSERT_TRUE(data->DroppedDown());
    QTest::keyClick(Mes(), Qt::Key_Escape);
    EXPECT_EQ(cliques, 1);
}

TEST_F(DateTimePicker, ADayPickedFromTheCalendarIsTheUsers)
{
    Abrir();
    int abriu = 0, fechou = 0;
    data->OnDropDown = [&](QObject *) { ++abriu; };
    data->OnCloseUp = [&](QObject *) { ++fechou; };
    ClicarSeta();
    ASSERT_TRUE(data->DroppedDown());
    EXPECT_EQ(abriu, 1);
    EXPECT_EQ(Mes()->GetDate(), TDateTime::DeData(15, 2, 2026));
    EXPECT_EQ(Mes()->locale(), QLocale(QLocale::Portuguese, QLocale::Brazil));
    EXPECT_GE(Calendario()->y(), data->mapToGlobal(QPoint(0, 20)).y()) << "under the field";
    auto *grade = Mes()->findChild<QTableView *>();
    // Sunday 01/02/2026 begins the second row of days; the 18th is a Wednesday.
    QPoint dia;
    for (int l = 1; l < grade->model()->rowCount(); ++l)
        for (int c = 0; c < grade->model()->columnCount(); ++c)
            if (grade->model()->index(l, c).data().toInt() == 18)
                dia = grade->visualRect(grade->model()->index(l, c)).center();
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {}, dia);
    Girar();
    EXPECT_FALSE(data->DroppedDown());
    EXPECT_EQ(fechou, 1);
    EXPECT_EQ(vistas, QStringList{QStringLiteral("18/02/2026")});
    EXPECT_EQ(mudancas, QList{TDateTimePicker::TMudanca::mdEscolha});
    // Pop-ups take the activation of windows on this platform.
    janela.Abrir();
    EXPECT_TRUE(data->hasFocus());
    Digitar("01");
    EXPECT_EQ(Data(), QStringLiteral("01/02/2026")) << "typing goes on at the day";
}

TEST_F(DateTimePicker, TheCalendarIsUsedByKeysAlone)
{
    Abrir();
    QTest::keyClick(data, Qt::Key_F4);
    ASSERT_TRUE(data->DroppedDown());
    QTest::keyClick(Mes()->findChild<QTableView *>(), Qt::Key_Right);
    EXPECT_EQ(Data(), QStringLiteral("15/02/2026")) << "not before Enter";
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    Girar();
    EXPECT_EQ(vistas, QStringList());
    QTest::keyClick(data, Qt::Key_Down, Qt::AltModifier);
    ASSERT_TRUE(data->DroppedDown());
    QTest::keyClick(Mes()->findChild<QTableView *>(), Qt::Key_Down);
    QTest::keyClick(Mes()->findChild<QTableView *>(), Qt::Key_Return);
    Girar();
    EXPECT_EQ(vistas, QStringList{QStringLiteral("22/02/2026")});
    EXPECT_FALSE(data->DroppedDown());
}

TEST_F(DateTimePicker, TheArrowClosesTheOpenCalendar)
{
    Abrir();
    ClicarSeta();
    ASSERT_TRUE(data->DroppedDown());
    const QPoint seta = data->mapToGlobal(QPoint(84, 10));
    QTest::mouseClick(Calendario(), Qt::LeftButton, {}, Calendario()->mapFromGlobal(seta));
    Girar();
    EXPECT_FALSE(data->DroppedDown());
    EXPECT_EQ(vistas, QStringList());
}

TEST_F(DateTimePicker, PastesWhatIsADate)
{
    Abrir();
    TAvisos avisos;
    const QList<QPair<const char *, const char *>> textos = {
        {"10/03/2024", "10/03/2024"}, {" 1/4/24 ", "01/04/2024"},   {"05062024", "05/06/2024"},
        {"050747", "05/07/1947"},     {"2024-12-31", "31/12/2024"}, {"29.02.2024", "29/02/2024"}};
    for (const auto &[texto, esperado] : textos) {
        ColarTexto(data, QString::fromLatin1(texto));
        EXPECT_EQ(Data(), QString::fromLatin1(esperado)) << texto;
    }
    EXPECT_EQ(mudancas.size(), textos.size());
    EXPECT_EQ(mudancas.last(), TDateTimePicker::TMudanca::mdEscolha);
    EXPECT_EQ(avisos.textos, QStringList());
    for (const char *texto : {"31/02/2024", "amanhã", "", "01/01/0000", "1/1"})
        ColarTexto(data, QString::fromUtf8(texto));
    EXPECT_EQ(Data(), QStringLiteral("29/02/2024"));
    EXPECT_EQ(avisos.textos.size(), 5);
    EXPECT_EQ(avisos.textos.first(),
              QStringLiteral("O texto \"31/02/2024\" não é uma data e não foi colado."));
    QTest::keyClick(data, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("29/02/2024"));
    QTest::keyClick(data, Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(Texto(), QStringLiteral("29/02/2024"));
}

TEST_F(DateTimePicker, KeyHandlersSeeTheKeyBeforeTheDateChanges)
{
    Abrir();
    QStringList teclas;
    AoTeclaDescer(data, [&](int &tecla, Qt::KeyboardModifiers) {
        teclas << QString::number(tecla) + u' ' + Data();
    });
    AoTeclar(data, [&](QChar &c) { teclas << QString(c) + u' ' + Data(); });
    Digitar("3");
    QTest::keyClick(data, Qt::Key_Delete);
    EXPECT_EQ(teclas, (QStringList{QStringLiteral("51 15/02/2026"), QStringLiteral("3 15/02/2026"),
                                   QStringLiteral("46 03/02/2026")}));
}

TEST_F(DateTimePicker, TheProgramWritesInTheMiddleOfTyping)
{
    Abrir();
    Digitar("1");
    data->SetDate(TDateTime::DeData(5, 6, 2027));
    EXPECT_EQ(Texto(), QStringLiteral("05/06/2027"));
    Digitar("2");
    EXPECT_EQ(Data(), QStringLiteral("02/06/2027"));
    data->setProperty("date", QDate(2020, 1, 1));
    EXPECT_EQ(vistas.size(), 2) << "neither way of writing is announced";
}

TEST_F(DateTimePicker, ReadOnlyKeepsItsDate)
{
    Abrir();
    data->setReadOnly(true);
    Digitar("10");
    QTest::keyClick(data, Qt::Key_Up);
    QTest::keyClick(data, Qt::Key_Delete);
    QTest::keyClick(data, Qt::Key_F4);
    ClicarSeta();
    ColarTexto(data, QStringLiteral("10/03/2024"));
    EXPECT_FALSE(data->DroppedDown());
    EXPECT_EQ(Texto(), QStringLiteral("15/02/2026"));
}

TEST_F(DateTimePicker, NoughtTwiceIsNoDay)
{
    Abrir();
    Digitar("00");
    EXPECT_EQ(Texto(), QStringLiteral("0_/02/2026"));
    Digitar("7");
    EXPECT_EQ(Data(), QStringLiteral("07/02/2026"));
}

TEST_F(DateTimePicker, APastedDateEndsTheTyping)
{
    Abrir();
    Digitar("1");
    ColarTexto(data, QStringLiteral("10/03/2024"));
    EXPECT_EQ(Texto(), QStringLiteral("10/03/2024"));
    Digitar("05");
    EXPECT_EQ(Data(), QStringLiteral("05/03/2024"));
}

TEST_F(DateTimePicker, ComingBackFromAnotherWindowGoesOnInTheSamePart)
{
    Abrir();
    QTest::keyClick(data, Qt::Key_End);
    ASSERT_EQ(data->currentSection(), QDateTimeEdit::YearSection);
    QWidget outra;
    outra.show();
    outra.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&outra));
    janela.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&janela));
    EXPECT_TRUE(data->hasFocus());
    EXPECT_EQ(data->currentSection(), QDateTimeEdit::YearSection);
}

TEST_F(DateTimePicker, TheCalendarOpensAboveWhereTheScreenEnds)
{
    Abrir();
    const QRect tela = janela.screen()->availableGeometry();
    janela.move(tela.left() + 20, tela.bottom() - 80);
    QTest::keyClick(data, Qt::Key_F4);
    ASSERT_TRUE(Calendario());
    EXPECT_LT(Calendario()->y(), janela.y());
    EXPECT_LE(Calendario()->geometry().bottom(), data->mapToGlobal(data->rect().center()).y());
    QTest::keyClick(Calendario(), Qt::Key_Escape);
}

TEST_F(DateTimePicker, DigitsOfAnInputMethodAreTyped)
{
    Abrir();
    Compor(data, QStringLiteral("10032024"));
    EXPECT_EQ(Data(), QStringLiteral("10/03/2024"));
}

TEST_F(DateTimePicker, TheMiddleButtonPastesNothing)
{
    Abrir();
    if (QApplication::clipboard()->supportsSelection())
        QApplication::clipboard()->setText(QStringLiteral("1"), QClipboard::Selection);
    QTest::mouseClick(data->findChild<QLineEdit *>(), Qt::MiddleButton);
    EXPECT_EQ(Texto(), QStringLiteral("15/02/2026"));
}

TEST_F(DateTimePicker, TheContextMenuIsPortuguese)
{
    Abrir();
    QContextMenuEvent pedido(QContextMenuEvent::Mouse, QPoint(5, 5),
                             data->mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(data, &pedido);
    auto *menu = qobject_cast<QMenu *>(QApplication::activePopupWidget());
    ASSERT_TRUE(menu);
    EXPECT_TRUE(menu->actions().at(4)->text().startsWith(QStringLiteral("C&opiar")));
    menu->close();
}

TEST_F(DateTimePicker, NamesAndDigitsAreBrazilianWhateverTheMachines)
{
    const QLocale daMaquina;
    QLocale::setDefault(QLocale(QLocale::Arabic, QLocale::Egypt));
    TDateTimePicker outro;
    outro.SetDate(TDateTime::DeData(10, 3, 2024));
    EXPECT_EQ(outro.text(), QStringLiteral("10/03/2024"));
    QLocale::setDefault(daMaquina);
}

TEST_F(DateTimePicker, MidnightsThatSummerTimeSkippedAreHeld)
{
    const QByteArray fuso = qgetenv("TZ");
    qputenv("TZ", "America/Sao_Paulo");
    tzset();
    for (const QDate dia : {QDate(2017, 10, 15), QDate(2018, 2, 18), QDate(2018, 11, 4)}) {
        data->setDate(dia);
        EXPECT_EQ(data->date(), dia);
        EXPECT_EQ(data->GetDate(), TDateTime(dia));
        EXPECT_EQ(Texto(), dia.toString(QStringLiteral("dd/MM/yyyy")));
    }
    if (fuso.isNull())
        qunsetenv("TZ");
    else
        qputenv("TZ", fuso);
    tzset();
}

TEST_F(DateTimePicker, HandlersMayDestroyIt)
{
    Abrir();
    const QPointer<TDateTimePicker> vivo(data);
    data->OnChange = [&](QObject *) { delete data; };
    Digitar("1");
    EXPECT_TRUE(vivo.isNull());
}

TEST_F(DateTimePicker, HandlersMayTakeThemselvesOut)
{
    Abrir();
    EXPECT_TRUE(InteiroAoSair(data->OnChange, [this] { Digitar("1"); }));
    EXPECT_TRUE(InteiroAoSair(data->OnClick, [this] {
        QTest::mouseClick(data->findChild<QLineEdit *>(), Qt::LeftButton, {}, QPoint(5, 8));
    }));
    EXPECT_TRUE(InteiroAoSair(data->OnDropDown, [this] { data->SetDroppedDown(true); }));
    EXPECT_TRUE(InteiroAoSair(data->OnCloseUp, [this] {
        data->SetDroppedDown(false);
        Girar();
    }));
}

TEST_F(DateTimePicker, TheHandlerOfTheCalendarMayForbidItOrOpenItItself)
{
    Abrir();
    data->OnDropDown = [this](QObject *) { data->setReadOnly(true); };
    ClicarSeta();
    EXPECT_FALSE(data->DroppedDown());
    EXPECT_FALSE(QApplication::activePopupWidget());
    data->setReadOnly(false);
    int vezes = 0;
    data->OnDropDown = [&](QObject *) {
        if (++vezes == 1)
            data->SetDroppedDown(true);
    };
    data->SetDroppedDown(true);
    EXPECT_TRUE(data->DroppedDown());
    EXPECT_EQ(vezes, 2);
    EXPECT_EQ(data->findChildren<TMonthCalendar *>().size(), 1) << "one calendar, not two";
}

TEST_F(DateTimePicker, ItMayGoWhileItsCalendarIsOpen)
{
    Abrir();
    ClicarSeta();
    ASSERT_TRUE(data->DroppedDown());
    delete data;
    EXPECT_FALSE(QApplication::activePopupWidget());
}

} // namespace
