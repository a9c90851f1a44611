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

namespace
{

class TPrestacoesFrTest : public testing::Test
{
protected:
    TPrestacoesFrTest()
    {
        SetRelogio([] { return TDateTime(QDateTime(QDate(2024, 1, 31), QTime(10, 0))); });
        tela.resize(fr->size());
    }
    ~TPrestacoesFrTest() override { SetRelogio({}); }

    void Mostrar()
    {
        tela.show();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&tela));
        fr->DoShow();
        Girar();
    }
    void ClicarTitulo(int coluna)
    {
        TDBGrid *grid = fr->DBGrid1;
        QTest::mouseClick(grid->viewport(), Qt::LeftButton, {}, grid->CellRect(coluna, 0).center());
    }

    const TFicha biblioteca;
    QWidget tela;
    TPrestacoesFr *fr = Criar<TPrestacoesFr>(&tela);
};

} // namespace

TEST_F(TPrestacoesFrTest, TwelveInstalmentsPayTheSaleToTheCentavo)
{
    Mostrar();
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
    ClicarTitulo(5);
    EXPECT_EQ(fr->DBGrid1->GetCell(0, 1), QStringLiteral("12")) << "by what is still owed";
    Retratar(&tela, QStringLiteral("TPrestacoesFr"));
}

TEST_F(TPrestacoesFrTest, ASortedListReadAgainStandsOnTheFirstRowShown)
{
    Mostrar();
    ClicarTitulo(5);
    fr->CDS->Last();
    QList<int> atuais;
    QObject::connect(fr->CDS, &TDataSet::AfterScroll, [&] {
        atuais << fr->CDS->FieldByName(QStringLiteral("numero"))->AsInteger();
    });
    fr->PreencherDados();
    EXPECT_EQ(fr->DBGrid1->GetCell(0, 1), QStringLiteral("12")) << "sorted still";
    EXPECT_EQ(fr->CDS->RecNo(), 1);
    EXPECT_EQ(fr->CDS->FieldByName(QStringLiteral("numero"))->AsInteger(), 12);
    EXPECT_EQ(fr->DBGrid1->GetRow(), 1);
    EXPECT_EQ(atuais, QList<int>{12}) << "announced once, on no other row";
}
