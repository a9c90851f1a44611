#include "platform/hostforms/TDiagBasF.h"
#include "platform/hostforms/TDiagBitBtnBasF.h"
#include "platform/hostforms/TDiagMontCalendarBasF.h"

#include "platform/core/Servicos.h"
#include "platform/toolkit/TActionList.h"
#include "platform/toolkit/TBitBtn.h"
#include "platform/toolkit/TMonthCalendar.h"
#include "platform/toolkit/TPanel.h"
#include "support/Girar.h"

#include <QLineEdit>
#include <QTableView>
#include <QTimer>

#include <stdexcept>

using namespace ficha;
using ficha::testes::Girar;

namespace
{

/** A dialog that accepts only a text that is not empty. */
template <typename TBase>
class TPerguntaF : public TBase
{
public:
    using TBase::TBase;
    QLineEdit *edit = nullptr;
    int perguntas = 0;
    bool falha = false;

    bool PodeOk() override
    {
        ++perguntas;
        if (falha)
            throw std::runtime_error("x");
        return !edit->text().isEmpty();
    }

protected:
    void FormCreate(QObject *sender) override
    {
        TBase::FormCreate(sender);
        edit = new QLineEdit(this->Panel1);
        edit->setProperty("tag", 1);
        edit->setGeometry(10, 10, 100, 21);
    }
};

QPushButton *Ok(TDiagBasF &d)
{
    return d.OkButton;
}
QPushButton *Ok(TDiagBitBtnBasF &d)
{
    return d.OkBitBtn;
}
QPushButton *Cancelar(TDiagBasF &d)
{
    return d.CancelButton;
}
QPushButton *Cancelar(TDiagBitBtnBasF &d)
{
    return d.CancelBitBtn;
}

template <typename T>
class TDialogos : public testing::Test
{
};
using TTipos = testing::Types<TDiagBasF, TDiagBitBtnBasF, TDiagMontCalendarBasF>;
TYPED_TEST_SUITE(TDialogos, TTipos);

} // namespace

TYPED_TEST(TDialogos, ButtonsStandInTheBottomPanel)
{
    std::unique_ptr<TypeParam> d(Criar<TypeParam>(nullptr));
    EXPECT_EQ(Ok(*d)->text(), QStringLiteral("OK"));
    EXPECT_EQ(Cancelar(*d)->text(), QStringLiteral("Cancelar"));
    EXPECT_EQ(Ok(*d)->parentWidget(), d->ButPanel);
    EXPECT_EQ(d->ButPanel->geometry().bottom(), d->height() - 1);
    EXPECT_EQ(Cancelar(*d)->geometry().right(), d->ButPanel->width() - 5);
    EXPECT_EQ(d->Panel1->height(), d->height() - d->ButPanel->height());
    EXPECT_TRUE(d->ActionList1);
}

TYPED_TEST(TDialogos, OkAsksPodeOkAndEndsTheDialog)
{
    std::unique_ptr<TPerguntaF<TypeParam>> d(Criar<TPerguntaF<TypeParam>>(nullptr));
    bool recusou = false;
    QTimer::singleShot(10, [&] {
        QTest::mouseClick(Ok(*d), Qt::LeftButton);
        Girar(10);
        recusou = d->isVisible();
        d->edit->setText(QStringLiteral("x"));
        QTest::mouseClick(Ok(*d), Qt::LeftButton);
    });
    EXPECT_TRUE(d->Executar());
    EXPECT_TRUE(recusou);
    EXPECT_EQ(d->perguntas, 2);
}

TYPED_TEST(TDialogos, CancelarDoesNotAsk)
{
    std::unique_ptr<TPerguntaF<TypeParam>> d(Criar<TPerguntaF<TypeParam>>(nullptr));
    QTimer::singleShot(10, [&] { QTest::mouseClick(Cancelar(*d), Qt::LeftButton); });
    EXPECT_FALSE(d->Executar());
    QTimer::singleShot(10, [&] { d->close(); });
    EXPECT_FALSE(d->Executar());
    EXPECT_EQ(d->perguntas, 0);
}

TYPED_TEST(TDialogos, EnterIsOkAndEscIsCancelar)
{
    std::unique_ptr<TPerguntaF<TypeParam>> d(Criar<TPerguntaF<TypeParam>>(nullptr));
    d->edit->setText(QStringLiteral("x"));
    QTimer::singleShot(10, [&] { QTest::keyClick(d->edit, Qt::Key_Return); });
    EXPECT_TRUE(d->Executar());
    QTimer::singleShot(10, [&] { QTest::keyClick(d->edit, Qt::Key_Escape); });
    EXPECT_FALSE(d->Executar());
}

TYPED_TEST(TDialogos, FocusStartsOnTheControlWithTag1)
{
    std::unique_ptr<TPerguntaF<TypeParam>> d(Criar<TPerguntaF<TypeParam>>(nullptr));
    QWidget *comFoco = nullptr;
    QTimer::singleShot(20, [&] {
        comFoco = d->focusWidget();
        d->close();
    });
    d->Executar();
    if constexpr (std::is_same_v<TypeParam, TDiagMontCalendarBasF>)
        EXPECT_TRUE(d->MonthCalendar1->isAncestorOf(comFoco) || comFoco == d->MonthCalendar1);
    else
        EXPECT_EQ(comFoco, d->edit);
}

TYPED_TEST(TDialogos, ErrorInPodeOkIsReportedAndTheDialogStays)
{
    const TServicosGuarda guarda;
    int erros = 0;
    Servicos().ReportarErro = [&](std::exception_ptr) { ++erros; };
    std::unique_ptr<TPerguntaF<TypeParam>> d(Criar<TPerguntaF<TypeParam>>(nullptr));
    d->falha = true;
    bool aberto = false;
    QTimer::singleShot(10, [&] {
        Ok(*d)->click();
        Girar(10);
        aberto = d->isVisible();
        d->close();
    });
    EXPECT_FALSE(d->Executar());
    EXPECT_TRUE(aberto);
    EXPECT_EQ(erros, 1);
}

TYPED_TEST(TDialogos, OpensInTheMiddleOfItsOwnersWindowUnlessPlaced)
{
    QWidget janela;
    janela.setGeometry(100, 100, 600, 400);
    janela.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&janela));
    std::unique_ptr<TypeParam> d(Criar<TypeParam>(&janela));
    QPoint centro;
    QTimer::singleShot(10, [&] {
        centro = d->geometry().center();
        d->close();
    });
    d->Executar();
    EXPECT_LE((centro - janela.geometry().center()).manhattanLength(), 4);
    d->move(7, 9);
    QPoint onde;
    QTimer::singleShot(10, [&] {
        onde = d->pos();
        d->close();
    });
    d->Executar();
    EXPECT_EQ(onde, QPoint(7, 9));
}

TEST(TDiagMontCalendarBasF, TwoClicksOnADayAreOkAndOneIsNot)
{
    std::unique_ptr<TDiagMontCalendarBasF> d(Criar<TDiagMontCalendarBasF>(nullptr));
    d->MonthCalendar1->SetDate(TDateTime::DeData(10, 3, 2024));
    bool aberto = false;
    QTimer::singleShot(10, [&] {
        auto *grade = d->MonthCalendar1->findChild<QTableView *>();
        const auto clicar = [&](auto como) {
            const QModelIndex dia = grade->model()->index(3, 2);
            como(grade->viewport(), Qt::LeftButton, Qt::KeyboardModifiers(),
                 grade->visualRect(dia).center(), -1);
        };
        clicar([](auto &&...args) { QTest::mouseClick(args...); });
        Girar(10);
        aberto = d->isVisible();
        clicar([](auto &&...args) { QTest::mouseDClick(args...); });
    });
    EXPECT_TRUE(d->Executar());
    EXPECT_TRUE(aberto);
    EXPECT_EQ(d->MonthCalendar1->GetDate(), TDateTime::DeData(12, 3, 2024));
}

TEST(TDiagMontCalendarBasF, EnterOnADayIsOkAndEscIsCancelar)
{
    std::unique_ptr<TDiagMontCalendarBasF> d(Criar<TDiagMontCalendarBasF>(nullptr));
    const auto tecla = [&](Qt::Key qual) {
        QTimer::singleShot(10, [&d, qual] {
            ASSERT_TRUE(d->MonthCalendar1->isAncestorOf(d->focusWidget()));
            QTest::keyClick(d->focusWidget(), qual);
        });
    };
    tecla(Qt::Key_Return);
    EXPECT_TRUE(d->Executar());
    tecla(Qt::Key_Escape);
    EXPECT_FALSE(d->Executar());
}
