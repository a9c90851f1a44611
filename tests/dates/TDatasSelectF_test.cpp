#include "dates/UDatasSelectF.h"
#include "platform/core/Relogio.h"
#include "platform/support/SisD.h"
#include "platform/toolkit/TAction.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TImageList.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TPanel.h"
#include "platform/toolkit/TRadioButton.h"
#include "platform/toolkit/TToolBar.h"
#include "support/Girar.h"
#include "support/Layouts.h"
#include "support/NoDialogo.h"

#include <QLabel>
#include <QTableView>

using namespace ficha;
using namespace ficha::testes;

namespace
{

TDateTime Dia(int dia, int mes, int ano)
{
    return TDateTime::DeData(dia, mes, ano);
}

class TDatasSelectFTest : public testing::Test
{
protected:
    void SetUp() override
    {
        HojeE(10, 3, 2024);
        const std::pair<int, const char *> figuras[] = {
            {31, "calendario-antes"}, {32, "calendario-depois"}, {33, "calendario-7dias"},
            {34, "calendario-hoje"},  {35, "calendario"},        {36, "calendario-4semanas"},
            {37, "calendario-todas"},
        };
        for (const auto &[indice, figura] : figuras)
            imagens.AddSvg(indice, QLatin1String(figura));
        SisD().ImageList16 = &imagens;
        diag.reset(Criar<TDatasSelectF>(nullptr));
    }
    void TearDown() override
    {
        SetRelogio({});
        SisD().ImageList16 = nullptr;
    }

    /** With a time of day, which no date may keep. */
    static void HojeE(int dia, int mes, int ano)
    {
        SetRelogio([=] { return TDateTime(QDateTime(QDate(ano, mes, dia), QTime(17, 45, 1))); });
    }
    void Mostrar()
    {
        diag->move(0, 0);
        diag->Show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(diag.get()));
    }
    /** Runs the dialog and what the user does in it. */
    bool Executar(const std::function<void()> &usuario)
    {
        const TNoDialogo<TDatasSelectF> noDialogo([&](TDatasSelectF &) { usuario(); });
        return diag->Executar();
    }
    /** Clicks on a preset's button. */
    void Apertar(TAction *acao)
    {
        for (TToolBar *barra : {diag->ToolBar1, diag->ToolBar2})
            for (TToolButton *botao : barra->Buttons())
                if (botao->GetAction() == acao)
                    QTest::mouseClick(botao, Qt::LeftButton);
    }
    /** Both sides as the user sees them: "*" is open, "?" is a calendar out of step. */
    QString Faixa() const
    {
        const auto lado = [](const TMonthCalendar *cal, const TRadioButton *qualquer,
                             const TRadioButton *indicada, const QString &data) {
            if (qualquer->isChecked())
                return !indicada->isChecked() && cal->isHidden() ? QStringLiteral("*")
                                                                 : QStringLiteral("?");
            return indicada->isChecked() && !cal->isHidden() ? data : QStringLiteral("?");
        };
        return lado(diag->MonthCalendar1, diag->DeQRadioButton, diag->DeIRadioButton,
                    diag->AsString1()) +
               u' ' +
               lado(diag->MonthCalendar2, diag->AteQRadioButton, diag->AteIRadioButton,
                    diag->AsString2());
    }
    QString Depois(TAction *acao)
    {
        Apertar(acao);
        EXPECT_EQ(Resumo(), diag->SelecStr()) << "every preset refreshes the summary";
        return Faixa();
    }
    QString Resumo() const { return diag->SelecStrLab->text(); }
    QColor Cor() const
    {
        return diag->SelecStrLab->palette().color(QPalette::Active, QPalette::WindowText);
    }
    static QColor CorNormal() { return QApplication::palette().color(QPalette::WindowText); }
    void Datas(TDateTime inicio, TDateTime fim)
    {
        diag->MonthCalendar1->SetDate(inicio);
        diag->MonthCalendar2->SetDate(fim);
    }

    TImageList imagens;
    std::unique_ptr<TDatasSelectF> diag;
};

const QString Erro = QStringLiteral("Erro. Data inicial deve ser igual o menor que a final.");

TEST_F(TDatasSelectFTest, LayoutIsTheGoldenOne)
{
    Datas(Dia(1, 3, 2024), Dia(31, 3, 2024));
    Mostrar();
    EXPECT_TRUE(ConfereLayout(diag.get(), QStringLiteral("TDatasSelectF")));
    EXPECT_EQ(diag->size(), QSize(475, 315));
    EXPECT_TRUE(diag->windowFlags().testFlag(Qt::FramelessWindowHint));
    EXPECT_EQ(diag->Label1->text(), QStringLiteral("Data Inicial"));
    EXPECT_EQ(diag->Label2->text(), QStringLiteral("Data Final"));
    EXPECT_TRUE(diag->SelecStrLab->font().bold());
    EXPECT_EQ(diag->DeQRadioButton->parentWidget()->objectName(), QStringLiteral("Panel2"));
    EXPECT_EQ(diag->AteIRadioButton->parentWidget()->objectName(), QStringLiteral("Panel3"));
    EXPECT_EQ(diag->SelecStrLab->parentWidget()->objectName(), QStringLiteral("Panel4"));
    diag->DeQRadioButton->SetChecked(true);
    Retratar(diag.get(), QStringLiteral("TDatasSelectF_aberto"));
    diag->DeIRadioButton->SetChecked(true);
    Datas(Dia(1, 4, 2024), Dia(31, 3, 2024));
    diag->PreencherSelecStr();
    Retratar(diag.get(), QStringLiteral("TDatasSelectF_erro"));
}

TEST_F(TDatasSelectFTest, EveryTextIsSeenWhole)
{
    Mostrar();
    for (const TRadioButton *b :
         {diag->DeQRadioButton, diag->DeIRadioButton, diag->AteQRadioButton, diag->AteIRadioButton})
        EXPECT_GE(b->width(), b->sizeHint().width());
    Datas(Dia(1, 4, 2024), Dia(31, 3, 2024));
    diag->PreencherSelecStr();
    EXPECT_EQ(Resumo(), Erro);
    EXPECT_GE(diag->SelecStrLab->width(), diag->SelecStrLab->sizeHint().width());
    EXPECT_GE(diag->Label3->width(), diag->Label3->sizeHint().width());
    for (const TToolBar *barra : {diag->ToolBar1, diag->ToolBar2})
        for (const TToolButton *b : barra->Buttons()) {
            EXPECT_TRUE(barra->contentsRect().contains(b->geometry())) << qPrintable(b->text());
            EXPECT_GE(b->width(), b->fontMetrics().horizontalAdvance(b->text()) + 16 + 4 + 4);
            EXPECT_EQ(b->width(), barra->GetButtonWidth());
        }
}

TEST_F(TDatasSelectFTest, ALineAroundItTellsItFromTheScreenBehind)
{
    Mostrar();
    const QImage foto = diag->grab().toImage();
    const QRgb linha = diag->palette().color(QPalette::Shadow).rgb();
    for (const QPoint p : {QPoint(0, 0), QPoint(200, 0), QPoint(0, 150), QPoint(474, 150),
                           QPoint(200, 314), QPoint(474, 314)})
        EXPECT_EQ(foto.pixel(p), linha) << p.x() << ',' << p.y();
}

TEST_F(TDatasSelectFTest, ThePresetsHaveTheirCaptionsHintsAndPictures)
{
    struct {
        TAction *acao;
        const char *caption;
        const char *hint;
        int imagem;
    } const esperado[] = {
        {diag->TodasAct, "Todas", "Todas as datas", 37},
        {diag->AnterioresAct, "Anteriores", "Todas anteriores até hoje", 31},
        {diag->PosterioresAct, "Posteriores", "Todas a partir de hoje", 32},
        {diag->Dias1Act, "Hoje", "Somente hoje", 34},
        {diag->Dias7Act, "7 dias", "Últimos sete dias", 33},
        {diag->Dias4Act, "4 Semanas", "Últimas quatro semanas", 36},
        {diag->MesAct, "Mês", "Somente o mês atual", 35},
        {diag->MesAnteriorAct, "Mês Anterior", "", 35},
        {diag->MesSeguinteAct, "Mês Seguinte", "", 35},
    };
    QList<TToolButton *> botoes = diag->ToolBar1->Buttons() + diag->ToolBar2->Buttons();
    ASSERT_EQ(botoes.size(), 9);
    EXPECT_EQ(diag->ToolBar1->Buttons().size(), 6);
    for (int i = 0; i < 9; ++i) {
        EXPECT_EQ(botoes[i]->GetAction(), esperado[i].acao) << i;
        EXPECT_EQ(esperado[i].acao->GetCaption(), QString::fromUtf8(esperado[i].caption));
        EXPECT_EQ(esperado[i].acao->GetHint(), QString::fromUtf8(esperado[i].hint));
        EXPECT_EQ(esperado[i].acao->GetImageIndex(), esperado[i].imagem);
    }
    EXPECT_EQ(diag->ToolBar1->GetButtonWidth(), 80);
    EXPECT_EQ(diag->ToolBar2->GetButtonWidth(), 92);
    for (const TToolBar *barra : {diag->ToolBar1, diag->ToolBar2})
        EXPECT_TRUE(barra->GetList() && barra->GetShowCaptions());
}

TEST_F(TDatasSelectFTest, ThePicturesAreTheHostsAndOneWithoutServes)
{
    for (const TToolBar *barra : {diag->ToolBar1, diag->ToolBar2})
        for (const TToolButton *b : barra->Buttons()) {
            const QImage figura = b->icon().pixmap(16, 16).toImage();
            EXPECT_EQ(figura, imagens.GetPixmap(b->GetAction()->GetImageIndex()).toImage());
            EXPECT_FALSE(figura.isNull());
        }
    SisD().ImageList16 = nullptr;
    diag.reset(Criar<TDatasSelectF>(nullptr));
    EXPECT_TRUE(diag->ToolBar1->Buttons().first()->icon().isNull());
    EXPECT_EQ(Depois(diag->Dias7Act), QStringLiteral("04/03/2024 10/03/2024"));
}

TEST_F(TDatasSelectFTest, StartsWithBothEndsGivenOnToday)
{
    EXPECT_EQ(Faixa(), QStringLiteral("10/03/2024 10/03/2024"));
    Mostrar();
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024")) << "showing it fills the summary";
}

TEST_F(TDatasSelectFTest, StartAndEndOnTheSameDayShowOnlyThatDate)
{
    Datas(Dia(5, 1, 2024), Dia(5, 1, 2024));
    EXPECT_EQ(diag->DeltaDias(), 1);
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("05/01/2024"));
}

TEST_F(TDatasSelectFTest, TheSummaryNamesBothEndsAndCountsTheDays)
{
    Datas(Dia(1, 3, 2024), Dia(31, 3, 2024));
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("De 01/03/2024 até 31/03/2024 (31 dias)"));
    Datas(Dia(1, 3, 2024), Dia(2, 3, 2024));
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("De 01/03/2024 até 02/03/2024 (2 dias)"));
    diag->DeQRadioButton->SetChecked(true);
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("02/03/2024 e todas as datas anteriores"));
    diag->AteQRadioButton->SetChecked(true);
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("Todas as datas"));
    diag->DeIRadioButton->SetChecked(true);
    EXPECT_EQ(diag->SelecStr(), QStringLiteral("01/03/2024 e todas as datas posteriores"));
}

TEST_F(TDatasSelectFTest, DeltaDiasCountsBothEndsAcrossYearsAndBackwards)
{
    Datas(Dia(31, 12, 2023), Dia(1, 1, 2024));
    EXPECT_EQ(diag->DeltaDias(), 2);
    Datas(Dia(1, 1, 2024), Dia(31, 12, 2024));
    EXPECT_EQ(diag->DeltaDias(), 366);
    Datas(Dia(2, 1, 2024), Dia(1, 1, 2024));
    EXPECT_EQ(diag->DeltaDias(), 0);
    Datas(Dia(1, 1, 1), Dia(31, 12, 9999));
    EXPECT_EQ(diag->DeltaDias(), 3652059);
}

TEST_F(TDatasSelectFTest, AReversedRangeIsMaroonAndTheColourStaysUntilAGivenRangeIsRight)
{
    EXPECT_EQ(Cor(), CorNormal());
    Datas(Dia(2, 3, 2024), Dia(1, 3, 2024));
    diag->PreencherSelecStr();
    EXPECT_EQ(Resumo(), Erro);
    EXPECT_EQ(Cor(), QColor(128, 0, 0));
    Apertar(diag->TodasAct);
    EXPECT_EQ(Resumo(), QStringLiteral("Todas as datas"));
    EXPECT_EQ(Cor(), QColor(128, 0, 0)) << "an open end leaves the colour as it was";
    Apertar(diag->AnterioresAct);
    EXPECT_EQ(Cor(), QColor(128, 0, 0));
    Apertar(diag->Dias1Act);
    EXPECT_EQ(Cor(), CorNormal());
}

TEST_F(TDatasSelectFTest, OkIsRefusedForReversedCalendarsEvenWhenASideIsOpen)
{
    Datas(Dia(2, 3, 2024), Dia(1, 3, 2024));
    EXPECT_FALSE(diag->PodeOk());
    diag->DeQRadioButton->SetChecked(true);
    EXPECT_FALSE(diag->PodeOk());
    diag->AteQRadioButton->SetChecked(true);
    EXPECT_FALSE(diag->PodeOk());
    Datas(Dia(1, 3, 2024), Dia(1, 3, 2024));
    EXPECT_TRUE(diag->PodeOk());
    Datas(Dia(2, 3, 2024), Dia(1, 3, 2024));
    EXPECT_FALSE(Executar([&] {
        QTest::mouseClick(diag->OkBitBtn, Qt::LeftButton);
        Girar(10);
        EXPECT_TRUE(diag->isVisible());
        QTest::mouseClick(diag->CancelBitBtn, Qt::LeftButton);
    }));
}

TEST_F(TDatasSelectFTest, TodasOpensBothEndsAndLeavesTheCalendars)
{
    Datas(Dia(1, 1, 2020), Dia(2, 2, 2021));
    EXPECT_EQ(Depois(diag->TodasAct), QStringLiteral("* *"));
    EXPECT_EQ(diag->AsString1(), QStringLiteral("01/01/2020"));
    EXPECT_EQ(diag->AsString2(), QStringLiteral("02/02/2021"));
}

TEST_F(TDatasSelectFTest, AnterioresEndsTodayAndLeavesTheStartCalendar)
{
    Datas(Dia(1, 1, 2020), Dia(2, 2, 2021));
    EXPECT_EQ(Depois(diag->AnterioresAct), QStringLiteral("* 10/03/2024"));
    EXPECT_EQ(diag->AsString1(), QStringLiteral("01/01/2020"));
    EXPECT_EQ(diag->MonthCalendar2->GetDate(), Dia(10, 3, 2024)) << "without the time of day";
}

TEST_F(TDatasSelectFTest, PosterioresStartsTodayAndLeavesTheEndCalendar)
{
    Datas(Dia(1, 1, 2020), Dia(2, 2, 2021));
    EXPECT_EQ(Depois(diag->PosterioresAct), QStringLiteral("10/03/2024 *"));
    EXPECT_EQ(diag->AsString2(), QStringLiteral("02/02/2021"));
}

TEST_F(TDatasSelectFTest, PresetsShowTheCalendarsThatAnotherPresetHid)
{
    EXPECT_EQ(Depois(diag->TodasAct), QStringLiteral("* *"));
    EXPECT_EQ(Depois(diag->Dias1Act), QStringLiteral("10/03/2024 10/03/2024"));
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024"));
}

TEST_F(TDatasSelectFTest, SevenDaysAreTodayAndTheSixBefore)
{
    EXPECT_EQ(Depois(diag->Dias7Act), QStringLiteral("04/03/2024 10/03/2024"));
    EXPECT_EQ(Resumo(), QStringLiteral("De 04/03/2024 até 10/03/2024 (7 dias)"));
    EXPECT_EQ(Depois(diag->Dias1Act), QStringLiteral("10/03/2024 10/03/2024"));
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024")) << "no radio button has turned";
}

TEST_F(TDatasSelectFTest, FourWeeksAreOneCalendarMonthBackPlusOneDay)
{
    HojeE(31, 3, 2024);
    EXPECT_EQ(Depois(diag->Dias4Act), QStringLiteral("01/03/2024 31/03/2024"));
    HojeE(15, 3, 2024);
    EXPECT_EQ(Depois(diag->Dias4Act), QStringLiteral("16/02/2024 15/03/2024"));
    EXPECT_EQ(diag->DeltaDias(), 29) << "not 28 days";
}

TEST_F(TDatasSelectFTest, MonthsAreWhole)
{
    EXPECT_EQ(Depois(diag->MesAct), QStringLiteral("01/03/2024 31/03/2024"));
    EXPECT_EQ(Depois(diag->MesAnteriorAct), QStringLiteral("01/02/2024 29/02/2024"));
    EXPECT_EQ(Depois(diag->MesSeguinteAct), QStringLiteral("01/04/2024 30/04/2024"));
    HojeE(31, 1, 2023);
    EXPECT_EQ(Depois(diag->MesSeguinteAct), QStringLiteral("01/02/2023 28/02/2023"));
    EXPECT_EQ(Depois(diag->MesAnteriorAct), QStringLiteral("01/12/2022 31/12/2022"))
        << "in January it is December of the year before";
    HojeE(31, 12, 2023);
    EXPECT_EQ(Depois(diag->MesSeguinteAct), QStringLiteral("01/01/2024 31/01/2024"));
}

TEST_F(TDatasSelectFTest, TheRadioButtonsHideAndShowTheirCalendar)
{
    Mostrar();
    QTest::mouseClick(diag->DeQRadioButton, Qt::LeftButton, {}, QPoint(6, 9));
    EXPECT_EQ(Faixa(), QStringLiteral("* 10/03/2024"));
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024 e todas as datas anteriores"));
    QTest::mouseClick(diag->AteQRadioButton, Qt::LeftButton, {}, QPoint(6, 9));
    EXPECT_EQ(Faixa(), QStringLiteral("* *"));
    QTest::mouseClick(diag->DeIRadioButton, Qt::LeftButton, {}, QPoint(6, 9));
    EXPECT_EQ(Faixa(), QStringLiteral("10/03/2024 *"));
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024 e todas as datas posteriores"));
    QTest::mouseClick(diag->AteIRadioButton, Qt::LeftButton, {}, QPoint(6, 9));
    EXPECT_EQ(Faixa(), QStringLiteral("10/03/2024 10/03/2024"));
    EXPECT_EQ(Resumo(), QStringLiteral("10/03/2024"));
}

TEST_F(TDatasSelectFTest, EachCalendarRefreshesTheSummaryAtOnce)
{
    Mostrar();
    QTest::keyClick(diag->MonthCalendar1->focusProxy(), Qt::Key_Home);
    EXPECT_EQ(Resumo(), QStringLiteral("De 01/03/2024 até 10/03/2024 (10 dias)"));
    auto *grade = diag->MonthCalendar2->findChild<QTableView *>();
    QTest::mouseClick(grade->viewport(), Qt::LeftButton, {},
                      grade->visualRect(grade->model()->index(4, 0)).center());
    EXPECT_EQ(Resumo(), QStringLiteral("De 01/03/2024 até 17/03/2024 (17 dias)"));
    Datas(Dia(1, 1, 2024), Dia(2, 1, 2024));
    EXPECT_EQ(Resumo(), QStringLiteral("De 01/03/2024 até 17/03/2024 (17 dias)"))
        << "the program's dates do not announce";
    QTest::mouseClick(diag->Label3, Qt::LeftButton);
    EXPECT_EQ(Resumo(), QStringLiteral("De 01/01/2024 até 02/01/2024 (2 dias)"));
}

TEST_F(TDatasSelectFTest, TheFocusStartsOnTheFirstCalendarThatIsShown)
{
    EXPECT_TRUE(Executar([&] {
        EXPECT_TRUE(diag->MonthCalendar1->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    })) << "Enter confirms";
    EXPECT_EQ(diag->AsString1(), QStringLiteral("09/03/2024"));
    diag->DeQRadioButton->SetChecked(true);
    EXPECT_FALSE(Executar([&] {
        EXPECT_TRUE(diag->MonthCalendar2->isAncestorOf(QApplication::focusWidget()));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    })) << "Esc cancels";
    diag->AteQRadioButton->SetChecked(true);
    EXPECT_TRUE(Executar([&] {
        EXPECT_EQ(QApplication::focusWidget(), diag->DeQRadioButton);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
    }));
}

TEST_F(TDatasSelectFTest, TabGoesFromTheStartOverTheEndToTheButtons)
{
    Mostrar();
    const QWidget *ordem[] = {diag->AteIRadioButton, diag->MonthCalendar2->focusProxy(),
                              diag->OkBitBtn,        diag->CancelBitBtn,
                              diag->DeIRadioButton,  diag->MonthCalendar1->focusProxy()};
    ASSERT_EQ(QApplication::focusWidget(), diag->MonthCalendar1->focusProxy());
    for (const QWidget *parada : ordem) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(QApplication::focusWidget(), parada)
            << qPrintable(QApplication::focusWidget()->objectName()) << " instead of "
            << qPrintable(parada->objectName());
    }
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab, Qt::ShiftModifier);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Left);
    EXPECT_EQ(Faixa(), QStringLiteral("* 10/03/2024")) << "the arrows choose by themselves";
}

TEST_F(TDatasSelectFTest, APresetThatHidesTheFocusedCalendarLeavesTheKeysAlive)
{
    EXPECT_TRUE(Executar([&] {
        Apertar(diag->TodasAct);
        ASSERT_TRUE(QApplication::focusWidget());
        EXPECT_TRUE(QApplication::focusWidget()->isVisible());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }));
    EXPECT_EQ(Faixa(), QStringLiteral("* *"));
}

} // namespace
