#include "demo/UPrestacoesFr.h"
#include "forms/UFicha.h"
#include "platform/core/Relogio.h"
#include "platform/support/TDBGrid.h"
#include "support/Girar.h"
#include "support/Layouts.h"

#include <QTest>

using namespace comercial;
using namespace ficha;
using namespace ficha::testes;

TEST(TPrestacoesFr, TwelveInstalmentsPayTheSaleToTheCentavo)
{
    SetRelogio([] { return TDateTime(QDateTime(QDate(2024, 1, 31), QTime(10, 0))); });
    const TFicha biblioteca;
    QWidget tela;
    auto *fr = Criar<TPrestacoesFr>(&tela);
    tela.resize(fr->size());
    tela.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
    fr->DoShow();
    Girar();
    TClientDataSet *cds = fr->CDS;
    ASSERT_EQ(cds->RecordCount(), 12);
    EXPECT_EQ(fr->DBGrid1->GetCell(1, 1), QStringLiteral("29/02/2024"));
    EXPECT_EQ(fr->DBGrid1->GetCell(2, 1), QStringLiteral("quinta-feira"));
    double amortizado = 0;
    for (; !cds->Eof(); cds->Next()) {
        amortizado += cds->FieldByName(QStringLiteral("prestacao"))->AsFloat() -
                      cds->FieldByName(QStringLiteral("juros"))->AsFloat();
    }
    EXPECT_NEAR(amortizado, 5400, 0.001);
    EXPECT_EQ(fr->DBGrid1->GetCell(5, 12), QStringLiteral("0,00"));
    TDBGrid *grid = fr->DBGrid1;
    QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(5, 0).center());
    EXPECT_EQ(grid->GetCell(0, 1), QStringLiteral("12")) << "by what is still owed";
    Retratar(&tela, QStringLiteral("TPrestacoesFr"));
    SetRelogio({});
}
